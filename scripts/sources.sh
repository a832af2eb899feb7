# Sourced: which sources this repository has.

# sources [PATH...]: sources and headers, those that are not added to git yet too.
sources() {
    local file
    git ls-files --cached --others --exclude-standard -- "$@" | grep -E '\.(cpp|h)$' | sort -u |
        while read -r file; do [ ! -e "$file" ] || echo "$file"; done
}
