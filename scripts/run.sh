#!/usr/bin/env bash
# Installs what is missing, builds, and starts the game.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
"$root/scripts/setup.sh"
"$root/scripts/build.sh"
exec "$root/build/bin/Zarvo"
