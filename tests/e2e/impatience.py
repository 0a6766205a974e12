"""Somebody who does not wait, before a window that does."""

import subprocess
import time

from desktop import wait_for
from Xlib import X, display, protocol


class Screen:
    """The wizard's window as the window manager and the person before it have it."""

    def __init__(self, wizard):
        self.wizard = wizard
        self.display = display.Display()
        self.root = self.display.screen().root
        name = wizard.window.name
        found = subprocess.run(["xdotool", "search", "--name", f"^{name}$"], capture_output=True, check=True).stdout
        self.window = self.display.create_resource_object("window", int(found.split()[0]))

    def ask(self, protocol_name, *data):
        """Sends a request of the window manager's protocols."""
        kind = self.display.intern_atom("WM_PROTOCOLS")
        words = [self.display.intern_atom(protocol_name), X.CurrentTime, *data, 0, 0, 0][:5]
        self.window.send_event(protocol.event.ClientMessage(window=self.window, client_type=kind, data=(32, words)))
        self.display.flush()

    def answers_a_ping(self):
        self.root.change_attributes(event_mask=X.StructureNotifyMask | X.SubstructureNotifyMask)
        ping = self.display.intern_atom("_NET_WM_PING")
        self.ask("_NET_WM_PING", self.window.id)

        def is_answered():
            while self.display.pending_events():
                event = self.display.next_event()
                if event.type & 0x7F == X.ClientMessage and event.data[1][0] == ping:
                    return True
            return False

        wait_for("the answer to a ping", is_answered)

    def icon_sizes(self):
        """The widths of the window's icons; the window manager gives one of its own to a window without any."""
        icons = self.window.get_full_property(self.display.intern_atom("_NET_WM_ICON"), X.AnyPropertyType)
        words = list(icons.value) if icons else []
        sizes = []
        while words:
            width, height = words[:2]
            sizes.append(width)
            del words[: 2 + width * height]
        return sizes

    def picture(self):
        """The window's pixels, without the bar at its lower edge."""
        size = self.window.get_geometry()
        return self.window.get_image(0, 0, size.width, size.height - 8, X.ZPixmap, 0xFFFFFFFF).data

    def bar(self):
        size = self.window.get_geometry()
        return self.window.get_image(0, size.height - 4, size.width, 4, X.ZPixmap, 0xFFFFFFFF).data

    def cover_and_uncover(self):
        """Has another window stand in front for a moment."""
        size = self.window.get_geometry()
        at = self.root.translate_coords(self.window, 0, 0)
        cover = self.root.create_window(
            -at.x, -at.y, size.width, size.height, 0, X.CopyFromParent, background_pixel=0xFF00FF, override_redirect=True
        )
        cover.map()
        self.display.sync()
        time.sleep(0.2)
        assert self.picture() != self.before, "the cover is in front"
        cover.destroy()
        self.display.sync()

    def minimise_and_restore(self):
        for change in ("windowminimize", "windowmap"):
            subprocess.run(["xdotool", change, "--sync", str(self.window.id)], check=True)

    def remember(self):
        self.before = self.picture()

    def is_painted_again(self):
        wait_for("the window to be painted again", lambda: self.picture() == self.before)


def clicking(wizard, name, times=1):
    """The clicks of somebody who does not wait, as a process."""
    button = wait_for(name, lambda: wizard.while_it_stands(lambda: [node for node in wizard.nodes() if node.name == name]))
    box = button[-1].queryComponent().getExtents(0)
    point = [str(box.x + box.width // 2), str(box.y + box.height // 2)]
    return subprocess.Popen(["xdotool", "mousemove", *point, "click", "--repeat", str(times), "--delay", "120", "1"])


def click(wizard, name, times=1):
    assert clicking(wizard, name, times).wait() == 0


def try_everything(wizard, screen):
    """What an impatient person does while the window only waits."""
    usable = [node for node in wizard.nodes() if node.name in ("Cancel", "Install")]
    click(wizard, "Next", 4)
    click(wizard, "Install")
    for wheel in "45":
        subprocess.run(["xdotool", "click", wheel], check=True)
    for key in ["Escape", "Return", "space", "F10", "Tab"]:
        wizard.key(key)
    for button in usable:
        button.queryAction().doAction(0)
    screen.ask("WM_DELETE_WINDOW")
