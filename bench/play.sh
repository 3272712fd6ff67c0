#!/usr/bin/env bash
# Measures the processor time of playing a 1080p file with sound, compared with mpv's x11 output at
# the same picture size. Uses an X display of its own and a sound server with only a null sink; where
# pulseaudio is not installed both play without sound. Needs mpv, python3, Xvfb.
#
#     bench/play.sh [SECONDS]      (default: 15)
source "$(dirname "$0")/common.sh"
seconds=${1:-15}
source=$(minuteFile)

export XDG_RUNTIME_DIR="$scratch" PULSE_RUNTIME_PATH="$scratch/pulse" HOME="$scratch"
unset PULSE_SERVER
Xvfb -displayfd 3 -screen 0 1280x800x24 -noreset -nolisten tcp 3>"$scratch/display" 2>/dev/null &
servers=($!)
trap 'kill "${servers[@]}"; wait; rm -rf "$scratch"' EXIT
sound="without sound"
if command -v pulseaudio >/dev/null; then
    pulseaudio -n --daemonize=no --exit-idle-time=-1 --log-level=error \
        -L module-native-protocol-unix -L "module-null-sink sink_name=null rate=48000" &
    servers+=($!)
    until pactl info >/dev/null 2>&1; do sleep 0.1; done
    # On an idle null sink both players stall for up to 1.5 s after the start, presumably because it
    # has fetched silence in advance. A stream of silence beside them keeps it running.
    pacat --playback --latency-msec=20 /dev/zero &
    servers+=($!)
    sound="with sound"
fi
until [[ -s "$scratch/display" ]]; do sleep 0.1; done
DISPLAY=":$(<"$scratch/display")"
export DISPLAY QT_QPA_PLATFORM=xcb

# field NAME: of the line of JSON on standard input.
field() { python3 -c "import json, sys; print(json.load(sys.stdin)['$1'])"; }
perSecond() { awk -v a="$(field cpuSeconds)" -v b="$seconds" 'BEGIN { printf "%.4f", a / b }'; }

printMachine
ours=()
peers=()
for ((pair = 0; pair < pairs; ++pair)); do
    line=$("$bin/brisklet-bench" play "$source" "$seconds" 2>/dev/null)
    size=$(field width <<<"$line")x$(field height <<<"$line")
    ours+=("$(perSecond <<<"$line")")
    peer=$("$root/bench/Play/mpv-cpu" "$source" "$seconds" "$size")
    peers+=("$(perSecond <<<"$peer")")
    echo "  $size: brisklet $line"
    echo "  $size: mpv      $peer"
done
ours=$(median "${ours[@]}")
peers=$(median "${peers[@]}")
echo "processor seconds for a second, $sound: brisklet $ours, mpv $peers, ratio $(ratio "$ours" "$peers")"
