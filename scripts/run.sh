#!/usr/bin/env bash
# Installs what is missing, builds the release preset and runs the program with
# its main window, on the project named (the default project when none).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake --preset release >/dev/null
cmake --build --preset release
exec build/release/bin/gustline "$@"
