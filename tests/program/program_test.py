#!/usr/bin/env python3
"""Runs the built program as a user does: program_test.py <program> [unittest arguments]."""

import pathlib
import shutil
import sys
import unittest

from desktop import Desktop

DESKTOP = None
SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "samples"


class ProgramCase(unittest.TestCase):
    """Each case finds a first run: an empty home."""

    def setUp(self):
        self.home = DESKTOP.fresh_home()
        self.addCleanup(DESKTOP.end_programs)

    def sample(self, name):
        """A copy of a sample that the case may change."""
        return pathlib.Path(shutil.copy(SAMPLES / name, self.home))


    def open(self, file):
        program = DESKTOP.start(file)
        DESKTOP.wait(lambda: DESKTOP.find("table") and DESKTOP.cell(0, 0), "the words")
        return program


class DocumentCase(ProgramCase):
    """What becomes of a file that the user opens and edits."""

    def test_an_edited_word_is_saved_and_nothing_else_changes(self):
        file = self.sample("german-basics.gla")
        before = file.read_bytes().split(b"\r\n")
        program = self.open(file)
        DESKTOP.type("the human being")
        DESKTOP.key("Return", "ctrl+s")
        expected = b"the human being   [0000000285]"
        DESKTOP.wait(lambda: expected in file.read_bytes(), "the saved word")
        self.assertEqual(DESKTOP.quit(program), 0)

        after = file.read_bytes().split(b"\r\n")
        first_pair = before.index(b"[Vocabulary]") + 3
        self.assertEqual(after, before[:first_pair] + [expected] + before[first_pair + 1:])

        self.open(file)
        self.assertEqual(DESKTOP.cell(0, 0), "the human being")
        self.assertEqual(DESKTOP.cell(0, 1), "der Mensch")


class EditingCase(ProgramCase):
    """A vocabulary that is made of copied words."""

    def column(self, column):
        table = DESKTOP.wait_for("table").queryTable()
        return [table.getAccessibleAt(row, column).name for row in range(5)]

    def expect_column(self, column, words):
        DESKTOP.wait(lambda: self.column(column) == words, f"{words} instead of {self.column(column)}")

    def open_dialog(self, name, *keys):
        DESKTOP.key(*keys)
        self.expect_active(name=name)

    def close_dialog(self, name, key, role="frame", back_to=None):
        """Closes a dialog and waits until the window behind it, the main window as a rule, takes the keys."""
        DESKTOP.key(key)
        DESKTOP.wait(lambda: not (DESKTOP.find("dialog", name) or DESKTOP.find("alert", name)), f"the end of {name}")
        self.expect_active(role, back_to)

    def expect_active(self, role=None, name=None):
        DESKTOP.wait(lambda: DESKTOP.is_active(DESKTOP.find(role, name)), f"{name or role} to take the keys")

    def choose(self, key, name):
        DESKTOP.key(key)
        DESKTOP.wait(lambda: DESKTOP.is_checked(DESKTOP.find("radio button", name)), f"{name} to be chosen")

    def test_copied_words_are_sorted_replaced_undone_and_saved(self):
        program = self.open(self.sample("german-basics.gla"))
        DESKTOP.key("shift+Down", "shift+Down", "shift+Down", "shift+Right", "ctrl+c", "ctrl+w")
        DESKTOP.wait(lambda: not DESKTOP.find("table"), "the sample to close")
        DESKTOP.key("ctrl+n")
        DESKTOP.wait_for("table")
        DESKTOP.key("ctrl+v")
        self.expect_column(0, ["the person", "the man", "the woman", "the child", ""])

        self.open_dialog("Sort", "alt+v", "s")
        self.choose("alt+2", "2 Language 2")
        self.choose("alt+d", "Descending")
        self.close_dialog("Sort", "Return")
        sorted_words = ["the woman", "the person", "the man", "the child", ""]
        self.expect_column(0, sorted_words)
        self.expect_column(1, ["die Frau", "der Mensch", "der Mann", "das Kind", ""])

        self.open_dialog("Replace", "ctrl+h")
        DESKTOP.type("the ")
        DESKTOP.key("alt+e")
        DESKTOP.type("a ")
        self.choose("alt+1", "1 Language 1")
        self.open_dialog("Glosaria Alert", "alt+a")
        self.close_dialog("Glosaria Alert", "Return", "dialog", "Replace")
        self.close_dialog("Replace", "Escape")
        self.expect_column(0, ["a woman", "a person", "a man", "a child", ""])
        DESKTOP.key("ctrl+z")
        self.expect_column(0, sorted_words)

        self.open_dialog("Font", "alt+v", "f")
        DESKTOP.key("alt+s")
        DESKTOP.type("14")
        self.close_dialog("Font", "Return")
        self.open_dialog("Set Row Height", "alt+v", "r")
        DESKTOP.type("40")
        self.close_dialog("Set Row Height", "Return")

        file = self.home / "copied.gla"
        self.open_dialog("Save Glosaria Document", "ctrl+s")
        DESKTOP.type(str(file))
        DESKTOP.key("Return")
        DESKTOP.wait(file.exists, "the saved file")
        self.assertEqual(DESKTOP.quit(program), 0)
        lines = file.read_bytes().split(b"\r\n")
        self.assertEqual(lines[5], b"14")
        self.assertEqual(lines[19:23], [b"the woman   [0000000600]", b"die Frau", b"the person   [0000000285]", b"der Mensch"])
        self.open(file)
        self.expect_column(0, sorted_words)


