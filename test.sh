#!/usr/bin/env bash
# Builds everything with sanitizers and runs every test.
set -euo pipefail
cd "$(dirname "$0")"

case ${1:-} in
-h | --help)
    cat <<'TEXT'
Usage: ./test.sh [--help] [CTEST OPTIONS]

Installs what is missing (Debian packages, the locale ja_JP.eucJP), builds into build-sanitize/ with
AddressSanitizer and UndefinedBehaviorSanitizer, and runs every test. Tests that need a screen start
a virtual one of their own. Options are passed on to ctest:

  ./test.sh -R window      only the tests whose name matches
  ./test.sh -V             with everything they print
TEXT
    exit 0
    ;;
esac

. scripts/prepare.sh
install_packages "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}" "${TEST_PACKAGES[@]}"
make_locale
build_preset sanitize
rm -f "$log"
ctest --preset sanitize --parallel "$(nproc)" "$@"
