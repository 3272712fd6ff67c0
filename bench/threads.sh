#!/usr/bin/env bash
# Would any thread of the program hold up the others on a machine of many processors? Exports 8 s in
# each way, and steps through 2160p HDR at full size, in a program that believes in so many
# processors, and prints what processor time each thread took. Where all threads together took at
# least that many times the time of the busiest, it does not hold them up. The encoder's threads have
# the program's name, the decoder's are decode-video. Needs a C compiler and python3.
#
#   bench/threads.sh [PROCESSORS [CASE...]]      (16, all of them)
source "$(dirname "$0")/common.sh"
processors=${1:-16}
shift || true
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}

cc -shared -fPIC -O2 "$root/bench/Threads/processors.c" -o "$scratch/processors.so" -ldl
threadTimes=("$root/bench/Threads/thread-times" --processors "$processors" "$scratch/processors.so")

# clipOf NAME FFMPEG-OPTION...: 8 s of the minute, encoded in another way.
clip() { ffmpeg -ss 24 -t 8 -i "$(minuteFile)" "${@:1:$#-1}" -c:a copy "${@: -1}"; }
clipOf() {
    local name=$1
    shift
    generated "threads-$name" clip "$@"
}

hlg=(-color_primaries bt2020 -color_trc arib-std-b67 -colorspace bt2020nc)
hevc=(-c:v libx265 -preset veryfast -crf 20 -x265-params log-level=none -tag:v hvc1)
h264=(-c:v libx264 -preset veryfast -crf 18)
uhdSource() { clipOf uhd.mp4 -vf scale=3840:2160:flags=bicubic "${h264[@]}"; }
deepSource() { clipOf deep.mp4 -pix_fmt yuv420p10le "${hevc[@]}" "${hlg[@]}"; }
deepUhdSource() {
    clipOf deep-uhd.mp4 -vf scale=3840:2160:flags=bicubic -pix_fmt yuv420p10le "${hevc[@]}" \
        "${hlg[@]}"
}
interlacedSource() {
    clipOf interlaced.mp4 -vf tinterlace=mode=interleave_top,setfield=tff -flags +ildct \
        "${h264[@]}" -x264-params tff=1
}
fullChromaSource() { clipOf 444.mp4 -pix_fmt yuv444p "${h264[@]}"; }
coloursSource() { clipOf rgb.mp4 -c:v libx264rgb -preset ultrafast -crf 12; }
packedSource() { clipOf v210.mov -c:v v210; }

# exported NAME SOURCE OPTION...
exported() {
    echo "== $1"
    "${threadTimes[@]}" "$bin/brisklet-cli" export "${@:2:1}" "$scratch/out.mp4" "${@:3}"
}

straight() { exported "1080p as it is" "$(minuteFile)" --start 24 --end 32; }
turned() {
    exported "1080p, cropped and turned" "$(minuteFile)" --start 24 --end 32 --rotate 90 \
        --crop 0.1,0.1,0.8,0.8
}
smaller() { exported "2160p to 1080p" "$(uhdSource)" --max-short-edge 1080; }
deep() { exported "1080p HLG as it is" "$(deepSource)"; }
deepTurned() {
    exported "2160p HLG to 1080p, turned" "$(deepUhdSource)" --rotate 90 --max-short-edge 1080
}
interlaced() { exported "1080i to 720p" "$(interlacedSource)" --max-short-edge 720; }
fullChroma() { exported "1080p 4:4:4" "$(fullChromaSource)"; }
colours() { exported "1080p RGB" "$(coloursSource)"; }
packed() { exported "1080p v210 to 720p" "$(packedSource)" --max-short-edge 720; }
preview() {
    echo "== 2160p HLG on the screen, 60 steps"
    "${threadTimes[@]}" "$bin/brisklet-bench" step "$(deepUhdSource)" 1 60 --size 3840x2160
}

printMachine
echo "as on $processors processors:"
cases=("$@")
((${#cases[@]} > 0)) ||
    cases=(straight turned smaller deep deepTurned interlaced fullChroma colours packed preview)
for case in "${cases[@]}"; do
    case $case in
        straight | turned | smaller | deep | deepTurned) "$case" ;;
        interlaced | fullChroma | colours | packed | preview) "$case" ;;
        *) echo "unknown case: $case" >&2 && exit 2 ;;
    esac
done
