# The world that Windows programs live in while they are tested, in a folder of its own under build/worlds/ that
# is named for the process that owns it. It has CORVANE_DESKTOPS desktops, one unless told: each is a display
# with a window manager, and Wine prefixes, so that each has one focus and one registry, and tests on different
# desktops do not meet. Whatever is started in a world, by whomever, has CORVANE_WORLD=<that folder> in its
# environment and is found by it in the end, also when its parent has gone: Wine detaches the processes that it
# starts. Sourced, never run.
# shellcheck shell=bash

harness=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
buildFolder=$(cd "$harness/../../.." && pwd)/build

# No browser engine, no .NET, no entries in the menus of the user's desktop.
export WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'

# What Wine is started through, so that nothing lies at an address drawn by lot. The heap of its loader would
# begin anywhere in a gigabyte, and in one start of some thousands lie where Wine needs a page of its own: then
# the start fails before anything of the program has run. A container may forbid this; there they stay rare.
steadyAddresses=(setarch --addr-no-randomize)
"${steadyAddresses[@]}" true 2>/dev/null || steadyAddresses=()

# wait_until SECONDS COMMAND...: asks again and again until the command succeeds; fails when the time is up.
wait_until() {
    local deadline=$((SECONDS + $1))
    shift
    until "$@" >/dev/null 2>&1; do
        if ((SECONDS >= deadline)); then
            return 1
        fi
        sleep 0.05
    done
}

# find_processes VARIABLE=VALUE [PATTERN]: the ids of the processes that have this in their environment.
# Those whose command line matches the pattern are left out.
find_processes() {
    local mark=$1 spared=${2-} path pid
    # The search itself runs without the variable, so that it is not found.
    while read -r path; do
        pid=${path#/proc/}
        pid=${pid%/environ}
        if [[ -z $spared ]] || ! tr '\0' ' ' 2>/dev/null <"/proc/$pid/cmdline" | grep -qiE "$spared"; then
            printf '%s\n' "$pid"
        fi
    done < <(env -u "${mark%%=*}" grep -lszxF -e "$mark" /proc/[0-9]*/environ)
}

# Ends what find_processes finds, again and again until nothing new is started.
end_processes() {
    local pids
    while pids=$(find_processes "$@") && [[ -n $pids ]]; do
        # One that has ended meanwhile is no fault. The list of ids is meant to be split.
        # shellcheck disable=SC2086
        kill -KILL $pids 2>/dev/null || true
    done
}

# Only one process at a time does what may be done once only: with_lock FILE COMMAND...
with_lock() {
    local file=$1
    shift
    # The lock must not live on in the servers that the command leaves running.
    (flock 9 && "$@" 9>&-) 9>"$file"
}

# --- The desktops ---

start_world() {
    local number
    end_abandoned_worlds
    export CORVANE_WORLD=$buildFolder/worlds/$$
    mkdir -p "$CORVANE_WORLD/home"
    trap end_world EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM HUP
    export HOME=$CORVANE_WORLD/home XDG_RUNTIME_DIR=$CORVANE_WORLD/home
    unset WAYLAND_DISPLAY XDG_CACHE_HOME XDG_CONFIG_HOME XDG_DATA_HOME
    # The first is started last, so it is the one whose display those use who do not ask for a desktop.
    for ((number = ${CORVANE_DESKTOPS:-1}; number > 0; number--)); do
        start_desktop "$CORVANE_WORLD/desktop-$number"
    done
}

start_desktop() {
    local folder=$1 display number
    mkdir "$folder"
    exec {display}< <(exec Xvfb -displayfd 1 -screen 0 1920x1200x24 -dpi 96 -nolisten tcp -noreset \
        2>"$folder/display.log")
    if ! read -r -t 60 number <&"$display"; then
        cat "$folder/display.log" >&2
        return 1
    fi
    export DISPLAY=:$number
    # Without a window manager each closing window costs two seconds under Wine.
    openbox --sm-disable --config-file "$harness/openbox.xml" >"$folder/openbox.log" 2>&1 &
    disown
    wait_until 60 xdotool get_num_desktops || { cat "$folder/openbox.log" >&2 && return 1; }
    printf '%s\n' "$DISPLAY" >"$folder/display"
}

# take_desktop DPI CODE_PAGE: takes a desktop that nobody is at, for as long as this shell runs, and rather one
# with a prefix for the two; waits where there is none. What this shell starts must not keep the file of the
# lock, {desktopLock}, open, for Wine's servers live on.
take_desktop() {
    while true; do
        for desktop in "$CORVANE_WORLD"/desktop-*/"prefix-$1-$2" "$CORVANE_WORLD"/desktop-*; do
            if [[ ! -d $desktop ]]; then
                continue
            fi
            desktop=${desktop%/prefix-*}
            exec {desktopLock}>"$desktop/taken"
            if flock --nonblock "$desktopLock"; then
                DISPLAY=$(<"$desktop/display")
                export DISPLAY
                return 0
            fi
            exec {desktopLock}>&-
        done
        sleep 0.05
    done
}

end_world() {
    local prefix
    trap '' INT TERM HUP
    for prefix in "$CORVANE_WORLD"/desktop-*/prefix*; do
        if [[ -d $prefix ]]; then
            WINEPREFIX=$prefix wineserver -k 2>/dev/null || true
        fi
    done
    end_processes "CORVANE_WORLD=$CORVANE_WORLD"
    rm -rf "$CORVANE_WORLD"
}

# A world whose owner was killed outright could not be ended by it.
end_abandoned_worlds() {
    local folder
    for folder in "$buildFolder"/worlds/*; do
        if [[ -d $folder ]] && ! kill -0 "${folder##*/}" 2>/dev/null; then
            CORVANE_WORLD=$folder end_world
        fi
    done
}

