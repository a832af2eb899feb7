#!/usr/bin/env bash
# Builds the Debian packages and tries them.
set -euo pipefail
cd "$(dirname "$0")/.."

usage() {
    cat <<'TEXT'
Usage: scripts/package.sh [--help] [--no-trial] FOLDER

Installs what is missing, builds the Debian packages tessary, tessary-panel and libtessary-dev from the
sources in git into FOLDER, which must be new or empty, and has lintian look at them: its errors and warnings fail.

Then the packages are tried: they are installed into a bare Debian of their own in FOLDER/root
(debootstrap, which needs root and the mirror that apt uses). There the tutorial of the manual is done as it is
printed, and a project with a program is built with CMake and with pkg-config.

  --no-trial  build and look only
TEXT
}

trial=yes
folder=
while [ $# -gt 0 ]; do
    case $1 in
    -h | --help)
        usage
        exit 0
        ;;
    --no-trial) trial=no ;;
    -*)
        printf 'package.sh: unknown option %s\n\n' "$1" >&2
        usage >&2
        exit 2
        ;;
    *) folder=$1 ;;
    esac
    shift
done
[ -n "$folder" ] || { usage >&2; exit 2; }

. scripts/prepare.sh
. scripts/sources.sh
. scripts/root.sh
has_git || fail "packages are built from what is in git, which knows nothing of this folder"
mkdir -p "$folder"
folder=$(cd "$folder" && pwd)
[ -z "$(ls -A "$folder")" ] || fail "$folder is not empty"
install_packages "${BUILD_PACKAGES[@]}" dpkg-dev debhelper fakeroot help2man lintian

version=$(sed -n 's/^project(tessary VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
[ -n "$version" ] || fail "CMakeLists.txt names no version"
sources=$folder/tessary-$version

# The version stands in CMakeLists.txt alone, so the changelog that the packages need is written here.
copy_sources() {
    mkdir "$sources"
    git ls-files -z | xargs -0 cp --parents -t "$sources"
    cat >"$sources/debian/changelog" <<TEXT
tessary ($version) unstable; urgency=medium

  * CHANGELOG.md tells what has changed.

 -- $(sed -n 's/^Maintainer: //p' debian/control)  $(git log -1 --format=%cD)
TEXT
}

build_packages() {
    say "Building the packages of version $version"
    (cd "$sources" && dpkg-buildpackage --no-sign --build=binary --jobs="$(nproc)") >"$folder/build.log" 2>&1 ||
        { tail -n 30 "$folder/build.log" >&2; fail "the build failed; the whole output is in $folder/build.log"; }
    lintian --fail-on error,warning "$folder"/*.changes || fail "see what lintian has found above"
}

try_packages() {
    say "Installing the packages there, doing the tutorial, and building a program with them"
    as_root mkdir -p "$root/tmp/manual/docs" "$root/tmp/manual/scripts"
    as_root cp "$folder"/*.deb "$root/tmp"
    as_root cp docs/writing-screens.md "$root/tmp/manual/docs"
    as_root cp scripts/tutorial.sh "$root/tmp/manual/scripts"
    {
        in_root sh -c 'DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends \
            g++ cmake make man-db xvfb xdotool locales xfonts-base xfonts-intl-japanese /tmp/*.deb'
        in_root localedef -i ja_JP -f EUC-JP ja_JP.eucJP
        in_root sh -ec 'cd /tmp
            [ "$(ptn --version)" = "$1" ]
            tessary-panel --version
            man --where ptn tessary-panel
            manual/scripts/tutorial.sh tutorial
            ptn new --program plant
            cmake -S plant -B plant/build
            cmake --build plant/build
            ptn build plant by-hand/ProjPath
            g++ -Iby-hand plant/program/Registry.cpp $(pkg-config --cflags --libs tessary tessary-plant) -o by-pkg-config
            ptn check /usr/share/doc/tessary/examples/project' - "$version"
    } >"$folder/trial.log" 2>&1 ||
        { tail -n 30 "$folder/trial.log" >&2; fail "the trial failed; the whole output is in $folder/trial.log"; }
    say "$(tail -n 1 "$folder/trial.log")"
}

copy_sources
build_packages
if [ "$trial" = yes ]; then
    make_root "$folder/root"
    try_packages
fi
rm -f "$log"
say "The packages:" "$folder"/*.deb
