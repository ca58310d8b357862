#!/usr/bin/python3
"""Checks the window's accessibility tree from outside, as a screen reader sees it.

Run under a virtual display with its own session bus (Debian: xvfb, at-spi2-core,
python3-pyatspi, dbus):

    QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 xvfb-run dbus-run-session -- \
        /usr/bin/python3 scripts/atspi_check.py build/src/app/quilmar

Prints each check and exits 1 when one fails.
"""
import subprocess
import sys
import time

import pyatspi


def find_app(name, timeout=15.0):
    end = time.time() + timeout
    while time.time() < end:
        desktop = pyatspi.Registry.getDesktop(0)
        for app in desktop:
            if app is not None and app.name == name:
                return app
        time.sleep(0.3)
    return None


def walk(node, out):
    for child in node:
        if child is None:
            continue
        out.append(child)
        walk(child, out)
    return out


def main():
    program = sys.argv[1] if len(sys.argv) > 1 else "build/src/app/quilmar"
    proc = subprocess.Popen([program])
    failures = 0
    try:
        app = find_app("quilmar")
        if app is None:
            print("FAIL: the application did not appear on the accessibility bus")
            return 1
        time.sleep(1.0)
        nodes = walk(app, [])
        names = {n.name for n in nodes}
        expected = ["Row 1 NS", "Row 1 Deg", "Row 10 Tag", "Row 5 Distance", "Acresbox", "Autoscalebox",
                    "Commentbox", "Headerbox", "minmap", "Insert a Row", "Remove a Row", "Feet", "Meters",
                    "Other", "Re-draw Map (F8)", "Clear Line (Row)", "Clear All"]
        for name in expected:
            ok = name in names
            failures += not ok
            print(("ok   " if ok else "FAIL ") + name)
    finally:
        proc.terminate()
        proc.wait(timeout=10)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
