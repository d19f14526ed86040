#!/usr/bin/env bash
# Shows what is built for Windows, or the sources and headers given, to clang as the Microsoft compiler's target sees
# it: any warning or extension of the language is an error.
#
# That compiler's own headers are not to be had here. Those of g++ for Windows stand in for them, so this tells of the
# language, of conversions and of the names that are used; not of what its own standard library declares elsewhere.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
install_packages "${tool_packages[@]}" clang g++-mingw-w64-x86-64-posix

work=build/msvc
mkdir -p $work/include $work/conversions
# Headers of other projects, without those of Linux beside them.
ln -sfn /usr/include/CLI $work/include/CLI
ln -sfn /usr/include/nlohmann $work/include/nlohmann
# What the build makes. The bytes of the font are many, and say nothing here.
cmake "-DOUTPUT=$PWD/$work/GalleryFiles.cpp" "-DFOLDER=$PWD/preview/gallery" -P preview/EmbedFiles.cmake
echo 'inline constexpr unsigned char kBuiltInFont[] = {0x00, 0xff};' >$work/conversions/BuiltInFontBytes.h

# The stand-ins want to be read by g++: to what they ask for, clang gives g++'s answers.
cat >$work/first.h <<'HEADER'
#include <_mingw.h>
#undef __MINGW_IMPORT
#define __MINGW_IMPORT extern __declspec(dllimport)
HEADER
gcc_headers=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")/include
options=(--target=x86_64-pc-windows-msvc -std=c++20 -fms-compatibility -U_MSC_VER -U_MSC_FULL_VER
  -D__STRICT_ANSI__ -D__MINGW32__ -D__MINGW64__ -D__GNUC__=12 -D__GNUC_MINOR__=2 -D__GNUC_PATCHLEVEL__=0
  -U__SIZEOF_INT128__ -D__GCC_ATOMIC_TEST_AND_SET_TRUEVAL=1)
for kind in BOOL CHAR CHAR8_T CHAR16_T CHAR32_T WCHAR_T SHORT INT LONG LLONG POINTER; do
  options+=("-D__GCC_ATOMIC_${kind}_LOCK_FREE=2")
done
options+=(-nostdinc -isystem "$gcc_headers/c++" -isystem "$gcc_headers/c++/x86_64-w64-mingw32"
  -isystem "$(clang++ -print-resource-dir)/include" -isystem /usr/x86_64-w64-mingw32/include -isystem $work/include
  -include $work/first.h -I . -I StyleConversion/interfaces -I $work -D JSON_DIAGNOSTICS=1
  -Wall -Wextra -Wpedantic -Wgnu -Wmicrosoft -Wlanguage-extension-token -Wconversion -Wno-sign-conversion -Wshadow
  -Werror)

# Headers of the standard library and of other projects are read once. Behind them, nothing speaks of g++ any more, and
# what only g++ and its like know is an error where it is used.
{
  git grep -hoE '^#include <([a-z_]+|CLI/CLI.hpp|nlohmann/json.hpp)>$' -- StyleConversion drawing diagnostics documents exchange \
    preview styles conversions styleconv examples/host | sort -u
  cat <<'HEADER'
#undef __GNUC__
#undef __GNUC_MINOR__
#undef __GNUC_PATCHLEVEL__
#undef __MINGW32__
#undef __MINGW64__
#define _MSC_VER 1930
#pragma GCC poison __attribute__ __extension__ __int128 __int128_t __uint128_t __float128 __typeof__ gnu ssize_t
#pragma GCC poison __builtin_expect __builtin_unreachable __builtin_clz __builtin_clzll __builtin_ctz __builtin_ctzll
#pragma GCC poison __builtin_popcount __builtin_bswap16 __builtin_bswap32 __builtin_bswap64 __builtin_trap
#pragma GCC poison __builtin_add_overflow __builtin_sub_overflow __builtin_mul_overflow __builtin_isnan
HEADER
} >$work/headers.h
clang++ "${options[@]}" -x c++-header -fpch-instantiate-templates $work/headers.h -o $work/headers.pch

# What each part is built with, and public headers are included with.
defined_for() {
  case $1 in
    *.h) ;;
    StyleConversion/interfaces/TylModel/*) echo -DTYLMODEL_BUILD ;;
    StyleConversion/*) echo -DSTYLECONVERSION_BUILD ;;
    drawing/*) echo -DOXDB_BUILD ;;
    diagnostics/* | documents/* | exchange/* | preview/* | styles/* | conversions/* | "$work"/*) echo -DSTYLECONVERSION_STATIC ;;
    styleconv/*) echo -DSTYLECONVERSION_STATIC '-DSTYLECONVERSION_VERSION="0"' ;;
  esac
}

check() {
  local defined kind=()
  read -ra defined < <(defined_for "$1") || true
  [[ $1 != *.h ]] || kind=(-x c++ -Wno-pragma-once-outside-header)
  # Headers of the system ask for g++ all along.
  grep -qE '^#include <(windows|io)\.h>' "$1" || kind+=(-include-pch $work/headers.pch)
  clang++ -fsyntax-only "${options[@]}" "${defined[@]}" "${kind[@]}" "$1"
}

if [ $# -eq 0 ]; then
  folders=(StyleConversion drawing diagnostics documents exchange preview styles conversions styleconv examples/host)
  mapfile -t sources < <(git ls-files "${folders[@]/%//*.cpp}" | grep -vE '/(posix|wasi)/')
  mapfile -t headers < <(git ls-files 'StyleConversion/interfaces/*.h' ':(glob)drawing/database/*.h' ':(glob)drawing/entities/*.h' \
    'StyleConversion/*Converter.h' StyleConversion/{Export,linetype/FontInfo,linetype/Services}.h)
  set -- "${sources[@]}" $work/GalleryFiles.cpp "${headers[@]}"
fi
failed=0
running=0
for source in "$@"; do
  if [ $running -ge "$(nproc)" ]; then
    wait -n || failed=1
    running=$((running - 1))
  fi
  check "$source" &
  running=$((running + 1))
done
while [ $running -gt 0 ]; do
  wait -n || failed=1
  running=$((running - 1))
done
exit $failed
