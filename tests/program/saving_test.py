#!/usr/bin/env python3
"""Saving where it goes wrong: saving_test.py <program> [unittest arguments]."""

import shutil
import time

from cases import ProgramCase, run
from random_user import read_vocabulary

READ_ONLY = 'mount --bind "$0" "$0" && mount -o remount,bind,ro "$0"'


class SavingCase(ProgramCase):
    """The old content or the new, never some of each; and the words stay in the window."""

    def setUp(self):
        super().setUp()
        self.file = self.sample("german/06-family-and-people.gla")
        self.before = self.file.read_bytes()
        self.first = read_vocabulary(self.before)[0]

    def edit(self, through=()):
        program = self.open(self.file, through=through)
        self.desktop.type("edited\r")
        self.expect_column(0, ["edited"])
        return program

    def expect_failure(self):
        """Waits for the box that tells it, and closes it."""
        box = self.desktop.wait_for("alert", "Glosaria Alert")
        self.assertIn("could not be saved", self.desktop.wait_for("label", within=box).name)
        self.close_dialog("Glosaria Alert", "Return")
        self.expect_column(0, ["edited"])

    def test_a_folder_that_is_read_only(self):
        folder = self.home / "words"
        folder.mkdir()
        self.file = shutil.move(self.file, folder / "words.gla")
        self.edit(through=self.mounting(READ_ONLY, folder))
        self.desktop.key("ctrl+s")
        self.expect_failure()
        self.assertEqual(self.file.read_bytes(), self.before)
        # Elsewhere it can be saved.
        elsewhere = self.home / "elsewhere.gla"
        self.save_as(elsewhere)
        self.desktop.wait(elsewhere.exists, "the saved file")
        self.assertEqual(read_vocabulary(elsewhere.read_bytes())[0], ("edited", self.first[1]))

    def test_where_no_copy_can_be_kept_either(self):
        """The user is told once, and not while a word is being typed."""
        (self.home / "state" / "glosaria").write_text("in the way")
        self.edit()
        box = self.desktop.wait_for("alert", "Glosaria Alert")
        self.assertIn("can keep no copies", self.desktop.wait_for("label", within=box).name)
        self.close_dialog("Glosaria Alert", "Return")
        self.desktop.type("again\r")
        time.sleep(5)
        self.assertIsNone(self.desktop.find("alert"))


if __name__ == "__main__":
    run()
