"""What is heard of a walk through all pages, alerts and the log panel by keyboard alone, line by line: heard.txt.

With a path in HEARD_INTO, writes there what is heard instead of comparing: to "/dev/stdout", as the files of a copied
machine are gone at the end."""

import os
import shutil
import sys
import time

from desktop import HOST_FOLDERS, PATIENCE, ROLES, Desktop, Wizard, wait_for
from gi.repository import GLib

QUIET = 0.4  # seconds without a sound that end a step
EVENTS = [
    "object:property-change:accessible-name",
    "object:property-change:accessible-description",
    "object:state-changed:checked",
    "object:state-changed:focused",
    "object:state-changed:showing",
    "window:activate",
]


class Ear:
    """The events that a screen reader speaks of, a line each, in their order."""

    def __init__(self, expected):
        import pyatspi

        self.atspi = pyatspi
        self.expected = expected
        self.lines = []
        pyatspi.Registry.registerEventListener(self.hear, *EVENTS)

    def hear(self, event):
        try:
            line = self.line_of(event)
        except GLib.GError:  # gone since, or of another program
            return
        if line:
            self.lines.append(line.rstrip(", "))

    def line_of(self, event):
        role = event.source.getRoleName()
        role = ROLES.get(role, role)
        what = str(event.type).split(":")[-1]
        if what == "focused":
            return f"focus on {role} {event.source.name}" if event.detail1 else None
        if what == "showing":
            return f"announced: {event.source.name}" if event.detail1 and role == "notification" else None
        if what == "accessible-name":
            # A progress bar is there only when the wait is long.
            is_heard = role not in ("notification", "progress bar")
            return f"now called: {role} {event.source.name}" if is_heard else None
        if what == "accessible-description":
            return f"now described: {role} {event.source.name}, {event.source.description}"
        if what == "checked":
            return f"{'ticked' if event.detail1 else 'not ticked'}: {role} {event.source.name}"
        return f"active: {role} {event.source.name}"

    def listen(self, step, act):
        """Notes the step, and what is heard of it until all that is expected has been, and then nothing."""
        self.lines += ["", f"# {step}"] if self.lines else [f"# {step}"]
        result = act()
        end = time.monotonic() + PATIENCE
        quiet_since = time.monotonic()
        while time.monotonic() < end:
            before = len(self.lines)
            while GLib.MainContext.default().iteration(False):
                pass
            if len(self.lines) != before:
                quiet_since = time.monotonic()
            if time.monotonic() - quiet_since > QUIET and self.has_all_of(step):
                break
            time.sleep(0.01)
        return result

    def has_all_of(self, step):
        """Whether there are as many lines as the step should have; always for a step that is not expected."""
        if f"# {step}" not in self.expected:
            return True
        begin = self.expected.index(f"# {step}")
        rest = self.expected[begin:]
        wanted = rest.index("") if "" in rest else len(rest)
        return len(self.lines) - self.lines.index(f"# {step}") >= wanted


STEPS = [
    ("Return: to the agreement", "Return"),
    ("Return: the question", "Return"),
    ("Tab: to the next answer", "Tab"),
    ("Tab: to the last answer", "Tab"),
    ("Return: agreed", "Return"),
    ("Tab: into the list", "Tab"),
    ("space: the first product", "space"),
    ("Down: the second product", "Down"),
    ("space: the second product", "space"),
    ("Tab: to the button of the page", "Tab"),
    ("space: all products", "space"),
    ("Tab: past it", "Tab"),
    ("Tab: to the button forward", "Tab"),
    ("Return: the products that are installed", "Return"),
    ("Return: the confirmation", "Return"),
    ("Escape: nothing", "Escape"),
    ("Return: called off", "Return"),
    ("Return: the confirmation again", "Return"),
    ("Tab: to the installation", "Tab"),
    ("Return: the installation", "Return"),
    ("Tab: to the details", "Tab"),
    ("Return: the log", "Return"),
    ("Tab: to the copy", "Tab"),
    ("Tab: to the button that closes", "Tab"),
    ("Return: the log is closed", "Return"),
    ("Tab: to the end", "Tab"),
]


def walk(wizard, ear):
    for step, key in STEPS:
        ear.listen(step, lambda key=key: wizard.key(key))


def compare(found, expected):
    if found != expected:
        import difflib

        raise AssertionError("\n".join(difflib.unified_diff(expected, found, "expected", "heard", lineterm="")))


def expected_lines():
    with open(os.path.join(os.path.dirname(os.path.abspath(__file__)), "heard.txt"), encoding="utf-8") as file:
        return file.read().splitlines()


with Desktop() as desktop:
    for folder in HOST_FOLDERS:
        os.makedirs(folder)
    bundle = sys.argv[1]
    expected = expected_lines()
    ear = Ear(expected)
    wizard = ear.listen("the window opens", lambda: Wizard(desktop, bundle, "/Applications/output"))
    wait_for("the first page", lambda: "push button Next focused" in wizard.said())
    shutil.rmtree(bundle + "/Resources/Products/Velvetgrain Lightroom/Velvetgrain 3 Lightroom/Corvellane Velvetgrain 3")
    walk(wizard, ear)
    wizard.key("Return")
    wizard.ends()
    if "HEARD_INTO" in os.environ:
        with open(os.environ["HEARD_INTO"], "w", encoding="utf-8") as file:
            file.write("\n".join(ear.lines) + "\n")
    else:
        compare(ear.lines, expected)
