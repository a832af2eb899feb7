#!/usr/bin/env bash
# Looks for mistakes with memory by valgrind's memcheck.
set -euo pipefail
cd "$(dirname "$0")/.."

case ${1:-} in
-h | --help)
    cat <<'TEXT'
Usage: scripts/memcheck.sh [--help] [suites] [tour]

Installs what is missing (valgrind), builds into build-debug/, and runs under memcheck: the tests that need
no X server (suites), and the sample panel from its start over every screen to its stop (tour), on a
virtual screen. Without an argument both. Fails at the first reading of what was never written, use of what
was freed, access beside a block, and at blocks that nobody can reach any more at the end.

What the libraries below do is listed in scripts/memcheck.supp, with the reason for each entry. Memcheck
also sees what the sanitizers do not: values that were never set.
TEXT
    exit 0
    ;;
esac
parts=("$@")
[ ${#parts[@]} -gt 0 ] || parts=(suites tour)
suites=(base log config comndata)

. scripts/prepare.sh
install_packages "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${HEADLESS_PACKAGES[@]}" valgrind
make_locale
cmake --preset debug >"$log" 2>&1 || { tail -n 30 "$log" >&2; fail "cmake failed; the whole output is in $log"; }
cmake --build --preset debug --parallel "$(nproc)" --target "${suites[@]/#/test_}" panel || fail "the build failed"
rm -f "$log"

check=(valgrind --quiet --error-exitcode=99 --leak-check=full --show-leak-kinds=definite
    --errors-for-leak-kinds=definite --num-callers=30 "--suppressions=$PWD/scripts/memcheck.supp")
found=$PWD/build-debug/memcheck

# Those that do one thing thousands of times, or with millions of bytes, would take hours here; they run under the
# sanitizers.
slow='RandomProfile.*:HostileProject.*:*64_mib*:*million*:*may_be_many*:Messages.in_a_file_that_is_too_long*'
slow+=':AReplacedFile.is_old_or_new*:AReplacedFile.is_whole_when_two*'
# Here the calls that they let fail are those of valgrind as well.
cut='*CutWrites*'

run_suites() {
    local name
    for name in "${suites[@]}"; do
        echo "== test_$name"
        "${check[@]}" "build-debug/test_$name" --gtest_brief=1 "--gtest_filter=-$slow:$cut"
    done
}

run_tour() {
    echo "== tour"
    rm -f "$found".*
    # Each process writes a file of its own; that of the panel is to be empty.
    scripts/tour.sh --seconds 120 \
        --program "env --chdir=build-debug ${check[*]} --log-file=$found.%p ./panel" build-debug/memcheck-shots || { cat "$found".* >&2; exit 1; }
    if [ -n "$(cat "$found".*)" ]; then
        cat "$found".* >&2
        exit 1
    fi
}

for part in "${parts[@]}"; do
    case $part in
    suites) run_suites ;;
    tour) run_tour ;;
    *) fail "unknown part $part" ;;
    esac
done
echo "memcheck has found nothing."
