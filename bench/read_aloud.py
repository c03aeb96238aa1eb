"""Prints what a screen reader finds in Zarvo's windows: every shown object with its role, name
and description, through the AT-SPI registry. Run by bench/read_aloud.sh."""
import sys

import pyatspi


def walk(node, depth=0):
    try:
        showing = node.getState().contains(pyatspi.STATE_SHOWING)
        line = f"{'  ' * depth}[{node.getRoleName()}] {node.name}"
        if node.description:
            line += f"  ({node.description})"
    except Exception:
        return
    if not showing and depth > 1:
        return
    print(line)
    for i in range(node.childCount):
        walk(node.getChildAtIndex(i), depth + 1)


for app in pyatspi.Registry.getDesktop(0):
    if app is not None and app.name.startswith("Zarvo"):
        print(f"==== {sys.argv[1] if len(sys.argv) > 1 else ''}")
        walk(app)
