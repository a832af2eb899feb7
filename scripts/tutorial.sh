#!/usr/bin/env bash
# Does the tutorial of the manual as it is printed.
set -euo pipefail

usage() {
    cat <<'TEXT'
Usage: scripts/tutorial.sh [--help] FOLDER

Reads the part "Tutorial" of docs/writing-screens.md and does in FOLDER, which must be new or empty, what stands
there: writes the files, makes the changes, runs the commands with the ptn in PATH. Each has to succeed. Panels and
windows open on a virtual screen of its own; a panel is ended by its stop button.

It needs the Debian packages xvfb and xdotool, and for the panels the locale ja_JP.eucJP and fonts.
TEXT
}

fail() { echo "tutorial.sh: $*" >&2; exit 1; }

case ${1:-} in
-h | --help) usage; exit 0 ;;
'' | -*) usage >&2; exit 2 ;;
esac
page=$(cd "$(dirname "$0")/.." && pwd)/docs/writing-screens.md
mkdir -p "$1"
[ -z "$(ls -A "$1")" ] || fail "$1 is not empty"
cd "$1"

server=
program=
finish() {
    [ -z "$program" ] || kill "$program" 2>/dev/null || true
    [ -z "$server" ] || kill "$server" 2>/dev/null || true
}
trap finish EXIT

exec 3< <(exec Xvfb -displayfd 1 -screen 0 1024x768x24 -nolisten tcp 2>/dev/null)
server=$!
read -r -t 20 number <&3 || fail "Xvfb did not start"
export DISPLAY=:$number

runs() { kill -0 "$program" 2>/dev/null; }
# until_done WHAT COMMAND...: repeats the command until it succeeds, for twenty seconds at most.
until_done() {
    local what=$1 end=$((SECONDS + 20))
    shift
    until "$@"; do
        [ $SECONDS -lt $end ] || fail "did not $what"
        sleep 0.2
    done
}
has_window() {
    runs || fail "ended without a window"
    [ -n "$(xdotool search --onlyvisible --name . 2>/dev/null)" ]
}
# The stop button of a new project's first screen, which is at the upper left of the display.
has_stopped() {
    xdotool mousemove 544 440 click 1
    ! runs
}

# show COMMAND STATUS ACTION...: runs what opens a window, waits for it, and has the action repeated until it has ended.
show() {
    local command=$1 expected=$2 status=0
    shift 2
    $command &
    program=$!
    until_done "open a window" has_window
    until_done "end" "$@"
    wait "$program" || status=$?
    program=
    [ "$status" = "$expected" ] || fail "ended with status $status"
}
is_interrupted() {
    kill -TERM "$program" 2>/dev/null || true
    ! runs
}

run() {
    echo "\$ $1"
    case $1 in
    'ptn run '*) show "$1" 0 has_stopped ;;
    'ptn watch '*) show "$1" 143 is_interrupted ;;
    *) eval "$1" ;;
    esac
}

# write FILE [TEXT] <<<PART: a new file, or a part of one below the line that begins with the text.
write() {
    local part
    part=$(cat)
    echo "> $1"
    if [ -z "${2:-}" ]; then
        printf '%s\n' "$part" >"$1"
        return
    fi
    [ "$(grep -c "^$2" "$1")" = 1 ] || fail "$1 has not one line that begins with '$2'"
    part=$part awk -v line="$2" '{ print } index($0, line) == 1 { print ENVIRON["part"] }' "$1" >"$1.new"
    mv "$1.new" "$1"
}

into='^<!-- into ([^ ]+)( below "([^"]*)")? -->$'
inside=no
file=
line=
commands=0
while IFS= read -r line; do
    case $line in
    '## Tutorial') inside=yes ;;
    '## '*) inside=no ;;
    esac
    [ $inside = yes ] || continue
    if [[ $line =~ $into ]]; then
        file=${BASH_REMATCH[1]}
        below=${BASH_REMATCH[3]}
    elif [ "$line" = '```yaml' ]; then
        [ -n "$file" ] || fail "the page does not tell where this goes; a line '<!-- into FILE -->' is missing"
        part=
        while IFS= read -r line && [ "$line" != '```' ]; do part+=$line$'\n'; done
        write "$file" "$below" <<<"${part%$'\n'}"
        file=
    elif [[ $line == '    '* ]]; then
        run "${line#    }"
        commands=$((commands + 1))
    fi
done < <(cat "$page")
[ $commands -gt 0 ] || fail "$page has no tutorial"
echo "The tutorial was done as printed: $commands commands."
