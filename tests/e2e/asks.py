"""Wizards of a user without rights, who is asked for an administrator's password by the real polkit."""

import os
import signal
import subprocess
import sys
import time

from desktop import HOST_FOLDERS, Desktop, Wizard, wait_for
from impatience import Screen, click, clicking, try_everything

BUNDLE, AGENT, HOLD = sys.argv[1:]
RUNNER = BUNDLE + "/bin/corvellane-command-runner"
MAKER = "/Applications/Corvellane/"
LIGHTROOM = os.path.expanduser("~/Library/Application Support/Adobe/Lightroom/")
SUCCESS = "label You have been successfully installed selected products. focused"
FAILURE = "label The installation was not completed successfully. focused"


def start(desktop, answers):
    wizard = Wizard(desktop, BUNDLE, os.path.expanduser("~/output"), [AGENT, answers])
    wizard.walk_to_the_confirmation()
    return wizard


def install(wizard):
    """Presses "Install" by the keyboard, which does not wait for what comes of it."""
    assert wizard.focus_after("Tab") == "Install"
    wizard.key("space")


def prompts(wizard):
    return wizard.printed().count("prompt: ")


def wait_until_gone(program):
    wait_for(f"the end of {program}", lambda: subprocess.run(["pgrep", "-f", "^" + program]).returncode == 1)


def kill(wizard):
    os.kill(wizard.pid, signal.SIGKILL)
    wizard.process.wait()
    wait_until_gone(RUNNER)


def hold_copies():
    open(HOLD + "/wanted", "w").close()


def let_copies_go():
    os.remove(HOLD + "/wanted")
    wait_for("the end of the copy", lambda: not os.path.exists(HOLD + "/held"))


def wait_until_a_copy_is_held():
    wait_for("a copy", lambda: os.path.exists(HOLD + "/held"))


def killed_while_it_asks(desktop):
    wizard = start(desktop, "wait")
    install(wizard)
    wait_for("the prompt", lambda: prompts(wizard))
    screen = Screen(wizard)
    try_everything(wizard, screen)
    screen.answers_a_ping()
    assert "push button Install focused" in wizard.said(), "nobody is heard while the password is asked for"
    kill(wizard)
    wait_until_gone("/usr/bin/pkexec")
    assert not os.path.exists(MAKER)


def dismissed_while_somebody_presses_everything(desktop):
    wizard = start(desktop, "wait")
    install(wizard)
    wait_for("the prompt", lambda: prompts(wizard))
    impatient = clicking(wizard, "Next", 20)
    try_everything(wizard, Screen(wizard))
    wizard.process.send_signal(signal.SIGUSR1)
    wait_for("the page", lambda: "push button Next focused" in wizard.said())
    assert impatient.wait() == 0
    assert "push button Next focused" in wizard.said(), "nobody was heard"
    time.sleep(1)  # a pause: from now on a click is meant for what is shown now
    click(wizard, "Next")
    wait_for("the confirmation", lambda: any(words.startswith("push button Install") for words in wizard.said()))
    kill(wizard)


def killed_between_two_commands(desktop):
    wizard = start(desktop, "password:right")
    hold_copies()
    install(wizard)
    wait_until_a_copy_is_held()
    os.kill(wizard.pid, signal.SIGSTOP)
    let_copies_go()
    kill(wizard)
    assert os.path.exists(MAKER + "Velvetgrain 3 Lightroom/velvetgrain3.lrdevplugin")
    assert not os.path.exists(LIGHTROOM), "nothing after it ran"


def untick_the_first_product(wizard):
    wizard.press_until("Cancel", "push button Next focused")
    wizard.press_until("Go Back", "label Select Products to install")
    while wizard.focus_after("Tab") != "Select Products to install":
        pass
    wizard.key("space")
    wait_for("the tick to go", lambda: "check box Velvetgrain Lightroom focused" in wizard.said())
    wizard.press_until("Next", "label The following Products will be installed")
    wizard.press_until("Next", "push button Install")


def killed_during_a_copy(desktop):
    wizard = start(desktop, "password:right")
    untick_the_first_product(wizard)
    hold_copies()
    install(wizard)
    wait_until_a_copy_is_held()
    os.kill(wizard.pid, signal.SIGKILL)
    wizard.process.wait()
    let_copies_go()
    wait_until_gone(RUNNER)
    assert os.path.exists(MAKER + "Velvetgrain.plugin/Contents"), "a copy that was begun is finished"
    assert os.listdir(HOST_FOLDERS[1]) == [], "nothing after it ran"


def refused(desktop, answer, message):
    wizard = start(desktop, answer)
    install(wizard)
    wait_for("failure", lambda: FAILURE in wizard.said())
    assert message in wizard.result_line()
    wizard.press("Close")
    wizard.ends()


def dismissed_and_asked_again(desktop):
    wizard = start(desktop, "dismiss,password:right")
    install(wizard)
    wait_for("the prompt", lambda: prompts(wizard) == 1)
    wizard.press_until("Next", "push button Install")
    assert not os.path.exists(LIGHTROOM)
    install(wizard)
    wait_for("success", lambda: SUCCESS in wizard.said())
    assert prompts(wizard) == 2
    assert wizard.result_line() == "Ok\n"
    wizard.press("Close")
    wizard.ends()


def owners(folder):
    found = [os.path.join(path, name) for path, folders, files in os.walk(folder) for name in folders + files]
    assert found, folder
    return {os.lstat(path).st_uid for path in found}


with Desktop() as desktop:
    killed_while_it_asks(desktop)
    dismissed_while_somebody_presses_everything(desktop)
    killed_between_two_commands(desktop)
    killed_during_a_copy(desktop)
    refused(desktop, "password:wrong", "The administrator user name or password was incorrect.")
    refused(desktop, "none", "no authentication agent is running")
    dismissed_and_asked_again(desktop)
    assert owners(MAKER) | owners("/Library") == {0}
    assert owners(os.path.expanduser("~/Library")) == {os.getuid()}
