#!/usr/bin/env bash
# Makes a filmstrip of 12 stills with brisklet-cli and with twelve runs of ffmpegthumbnailer, each
# at the same time and size (213 x 120), for a 60 s file and a two-hour file. Prints medians and
# ratios. The peer takes the key frame before the time, brisklet-cli a frame within half a second.
source "$(dirname "$0")/common.sh"

brisklet() {
    measure "$bin/brisklet-cli" filmstrip "$source" "$scratch/strip"
}
peer() {
    measure bash -c 'for percentage in 4 12 21 29 37 46 54 62 71 79 87 96; do
        ffmpegthumbnailer -i "$0" -o "$1/$percentage.png" -t "$percentage%" -s 213 || exit 1
    done' "$source" "$scratch"
}

printMachine
for source in "$(minuteFile)" "$(twoHourFile)"; do
    echo "$(basename "$source"):"
    compare brisklet-cli brisklet "12 x ffmpegthumbnailer" peer
    echo
done
