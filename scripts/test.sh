#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test headless.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
"$root/scripts/setup.sh"
"$root/scripts/build.sh"
ctest --test-dir "$root/build" --output-on-failure -j"$(nproc)"
