#!/usr/bin/env bash
# Renders the program's icon, drawn by hand as
# resources/icons/hicolor/scalable/apps/<app id>.svg, to the PNG sizes of the
# hicolor theme beside it (resources/icons/hicolor/<N>x<N>/apps/<app id>.png).
# The PNGs are committed: the build installs them as they are and embeds them
# as the windows' icon. Run this again after changing the SVG.
#
# ImageMagick 6 renders the SVG with its own renderer: first large, then
# scaled down to each size, so the small sizes are smoothed. Date chunks are
# left out, so two runs give the same files.
set -euo pipefail

# The real ImageMagick; another "convert" may come first on the PATH.
IM=/usr/bin/convert
[ -x "$IM" ] || { echo "ImageMagick is needed at $IM (apt-get install imagemagick)" >&2; exit 1; }

ROOT=$(cd "$(dirname "$0")/.." && pwd)
APP_ID=io.github.brindlepot.Brindlepot
ICONS=$ROOT/resources/icons/hicolor
SVG=$ICONS/scalable/apps/$APP_ID.svg
[ -f "$SVG" ] || { echo "missing $SVG" >&2; exit 1; }

TMP=$(mktemp -d)
trap 'rm -rf "$TMP"' EXIT
# 512 user units drawn at four times 72 dpi: a 2048 pixel master.
"$IM" -background none -density 288 "$SVG" "$TMP/master.png"

for n in 16 24 32 48 64 128 256; do
  mkdir -p "$ICONS/${n}x${n}/apps"
  "$IM" "$TMP/master.png" -resize "${n}x${n}" -depth 8 -strip \
    -define png:exclude-chunks=date,time "PNG32:$ICONS/${n}x${n}/apps/$APP_ID.png"
  echo "${n}x${n}/apps/$APP_ID.png"
done
