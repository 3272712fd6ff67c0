#!/usr/bin/env bash
# Compares encoder settings by SSIM, time and size: x264 presets against medium at crf 16, x265
# presets (10 bit) against medium at crf 18. Times are processor times for raw pictures: encoders
# keep all processors busy, and wall times depend more on what else the machine does.
source "$(dirname "$0")/common.sh"

frames=${BENCH_FRAMES:-60}

# rawClip NAME PIXEL-FORMAT FFMPEG-INPUT...: raw 1080p pictures.
rawClip() {
    local name=$1 format=$2
    shift 2
    toRaw() {
        ffmpeg "${@:1:$#-1}" -frames:v "$frames" -vf \
            "scale=1920:1080:flags=lanczos,setsar=1,format=$format" -f nut -c:v rawvideo "${!#}"
    }
    generated "$name-$format-$frames.nut" toRaw "$@"
}

# row CLIP FORMAT ENCODER PRESET CRF [PARAMETERS]: one line of the table; sets cpu, bytes.
row() {
    local clip=$1 format=$2 encoder=$3 preset=$4 crf=$5 parameters=()
    if [[ $encoder == libx265 ]]; then
        parameters=(-x265-params "log-level=none${6:+:$6}")
    elif [[ -n ${6:-} ]]; then
        parameters=(-x264-params "$6")
    fi
    measure ffmpeg -nostdin -v error -y -i "$clip" -fps_mode passthrough \
        -pix_fmt "$format" -c:v "$encoder" \
        -preset "$preset" -crf "$crf" "${parameters[@]}" -f nut "$scratch/coded.nut"
    bytes=$(stat -c %s "$scratch/coded.nut")
    local similarity
    similarity=$(command ffmpeg -nostdin -hide_banner -i "$scratch/coded.nut" -i "$clip" \
        -lavfi "[0]settb=1/30,setpts=N[a];[1]settb=1/30,setpts=N[b];[a][b]ssim" -f null - 2>&1 | sed -n 's/.*All:\([0-9.]*\).*/\1/p')
    baseCpu=${baseCpu:-$cpu} baseBytes=${baseBytes:-$bytes}
    printf '| %-10s | %5s | %8s | %7s | %5s | %6s | %5s |\n' "$preset ${6:-}" "$crf" "$similarity" \
        "$cpu" "$(ratio "$cpu" "$baseCpu")" \
        "$(awk -v b="$bytes" 'BEGIN { printf "%.2f", b / 1048576 }')" \
        "$(ratio "$bytes" "$baseBytes")"
}

# table TITLE CLIP FORMAT ENCODER PRESET:CRF[:PARAMETERS]...: the others are compared with the first setting.
table() {
    local title=$1 clip=$2 format=$3 encoder=$4 setting
    shift 4
    printf '%s\n\n| preset     |   crf |     SSIM |   CPU s |     x |    MiB |     x |\n' "$title"
    printf '|---|---|---|---|---|---|---|\n'
    baseCpu='' baseBytes=''
    local preset crf parameters
    for setting in "$@"; do
        IFS=: read -r preset crf parameters <<<"$setting"
        row "$clip" "$format" "$encoder" "$preset" "$crf" "$parameters"
    done
    echo
}

h264=(medium:16 faster:16 veryfast:16 superfast:16.6 superfast:16.6:subme=2
    superfast:17.1:subme=2:qcomp=0.8 superfast:16.8:subme=2:qcomp=0.85:b-adapt=0:aq-mode=2:aq-strength=0.9
    superfast:17.1:subme=2:qcomp=0.85:b-adapt=0:aq-mode=2:aq-strength=0.9:partitions=i8x8:deblock=1,1
    superfast:16.6:mbtree=1:rc-lookahead=10 superfast:16.6:trellis=1 ultrafast:14)
hevc=(medium:18 fast:18 superfast:14 superfast:16 ultrafast:11 ultrafast:12 ultrafast:14
    ultrafast:11:psy-rd=0:deblock=2,2 ultrafast:11:psy-rd=0:deblock=2,2:ctu=16)

printMachine
noise=(-f lavfi -i "testsrc2=size=1920x1080:rate=30,noise=alls=10:allf=t")
if [[ -d $samples ]]; then
    declare -A clips=(
        [butterfly]="mp4 name with spaces, 'quote' & ümläut.mp4"
        [roof]=mp4-iphone-rot90-hevc10-hlg-editlist.mp4
        [screen]=mkv-screenrec-1080p60-aac.mkv)
    for name in butterfly roof screen; do
        clip=$(rawClip "$name" yuv420p -noautorotate -i "$samples/${clips[$name]}")
        table "H.264, $name" "$clip" yuv420p libx264 "${h264[@]}"
    done
fi
clip=$(rawClip noise yuv420p "${noise[@]}")
table "H.264, test picture with noise" "$clip" yuv420p libx264 "${h264[@]}"

if [[ -d $samples ]]; then
    declare -A deepClips=(
        [roof]=mp4-iphone-rot90-hevc10-hlg-editlist.mp4
        [terrace]=mp4-hevc10-pq-1080p.mp4)
    for name in roof terrace; do
        clip=$(rawClip "$name" yuv420p10le -noautorotate -i "$samples/${deepClips[$name]}")
        table "HEVC 10 bit, $name" "$clip" yuv420p10le libx265 "${hevc[@]}"
    done
fi
clip=$(rawClip noise yuv420p10le "${noise[@]}")
table "HEVC 10 bit, test picture with noise" "$clip" yuv420p10le libx265 "${hevc[@]}"
