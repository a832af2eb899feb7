#!/usr/bin/env bash
# Tries the two commands of the README where nothing is installed.
set -euo pipefail
cd "$(dirname "$0")/.."

case ${1:-} in
-h | --help)
    cat <<'TEXT'
Usage: scripts/bare-debian.sh [--help] FOLDER

Makes a bare Debian in FOLDER/root (debootstrap, which needs root and the mirror that apt uses), copies what git has
of the sources there, and runs ./run.sh and ./test.sh in it, which install all they need. FOLDER must be new or empty.
The pictures of the panel are in FOLDER/root/root/tessary/screenshots then, the output in FOLDER/run.log and
FOLDER/test.log. It takes as long as everything takes to build twice.
TEXT
    exit 0
    ;;
'' | -*)
    echo "bare-debian.sh: name a FOLDER; --help tells more" >&2
    exit 2
    ;;
esac

. scripts/prepare.sh
. scripts/sources.sh
. scripts/root.sh
has_git || fail "what is in git is copied, which knows nothing of this folder"
mkdir -p "$1"
folder=$(cd "$1" && pwd)
[ -z "$(ls -A "$folder")" ] || fail "$folder is not empty"
install_packages git

make_root "$folder/root"
as_root git clone --quiet --no-hardlinks . "$root/root/tessary"

# try NAME COMMAND...
try() {
    local name=$1
    shift
    say "Running $*"
    in_root sh -c 'cd /root/tessary && exec "$@"' - "$@" >"$folder/$name.log" 2>&1 ||
        { tail -n 30 "$folder/$name.log" >&2; fail "$* failed; the whole output is in $folder/$name.log"; }
    say "$(tail -n 1 "$folder/$name.log")"
}
try run ./run.sh
try test ./test.sh
rm -f "$log"
