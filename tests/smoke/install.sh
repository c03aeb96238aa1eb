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

cmake --install "$build" --prefix "$prefix" >/dev/null
id=org.zarvo.Zarvo
for f in lib/zarvo/Zarvo lib/zarvo/Zarvo.hlp lib/zarvo/Zarvo.dat share/icons/hicolor/scalable/apps/$id.svg \
         share/icons/hicolor/16x16/apps/$id.png share/icons/hicolor/256x256/apps/$id.png; do
  [ -s "$prefix/$f" ] || fail "$f is missing"
done
[ "$(readlink -f "$prefix/bin/zarvo")" = "$(readlink -f "$prefix/lib/zarvo/Zarvo")" ] || fail "bin/zarvo does not lead to the game"
grep -qx "Exec=\"$prefix/bin/zarvo\"" "$prefix/share/applications/$id.desktop" || fail "the menu entry does not start the launcher"
desktop-file-validate "$prefix/share/applications/$id.desktop"
appstreamcli validate --no-net "$prefix/share/metainfo/$id.metainfo.xml" >/dev/null

# Starts the launcher, optionally presses keys in the game's window, then closes it.
play() {
  xvfb-run -a -s "-screen 0 1024x768x24" bash -c '
    set -u
    "$1" & pid=$!
    "$2" wait Zarvo 20 >/dev/null || { echo "no window titled Zarvo appeared"; kill $pid; exit 1; }
    if [ -n "$3" ]; then
      xdotool windowfocus --sync "$(xdotool search --onlyvisible --name "^Zarvo\$" | head -1)"
      xdotool key "$3"; sleep 0.3
    fi
    "$2" close Zarvo
    wait $pid' _ "$prefix/bin/zarvo" "$xwindow" "${1:-}"
}
animation() { sqlite3 "$prefix/lib/zarvo/Zarvo.dat" "SELECT AnimateRolling FROM Setup"; }

play ctrl+a                                  # Animate Rolling off, then exit
[ "$(animation)" = 0 ] || fail "the changed option was not saved"
play                                         # a plain start and exit keeps it off
[ "$(animation)" = 0 ] || fail "the saved option was not back at the next start"
cmake --install "$build" --prefix "$prefix" >/dev/null
[ "$(animation)" = 0 ] || fail "installing again replaced the data file"
echo "install: validated, started from the menu's launcher, records kept"
