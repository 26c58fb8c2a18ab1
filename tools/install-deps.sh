#!/usr/bin/env bash
# Installs the Debian 12 packages that are missing for building, testing and
# running Brindlepot. Runs as root or through sudo; non-interactive.
set -euo pipefail
packages=(
  cmake g++ make pkg-config
  qt6-base-dev libqt6opengl6-dev qt6-qpa-plugins qt6-charts-dev qt6-image-formats-plugins
  libgl1-mesa-dev libhunspell-dev hunspell-en-us fonts-liberation
  libgtest-dev libbenchmark-dev
  poppler-utils xvfb xdotool imagemagick
  desktop-file-utils appstream
)
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0
sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq "${missing[@]}"
