#!/usr/bin/env bash
# Median start-up to first paint and peak memory of the Plotter window against a
# bare Qt Widgets window, 21 rounds of each. The kinds take turns, round after
# round, so that a machine growing busier or quieter meanwhile weighs on all of
# them alike. Usage: bench/window_startup.sh [build dir] [rounds]
set -euo pipefail
exe="${1:-build}/bench/quilmar_window_startup"
rounds="${2:-21}"
middle=$(((rounds + 1) / 2))
out=$(mktemp)
trap 'rm -f "$out"' EXIT
kinds="bare bare-no-autolaunch label plotter"
for _ in $(seq "$rounds"); do
  for kind in $kinds; do
    echo "$kind $("$exe" "$kind" 2>/dev/null)" >>"$out"
  done
done
time_of() { grep "^$1 " "$out" | awk '{print $3}' | sort -n | sed -n "${middle}p"; }
memory_of() { grep "^$1 " "$out" | awk '{print $5}' | sort -n | sed -n "${middle}p"; }
for kind in $kinds; do
  printf '%-20s median first paint %6.2f ms, peak memory %6d KB\n' "$kind:" "$(time_of "$kind")" "$(memory_of "$kind")"
done
ratio() {
  awk -v a="$(time_of "$2")" -v b="$(time_of plotter)" -v ma="$(memory_of "$2")" -v mb="$(memory_of plotter)" \
    -v what="$1" 'BEGIN { printf "against %s: time ratio %.2f, memory ratio %.2f\n", what, b / a, mb / ma }'
}
ratio "the bare window (targets 1.3)" bare
# Where no session bus exists and none can be started (xvfb-run on a machine
# without dbus-launch), the bare window spends some milliseconds on a doomed
# attempt to start one, which the plotter skips; this line leaves that out.
ratio "the bare window without the bus attempt" bare-no-autolaunch
ratio "the window with one label" label
