#!/usr/bin/env bash
# Builds everything with sanitizers, checks how the sources are written, and runs every test.
set -euo pipefail
cd "$(dirname "$0")"

case ${1:-} in
-h | --help)
    cat <<'TEXT'
Usage: ./test.sh [--help] [CTEST OPTIONS]

Installs what is missing (Debian packages, the locale ja_JP.eucJP), builds into build-sanitize/ with
AddressSanitizer and UndefinedBehaviorSanitizer, and runs every test. Tests that need a screen start
a virtual one of their own. It also fails where a source is not as clang-format 14 writes it
(scripts/format.sh), and on findings of clang-tidy in what has changed lately (scripts/tidy.sh
--changed: beside the main branch, or in the last ten commits; three minutes at most).

With options, which are passed on to ctest, it only builds and tests:

  ./test.sh -R '^window'        only the tests whose name matches: those of a folder
  ./test.sh -R window.Actions   one suite
  ./test.sh -V                  with everything they print

Variables of the environment that the tests know:

  TESSARY_SEED=NUMBER      random tests use this seed, to repeat a failure
  TESSARY_STEPS=NUMBER     the length of a random walk through the windows; usually 1200
  TESSARY_RENEW_GOLDENS=1  golden pictures that differ are written anew; their tests fail

docs/testing.md tells more, and scripts/coverage.sh how much of the code the tests run.
TEXT
    exit 0
    ;;
esac

. scripts/prepare.sh
install_packages "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
make_locale
[ $# -gt 0 ] || scripts/format.sh
build_preset sanitize
[ $# -gt 0 ] || scripts/tidy.sh --changed
rm -f "$log"
ctest --preset sanitize --parallel "$(nproc)" "$@"
