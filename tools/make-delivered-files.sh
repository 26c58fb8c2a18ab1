#!/usr/bin/env bash
# Rebuilds the pictures and icons of the delivered file set
# (resources/delivered). The program's own icon is drawn as an SVG in
# resources/icons and rendered by tools/make-icons.sh.
#
# Everything is drawn with ImageMagick 6 from nothing but this script: the
# textures come from a fixed hash of the pixel position (no random source),
# so two runs give the same pictures. The help pages and the meal lists in
# resources/delivered are written by hand and are not touched here; the food
# storage files come from tools/make-storage-files.py.
#
# Usage: tools/make-delivered-files.sh [only...]
#   With no argument every picture is made; otherwise only the named ones,
#   e.g. "WP3 Splash 1.ico".
set -euo pipefail

# The real ImageMagick; another "convert" may come first on the PATH.
IM=/usr/bin/convert
[ -x "$IM" ] || { echo "ImageMagick is needed at $IM (apt-get install imagemagick)" >&2; exit 1; }

ROOT=$(cd "$(dirname "$0")/.." && pwd)
OUT=$ROOT/resources/delivered
mkdir -p "$OUT"
TMP=$(mktemp -d)
trap 'rm -rf "$TMP"' EXIT

font() { # font file of a Liberation face, e.g. font "Liberation Serif:bold"
  local f
  f=$(fc-match -f '%{file}' "$1" 2>/dev/null || true)
  case "$f" in
    *Liberation*) printf '%s' "$f" ;;
    *) echo "Font '$1' not found: install fonts-liberation" >&2; exit 1 ;;
  esac
}

W=1024
H=768
JPEG=(-strip -interlace none -sampling-factor 2x2 -quality 80)
PNG=(-strip -define png:exclude-chunks=date,time)

# ---------------------------------------------------------------------------
# Texture helpers
# ---------------------------------------------------------------------------

# hashnoise W H KEY OUT: grey values in 0..1 from a hash of the pixel
# position; the same KEY always gives the same picture.
hashnoise() {
  "$IM" -size "$1x$2" xc:gray50 -colorspace Gray \
    -fx "mod(abs(sin(i*12.9898+j*78.233+$3*37.719)*43758.5453),1)" "$4"
}

# stretched W H KEY OUT [SIZE]: hash noise of W x H cells smoothly enlarged to
# SIZE (default the background size). Few columns and many rows give
# horizontal streaks, and the other way round.
stretched() {
  local size=${5:-${W}x${H}}
  hashnoise "$1" "$2" "$3" "$TMP/s.png"
  "$IM" "$TMP/s.png" -filter Gaussian -resize "${size}!" "$4"
}

# clouds KEY OUT BASEW BASEH OCTAVES PERSISTENCE [SIZE]: fractal noise, the
# sum of OCTAVES layers of hash noise, each twice as fine as the one before
# and PERSISTENCE times as strong, stretched to the full size and levelled.
clouds() {
  local key=$1 out=$2 w=$3 h=$4 oct=$5 pers=$6 size=${7:-${W}x${H}}
  local total o wt args=()
  total=$(awk -v p="$pers" -v n="$oct" 'BEGIN{s=0;a=1;for(k=0;k<n;k++){s+=a;a*=p};print s}')
  for ((o = 0; o < oct; o++)); do
    wt=$(awk -v p="$pers" -v k="$o" -v s="$total" 'BEGIN{print (p^k)/s}')
    hashnoise "$w" "$h" $((key * 16 + o)) "$TMP/layer$o.png"
    args+=("(" "$TMP/layer$o.png" -filter Gaussian -resize "${size}!" -evaluate multiply "$wt" ")")
    w=$((w * 2))
    h=$((h * 2))
  done
  "$IM" "${args[@]}" -evaluate-sequence add -auto-level "$out"
}

# ramp OUT COLOUR...: a colour lookup strip running through the colours.
ramp() {
  local out=$1 args=() a
  shift
  a=$1
  shift
  for b in "$@"; do
    args+=(-size 1x256 "gradient:$a-$b")
    a=$b
  done
  "$IM" "${args[@]}" -append "$out"
}

# tile_grid OUT SIZE LINE: a white tile with a grey grout line of LINE
# pixels along its top and left edges.
tile_grid() {
  "$IM" -size "$2x$2" xc:white -fill black \
    -draw "rectangle 0,0 $(($2 - 1)),$(($3 - 1))" \
    -draw "rectangle 0,0 $(($3 - 1)),$(($2 - 1))" "$1"
}

