#!/usr/bin/env bash
# tour.sh FOLDER: runs build/panel on a virtual screen, visits the screens of project/tour.txt and saves
# a picture of each in FOLDER.
set -euo pipefail
mkdir -p "$1"
shots=$(cd "$1" && pwd)
cd "$(dirname "$0")/.."

server=
panel=
finish() {
    [ -z "$panel" ] || kill "$panel" 2>/dev/null || true
    [ -z "$server" ] || kill "$server" 2>/dev/null || true
}
trap finish EXIT

# The server chooses a free display number and tells it when it is ready.
exec 3< <(exec Xvfb -displayfd 1 -screen 0 1024x768x24 -nolisten tcp 2>/dev/null)
server=$!
read -r -t 20 number <&3 || { echo "tour.sh: Xvfb did not start" >&2; exit 1; }
export DISPLAY=:$number

cd build
./panel &
panel=$!
timeout 20 xdotool search --sync --onlyvisible --pid "$panel" >/dev/null ||
    { echo "tour.sh: the panel showed no window; see build/log" >&2; exit 1; }

# Each line: name of the picture, or "-" for none; then the point to click first, if any.
while read -r name x y; do
    case $name in '' | '#'*) continue ;; esac
    [ -z "$x" ] || xdotool mousemove "$x" "$y" click 1 mousemove 1023 400
    sleep 1.2 # a second for the clock and the values to be seen moving
    if [ "$name" != - ]; then
        scrot --overwrite "$shots/$name.png"
        echo "$shots/$name.png"
    fi
done <../project/tour.txt

# The last click was the stop button.
for _ in $(seq 100); do
    kill -0 "$panel" 2>/dev/null || break
    sleep 0.1
done
if kill -0 "$panel" 2>/dev/null; then
    echo "tour.sh: the panel did not stop after its stop button was pressed" >&2
    exit 1
fi
wait "$panel" || { echo "tour.sh: the panel ended with status $?" >&2; exit 1; }
panel=
echo "The panel ran and stopped; its pictures are in $shots, its log in build/log."
