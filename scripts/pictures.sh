#!/usr/bin/env bash
# Makes the pictures of the manual.
set -euo pipefail
cd "$(dirname "$0")/.."

case ${1:-} in
-h | --help)
    cat <<'TEXT'
Usage: scripts/pictures.sh [--help]

Makes the pictures of the manual anew, by running what they show on a virtual screen: the sample panel, the pump
station with its device, and the tutorial. Installs what is missing, and builds the programs into build/.
TEXT
    exit 0
    ;;
'') ;;
*)
    echo "pictures.sh: unknown option $1" >&2
    exit 2
    ;;
esac

. scripts/prepare.sh
install_packages "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}" "${HEADLESS_PACKAGES[@]}" python3-pymodbus optipng
make_locale
build_preset release
rm -f "$log"

work=$(mktemp -d -t tessary-pictures.XXXXXX)
device=
finish() {
    [ -z "$device" ] || kill "$device" 2>/dev/null || true
    rm -rf "$work"
}
trap finish EXIT
export PATH=$PWD/build:$PATH

say "The sample panel"
mkdir "$work/sample" "$work/first"
cp -r build/panel build/panel.ini build/ProjPath "$work/sample"
printf 'panel 1\n- 136 736\nstopped 476 468\n' >"$work/first.txt"
scripts/tour.sh --program "env --chdir=$work/sample ./panel" --way "$work/first.txt" "$work/first"
cp "$work/first/panel.png" docs/panel.png
sed -i 's/^LANGUAGE=.*/LANGUAGE=1/' "$work/sample/panel.ini"
scripts/tour.sh --program "env --chdir=$work/sample ./panel" \
    --windows popup,child-1,child-2,child-3,version,stop docs/sample

say "The pump station"
cp -r examples/pump-station "$work/station"
cp "$work/station/device/links.yaml" "$work/station"
sed -i "s/LANGUAGE: 0/LANGUAGE: 1/" "$work/station/project.yaml"
ptn build --quiet "$work/station" "$work/built/ProjPath"
coproc station { exec /usr/bin/python3 "$work/station/device/plant.py"; }
device=$station_PID
read -r -t 20 _ <&"${station[0]}" || fail "the device did not start"
cat >"$work/station.txt" <<TEXT
clock 590,8,206,24
= 660 132
= 660 232
station 7
run kill $device
station-lost 4
stopped 704 566
TEXT
scripts/tour.sh --program "tessary-panel $work/built" --way "$work/station.txt" \
    --windows station,station-lost docs/plant
device=

say "The tutorial"
scripts/tutorial.sh "$work/tutorial"
cp "$work/tutorial/main.png" docs/writing/main.png
echo 'cells: { LEVEL: 62 }' >"$work/tank.state"
ptn render "$work/tutorial/plant" Tank --state "$work/tank.state" --output docs/writing/tank.png

optipng -quiet docs/panel.png docs/{sample,plant,writing}/*.png
