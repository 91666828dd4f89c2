# What reaches a screen reader, through the desktop's accessibility bus as a reader has it: names,
# descriptions, actions that do what a click does, and the events that follow.

import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

PATIENCE = 120  # seconds, for a machine that is busy with other things
heard = []


def wait_for(what, find):
    """Lets events come in until `find` gives something, and returns that."""
    end = time.monotonic() + PATIENCE
    context = GLib.MainContext.default()
    GLib.timeout_add(100, lambda: True)  # what raises no event is looked for all the same
    while time.monotonic() < end:
        try:
            found = find()
        except GLib.Error:  # gone while it was looked at
            found = None
        if found:
            return found
        context.iteration(True)
    sys.exit(f"screen reader: waited in vain for {what}; last heard: {heard[-10:]}")


def parts(accessible):
    """All that is shown in it; of tables the cells only where asked for."""
    if accessible is None:
        return
    yield accessible
    if accessible.get_role() == Atspi.Role.TABLE:
        return
    for i in range(accessible.get_child_count()):
        yield from parts(accessible.get_child_at_index(i))


def find(program, name, role=None):
    return next((part for part in parts(program)
                 if part.get_name() == name and role in (None, part.get_role())), None)


def act(accessible, name):
    names = [accessible.get_action_name(i) for i in range(accessible.get_n_actions())]
    accessible.do_action(names.index(name))


def has_heard(event, name):
    return any(kind.startswith(event) and source == name for kind, source in heard)


def expect(holds, what):
    if not holds:
        sys.exit(f"screen reader: not so: {what}")


class Program:
    """One form on the screen."""

    def __init__(self, form):
        self.process = subprocess.Popen([sys.argv[1], form])
        self.root = wait_for("the program on the bus", self.look)

    def look(self):
        expect(self.process.poll() is None, "the program runs")
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(i)
            if child is not None and child.get_process_id() == self.process.pid:
                return child
        return None

    def the(self, name, role=None):
        return wait_for(name, lambda: find(self.root, name, role))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()


def choose_a_database():
    with Program("frmSelectDatabase") as program:
        existing = program.the("Use an Existing Database", Atspi.Role.CHECK_BOX)
        expect("1 January to 15 October 2012" in existing.get_description(), "the introduction is read")
        network = program.the("Use database over the network", Atspi.Role.CHECK_BOX)
        expect("network drive" in network.get_description(), "its advice is read")
        act(existing, "Toggle")
        entry = program.the("Duinekop Campus")  # the form has heard of it, and lists the databases
        act(entry, "Toggle")
        act(program.the("Continue"), "Press")
        program.the("Add new College or Campus")


def tick_in_a_table():
    with Program("frmLecQualifications1") as program:
        save = program.the("Save")
        expect("not saved" not in save.get_description(), "a page just opened is saved")
        table = wait_for("the table", lambda: next(
            (part for part in parts(program.root) if part.get_role() == Atspi.Role.TABLE), None))
        cell = next(table.get_accessible_at(row, column)
                    for row in range(table.get_n_rows()) for column in range(table.get_n_columns())
                    if "not ticked" in table.get_accessible_at(row, column).get_name())
        expect(cell.get_name().startswith("1 School leaving certificate"), cell.get_name())
        act(cell, "Toggle")
        ticked = cell.get_name().replace("not ticked", "ticked")
        wait_for("the tick", lambda: has_heard("object:state-changed:checked", ticked))
        wait_for("the tick's name", lambda: has_heard("object:property-change:accessible-name", ticked))
        wait_for("the mark", lambda: has_heard("object:property-change:accessible-description", "Save"))
        expect("not saved" in save.get_description(), "Save says it")


def hear(event):
    heard.append((event.type, event.source.get_name() if event.source else ""))


def main():
    listener = Atspi.EventListener.new(hear)
    for event in ("object:state-changed:checked", "object:property-change:accessible-name",
                  "object:property-change:accessible-description"):
        listener.register(event)
    choose_a_database()
    tick_in_a_table()


main()
