# Shared by the comparisons in this folder; to be sourced. Needs ffmpeg, GNU time and awk.
#
#   BRISKLET_BIN   the folder of the programs  (build/release/bin)
#   BENCH_MEDIA    where sources are generated and kept  (build/bench-media)
#   BENCH_PAIRS    how often each pair is run, alternating  (5)
set -euo pipefail
export LC_ALL=C

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
bin=${BRISKLET_BIN:-$root/build/release/bin}
media=${BENCH_MEDIA:-$root/build/bench-media}
pairs=${BENCH_PAIRS:-5}
samples=$root/../shared/media
mkdir -p "$media"

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

ffmpeg() { command ffmpeg -nostdin -hide_banner -v error -y "$@"; }

# median NUMBER...
median() {
    printf '%s\n' "$@" | sort -g | awk '{ v[NR] = $1 }
        END { print NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'
}

# ratio A B
ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.3f", a / b }'; }

# measure COMMAND...: sets wall and cpu (seconds) and peak (MiB, of the largest of its processes).
measure() {
    local start=$EPOCHREALTIME
    /usr/bin/time --quiet -f '%M %U %S' -o "$scratch/usage" "$@" >"$scratch/output" 2>"$scratch/errors" || {
        echo "failed: $*" >&2
        cat "$scratch/errors" >&2
        exit 1
    }
    local end=$EPOCHREALTIME
    wall=$(awk -v a="$start" -v b="$end" 'BEGIN { printf "%.3f", b - a }')
    peak=$(awk '{ printf "%.1f", $1 / 1024 }' "$scratch/usage")
    cpu=$(awk '{ printf "%.2f", $2 + $3 }' "$scratch/usage")
}

# compare LABEL-A COMMAND-A LABEL-B COMMAND-B: runs two functions in turn and prints the medians.
compare() {
    local wallsA=() wallsB=() peaksA=() peaksB=() i
    "$2" >/dev/null && "$4" >/dev/null # Warms up the page cache.
    for ((i = 0; i < pairs; ++i)); do
        "$2"
        wallsA+=("$wall") peaksA+=("$peak")
        "$4"
        wallsB+=("$wall") peaksB+=("$peak")
    done
    local wallA wallB peakA peakB
    wallA=$(median "${wallsA[@]}") wallB=$(median "${wallsB[@]}")
    peakA=$(median "${peaksA[@]}") peakB=$(median "${peaksB[@]}")
    printf '%-34s %8s s  %8s MiB   (%s)\n' "$1" "$wallA" "$peakA" "${wallsA[*]}"
    printf '%-34s %8s s  %8s MiB   (%s)\n' "$3" "$wallB" "$peakB" "${wallsB[*]}"
    printf '%-34s %8s    %8s\n' ratio "$(ratio "$wallA" "$wallB")" "$(ratio "$peakA" "$peakB")"
}

# generated NAME COMMAND ARGUMENT...: makes $media/NAME with `COMMAND ARGUMENT... FILE` unless it is
# there, and prints its path.
generated() {
    local file=$media/$1 partial=$media/partial-$$-$1
    shift
    if [[ ! -e $file ]]; then
        "$@" "$partial" >&2
        mv "$partial" "$file"
    fi
    echo "$file"
}

# Real footage if the samples are there, else moving noise; with a little grain added, so that
# repeated footage is not encoded as if it stood still.
footage() {
    local grain=noise=alls=4:allf=t
    local clips=("mp4 name with spaces, 'quote' & ümläut.mp4"
        mp4-actioncam-h264-fullrange-datatracks.mp4
        mp4-iphone-rot90-hevc10-hlg-editlist.mp4 mp4-android-rot90-h264-720p.mp4)
    if [[ ! -e $samples/${clips[0]} ]]; then
        ffmpeg -f lavfi -i "testsrc2=size=1920x1080:rate=30:duration=20" \
            -vf noise=alls=12:allf=t,format=yuv420p -c:v libx264 -preset fast -crf 12 "$1"
        return
    fi
    local inputs=() filter="" joined="" i
    for i in "${!clips[@]}"; do
        inputs+=(-noautorotate -i "$samples/${clips[$i]}")
        filter+="[$i:v:0]scale=1920:1080:out_range=tv,setsar=1,fps=30,format=yuv420p[v$i];"
        joined+="[v$i]"
    done
    ffmpeg "${inputs[@]}" -filter_complex "$filter${joined}concat=n=${#clips[@]},$grain" \
        -c:v libx264 -preset fast -crf 12 -an "$1"
}

# 60 s of 1080p30 H.264 with groups of 250 pictures, and stereo AAC.
minute() {
    local clip
    clip=$(generated footage.mkv footage)
    ffmpeg -stream_loop -1 -i "$clip" -f lavfi -i "sine=frequency=440:sample_rate=48000" \
        -t 60 -vf format=yuv420p,setparams=color_primaries=bt709:color_trc=bt709:colorspace=bt709 \
        -c:v libx264 -preset medium -crf 21 -g 250 -keyint_min 250 -sc_threshold 0 -c:a aac -b:a 128k -ac 2 -f mp4 "$1"
}

# The same minute 120 times.
twoHours() {
    local i
    for ((i = 0; i < 120; ++i)); do
        echo "file '$media/minute.mp4'"
    done >"$scratch/list"
    ffmpeg -f concat -safe 0 -i "$scratch/list" -c copy -movflags +faststart -f mp4 "$1"
}

minuteFile() { generated minute.mp4 minute; }
twoHourFile() {
    minuteFile >/dev/null
    generated two-hours.mp4 twoHours
}

printMachine() {
    printf '%s, %s processors, %s, load %s\n\n' \
        "$(awk -F': ' '/model name/ { print $2; exit }' /proc/cpuinfo)" "$(nproc)" \
        "$(command ffmpeg -version | awk 'NR == 1 { print "ffmpeg " $3 }')" \
        "$(cut -d' ' -f1 /proc/loadavg)"
}
