#!/usr/bin/env bash
# `make run`: the deed is FILE=path.map when given, else the built-in demo
# sample 1. With a display (DISPLAY or WAYLAND_DISPLAY set) the plotter's window
# opens on it; without one the deed is reported and its map drawn to a picture.
set -euo pipefail
quilmar="$1"
file="${2:-}"
out="${QUILMAR_OUT:-build/out}"
mkdir -p "$out"
if [ -z "$file" ]; then
  file="$out/demo1.map"
  "$quilmar" sample 1 -o "$file"
  echo "Demo sample 1 written to $file"
fi
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
  exec "$quilmar" "$file"
fi
echo "== quilmar report $file"
"$quilmar" report "$file"
picture="$out/$(basename "${file%.*}").png"
"$quilmar" plot -o "$picture" "$file" 2>/dev/null
echo "== The map is drawn in $picture"
echo "== No display: run 'xvfb-run $quilmar' to open the window on a virtual one."
