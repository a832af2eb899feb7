#!/usr/bin/env bash
# Looks for mistakes with clang-tidy.
set -euo pipefail
cd "$(dirname "$0")/.."

usage() {
    cat <<'TEXT'
Usage: scripts/tidy.sh [--help] [--changed [BASE]] [PATH...]

Runs clang-tidy with the checks of .clang-tidy over the sources in the folders or files PATH..., by
default over all of them, which takes an hour on two cores; any finding fails. Needs the package
clang-tidy.

  --changed [BASE]  only what has changed since the commit BASE, changes that are not committed yet
                    included; a changed header counts for the source of its name. Without BASE: on a
                    branch what it has beside origin's main branch (or main), else the last ten commits.
                    New sources are no longer begun after three minutes; those left out are named.
                    ./test.sh runs this.
TEXT
}

budget=
base=
paths=()
while [ $# -gt 0 ]; do
    case $1 in
    -h | --help)
        usage
        exit 0
        ;;
    --changed)
        budget=180
        if [ $# -gt 1 ]; then
            base=$2
            shift
        fi
        ;;
    -*)
        printf 'tidy.sh: unknown option %s\n\n' "$1" >&2
        usage >&2
        exit 2
        ;;
    *) paths+=("$1") ;;
    esac
    shift
done

. scripts/sources.sh
log=$(mktemp -t tessary-tidy.XXXXXX)
trap 'rm -f "$log"' EXIT

# The commit that changes are counted from; nothing where there is only one commit, as in a shallow clone.
find_base() {
    local main
    for main in origin/HEAD origin/main main; do
        if git merge-base HEAD "$main" >/dev/null 2>&1 &&
            [ "$(git merge-base HEAD "$main")" != "$(git rev-parse HEAD)" ]; then
            git merge-base HEAD "$main"
            return
        fi
    done
    git rev-list --first-parent --max-count=11 HEAD | sed 1d | tail -n 1
}

# The sources to look at: a header that has no source of its name is looked at by those that include it.
changed_sources() {
    local file
    { git diff --name-only "$1" && git ls-files --others --exclude-standard; } | grep -E '\.(cpp|h)$' | sort -u |
        while read -r file; do
            if [ -e "${file%.*}.cpp" ]; then
                echo "${file%.*}.cpp"
            elif [ -e "$file" ]; then
                git grep -l --untracked "#include \"$file\"" -- '*.cpp' | head -n 1 || true
            fi
        done | sort -u
}

if [ -n "$budget" ]; then
    if ! has_git; then
        echo "clang-tidy: git knows nothing of this folder, so nothing has changed."
        exit 0
    fi
    [ -n "$base" ] || base=$(find_base)
    if [ -z "$base" ]; then
        echo "clang-tidy: there is only one commit here, so nothing has changed."
        exit 0
    fi
    mapfile -t files < <(changed_sources "$base")
    echo "clang-tidy: ${#files[@]} sources changed since $(git log -1 --format='%h (%s)' "$base")"
else
    mapfile -t files < <(sources "${paths[@]}" | grep '\.cpp$')
fi

# The compile commands are those of the tests, but clang can not read gcc's precompiled headers.
cmake -S . -B build-tidy -G Ninja -DCMAKE_BUILD_TYPE=Debug -DTESSARY_TESTS=ON -DTESSARY_BENCH=ON \
    -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >"$log" 2>&1 || { cat "$log" >&2; exit 1; }
# What the programs of the manual include.
cmake --build build-tidy --target tessary_headers >"$log" 2>&1 || { cat "$log" >&2; exit 1; }

# What a program includes that a build makes of its project. That of the tests has it already; to make it here takes
# the whole tool.
(cd build-sanitize 2>/dev/null && find . -name cells.h -exec cp --parents {} ../build-tidy \;) || true
[ -e build-tidy/app/sample_app_cells/cells.h ] || cmake --build build-tidy --target sample_app_project >"$log" 2>&1 ||
    { cat "$log" >&2; exit 1; }

# One source; nothing is printed unless there is a finding.
look() {
    if [ -n "$END" ] && [ "$(date +%s)" -ge "$END" ]; then
        echo "clang-tidy: no time left for $1"
        return
    fi
    local found
    found=$(clang-tidy --quiet --warnings-as-errors='*' -p build-tidy "$1" 2>/dev/null) || {
        printf '%s\n' "${found:-clang-tidy failed on $1}"
        return 1
    }
}
export -f look
END=
[ -z "$budget" ] || END=$(($(date +%s) + budget))
export END

built() { grep -qF "$PWD/$1\"" build-tidy/compile_commands.json; }
for file in "${files[@]}"; do
    if built "$file"; then echo "$file"; fi
done | xargs -r -d '\n' -P "$(nproc)" -n 1 bash -c 'look "$1"' _ || {
    echo "clang-tidy: see the findings above" >&2
    exit 1
}
