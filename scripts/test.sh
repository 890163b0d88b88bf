#!/usr/bin/env bash
# Installs what is missing, then builds and runs every test in the release preset and in the
# debug preset (AddressSanitizer and UBSan).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
for preset in release debug; do
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset"
  QT_QPA_PLATFORM=offscreen ctest --preset "$preset" -j "$(nproc)"
done
