#!/bin/bash
# Makes icons, splash pictures and the fixed toolbar pictures from the drawings in art/.
# The results are committed, so a build does not need the tools; run this after changing a drawing.
# The same tools give the same bytes.
set -euo pipefail
cd "$(dirname "$0")"

missing=
need() { command -v "$1" >/dev/null || missing="$missing $2"; }
need rsvg-convert librsvg2-bin
need icotool icoutils
need convert imagemagick
need python3 python3
if [ -n "$missing" ]; then
    echo "make-art: these Debian packages are missing:$missing" >&2
    exit 1
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# render NAME SIZE: draws art/NAME-SIZE.svg, or art/NAME.svg where no drawing for that size exists,
# and prints the PNG's path. At 16 pixels the outline becomes hard: toolbars show those pictures
# through a one-bit mask, where half-transparent pixels would leave a fringe.
render() {
    local drawing=art/$1-$2.svg png=$work/${1//\//_}-$2.png
    [ -e "$drawing" ] || drawing=art/$1.svg
    rsvg-convert --width="$2" --height="$2" --output="$png" "$drawing"
    if [ "$2" = 16 ]; then
        convert "$png" -channel A -threshold 49% +channel -strip "PNG32:$png.hard"
        mv "$png.hard" "$png"
    fi
    echo "$png"
}

# icon RESULT NAME SIZE...: one .ico of uncompressed 32-bit images, each with its one-bit mask, so that
# loaders that know neither alpha nor compressed images show it too. The mask leaves out only what is wholly
# transparent: behind it a loader without alpha would mix a soft pixel into the background as garbage.
icon() {
    local result=$1 name=$2 pngs=() size
    shift 2
    for size; do
        pngs+=("$(render "$name" "$size")")
    done
    icotool --create --bit-depth=32 --alpha-threshold=0 --output="$result" "${pngs[@]}"
    echo "$result: $*"
}

for name in kestrel brd sch lbr; do
    icon "$name.ico" "$name" 16 20 24 32 48
done

mkdir -p samples
for drawing in art/samples/*.svg; do
    name=$(basename "$drawing" .svg)
    case $name in *-16 | *-20 | *-24 | *-32 | *-48) continue ;; esac
    icon "samples/$name.ico" "samples/$name" 16 20 24 32 48
done

# Both splash pictures are cut from one drawing with one palette: they overlap on the form. Those that end in -2 are
# twice as large, for screens of more than 96 dpi.
splash() {
    local times=$1 end=$2
    rsvg-convert --zoom="$times" --output="$work/splash.png" art/splash.svg
    convert "$work/splash.png" +dither -colors 255 -strip "PNG24:$work/palette.png"
    cut() { convert "$work/palette.png" -crop "$(($2 * times))x$(($3 * times))+$(($4 * times))+$(($5 * times))" +repage -strip "GIF87:$1$end.gif"; }
    cut splash-square 93 93 16 12
    cut splash-wide 361 76 28 68
    echo "splash-square$end.gif, splash-wide$end.gif"
}
splash 1 ""
splash 2 -2

# The side of the installer's pages: a bitmap of the plain kind, which every Windows shows.
rsvg-convert --output="$work/side.png" art/installer.svg
rsvg-convert --width=128 --height=128 --output="$work/bird.png" art/kestrel.svg
convert "$work/side.png" "$work/bird.png" -geometry +18+108 -composite +dither -colors 128 -strip \
    -type Palette -compress None BMP3:installer.bmp
echo "installer.bmp"

# No button shows the separator or the arrow: they are drawn in the design's size alone.
pictures=()
for pair in Separator=separator BRD=brd SCH=sch LBR=lbr Config=config Over=over; do
    case $pair in Separator=* | Over=*) sizes=16 ;; *) sizes="16 20 24 32 48" ;; esac
    for size in $sizes; do
        pictures+=("${pair%=*}=$(render "${pair#*=}" "$size")")
    done
done
python3 pictures.py "${pictures[@]}" > ../src/toolbars/pictures.inc
echo "../src/toolbars/pictures.inc"

python3 check-art.py
