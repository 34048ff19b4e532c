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
        [[ -e $old.xz ]] || { echo "$old.xz is missing: ./run symbols" >&2 && return 1; }
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
    # The last definition of a name holds.
    ${CXX:-g++} ${CXXFLAGS:-} -shared -fPIC -O2 -g -flto=auto -std=c++17 -fvisibility=hidden -w \
        -D'EXPORTED=__attribute__((visibility("default")))' -DSECOND=1 -DPURE_1=Area -DPURE_2=Length -DTEMPLATE_1=To \
        -DTEMPLATE_2=Append -DVIRTUAL_1=Width -DVIRTUAL_2=Height -DRESULT=int -DFIELD='int count = 1' -DCODE=1 \
        -DHIDDEN='int width = 1' "$@" "$here/changes/Shape.cpp" -o "$scratch/$name.so"
    interface "$scratch/$name.so" "$here/changes"
}

test()
{
    local name first second found failed=0
    built kept >"$scratch/kept"
    while IFS='|' read -r name first second; do
        built "$name" "$first" "${second:--w}" >"$scratch/$name"
        found=changed
        ! compare "$scratch/kept" "$scratch/$name" >/dev/null || found=unchanged
        [[ $name == unchanged* && $found == unchanged || $name != unchanged* && $found == changed ]] ||
            { echo "interface.sh: found to be $found: $name" >&2 && failed=1; }
    done <<'.'
unchanged|-w
unchanged hidden class|-DHIDDEN=double width = 1; int height = 2
unchanged but for the code|-DCODE=7
removed function|-DWITHOUT_FUNCTION
swapped virtual functions|-DVIRTUAL_1=Height|-DVIRTUAL_2=Width
swapped pure virtual functions|-DPURE_1=Length|-DPURE_2=Area
swapped virtual functions of a template|-DTEMPLATE_1=Append|-DTEMPLATE_2=To
added field|-DFIELD=int count = 1; void* next
field of another type|-DFIELD=short count = 1
enumerator of another value|-DSECOND=5
result of another type|-DRESULT=long
.
    return $failed
}

"$1" "${@:2}"
