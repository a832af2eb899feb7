# Sourced: which sources this repository has.

# Whether git can be asked: not in an archive of the sources, nor in a folder that git does not trust.
has_git() { git rev-parse --git-dir >/dev/null 2>&1; }

# sources [PATH...]: sources and headers, those that are not added to git yet too; not those that ptn copies into
# new projects, which are texts here.
sources() {
    [ $# -gt 0 ] || set -- .
    if has_git; then
        git ls-files --cached --others --exclude-standard -- "$@"
    else
        find "$@" -path './build*' -prune -o -path './.*' -prune -o -type f -printf '%p\n' | sed 's,^\./,,'
    fi | grep -E '\.(cpp|h)$' | grep -v '^tools/ptn/starter/program/' | sort -u |
        while read -r file; do [ ! -e "$file" ] || echo "$file"; done
}
