"""A display with a window manager, and the wizard on it as assistive technology sees it."""

import os
import re
import subprocess
import time

from gi.repository import GLib

PATIENCE = 10  # seconds
SIDE_BAR = ["label " + name for name in ("Introduction", "License", "Products", "Selected Products", "Summary")]
QUESTION = "To continue using the software you must agree to the terms of the software license agreement."
ANSWERS = "Click Agree to continue or click Disagree to cancel and quit the Installer."
CONFIRMATION = 'Click "Install" button to complete the installation.'
ROLES = {"button": "push button"}  # newer names of roles, by the older ones that are expected here
HOST_FOLDERS = [
    "/Library/Application Support/Adobe/Common/Plug-ins/7.0/MediaCore/Corvellane",
    "/Library/Application Support/Adobe/Plug-Ins/CC/Corvellane",
]


def behind(*expected):
    """What is said of a page while an alert is up: nothing of it can be used."""
    bare = [words.removesuffix(" focused").removesuffix(" disabled") for words in expected]
    return [words + " disabled" for words in bare]


def wait_for(what, condition):
    """The first true answer of `condition`; ends the test when there is none in time."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        answer = condition()
        if answer:
            return answer
        time.sleep(0.02)
    raise AssertionError(f"waited in vain for {what}")


class Desktop:
    """Xvfb and mostly a window manager; everything started here is ended by its own id."""

    def __init__(self, managed=True):
        self.managed = managed

    def __enter__(self):
        self.processes = []
        try:
            self.open()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *_):
        self.close()

    def open(self):
        read, write = os.pipe()
        display = ["Xvfb", "-displayfd", str(write), "-nolisten", "tcp", "-noreset", "-screen", "0", "1024x768x24"]
        self.start(*display, pass_fds=[write])
        os.close(write)
        with os.fdopen(read) as number:
            os.environ["DISPLAY"] = ":" + number.readline().strip()
        wait_for("the display", lambda: self.answers("getdisplaygeometry"))
        if self.managed:
            self.start("openbox")
            wait_for("the window manager", lambda: self.answers("get_num_desktops"))

    def close(self):
        for process in reversed(self.processes):
            process.terminate()
            process.wait()

    @staticmethod
    def answers(question):
        return subprocess.run(["xdotool", question], capture_output=True).returncode == 0

    def start(self, *command, **options):
        process = subprocess.Popen(command, stderr=subprocess.DEVNULL, **options)
        self.processes.append(process)
        return process


class Wizard:
    """A run of the installer, of its own or as the program of a polkit-test-agent with the given answers."""

    def __init__(self, desktop, bundle, output, agent=()):
        import pyatspi  # connects to the bus at once

        self.atspi = pyatspi
        self.FLAGS = {"checked": pyatspi.STATE_CHECKED, "focused": pyatspi.STATE_FOCUSED}
        self.output = output
        os.environ.pop("QT_QPA_PLATFORM", None)  # a window is wanted, whatever tests without one have set
        environment = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", LANGUAGE="en")
        with open(output, "wb") as file:
            command = [*agent, bundle + "/bin/corvellane-installer"]
            self.process = subprocess.Popen(command, stdout=file, env=environment)
        desktop.processes.append(self.process)
        self.pid = wait_for("the agent", self.pid_by_the_agent) if agent else self.process.pid
        self.window = wait_for("the window", self.find_window)

    def pid_by_the_agent(self):
        found = re.search(r"^program: (\d+)\n", self.printed(), re.MULTILINE)
        return found and int(found[1])

    def find_window(self):
        assert self.process.poll() is None, "the installer has ended"
        for application in self.atspi.Registry.getDesktop(0):
            if application and application.get_process_id() == self.pid and application.childCount:
                return application[0]
        return None

    def nodes(self, node=None):
        """Everything that is shown, in reading order."""
        node = node or self.window
        for index in range(node.childCount):
            child = node[index]
            if child and child.getState().contains(self.atspi.STATE_SHOWING):
                yield child
                yield from self.nodes(child)

    def while_it_stands(self, look):
        """What `look` gives; nothing when the tree was rebuilt under its eyes."""
        try:
            return look()
        except (GLib.GError, IndexError):
            assert self.process.poll() is None, "the installer has ended"
            return None

    def said(self):
        """What a screen reader would find: the roles and names of all that has a name, with what is special of each."""
        return self.while_it_stands(lambda: [self.words_of(node) for node in self.nodes() if node.name]) or []

    def words_of(self, node):
        state = node.getState()
        role = node.getRoleName()
        words = [ROLES.get(role, role), node.name]
        words += [word for word, flag in self.FLAGS.items() if state.contains(flag)]
        words += [] if state.contains(self.atspi.STATE_ENABLED) else ["disabled"]
        return " ".join(words)

    def press(self, name):
        """Presses the button in front of that name, as assistive technology does, once it can be pressed."""

        def find():
            buttons = [node for node in self.nodes() if node.name == name]
            buttons = [node for node in buttons if node.getRole() == self.atspi.ROLE_PUSH_BUTTON]
            return buttons and buttons[-1].queryAction().nActions and buttons[-1]

        wait_for(f"the button {name}", lambda: self.while_it_stands(find)).queryAction().doAction(0)

    def press_until(self, name, shown):
        self.press(name)
        wait_for(shown, lambda: shown in self.said())

    def walk_to_the_confirmation(self):
        self.press_until("Next", "label Software License Agreement")
        self.press_until("Next", "push button Agree")
        self.press_until("Agree", "label Select Products to install")
        self.press_until("Next", "label The following Products will be installed")
        self.press_until("Next", "push button Install")

    def key(self, name):
        subprocess.run(["xdotool", "key", "--clearmodifiers", name], check=True)

    def shows(self, *expected):
        """Waits until exactly this is shown to the right of the side bar."""
        expected = list(expected)
        try:
            wait_for("", lambda: self.said()[len(SIDE_BAR) :] == expected)
        except AssertionError:
            found = "\n  ".join(self.said()[len(SIDE_BAR) :])
            raise AssertionError("expected\n  " + "\n  ".join(expected) + "\nbut found\n  " + found) from None

    def focus_after(self, key):
        """The name of what has the focus once a key has moved it."""

        def focused():
            return next((node.name for node in self.nodes() if node.getState().contains(self.atspi.STATE_FOCUSED)), None)

        before = focused()
        self.key(key)
        return wait_for("another focus", lambda: self.while_it_stands(lambda: focused() != before and focused()))

    def printed(self):
        with open(self.output, encoding="utf-8", errors="surrogateescape", newline="") as file:
            return file.read()

    def result_line(self):
        return self.printed().rpartition("ERROR VALUE ")[2]

    def ends(self):
        assert self.process.wait(PATIENCE) == 0, f"exit code {self.process.returncode}"
