# Which files are ours: everything but what is built. Sourced by the checks, at the root of the repository.
# shellcheck shell=bash

# list_sources SUFFIX...: their paths, each ended by a zero byte.
list_sources() {
    local suffix names=()
    for suffix in "$@"; do
        names+=(-o -name "*.$suffix")
    done
    find . \( -path ./build -o -path ./.git \) -prune -o -type f \( "${names[@]:1}" \) -print0
}
