#!/usr/bin/env bash
# The Debian package as the README makes it: `dpkg-buildpackage -us -uc -b`, run in two copies of
# the source tree, one after the other, gives the same .deb byte for byte (reproducible: no build
# time or path in it). The package has its name, its files and no lintian finding beyond the
# overrides. Unpacked into a temporary folder, its launcher is started for two users: each gets a
# private folder of links beside a data file of their own, keeps the option they changed, finds
# the program folder's new entries at the next start, and the package's data file stays fresh.
set -euo pipefail
tree=$1
xwindow=$2
top=$(mktemp -d)
trap 'rm -rf "$top"' EXIT
fail() { echo "package: $*"; exit 1; }
source "$(dirname "$0")/play.sh"

# build FOLDER: copies the source tree (without its builds) there and builds the package in it.
build() {
  mkdir -p "$top/$1/zarvo"
  tar -C "$tree" --exclude=./.git --exclude='./build*' --exclude='./obj-*' -cf - . | tar -C "$top/$1/zarvo" -xf -
  (cd "$top/$1/zarvo" && DEB_BUILD_OPTIONS="parallel=$(nproc)" dpkg-buildpackage -us -uc -b >"$top/$1.log" 2>&1) \
    || { tail -30 "$top/$1.log"; fail "dpkg-buildpackage failed in $1"; }
}
build one
build two
name=zarvo_$(dpkg-parsechangelog -l "$tree/debian/changelog" -S Version)_$(dpkg --print-architecture).deb
deb=$top/one/$name
[ -f "$deb" ] || fail "no $name: $(ls "$top/one")"
if ! cmp -s "$deb" "$top/two/$name"; then
  dpkg-deb -R "$deb" "$top/one/x" && dpkg-deb -R "$top/two/$name" "$top/two/x"
  diff -r "$top/one/x" "$top/two/x" | head -5
  fail "two builds of one source differ"
fi

files=$(dpkg-deb -c "$deb" | awk '{print $6}')
for f in games/zarvo lib/zarvo/Zarvo{,.hlp,_de.hlp,_fr.hlp,.dat} lib/zarvo/translations/zarvo_{de,fr}.qm \
         share/applications/org.zarvo.Zarvo.desktop \
         share/icons/hicolor/{scalable/apps/org.zarvo.Zarvo.svg,48x48/apps/org.zarvo.Zarvo.png} \
         share/metainfo/org.zarvo.Zarvo.metainfo.xml share/man/man6/zarvo.6.gz \
         share/doc/zarvo/{copyright,changelog.gz}; do
  grep -qx "./usr/$f" <<<"$files" || fail "$f is not in the package"
done
lintian -I -E --pedantic --fail-on error,warning,info,pedantic,experimental "$deb" || fail "lintian reports findings"

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
echo "package: built twice alike ($(sha256sum <"$deb" | cut -c1-16)), listed, lintian clean; two users kept records of their own"
