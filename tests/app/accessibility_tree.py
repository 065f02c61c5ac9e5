#!/usr/bin/env python3
"""Reads the application's windows as a screen reader does, through AT-SPI.

Usage: accessibility_tree.py FERROW RECORDING SYSFS_TREE ENGLISH_TS

Runs FERROW under Xvfb, on a private session bus with its own accessibility bus, with a private
home, twice:

1. On RECORDING (a folder of tests/fixtures: a notebook charging), whose figures are known.
   Without a tray the dashboard is an ordinary window; the details window is opened by pressing
   "Open details" through AT-SPI. Both trees are walked, and the test fails on
     - a reading without a name: an element on screen with no children and no name (separators,
       and the single drawing area of a named element, excepted);
     - a section or panel heading that is not exposed with the heading role;
     - the flow description or a distribution row that does not read the recording's figures;
     - any change of a name or a value sent while the readings come in once a second.
2. On a copy of SYSFS_TREE (a Linux notebook charging from a USB-C adapter), the one kind of
   machine whose state a test can change while the application reads it: unplugging it must be
   said exactly once, as the dashboard's status taking its new name.

Exits 77 (skipped) where Xvfb, dbus-run-session or python3-pyatspi is missing.
"""

import importlib.util
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import xml.etree.ElementTree as ElementTree

SKIP = 77
INSIDE = "--inside-session"

# The recording's figures, as the views round them: 46.38 W in, 14.62 W to the system, 31.76 W
# into the battery.
FLOW = "Adapter 46.4 watts to system 14.6 watts and battery 31.8 watts"
SYSTEM_TOTAL = "System total, 14.6 watts"

# Headings by text id: the popover's panel and card titles, the details window's section headings,
# its panels' titles and the device panel's sub-heading.
POPOVER_HEADINGS = ["power.live_flow", "battery.status", "apps.popover_title"]
WINDOW_HEADINGS = ["section.power", "section.battery", "section.cells", "section.energy_history", "section.applications",
                   "section.device", "power.distribution", "power_history.title", "battery.title", "cells.status",
                   "apps.panel_title", "device.title", "device.history"]


def fail(message):
    raise SystemExit(f"FAIL: {message}")


def interpreter_with_pyatspi():
    """This Python if it has pyatspi, else the system's: the Debian package serves only that one."""
    if importlib.util.find_spec("pyatspi"):
        return sys.executable
    system = "/usr/bin/python3"
    if os.path.realpath(system) != os.path.realpath(sys.executable) and os.access(system, os.X_OK):
        probe = [system, "-c", "import importlib.util, sys; sys.exit(importlib.util.find_spec('pyatspi') is None)"]
        if subprocess.run(probe, check=False).returncode == 0:
            return system
    return None


def english_texts(path):
    texts = {}
    for message in ElementTree.parse(path).getroot().iter("message"):
        translation = message.find("translation")
        if translation is not None and translation.text:
            texts[message.get("id")] = translation.text
    return texts