# ImageMagick 6 closes a stroked path, so open curves are drawn as
# polylines through points worked out here.

# arc_points CX CY RX RY FROM TO: points along an ellipse arc, angles in
# degrees, clockwise on the screen from FROM to TO.
arc_points() {
  awk -v cx="$1" -v cy="$2" -v rx="$3" -v ry="$4" -v a0="$5" -v a1="$6" 'BEGIN {
    n = 32
    for (k = 0; k <= n; k++) {
      a = (a0 + (a1 - a0) * k / n) * 3.14159265358979 / 180
      printf "%.1f,%.1f ", cx + rx * cos(a), cy + ry * sin(a)
    }
  }'
}

# curve_points X0 Y0 then groups of six numbers: points along a chain of
# cubic Bezier segments, each given by two control points and an end point.
curve_points() {
  awk -v args="$*" 'BEGIN {
    m = split(args, v, " ")
    x = v[1]; y = v[2]; printf "%.1f,%.1f ", x, y
    for (s = 3; s + 5 <= m; s += 6) {
      for (k = 1; k <= 16; k++) {
        t = k / 16; u = 1 - t
        px = u*u*u*x + 3*u*u*t*v[s] + 3*u*t*t*v[s+2] + t*t*t*v[s+4]
        py = u*u*u*y + 3*u*u*t*v[s+1] + 3*u*t*t*v[s+3] + t*t*t*v[s+5]
        printf "%.1f,%.1f ", px, py
      }
      x = v[s+4]; y = v[s+5]
    }
  }'
}

# ---------------------------------------------------------------------------
# The sixteen backgrounds, 1024 x 768
# ---------------------------------------------------------------------------

wp_1() { # warm wood grain
  clouds 12 "$TMP/turb.png" 2 5 5 0.5
  stretched 96 768 77 "$TMP/fibre.png"
  ramp "$TMP/ramp.png" '#9a6840' '#c08f5f' '#ddb689'
  "$IM" -size ${W}x${H} gradient:white-black "$TMP/turb.png" \
    -compose blend -define compose:args=20,80 -composite \
    -function Sinusoid 9,0 -evaluate pow 0.45 \
    "$TMP/fibre.png" -compose blend -define compose:args=30,70 -composite \
    "$TMP/ramp.png" -clut "${JPEG[@]}" "$1"
}

wp_2() { # linen
  stretched 64 384 21 "$TMP/weft.png"
  stretched 512 48 22 "$TMP/warp.png"
  clouds 23 "$TMP/slub.png" 4 3 5 0.6
  "$IM" "$TMP/weft.png" "$TMP/warp.png" -evaluate-sequence mean \
    "$TMP/slub.png" -compose blend -define compose:args=25,75 -composite \
    -auto-level -colorspace sRGB +level-colors '#d6c6a6','#f0e6d2' "${JPEG[@]}" "$1"
}

wp_3() { # muted checked tablecloth
  "$IM" -size 1x12 xc:black -fx "mod(j,2)" -sample "${W}x${H}!" "$TMP/rows.png"
  "$IM" -size 16x1 xc:black -fx "mod(i,2)" -sample "${W}x${H}!" "$TMP/cols.png"
  stretched 64 384 31 "$TMP/weft.png"
  stretched 512 48 32 "$TMP/warp.png"
  ramp "$TMP/ramp.png" '#f4ede2' '#e0bfb6' '#cc978e'
  "$IM" "$TMP/rows.png" "$TMP/cols.png" -evaluate-sequence mean -blur 0x1.2 \
    \( "$TMP/weft.png" "$TMP/warp.png" -evaluate-sequence mean \) \
    -compose blend -define compose:args=12,88 -composite \
    "$TMP/ramp.png" -clut "${JPEG[@]}" "$1"
}

wp_4() { # terracotta tiles
  tile_grid "$TMP/grid.png" 128 5
  hashnoise 8 6 41 "$TMP/tones.png"
  clouds 42 "$TMP/mottle.png" 16 12 5 0.55
  ramp "$TMP/ramp.png" '#ad5e3e' '#c47550' '#d68f68'
  "$IM" -size ${W}x${H} tile:"$TMP/grid.png" -roll +2+2 "$TMP/mask.png"
  "$IM" "$TMP/mask.png" -blur 0x4 -level 0%,60% -colorspace sRGB \
    +level-colors '#9a8a80','#ffffff' "$TMP/edge.png"
  "$IM" "$TMP/tones.png" -sample "${W}x${H}!" \
    "$TMP/mottle.png" -compose blend -define compose:args=55,45 -composite \
    -level 10%,90% "$TMP/ramp.png" -clut \
    "$TMP/edge.png" -compose multiply -composite "$TMP/tiles.png"
  "$IM" -size ${W}x${H} xc:'#d9cebd' "$TMP/tiles.png" "$TMP/mask.png" \
    -compose over -composite "${JPEG[@]}" "$1"
}

