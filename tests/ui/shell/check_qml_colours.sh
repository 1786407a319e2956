#!/usr/bin/env bash
# Fails on a colour written into a QML file under the given folder: a hex colour, a colour made
# with Qt.rgba/hsla/hsva/color/tint, or a colour name given to a colour property ("red",
# `border.color: "black"`, `Material.foreground: "white"`). The screens take their colours from
# the Theme singleton, so that both variants, light and dark, reach every screen.
set -uo pipefail
folder="${1:?usage: check_qml_colours.sh <folder with QML files>}"
pattern='"#[0-9A-Fa-f]{3,8}"|Qt\.(rgba|hsla|hsva|color|tint)[[:space:]]*\(|([cC]olor[A-Za-z]*|Material\.[a-z]+)[[:space:]]*:[^/]*"[a-z]+"'
found=$(grep -rnE --include='*.qml' "$pattern" "$folder")
if [ -n "$found" ]; then
  echo "Colours written into QML files (take them from Theme):"
  echo "$found"
  exit 1
fi
count=$(find "$folder" -name '*.qml' | wc -l)
echo "No colour written into the $count QML files under $folder"
