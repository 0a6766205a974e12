"""Installations that take long: the window stays alive and hears nobody until the outcome is on the screen."""

import os
import shutil
import sys
import time

from desktop import HOST_FOLDERS, Desktop, Wizard, wait_for
from impatience import Screen, click, clicking, try_everything

BUNDLE = sys.argv[1]
ELEMENT = "/Applications/Corvellane/Velvetgrain 3 Lightroom"
HELD = ELEMENT + "/Velvetgrain3.app/Contents/Info.txt"
BAR = "progress bar Progress of the installation"


def hold(path):
    """A file that whoever writes to it has to wait for."""
    os.makedirs(os.path.dirname(path))
    os.mkfifo(path)


def let_go(path):
    with open(path, encoding="utf-8") as held:
        held.read()


def look_at_the_wait(wizard, screen, managed):
    wait_for("the progress bar", lambda: BAR in wizard.said())
    assert any(words.startswith("push button Install") for words in wizard.said()), "the confirmation stays until the wait is over"
    screen.remember()
    screen.answers_a_ping()
    screen.cover_and_uncover()
    screen.is_painted_again()
    if managed:
        screen.minimise_and_restore()
        screen.is_painted_again()
    bar = screen.bar()
    wait_for("the bar to move", lambda: screen.bar() != bar)
    try_everything(wizard, screen)
    screen.answers_a_ping()
    screen.is_painted_again()


def waits_until(desktop, outcome):
    hold(HELD)
    wizard = Wizard(desktop, BUNDLE, "/Applications/output")
    wizard.walk_to_the_confirmation()
    screen = Screen(wizard)
    wait_for("the icon", lambda: screen.icon_sizes() == [16, 24, 32, 48, 64, 128, 256])
    click(wizard, "Install")
    look_at_the_wait(wizard, screen, desktop.managed)
    impatient = clicking(wizard, "Next", 20)
    time.sleep(0.6)
    let_go(HELD)
    impatient.wait()
    wait_for("the outcome", lambda: any(outcome in words for words in wizard.said()))
    assert BAR not in wizard.said()
    assert wizard.process.poll() is None, "the outcome is there to be seen"
    time.sleep(1)  # a pause: from now on a click is meant for what is shown now
    click(wizard, "Close")
    wizard.ends()
    shutil.rmtree(ELEMENT)


for folder in HOST_FOLDERS:
    os.makedirs(folder)
for managed in (True, False):
    with Desktop(managed) as desktop:
        waits_until(desktop, "You have been successfully installed selected products.")
with Desktop() as desktop:
    shutil.rmtree(BUNDLE + "/Resources/Products/Velvetgrain Lightroom/Velvetgrain 3 Lightroom/Corvellane Velvetgrain 3")
    waits_until(desktop, "The installation was not completed successfully.")
