#!/usr/bin/env bash
# `make run`: the plotter's main job on a deed. With FILE=path.map that file,
# otherwise the built-in demo sample 1. Until the window lands this reports the
# deed's results and draws its map to a picture.
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
echo "== quilmar report $file"
"$quilmar" report "$file"
picture="$out/$(basename "${file%.*}").png"
"$quilmar" plot -o "$picture" "$file" 2>/dev/null
echo "== The map is drawn in $picture"
