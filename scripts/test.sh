#!/usr/bin/env bash
# Installs what is missing, then builds and runs every test in the release preset, and the
# plain tests (engine, core, geometry, reports, templates, field rules, fuzz seeds) in the
# debug preset (AddressSanitizer and UBSan). `ctest --preset debug` after a full debug build
# runs the dialogs and the window under the sanitizers too.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake --preset release >/dev/null
cmake --build --preset release
QT_QPA_PLATFORM=offscreen ctest --preset release -j "$(nproc)"
cmake --preset debug >/dev/null
cmake --build --preset debug --target plain_tests
ctest --preset debug -L plain -j "$(nproc)"
