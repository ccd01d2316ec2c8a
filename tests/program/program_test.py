#!/usr/bin/env python3
"""Runs the built program as a user does: program_test.py <program> [unittest arguments]."""

from cases import ProgramCase, run


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