wp_5() { # marble
  clouds 51 "$TMP/turb.png" 3 2 6 0.6
  clouds 53 "$TMP/turb2.png" 4 3 6 0.6
  clouds 52 "$TMP/cloud.png" 6 4 5 0.5
  "$IM" -size ${H}x${W} gradient:black-white -rotate 90 "$TMP/gx.png"
  "$IM" -size ${W}x${H} gradient:black-white "$TMP/gy.png"
  # Veins: the lines where a wavy diagonal sine wave crosses its middle.
  "$IM" "$TMP/gx.png" "$TMP/gy.png" -compose blend -define compose:args=60,40 -composite \
    "$TMP/turb.png" -compose blend -define compose:args=22,78 -composite \
    -function Sinusoid 2.2,0 -solarize 50% -auto-level -evaluate pow 6 \
    -blur 0x1.5 -negate -colorspace sRGB +level-colors '#aeb1b4','#ffffff' "$TMP/veins.png"
  "$IM" "$TMP/gx.png" "$TMP/gy.png" -compose blend -define compose:args=35,65 -composite \
    "$TMP/turb2.png" -compose blend -define compose:args=14,86 -composite \
    -function Sinusoid 3,40 -solarize 50% -auto-level -evaluate pow 10 \
    -blur 0x2 -negate -colorspace sRGB +level-colors '#d4d6d8','#ffffff' "$TMP/veins2.png"
  "$IM" "$TMP/cloud.png" -colorspace sRGB +level-colors '#e6e2dc','#f8f6f2' \
    "$TMP/veins.png" -compose multiply -composite \
    "$TMP/veins2.png" -compose multiply -composite "${JPEG[@]}" "$1"
}

wp_6() { # parchment
  clouds 61 "$TMP/blot.png" 4 3 6 0.6
  stretched 256 192 62 "$TMP/grain.png"
  # Darker towards the corners: 1 - (distance from the centre)^2, worked out
  # small and enlarged.
  "$IM" -size 256x192 xc:black -colorspace Gray \
    -fx "1-((i-127.5)^2+(j-95.5)^2)/(127.5^2+95.5^2)" \
    -filter Gaussian -resize "${W}x${H}!" -colorspace sRGB \
    +level-colors '#dcc08a','#ffffff' "$TMP/edge.png"
  "$IM" "$TMP/blot.png" "$TMP/grain.png" -compose blend -define compose:args=12,88 -composite \
    -colorspace sRGB +level-colors '#eadab0','#fbf4e2' \
    "$TMP/edge.png" -compose multiply -composite "${JPEG[@]}" "$1"
}

wp_7() { # soft sky
  clouds 71 "$TMP/cloud.png" 4 2 6 0.55
  hashnoise 512 384 72 "$TMP/grain.png"
  # A trace of fine grain keeps the smooth gradient free of steps.
  "$IM" -size ${W}x${H} gradient:black-white \
    \( "$TMP/grain.png" -resize "${W}x${H}!" \) -compose blend -define compose:args=3,97 -composite \
    \( -size 1x256 gradient:'#84b3de'-'#e4f0fa' \) -clut \
    \( -size ${W}x${H} xc:white \) \
    \( "$TMP/cloud.png" -level 48%,95% -evaluate multiply 0.75 \) \
    -compose over -composite "${JPEG[@]}" "$1"
}

wp_8() { # herb green
  clouds 81 "$TMP/leaf.png" 8 6 6 0.6
  stretched 256 192 82 "$TMP/grain.png"
  ramp "$TMP/ramp.png" '#8aa173' '#a9bb90' '#c9d6b2'
  "$IM" "$TMP/leaf.png" "$TMP/grain.png" -compose blend -define compose:args=15,85 -composite \
    "$TMP/ramp.png" -clut "${JPEG[@]}" "$1"
}

