# What ./run, ./test and ./package share: installing what is missing, and building a preset. Sourced, never run.
# The caller stands at the root of the repository.
# shellcheck shell=bash

# shellcheck disable=SC2034 # the lists are for the scripts that source this file
{
    buildPackages=(cmake ninja-build g++-mingw-w64-x86-64-posix googletest librsvg2-bin icoutils openssl)
    # The wine package brings the commands, wine64 the 64-bit loader. Tahoma and its kin are what dialogs are
    # laid out in, and what Wine finds of the display's libraries decides how it draws; so both are named here,
    # and pictures and audit see the same on every machine.
    winePackages=(wine wine64 fonts-wine fonts-liberation xvfb openbox xdotool imagemagick
        libxcomposite1 libxcursor1 libxfixes3 libxi6 libxinerama1 libxrandr2 libxrender1)
    packagePackages=(faketime git msitools pandoc wixl zip)
    packageTestPackages=(jq)
    # libclang-rt-dev brings the sanitizers of whatever clang the system has.
    testPackages=(clang clang-format clang-tidy lld libclang-rt-dev locales nlohmann-json3-dev python3 shellcheck)
}

say() { printf '== %s\n' "$*"; }

die() {
    printf '%s\n' "$*" >&2
    exit 1
}

# Runs a command again when it fails, three times in all: package servers have bad moments.
insist() {
    local attempt
    for attempt in 1 2 3; do
        if "$@"; then
            return 0
        fi
        say "Attempt $attempt failed: $*"
    done
    return 1
}

# What apt-get has to complain about is shown, not each of the hundreds of files that it unpacks.
update_package_lists() {
    "$@" update -o APT::Update::Error-Mode=any >/dev/null
}
install_packages() {
    "$@" install --yes --no-install-recommends "${missing[@]}" >/dev/null
}

# Takes out of the packages in missing those that the system's sources do not have, and names them. What they are
# needed for may be there under another name, so this ends nothing.
leave_out_unknown() {
    local package known=() unknown=()
    for package in "${missing[@]}"; do
        if apt-cache show --no-all-versions "$package" >/dev/null 2>&1; then
            known+=("$package")
        else
            unknown+=("$package")
        fi
    done
    missing=("${known[@]}")
    if ((${#unknown[@]} > 0)); then
        say "This system has no packages of these names: ${unknown[*]}"
        say 'Where something is missing below, install what corresponds to them.'
    fi
}

# install_missing PACKAGE...: says what it installs, and installs nothing that is there.
install_missing() {
    command -v dpkg-query apt-get apt-cache >/dev/null ||
        die "This system has no apt-get. Install what corresponds to these packages of Debian, and build with CMake: $*"
    local installed missing=() package asRoot=() aptGet
    installed=$(dpkg-query --show --showformat='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null || true)
    for package in "$@"; do
        if ! grep -qxF "$package installed" <<<"$installed"; then
            missing+=("$package")
        fi
    done
    if ((${#missing[@]} == 0)); then
        return 0
    fi
    if ((EUID != 0)); then
        command -v sudo >/dev/null || die "Neither root nor sudo. Have these packages installed: ${missing[*]}"
        asRoot=(sudo)
    fi
    aptGet=("${asRoot[@]}" env DEBIAN_FRONTEND=noninteractive apt-get --quiet
        -o Acquire::Retries=3 -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0)
    insist update_package_lists "${aptGet[@]}" || die "The lists of packages could not be fetched. Wanted: ${missing[*]}"
    leave_out_unknown
    if ((${#missing[@]} == 0)); then
        return 0
    fi
    say "Installing ${missing[*]}"
    insist install_packages "${aptGet[@]}" || die "The packages could not be installed: ${missing[*]}"
}

# build PRESET [TARGET...]: configures, with configureOptions, and builds. What fails does not keep the rest from
# being built.
configureOptions=()
build() {
    local preset=$1
    shift
    say "Building $preset"
    cmake --preset "$preset" "${configureOptions[@]}" --log-level=WARNING &&
        cmake --build --preset "$preset" ${1:+--target "$@"} -- -k 0
}
