#!/usr/bin/env bash
# Builds the manual as HTML.
set -euo pipefail
cd "$(dirname "$0")/.."

case ${1:-} in
-h | --help)
    cat <<'TEXT'
Usage: scripts/manual.sh [--help]

Builds the manual into build/manual; build/manual/index.html is where it begins. The pages are those of docs/, the
API reference comes from the comments of the public headers. Installs what is missing (the Debian packages pandoc and
doxygen).

It fails where a link leads nowhere, and where a public name has no comment.
TEXT
    exit 0
    ;;
'') ;;
*)
    echo "manual.sh: unknown option $1" >&2
    exit 2
    ;;
esac

. scripts/prepare.sh
install_packages cmake doxygen pandoc
rm -f "$log"

out=build/manual
rm -rf "$out"
mkdir -p "$out"
work=$(mktemp -d -t tessary-manual.XXXXXX)
trap 'rm -rf "$work"' EXIT

# Pages link each other as Markdown; as HTML they do the same.
cat >"$work/links.lua" <<'LUA'
function Link(link)
    if not link.target:match("^%a+:") then
        link.target = link.target:gsub("%.md", ".html", 1)
    end
    return link
end
LUA

# make_page FILE: the page of a Markdown file, at the same place below the output.
make_page() {
    local page=$1 target=$out/${1%.md}.html root
    mkdir -p "$(dirname "$target")"
    root=$(realpath --relative-to="$(dirname "$target")" "$out")
    printf '<nav><a href="%s/docs/README.html">Manual</a> <a href="%s/api/index.html">API reference</a></nav>\n' \
        "$root" "$root" >"$work/nav.html"
    pandoc --from gfm --to html5 --standalone --columns 10000 --lua-filter "$work/links.lua" \
        --metadata pagetitle="$(sed -n 's/^# //p;T;q' "$page")" --css "$root/manual.css" \
        --include-before-body "$work/nav.html" --output "$target" "$page"
}

# files_of_pages FOLDER: what pages show or link beside other pages.
files_of_pages() {
    grep -rhoE '(href|src)="[^"#:]+' --include='*.html' "$1" | sed 's/.*"//' | grep -vE '\.(html|css)$' | sort -u
}

say "Pages"
for page in *.md docs/*.md docs/*/*.md; do
    make_page "$page"
done
cp docs/manual.css "$out/"
for folder in . docs docs/decisions; do
    for file in $(files_of_pages "$out/$folder"); do
        [ ! -f "$folder/$file" ] || install -D -m 644 "$folder/$file" "$out/$folder/$file"
    done
done
printf '<!DOCTYPE html><meta http-equiv="refresh" content="0; url=docs/README.html"><a href="docs/README.html">Manual</a>\n' \
    >"$out/index.html"

say "API reference"
cmake -D SOURCE="$PWD" -D FOLDER="$work/include" -P cmake/PublicHeaders.cmake
version=$(sed -n 's/^project(tessary VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
{
    cat docs/Doxyfile
    echo "PROJECT_NUMBER = $version"
    echo "INPUT = $(cd "$work/include/tessary" && find . -name '*.h' -printf '%P ')"
} | doxygen - || fail "public names have to be documented; see above"

say "Links"
dead=0
while IFS= read -r page; do
    while IFS= read -r link; do
        file=${link%%#*}
        target=$(dirname "$page")/$file
        [ -n "$file" ] || target=$page
        if [ ! -e "$target" ] || { [ "$link" != "$file" ] && ! grep -q "id=\"${link#*#}\"" "$target"; }; then
            printf '%s: %s leads nowhere\n' "$page" "$link" >&2
            dead=1
        fi
    done < <(grep -oE '(href|src)="[^":]+"' "$page" | sed 's/^[a-z]*="//; s/"$//')
done < <(find "$out" -name '*.html' -not -path "$out/api/*")
[ $dead = 0 ] || fail "links that lead nowhere stand above"
say "The manual is in $out/index.html"
