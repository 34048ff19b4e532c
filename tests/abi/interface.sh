#!/usr/bin/env bash
# The binary interface as libabigail reads it from debug information: layouts of classes, slots of virtual functions,
# enumerators and functions. BUILD is made with -O2 -g; its baselines stand in the folder of its architecture.
#   interface.sh check BUILD    tells what has changed
#   interface.sh write BUILD    writes the baselines anew
#   interface.sh test           holds the check against a small library and changes of it
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

baselines() # BUILD
{
    case $(readelf -h "$1"/lib/libQiv.TimePoints.so) in
        *ELF64*) echo "$here/amd64" ;;
        *) echo "$here/i386" ;;
    esac
}

# Classes that a header does not show, the standard library's functions and the paths of the build are left out.
interface() # LIBRARY HEADERS
{
    [[ $(readelf -SW "$1") == *.debug_info* ]] || { echo "$1 has no debug information" >&2 && return 1; }
    abidw --headers-dir "$2" --drop-private-types --suppressions "$here/standard-library.abignore" \
        --drop-undefined-syms --no-elf-needed --no-corpus-path --no-comp-dir-path --no-show-locs \
        --no-parameter-names "$1" | sed "s| path='[./]*| path='|"
}

compare() # OLD NEW
{
    abidiff --no-show-locs "$1" "$2" >"$scratch/report" || { cat "$scratch/report" && return 1; }
}

check()
{
    local folder library old changed=0
    folder=$(baselines "$1")
    for library in "$1"/lib/lib*.so; do
        old=$folder/$(basename "$library" .so).abi
        xz -dc "$old.xz" >"$scratch/old" && interface "$library" "$here/../../Qiv" >"$scratch/new" || return 1
        if ! compare "$scratch/old" "$scratch/new"; then
            echo "$(basename "$library") has another binary interface; if that is meant: ./run symbols" >&2
            changed=1
        fi
    done
    return $changed
}

write()
{
    local folder library
    folder=$(baselines "$1")
    mkdir -p "$folder"
    rm -f "$folder"/*.abi.xz
    for library in "$1"/lib/lib*.so; do
        interface "$library" "$here/../../Qiv" | xz -9e >"$folder/$(basename "$library" .so).abi.xz"
    done
}

built() # NAME DEFINITION...
{
    local name=$1
    shift
    ${CXX:-g++} ${CXXFLAGS:-} -shared -fPIC -O2 -g -flto=auto -std=c++17 -fvisibility=hidden -fvisibility-inlines-hidden \
        "$@" "$here/changes/Shape.cpp" -o "$scratch/$name.so" && interface "$scratch/$name.so" "$here/changes"
}

test()
{
    local name definition failed=0
    built kept >"$scratch/kept"
    while read -r name definition; do
        # shellcheck disable=SC2086 # a list of words
        built "$name" $definition >"$scratch/$name"
        if compare "$scratch/kept" "$scratch/$name" >/dev/null; then echo same; else echo changed; fi >"$scratch/found"
        [[ $(<"$scratch/found") == "$([[ $name == unchanged* ]] && echo same || echo changed)" ]] ||
            { echo "interface.sh: $name was found to be $(<"$scratch/found")" >&2 && failed=1; }
    done <<'.'
unchanged
unchanged-hidden-class -DHIDDEN_FIELD=1
unchanged-code -DRESULT=7
removed-function -DWITHOUT_FUNCTION
swapped-virtual-functions -DSWAPPED_VIRTUAL
swapped-pure-virtual-functions -DSWAPPED_PURE
swapped-virtual-functions-of-a-template -DSWAPPED_IN_TEMPLATE
added-field -DFIELD=1
field-of-another-type -Dcount_t=short
enumerator-of-another-value -DSECOND=5
result-of-another-type -Dresult_t=long
.
    return $failed
}

"$1" "${@:2}"
