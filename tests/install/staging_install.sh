#!/usr/bin/env bash
# Installs a build into a staging folder (DESTDIR) under its prefix, as the package does, and
# checks the tree a user gets: the programs run, the desktop entry, metainfo and manual page
# pass their validators, every icon size is there, and the manual's pages find their pictures.
#
# Usage: staging_install.sh BUILD_DIR SOURCE_DIR VERSION PREFIX
set -euo pipefail
build="$1"
source="$2"
version="$3"
prefix="$4"
app=org.vorlane.Vorlane

failures=0
fail() {
    echo "FAIL: $*" >&2
    failures=$((failures + 1))
}
need() {
    command -v "$1" >/dev/null 2>&1 && return 0
    echo "FAIL: $1 is missing: install $2 (scripts/test installs it)" >&2
    exit 1
}
need desktop-file-validate desktop-file-utils
need appstreamcli appstream
need man man-db

stage="$(mktemp -d)"
trap 'rm -rf "$stage"' EXIT
DESTDIR="$stage" cmake --install "$build" >/dev/null
root="$stage$prefix"
echo "Installed into $stage"

# Nothing lands outside the prefix.
others="$(find "$stage" ! -type d | grep -v "^$root/" || true)"
[ -z "$others" ] || fail "files outside $prefix: $others"

for file in bin/vorlane bin/vorlane-cli share/applications/$app.desktop \
    share/metainfo/$app.metainfo.xml share/icons/hicolor/scalable/apps/$app.svg \
    share/man/man1/vorlane-cli.1.gz share/man/man1/vorlane.1.gz share/doc/vorlane/copyright \
    share/doc/vorlane/changelog.Debian.gz share/doc/vorlane/manual/index.html \
    share/doc-base/vorlane-manual; do
    [ -f "$root/$file" ] || fail "$file is not installed"
done

# The programs run from the staging tree and give this build's version.
out="$("$root/bin/vorlane-cli" --version)" || fail "vorlane-cli --version failed"
[ "$out" = "vorlane-cli $version" ] || fail "vorlane-cli --version printed \"$out\""
out="$("$root/bin/vorlane" --version)" || fail "vorlane --version failed"
[ "$out" = "vorlane $version" ] || fail "vorlane --version printed \"$out\""

# The desktop entry: valid, starting an installed program, with an installed icon.
desktop="$root/share/applications/$app.desktop"
desktop-file-validate "$desktop" || fail "desktop-file-validate rejects $app.desktop"
exec_line="$(sed -n 's/^Exec=//p' "$desktop")"
[ "$exec_line" = vorlane ] || fail "Exec= is \"$exec_line\", not vorlane"
grep -qx "Icon=$app" "$desktop" || fail "Icon= does not name $app"
grep -qx "Categories=Development;GUIDesigner;" "$desktop" || fail "Categories= changed"

# The icon: every size a PNG of that many pixels.
for size in 16 22 24 32 48 64 128 256; do
    png="$root/share/icons/hicolor/${size}x${size}/apps/$app.png"
    if [ ! -f "$png" ]; then
        fail "no ${size} px icon"
        continue
    fi
    # Width and height are the big-endian words at bytes 16 and 20 of a PNG.
    read -r -a bytes <<<"$(od -An -tu1 -j16 -N8 "$png")"
    width=$(((bytes[0] << 24) | (bytes[1] << 16) | (bytes[2] << 8) | bytes[3]))
    height=$(((bytes[4] << 24) | (bytes[5] << 16) | (bytes[6] << 8) | bytes[7]))
    [ "$width" = "$size" ] && [ "$height" = "$size" ] ||
        fail "the ${size} px icon is ${width}x${height}"
done

# The metainfo: valid, naming the desktop entry, with this version as its latest release.
metainfo="$root/share/metainfo/$app.metainfo.xml"
appstreamcli validate --no-net "$metainfo" || fail "appstreamcli rejects $app.metainfo.xml"
grep -q "<launchable type=\"desktop-id\">$app.desktop</launchable>" "$metainfo" ||
    fail "the metainfo does not launch $app.desktop"
latest="$(grep -o '<release version="[^"]*"' "$metainfo" | head -n 1)"
[ "$latest" = "<release version=\"$version\"" ] ||
    fail "the latest release of the metainfo is $latest, not $version"
grep -c '<caption>' "$metainfo" | grep -qx 3 || fail "the metainfo has not three screenshot captions"

# The manual pages render without a warning.
render() {
    MANWIDTH=80 man --warnings -E UTF-8 -l "$root/share/man/man1/$1.1.gz" >"$stage/$1.txt" \
        2>"$stage/$1.err" || fail "man -l cannot render $1.1: $(cat "$stage/$1.err")"
    [ ! -s "$stage/$1.err" ] || fail "man warns about $1.1: $(cat "$stage/$1.err")"
}
render vorlane-cli
for heading in NAME SYNOPSIS COMMANDS "EXIT STATUS" EXAMPLES FILES; do
    grep -qx "$heading" "$stage/vorlane-cli.txt" || fail "vorlane-cli.1 has no $heading"
done
render vorlane
grep -q "$prefix/share/doc/vorlane/manual/index.html" "$stage/vorlane.txt" ||
    fail "vorlane.1 does not name the installed manual"

grep -qx "Index: $prefix/share/doc/vorlane/manual/index.html" "$root/share/doc-base/vorlane-manual" ||
    fail "the doc-base registration does not name the installed manual"

# The user manual: every page and picture of the source tree, and every page's links resolve.
manual="$root/share/doc/vorlane/manual"
while IFS= read -r -d '' file; do
    [ -f "$manual/${file#"$source/docs/manual/"}" ] || fail "manual page ${file#"$source/"} not installed"
done < <(find "$source/docs/manual" -type f -print0)
while IFS= read -r -d '' file; do
    [ -f "$manual/images/${file#"$source/docs/images/"}" ] ||
        fail "picture ${file#"$source/"} not installed"
done < <(find "$source/docs/images" -type f -print0)
while IFS= read -r -d '' html; do
    while IFS= read -r link; do
        target="${link%%#*}"
        case "$target" in '' | *:*) continue ;; esac
        [ -e "$(dirname "$html")/$target" ] ||
            fail "${html#"$root/"} links to $target, which is not installed"
    done < <(grep -o -E '(src|href)="[^"]*"' "$html" | sed -E 's/^(src|href)="(.*)"$/\2/')
done < <(find "$manual" -name '*.html' -print0)

if [ "$failures" -ne 0 ]; then
    echo "$failures failures" >&2
    exit 1
fi
echo "The staging install is complete and valid."
