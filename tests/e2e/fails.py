"""Products that go between their page and the installation: the failure is shown, and its log goes to the clipboard."""

import os
import re
import shutil
import subprocess
import sys

from desktop import HOST_FOLDERS, Desktop, Wizard, behind, wait_for

FAILURE = [
    "label The installation was not completed successfully. focused",
    "push button Details",
    "push button Go Back disabled",
    "push button Close",
]


def on_clipboard():
    return subprocess.run(["xclip", "-o", "-selection", "clipboard"], capture_output=True).stdout.decode()


with Desktop() as desktop:
    bundle = sys.argv[1]
    for folder in HOST_FOLDERS:
        os.makedirs(folder)
    wizard = Wizard(desktop, bundle, "/Applications/output")
    wizard.walk_to_the_confirmation()
    for gone in ["Velvetgrain Photo", "Velvetgrain Lightroom/Velvetgrain 3 Lightroom/Corvellane Velvetgrain 3"]:
        shutil.rmtree(bundle + "/Resources/Products/" + gone)
    wizard.press("Install")
    wizard.shows(*FAILURE)
    log = wizard.result_line().removesuffix("\n")
    assert "Corvellane Velvetgrain 3" in log and "No such file or directory" in log, log
    assert re.search("^Fail__ .*Velvetgrain Photo", wizard.printed(), re.MULTILINE), "what is left out is printed"
    assert os.listdir("/Applications/Corvellane") == ["Velvetgrain 3 Lightroom"], "what was done before stays"
    assert os.listdir(HOST_FOLDERS[0]) == [], "nothing after it ran"

    wizard.press("Details")
    panel = ["dialog Details", "text Details focused", "push button Copy to Clipboard", "push button Close"]
    wizard.shows(*behind(*FAILURE), *panel)
    wizard.press("Copy to Clipboard")
    wait_for("the log on the clipboard", lambda: on_clipboard() == log)
    wizard.press("Close")
    wizard.shows(*FAILURE)
    for key in ["F10", "Down", "Right", "Return"]:  # the main menu's "Quit"
        wizard.key(key)
    wizard.ends()
