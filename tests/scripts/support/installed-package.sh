# What the package tests of both systems share; sourced by them, with the root of the checkout as current folder.

# headers_stand_alone PREFIX COMPILER: every installed header compiles by itself, with nothing but the installed ones.
headers_stand_alone() {
    local headers
    mapfile -t headers < <(cd "$1/include" && find . -name '*.h')
    ((${#headers[@]} > 10))
    printf '%s\0' "${headers[@]}" | xargs -0 -P "$(nproc)" -I{} sh -c \
        'echo "#include <{}>" | "$1" -std=c++20 -Wall -Wextra -Werror -fsyntax-only -I "$2/include" -x c++ -' \
        sh "$2" "$1"
}

# build_preview_host PREFIX FOLDER [ARGUMENT of cmake]...: builds samples/PreviewHost in FOLDER, outside the tree,
# against what is installed in PREFIX.
build_preview_host() {
    local prefix=$1 folder=$2
    shift 2
    cp -r samples/PreviewHost "$folder"
    cmake -G Ninja -S "$folder" -B "$folder/build" -DCMAKE_BUILD_TYPE=Release \
        -DVyrLibrary_DIR="$prefix/lib/cmake/VyrLibrary" "$@" >/dev/null
    cmake --build "$folder/build"
}

# build_host_in_c PREFIX FOLDER [ARGUMENT of cmake]...: makes a host in C alone, host.c, and builds it in FOLDER by CMake's
# target. It ends with 0 when the library is of its version.
build_host_in_c() {
    local prefix=$1 folder=$2
    shift 2
    mkdir -p "$folder"
    cat >"$folder/host.c" <<'END'
#include <vyr.h>

int main(void)
{
    return vyr_version() == VYR_VERSION ? 0 : 1;
}
END
    cat >"$folder/CMakeLists.txt" <<'END'
cmake_minimum_required(VERSION 3.25)
project(HostInC LANGUAGES C)
find_package(VyrLibrary REQUIRED)
add_executable(host host.c)
target_link_libraries(host PRIVATE Vyr::C)
END
    cmake -G Ninja -S "$folder" -B "$folder/build" -DVyrLibrary_DIR="$prefix/lib/cmake/VyrLibrary" "$@" >/dev/null
    cmake --build "$folder/build"
}

# make_files FOLDER: what the host is to preview.
make_files() {
    mkdir -p "$1/folder"
    touch "$1"/{b.jpg,a.tar.gz,none}
}

# preview_after VERSION-LINE: what the host prints for these files.
preview_after() {
    printf '%s\n' "$1" "a.tar.gz -> picture 001.gz" "b.jpg -> picture 002.jpg" "none -> picture 003"
}

# version_of PRESET: the version of the product that was built.
version_of() {
    sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "build/$1/CMakeCache.txt"
}
