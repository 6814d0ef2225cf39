#!/bin/sh
# Installs the library into a scratch prefix and builds callers against the
# installed files only, the three ways the README tells: gfortran with -I and
# -lzeb, a C compiler with pkg-config, and CMake with find_package(zeb).
set -eu
build="$1"
src="$2"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix="$work/prefix"
cmake --install "$build" --prefix "$prefix" > /dev/null
lib="$prefix/lib"
[ -d "$lib" ] || lib=$(dirname "$(find "$prefix" -name 'libzeb.so' | head -1)")

gfortran -I"$prefix/include" "$src/examples/demo_fortran.f90" -L"$lib" -lzeb \
  -Wl,-rpath,"$lib" -o "$work/fdemo"
"$work/fdemo" | grep -q 'gamma(  4.50) =  1.16317283965674'

PKG_CONFIG_PATH="$lib/pkgconfig" cc "$src/examples/demo_c.c" \
  $(PKG_CONFIG_PATH="$lib/pkgconfig" pkg-config --cflags --libs zeb) \
  -Wl,-rpath,"$lib" -o "$work/cdemo"
"$work/cdemo" | grep -q 'gamma(  4.50) =   1.16317283965674'

# The static library with the runtimes pkg-config names for it.
PKG_CONFIG_PATH="$lib/pkgconfig" cc "$src/examples/demo_c.c" -static-libgcc \
  -I"$prefix/include" "$lib/libzeb.a" \
  $(PKG_CONFIG_PATH="$lib/pkgconfig" pkg-config --static --libs-only-l zeb | sed 's/-lzeb//') \
  -o "$work/cdemo_static"
"$work/cdemo_static" | grep -q 'gamma(  4.50)'

mkdir "$work/cm"
cat > "$work/cm/CMakeLists.txt" <<'CM'
cmake_minimum_required(VERSION 3.25)
project(consumer LANGUAGES C Fortran)
find_package(zeb REQUIRED)
add_executable(cdemo demo_c.c)
target_link_libraries(cdemo PRIVATE zeb::zeb)
CM
cp "$src/examples/demo_c.c" "$work/cm/"
cmake -S "$work/cm" -B "$work/cm/b" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" > /dev/null
cmake --build "$work/cm/b" > /dev/null
"$work/cm/b/cdemo" | grep -q 'gamma(  4.50)'
echo "installed library used by gfortran, cc with pkg-config (shared and static) and CMake"
