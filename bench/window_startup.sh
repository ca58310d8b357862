#!/usr/bin/env bash
# Median start-up to first paint and peak memory of the Plotter window against a
# bare Qt Widgets window (10 runs each). Usage: bench/window_startup.sh [build dir]
set -euo pipefail
exe="${1:-build}/bench/quilmar_window_startup"
run() {
  for _ in $(seq 10); do "$exe" "$1" 2>/dev/null; done | sort -n -k2 | sed -n 5p
}
bare=$(run bare); label=$(run label); plotter=$(run plotter)
echo "bare:    $bare"
echo "label:   $label"
echo "plotter: $plotter"
awk -v a="$bare" -v b="$plotter" 'BEGIN { split(a, x, " "); split(b, y, " ");
  printf "against the bare window: time ratio %.2f, memory ratio %.2f (targets 1.3)\n", y[2] / x[2], y[4] / x[4] }'
awk -v a="$label" -v b="$plotter" 'BEGIN { split(a, x, " "); split(b, y, " ");
  printf "against the window with one label: time ratio %.2f, memory ratio %.2f\n", y[2] / x[2], y[4] / x[4] }'
