#!/usr/bin/env bash
# Seeks a paused player with brisklet-bench and a paused mpv (hr-seek, over its IPC socket) to the
# same exact positions of the same files, in turn: a drag back and forth, and random positions, with
# how long brisklet takes to the first picture that may stand in for the exact one ("glance"). Then
# steps back over key frames as a held arrow key does, and beside it as fast as mpv can; drags at
# 60 Hz and prints how long the main thread was blocked, and the memory used. Prints milliseconds and
# ratios. Needs mpv and python3.
#
#     bench/scrub.sh [SOURCE...]      (default: four generated files, and jumps far into a fifth)
source "$(dirname "$0")/common.sh"
export QT_QPA_PLATFORM=offscreen
pairs=${BENCH_PAIRS:-3}

# 20 s of the footage with groups of 250 pictures: h264 WIDTH HEIGHT FILE
h264() {
    ffmpeg -ss 0 -t 20 -i "$(minuteFile)" -an -vf "scale=$1:$2:flags=bicubic" -c:v libx264 \
        -preset veryfast -bf 3 -crf 23 -g 250 -keyint_min 250 -sc_threshold 0 -f mp4 "$3"
}
hevc10() {
    ffmpeg -t 20 -i "$(minuteFile)" -an -vf format=yuv420p10 -c:v libx265 -preset superfast -crf 24 \
        -x265-params log-level=error:keyint=250:min-keyint=250:scenecut=0 -tag:v hvc1 -f mp4 "$1"
}
intra() {
    ffmpeg -t 20 -i "$(minuteFile)" -an -c:v libx264 -preset veryfast -crf 20 -g 1 -f mp4 "$1"
}

# times NAME EXPRESSION: writes the list of seconds that the Python expression gives.
times() { python3 -c "import json, math, random; random.seed(5); print(json.dumps($2))" >"$scratch/$1.json"; }
times drag "[8 + 0.7 * math.sin(i / 18) for i in range(120)]"
times random "[random.uniform(0, 19.5) for i in range(40)]"
times far "[random.uniform(0, 59.5) for i in range(40)]"
times one "[8]"

# field NAME: of the line of JSON on standard input.
field() { python3 -c "import json, sys; print('%.2f' % json.load(sys.stdin)['$1'])"; }

# against TIMES: runs both programs in turn; prints the medians of each figure and their ratios.
against() {
    local -A ours=() theirs=()
    local i name line glances=(glanceP50 glanceP95)
    for ((i = 0; i < pairs; ++i)); do
        line=$("$bin/brisklet-bench" scrub "$source" "$scratch/$1.json" 2>/dev/null)
        for name in first p50 p95 max "${glances[@]}"; do ours[$name]+=" $(field "$name" <<<"$line")"; done
        line=$("$root/bench/Scrub/mpv-seeks" "$source" "$scratch/$1.json")
        for name in first p50 p95 max; do theirs[$name]+=" $(field "$name" <<<"$line")"; done
    done
    for name in first p50 p95 max; do
        # shellcheck disable=SC2086
        local a=$(median ${ours[$name]}) b=$(median ${theirs[$name]})
        printf '  %-8s %-6s brisklet %9s ms   mpv %9s ms   ratio %s\n' \
            "$1" "$name" "$a" "$b" "$(ratio "$a" "$b")"
    done
    for name in "${glances[@]}"; do
        # shellcheck disable=SC2086
        printf '  %-8s %-9s brisklet %6s ms\n' "$1" "$name" "$(median ${ours[$name]})"
    done
}

printMachine
sources=("$@")
if ((${#sources[@]} == 0)); then
    sources=("$(generated scrub-1080p-h264.mp4 h264 1920 1080)"
        "$(generated scrub-2160p-h264.mp4 h264 3840 2160)"
        "$(generated scrub-1080p-hevc10.mp4 hevc10)"
        "$(generated scrub-1080p-intra.mp4 intra)")
fi
for source in "${sources[@]}"; do
    echo "$(basename "$source"):"
    against drag
    against random
    printf '  step back       %s\n' "$("$bin/brisklet-bench" step "$source" 9 -60 2>/dev/null)"
    printf '  left held       %s\n' "$("$bin/brisklet-bench" hold "$source" 19 -540 0 2>/dev/null)"
    printf '  mpv steps back  %s\n' "$("$root/bench/Scrub/mpv-seeks" "$source" back 9 20)"
    printf '  drag at 60 Hz   %s\n' "$("$bin/brisklet-bench" drag "$source" "$scratch/drag.json" 2>/dev/null)"
    echo
done
if (($# == 0)); then
    source=$(minuteFile)
    echo "$(basename "$source"):"
    against far
fi
