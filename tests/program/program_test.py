#!/usr/bin/env python3
"""Runs the built program as a user does: program_test.py <program> [unittest arguments]."""

from cases import ProgramCase, run


class EndCase(ProgramCase):
    """The program is told to end from outside, by the signal that a system sends when it shuts down."""

    def test_dialogs_are_left_before_documents_close(self):
        file = self.sample("german/06-family-and-people.gla")
        for dialog, key in {"Sort": "s", "Font": "f", "Languages": "l", "Set Row Height": "r"}.items():
            program = self.open(file)
            self.desktop.key("ctrl+n")
            self.desktop.wait_for("frame", "Untitled 1")
            self.desktop.type("x\r")
            self.desktop.key("ctrl+Tab")
            self.desktop.wait_for("frame", "English -> German In Order")
            self.open_dialog(dialog, "alt+v", key)
            program.terminate()
            # The dialog's document has closed by now; the other one asks.
            self.expect_active("alert", "Glosaria Alert")
            self.assertFalse(self.desktop.find("dialog", dialog))
            self.desktop.key("Escape")
            self.expect_column(0, ["x", ""])
            program.terminate()
            self.expect_active("alert", "Glosaria Alert")
            self.desktop.key("n")
            self.desktop.wait(lambda program=program: program.poll() is not None, "the end of the program")
            self.assertEqual(program.returncode, 0)


class HelpCase(ProgramCase):
    """Help that is read while the program waits for an answer."""

    def help_on(self, topic):
        return self.desktop.wait_for("frame", topic + " - Glosaria Help")

    def expect_help_closed(self, topic):
        self.desktop.wait(lambda: not self.desktop.find("frame", topic + " - Glosaria Help"), "the help to close")

    def test_f1_explains_a_dialog_and_the_search_finds_other_topics(self):
        self.open(self.sample("german/06-family-and-people.gla"))
        self.open_dialog("Sort", "alt+v", "s")
        self.desktop.key("F1")
        viewer = self.help_on("Sort")
        self.desktop.key("alt+s")
        self.desktop.wait_for("text", "Words:", viewer)
        self.desktop.type("arabic")
        self.desktop.key("Return")
        self.help_on("Accents and other scripts")
        self.desktop.key("Escape")
        self.expect_help_closed("Accents and other scripts")
        self.assertTrue(self.desktop.find("dialog", "Sort"), "the dialog is still open")


if __name__ == "__main__":
    run()
