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
(debootstrap, which needs root and the mirror that apt uses), where the project of "ptn new" is built.

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
has_git || fail "packages are built from what is in git, which knows nothing of this folder"
mkdir -p "$folder"
folder=$(cd "$folder" && pwd)
[ -z "$(ls -A "$folder")" ] || fail "$folder is not empty"
install_packages "${BUILD_PACKAGES[@]}" dpkg-dev debhelper fakeroot help2man lintian
[ "$trial" = no ] || install_packages debootstrap

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

# in_root COMMAND...: within the bare Debian, which is not to start services.
in_root() { as_root chroot "$folder/root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 "$@"; }

make_root() {
    local mirror suite
    read -r mirror suite < <(apt-get indextargets --format '$(REPO_URI) $(CODENAME)' \
        'Identifier: Packages' 'Origin: Debian' 'Component: main') || fail "apt names no mirror of Debian"
    say "Making a bare Debian $suite from $mirror"
    as_root debootstrap --variant=minbase "$suite" "$folder/root" "$mirror" >"$folder/root.log" 2>&1 ||
        { tail -n 10 "$folder/root.log" >&2; fail "debootstrap failed; the whole output is in $folder/root.log"; }
    as_root sh -c "printf '#!/bin/sh\nexit 101\n' >'$folder/root/usr/sbin/policy-rc.d'"
    as_root chmod +x "$folder/root/usr/sbin/policy-rc.d"
}

try_packages() {
    say "Installing the packages there, and building a new project with them"
    as_root cp "$folder"/*.deb "$folder/root/tmp"
    {
        in_root sh -c 'DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends \
            g++ cmake make /tmp/*.deb'
        in_root sh -ec 'cd /tmp
            [ "$(ptn --version)" = "$1" ]
            ptn new look
            ptn check look
            ptn build look look/build/ProjPath
            tessary-panel --version
            ptn new --program plant
            cmake -S plant -B plant/build
            cmake --build plant/build
            g++ plant/program/Registry.cpp $(pkg-config --cflags --libs tessary) -o by-pkg-config
            ptn check /usr/share/doc/tessary/examples/project' - "$version"
    } >"$folder/trial.log" 2>&1 ||
        { tail -n 30 "$folder/trial.log" >&2; fail "the trial failed; the whole output is in $folder/trial.log"; }
    say "$(tail -n 1 "$folder/trial.log")"
}

copy_sources
build_packages
if [ "$trial" = yes ]; then
    make_root
    try_packages
fi
rm -f "$log"
say "The packages:" "$folder"/*.deb
