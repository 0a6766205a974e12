"""A run whose second element lacks what its host needs: the failure is shown, and its log goes to the clipboard."""

import os
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
    shutil.rmtree(bundle + "/Resources/Products/Velvetgrain Lightroom/Velvetgrain 3 Lightroom/Corvellane Velvetgrain 3")
    for folder in HOST_FOLDERS:
        os.makedirs(folder)
    wizard = Wizard(desktop, bundle, "/Applications/output")
    wizard.press_until("Next", "label Software License Agreement")
    wizard.press_until("Next", "push button Agree")
    wizard.press_until("Agree", "label Select Products to install")
    wizard.press_until("Next", "label The following Products will be installed")
    wizard.press_until("Next", "push button Install")
    wizard.press("Install")
    wizard.shows(*FAILURE)
    log = wizard.result_line().removesuffix("\n")
    assert "Corvellane Velvetgrain 3" in log and "No such file or directory" in log, log

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
