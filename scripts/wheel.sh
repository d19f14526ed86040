#!/usr/bin/env bash
# Makes the wheel of the Python package: build/wheel/styleconversion-*.whl, for this system, or with --windows for 64-bit
# Windows. "pip install" of that file is all that a user does.
# Usage: scripts/wheel.sh [--windows]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
source scripts/steps.sh
install_packages "${tool_packages[@]}" python3

options=(-G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_UNITY_BUILD=ON)
version=$(sed -n 's/^project(StyleConversion .*VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
case ${1-} in
  "")
    step "Configure" cmake -S . -B build/wheel/linux "${options[@]}"
    shown_step "Build" cmake --build build/wheel/linux
    step "Install" cmake --install build/wheel/linux --prefix build/wheel/prefix
    libraries=(build/wheel/prefix/lib/lib{OxDb,TylModel}.so.0 build/wheel/prefix/lib/libStyleConversionC.so.1)
    platform=linux_$(uname -m)
    ;;
  --windows)
    install_packages "${windows_packages[@]}"
    step "Configure" cmake -S . -B build/wheel/windows "${options[@]}" -DBUILD_SHARED_LIBS=OFF \
      -DCMAKE_TOOLCHAIN_FILE=cmake/windows.cmake
    shown_step "Build" cmake --build build/wheel/windows --target StyleConversionC
    libraries=(build/wheel/windows/bin/StyleConversionC.dll)
    platform=win_amd64
    ;;
  *)
    echo "usage: scripts/wheel.sh [--windows]" >&2
    exit 2
    ;;
esac
python3 python/make_wheel.py "$version" "$platform" build/wheel "${libraries[@]}"
