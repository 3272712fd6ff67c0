#!/usr/bin/env bash
# Exports each sample video whole and in thirds, and compares size and time with what the forecast
# said before. Prints the median and the ninth decile of the errors, and what the trials took.
#
#   bench/forecast.sh [VIDEO...]    default: the sample videos of at most two minutes
source "$(dirname "$0")/common.sh"
export QT_QPA_PLATFORM=offscreen

videos=("$@")
if ((${#videos[@]} == 0)); then
    for video in "$root"/../shared/media/*; do
        seconds=$(command ffprobe -v error -show_entries format=duration -of csv=p=0 "$video" || true)
        awk -v s="$seconds" 'BEGIN { exit s + 0 > 120 }' && [[ $video != *.json ]] && videos+=("$video")
    done
fi

for video in "${videos[@]}"; do
    # What is no video, or does not decode, says so and is left out.
    "$bin/brisklet-bench" forecast "$video" 2>/dev/null |
        sed "s|^{|{\"file\":\"$(basename "$video" | tr -d '"&|\\')\",|" || true
done >"$scratch/forecasts"

printMachine
python3 - "$scratch/forecasts" <<'PYTHON'
import json, sys

rows = [json.loads(line) for line in open(sys.argv[1])]
made = [row for row in rows if row["forecastBytes"] > 0]

def at(values, share):
    ordered = sorted(values)
    return ordered[min(int(share * len(ordered)), len(ordered) - 1)]

def errors(forecast, real):
    return [abs(row[forecast] / row[real] - 1) * 100 for row in made]

print(f"{len(rows)} exports, {len(made)} with a forecast\n")
print("| | median error | 90 % within |\n|---|---|---|")
for name, values in (("size", errors("forecastBytes", "bytes")),
                     ("time", errors("forecastSeconds", "seconds"))):
    print(f"| {name} | {at(values, 0.5):.1f} % | {at(values, 0.9):.1f} % |")
trials = [row["trialCpuSeconds"] for row in rows]
print(f"\nProcessor time of a trial: median {at(trials, 0.5):.2f} s, at most {max(trials):.2f} s.\n")
print("The worst sizes:\n")
for row in sorted(made, key=lambda row: -abs(row["forecastBytes"] / row["bytes"] - 1))[:6]:
    print(f"- {row['file']}: {row['forecastBytes'] / row['bytes']:.2f} of {row['bytes']} bytes")
PYTHON