wp_9() { # blue-and-white tiles
  local b='#4a78b0' l='#a9c0de'
  "$IM" -size 1024x1024 xc:'#f8f9fc' -fill none \
    -stroke "$l" -strokewidth 14 \
    -draw "circle 0,0 0,260" -draw "circle 1024,0 1024,260" \
    -draw "circle 0,1024 0,764" -draw "circle 1024,1024 1024,764" \
    -stroke "$b" -strokewidth 14 -fill "$l" \
    -draw "ellipse 512,392 44,100 0,360" -draw "ellipse 512,632 44,100 0,360" \
    -draw "ellipse 392,512 100,44 0,360" -draw "ellipse 632,512 100,44 0,360" \
    -stroke none -fill "$b" -draw "circle 512,512 512,470" \
    -draw "circle 0,0 0,80" -draw "circle 1024,0 1024,80" \
    -draw "circle 0,1024 0,944" -draw "circle 1024,1024 1024,944" \
    -resize 256x256 "$TMP/motif.png"
  tile_grid "$TMP/grid.png" 256 4
  "$IM" -size ${W}x${H} tile:"$TMP/motif.png" "$TMP/motifs.png"
  "$IM" -size ${W}x${H} tile:"$TMP/grid.png" -roll +2+2 -blur 0x0.7 \
    -colorspace sRGB +level-colors '#c9d0da','#ffffff' "$TMP/grout.png"
  clouds 91 "$TMP/glaze.png" 4 3 4 0.5
  "$IM" "$TMP/motifs.png" "$TMP/grout.png" -compose multiply -composite \
    \( "$TMP/glaze.png" -colorspace sRGB +level-colors '#e8ecf2','#ffffff' \) \
    -compose multiply -composite "${JPEG[@]}" "$1"
}

wp_10() { # butcher block
  hashnoise 16 1 101 "$TMP/tones.png"
  stretched 1024 40 102 "$TMP/fibre.png"
  clouds 103 "$TMP/mottle.png" 8 3 5 0.55
  ramp "$TMP/ramp.png" '#b98c57' '#d2a772' '#e6c696'
  "$IM" -size 64x${H} xc:white -fill black -draw "rectangle 0,0 1,${H}" "$TMP/seam.png"
  "$IM" -size ${W}x${H} tile:"$TMP/seam.png" -blur 0x0.8 \
    -colorspace sRGB +level-colors '#8a6a48','#ffffff' "$TMP/seams.png"
  "$IM" "$TMP/tones.png" -sample "${W}x${H}!" \
    "$TMP/fibre.png" -compose blend -define compose:args=35,65 -composite \
    "$TMP/mottle.png" -compose blend -define compose:args=25,75 -composite \
    -level 5%,95% "$TMP/ramp.png" -clut \
    "$TMP/seams.png" -compose multiply -composite "${JPEG[@]}" "$1"
}

wp_11() { # slate
  clouds 111 "$TMP/stone.png" 6 8 7 0.62
  stretched 48 256 112 "$TMP/layers.png"
  ramp "$TMP/ramp.png" '#6c7580' '#838c96' '#9ca4ad'
  "$IM" "$TMP/stone.png" "$TMP/layers.png" -compose blend -define compose:args=25,75 -composite \
    "$TMP/ramp.png" -clut "${JPEG[@]}" "$1"
}

wp_12() { # soft pastel plaid
  local u=256
  "$IM" -size ${u}x${u} xc:'#f7f1e6' \
    -fill '#a9c6e080' -draw "rectangle 0,0 63,$u" \
    -fill '#a9c6e080' -draw "rectangle 0,0 $u,63" \
    -fill '#efb8c060' -draw "rectangle 120,0 151,$u" \
    -fill '#efb8c060' -draw "rectangle 0,120 $u,151" \
    -fill '#b9d6b070' -draw "rectangle 196,0 203,$u" \
    -fill '#b9d6b070' -draw "rectangle 0,196 $u,203" \
    -fill '#f3dea060' -draw "rectangle 220,0 227,$u" \
    -fill '#f3dea060' -draw "rectangle 0,220 $u,227" \
    "$TMP/plaid.png"
  stretched 64 384 121 "$TMP/weft.png"
  stretched 512 48 122 "$TMP/warp.png"
  "$IM" -size ${W}x${H} tile:"$TMP/plaid.png" -blur 0x1 \
    \( "$TMP/weft.png" "$TMP/warp.png" -evaluate-sequence mean +level-colors '#e6e1d8','#ffffff' \) \
    -compose multiply -composite "${JPEG[@]}" "$1"
}

