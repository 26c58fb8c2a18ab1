#!/usr/bin/env bash
# Installs what is missing, builds the program and its tests with
# AddressSanitizer and UndefinedBehaviorSanitizer, and runs every test offscreen.
set -euo pipefail
cd "$(dirname "$0")"
tools/install-deps.sh
cmake -S . -B build-test -DCMAKE_BUILD_TYPE=Debug -DBRINDLEPOT_SANITIZE=ON -DBRINDLEPOT_BENCH=OFF
cmake --build build-test -j "$(nproc)"
cd build-test
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j "$(nproc)"
