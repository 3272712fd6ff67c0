#!/usr/bin/env bash
# Exports 12 s out of a minute, from 24 s on, in four ways, and does the same with ffmpeg and, where
# it is installed, HandBrake: once at the quality that is the program's aim (x264 medium crf 16, x265
# medium crf 18), once with the program's own encoder settings. Prints medians of time and memory,
# ratios, and SSIM and size of the results. At the end: how close an export comes to the limit that
# the work of the decoder and the encoder sets.
#
#   bench/export.sh [straight] [turned] [smaller] [deep] [limit]      (all of them)
source "$(dirname "$0")/common.sh"

parameters264=subme=2:qcomp=0.85:b-adapt=0:aq-mode=2:aq-strength=0.9:partitions=i8x8:deblock=1,1
ours264=(-c:v libx264 -preset superfast -x264-params "$parameters264" -crf)
handBrake264=(-e x264 --encoder-preset superfast -x "$parameters264" -q)
crf264=17.1
crf264Reduced=16.1
parameters265=psy-rd=0:deblock=2,2:ctu=16
crf265=11
ours265=(-c:v libx265 -preset ultrafast -x265-params "log-level=none:$parameters265" -tag:v hvc1
    -crf "$crf265")
aim264=(-c:v libx264 -preset medium -crf 16)
aim265=(-c:v libx265 -preset medium -crf 18 -x265-params log-level=none -tag:v hvc1)
aac=(-c:a aac -b:a 256k)

# 60 s of 2160p30 H.264, and of 1080p30 10-bit HEVC with HLG tags.
uhd() {
    ffmpeg -i "$(minuteFile)" -vf scale=3840:2160:flags=bicubic -c:v libx264 -preset veryfast \
        -crf 21 -g 250 -c:a copy -f mp4 "$1"
}
deep() {
    ffmpeg -i "$(minuteFile)" -pix_fmt yuv420p10le -c:v libx265 -preset veryfast -crf 20 \
        -x265-params log-level=none:keyint=250 -color_primaries bt2020 -color_trc arib-std-b67 \
        -colorspace bt2020nc -tag:v hvc1 -c:a copy -f mp4 "$1"
}

# Sets up a case: $source, $filter (ffmpeg's), $options (ours), $ours and $aim (encoder settings).
brisklet() {
    measure "$bin/brisklet-cli" export "$source" "$scratch/brisklet.mp4" --start 24 --end 36 \
        "${options[@]}"
}
peerAtAim() {
    measure ffmpeg -nostdin -v error -y -ss 24 -t 12 -i "$source" -vf "$filter" "${aim[@]}" \
        "${aac[@]}" "$scratch/aim.mp4"
}
peerAlike() {
    measure ffmpeg -nostdin -v error -y -ss 24 -t 12 -i "$source" -vf "$filter" "${ours[@]}" \
        "${aac[@]}" "$scratch/alike.mp4"
}
handBrake() {
    measure HandBrakeCLI -i "$source" -o "$scratch/handbrake.mp4" --start-at seconds:24 \
        --stop-at seconds:12 "${handBrakeOptions[@]}" -E av_aac -B 256 "${handBrakePicture[@]}"
}

# likeness FILE: SSIM against the source's pictures as ffmpeg renders them losslessly.
likeness() {
    command ffmpeg -nostdin -hide_banner -i "$1" -ss 24 -t 12 -i "$source" -lavfi \
        "[1:v]$filter,settb=1/30,setpts=N[b];[0:v]settb=1/30,setpts=N[a];[a][b]ssim=shortest=1" \
        -f null - 2>&1 | sed -n 's/.*All:\([0-9.]*\).*/\1/p'
}

runCase() {
    echo "== $1"
    compare brisklet-cli brisklet "ffmpeg at the aim" peerAtAim
    compare brisklet-cli brisklet "ffmpeg, same encoder settings" peerAlike
    local files=(brisklet aim alike)
    if command -v HandBrakeCLI >/dev/null; then
        compare brisklet-cli brisklet "HandBrake, same encoder settings" handBrake
        files+=(handbrake)
    fi
    local file
    for file in "${files[@]}"; do
        printf '%-10s SSIM %s, %s bytes\n' "$file" "$(likeness "$scratch/$file.mp4")" \
            "$(stat -c %s "$scratch/$file.mp4")"
    done
    echo
}

straight() {
    source=$(minuteFile) filter=null options=() ours=("${ours264[@]}" "$crf264") aim=("${aim264[@]}")
    handBrakeOptions=("${handBrake264[@]}" "$crf264")
    handBrakePicture=(--crop-mode none)
    runCase "1080p as it is"
}
turned() {
    source=$(minuteFile) ours=("${ours264[@]}" "$crf264") aim=("${aim264[@]}")
    options=(--rotate 90 --crop 0.1,0.1,0.8,0.8)
    filter="transpose=clock,crop=864:1536:108:192"
    handBrakeOptions=("${handBrake264[@]}" "$crf264")
    handBrakePicture=(--rotate=angle=90:hflip=0 --crop-mode custom --crop 192:192:108:108)
    runCase "1080p, cropped and turned"
}
smaller() {
    source=$(generated uhd-minute.mp4 uhd) ours=("${ours264[@]}" "$crf264Reduced") aim=("${aim264[@]}")
    options=(--max-short-edge 1080)
    filter="scale=1920:1080:flags=lanczos"
    handBrakeOptions=("${handBrake264[@]}" "$crf264Reduced")
    handBrakePicture=(--crop-mode none -w 1920 -l 1080)
    runCase "2160p to 1080p"
}
deepColour() {
    source=$(generated deep-minute.mp4 deep) filter=null options=()
    ours=("${ours265[@]}") aim=("${aim265[@]}")
    handBrakeOptions=(-e x265_10bit --encoder-preset ultrafast -x "$parameters265" -q "$crf265")
    handBrakePicture=(--crop-mode none)
    runCase "1080p 10-bit HEVC as it is"
}

# An export cannot take less than the work of decoder and encoder together, spread evenly over all
# processors: processor time of each alone, the encoder fed with raw pictures from memory.
limit() {
    source=$(minuteFile) options=()
    measure ffmpeg -nostdin -v error -ss 24 -t 12 -i "$source" -an -f null -
    local decoding=$cpu
    raw=/dev/shm/brisklet-bench-$$.nut
    trap 'rm -rf "$scratch" "$raw"' EXIT
    ffmpeg -ss 24 -t 4 -i "$source" -an -c:v rawvideo -f nut "$raw"
    measure ffmpeg -nostdin -v error -y -i "$raw" "${ours264[@]}" "$crf264" -f null -
    # Four seconds fit into memory; the range has twelve.
    local encoding
    encoding=$(awk -v c="$cpu" 'BEGIN { printf "%.2f", c * 3 }')
    brisklet
    awk -v d="$decoding" -v e="$encoding" -v n="$(nproc)" -v w="$wall" -v c="$cpu" 'BEGIN {
        printf "limit: decoding %s s + encoding %s s of processor time, on %s processors %.2f s\n",
            d, e, n, (d + e) / n
        printf "export: %s s, %.3f times the limit; processor time %s s, %.3f times theirs\n",
            w, w / ((d + e) / n), c, c / (d + e) }'
}

printMachine
cases=("$@")
((${#cases[@]} > 0)) || cases=(straight turned smaller deep limit)
for case in "${cases[@]}"; do
    case $case in
        straight | turned | smaller | limit) "$case" ;;
        deep) deepColour ;;
        *) echo "unknown case: $case" >&2 && exit 2 ;;
    esac
done
