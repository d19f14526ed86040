#!/usr/bin/env bash
# Shows the library's sources, or those given, to clang as the Microsoft compiler's target sees them: any warning or
# extension of the language is an error.
#
# That compiler's own headers are not to be had here. The standard library of g++ for Windows stands in for them, so
# this tells of the language and of the names that are used, not of its headers.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
install_packages clang g++-mingw-w64-x86-64-posix

mkdir -p build/msvc
# Made unknown to the headers, and wanted by them.
cat >build/msvc/first.h <<'HEADER'
#include <_mingw.h>
#undef __MINGW_IMPORT
#define __MINGW_IMPORT extern __declspec(dllimport)
HEADER

gcc_headers=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")/include
options=(--target=x86_64-pc-windows-msvc -fsyntax-only -std=c++20 -fms-compatibility -U_MSC_VER -U_MSC_FULL_VER
  -D__STRICT_ANSI__ -D__MINGW32__ -D__MINGW64__ -D__GNUC__=12 -D__GNUC_MINOR__=2 -D__GNUC_PATCHLEVEL__=0
  -D__GCC_ATOMIC_TEST_AND_SET_TRUEVAL=1)
for kind in BOOL CHAR SHORT INT LONG LLONG POINTER; do
  options+=("-D__GCC_ATOMIC_${kind}_LOCK_FREE=2")
done
options+=(-nostdinc -isystem "$gcc_headers/c++" -isystem "$gcc_headers/c++/x86_64-w64-mingw32"
  -isystem "$(clang++ -print-resource-dir)/include" -isystem /usr/x86_64-w64-mingw32/include
  -include build/msvc/first.h -I . -I StyleConversion/interfaces
  -D STYLECONVERSION_BUILD -D TYLMODEL_BUILD -D OXDB_BUILD -Wall -Wextra -Wpedantic -Wgnu -Werror)

if [ $# -gt 0 ]; then
  printf '%s\n' "$@"
else
  git ls-files 'StyleConversion/*.cpp' 'drawing/*.cpp' | grep -v '/posix/'
fi | xargs -P "$(nproc)" -n 1 clang++ "${options[@]}"
