#!/usr/bin/env bash
# Checks what users of the installed package rely on. CXX and CXXFLAGS are those of the libraries.
#   check.sh installed BUILD            installs, moves the tree, looks at the libraries, builds the consumer twice
#   check.sh symbols BUILD [--write]    exported symbols against tests/abi, or writes those lists
#   check.sh hardened BUILD             guards of the compiler and the linker in all that is installed
#   check.sh packages FOLDER ARCH       unpacks the Debian packages, builds consumer and examples against them
#   check.sh together FOLDER            lintian on all, and the two architectures beside each other
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
: "${CXX:=g++}" "${CXXFLAGS:=}"
export CXX CXXFLAGS
warnings=(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
product=Qiv.DataModel.Tarvonel.Serialization.Json

fail()
{
    echo "FAILED: $*" >&2
    exit 1
}

# The folder of the system's libraries for the compiler in use, e.g. i386-linux-gnu.
multiarch()
{
    if [[ $CXXFLAGS == *-m32* ]]; then echo i386-linux-gnu; else $CXX -print-multiarch; fi
}

check_consumer() # PREFIX LIBRARY_FOLDER
{
    local system=/usr/lib/$(multiarch) flags
    cmake -G Ninja -S "$here/consumer" -B "$scratch/consumer" "-DCMAKE_PREFIX_PATH=$1" >"$scratch/log" 2>&1 &&
        cmake --build "$scratch/consumer" >"$scratch/log" 2>&1 || fail "find_package: $(cat "$scratch/log")"
    LD_LIBRARY_PATH=$1/$2 "$scratch/consumer/consumer"

    flags=$(PKG_CONFIG_LIBDIR=$1/$2/pkgconfig:$system/pkgconfig:/usr/share/pkgconfig \
        PKG_CONFIG_SYSTEM_LIBRARY_PATH=$system pkg-config --cflags --libs $product)
    [[ $flags == *"$1"* ]] || fail "pkg-config does not point into $1: $flags"
    # shellcheck disable=SC2086 # lists of words
    $CXX $CXXFLAGS -std=c++17 "${warnings[@]}" "$here/consumer/main.cpp" -o "$scratch/by-pkg-config" $flags
    LD_LIBRARY_PATH=$1/$2 "$scratch/by-pkg-config"
}

check_library() # FILE, without version
{
    local name dynamic
    name=$(basename "$1")
    dynamic=$(readelf -d "$1")
    [[ $(basename "$(readlink -f "$1")") == "$name".1.0.0 ]] || fail "$name does not lead to $name.1.0.0"
    [[ $dynamic == *"Library soname: [$name.1]"* ]] || fail "$name has another SONAME: $dynamic"
    # Entities know nothing of JSON.
    [[ $name == *Json.so || $dynamic != *libjsoncpp* ]] || fail "$name needs jsoncpp"
    # Of Boost only headers are used, and nothing of it or of the standard library is offered as ours.
    [[ $dynamic != *boost* ]] || fail "$name needs Boost"
    ! nm --dynamic --defined-only --without-symbol-versions "$1" | awk '{ print $3 }' | grep -Ev '3Qiv|^QIV_1$' ||
        fail "$name exports the names above"
    [[ $dynamic != *TEXTREL* ]] || fail "$name is not position independent"
}

check_installed() # BUILD
{
    local library count=0
    cmake --install "$1" --prefix "$scratch/first" >"$scratch/log" || fail "$(cat "$scratch/log")"
    mv "$scratch/first" "$scratch/moved"
    for library in "$scratch"/moved/lib/lib*.so; do
        check_library "$library"
        count=$((count + 1))
    done
    ((count == $(find "$scratch"/moved/lib/pkgconfig -name '*.pc' | wc -l))) || fail "not one pkg-config file a library"
    ! find "$scratch/moved" -path '*Details*' | grep . || fail "private headers were installed"
    ! grep -rlF -e "$scratch/first" -e "$(cd "$1" && pwd)" "$scratch/moved" --include='*.pc' --include='*.cmake' ||
        fail "the files above hold the path of the build or of the first prefix"
    check_consumer "$scratch/moved" lib
    [[ ! -e $scratch/moved/bin/tarvonel-json ]] || "$scratch/moved/bin/tarvonel-json" --help >/dev/null
}

# Strong symbols of our own, and the type information that casts and exceptions compare across libraries. Weak code is
# left out: how much of it a library holds depends on what the optimiser inlines.
exported() # LIBRARY
{
    local string='std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >'
    nm --dynamic --defined-only --without-symbol-versions --demangle "$1" |
        awk '$2 ~ /[TDBR]/ || /^[0-9a-f]+ [VW] (vtable|typeinfo) for Qiv::/ { sub(/^[0-9a-f]+ . /, ""); print }' |
        sed "s/$string/std::string/g" | grep -F Qiv:: | grep -v '^typeinfo name' | LC_ALL=C sort -u
}

check_symbols() # BUILD [--write]
{
    local library list folder=$here/../abi/amd64
    [[ $(multiarch) != i386-linux-gnu ]] || folder=$here/../abi/i386
    [[ ${2:-} != --write ]] || { mkdir -p "$folder" && rm -f "$folder"/*.symbols; }
    for library in "$1"/lib/lib*.so; do
        list=$folder/$(basename "$library" .so).symbols
        if [[ ${2:-} == --write ]]; then
            exported "$library" >"$list"
        else
            # What no optimiser has removed of class templates is no difference.
            exported "$library" |
                awk -v list="$list" 'BEGIN { while ((getline line <list) > 0) kept[line] }
                    $0 in kept || !/^(vtable|typeinfo) for .*>$/' | diff -u "$list" - ||
                fail "$(basename "$library") exports something else; if that is meant: ./run symbols"
        fi
    done
    (($(ls "$folder"/*.symbols | wc -l) == $(ls "$1"/lib/lib*.so | wc -l))) || fail "not one list a library"
}

check_hardened() # BUILD
{
    local file header dynamic flag
    for file in "$1"/lib/lib*.so "$1/bin/tarvonel-json"; do
        header=$(readelf -lW "$file")
        dynamic=$(readelf -dW "$file")
        [[ $header == *GNU_RELRO* && $dynamic == *BIND_NOW* ]] || fail "$file can be written to after its relocation"
    done
    for flag in -fstack-protector-strong -D_FORTIFY_SOURCE=2 $(uname -m | sed -n 's/^x86_64$/-fcf-protection/p'); do
        # Sources, not the headers that are compiled to see that they stand alone.
        ! grep -E '"command":.*[.]cpp",$' "$1/compile_commands.json" | grep -vFm1 -e " $flag " >&2 ||
            fail "compiled without $flag, see above"
    done
}

check_packages() # FOLDER ARCHITECTURE
{
    local file lib documents depends root=$scratch/root examples=usr/share/doc/libqiv-dev/examples
    lib=usr/lib/$(multiarch)
    # The tool without the package for developers.
    for file in "$1"/{libqiv1,tarvonel-json}_*_"$2".deb; do
        dpkg-deb --extract "$file" "$root"
    done
    documents=$root/usr/share/doc/tarvonel-json/examples/documents
    [[ $(LD_LIBRARY_PATH=$root/$lib "$root/usr/bin/tarvonel-json" convert "$documents/node.json") == \
        "$(<"$documents/canonical/node.json")" ]] || fail "the tool does not convert a node"
    for file in schema/documents.schema.json schema/documents.d.ts cases/Schema.json; do
        [[ -s $root/usr/share/qiv/$file ]] || fail "$file is not in the package of the tool"
    done
    dpkg-deb --extract "$1"/libqiv-dev_*_"$2".deb "$root"

    grep -qF "\"$(dpkg-deb --field "$1"/libqiv-dev_*_"$2".deb Version | sed 's/-[^-]*$//')\"" \
        "$root/$lib/cmake/Qiv/QivConfigVersion.cmake" || fail "debian/changelog is of another version"

    for file in "$root/$lib"/lib*.so; do
        check_library "$file"
        [[ $(readelf -d "$file") != *RUNPATH* ]] || fail "$file carries a search path"
    done
    check_consumer "$root/usr" "lib/$(multiarch)"
    cmake -G Ninja -S "$root/$examples" -B "$scratch/examples" "-DCMAKE_PREFIX_PATH=$root/usr" >"$scratch/log" 2>&1 &&
        cmake --build "$scratch/examples" >"$scratch/log" 2>&1 &&
        LD_LIBRARY_PATH=$root/$lib ctest --test-dir "$scratch/examples" --no-tests=error --output-on-failure \
            >"$scratch/log" 2>&1 ||
        fail "the examples beside the package: $(cat "$scratch/log")"

    # What a package of the consumer would depend on.
    mkdir -p "$scratch/debian/consumer/DEBIAN"
    mv "$scratch/consumer/consumer" "$scratch/debian/consumer"
    printf 'Source: consumer\n\nPackage: consumer\nArchitecture: any\n' >"$scratch/debian/control"
    dpkg-deb --control "$1"/libqiv1_*_"$2".deb "$scratch/control"
    depends=$(cd "$scratch" &&
        DEB_HOST_ARCH=$2 dpkg-shlibdeps -O -L"$scratch/control/shlibs" -l"$root/$lib" debian/consumer/consumer)
    [[ $depends == *"libqiv1 (>= "* ]] || fail "a program that links the libraries depends on $depends"
}

check_together() # FOLDER
{
    local architecture package different
    lintian --allow-root --fail-on error,warning "$1"/*.deb || fail "lintian has findings"
    for package in libqiv1 libqiv-dev; do
        for architecture in amd64 i386; do
            dpkg-deb --extract "$1/${package}"_*_$architecture.deb "$scratch/$architecture"
        done
    done
    # Both may be installed at once as long as files of the same path are the same.
    different=$(diff --recursive --brief --no-dereference "$scratch/amd64" "$scratch/i386" | grep -v '^Only in' || true)
    [[ -z $different && -d $scratch/i386/usr ]] || fail "$different"
}

check_"$1" "${@:2}"