# --- Wine prefixes ---

# Making a prefix takes seconds, copying one takes none: a copy shares the files of Windows with the original.
copy_prefix() {
    cp -al "$1" "$2"
    # What is written in place must not be shared.
    find "$2" \( -name '*.reg' -o -name '*.ini' \) -type f -exec cp --remove-destination {} {}.own \; \
        -exec mv {}.own {} \;
}

# The prefix that all others are copied from, made anew only when Wine has changed.
make_base_prefix() {
    local version link
    version=$(wine --version)
    if [[ $(cat "$buildFolder/wine/version" 2>/dev/null) == "$version" ]]; then
        return 0
    fi
    rm -rf "$buildFolder/wine"
    mkdir -p "$buildFolder/wine"
    export WINEPREFIX=$buildFolder/wine/prefix
    "${steadyAddresses[@]}" wineboot --init >/dev/null 2>&1
    # Wine's debugger would end a program that crashes with exit code 0, as if all were well.
    "${steadyAddresses[@]}" wine reg add 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\AeDebug' \
        /v Debugger /d none /f >/dev/null
    wineserver -w
    # The user's folders are links into the home folder, which is none of the tests' business.
    find "$WINEPREFIX/drive_c/users" -type l | while read -r link; do
        rm "$link"
        mkdir "$link"
    done
    printf '%s\n' "$version" >"$buildFolder/wine/version"
}

make_prefix() {
    local dpi=$1
    if [[ -d $WINEPREFIX ]]; then
        return 0
    fi
    with_lock "$buildFolder/wine.lock" make_base_prefix
    copy_prefix "$buildFolder/wine/prefix" "$WINEPREFIX"
    wineserver -p >/dev/null 2>&1
    # Wine 8 takes the dpi of the screen, the size of dialog fonts and that of icons from this value alone.
    if ! env "${programEnvironment[@]}" "${steadyAddresses[@]}" \
        wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$dpi" /f >/dev/null 2>&1 </dev/null; then
        # The next test must not take it for one that is ready.
        wineserver -k || true
        rm -rf "$WINEPREFIX"
        printf 'No prefix could be made for %s dpi\n' "$dpi" >&2
        return 1
    fi
}

# Which locale makes Wine take which code page.
declare -A localeOfCodePage=([932]=ja_JP [1251]=ru_RU)

# Makes the locale under build/, so that the system's own are left alone.
make_locale() {
    local name=$1
    if [[ ! -d $buildFolder/locales/$name.UTF-8 ]]; then
        mkdir -p "$buildFolder/locales"
        localedef -c -i "$name" -f UTF-8 "$buildFolder/locales/$name.UTF-8" >/dev/null 2>&1
    fi
}

# enter_prefix DPI CODE_PAGE: Wine works in the prefix for the two that belongs to the desktop taken, from now
# on. What takes the code page is started with the variables in programEnvironment.
enter_prefix() {
    local dpi=$1 codePage=$2 name
    export WINEPREFIX=$desktop/prefix-$dpi-$codePage
    programEnvironment=(LC_ALL=C.UTF-8)
    if [[ $codePage != 1252 ]]; then
        name=${localeOfCodePage[$codePage]?no locale is known for this code page}
        with_lock "$buildFolder/locales.lock" make_locale "$name"
        programEnvironment=("LOCPATH=$buildFolder/locales" "LC_ALL=$name.UTF-8")
    fi
    (exec {desktopLock}>&- && make_prefix "$dpi")
}
