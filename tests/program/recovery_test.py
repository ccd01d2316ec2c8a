#!/usr/bin/env python3
"""Kills the program at random moments and compares what comes back with what was there.

recovery_test.py <program> [--rounds N] [--seed S] [unittest arguments]
"""

import argparse
import random
import sys
import time

from cases import ProgramCase, run, vocabulary
from random_user import RandomUser, as_stored, read_vocabulary

PROMISE = 5  # seconds within which a change is safe
WORDS = [(f"word {number}", f"Wort {number}") for number in range(1, 21)]
LONG = 30000  # pairs, to be killed amid writing
IN_PLACE = 'mount --bind "$0" "$0"'  # the file cannot be exchanged for another, and is overwritten


class RecoveryCase(ProgramCase):
    """Rounds of editing, saving, a kill and a recovery, which may be killed as well."""

    rounds = 8
    seed = 0

    def test_no_kill_loses_more_than_the_last_seconds(self):
        offered = 0
        for number in range(self.seed, self.seed + self.rounds):
            with self.subTest(seed=number):
                self.random = random.Random(number)
                self.home = self.desktop.fresh_home()
                offered += self.round()
            self.desktop.end_programs()
        print(f"something was offered in {offered} of {self.rounds} rounds")
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

        if self.file and not (in_place and self.copies()):
            stored = read_vocabulary(self.file.read_bytes())
            self.expect_one_of(user.saved_since(killed - PROMISE), stored, "the file holds")
        while self.random.random() < 0.4:
            self.crash_again()
        words, offered = self.recover()
        self.expect_one_of(user.states_since(killed - PROMISE), words, "what came back is")
        return offered

    def expect_one_of(self, allowed, words, what):
        """Without printing whole vocabularies."""
        if words not in allowed:
            tops = "\n".join(f"{len(one)} rows: {one[:12]}" for one in allowed)
            self.fail(f"{what} {len(words)} rows: {words[:12]}\n, none of\n{tops}")

    def begin(self, words, in_place):
        if self.file:
            self.file.write_bytes(vocabulary(words))
            return self.open(self.file, through=self.mounting(IN_PLACE, self.file) if in_place else ())
        program = self.desktop.start("--no-splash")
        self.desktop.key("ctrl+n")
        self.desktop.wait_for("table")
        return program

    def copies(self):
        return list(self.home.glob("state/**/*.copy"))

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
        if not self.copies():
            return (read_vocabulary(self.file.read_bytes()) if self.file else ()), False
        program = self.desktop.launch("--no-splash")
        if not self.is_offered():
            return read_vocabulary(self.file.read_bytes()), False
        self.desktop.key("alt+r")
        name = "words" if self.file else "Untitled 1"
        self.desktop.wait_for("frame", name)
        self.expect_active("frame")
        saved = self.home / "recovered.gla"
        self.save_as(saved)
        self.desktop.wait(saved.exists, "the saved file")
        self.desktop.kill(program)
        return as_stored(read_vocabulary(saved.read_bytes())), True


if __name__ == "__main__":
    parser = argparse.ArgumentParser(add_help=False)
    parser.add_argument("--rounds", type=int, default=RecoveryCase.rounds)
    parser.add_argument("--seed", type=int, default=RecoveryCase.seed)
    chosen, sys.argv[1:] = parser.parse_known_args()
    RecoveryCase.rounds, RecoveryCase.seed = chosen.rounds, chosen.seed
    run()