class HelpCase(ProgramCase):
    """Help that is read while the program waits for an answer."""

    def help_on(self, topic):
        return DESKTOP.wait_for("frame", topic + " - Glosaria Help")

    def test_the_help_button_keeps_the_question_and_its_window_can_be_used(self):
        program = self.open(self.sample("german-basics.gla"))
        DESKTOP.type("x")
        DESKTOP.key("Return", "ctrl+w")
        alert = DESKTOP.wait_for(name="Glosaria Alert")
        DESKTOP.click_on(DESKTOP.wait_for("push button", "Help", alert))
        viewer = self.help_on("Saving changes before closing")
        DESKTOP.click_on(DESKTOP.wait_for("push button", "Home", viewer))
        self.help_on("Welcome to Glosaria")
        DESKTOP.key("Escape")
        DESKTOP.wait(lambda: not DESKTOP.find("frame", "Welcome to Glosaria - Glosaria Help"), "the help to close")
        DESKTOP.wait_for(name="Glosaria Alert")
        DESKTOP.key("n")
        DESKTOP.wait(lambda: not DESKTOP.find("table"), "the document to close")
        self.assertEqual(DESKTOP.quit(program), 0)

    def test_f1_explains_a_dialog_and_the_search_finds_other_topics(self):
        self.open(self.sample("german-basics.gla"))
        DESKTOP.key("alt+v", "s")
        DESKTOP.wait_for("dialog", "Sort")
        DESKTOP.key("F1")
        viewer = self.help_on("Sort")
        DESKTOP.key("alt+s")
        DESKTOP.wait_for("text", "Words:", viewer)
        DESKTOP.type("arabic")
        DESKTOP.key("Return")
        self.help_on("Accents and other scripts")
        DESKTOP.key("Escape")
        DESKTOP.wait(lambda: not DESKTOP.find("frame", "Accents and other scripts - Glosaria Help"), "the help to close")
        self.assertTrue(DESKTOP.find("dialog", "Sort"), "the dialog is still open")


class ScreenReaderCase(ProgramCase):
    """What a user hears who does not see the screen."""

    MENUS = ["File", "Edit", "Vocabulary", "Mode", "Quiz", "Window", "Help"]

    def test_menus_cells_and_questions_can_be_heard(self):
        program = self.open(self.sample("german-basics.gla"))
        menu_bar = DESKTOP.wait_for(role="menu bar")
        self.assertEqual([menu.name for menu in menu_bar], self.MENUS)

        table = DESKTOP.find("table").queryTable()
        self.assertEqual([table.getColumnHeader(column).name for column in (0, 1)], ["English", "German"])
        self.assertEqual(table.getRowHeader(4).name, "5")
        for row, column in ((-1, 0), (0, -1), (table.nRows, 0), (0, table.nColumns), (2**31 - 1, 2**31 - 1)):
            self.assertIsNone(table.getAccessibleAt(row, column))
        self.assertEqual(DESKTOP.cell(0, 0), "the person")

        DESKTOP.type("somebody")
        DESKTOP.key("Return", "ctrl+w")
        box = DESKTOP.wait_for(name="Glosaria Alert")
        self.assertIn("[german-basics] has changed.", DESKTOP.wait_for("label", within=box).name)
        buttons = {button.name for button in DESKTOP.find_all("push button", within=box)}
        self.assertEqual(buttons, {"Yes", "No", "Cancel", "Help"})
        DESKTOP.key("alt+n")
        DESKTOP.wait(lambda: not DESKTOP.find("table"), "the document to close")
        self.assertEqual(DESKTOP.quit(program), 0)


if __name__ == "__main__":
    with Desktop(sys.argv.pop(1)) as DESKTOP:
        unittest.main(verbosity=2, warnings="ignore")
