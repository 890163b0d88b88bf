#!/usr/bin/env bash
# The style gates of CI: clang-format leaves every C++ file as it is, and clang-tidy finds
# nothing in the program's sources (headers are checked through the files that include
# them). Needs a configured build folder for the compile commands.
#   scripts/check-style.sh [BUILD_DIR]      (default: build/release)
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/release}

mapfile -t cpp < <(git ls-files '*.cpp' '*.h')
clang-format --dry-run --Werror "${cpp[@]}"

mapfile -t sources < <(git ls-files 'src/*.cpp' 'apps/*.cpp' 'workbooks/*.cpp')
printf '%s\n' "${sources[@]}" |
  xargs -P "$(nproc)" -n 4 clang-tidy -p "$build" --quiet --warnings-as-errors='*' 2>/dev/null
