#!/usr/bin/env bash
# Types a course into the real window under Xvfb, kills the program with
# SIGKILL once the recovery file is written, and checks that the file holds
# what was typed: nothing typed is lost to a kill.
set -euo pipefail
quilmar="$1"
command -v xvfb-run >/dev/null && command -v xdotool >/dev/null || { echo "xvfb-run or xdotool missing"; exit 77; }
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
export XDG_DATA_HOME="$home/data"
recovery="$home/data/quilmar/recovery.map"
cat > "$home/session.sh" <<INNER
set -u
# The program stops at once without a display to connect to: wait until it answers.
for _ in \$(seq 1 300); do
  xdotool getdisplaygeometry >/dev/null 2>&1 && break
  sleep 0.1
done
QT_QPA_PLATFORM=xcb "$quilmar" >"$home/program.log" 2>&1 &
pid=\$!
for _ in \$(seq 1 300); do
  win=\$(xdotool search --name "Quilmar Deed Plotter" 2>/dev/null | head -n 1) && [ -n "\$win" ] && break
  sleep 0.1
done
sleep 0.5
xdotool windowfocus --sync "\$win"
xdotool type --delay 30 "N"
xdotool key Tab
xdotool type --delay 30 "45"
xdotool key Tab Tab Tab Tab
xdotool type --delay 30 "123.5"
xdotool key Tab
for _ in \$(seq 1 300); do
  [ -s "$recovery" ] && break
  sleep 0.1
done
kill -9 \$pid
INNER
xvfb-run -a bash "$home/session.sh"
[ -s "$recovery" ] || { echo "no recovery file after the kill; the program said:"; cat "$home/program.log"; exit 1; }
first=$(head -n 1 "$recovery" | tr -d '\r')
[ "$first" = "$(printf 'N\t45\t\t\t\t123.5\t\t\t\t')" ] || { echo "the recovery file does not hold what was typed: $(printf %q "$first")"; exit 1; }
echo "what was typed survived SIGKILL: $first"
