#!/usr/bin/env bash
# Draws how costs grow, for docs/measurements.md.
set -euo pipefail
cd "$(dirname "$0")/.."

case ${1:-} in
-h | --help)
    cat <<'TEXT'
Usage: scripts/plots.sh [--help]

Measures how the cost of a tick grows with the items of a screen, the time of a start with the patterns and messages of
a project, and memory with the windows that are open, and draws docs/measurements/*.svg from it. Times are drawn as
multiples of the smallest case, since another machine has others. Installs what is missing (gnuplot), and builds the
programs into build/. It takes some minutes; nothing else should run meanwhile.
TEXT
    exit 0
    ;;
'') ;;
*)
    echo "plots.sh: unknown option $1" >&2
    exit 2
    ;;
esac

. scripts/prepare.sh
install_packages "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}" "${HEADLESS_PACKAGES[@]}" libxres-dev xauth gnuplot-nox
make_locale
build_preset bench
rm -f "$log"

out=docs/measurements
mkdir -p "$out"
work=$(mktemp -d -t tessary-plots.XXXXXX)
trap 'rm -rf "$work"' EXIT
export PATH=$PWD/build:$PATH
on_screen() { xvfb-run --auto-servernum --server-args="-screen 0 1280x1024x24 -nolisten tcp" "$@"; }

# make_project PATTERNS MESSAGES: a new project with as many screens and messages as that, built.
make_project() {
    local i
    rm -rf "$work/project"
    ptn new "$work/project" >/dev/null
    for ((i = 4; i <= $1; i++)); do
        printf 'name: screen%d\nitems:\n  - { type: numeric, at: [32, 112], data: SPEED, width: 4 }\n' "$i" \
            >"$work/project/screens/screen$i.yaml"
    done
    if [ "$2" -gt 0 ]; then
        echo 'messages:' >>"$work/project/project.yaml"
        for ((i = 1; i <= $2; i++)); do
            echo "  M$i: { text: [圧力が高い $i, Pressure high $i, Druck hoch $i] }" >>"$work/project/project.yaml"
        done
    fi
    ptn build --quiet "$work/project" "$work/project/build/ProjPath"
}
# start_time: milliseconds from the start to the painted screen.
start_time() {
    on_screen bench_startup -n 9 tessary-panel "$work/project/build" | sed -E 's/.*: ([0-9]+) ms .*/\1/'
}

say "Ticks"
on_screen bench_growth ticks >"$work/ticks"
say "Windows"
on_screen bench_growth windows >"$work/windows"
say "Starts"
for count in 3 10 50 100 200 350 500; do
    make_project "$count" 0
    patterns=$(start_time)
    make_project 3 "$count"
    echo "$count $patterns $(start_time)"
done >"$work/starts"

# first FILE COLUMN: the number in the first line of data.
first() { awk -v column="$2" '!/^#/ { print $column; exit }' "$1"; }
# plot NAME COMMANDS: an SVG of what the commands plot.
plot() {
    gnuplot <<TEXT
set terminal svg size 720,400 font "sans-serif,13" background "#ffffff"
set output "$out/$1.svg"
set grid lc "#dddddd"
set key top left
set border 3
set tics nomirror
set style data linespoints
$2
TEXT
    say "$out/$1.svg"
}
quiet=$(first "$work/ticks" 2)
plot ticks "
set logscale xy
set xlabel 'numeric fields on the screen'
set ylabel 'processor time of a tick, 1 = quiet, 10 fields'
plot '$work/ticks' using 1:(\$2/$quiet) title 'nothing changes' lw 2, \
    '' using 1:(\$3/$quiet) title 'one changes' lw 2, '' using 1:(\$4/$quiet) title 'all change' lw 2"
plot starts "
set xlabel 'patterns or messages of the project'
set ylabel 'from the start to the painted screen, 1 = 3 patterns'
set yrange [0:*]
plot '$work/starts' using 1:(\$2/$(first "$work/starts" 2)) title 'patterns' lw 2, \
    '' using 1:(\$3/$(first "$work/starts" 2)) title 'messages' lw 2"
plot windows "
set xlabel 'windows of 400 x 300 pixels with 100 items'
set ylabel 'MiB'
set yrange [0:*]
plot '$work/windows' using 1:(\$2/1024) title 'memory of the program' lw 2, \
    '' using 1:(\$3/1024) title 'pixmaps on the server' lw 2"
for table in ticks starts windows; do
    echo "$table"
    cat "$work/$table"
done
