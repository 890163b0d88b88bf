#!/usr/bin/env bash
# Installs from Debian's packages whatever the build, the tests and the program need.
set -euo pipefail

packages=(
  build-essential cmake ninja-build clang libclang-rt-14-dev clang-format clang-tidy
  libgtest-dev libgmock-dev libbenchmark-dev
  qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-svg-dev libgl-dev
  python3-xlrd  # reads the Excel 5.0 export back in the tests
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
echo "Installing: ${missing[*]}"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
