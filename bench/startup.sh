#!/usr/bin/env bash
# Measures how long it takes until the window and the first picture of a 1080p file are shown,
# compared with mpv, and what an empty window costs. On an X display of its own.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

source="$media/green-1080p.mp4"
[[ -f "$source" ]] || ffmpeg -f lavfi -i "color=0x20C060:size=1920x1080:rate=30:duration=20" \
    -f lavfi -i "sine=duration=20" -c:v libx264 -pix_fmt yuv420p -c:a aac "$source"

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

ours=()
peers=()
for ((pair = 0; pair < pairs; ++pair)); do
    ours+=("$("${session[@]}" "$root/bench/first-picture" 20C060 "$bin/brisklet" "$source")")
    peers+=("$("${session[@]}" "$root/bench/first-picture" 20C060 \
        mpv --no-config --vo=x11 "$source")")
done
ours=$(median "${ours[@]}")
peers=$(median "${peers[@]}")
echo "start to first picture: brisklet $ours ms, mpv $peers ms, ratio $(ratio "$ours" "$peers")"
