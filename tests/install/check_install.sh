#!/bin/sh
# Installs the library into a scratch prefix and builds a C caller twice:
# with nothing but pkg-config's flags, and through find_package(zeli).
set -eu
build_dir=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cmake --install "$build_dir" --prefix "$work/prefix" > /dev/null
export PKG_CONFIG_PATH="$work/prefix/lib/pkgconfig"
cat > "$work/caller.c" <<'C'
#include <zeli.h>
#include <string.h>
int main(void) {
    int step = 0;
    Zel8u* p = zeliMalloc_8u_C1(7, 3, &step);
    const Zel8u v = 5;
    int ok = p && step == 32 && zeliSet_8u_C1R(v, p, step, (ZeliSize){7, 3}) == zelStatusOk &&
             p[2 * step + 6] == 5 && strcmp(zeliGetLibVersion()->BuildDate, "Feb 18 2008") == 0;
    zeliFree(p);
    return ok ? 0 : 1;
}
C
cc -std=c99 -o "$work/caller" "$work/caller.c" $(pkg-config --cflags --libs zeli)
LD_LIBRARY_PATH="$work/prefix/lib" "$work/caller"

mkdir -p "$work/pkg"
cp "$work/caller.c" "$work/pkg/"
cat > "$work/pkg/CMakeLists.txt" <<'CM'
cmake_minimum_required(VERSION 3.25)
project(caller C)
find_package(zeli REQUIRED)
add_executable(caller caller.c)
target_link_libraries(caller PRIVATE zeli::zeli)
CM
cmake -S "$work/pkg" -B "$work/pkg/build" -DCMAKE_PREFIX_PATH="$work/prefix" > /dev/null
cmake --build "$work/pkg/build" > /dev/null
LD_LIBRARY_PATH="$work/prefix/lib" "$work/pkg/build/caller"
echo "install, pkg-config and find_package(zeli) work"
