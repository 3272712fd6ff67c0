#!/usr/bin/env bash
# Exports one second near the end of a two-hour file and one near its beginning, at the same place
# of their groups of pictures. Prints medians and the ratio.
source "$(dirname "$0")/common.sh"

source=$(twoHourFile)

nearEnd() {
    measure "$bin/brisklet-cli" export "$source" "$scratch/a.mp4" --start 7150 --end 7151
}
nearBeginning() {
    measure "$bin/brisklet-cli" export "$source" "$scratch/b.mp4" --start 10 --end 11
}

printMachine
compare "7150 s to 7151 s" nearEnd "10 s to 11 s" nearBeginning
