#!/usr/bin/env bash
# Exports 12 s of a 60 s file, starting at 24 s, with brisklet-cli and with ffmpeg, which decodes,
# encodes with the same settings and writes the same kind of file. Prints medians and ratios.
source "$(dirname "$0")/common.sh"

source=$(minuteFile)
h264=(-c:v libx264 -preset superfast -crf 16.6)
aac=(-c:a aac -b:a 256k)

brisklet() {
    measure "$bin/brisklet-cli" export "$source" "$scratch/a.mp4" --start 24 --end 36
}
brisklet720() {
    measure "$bin/brisklet-cli" export "$source" "$scratch/a.mp4" --start 24 --end 36 \
        --max-short-edge 720
}
peer() {
    measure ffmpeg -nostdin -v error -y -ss 24 -t 12 -i "$source" "${h264[@]}" "${aac[@]}" \
        "$scratch/b.mp4"
}
peer720() {
    measure ffmpeg -nostdin -v error -y -ss 24 -t 12 -i "$source" -vf scale=-2:720 \
        "${h264[@]}" "${aac[@]}" "$scratch/b.mp4"
}

printMachine
echo "As it is:"
compare brisklet-cli brisklet ffmpeg peer
stat -c '%s bytes' "$scratch/a.mp4" "$scratch/b.mp4"
echo
echo "Scaled to 720 lines:"
compare brisklet-cli brisklet720 ffmpeg peer720
