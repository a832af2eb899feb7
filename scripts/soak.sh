#!/usr/bin/env bash
# Long work of a panel, and what it leaves behind.
set -euo pipefail
cd "$(dirname "$0")/.."

usage() {
    cat <<'TEXT'
Usage: scripts/soak.sh [--help] [--part N] [ticks|windows|bitmaps|days...]

Builds into build/ and runs the programs bench_soak_*, each with a virtual screen of its own: a day of
ticks of a busy screen (864,000), 10,000 child windows, 100,000 bitmaps, and ten days of a log. Prints
the memory of the panel and of the X server, and the server's resources, again and again; fails when
the memories at the end are not those after the first thousand, within 1 %, or the resources are others.

  --part N   an N-th of the work only
TEXT
}

part=1
parts=()
while [ $# -gt 0 ]; do
    case $1 in
    -h | --help)
        usage
        exit 0
        ;;
    --part)
        [[ ${2:-} =~ ^[1-9][0-9]*$ ]] || { usage >&2; exit 2; }
        part=$2
        shift
        ;;
    ticks | windows | bitmaps | days) parts+=("$1") ;;
    *)
        usage >&2
        exit 2
        ;;
    esac
    shift
done
[ ${#parts[@]} -gt 0 ] || parts=(ticks windows bitmaps days)
declare -A counts=([ticks]=864000 [windows]=10000 [bitmaps]=100000 [days]=10)

. scripts/prepare.sh
install_packages "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}" libxres-dev xvfb
make_locale
cmake --preset bench >"$log" 2>&1 || { tail -n 30 "$log" >&2; fail "cmake failed; the whole output is in $log"; }
cmake --build --preset bench --parallel "$(nproc)" --target "${parts[@]/#/bench_soak_}" || fail "the build failed"
rm -f "$log"

server=
stop_server() {
    [ -z "$server" ] || kill "$server" 2>/dev/null || true
    server=
}
trap stop_server EXIT

status=0
for name in "${parts[@]}"; do
    exec 3< <(exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp -noreset 2>/dev/null)
    server=$!
    read -r -t 20 number <&3 || fail "Xvfb did not start"
    count=$((counts[$name] / part))
    echo "== $name"
    begin=$SECONDS
    DISPLAY=:$number "build/bench_soak_$name" $((count > 0 ? count : 1)) || status=1
    echo "$((SECONDS - begin)) seconds"
    stop_server
done
exit $status
