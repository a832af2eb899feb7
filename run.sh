#!/usr/bin/env bash
# Builds the sample panel and runs it.
set -euo pipefail
cd "$(dirname "$0")"

usage() {
    cat <<'TEXT'
Usage: ./run.sh [--help] [--build-only] [--screenshots FOLDER]

Installs what is missing (Debian packages, the locale ja_JP.eucJP), builds the panel into build/,
compiles the sample project in project/ into build/ProjPath, and runs build/panel.

With $DISPLAY set the panel opens there. Its stop button ends it.
Without $DISPLAY it runs on a virtual screen of its own (Xvfb): its screens are visited one after
another, each is saved as a picture, and the panel is stopped by its stop button.

  --build-only          install and build, do not run
  --screenshots FOLDER  visit the screens on a virtual screen even with $DISPLAY set and save the
                        pictures in FOLDER (default without $DISPLAY: screenshots/)
TEXT
}

run=yes
shots=
while [ $# -gt 0 ]; do
    case $1 in
    -h | --help)
        usage
        exit 0
        ;;
    --build-only) run=no ;;
    --screenshots)
        [ $# -ge 2 ] || { usage >&2; exit 2; }
        shots=$2
        shift
        ;;
    *)
        printf 'run.sh: unknown option %s\n\n' "$1" >&2
        usage >&2
        exit 2
        ;;
    esac
    shift
done
[ -n "$shots" ] || [ -n "${DISPLAY:-}" ] || shots=screenshots

. scripts/prepare.sh
if [ -n "$shots" ]; then
    install_packages "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}" "${HEADLESS_PACKAGES[@]}"
else
    install_packages "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}"
fi
make_locale
build_preset release
rm -f "$log"
[ "$run" = yes ] || exit 0

if [ -n "$shots" ]; then
    scripts/tour.sh "$shots"
else
    say "The panel runs on $DISPLAY; its stop button ends it. Its log is in build/log."
    cd build && exec ./panel
fi
