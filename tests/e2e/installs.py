"""Walks through every page and alert of a run that succeeds, and looks at what was installed."""

import os
import sys

from desktop import ANSWERS, CONFIRMATION, HOST_FOLDERS, QUESTION, SIDE_BAR, Desktop, Wizard, behind

LICENSE = ["label Software License Agreement", "text Software License Agreement"]
TICKED = [
    "label Select Products to install",
    "list Select Products to install",
    "check box Velvetgrain Lightroom checked",
    "check box Velvetgrain Photo checked",
    "check box Velvetgrain Tessellane checked",
]
TO_INSTALL = [
    "label The following Products will be installed",
    "list The following Products will be installed",
    "list item Velvetgrain Lightroom",
    "list item Velvetgrain Photo",
    "list item Velvetgrain Tessellane",
]
BUTTONS = ["push button Go Back", "push button Next focused"]
CHOOSING = ["push button Select All", *BUTTONS]


def walk_to_the_agreement(wizard):
    assert wizard.window.name == "Corvellane Plugin Installer"
    assert wizard.said()[: len(SIDE_BAR)] == SIDE_BAR
    wizard.shows(
        "label Welcome to the Corvellane Plugin Installer",
        "label You will be guided through the steps necessary to use this software.",
        "push button Go Back disabled",
        "push button Next focused",
    )
    wizard.press("Next")
    wizard.shows(*LICENSE, *BUTTONS)


def answer_the_agreement(wizard):
    alert = [
        f"dialog {QUESTION} {ANSWERS}",
        f"label {QUESTION}",
        f"label {ANSWERS}",
        "push button Read License focused",
        "push button Disagree",
        "push button Agree",
    ]
    wizard.press("Next")
    wizard.shows(*behind(*LICENSE, *BUTTONS), *alert)
    assert [wizard.focus_after("Tab") for _ in range(3)] == ["Disagree", "Agree", "Read License"]
    wizard.key("space")
    wizard.shows(*LICENSE, *BUTTONS)
    wizard.press("Next")
    wizard.shows(*behind(*LICENSE, *BUTTONS), *alert)
    wizard.press("Agree")


def choose_products(wizard):
    wizard.shows(*TICKED, *CHOOSING)
    assert wizard.focus_after("Tab") == "Select Products to install"
    wizard.key("space")
    wizard.shows(
        TICKED[0],
        TICKED[1] + " focused",
        TICKED[2].replace("checked", "focused"),
        *TICKED[3:],
        *(words.removesuffix(" focused") for words in CHOOSING),
    )
    wizard.press_until("Select All", TICKED[2] + " focused")
    wizard.press_until("Next", TO_INSTALL[0])


def confirm(wizard):
    bare = [words.removesuffix(" focused") for words in BUTTONS]
    while wizard.focus_after("Tab") != "Next":
        pass
    wizard.shows(*TO_INSTALL, *BUTTONS)
    wizard.press("Next")
    alert = [f"dialog {CONFIRMATION}", f"label {CONFIRMATION}", "push button Cancel focused", "push button Install"]
    wizard.shows(*behind(*TO_INSTALL, *bare), *alert)
    wizard.key("space")
    wizard.shows(*TO_INSTALL, *BUTTONS)
    wizard.press("Next")
    wizard.shows(*behind(*TO_INSTALL, *bare), *alert)
    wizard.press("Install")


def look_at_what_was_installed():
    maker = "/Applications/Corvellane/"
    lightroom = os.path.expanduser("~/Library/Application Support/Adobe/Lightroom/")
    for path, target in {
        HOST_FOLDERS[0] + "/Velvetgrain Tessellane 2.plugin": maker + "Velvetgrain Tessellane 2.plugin",
        HOST_FOLDERS[1] + "/Velvetgrain.plugin": maker + "Velvetgrain.plugin",
        lightroom + "Modules/velvetgrain3.lrdevplugin": maker + "Velvetgrain 3 Lightroom/velvetgrain3.lrdevplugin",
    }.items():
        assert os.readlink(path) == target, path
        assert os.path.isdir(path), path
    for path in [
        maker + "Velvetgrain 3 Lightroom/velvetgrain3.lrdevplugin/Path.txt",
        lightroom + "External Editor Presets/Corvellane/Corvellane Velvetgrain 3.lrtemplate",
        lightroom + "Export Presets/Corvellane Velvetgrain 3",
    ]:
        assert os.path.exists(path), path


with Desktop() as desktop:
    for folder in HOST_FOLDERS:
        os.makedirs(folder)
    wizard = Wizard(desktop, sys.argv[1], "/Applications/output")
    walk_to_the_agreement(wizard)
    answer_the_agreement(wizard)
    choose_products(wizard)
    confirm(wizard)
    wizard.shows(
        "label You have been successfully installed selected products. focused",
        "push button Go Back disabled",
        "push button Close",
    )
    assert wizard.result_line() == "Ok\n"
    look_at_what_was_installed()
    wizard.press("Close")
    wizard.ends()
