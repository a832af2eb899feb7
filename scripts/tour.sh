#!/usr/bin/env bash
# Runs a panel on a virtual screen, goes a way through its screens, saves pictures, and stops it.
set -euo pipefail

usage() {
    cat <<'TEXT'
Usage: scripts/tour.sh [--help] [--program COMMAND] [--way FILE] [--windows NAMES]
                       [--seconds NUMBER] FOLDER

Runs a panel on a virtual screen, goes the way through its screens that a file tells, and saves the pictures of it
in FOLDER. The way ends with the panel's stop button.

  --program COMMAND  what runs the panel (default: ./panel, in build/)
  --way FILE         the way; project/tour.txt, which is the default, tells how such a file is written
  --windows NAMES    pictures, such as popup,stop, that show the window in front only, instead of the whole screen
  --seconds NUMBER   how long each step may take (20)
TEXT
}

fail() { echo "tour.sh: $*" >&2; exit 1; }

here=$(cd "$(dirname "$0")/.." && pwd)
program="env --chdir=$here/build ./panel"
way=$here/project/tour.txt
windows_only=
patience=20
shots=
while [ $# -gt 0 ]; do
    case $1 in
    -h | --help)
        usage
        exit 0
        ;;
    --program | --way | --windows | --seconds)
        [ $# -ge 2 ] || { usage >&2; exit 2; }
        case $1 in
        --program) program=$2 ;;
        --way) way=$2 ;;
        --windows) windows_only=$2 ;;
        --seconds) patience=$2 ;;
        esac
        shift
        ;;
    -*)
        usage >&2
        exit 2
        ;;
    *) shots=$1 ;;
    esac
    shift
done
[ -n "$shots" ] || { usage >&2; exit 2; }
mkdir -p "$shots"
now=$(mktemp --suffix=.png)
before=$(mktemp --suffix=.png)

server=
panel=
finish() {
    [ -z "$panel" ] || kill "$panel" 2>/dev/null || true
    [ -z "$server" ] || kill "$server" 2>/dev/null || true
    rm -f "$now" "$before"
}
trap finish EXIT

# until_done WHAT COMMAND...: repeats the command until it succeeds, as long as a step may take.
until_done() {
    local what=$1 end=$((SECONDS + patience))
    shift
    until "$@"; do
        kill -0 "$panel" 2>/dev/null || fail "the panel ended while it was to $what; see its log"
        [ $SECONDS -lt $end ] || fail "the panel did not $what; see its log"
        sleep 0.1
    done
}

# The windows on the screen; every window that the panel opens has a new number.
windows() { { xdotool search --onlyvisible --pid "$panel" 2>/dev/null || true; } | sort; }
has_windows() { [ -n "$(windows)" ]; }
has_other_windows() { [ "$(windows)" != "$1" ]; }

# The clock of the title bar is drawn by the tick that draws everything else; no window covers it.
clock=770,8,210,32
see_clock() { scrot --overwrite --autoselect "$clock" "$1"; }
has_ticked() {
    see_clock "$now"
    ! cmp -s "$before" "$now"
}
# wait_ticks SECONDS: until the clock has gone on so often.
wait_ticks() {
    local _
    for _ in $(seq "$1"); do
        see_clock "$before"
        until_done "move its clock" has_ticked
    done
}

# place_of_front: where the window in front is; the server lists windows from the back to the front.
place_of_front() {
    local X Y WIDTH HEIGHT
    eval "$(xdotool search --onlyvisible --pid "$panel" 2>/dev/null | tail -n 1 |
        xargs xdotool getwindowgeometry --shell | grep -E '^(X|Y|WIDTH|HEIGHT)=[0-9]+$')"
    echo "$X,$Y,$WIDTH,$HEIGHT"
}
# save NAME
save() {
    if [[ ,$windows_only, == *,$1,* ]]; then
        scrot --overwrite --autoselect "$(place_of_front)" "$shots/$1.png"
    else
        scrot --overwrite "$shots/$1.png"
    fi
    echo "$shots/$1.png"
}

click() { xdotool mousemove "$1" "$2" click 1 mousemove 1023 400; }

# The server chooses a free display number and tells it when it is ready.
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1024x768x24 -nolisten tcp 2>/dev/null)
server=$!
read -r -t 20 number <&3 || fail "Xvfb did not start"
export DISPLAY=:$number

$program &
panel=$!
until_done "show a window" has_windows

# No picture is taken before the panel has drawn what it shows.
while read -r name x y; do
    case $name in
    '' | '#'*) continue ;;
    clock)
        clock=$x
        continue
        ;;
    run)
        eval "$x $y"
        continue
        ;;
    esac
    if [ -z "$y" ]; then
        wait_ticks "$x"
    else
        shown=$(windows)
        click "$x" "$y"
        case $name in
        stopped) break ;;
        =) ;;
        *) until_done "answer a click at $x, $y" has_other_windows "$shown" ;;
        esac
        wait_ticks 1
    fi
    case $name in - | =) continue ;; esac
    save "$name"
done <"$way"

end=$((SECONDS + patience))
while kill -0 "$panel" 2>/dev/null; do
    [ $SECONDS -lt $end ] || fail "the panel did not stop after its stop button was pressed"
    sleep 0.1
done
status=0
wait "$panel" || status=$?
panel=
[ "$status" = 0 ] || fail "the panel ended with status $status"
echo "The panel ran and stopped; its pictures are in $shots."
