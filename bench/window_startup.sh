#!/usr/bin/env bash
# Median start-up to first paint and peak memory of the Plotter window against a
# bare Qt Widgets window, 11 rounds of each. The three kinds take turns, round
# after round, so that a machine growing busier or quieter meanwhile weighs on
# all of them alike. Usage: bench/window_startup.sh [build dir]
set -euo pipefail
exe="${1:-build}/bench/quilmar_window_startup"
out=$(mktemp)
trap 'rm -f "$out"' EXIT
for _ in $(seq 11); do
  for kind in bare label plotter; do
    echo "$kind $("$exe" "$kind" 2>/dev/null)" >>"$out"
  done
done
median() { grep "^$1 " "$out" | cut -d' ' -f2- | sort -n -k2 | sed -n 6p; }
bare=$(median bare); label=$(median label); plotter=$(median plotter)
memory() { grep "^$1 " "$out" | awk '{print $5}' | sort -n | sed -n 6p; }
echo "bare:    $bare"
echo "label:   $label"
echo "plotter: $plotter"
echo "median peak memory (KB): bare $(memory bare), label $(memory label), plotter $(memory plotter)"
awk -v a="$bare" -v b="$plotter" -v ma="$(memory bare)" -v mb="$(memory plotter)" 'BEGIN { split(a, x, " "); split(b, y, " ");
  printf "against the bare window: time ratio %.2f, memory ratio %.2f (targets 1.3)\n", y[2] / x[2], mb / ma }'
awk -v a="$label" -v b="$plotter" -v ma="$(memory label)" -v mb="$(memory plotter)" 'BEGIN { split(a, x, " "); split(b, y, " ");
  printf "against the window with one label: time ratio %.2f, memory ratio %.2f\n", y[2] / x[2], mb / ma }'