wp_13() { # wheat
  stretched 384 16 131 "$TMP/stalks.png"
  clouds 132 "$TMP/field.png" 6 3 5 0.55
  ramp "$TMP/ramp.png" '#c39a52' '#dcbb78' '#efd9a4'
  "$IM" "$TMP/stalks.png" -virtual-pixel mirror -distort SRT 0,0,1,1,-14,0,0 \
    "$TMP/field.png" -compose blend -define compose:args=45,55 -composite \
    "$TMP/ramp.png" -clut \
    \( -size ${W}x${H} gradient:white-'#d9c7a3' \) -compose multiply -composite \
    "${JPEG[@]}" "$1"
}

wp_14() { # brushed copper
  stretched 8 768 141 "$TMP/brush.png"
  stretched 48 384 142 "$TMP/fine.png"
  ramp "$TMP/ramp.png" '#8e5030' '#b96d44' '#dc9b70'
  "$IM" "$TMP/brush.png" "$TMP/fine.png" -compose blend -define compose:args=40,60 -composite \
    -level 10%,90% \
    \( -size ${H}x${W} gradient:'#808080'-'#d0d0d0' -rotate 90 \) \
    -compose blend -define compose:args=45,55 -composite -auto-level \
    "$TMP/ramp.png" -clut "${JPEG[@]}" "$1"
}

wp_15() { # cream stucco
  clouds 151 "$TMP/bumps.png" 32 24 4 0.5
  clouds 152 "$TMP/soft.png" 4 3 4 0.5
  "$IM" "$TMP/bumps.png" -blur 0x1.5 -shade 120x50 -auto-level \
    "$TMP/soft.png" -compose blend -define compose:args=20,80 -composite \
    -colorspace sRGB +level-colors '#dac8a6','#f8f0df' "${JPEG[@]}" "$1"
}

wp_16() { # dusk gradient
  clouds 161 "$TMP/haze.png" 3 2 5 0.5
  hashnoise 512 384 162 "$TMP/grain.png"
  ramp "$TMP/ramp.png" '#6f7aa8' '#a893b8' '#e3b3a8' '#f4d0b0'
  "$IM" -size ${W}x${H} gradient:black-white \
    \( "$TMP/haze.png" -level -40%,140% \) \
    -compose blend -define compose:args=12,88 -composite \
    \( "$TMP/grain.png" -resize "${W}x${H}!" \) -compose blend -define compose:args=3,97 -composite \
    "$TMP/ramp.png" -clut "${JPEG[@]}" "$1"
}

# ---------------------------------------------------------------------------
# The pot: the program's motif, drawn at 512 x 512 on a clear ground
# ---------------------------------------------------------------------------

pot_master() { # OUT
  local red='#b8473a' dark='#6e2620' light='#d9705f' steam='#8fa6be'
  "$IM" -size 512x512 xc:none \
    -fill none -stroke "$steam" -strokewidth 16 \
    -draw "stroke-linecap round stroke-linejoin round polyline $(curve_points 190 150 160 120 215 95 185 60 170 42 190 28 196 20)" \
    -draw "stroke-linecap round stroke-linejoin round polyline $(curve_points 256 140 226 108 286 84 254 46 240 30 258 18 262 12)" \
    -draw "stroke-linecap round stroke-linejoin round polyline $(curve_points 322 150 292 120 347 95 317 60 302 42 322 28 328 20)" \
    -stroke "$dark" -strokewidth 10 \
    -fill "$dark" -draw "roundrectangle 40,262 120,298 16,16" \
    -draw "roundrectangle 392,262 472,298 16,16" \
    -fill "$red" -draw "ellipse 256,226 150,50 180,360" \
    -fill "$dark" -draw "circle 256,170 256,150" \
    -fill "$red" -draw "roundrectangle 96,220 416,246 12,12" \
    -draw "path 'M 112,246 L 400,246 L 392,420 Q 388,456 352,456 L 160,456 Q 124,456 120,420 Z'" \
    -stroke none -fill "$light" \
    -draw "roundrectangle 140,270 170,420 14,14" \
    -fill '#f3e6cf' -draw "roundrectangle 112,318 400,338 6,6" \
    "$1"
}

make_pot() { pot_master "$TMP/pot.png"; }

