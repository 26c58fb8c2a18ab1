#!/usr/bin/env bash
# Installs what is missing, builds Brindlepot to build/brindlepot and starts it.
set -euo pipefail
cd "$(dirname "$0")"
tools/install-deps.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBRINDLEPOT_TESTS=OFF -DBRINDLEPOT_BENCH=OFF
cmake --build build --target brindlepot -j "$(nproc)"
exec build/brindlepot "$@"
