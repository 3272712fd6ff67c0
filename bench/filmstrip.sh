#!/usr/bin/env bash
# Makes a filmstrip of 12 stills with brisklet-cli and with twelve runs of ffmpegthumbnailer, each
# at the same time and size (213 x 120), for a 60 s file and a two-hour file. Prints medians and
# ratios. The peer takes the key frame before the time, brisklet-cli a frame within half a second.
# Beside them ffmpeg's exact stills, and the bound: the processor time in which ffmpeg decodes what
# lies between key frames and stills, only pictures that others refer to, without deblocking, on one
# thread, divided by the processors. Only for the 60 s file, whose groups are long.
source "$(dirname "$0")/common.sh"

brisklet() {
    measure "$bin/brisklet-cli" filmstrip "$source" "$scratch/strip"
}
peer() {
    measure bash -c 'for percentage in 4 12 21 29 37 46 54 62 71 79 87 96; do
        ffmpegthumbnailer -i "$0" -o "$1/$percentage.png" -t "$percentage%" -s 213 || exit 1
    done' "$source" "$scratch"
}
exact() {
    measure bash -c 'for middle in 2.5 7.5 12.5 17.5 22.5 27.5 32.5 37.5 42.5 47.5 52.5 57.5; do
        ffmpeg -nostdin -v error -y -ss "$middle" -i "$0" -frames:v 1 -vf scale=-2:120 \
            "$1/exact-$middle.png" || exit 1
    done' "$source" "$scratch"
}
# Seconds.
bound() {
    measure ffmpeg -threads 1 -skip_frame noref -skip_loop_filter all -i "$source" -an -f null -
    command ffprobe -v error -select_streams v -skip_frame nokey -show_entries frame=pts_time \
        -of csv=p=0 "$source" | python3 -c '
import os, sys
keys = [float(line.strip().strip(",")) for line in sys.stdin if line.strip()]
stills = [2.5 + 5 * i for i in range(12)]
lengths = {}
for still in stills:
    key = max(key for key in keys if key <= still + 0.5)
    lengths[key] = max(lengths.get(key, 0), still - 0.5 - key)
processors = len(os.sched_getaffinity(0))
print("%.3f" % (float(sys.argv[1]) * sum(lengths.values()) / 60 / processors))' "$cpu"
}

printMachine
for source in "$(minuteFile)" "$(twoHourFile)"; do
    echo "$(basename "$source"):"
    compare brisklet-cli brisklet "12 x ffmpegthumbnailer" peer
    [[ $source != "$(minuteFile)" ]] && continue
    compare brisklet-cli brisklet "12 x ffmpeg, exact" exact
    bounds=()
    for ((pair = 0; pair < pairs; ++pair)); do bounds+=("$(bound)"); done
    echo "the bound                          $(median "${bounds[@]}") s"
    echo
done
