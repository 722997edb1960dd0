#!/usr/bin/python3
"""Plays Partitude from outside, as a screen reader user would, by accessible
names alone: the title screen's OK, the year menu's "Year 2", the Year 2
menu's "Halves and Quarters 1", Start, then one question of Halves and
Quarters answered right (the question heard as it appears and read from the
instruction, the pictures counted by their names, the right number of them
pressed), and the praise heard as an alert when it appears.

Runs inside a session whose accessibility bus is starting (see walk.sh):
waits for the bus, switches accessibility on, starts the program and talks
to it over AT-SPI. Exit status: 0 passed, 1 failed, 77 skipped (no AT-SPI
library for Python).
"""
import argparse
import os
import re
import subprocess
import sys
import time
import warnings

SKIP = 77
# get_action_name is the name libatspi 2.46 marks old; it is still the one
# every version has.
warnings.filterwarnings("ignore", category=DeprecationWarning)
try:
    import gi

    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, Gio, GLib
except (ImportError, ValueError) as missing:
    print(f"skipped: no AT-SPI for Python ({missing})")
    sys.exit(SKIP)

A11Y_BUS = "org.a11y.Bus"
POLL_SECONDS = 0.05

# "Click on one half of the ducks": how many parts the pictures are cut into.
PARTS = {"one half": 2, "one quarter": 4}
# "duck 3 of 12, not chosen"
PICTURE = re.compile(r"^(?P<what>.+) (?P<place>\d+) of (?P<count>\d+), (?P<state>chosen|not chosen)$")


class Failed(Exception):
    pass


class Deadline:
    def __init__(self, seconds):
        self.end = time.monotonic() + seconds

    def left(self):
        return self.end - time.monotonic()


def pump():
    """Lets GLib deliver what has arrived (events, replies)."""
    context = GLib.MainContext.default()
    while context.pending():
        context.iteration(False)


def wait_for(what, probe, deadline):
    """Asks probe() until it gives something, within the deadline."""
    started = time.monotonic()
    while True:
        pump()
        found = probe()
        if found:
            waited = time.monotonic() - started
            if waited > 1:
                print(f"({waited:.1f} s for {what})")
            return found
        if deadline.left() <= 0:
            raise Failed(f"timed out waiting for {what}")
        time.sleep(POLL_SECONDS)


def switch_accessibility_on(deadline):
    """Waits until the session's accessibility bus is up, then turns it on."""
    bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)

    def owned():
        reply = bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                              "NameHasOwner", GLib.Variant("(s)", (A11Y_BUS,)), GLib.VariantType("(b)"),
                              Gio.DBusCallFlags.NONE, -1, None)
        return reply.unpack()[0]

    wait_for("the accessibility bus", owned, deadline)
    bus.call_sync(A11Y_BUS, "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
                  GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", True))),
                  None, Gio.DBusCallFlags.NONE, -1, None)


def children(node):
    try:
        return [node.get_child_at_index(i) for i in range(node.get_child_count())]
    except GLib.Error:
        return []  # gone while we looked


def showing(node):
    states = node.get_state_set()
    return states.contains(Atspi.StateType.SHOWING) and states.contains(Atspi.StateType.VISIBLE)


def walk(node):
    """Every object under node that is on the screen."""
    for child in children(node):
        if child is None:
            continue
        try:
            if not showing(child):
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


def find_one(app, name, role, deadline):
    def probe():
        found = find(app, lambda n: n == name, role)
        return found[0] if found else None

    return wait_for(f"{role.value_nick} \"{name}\"", probe, deadline)


def press(node):
    """Presses an object through its Action interface, as a reader does."""
    if "Action" not in node.get_interfaces():
        raise Failed(f"\"{name_of(node)}\" cannot be pressed")
    names = [Atspi.Action.get_action_name(node, i).lower() for i in range(Atspi.Action.get_n_actions(node))]
    for wanted in ("press", "toggle", "click"):
        if wanted in names:
            Atspi.Action.do_action(node, names.index(wanted))
            return
    raise Failed(f"\"{name_of(node)}\" offers no press, only {names}")


def find_program(pid, deadline):
    def probe():
        desktop = Atspi.get_desktop(0)
        for app in children(desktop):
            try:
                if app is not None and app.get_process_id() == pid and app.get_child_count() > 0:
                    return app
            except GLib.Error:
                continue
        return None

    return wait_for("the program on the accessibility bus", probe, deadline)


def answer_one_question(app, deadline):
    """Reads the question, presses the right number of pictures, checks."""
    instruction = wait_for("the question", lambda: find(app, lambda s: s.startswith("Click on ")), deadline)[0]
    asked = re.match(r"^Click on (one half|one quarter) of the (.+)$", name_of(instruction))
    if not asked:
        raise Failed(f"a question that cannot be read: \"{name_of(instruction)}\"")
    pictures = wait_for("the pictures", lambda: find(app, PICTURE.match), deadline)
    count = int(PICTURE.match(name_of(pictures[0])).group("count"))
    if len(pictures) != count:
        raise Failed(f"{len(pictures)} pictures on the board, but they say {count}")
    places = sorted(int(PICTURE.match(name_of(p)).group("place")) for p in pictures)
    if places != list(range(1, count + 1)):
        raise Failed(f"the pictures' places are {places}")
    target = count // PARTS[asked.group(1)]
    print(f"question: \"{name_of(instruction)}\": {count} pictures, choosing {target}")
    for picture in pictures[:target]:
        press(picture)
    chosen = wait_for(f"{target} pictures chosen",
                      lambda: (lambda c: c if len(c) == target else None)(
                          find(app, lambda s: (m := PICTURE.match(s)) is not None and m.group("state") == "chosen")),
                      deadline)
    print(f"chosen: {', '.join(name_of(c) for c in chosen)}")
    press(find_one(app, "Check Answers", Atspi.Role.PUSH_BUTTON, deadline))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", required=True)
    parser.add_argument("--settings", required=True, help="a settings folder for the program")
    parser.add_argument("--timeout", type=float, default=40, help="seconds for the whole walk")
    args = parser.parse_args()
    deadline = Deadline(args.timeout)

    switch_accessibility_on(deadline)
    env = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb")
    program = subprocess.Popen([args.program, "--settings", args.settings], env=env)
    announced = []

    def heard(event):
        if event.detail1 == 1 and event.source is not None and event.source.get_role() == Atspi.Role.ALERT:
            announced.append(name_of(event.source))

    listener = Atspi.EventListener.new(heard)
    listener.register("object:state-changed:showing")
    try:
        app = find_program(program.pid, deadline)
        print(f"found the program: \"{name_of(app)}\"")
        press(find_one(app, "OK", Atspi.Role.PUSH_BUTTON, deadline))
        find_one(app, "Partitude logo", Atspi.Role.IMAGE, deadline)  # pictures are images, named
        press(find_one(app, "Year 2", Atspi.Role.PUSH_BUTTON, deadline))
        press(find_one(app, "Halves and Quarters 1", Atspi.Role.PUSH_BUTTON, deadline))
        press(find_one(app, "Start", Atspi.Role.PUSH_BUTTON, deadline))
        wait_for("the question announced", lambda: [a for a in announced if a.startswith("Click on ")], deadline)
        answer_one_question(app, deadline)

        praise = wait_for("the praise, as an alert",
                          lambda: [n for n in find(app, lambda s: "You chose" in s) if n.get_role() == Atspi.Role.ALERT],
                          deadline)
        print(f"on the screen: \"{name_of(praise[0])}\"")
        wait_for("the praise announced", lambda: [a for a in announced if "You chose" in a], deadline)
        print("announced: yes")
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
