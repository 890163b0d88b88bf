#!/usr/bin/env bash
# Counts failures of runs that share files: reports started 4 at a time from one folder,
# and pairs of saves of one project at once, each project then read back.
#   scripts/stress-concurrent-runs.sh [CLI] [REPORTS] [PAIRS]
set -uo pipefail
cli=$(readlink -f "${1:-build/release/bin/gustline-cli}")
project=$(dirname "$cli")/workbooks/WindData.gwb
reports=${2:-200}
pairs=${3:-500}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

# A report's JSON without the time of day that its date cells hold.
untimed() { sed -E 's/"value": [0-9]{5}\.[0-9]+/"value": DATE/' "$1"; }

"$cli" report --json single.json >/dev/null 2>&1 || { echo "a single report fails"; exit 1; }
untimed single.json >single.untimed
for ((i = 0; i < reports; i += 4)); do
  for j in 0 1 2 3; do
    ("$cli" report --json "r$j.json" >/dev/null 2>&1 && untimed "r$j.json" | cmp -s - single.untimed) ||
      echo x >>"fail$j" &
  done
  wait
done
failed=$(cat fail* 2>/dev/null | wc -l)
echo "reports: $failed of $reports failed"

cp "$project" P.GLN
broken=0
for ((i = 0; i < pairs; ++i)); do
  "$cli" set P.GLN WindSpeed=100 >/dev/null 2>&1 &
  "$cli" set P.GLN WindSpeed=120 >/dev/null 2>&1 &
  wait
  "$cli" get --project P.GLN WindSpeed >/dev/null 2>&1 || { broken=$((broken + 1)); cp "$project" P.GLN; }
done
echo "saves: $broken of $pairs pairs left a project that does not open"
