#!/usr/bin/python3
"""Plays Partitude from outside by accessible names alone, as a screen reader
user would: OK, "Year 2", "Halves and Quarters 1", Start, one question answered
right from the announced instruction and the pictures' names, and the praise
heard as an alert.

Runs in a session whose accessibility bus is starting (see walk.sh). Exit
status: 0 passed, 1 failed, 77 skipped (no AT-SPI library for Python).
"""
import argparse
import os
import re
import subprocess
import sys
import time
import warnings

SKIP = 77
warnings.filterwarnings("ignore", category=DeprecationWarning)  # get_action_name: old, but in every version
try:
    import gi

    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, Gio, GLib
except (ImportError, ValueError) as missing:
    print(f"skipped: no AT-SPI for Python ({missing})")
    sys.exit(SKIP)

A11Y_BUS = "org.a11y.Bus"
POLL_SECONDS = 0.05
PARTS = {"one half": 2, "one quarter": 4}  # "Click on one half of the ducks"
PICTURE = re.compile(r"^(?P<what>.+) (?P<place>\d+) of (?P<count>\d+), (?P<state>chosen|not chosen)$")


class Failed(Exception):
    pass


def wait_for(what, probe, end):
    """Asks probe() until it gives something, letting GLib deliver events, until the monotonic end."""
    context = GLib.MainContext.default()
    while True:
        while context.pending():
            context.iteration(False)
        found = probe()
        if found:
            return found
        if time.monotonic() >= end:
            raise Failed(f"timed out waiting for {what}")
        time.sleep(POLL_SECONDS)


def switch_accessibility_on(end):
    bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)

    def owned():
        return bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "NameHasOwner",
                             GLib.Variant("(s)", (A11Y_BUS,)), GLib.VariantType("(b)"), Gio.DBusCallFlags.NONE, -1,
                             None).unpack()[0]

    wait_for("the accessibility bus", owned, end)
    bus.call_sync(A11Y_BUS, "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
                  GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", True))),
                  None, Gio.DBusCallFlags.NONE, -1, None)


def children(node):
    try:
        return [node.get_child_at_index(i) for i in range(node.get_child_count())]
    except GLib.Error:
        return []  # gone while we looked


def walk(node):
    """Every object under node that is on the screen."""
    for child in children(node):
        try:
            states = child.get_state_set() if child is not None else None
            if states is None or not (states.contains(Atspi.StateType.SHOWING) and states.contains(Atspi.StateType.VISIBLE)):
                continue
        except GLib.Error:
            continue
        yield child
        yield from walk(child)


def name_of(node):
    try:
        return node.get_name() or ""
    except GLib.Error:
        return ""


def find(app, match, role=None):
    """The objects on the screen whose name satisfies match (and of that role)."""
    app.clear_cache()
    return [n for n in walk(app) if match(name_of(n)) and (role is None or n.get_role() == role)]


def find_one(app, name, role, end):
    return wait_for(f"{role.value_nick} \"{name}\"", lambda: next(iter(find(app, lambda n: n == name, role)), None), end)


def press(node):
    """Presses an object through its Action interface, as a reader does."""
    if "Action" not in node.get_interfaces():
        raise Failed(f"\"{name_of(node)}\" cannot be pressed")
    names = [Atspi.Action.get_action_name(node, i).lower() for i in range(Atspi.Action.get_n_actions(node))]
    wanted = next((w for w in ("press", "toggle", "click") if w in names), None)
    if wanted is None:
        raise Failed(f"\"{name_of(node)}\" offers no press, only {names}")
    Atspi.Action.do_action(node, names.index(wanted))


def find_program(pid, end):
    def probe():
        for app in children(Atspi.get_desktop(0)):
            try:
                if app is not None and app.get_process_id() == pid and app.get_child_count() > 0:
                    return app
            except GLib.Error:
                continue
        return None

    return wait_for("the program on the accessibility bus", probe, end)


def answer_one_question(app, end):
    """Reads the question, presses the right number of pictures, checks."""
    instruction = name_of(wait_for("the question", lambda: find(app, lambda s: s.startswith("Click on ")), end)[0])
    asked = re.match(r"^Click on (one half|one quarter) of the (.+)$", instruction)
    if not asked:
        raise Failed(f"a question that cannot be read: \"{instruction}\"")
    pictures = wait_for("the pictures", lambda: find(app, PICTURE.match), end)
    count = int(PICTURE.match(name_of(pictures[0])).group("count"))
    places = sorted(int(PICTURE.match(name_of(p)).group("place")) for p in pictures)
    if places != list(range(1, count + 1)):
        raise Failed(f"the pictures' places are {places}, but they say {count} pictures")
    target = count // PARTS[asked.group(1)]
    for picture in pictures[:target]:
        press(picture)
    chosen = lambda s: (m := PICTURE.match(s)) and m.group("state") == "chosen"
    wait_for(f"{target} pictures chosen", lambda: len(find(app, chosen)) == target, end)
    press(find_one(app, "Check Answers", Atspi.Role.PUSH_BUTTON, end))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", required=True)
    parser.add_argument("--settings", required=True, help="a settings folder for the program")
    parser.add_argument("--timeout", type=float, default=40, help="seconds for the whole walk")
    args = parser.parse_args()
    end = time.monotonic() + args.timeout

    switch_accessibility_on(end)
    env = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb")
    program = subprocess.Popen([args.program, "--settings", args.settings], env=env)
    announced = []

    def heard(event):
        if event.detail1 == 1 and event.source is not None and event.source.get_role() == Atspi.Role.ALERT:
            announced.append(name_of(event.source))

    listener = Atspi.EventListener.new(heard)
    listener.register("object:state-changed:showing")
    try:
        app = find_program(program.pid, end)
        press(find_one(app, "OK", Atspi.Role.PUSH_BUTTON, end))
        find_one(app, "Partitude logo", Atspi.Role.IMAGE, end)  # pictures are images, named
        for button in ("Year 2", "Halves and Quarters 1", "Start"):
            press(find_one(app, button, Atspi.Role.PUSH_BUTTON, end))
        wait_for("the question announced", lambda: [a for a in announced if a.startswith("Click on ")], end)
        answer_one_question(app, end)
        wait_for("the praise, as an alert", lambda: find(app, lambda s: "You chose" in s, Atspi.Role.ALERT), end)
        wait_for("the praise announced", lambda: [a for a in announced if "You chose" in a], end)
        if program.poll() is not None:
            raise Failed(f"the program ended with {program.returncode}")
        print("walk passed")
        return 0
    except (Failed, GLib.Error) as failure:
        print(f"FAILED: {failure}", file=sys.stderr)
        return 1
    finally:
        listener.deregister("object:state-changed:showing")
        if program.poll() is None:
            program.terminate()
            try:
                program.wait(timeout=5)
            except subprocess.TimeoutExpired:
                program.kill()
                program.wait()


if __name__ == "__main__":
    sys.exit(main())
