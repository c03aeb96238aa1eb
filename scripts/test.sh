#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test headless: first the normal build in
# build/, then the same suite built with AddressSanitizer and UndefinedBehaviorSanitizer in
# build-sanitize/, where any finding fails the test. `--quick` runs the normal build only.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
"$root/scripts/setup.sh"
"$root/scripts/build.sh"
ctest --test-dir "$root/build" --output-on-failure -j"$(nproc)"
[ "${1:-}" = --quick ] && exit 0

cmake -S "$root" -B "$root/build-sanitize" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZARVO_SANITIZE=ON >/dev/null
cmake --build "$root/build-sanitize" -j"$(nproc)"
# The toolkit's and font libraries' own allocations that live until exit are not ours.
export LSAN_OPTIONS="suppressions=$root/tests/lsan.supp:print_suppressions=0"
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=0:halt_on_error=1"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
ctest --test-dir "$root/build-sanitize" --output-on-failure -j"$(nproc)"
