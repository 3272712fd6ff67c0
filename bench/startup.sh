#!/usr/bin/env bash
# Measures how long it takes until the window and the first picture of files of several kinds are
# shown, compared with mpv, and what an empty window costs. On an X display of its own.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

# Clips as cameras and encoders make them: pictures with grain and heavy key frames.
heavy() {
    local size=$1 rate=$2
    shift 2
    ffmpeg -i "$(generated footage.mkv footage)" -f lavfi -i "sine=frequency=440:sample_rate=48000" -t 12 \
        -vf "scale=$size,noise=alls=12:allf=t,format=yuv420p" -c:v libx264 -preset superfast -b:v "$rate" \
        -g 250 -keyint_min 250 -sc_threshold 0 -c:a aac -b:a 128k "$@"
}
phone() {
    ffmpeg -i "$(generated footage.mkv footage)" -t 5 -vf noise=alls=4:allf=t,format=yuv420p10le \
        -c:v libx265 -preset superfast -b:v 16M -g 30 -tag:v hvc1 -an -color_primaries bt2020 \
        -color_trc arib-std-b67 -colorspace bt2020nc \
        -x265-params colorprim=bt2020:transfer=arib-std-b67:colormatrix=bt2020nc:log-level=error "$1"
}
av1() {
    ffmpeg -i "$(generated footage.mkv footage)" -t 2 -vf scale=3840:2160,noise=alls=8:allf=t,format=yuv420p \
        -c:v libsvtav1 -preset 10 -b:v 20M -g 60 "$1" 2>/dev/null
}
transportStream() { ffmpeg -i "$media/start-1080p.mp4" -c copy "$1"; }
fourGigabytes() { ffmpeg -stream_loop 10 -i "$(generated footage.mkv footage)" -c copy "$1"; }

sources=("$(generated start-1080p.mp4 heavy 1920:1080 13M)"
    "$(generated start-2160p.mp4 heavy 3840:2160 40M)"
    "$(generated start-hlg.mov phone)"
    "$(generated start-av1.mp4 av1)"
    "$(generated start-1080p.ts transportStream)"
    "$(generated start-4gb.mov fourGigabytes)")

Xvfb -displayfd 3 -screen 0 1280x800x24 -noreset -nolisten tcp 3>"$scratch/display" 2>/dev/null &
server=$!
trap 'kill "$server"; rm -rf "$scratch"' EXIT
until [[ -s "$scratch/display" ]]; do sleep 0.1; done
DISPLAY=":$(<"$scratch/display")"
export DISPLAY QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR="$scratch" XDG_CONFIG_HOME="$scratch"

# With a session bus, as in a desktop session.
session=()
command -v dbus-run-session >/dev/null && session=(dbus-run-session --)

starts=()
for ((pair = 0; pair < pairs; ++pair)); do
    starts+=("$("$bin/brisklet-bench" startup 2>/dev/null)")
done
echo "main() to the painted window: $(median "${starts[@]}") ms"

"$bin/brisklet" 2>/dev/null &
program=$!
sleep 3
awk '/^Rss:/ { rss = $2 } /^Pss:/ { pss = $2 } /^Private/ { private += $2 } END {
    printf "an empty window: %.1f MB private, %.1f MB proportional, %.1f MB resident\n",
        private / 1000, pss / 1000, rss / 1000 }' "/proc/$program/smaps_rollup"
kill "$program"
wait "$program" 2>/dev/null || true

echo "start to the first picture:"
for source in "${sources[@]}"; do
    ours=()
    peers=()
    for ((pair = 0; pair < pairs; ++pair)); do
        ours+=("$("${session[@]}" "$root/bench/first-picture" "$bin/brisklet" "$source")")
        peers+=("$("${session[@]}" "$root/bench/first-picture" \
            mpv --no-config --vo=x11 --pause "$source")")
    done
    ours=$(median "${ours[@]}")
    peers=$(median "${peers[@]}")
    printf '%-18s brisklet %6.0f ms, mpv %6.0f ms, ratio %s\n' "${source##*/}" "$ours" "$peers" \
        "$(ratio "$ours" "$peers")"
done

# Reading what a file holds; the decoder proves that its picture can be shown.
for source in "${sources[@]}"; do
    probe() { measure "$bin/brisklet-cli" probe "$source"; }
    ffprobeFile() { measure ffprobe -v error -show_streams "$source"; }
    compare "probe ${source##*/}" probe ffprobe ffprobeFile
done
