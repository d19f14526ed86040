#!/usr/bin/env bash
# Does what a new user does: clones the repository into a folder elsewhere, runs the README's first command there, looks
# at what came out, and runs the other commands of the documents that build something. The clone has what is committed.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
source scripts/steps.sh

folder=$(mktemp -d)
clone=$folder/StyleConversion
step "Clone" git clone "$PWD" "$clone"
first=$(sed -n '/^```$/,/^```$/s/^\$ \(.*[^ ]\)  *#.*/\1/p' "$clone/README.md" | head -n 1)
[ -n "$first" ] || { echo "README.md begins with no command" >&2; exit 1; }

# As a user has it: without what developers set.
in_clone() {
  cd "$clone"
  env -u CMAKE_CXX_COMPILER_LAUNCHER -u CMAKE_GENERATOR -u CMAKE_BUILD_TYPE -u CXX -u CXXFLAGS bash -c "$1"
}
shown_step "$first" in_clone "$first"

install_packages "${tool_packages[@]}" python3 python3-jsonschema ccache make doxygen dpkg-dev file
step "What the demo made" /usr/bin/python3 -B tests/newcomer/demo_results.py "$clone" "$(log_of "$first")"

# What is built again is the same: developers' cache serves it.
export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_BASEDIR=$clone
shown_step "The documents' commands in the clone" python3 -B tests/commands/commands.py clone . "$clone"
rm -rf "$folder"
