#!/usr/bin/env bash
# Installs what is missing, builds the release preset and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake --preset release >/dev/null
cmake --build --preset release
QT_QPA_PLATFORM=offscreen ctest --preset release -j "$(nproc)"