splash() { # OUT, 480 x 300
  local serif sans tw x
  serif=$(font "Liberation Serif:bold")
  sans=$(font "Liberation Sans:italic")
  # The name stands centred in the space right of the pot.
  tw=$("$IM" -font "$serif" -pointsize 54 label:Brindlepot -trim -format %w info:)
  x=$((198 + (258 - tw) / 2))
  "$IM" -size 480x300 gradient:'#fbf4e6'-'#efdcbc' \
    -fill none -stroke '#b8473a' -strokewidth 3 -draw "roundrectangle 8,8 471,291 14,14" \
    -stroke '#d9b48a' -strokewidth 1 -draw "roundrectangle 15,15 464,284 10,10" \
    \( "$TMP/pot.png" -resize 170x170 \) -geometry +24+40 -compose over -composite \
    -stroke none -fill '#7a2d24' -font "$serif" -pointsize 54 \
    -annotate +$x+138 'Brindlepot' \
    -fill '#b8473a' -draw "rectangle $x,156 $((x + tw)),158" \
    -fill '#5a4632' -font "$sans" -pointsize 17 \
    -gravity south -annotate +0+44 'Kitchen recipes, menus and lists for the family' \
    "${JPEG[@]}" -quality 88 "$1"
}

about() { # OUT, 200 x 200
  "$IM" -size 200x200 radial-gradient:'#fbf4e6'-'#ead5b1' \
    -fill none -stroke '#b8473a' -strokewidth 3 -draw "circle 100,100 100,8" \
    \( "$TMP/pot.png" -resize 150x150 \) -gravity center -geometry +0+0 \
    -compose over -composite "${JPEG[@]}" -quality 88 "$1"
}

# ---------------------------------------------------------------------------
# Faces, drawn at 256 x 256 and written as icons of 32 and 16 pixels
# ---------------------------------------------------------------------------

# face_draw KIND BOLD OUT: one face at 256 x 256; KIND is mild, big or sad.
# BOLD 1 draws heavier lines and larger eyes, for the 16 pixel picture.
face_draw() {
  local kind=$1 out=$3 ow=12 ex=14 ey=22 mw=14 ink='#3b2a00'
  if [ "$2" = 1 ]; then ow=20 ex=20 ey=30 mw=24; fi
  local mouth=()
  case "$kind" in
    mild) mouth=(-fill none -stroke "$ink" -strokewidth "$mw"
            -draw "stroke-linecap round stroke-linejoin round polyline $(arc_points 128 140 62 44 150 30)") ;;
    big) mouth=(-fill "$ink" -stroke "$ink" -strokewidth 8
           -draw "ellipse 128,146 74,62 0,180" -draw "line 54,146 202,146"
           -stroke none -fill '#e0505a' -draw "ellipse 128,190 34,16 180,360") ;;
    sad) mouth=(-fill none -stroke "$ink" -strokewidth "$mw"
           -draw "stroke-linecap round stroke-linejoin round polyline $(arc_points 128 214 56 42 210 330)") ;;
  esac
  "$IM" -size 256x256 xc:none \
    -fill '#ffd43b' -stroke '#6b4a00' -strokewidth "$ow" -draw "circle 128,128 128,$((4 + ow / 2))" \
    -stroke none -fill "$ink" \
    -draw "ellipse 88,96 $ex,$ey 0,360" -draw "ellipse 168,96 $ex,$ey 0,360" \
    "${mouth[@]}" "$out"
}

face() { # OUT KIND: an icon holding the face at 32 and at 16 pixels
  face_draw "$2" 0 "$TMP/face32.png"
  face_draw "$2" 1 "$TMP/face16.png"
  "$IM" \( "$TMP/face32.png" -resize 32x32 \) \( "$TMP/face16.png" -resize 16x16 \) \
    -depth 8 -strip "$1"
}

# ---------------------------------------------------------------------------

want() { # NAME: true when NAME is to be made on this run
  [ ${#ONLY[@]} -eq 0 ] && return 0
  local n
  for n in "${ONLY[@]}"; do [ "$n" = "$1" ] && return 0; done
  return 1
}

ONLY=("$@")
for n in $(seq 1 16); do
  if want "WP$n"; then
    "wp_$n" "$OUT/WP$n.jpg"
    echo "WP$n.jpg"
  fi
done
make_pot
if want Splash; then splash "$OUT/Splash.jpg"; echo Splash.jpg; fi
if want About; then about "$OUT/About.jpg"; echo About.jpg; fi
if want 1.ico; then face "$OUT/1.ico" mild; echo 1.ico; fi
if want 2.ico; then face "$OUT/2.ico" big; echo 2.ico; fi
if want Sad1.ico; then face "$OUT/Sad1.ico" sad; echo Sad1.ico; fi
