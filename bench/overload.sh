#!/usr/bin/env bash
# Playing more than the machine can decode: 2160p 10-bit HEVC at two and at four times the rate of
# its pictures, against mpv with its x11 output at the same size of picture. How many pictures come
# onto the screen in a second, and for how long the picture stands still. On an X display of its
# own, without sound. mpv falls behind its clock, Brisklet does not. Needs mpv, python3, Xvfb.
#
#     bench/overload.sh [SECONDS]      (default: 10)
source "$(dirname "$0")/common.sh"
seconds=${1:-10}

heavy() {
    ffmpeg -t 16 -i "$(minuteFile)" -an -vf scale=3840:2160:flags=bicubic,format=yuv420p10 \
        -c:v libx265 -preset superfast -crf 22 -g 60 -x265-params log-level=error \
        -tag:v hvc1 -f mp4 "$1"
}
# faster TIMES FILE: the same pictures in less time.
faster() {
    ffmpeg -stream_loop $((2 * $1 - 1)) -itsscale "$(ratio 1 "$1")" \
        -i "$(generated overload.mp4 heavy)" -map 0:v -c copy -f mp4 "$2"
}

Xvfb -displayfd 3 -screen 0 1400x900x24 -noreset -nolisten tcp 3>"$scratch/display" 2>/dev/null &
server=$!
trap 'kill "$server"; wait; rm -rf "$scratch"' EXIT
until [[ -s "$scratch/display" ]]; do sleep 0.1; done
DISPLAY=":$(<"$scratch/display")"
export DISPLAY QT_QPA_PLATFORM=xcb

# field NAME: of the line of JSON on standard input.
field() { python3 -c "import json, sys; print(json.load(sys.stdin)['$1'])"; }

runPairs() {
    local source=$1 pair line size ours=() theirs=() ourStill=() theirStill=()
    for ((pair = 0; pair < pairs; ++pair)); do
        line=$("$bin/brisklet-bench" play "$source" "$seconds" 2>/dev/null)
        size=$(field width <<<"$line")x$(field height <<<"$line")
        echo "  $size: brisklet $line"
        ours+=("$(ratio "$(field shown <<<"$line")" "$seconds")")
        ourStill+=("$(field longestStill <<<"$line")")
        line=$("$root/bench/Play/mpv-shown" "$source" "$seconds" "$size")
        echo "  $size: mpv      $line"
        theirs+=("$(ratio "$(field shown <<<"$line")" "$(field seconds <<<"$line")")")
        theirStill+=("$(field longestStill <<<"$line")")
    done
    local a b c d
    a=$(median "${ours[@]}") b=$(median "${theirs[@]}")
    c=$(median "${ourStill[@]}") d=$(median "${theirStill[@]}")
    echo "pictures a second: brisklet $a, mpv $b, ratio $(ratio "$a" "$b")"
    echo "longest still, ms: brisklet $c, mpv $d, ratio $(ratio "$c" "$d")"
}

printMachine
for times in 2 4; do
    echo "$((30 * times)) pictures a second:"
    runPairs "$(generated "overload-$times.mp4" faster "$times")"
done
