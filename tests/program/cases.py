"""What the whole-program tests share: cases that act and look as a user does, and the way to run them."""

import pathlib
import shutil
import sys
import unittest

from desktop import Desktop

SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "samples"
LESSON = "german/06-family-and-people.gla"


def vocabulary(pairs, version="3.1.0", encoding="cp1252"):
    """The bytes of a vocabulary file."""
    lines = ["Glosaria", version, "", "[Font Info]", '"Arial"', "10", "#FALSE#", "#FALSE#", "0", "", "[Grid Info]",
             "340", "4000", "4000", str(len(pairs)), "", "[Vocabulary]"]
    for first, second in [("English", "German"), *pairs]:
        lines += [first + "   [0000000285]", second]
    return ("\r\n".join(lines) + "\r\n").encode(encoding)


class ProgramCase(unittest.TestCase):
    """Each case finds a first run: an empty home."""

    desktop = None  # one for all cases

    def setUp(self):
        self.home = self.desktop.fresh_home()
        self.addCleanup(self.desktop.end_programs)

    def sample(self, name=LESSON):
        """A copy of a sample that the case may change."""
        return pathlib.Path(shutil.copy(SAMPLES / name, self.home))

    def open(self, file):
        """Starts the program on a file and waits for its words."""
        program = self.desktop.start("--no-splash", file)
        self.desktop.wait(lambda: self.desktop.table().getAccessibleAt(0, 0).name, "the words")
        return program

    def mount(self, command, place):
        """Programs start where a command has mounted something on a place ("$0") that they alone see so."""
        if not self.desktop.succeeds("unshare", "-m", "true"):
            self.skipTest("nothing may be mounted here")
        self.desktop.through = ("unshare", "-m", "sh", "-c", command + ' && exec "$@"', place)

    def save_as(self, file):
        self.open_dialog("Save Glosaria Document", "alt+f", "a")
        self.desktop.type(f"{file}\r")
        self.desktop.wait(file.exists, "the saved file")

    def close_document(self, *keys):
        self.desktop.key(*keys or ("alt+f", "c"))
        self.desktop.wait(lambda: not self.desktop.find("table"), "the document to close")

    def expect_column(self, column, words):
        def shown():
            table = self.desktop.table()
            return [table.getAccessibleAt(row, column).name for row in range(len(words))]

        self.desktop.expect(shown, words)

    # Menus and dialogs

    def choose_with_mouse(self, menu, entry):
        """Opens a menu by a click and clicks on its entry."""
        item = self.desktop.wait_for("menu item", menu)
        self.desktop.click_on(item)
        self.desktop.click_on(self.desktop.wait_for("menu item", entry, item))

    def open_dialog(self, name, *keys):
        self.desktop.key(*keys)
        self.expect_active(name=name)

    def close_dialog(self, name, key, back_to=None):
        """Closes a dialog and waits until the window behind it, the main window as a rule, takes the keys."""
        self.desktop.key(key)
        find = self.desktop.find
        self.desktop.wait(lambda: not (find("dialog", name) or find("alert", name)), f"the end of {name}")
        self.expect_active("frame", back_to)

    def expect_active(self, role=None, name=None):
        def active():
            window = self.desktop.find(role, name)
            return window and self.desktop.has(window, "ACTIVE")

        self.desktop.wait(active, f"{name or role} to take the keys")

    def close_alert(self, text):
        """Waits for a message with a text, and closes it."""
        box = self.desktop.wait_for("alert", "Glosaria Alert")
        self.assertIn(text, self.desktop.wait_for("label", within=box).name)
        self.close_dialog(box.name, "Return")


def run(environment=None, size="1280x800"):
    """Runs the cases of the script that was started as script.py <program> [unittest arguments]."""
    with Desktop(sys.argv.pop(1), size, environment) as ProgramCase.desktop:
        unittest.main(verbosity=2, warnings="ignore")
