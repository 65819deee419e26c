#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# tools/check_skin.sh: the skins that are shipped pass, and what is broken in a copy is named. Every picture that the sources
# name is in the guide that the tool reads.
#   check_skin_test.sh SOURCE
set -euo pipefail
source=$(cd "$1" && pwd)
shipped=$source/app/resource/cegui/TavLook
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
fail()
{
    echo "$*"
    exit 1
}

"$source/tools/check_skin.sh" "$shipped"
"$source/tools/check_skin.sh" "${shipped}Light"

# expect WORDS: breaks a copy with the commands on standard input, run in it.
expect()
{
    local words=$1 said got=0
    rm -rf "$folder/skin"
    cp -R "$shipped" "$folder/skin"
    (cd "$folder/skin" && bash -eu)
    said=$("$source/tools/check_skin.sh" "$folder/skin") || got=$?
    [ "$got" -eq 1 ] && grep -qxF "$words" <<<"$said" || fail "exit $got, or not '$words': $said"
    [ "$(wc -l <<<"$said")" -eq 2 ] || fail "more than one fault for '$words': $said"
}
expect 'missing: new_skin/closeH.png (24 x 24)' <<<'rm new_skin/closeH.png'
expect 'missing: new_skin/topBG.png (any x 50)' <<<'rm new_skin/topBG.png'
expect 'wrong size: roamN.png is 63 x 62, not 62 x 62' <<<'convert roamN.png -resize 63x62! roamN.png'
expect 'wrong size: new_skin/leftBG.png is 151 x 64, not 152 x any' <<<'convert new_skin/leftBG.png -resize 151x64! new_skin/leftBG.png'
expect 'no picture: new_skin/logo.png' <<<'echo nothing >new_skin/logo.png'
expect 'missing: TavLookSkin.scheme' <<<'rm TavLookSkin.scheme'
expect 'missing: TavLook.png, which TavLook.imageset names' <<<'rm TavLook.png'
expect 'no imageset named TavLook in TavLook.imageset' <<<'sed -i "s/name=\"TavLook\"/name=\"Other\"/" TavLook.imageset'
expect 'no window type TavLook/ImageButton in TavLookSkin.scheme' <<<'sed -i "s#windowType=\"TavLook/ImageButton\"#windowType=\"Other\"#" TavLookSkin.scheme'
expect 'no look TavLook/StaticImage, which TavLookSkin.scheme names, in its looknfeel files' <<<'sed -i "s#name=\"TavLook/StaticImage\"#name=\"Other\"#" TavLook.looknfeel'

# A free side may have any size.
convert "$shipped/new_skin/topBG.png" -resize '7x50!' "$folder/topBG.png"
rm -rf "$folder/skin"
cp -R "$shipped" "$folder/skin"
mv "$folder/topBG.png" "$folder/skin/new_skin/"
"$source/tools/check_skin.sh" "$folder/skin" >/dev/null || fail "the width of topBG.png is not free"

# A skin for CEGUI 0.6 is read as well.
cp "$source"/tests/skins/old_format/* "$folder/skin/"
"$source/tools/check_skin.sh" "$folder/skin" >/dev/null || fail "a skin in the old formats does not pass"
sed -i 's#WindowType="TavLook/ImageButton"#WindowType="Other"#' "$folder/skin/TavLookSkin.scheme"
said=$("$source/tools/check_skin.sh" "$folder/skin") && fail "a broken skin in the old formats passes"
grep -qxF 'no window type TavLook/ImageButton in TavLookSkin.scheme' <<<"$said" || fail "$said"

named=$(grep -rhoE 'L"[A-Za-z_/]{4,}\.png"' "$source/src" | cut -d'"' -f2 | sort -u)
[ "$(wc -l <<<"$named")" -gt 15 ] || fail "the sources name too few pictures: $named"
while read -r picture; do
    grep -qF "\`$picture\`" "$source/docs/skin.md" || fail "docs/skin.md lacks $picture"
done <<<"$named"
echo "the check of skins takes and refuses what it should"
