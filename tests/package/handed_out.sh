# What the tests of the packages share. Sourced, never run.
# shellcheck shell=bash

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
handedOut=$root/build/package
version=${CORVANE_VERSION:?CTest tells which version was built}
# shellcheck disable=SC2034 # for the tests
installer=$handedOut/corvane-$version-x64.msi portable=$handedOut/corvane-$version-portable

# Everything that is wrong is reported; finish tells how it went.
faults=0
complain() {
    printf 'FAULT: %s\n' "$*" >&2
    faults=$((faults + 1))
}
finish() {
    ((faults == 0)) || exit 1
    printf 'passed\n'
    exit 0
}

# expect WHAT EXPECTED ACTUAL
expect() {
    if [[ $2 != "$3" ]]; then
        complain "$1"
        diff --label expected --label came <(printf '%s\n' "$2") <(printf '%s\n' "$3") -U 3 >&2 || true
    fi
}

# property_of MSI NAME
property_of() { msiinfo export "$1" Property | tr -d '\r' | sed -n "s/^$2\t//p"; }

# --- Under Wine, in a world of its own ---

# Takes the world's one desktop.
enter_world() {
    # shellcheck source=tests/kit/harness/world.sh
    . "$root/tests/kit/harness/world.sh"
    take_desktop 96 1252
    enter_prefix 96 1252
}

# Runs a Windows program to its end. Of its exit code only the low byte arrives.
run_program() {
    env "${programEnvironment[@]}" timeout --foreground --signal=KILL 240 wine "$@" {desktopLock}>&- </dev/null
}

# windows_path PATH: as a Windows program sees a file of this machine.
windows_path() { printf 'Z:%s\n' "${1//\//\\}"; }

# run_editor_test TEST EDITOR: a test of packaged_editor_test.cpp; EDITOR as Windows sees it.
run_editor_test() {
    CORVANE_EDITOR=$2 run_program "${CORVANE_PACKAGED_EDITOR_TEST:?CTest tells where it is}" \
        --gtest_filter="PackagedEditor.$1" || complain "PackagedEditor.$1 failed with $2"
}

import_worked_example() { run_program reg import "$(windows_path "$root/example/worked_example.reg")" >/dev/null; }

# The configuration of the client, as text.
configuration() {
    run_program reg export 'HKCU\SOFTWARE\HOLVAN' "$(windows_path "$CORVANE_WORLD/configuration.reg")" /y >/dev/null
    iconv --from-code=UTF-16 --to-code=UTF-8 "$CORVANE_WORLD/configuration.reg"
}
