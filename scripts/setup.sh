#!/usr/bin/env bash
# Installs the Debian packages that Zarvo needs to build, run and test; does nothing when
# all are there. Uses sudo when not run as root.
set -euo pipefail

packages=(
  build-essential cmake            # compiler and build
  qt6-base-dev libgl-dev           # Qt 6 Widgets (its CMake files need the GL headers)
  qt6-base-private-dev             # the accessibility test switches the platform bridge on
  qt6-tools-dev qt6-tools-dev-tools libqt6help6 qt6-documentation-tools
                                   # Qt's help framework and qhelpgenerator, for the help
  libqt6sql6-sqlite                # the help engine keeps its collection in SQLite
  libsqlite3-dev                   # the data file
  fonts-liberation                 # the windows' fonts, sans-serif and serif
  libfontconfig-dev                # reads the desktop's font configuration at start
  libgtest-dev googletest          # tests
  xvfb xauth libx11-dev            # the smoke test of the real window
  desktop-file-utils appstream     # the install test validates the menu entry and metadata
  xdotool sqlite3                  # ... and plays the installed game, reading its data file
  dpkg-dev debhelper lintian       # the Debian package (dpkg-buildpackage), and its check;
                                   # build/ takes the package's hardening flags from dpkg-buildflags
  qt6-l10n-tools                   # lupdate and lrelease, for Zarvo's German and French
  qt6-translations-l10n            # Qt's own texts (message box buttons, the help's search) in them
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

sudo=()
[ "$(id -u)" -eq 0 ] || sudo=(sudo)
echo "Installing: ${missing[*]}"
"${sudo[@]}" apt-get update
"${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y "${missing[@]}"
