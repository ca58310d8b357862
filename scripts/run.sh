#!/usr/bin/env bash
# `make run`: with a display (DISPLAY or WAYLAND_DISPLAY set) it opens the
# plotter's window, on FILE=path.map when given. Without one it reports the deed
# (FILE, or the built-in demo sample 1) and draws its map to a picture.
set -euo pipefail
quilmar="$1"
file="${2:-}"
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
  if [ -n "$file" ]; then exec "$quilmar" "$file"; else exec "$quilmar"; fi
fi
out="${QUILMAR_OUT:-build/out}"
mkdir -p "$out"
if [ -z "$file" ]; then
  file="$out/demo1.map"
  "$quilmar" sample 1 -o "$file"
  echo "Demo sample 1 written to $file"
fi
echo "== quilmar report $file"
"$quilmar" report "$file"
picture="$out/$(basename "${file%.*}").png"
"$quilmar" plot -o "$picture" "$file" 2>/dev/null
echo "== The map is drawn in $picture"
echo "== No display: run 'xvfb-run $quilmar' to open the window on a virtual one."
