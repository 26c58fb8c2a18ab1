#!/usr/bin/env bash
# Installs what is missing, builds Brindlepot in Release, makes its Debian
# package (build-rel/brindlepot_<version>_<arch>.deb) and installs that with
# apt, which brings in the libraries it depends on. Afterwards Brindlepot is
# in the desktop's menu and starts as "brindlepot"; "sudo apt remove
# brindlepot" takes it away again (the data folder stays).
set -euo pipefail
cd "$(dirname "$0")"
tools/install-deps.sh
cmake -S . -B build-rel -DCMAKE_BUILD_TYPE=Release -DBRINDLEPOT_TESTS=OFF -DBRINDLEPOT_BENCH=OFF
cmake --build build-rel --target brindlepot -j "$(nproc)"
rm -f build-rel/brindlepot_*.deb
(cd build-rel && cpack -G DEB)
deb=$(ls "$PWD"/build-rel/brindlepot_*.deb)
sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get install -y "$deb"
