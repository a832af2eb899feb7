#!/usr/bin/env bash
# tour.sh FOLDER: runs build/panel on a virtual screen, goes the way of project/tour.txt, saves the pictures in
# FOLDER, and stops the panel by its stop button.
set -euo pipefail

fail() { echo "tour.sh: $*" >&2; exit 1; }

mkdir -p "$1"
shots=$(cd "$1" && pwd)
cd "$(dirname "$0")/.."
way=$PWD/project/tour.txt
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

# until_done WHAT COMMAND...: repeats the command until it succeeds, for twenty seconds at most.
until_done() {
    local what=$1 end=$((SECONDS + 20))
    shift
    until "$@"; do
        kill -0 "$panel" 2>/dev/null || fail "the panel ended while it was to $what; see build/log"
        [ $SECONDS -lt $end ] || fail "the panel did not $what; see build/log"
        sleep 0.1
    done
}

# The windows on the screen; every window that the panel opens has a new number.
windows() { { xdotool search --onlyvisible --pid "$panel" 2>/dev/null || true; } | sort; }
has_windows() { [ -n "$(windows)" ]; }
has_other_windows() { [ "$(windows)" != "$1" ]; }

# The clock of the title bar is drawn by the tick that draws everything else; no window covers it.
see_clock() { scrot --overwrite --autoselect 770,8,210,32 "$1"; }
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

click() { xdotool mousemove "$1" "$2" click 1 mousemove 1023 400; }

# The server chooses a free display number and tells it when it is ready.
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1024x768x24 -nolisten tcp 2>/dev/null)
server=$!
read -r -t 20 number <&3 || fail "Xvfb did not start"
export DISPLAY=:$number

(cd build && exec ./panel) &
panel=$!
until_done "show a window" has_windows

# No picture is taken before the panel has drawn what it shows.
while read -r name x y; do
    case $name in '' | '#'*) continue ;; esac
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
    scrot --overwrite "$shots/$name.png"
    echo "$shots/$name.png"
done <"$way"

end=$((SECONDS + 20))
while kill -0 "$panel" 2>/dev/null; do
    [ $SECONDS -lt $end ] || fail "the panel did not stop after its stop button was pressed"
    sleep 0.1
done
status=0
wait "$panel" || status=$?
panel=
[ "$status" = 0 ] || fail "the panel ended with status $status"
echo "The panel ran and stopped; its pictures are in $shots, its log in build/log."
