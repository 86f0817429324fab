# Which runtime libraries are linked into the programs, and which packages of this machine they come from. Sourced,
# never run.
# shellcheck shell=bash

# One file of each: of libstdc++ and libgcc, and of the mingw-w64 runtime with winpthreads.
# shellcheck disable=SC2034 # for the scripts that source this file
compilerLibrary=libstdc++.a systemLibrary=libmingw32.a

# package_of LIBRARY: the Debian package that the cross compiler's library comes from, and its version.
package_of() {
    local library package
    library=$(readlink -f "$(x86_64-w64-mingw32-g++-posix -print-file-name="$1")")
    package=$(dpkg-query --search "$library")
    dpkg-query --show --showformat='${Package} ${Version}\n' "${package%%:*}"
}
