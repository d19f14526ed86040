#!/usr/bin/env bash
# Builds the library in the ways that hosts do, and a small host with it, which is run: a line each with the way, the
# result and the seconds it took. Fails when one fails.
# Usage: scripts/builds.sh [--quick]
#
# Every way of having the library meets shared and static, both compilers and both standards; unity builds, -O3 and
# link-time optimisation meet shared and static, and both compilers. --quick takes one of each.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
install_packages "${tool_packages[@]}" "${test_packages[@]}" make

quick=false
case ${1-} in
  "") ;;
  --quick) quick=true ;;
  *)
    echo "usage: scripts/builds.sh [--quick]" >&2
    exit 2
    ;;
esac

root=$PWD
work=$root/build/builds
mkdir -p "$work/logs"
export CMAKE_CXX_COMPILER_LAUNCHER=ccache CMAKE_GENERATOR=Ninja CMAKE_BUILD_PARALLEL_LEVEL
CMAKE_BUILD_PARALLEL_LEVEL=$(nproc)
unset CXX CXXFLAGS CMAKE_BUILD_TYPE
failed=0

# row NAME COMMAND...
row() {
  local name=$1 result=ok begin=$SECONDS status
  local log=$work/logs/${name//[^A-Za-z0-9+]/-}.log
  shift
  set +e
  (set -e; "$@") >"$log" 2>&1 </dev/null
  status=$?
  set -e
  [ $status -eq 0 ] || result=FAILED
  printf '%-58s %-7s %4d s\n' "$name" "$result" $((SECONDS - begin))
  if [ $status -ne 0 ]; then
    failed=1
    tail -n 15 "$log" | sed 's/^/    /'
    echo "    The whole log is $log"
  fi
}

# runs PROGRAM: it converts as the example host does.
runs() {
  "$1" examples/patterns/brick.pat examples/linetypes/complex.lin examples/shapes >"$1.txt"
  diff -u tests/install/host-output.txt "$1.txt"
}

shared_or_static() { [ "$1" = shared ] && echo ON || echo OFF; }

# installed FOLDER OPTION...: builds the library alone and installs it under FOLDER/prefix.
installed() {
  local folder=$work/$1
  shift
  rm -rf "$folder"
  cmake -S . -B "$folder" -DSTYLECONVERSION_TOOL=OFF "$@"
  cmake --build "$folder"
  cmake --install "$folder" --prefix "$folder/prefix"
}

# has_reference FOLDER: what host developers read is installed there.
has_reference() {
  local documents=$work/$1/prefix/share/doc/styleconversion page
  for page in hosts.md memcheck.supp reference/index.html reference/classBlockConverter.html; do
    [ -s "$documents/$page" ] || { echo "$page is not installed"; return 1; }
  done
}

# with_package FOLDER STANDARD OPTION...: a host that finds what is installed there.
with_package() {
  local folder=$work/$1/find_package-$2
  rm -rf "$folder"
  cmake -S tests/builds -B "$folder" -DCMAKE_PREFIX_PATH="$work/$1/prefix" -DCMAKE_CXX_STANDARD="$2" "${@:3}"
  cmake --build "$folder"
  runs "$folder/host"
}

# with_pkg_config FOLDER STANDARD COMPILER FLAG...: the same without CMake.
with_pkg_config() {
  local prefix=$work/$1/prefix flags
  export PKG_CONFIG_PATH=$prefix/lib/pkgconfig
  flags=$(pkg-config --cflags --libs StyleConversion)
  # shellcheck disable=SC2086
  "$3" "-std=c++$2" "${@:4}" -o "$prefix/host-$2" examples/host/*.cpp $flags -pthread "-Wl,-rpath,$prefix/lib"
  runs "$prefix/host-$2"
}

# as_subproject FOLDER STANDARD OPTION...: a host that has the library as a part; nothing of it is the host's.
as_subproject() {
  local folder=$work/$1
  rm -rf "$folder"
  cmake -S tests/builds -B "$folder" -DSTYLECONVERSION_SOURCES="$root" -DCMAKE_CXX_STANDARD="$2" "${@:3}"
  cmake --build "$folder"
  runs "$folder/host"
  cmake --install "$folder" --prefix "$folder/prefix"
  [ "$(cd "$folder/prefix" && find . -type f)" = ./bin/host ]
  grep -q 'set(CPACK_PACKAGE_NAME "host")' "$folder/CPackConfig.cmake"
  grep -q 'set(CPACK_PACKAGE_VERSION "7.8.9")' "$folder/CPackConfig.cmake"
  [ "$(ctest --test-dir "$folder" -N | sed -n 's/^Total Tests: //p')" = 1 ]
  [ -z "$(find "$folder" -name 'styleconv' -o -name 'styleconv.exe')" ]
}

# refuses TEXT COMMAND...: the command fails and says so.
refuses() {
  local output
  if output=$("${@:2}" 2>&1); then
    echo "$output"
    echo "was not refused"
    return 1
  fi
  echo "$output"
  # CMake breaks lines where it likes.
  tr -s ' \n' '  ' <<<"$output" | grep -qF -e "$1"
}

fast_math() {
  rm -rf "$work/fast-math"
  cmake -S . -B "$work/fast-math" -DSTYLECONVERSION_TOOL=OFF -DCMAKE_CXX_FLAGS="$1 -Wfatal-errors"
  refuses "StyleConversion cannot be built with -ffast-math" cmake --build "$work/fast-math" -- -k 1000
  # Not a source is let through.
  [ -z "$(find "$work/fast-math/StyleConversion" "$work/fast-math/drawing" -name '*.o')" ]
}

# unsafe_math FLAG: one that no macro tells of.
unsafe_math() {
  rm -rf "$work/unsafe-math"
  refuses "StyleConversion cannot be built with $1" \
    cmake -S . -B "$work/unsafe-math" -DSTYLECONVERSION_TOOL=OFF -DCMAKE_CXX_COMPILER=clang++ "-DCMAKE_CXX_FLAGS=-g0 $1"
}

# missing NAME PACKAGE OPTION...
missing() {
  rm -rf "$work/missing"
  refuses "was not found: install the Debian package $2." \
    cmake -S . -B "$work/missing" "-DCMAKE_DISABLE_FIND_PACKAGE_$1=ON" "${@:3}"
}

# Defaults but for the options given; what is built beside the library is there.
by_itself() {
  rm -rf "$work/by-itself"
  cmake -S . -B "$work/by-itself" "${@:2}"
  cmake --build "$work/by-itself"
  grep -q '^CMAKE_BUILD_TYPE:STRING=Release$' "$work/by-itself/CMakeCache.txt"
  ! grep -E 'warning:' "$work/by-itself"/*.log 2>/dev/null
  for program in $1; do
    [ -x "$work/by-itself/bin/$program" ]
  done
}

# no_warnings FLAGS: all that a user builds, without a warning.
no_warnings() {
  rm -rf "$work/warnings"
  cmake -S . -B "$work/warnings" -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE="$1" \
    -DSTYLECONVERSION_WARNINGS_AS_ERRORS=ON "${@:2}"
  cmake --build "$work/warnings"
}

# What clang is called with under the Microsoft compiler's name: its own flags, and none of g++'s.
flags_of_clang_cl() {
  rm -rf "$work/clang-cl"
  cmake -S . -B "$work/clang-cl" --toolchain "$root/tests/builds/clang-cl.cmake" -DSTYLECONVERSION_TOOL=OFF \
    -DSTYLECONVERSION_WARNINGS_AS_ERRORS=ON
  python3 tests/builds/check_cl_flags.py "$work/clang-cl/compile_commands.json"
}

if $quick; then
  row "shared, subproject, C++20, g++" as_subproject shared-subproject 20 -DBUILD_SHARED_LIBS=ON
  row "static, unity, installed, C++20, g++" \
    installed static -DBUILD_SHARED_LIBS=OFF -DSTYLECONVERSION_REFERENCE=ON -DCMAKE_UNITY_BUILD=ON
  row "the reference and what goes with it, installed" has_reference static
  row "static, find_package, C++17 host, g++" with_package static 17
  row "static, pkg-config, C++23 host, g++" with_pkg_config static 23 g++
else
  for kind in shared static; do
    libraries=-DBUILD_SHARED_LIBS=$(shared_or_static $kind)
    for compiler in g++ clang++; do
      for standard in 20 23; do
        [ "$compiler $standard" != "clang++ 23" ] || standard=2b
        options=("$libraries" "-DCMAKE_CXX_COMPILER=$compiler" "-DCMAKE_CXX_STANDARD=${standard/2b/23}")
        folder=$kind-$compiler-$standard
        row "$kind, subproject, C++$standard, $compiler" \
          as_subproject "$folder-part" "${standard/2b/23}" "${options[@]}"
        row "$kind, installed, C++$standard, $compiler" installed "$folder" "${options[@]}"
        for host in 17 "$standard"; do
          row "$kind, find_package, C++$host host of C++$standard, $compiler" \
            with_package "$folder" "${host/2b/23}" "-DCMAKE_CXX_COMPILER=$compiler"
          row "$kind, pkg-config, C++$host host of C++$standard, $compiler" \
            with_pkg_config "$folder" "$host" "$compiler"
        done
      done
      options=("$libraries" "-DCMAKE_CXX_COMPILER=$compiler")
      row "$kind, unity, subproject, $compiler" as_subproject unity 20 -DCMAKE_UNITY_BUILD=ON "${options[@]}"
      row "$kind, unity of all sources, subproject, $compiler" \
        as_subproject unity 20 -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=0 "${options[@]}"
      row "$kind, -O3, subproject, $compiler" as_subproject O3 20 "-DCMAKE_CXX_FLAGS=-O3 -DNDEBUG" "${options[@]}"
      row "$kind, link-time optimisation, installed, $compiler" \
        installed lto -DCMAKE_INTERPROCEDURAL_OPTIMIZATION=ON "${options[@]}"
      row "$kind, link-time optimisation, find_package, $compiler" with_package lto 20 \
        -DCMAKE_INTERPROCEDURAL_OPTIMIZATION=ON "-DCMAKE_CXX_COMPILER=$compiler"
      row "$kind, all that users build without a warning, $compiler" \
        no_warnings "-O3 -DNDEBUG" "${options[@]}"
    done
  done
  row "the reference, installed" installed reference -DSTYLECONVERSION_REFERENCE=ON
  row "the reference and what goes with it" has_reference reference
  row "-O2 without a warning, g++" no_warnings "-O2 -DNDEBUG"
  row "unity with the tool" by_itself styleconv -DCMAKE_UNITY_BUILD=ON
  row "benchmarks and the tool without tests" by_itself "styleconv document_benchmark" -DSTYLECONVERSION_BENCHMARKS=ON
fi
row "TOOL=OFF, the rest as it is" by_itself "" -DSTYLECONVERSION_TOOL=OFF
row "benchmarks without tool and tests" by_itself "block_benchmark shapes_benchmark geometry_benchmark" \
  -DSTYLECONVERSION_TOOL=OFF -DSTYLECONVERSION_BENCHMARKS=ON
for flags in -ffast-math -ffinite-math-only; do
  row "$flags is refused" fast_math "$flags"
done
for flag in -Ofast -funsafe-math-optimizations -fassociative-math -freciprocal-math -fno-signed-zeros \
  -mrecip=all; do
  row "$flag is refused, clang++" unsafe_math "$flag"
done
row "CLI11 missing" missing CLI11 libcli11-dev
row "nlohmann_json missing" missing nlohmann_json nlohmann-json3-dev
row "GTest missing" missing GTest libgtest-dev -DSTYLECONVERSION_TESTS=ON
row "benchmark missing" missing benchmark libbenchmark-dev -DSTYLECONVERSION_BENCHMARKS=ON
row "flags of clang-cl" flags_of_clang_cl
exit $failed
