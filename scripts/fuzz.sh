#!/usr/bin/env bash
# Runs the fuzz targets with libFuzzer.
set -euo pipefail
cd "$(dirname "$0")/.."

usage() {
    cat <<'TEXT'
Usage: scripts/fuzz.sh [--help] [--seconds N] [--jobs N] [TARGET...]

Installs what is missing (clang), builds into build-fuzz/ with libFuzzer, AddressSanitizer and
UndefinedBehaviorSanitizer, and lets libFuzzer change inputs for each TARGET, by default for all of
fuzz/targets/; prints figures at the end. A target ends at its first finding, which fails: any crash, leak,
broken promise, an input that takes 20 seconds (longer when a processor has several jobs) or 2 GB.

  --seconds N  for each target; by default 3600
  --jobs N     targets at a time; by default as many as there are processors
  --list       prints the targets and ends

Inputs that lead to new code are kept in build-fuzz/corpus/TARGET/, beside those of fuzz/corpus/TARGET/;
findings in build-fuzz/findings/, the output of each target in build-fuzz/TARGET.log. A finding is run alone,
without clang:   build-sanitize/fuzz_replay TARGET FILE
TEXT
}

list() { for file in fuzz/targets/*.cpp; do basename "$file" .cpp; done | sed 's/\([a-z]\)\([A-Z]\)/\1-\2/g' | tr A-Z a-z; }

seconds=3600
jobs=$(nproc)
targets=()
while [ $# -gt 0 ]; do
    case $1 in
    -h | --help)
        usage
        exit 0
        ;;
    --list)
        list
        exit 0
        ;;
    --seconds | --jobs)
        [[ ${2:-} =~ ^[1-9][0-9]*$ ]] || { usage >&2; exit 2; }
        if [ "$1" = --jobs ]; then jobs=$2; else seconds=$2; fi
        shift
        ;;
    -*)
        usage >&2
        exit 2
        ;;
    *)
        list | grep -qx -- "$1" || { printf 'fuzz.sh: no target %s; there are:\n' "$1" >&2; list >&2; exit 2; }
        targets+=("$1")
        ;;
    esac
    shift
done
[ ${#targets[@]} -gt 0 ] || mapfile -t targets < <(list)

. scripts/prepare.sh
install_packages "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}" "${FUZZ_PACKAGES[@]}"
make_locale
cmake --preset fuzz >"$log" 2>&1 || { tail -n 30 "$log" >&2; fail "cmake failed; the whole output is in $log"; }
cmake --build --preset fuzz --parallel "$(nproc)" --target "${targets[@]/#/fuzz-}" || fail "the build failed"
rm -f "$log"

mkdir -p build-fuzz/findings
memory=/dev/shm
[ -w "$memory" ] || memory=/tmp
TMPDIR=$(mktemp -d "$memory/tessary-fuzz.XXXXXX")
longest=$((20 * ((jobs + $(nproc) - 1) / $(nproc))))
export TMPDIR seconds longest
trap 'rm -rf "$TMPDIR"' EXIT

run() {
    local name=$1 words=()
    local kept=$PWD/build-fuzz/corpus/$name
    mkdir -p "$kept"
    [ ! -e "fuzz/dict/$name.dict" ] || words=("-dict=$PWD/fuzz/dict/$name.dict")
    local TIMEFORMAT='user: %0U system: %0S'
    # The working directory becomes the target's own: whole paths.
    { time "build-fuzz/fuzz-$name" "${words[@]}" -max_total_time="$seconds" -max_len=32768 -timeout="$longest" \
        -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$PWD/build-fuzz/findings/$name-" \
        "$kept" "$PWD/fuzz/corpus/$name"; } >"build-fuzz/$name.log" 2>&1 || true
}
export -f run
for name in "${targets[@]}"; do rm -f "build-fuzz/$name.log"; done
printf '%s\n' "${targets[@]}" | xargs -P "$jobs" -I{} bash -c 'run {}'

status=0
printf '%-14s %9s %9s %12s %9s %7s %7s %7s  %s\n' \
    target seconds processor executions 'a second' edges traits inputs findings
for name in "${targets[@]}"; do
    out=build-fuzz/$name.log
    figure() { grep -aoE "$1" "$out" | tail -n 1 | grep -oE '[0-9]+$' || echo 0; }
    executions=$(figure 'stat::number_of_executed_units: *[0-9]+')
    rate=$(figure 'stat::average_exec_per_sec: *[0-9]+')
    took=$(grep -aoE 'Done [0-9]+ runs in [0-9]+' "$out" | grep -oE '[0-9]+$' || echo '-')
    processor=$(($(figure 'user: [0-9]+') + $(figure 'system: [0-9]+')))
    finding=none
    if [ "$took" = - ]; then
        finding=$(grep -aoE '(SUMMARY: |BROKEN PROMISE: |ERROR \*\*: ).*' "$out" | tail -n 1 || true)
        status=1
    fi
    printf '%-14s %9s %9s %12s %9s %7s %7s %7s  %s\n' "$name" "$took" "$processor" \
        "$executions" "$rate" "$(figure 'cov: [0-9]+')" "$(figure 'ft: [0-9]+')" "$(find "build-fuzz/corpus/$name" -type f | wc -l)" "${finding:-see $out}"
done
exit $status
