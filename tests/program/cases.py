"""What the whole-program tests share: cases that act and look as a user does, and the way to run them.

class SomeCase(ProgramCase):
    def test_something(self):
        self.desktop.start()

if __name__ == "__main__":
    run()
"""

import pathlib
import shutil
import subprocess
import sys
import unittest

from desktop import Desktop

SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "samples"


def vocabulary(pairs, version="3.1.0"):
    """The bytes of a vocabulary file."""
    lines = ["Glosaria", version, "", "[Font Info]", '"Arial"', "10", "#FALSE#", "#FALSE#", "0", "", "[Grid Info]",
             "340", "4000", "4000", str(len(pairs)), "", "[Vocabulary]"]
    for first, second in [("English", "German"), *pairs]:
        lines += [first + "   [0000000285]", second]
    return ("\r\n".join(lines) + "\r\n").encode("cp1252")


class ProgramCase(unittest.TestCase):
    """Each case finds a first run: an empty home."""

    desktop = None  # one for all cases

    def setUp(self):
        self.home = self.desktop.fresh_home()
        self.addCleanup(self.desktop.end_programs)

    def sample(self, name):
        """A copy of a sample that the case may change."""
        return pathlib.Path(shutil.copy(SAMPLES / name, self.home))

    def open(self, file, through=()):
        """Starts the program on a file and waits for its words."""
        program = self.desktop.start("--no-splash", file, through=through)
        self.desktop.wait(lambda: self.desktop.find("table") and self.desktop.cell(0, 0), "the words")
        return program

    def mounting(self, command, place):
        """Starts the program where a command has mounted something on a place ("$0") that it alone sees so."""
        if subprocess.run(["unshare", "-m", "true"], capture_output=True, check=False).returncode != 0:
            self.skipTest("nothing may be mounted here")
        return ["unshare", "-m", "sh", "-c", command + ' && exec "$@"', place]

    def save_as(self, file):
        self.open_dialog("Save Glosaria Document", "alt+f", "a")
        self.desktop.type(f"{file}\r")

    def close_document(self, *keys):
        self.desktop.key(*keys or ("alt+f", "c"))
        self.desktop.wait(lambda: not self.desktop.find("table"), "the document to close")

    # Words

    def column(self, column, rows=5):
        table = self.desktop.wait_for("table").queryTable()
        return [table.getAccessibleAt(row, column).name for row in range(rows)]

    def expect_column(self, column, words):
        self.desktop.wait(
            lambda: self.column(column, len(words)) == words,
            lambda: f"{words} instead of {self.column(column, len(words))}",
        )

    # Menus and dialogs

    def choose_with_mouse(self, menu, entry):
        """Opens a menu by a click and clicks on its entry."""
        item = self.desktop.wait_for("menu item", menu)
        self.desktop.click_on(item)
        self.desktop.click_on(self.desktop.wait_for("menu item", entry, item))

    def open_dialog(self, name, *keys):
        self.desktop.key(*keys)
        self.expect_active(name=name)

    def close_dialog(self, name, key, role="frame", back_to=None):
        """Closes a dialog and waits until the window behind it, the main window as a rule, takes the keys."""
        self.desktop.key(key)
        self.expect_closed(name)
        self.expect_active(role, back_to)

    def expect_closed(self, name):
        find = self.desktop.find
        self.desktop.wait(lambda: not (find("dialog", name) or find("alert", name)), f"the end of {name}")

    def expect_active(self, role=None, name=None):
        self.desktop.wait(
            lambda: self.desktop.is_active(self.desktop.find(role, name)), f"{name or role} to take the keys"
        )


def run(environment=None, size="1280x800"):
    """Runs the cases of the script that was started as script.py <program> [unittest arguments]."""
    with Desktop(sys.argv.pop(1), size, environment) as ProgramCase.desktop:
        unittest.main(verbosity=2, warnings="ignore")
