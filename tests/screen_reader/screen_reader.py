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


def press(*keys):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *keys], check=True)


def act(accessible, name):
    names = [accessible.get_action_name(i) for i in range(accessible.get_n_actions())]
    accessible.do_action(names.index(name))


def wait_to_hear(event, name):
    """And forgets it with all that came before."""
    at = wait_for(f"{event} of {name}", lambda: next(
        (i + 1 for i, (kind, source) in enumerate(heard)
         if kind.startswith(event) and source == name), None))
    del heard[:at]


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

    def table(self):
        return wait_for("a table", lambda: next(
            (part for part in parts(self.root) if part.get_role() == Atspi.Role.TABLE), None))

    def take_keys(self):
        """No window manager is there to give its window the keyboard."""
        window = wait_for("its window", lambda: subprocess.run(
            ["xdotool", "search", "--onlyvisible", "--pid", str(self.process.pid)],
            capture_output=True, text=True).stdout.split())
        subprocess.run(["xdotool", "windowfocus", "--sync", window[-1]], check=True)

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
        table = program.table()
        cell = next(table.get_accessible_at(row, column)
                    for row in range(table.get_n_rows()) for column in range(table.get_n_columns())
                    if "not ticked" in table.get_accessible_at(row, column).get_name())
        expect(cell.get_name().startswith("1 School leaving certificate"), cell.get_name())
        ticked = cell.get_name().replace("not ticked", "ticked")
        act(cell, "Toggle")
        wait_to_hear("object:state-changed:checked", ticked)
        wait_for("the mark", lambda: "not saved" in save.get_description())


def type_copy_and_clear():
    with Program("frmPage8") as program:
        program.take_keys()
        table = program.table()
        expect(table.get_name().startswith("Table 3.8 "), table.get_name())
        cell = "3.8.1 Civil Engineering and Building Construction, Black African, Male: "
        total = "TOTALS, Black African, Male: "
        press("1", "2", "Return")
        wait_to_hear("object:property-change:accessible-name", cell + "12")
        wait_to_hear("object:property-change:accessible-name", total + "12, total")
        press("Left", "ctrl+c", "Down", "ctrl+v")
        wait_to_hear("object:property-change:accessible-name", total + "24, total")
        press("Delete")
        wait_to_hear("object:property-change:accessible-name", total + "12, total")


def refuse_a_letter():
    with Program("frmAddSubjects") as program:
        program.take_keys()
        code = program.the("Subject Code", Atspi.Role.TEXT)
        code.grab_focus()
        heard.clear()
        wait_for("the focus", lambda: code.get_state_set().contains(Atspi.StateType.FOCUSED))
        press("1", "x", "2")
        wait_for("the code", lambda: Atspi.Text.get_text(code, 0, -1) == "12")
        changes = [kind for kind, _ in heard if kind.startswith("object:text-changed")]
        expect(len(changes) == 2, f"the letter is not heard to come and go: {changes}")


def hear(event):
    heard.append((event.type, event.source.get_name() if event.source else ""))


def main():
    Atspi.set_timeout(PATIENCE * 1000, PATIENCE * 1000)
    listener = Atspi.EventListener.new(hear)
    for event in ("object:state-changed:checked", "object:property-change:accessible-name",
                  "object:text-changed"):
        listener.register(event)
    choose_a_database()
    tick_in_a_table()
    type_copy_and_clear()
    refuse_a_letter()


main()
