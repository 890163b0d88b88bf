#!/usr/bin/env bash
# Whole-process timings of the command line, medians of RUNS runs (default 9), in turn so
# that a drift of the machine's speed reaches both sides alike:
#   - `gustline-cli eval --book` on a wind workbook of about 8,000 formula cells
#     (bench/make_wind_book.py), and, where Gnumeric's ssconvert is installed
#     (apt-get install gnumeric), ssconvert recalculating the same workbook from .xlsx to CSV;
#   - `gustline-cli batch` of 1000 Figure 6-6 cases (Exposure, WindSpeed and Height varied).
# Usage: bench/compare.sh [BIN_FOLDER] [RUNS]; BIN_FOLDER defaults to build/release/bin.
set -euo pipefail
cd "$(dirname "$0")/.."
bin=$(realpath "${1:-build/release/bin}")
runs=${2:-9}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

python3 bench/make_wind_book.py "$work"
"$bin/gustline-wbbuild" "$work/WindBench.book" "$work/WindBench.gwb"
{
  echo "Exposure,WindSpeed,Height"
  for i in $(seq 0 999); do
    echo "$((i % 3 + 1)),$((85 + (i * 7) % 100)),$((15 + (i * 13) % 500))"
  done
} >"$work/cases.csv"

# The median, in milliseconds, of the wall times of RUNS runs of a command.
median_ms() {
  local times=()
  for _ in $(seq "$runs"); do
    local start end
    start=$(date +%s%N)
    "$@" >/dev/null 2>&1
    end=$(date +%s%N)
    times+=($(((end - start) / 1000)))
  done
  printf '%s\n' "${times[@]}" | sort -n | awk '{ t[NR] = $1 } END { printf "%.1f", t[int((NR + 1) / 2)] / 1000 }'
}

eval_book() { "$bin/gustline-cli" eval --book "$work/WindBench.gwb" "Loads!C536"; }
ours=$(median_ms eval_book)
echo "gustline-cli eval --book (8,000 formula cells): ${ours} ms"
if command -v ssconvert >/dev/null; then
  convert() { ssconvert --recalc "$work/WindBench.xlsx" "$work/out.csv"; }
  theirs=$(median_ms convert)
  echo "ssconvert --recalc, the same workbook:          ${theirs} ms"
  awk -v a="$theirs" -v b="$ours" 'BEGIN { printf "ssconvert / gustline-cli: %.1f\n", a / b }'
fi

batch() {
  "$bin/gustline-cli" batch --in "$work/cases.csv" --out "$work/results.csv" \
    --set System=0 --set Structure=1 --set Figure=1 --set GustType=0 --result qh
}
runs=$(((runs + 2) / 3))
batch_ms=$(median_ms batch)
echo "gustline-cli batch, 1000 Figure 6-6 cases:      ${batch_ms} ms"
