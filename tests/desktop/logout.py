#!/usr/bin/env python3
"""The user logs out of a real session with changed words: logout.py <program>"""

import pathlib
import shutil

from cases import ProgramCase, run

SESSION = pathlib.Path(__file__).parent / "parts" / "xfce4-session.xml"


class LogoutCase(ProgramCase):
    def setUp(self):
        self.home = self.desktop.home  # the one that the session's services know
        self.note, client = self.home / "manager", self.home / "client.sh"
        client.write_text(f'#!/bin/sh\necho "$SESSION_MANAGER" > {self.note}\nexec sleep 1000\n')
        client.chmod(0o755)
        settings = self.home / "config/xfce4/xfconf/xfce-perchannel-xml"
        settings.mkdir(parents=True)
        (settings / SESSION.name).write_text(SESSION.read_text().replace("CLIENT", str(client)))
        self.addCleanup(self.desktop.end_programs)

    def begin_session(self):
        """A session, and in it the program with a word that is changed and not saved; returns its file."""
        self.note.unlink(missing_ok=True)
        shutil.rmtree(self.home / "cache/sessions", ignore_errors=True)  # what the last one has remembered
        self.session = self.desktop.start_other("xfce4-session", "--disable-tcp")
        self.desktop.wait(lambda: self.note.exists() and self.note.read_text().strip(), "the session")
        self.desktop.set(SESSION_MANAGER=self.note.read_text().strip())
        file = self.sample()
        self.program = self.open(file)
        self.desktop.type("changed\r")
        self.expect_column(0, ["changed", "the woman"])
        return file

    def log_out(self):
        self.desktop.start_other("xfce4-session-logout", "--logout")

    def expect_end(self):
        self.desktop.wait(lambda: None not in (self.program.poll(), self.session.poll()), "the end of the session")
        self.desktop.set(SESSION_MANAGER=None)
        self.desktop.start_other("openbox", "--sm-disable")  # the session has ended that as well

    def test_logging_out_asks_can_be_cancelled_and_loses_nothing(self):
        file = self.begin_session()
        for _ in range(2):
            self.log_out()
            self.expect_active("alert", "Glosaria Alert")
            self.close_dialog("Glosaria Alert", "Escape", back_to="Glosaria")
        self.open_dialog("Sort", "alt+v", "s")
        self.log_out()  # does not wait for the dialog
        self.expect_end()
        self.assertNotIn(b"changed", file.read_bytes())
        program = self.desktop.start("--no-splash")
        self.expect_active("dialog", "Recovered Vocabularies")
        self.desktop.key("Return")
        self.expect_column(0, ["changed", "the woman"])
        self.desktop.key("ctrl+s")
        self.assertEqual(self.desktop.quit(program), 0)

        file = self.begin_session()
        self.log_out()
        self.expect_active("alert", "Glosaria Alert")
        self.desktop.key("Return")
        self.expect_end()
        self.assertIn(b"changed", file.read_bytes())


if __name__ == "__main__":
    run()
