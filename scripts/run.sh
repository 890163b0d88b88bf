#!/usr/bin/env bash
# Installs what is missing, builds the release preset and runs the program on
# its default project.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake --preset release >/dev/null
cmake --build --preset release
exec build/release/bin/gustline-cli get Company WindSpeed Exposure Height "$@"
