#!/usr/bin/env bash
# Builds the page that converts in the browser, build/web/page/index.html, and tests it in one against the built tool:
# web.sh [STYLECONV]. "web.sh --serve [PORT]" serves the page instead, at http://localhost:8000/ where no port is said.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
source scripts/steps.sh

serve=
if [ "${1:-}" = --serve ]; then
  serve=${2:-8000}
  set --
fi
tool=${1:-build/release/bin/styleconv}

install_packages "${tool_packages[@]}" "${web_packages[@]}"

step "Configure the page" cmake --preset web
step "Build the page" cmake --build --preset web
page=build/web/page/index.html
echo "$page: $(wc -c <"$page") bytes, $(gzip -9 <"$page" | wc -c) compressed"

if [ -n "$serve" ]; then
  echo "http://localhost:$serve/"
  exec python3 -m http.server --bind localhost --directory "$(dirname "$page")" "$serve"
fi
# Only sizes that a person waits for.
[ "$(gzip -9 <"$page" | wc -c)" -lt 2500000 ] || { echo "The page is larger than 2.5 MB compressed." >&2; exit 1; }
install_packages chromium chromium-driver python3-selenium
[ -x "$tool" ] || { echo "$tool is not there: build it first" >&2; exit 1; }
timeout 600 /usr/bin/python3 -B tests/web/page_test.py "$page" "$tool" examples
