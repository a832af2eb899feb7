#!/usr/bin/env bash
# Checks that every source is as clang-format 14 writes it.
set -euo pipefail
cd "$(dirname "$0")/.."

case ${1:-} in
-h | --help)
    cat <<'TEXT'
Usage: scripts/format.sh [--help] [--fix]

Compares every source with what clang-format 14 makes of it, and fails where they differ. Needs the
package clang-format.

  --fix   write the sources as they should be
TEXT
    exit 0
    ;;
--fix) how=(-i) ;;
'') how=(--dry-run --Werror) ;;
*)
    echo "format.sh: unknown option $1" >&2
    exit 2
    ;;
esac

# Other versions write some places otherwise.
formatter=$(command -v clang-format-14 || command -v clang-format) ||
    { echo "format.sh: clang-format is missing; its package is clang-format" >&2; exit 1; }
case $("$formatter" --version) in
*"version 14."*) ;;
*)
    echo "format.sh: the sources are written by clang-format 14; this is $("$formatter" --version)" >&2
    exit 1
    ;;
esac

. scripts/sources.sh
sources | xargs -d '\n' -P "$(nproc)" -n 20 "$formatter" "${how[@]}" || {
    echo "format.sh: scripts/format.sh --fix writes these places as they should be" >&2
    exit 1
}
