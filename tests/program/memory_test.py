#!/usr/bin/env python3
"""What is remembered of quizzes, over days and after a kill: memory_test.py <program> [unittest arguments]."""

import contextlib
import os
import sqlite3

from cases import ProgramCase, run, vocabulary

WORDS = [("one", "eins"), ("two", "zwei"), ("three", "drei"), ("four", "vier"), ("five", "sechs")]
QUIZ = "Question and Answer - list"
CLOCK = "/usr/$LIB/faketime/libfaketimeMT.so.1"
MODE = "English -> German In Order"


class MemoryCase(ProgramCase):
    """Each case has a list of five words."""

    def setUp(self):
        super().setUp()
        self.file = self.home / "list.gla"
        self.file.write_bytes(vocabulary(WORDS))
        self.store = self.home / "data" / "glosaria" / "memory.sqlite"

    def test_words_are_due_when_their_days_have_come(self):
        if "ASAN_OPTIONS" in os.environ:
            self.skipTest("the sanitizer's library must be loaded before the clock's")
        days = [  # day, due in the morning, asked that day, missed of them, what the quiz says at its end
            ("2026-03-02", 0, WORDS, {"two", "five"}, "Words of this list are due tomorrow (2)."),
            ("2026-03-03", 2, [WORDS[1], WORDS[4]], set(), "Words of this list are due tomorrow (3)."),
            ("2026-03-04", 3, [WORDS[0], WORDS[2], WORDS[3]], {"one"}, "Words of this list are due tomorrow (3)."),
            ("2026-03-05", 3, [], set(), None),
            ("2025-03-05", 5, [], set(), None),  # a clock that was set back: what was asked later is asked now
            ("2036-03-05", 5, [], set(), None),
        ]
        for day, due, asked, missed, told in days:
            with self.subTest(day=day):
                self.desktop.through = ("env", f"LD_PRELOAD={CLOCK}", f"FAKETIME=@{day} 12:00:00",
                                        "FAKETIME_DONT_FAKE_MONOTONIC=1")
                program = self.open(self.file)
                self.assertNotIn("qsqlite", open(f"/proc/{program.pid}/maps", encoding="utf-8").read(), "not needed yet")
                self.desktop.key("alt+q", "w", "d")
                self.desktop.wait_for("frame", f"{MODE} (due: {due})")
                if due == 0:
                    self.desktop.key("alt+q", "w", "a")
                if asked:
                    self.answer(asked, missed)
                    self.desktop.wait_for("label", told)
                    self.close_dialog(QUIZ, "Escape")
                    self.desktop.key("alt+q", "w", "d")
                    self.desktop.wait_for("frame", f"{MODE} (due: 0)")
                self.assertEqual(self.desktop.quit(program), 0)
        self.assertEqual(self.answers(), 10)

    def test_a_killed_program_loses_one_answer_at_most(self):
        program = self.open(self.file)
        self.answer(WORDS[:4])
        self.desktop.kill(program)
        self.assertGreaterEqual(self.answers(), 3)
        self.open(self.file)
        self.answer(WORDS)
        self.close_dialog(QUIZ, "Escape")
        self.desktop.wait(lambda: self.answers() >= 8, "the next answers")

    # Ways to go

    def answer(self, words, missed=()):
        """Begins a quiz and answers the questions, which are asked in this order."""
        self.open_dialog(QUIZ, "alt+q", "q")
        for count, (asked, answer) in enumerate(words, 1):
            self.desktop.wait_for("label", asked)
            self.desktop.type(("wrong" if asked in missed else answer) + "\r")
            self.desktop.wait_for("label", f"Answered Questions: {count}")

    def answers(self):
        with contextlib.closing(sqlite3.connect(self.store)) as store:
            return store.execute("SELECT count(*) FROM answer").fetchone()[0]


if __name__ == "__main__":
    run()
