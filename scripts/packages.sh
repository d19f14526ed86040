#!/usr/bin/env bash
# Installs the Debian packages that the caller needs, and nothing where all are there. To be sourced.

install_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q '^install ok installed$' || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  echo "Installing Debian packages: ${missing[*]}"
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "These packages are missing, and only root can install them: ${missing[*]}" >&2
      return 1
    fi
    as_root=(sudo)
  fi
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq
  mkdir -p build/logs
  local log=build/logs/packages.log
  if ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -qq -y --no-install-recommends "${missing[@]}" >"$log" 2>&1; then
    tail -n 30 "$log" >&2
    echo "The packages could not be installed. The whole log is $PWD/$log" >&2
    return 1
  fi
}

# What the library and the tool are built with, and what the tests need beside it.
tool_packages=(g++ cmake ninja-build libcli11-dev nlohmann-json3-dev)
test_packages=(libgtest-dev libbenchmark-dev libfast-float-dev ccache clang clang-format clang-tidy clang-tools llvm python3 python3-jsonschema)
# What the Python package is installed into.
test_packages+=(python3-venv python3-pytest)
# What an installed tree is looked at with.
test_packages+=(pkgconf doxygen valgrind dpkg-dev file zsh fish)
# What PNG pictures are made by where the tool runs; it is built and works without.
test_packages+=(librsvg2-2)
# What looks at pictures and opens the gallery, and a typeface for their texts.
test_packages+=(librsvg2-bin chromium chromium-driver python3-selenium python3-pil fonts-dejavu-core)

# What builds for Windows and runs it.
windows_packages=(g++-mingw-w64-x86-64-posix wine wine64 googletest)

# What compiles to WebAssembly, and makes the module small.
web_packages=(clang-16 lld-16 llvm libc++-16-dev-wasm32 libc++abi-16-dev-wasm32 wasi-libc libclang-rt-16-dev-wasm32 binaryen
  libfast-float-dev ccache python3)