def start_xvfb():
    read_end, write_end = os.pipe()
    xvfb = subprocess.Popen(["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1400x1000x24", "-nolisten", "tcp"],
                            pass_fds=(write_end,), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(write_end)
    display = b""
    while not display.endswith(b"\n"):
        chunk = os.read(read_end, 16)
        if not chunk:
            fail("Xvfb did not start")
        display += chunk
    os.close(read_end)
    return xvfb, ":" + display.decode().strip()


class Ferrow:
    """The application reading source, in a home of its own; on leaving, it must quit cleanly on SIGTERM."""

    def __init__(self, program, source, display):
        self.home = tempfile.mkdtemp(prefix="ferrow-a11y-")
        environment = dict(os.environ)
        environment.pop("WAYLAND_DISPLAY", None)
        environment.update({
            "DISPLAY": display,
            "QT_QPA_PLATFORM": "xcb",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "HOME": self.home,
            "XDG_CONFIG_HOME": os.path.join(self.home, "config"),
            "XDG_DATA_HOME": os.path.join(self.home, "data"),
            "XDG_CACHE_HOME": os.path.join(self.home, "cache"),
            "XDG_RUNTIME_DIR": os.path.join(self.home, "runtime"),
        })
        os.makedirs(environment["XDG_RUNTIME_DIR"], mode=0o700)
        self.process = subprocess.Popen([program, "--source", source], env=environment, stdout=subprocess.PIPE,
                                        stderr=subprocess.STDOUT, text=True)

    def __enter__(self):
        return self

    def __exit__(self, kind, value, traceback):
        try:
            if self.process.poll() is None:
                self.process.send_signal(signal.SIGTERM)
            try:
                output, _ = self.process.communicate(timeout=15)
            except subprocess.TimeoutExpired:
                self.process.kill()
                output, _ = self.process.communicate()
            if kind is None and self.process.returncode != 0:
                fail(f"ferrow ended with {self.process.returncode} after SIGTERM:\n{output[-3000:]}")
            if kind is not None:
                print(output[-3000:], file=sys.stderr)
        finally:
            shutil.rmtree(self.home, ignore_errors=True)


def inside(program, recording, sysfs_tree, english_ts):
    import pyatspi  # on this session's accessibility bus
    from gi.repository import GLib

    texts = english_texts(english_ts)

    def children(node):
        return [child for child in node if child is not None]

    def walk(node, path=()):
        """(node, path of role names, parent) for every element on screen under node."""
        found = []
        for child in children(node):
            if child.getState().contains(pyatspi.STATE_SHOWING):
                found.append((child, path + (child.getRoleName(),), node))
                found += walk(child, path + (child.getRoleName(),))
        return found

    def wait_for(what, find, seconds):
        deadline = time.monotonic() + seconds
        while time.monotonic() < deadline:
            if (found := find()) is not None:
                return found
            time.sleep(0.2)
        fail(f"no {what} after {seconds} s")

    def window(ferrow, title_key):
        def find():
            for app in children(pyatspi.Registry.getDesktop(0)):
                if app.get_process_id() == ferrow.process.pid:
                    return next((w for w in children(app) if w.name == texts[title_key]), None)
            return None
        return wait_for(f"window {texts[title_key]!r}", find, 20)

    def element(root, role, name):
        return next((node for node, _, _ in walk(root) if node.getRoleName() == role and node.name == name), None)

    def check(window, headings):
        elements = walk(window)
        for node, path, parent in elements:
            if node.childCount or node.name or node.getRoleName() in ("separator", "scroll bar", "unknown"):
                continue  # "unknown": the splitter's handle, which Qt gives no role
            if parent.name and len(children(parent)) == 1:
                continue  # the drawing area of a named chart
            fail(f"a reading without a name in {window.name!r}: {' > '.join(path)}")
        shown = {node.name for node, _, _ in elements if node.getRoleName() == "heading"}
        for key in headings:
            if texts[key] not in shown:
                fail(f"{texts[key]!r} in {window.name!r} is not exposed as a heading (headings: {sorted(shown)})")

    def name_changes(seconds, meanwhile=None):
        """What is said to change name or value over the next seconds, while meanwhile runs once."""
        changes = []

        def on_change(event):
            changes.append((event.type, event.source.getRoleName(), event.source.name))

        kinds = [f"object:property-change:{kind}" for kind in ("accessible-name", "accessible-value")]
        for kind in kinds:
            pyatspi.Registry.registerEventListener(on_change, kind)
        if meanwhile:
            GLib.timeout_add(1000, lambda: meanwhile() and False)
        GLib.timeout_add(int(seconds * 1000), pyatspi.Registry.stop)
        pyatspi.Registry.start()
        for kind in kinds:
            pyatspi.Registry.deregisterEventListener(on_change, kind)
        return changes

    xvfb, display = start_xvfb()
    try:
        with Ferrow(program, f"recorded:{recording}", display) as ferrow:
            popover = window(ferrow, "FERROW")
            # The first reading arrives within a second or two of the start.
            wait_for(f"{FLOW!r}", lambda: element(popover, "label", FLOW), 15)
            check(popover, POPOVER_HEADINGS)
            element(popover, "push button", texts["action.open_details"]).queryAction().doAction(0)
            details = window(ferrow, "window.device_details")
            wait_for(f"{SYSTEM_TOTAL!r}", lambda: element(details, "label", SYSTEM_TOTAL), 10)
            check(details, WINDOW_HEADINGS)
            # Readings keep coming once a second, the sidebar's time among them. (The chart's
            # description follows its axes, which move once a minute: not listened for.)
            if changes := name_changes(3.5):
                fail(f"{len(changes)} changes announced in 3.5 s of steady readings, first {changes[0]}")

        with tempfile.TemporaryDirectory(prefix="ferrow-sysfs-") as copy:
            tree = shutil.copytree(sysfs_tree, os.path.join(copy, "tree"))
            with Ferrow(program, f"sysfs:{tree}", display) as ferrow:
                popover = window(ferrow, "FERROW")
                charging = f"{texts['status.live']}, {texts['status.charging']}"
                wait_for(f"{charging!r}", lambda: element(popover, "label", charging), 15)

                def unplug():
                    supplies = os.path.join(tree, "sys/class/power_supply")
                    for file, text in (("macsmc-ac/online", "0"), ("tps6598x-source-psy-0-003a/online", "0"),
                                       ("macsmc-battery/status", "Discharging")):
                        with open(os.path.join(supplies, file), "w") as f:
                            f.write(text + "\n")

                on_battery = ("object:property-change:accessible-name", "label", f"{texts['status.live']}, {texts['status.on_battery']}")
                if (changes := name_changes(4, unplug)) != [on_battery]:
                    fail(f"unplugging should be said once, by the status; said: {changes}")
    finally:
        xvfb.terminate()
        xvfb.wait()
    print("ok: both windows read, headings marked, the recording's figures heard, nothing announced per reading, "
          "unplugging announced once")


def main():
    if len(sys.argv) == 6 and sys.argv[1] == INSIDE:
        inside(*sys.argv[2:])
        return
    if len(sys.argv) != 5:
        raise SystemExit(__doc__)
    for tool in ("Xvfb", "dbus-run-session"):
        if not shutil.which(tool):
            print(f"SKIP: {tool} is not installed")
            sys.exit(SKIP)
    python = interpreter_with_pyatspi()
    if not python:
        print("SKIP: pyatspi (python3-pyatspi) is not installed")
        sys.exit(SKIP)
    # A session bus of its own: the accessibility bus and its registry start on it, and end with it.
    command = ["dbus-run-session", "--", python, os.path.abspath(__file__), INSIDE, *sys.argv[1:]]
    sys.exit(subprocess.run(command, timeout=90, check=False).returncode)


if __name__ == "__main__":
    main()
