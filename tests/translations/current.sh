#!/usr/bin/env bash
# The translation files are up to date with the sources: lupdate, run as the build's
# update_translations target runs it, changes nothing on copies of them. A text added to the
# code and not to the files, or one gone from the code, shows here as a difference.
#   current.sh LUPDATE TS_FILE... -- LUPDATE_ARGUMENTS...
set -euo pipefail
lupdate=$1; shift
originals=()
while [ "$1" != -- ]; do originals+=("$1"); shift; done
shift
copies=$(mktemp -d)
trap 'rm -rf "$copies"' EXIT
cp "${originals[@]}" "$copies/"
"$lupdate" -silent "$@" -ts "$copies"/*.ts
for ts in "${originals[@]}"; do
  diff -u "$ts" "$copies/${ts##*/}" || { echo "${ts##*/} is not up to date: build update_translations and translate what it adds"; exit 1; }
done
echo "translations: up to date with the sources"
