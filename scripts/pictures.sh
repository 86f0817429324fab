# Takes pictures of the windows that a guide shows. Sourced, never run.
# shellcheck shell=bash

# Succeeds when the window looks as it did when it was last looked at, and so has been drawn to the end.
is_at_rest() {
    local window=$1 picture=$2
    if [[ -e $picture.ppm ]]; then
        mv "$picture.ppm" "$picture.before"
    fi
    import -frame -window "$window" "$picture.ppm" && cmp -s "$picture.ppm" "$picture.before"
}

# take_pictures FOLDER GUIDE...: the guide writes a line "NAME WINDOW" for each picture, and waits for a line.
take_pictures() {
    local folder=$1 name window guide guideId from to taken=0
    shift
    mkdir -p "$folder"
    coproc guide { "$@"; }
    guideId=$!
    # The ends of the pipes are forgotten when the guide ends, which may be before its last line is read.
    exec {from}<&"${guide[0]}" {to}>&"${guide[1]}"
    while read -r name window <&"$from"; do
        rm -f "$folder/$name".*
        wait_until 30 is_at_rest "${window%$'\r'}" "$folder/$name" ||
            die "The window of $name is never drawn to its end."
        convert "$folder/$name.ppm" "$folder/$name.png"
        rm -f "$folder/$name".ppm "$folder/$name".before
        printf '%s\n' "$folder/$name.png"
        taken=$((taken + 1))
        echo >&"$to"
    done
    wait "$guideId" && ((taken > 0))
}
