#!/usr/bin/env bash
# Configures and builds Zarvo in build/; the game and a fresh data file land in build/bin.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
cmake -S "$root" -B "$root/build" -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$root/build" -j"$(nproc)"
