#!/usr/bin/env bash
# The README's install command into a temporary prefix (with a blank in its path): the
# program's folder with the game, its help and a fresh data file, the launcher, a menu entry,
# icons and metadata that validate; the installed launcher starts the game under Xvfb, an option
# changed there is back at the next start, and installing again keeps the player's data file.
set -euo pipefail
build=$1
xwindow=$2
top=$(mktemp -d)
trap 'rm -rf "$top"' EXIT
prefix="$top/my games"
fail() { echo "install: $*"; exit 1; }
source "$(dirname "$0")/play.sh"

cmake --install "$build" --prefix "$prefix" >/dev/null
id=org.zarvo.Zarvo
for f in lib/zarvo/Zarvo lib/zarvo/Zarvo.hlp lib/zarvo/Zarvo.dat share/icons/hicolor/scalable/apps/$id.svg \
         share/icons/hicolor/16x16/apps/$id.png share/icons/hicolor/256x256/apps/$id.png; do
  [ -s "$prefix/$f" ] || fail "$f is missing"
done
grep -qx "Exec=\"$prefix/bin/zarvo\"" "$prefix/share/applications/$id.desktop" || fail "the menu entry does not start the launcher"
desktop-file-validate "$prefix/share/applications/$id.desktop"
appstreamcli validate --no-net "$prefix/share/metainfo/$id.metainfo.xml" >/dev/null

animation() { sqlite3 "$prefix/lib/zarvo/Zarvo.dat" "SELECT AnimateRolling FROM Setup"; }

# Installed for one user, the records stay beside the game (the home folder is a temporary one).
play "$xwindow" ctrl+a env HOME="$top/home" "$prefix/bin/zarvo"   # Animate Rolling off, then exit
[ "$(animation)" = 0 ] || fail "the changed option was not saved"
play "$xwindow" "" env HOME="$top/home" "$prefix/bin/zarvo"       # a plain start keeps it off
[ "$(animation)" = 0 ] || fail "the saved option was not back at the next start"
cmake --install "$build" --prefix "$prefix" >/dev/null
[ "$(animation)" = 0 ] || fail "installing again replaced the data file"
echo "install: validated, started from the menu's launcher, records kept"
