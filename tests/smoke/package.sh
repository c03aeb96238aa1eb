#!/usr/bin/env bash
# The Debian package that cpack makes from the build: its name and file list, no lintian error
# (lintian also errs on a missing dependency on the C library, so the computed ones are there).
# Unpacked into a temporary folder, its launcher is started for two users: each gets a private
# folder of links beside a data file of their own, keeps the option they changed, finds the
# program folder's new entries at the next start, and the package's data file stays fresh.
set -euo pipefail
build=$1
xwindow=$2
top=$(mktemp -d)
trap 'rm -rf "$top"' EXIT
fail() { echo "package: $*"; exit 1; }
source "$(dirname "$0")/play.sh"

(cd "$build" && cpack -G DEB -B "$top/out" >/dev/null)
deb=$(ls "$top"/out/*.deb)
[ "${deb##*/}" = "zarvo_$(dpkg-deb -f "$deb" Version)_$(dpkg --print-architecture).deb" ] || fail "named ${deb##*/}"
files=$(dpkg-deb -c "$deb" | awk '{print $6}')
for f in games/zarvo lib/zarvo/Zarvo{,.hlp,_de.hlp,_fr.hlp,.dat} lib/zarvo/translations/zarvo_{de,fr}.qm \
         share/applications/org.zarvo.Zarvo.desktop \
         share/icons/hicolor/{scalable/apps/org.zarvo.Zarvo.svg,48x48/apps/org.zarvo.Zarvo.png} \
         share/metainfo/org.zarvo.Zarvo.metainfo.xml share/{man/man6/zarvo.6.gz,doc/zarvo/copyright}; do
  grep -qx "./usr/$f" <<<"$files" || fail "$f is not in the package"
done
lintian --fail-on error "$deb" || fail "lintian reports errors"

dpkg-deb -x "$deb" "$top/root"
installed=$top/root/usr/lib/zarvo
ann=$top/ann/.local/share/zarvo          # the XDG default
bob=$top/bob/data/zarvo                  # under XDG_DATA_HOME
as_ann=(env -u XDG_DATA_HOME HOME="$top/ann" "$top/root/usr/games/zarvo")
as_bob=(env HOME="$top/bob" XDG_DATA_HOME="$top/bob/data" "$top/root/usr/games/zarvo")
preview() { sqlite3 "$1/Zarvo.dat" "SELECT ShowScoringPreview FROM Setup"; }

play "$xwindow" ctrl+p "${as_ann[@]}"    # Ann switches Show Scoring Preview on
play "$xwindow" "" "${as_bob[@]}"        # Bob only starts and ends
touch "$installed/added"                 # as an upgrade adds a file and removes one
ln -s "$installed/removed" "$ann/removed"
play "$xwindow" "" "${as_ann[@]}"        # Ann's next start
# The fresh data file has no Setup row: any start that saved there would have left one.
options="$(preview "$ann"),$(preview "$bob"),$(preview "$installed")"
[ "$options" = "-1,0," ] || fail "Show Scoring Preview of Ann, Bob and the package: $options"
[ "$(stat -c %a "$ann") $(stat -c %a "$bob")" = "700 700" ] || fail "a user's folder is open to others"
[ "$(readlink "$ann/Zarvo")" = "$installed/Zarvo" ] && [ -L "$ann/added" ] && [ ! -L "$ann/removed" ] \
  || fail "Ann's folder does not follow the program folder"
echo "package: built, listed, lintian clean; two users kept records of their own"
