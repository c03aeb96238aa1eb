#!/usr/bin/env bash
# Configures and builds Zarvo in build/; the game and a fresh data file land in build/bin.
# With Debian's build flags and every hardening feature, as the package is built.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
flag() { (cd "$root" && DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --get "$1"); }
cmake -S "$root" -B "$root/build" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
      -DCMAKE_CXX_FLAGS="$(flag CXXFLAGS) $(flag CPPFLAGS)" \
      -DCMAKE_EXE_LINKER_FLAGS="$(flag LDFLAGS)" -DCMAKE_SHARED_LINKER_FLAGS="$(flag LDFLAGS)" >/dev/null
cmake --build "$root/build" -j"$(nproc)"
