#!/usr/bin/env python3
"""Kills the program at random moments: recovery_test.py <program> [unittest arguments].

The variables ROUNDS and SEED set how often it is killed and which moments come first.
"""

import os
import random
import time

from cases import ProgramCase, run, vocabulary
from random_user import RandomUser, as_stored, read_vocabulary, words_since

PROMISE = 5  # seconds within which a change is safe
WORDS = [(f"word {number}", f"Wort {number}") for number in range(1, 21)]
LONG = 30000  # pairs, to be killed amid writing
IN_PLACE = 'mount --bind "$0" "$0"'  # the file cannot be exchanged for another, and is overwritten


class RecoveryCase(ProgramCase):
    """Rounds of editing, saving, a kill and a recovery, which may be killed as well."""

    def test_no_kill_loses_more_than_the_last_seconds(self):
        seed, offered = int(os.environ.get("SEED", 0)), 0
        for number in range(seed, seed + int(os.environ.get("ROUNDS", 8))):
            with self.subTest(seed=number):
                self.random = random.Random(number)
                self.home = self.desktop.fresh_home()
                offered += self.round()
            self.desktop.end_programs()
        self.assertTrue(offered)

    def round(self):
        """Returns whether something was offered after the kill."""
        self.file = None if self.random.random() < 0.3 else self.home / "words.gla"
        words = [] if not self.file else WORDS * (LONG // len(WORDS)) if self.random.random() < 0.2 else WORDS
        in_place = self.file and self.random.random() < 0.3
        program = self.begin(words, in_place)
        user = RandomUser(self.desktop, self.random, words)
        end = time.monotonic() + self.random.uniform(0.2, 9)
        while time.monotonic() < end:
            user.act()
            if self.file and self.random.random() < 0.3:
                user.save()
        self.random.choice([lambda: None, user.act, lambda: user.overwrite(leave_open=True)])()
        if self.file and self.random.random() < 0.4:
            user.save()
        time.sleep(self.random.choice([0, self.random.uniform(0, 0.1), self.random.uniform(0, 4)]))
        killed = time.monotonic()
        self.desktop.kill(program)

        self.desktop.through = ()
        if self.file and not (in_place and self.copies()):
            self.expect_one_of(words_since(user.saved, killed - PROMISE), self.stored(), "the file holds")
        while self.random.random() < 0.4:
            self.crash_again()
        words, offered = self.recover()
        self.expect_one_of(words_since(user.states, killed - PROMISE), words, "what came back is")
        return offered

    def expect_one_of(self, allowed, words, what):
        """Without printing whole vocabularies."""
        if words not in allowed:
            tops = "\n".join(f"{len(one)} rows: {one[:12]}" for one in allowed)
            self.fail(f"{what} {len(words)} rows: {words[:12]}\n, none of\n{tops}")

    def begin(self, words, in_place):
        if self.file:
            self.file.write_bytes(vocabulary(words))
            if in_place:
                self.mount(IN_PLACE, self.file)
            return self.open(self.file)
        program = self.desktop.start("--no-splash")
        self.desktop.key("ctrl+n")
        self.desktop.wait_for("table")
        return program

    def copies(self):
        return list(self.home.glob("state/**/*.copy"))

    def stored(self):
        return read_vocabulary(self.file.read_bytes()) if self.file else ()

    def crash_again(self):
        """A start that does not last, with or without what it offers being taken."""
        program = self.desktop.launch("--no-splash")
        if self.copies() and self.random.random() < 0.5 and self.is_offered():
            self.desktop.key("alt+r")
        time.sleep(self.random.uniform(0, 1))
        self.desktop.kill(program)

    def is_offered(self):
        """Waits until the program offers its copies or has found them to hold no more than the file."""
        def decided():
            return self.desktop.active_title() == "Recovered Vocabularies" or not self.copies()

        self.desktop.wait(decided, "an offer")
        return bool(self.copies())

    def recover(self):
        """The words after a start that takes what is offered, and whether anything was."""
        program = self.desktop.launch("--no-splash")
        if not self.is_offered():
            return self.stored(), False
        self.desktop.key("alt+r")
        self.desktop.wait_for("frame", "words" if self.file else "Untitled 1")
        self.expect_active("frame")
        saved = self.home / "recovered.gla"
        self.save_as(saved)
        self.desktop.kill(program)
        return as_stored(read_vocabulary(saved.read_bytes())), True

    def test_where_no_copy_can_be_kept_the_user_is_told_once(self):
        """And not while a word is being typed."""
        (self.home / "state" / "glosaria").write_text("in the way")
        self.open(self.sample())
        self.desktop.type("edited\r")
        self.close_alert("can keep no copies")
        self.desktop.type("again\r")
        time.sleep(5)
        self.assertIsNone(self.desktop.find("alert"))


if __name__ == "__main__":
    run()
