#!/usr/bin/env python3
"""Listens to Orca on a learner's way through the program: screen_reader.py <program>. All it says is left in
screen_reader.txt."""

from cases import ProgramCase, run, vocabulary
from parts.orca import Orca

WORDS = [("dog", "Hund"), ("cat", "Katze"), ("cow", "Kuh"), ("horse", "Pferd")]
STEPS = [  # the user's keys, texts in quotes, and what is to be heard before the next one
    ("", "Glosaria frame", "New vocabulary link"),
    ("ctrl+o", "Open Glosaria Document dialog", "File name"),
    ("'words.gla' Return", "Glosaria frame", "Vocabulary", "table with 5 rows", "dog", "Hund"),
    ("Down", "cat", "Katze"),
    ("Right", "German column header", "Katze"),
    ("F2", "Cell B2 text", "Katze"),
    ("Home", "K"),
    ("Escape", "Katze"),
    ("ctrl+f", "Find dialog", "Find text"),
    ("Escape", "table", "cat", "Katze"),
    ("alt+q", "Practice"),
    ("q", "Question and Answer - words dialog", "Answer in German", "English: dog. Question 1"),
    ("'Hund' Return", "Correct. English: cat. Question 2 of 4, 1 correct, 0 incorrect"),
    ("'Kaze' Return", "Incorrect. The correct answer is Katze", "missing: t", "English: cow. Question 3 of 4"),
    ("alt+r", "Now correct. English: cow"),
    ("alt+h", "notification K"),
    ("'uh' Return", "Correct. English: horse"),
    ("'x' Return", "Done push button", "Incorrect. The correct answer is Pferd", "Summary: 3 correct, 1 incorrect"),
    ("Escape", "table"),
    ("alt+q", "Practice"),
    ("p", "Practice - words dialog", "I know push button", "English: dog"),
    ("alt+o", "notification Hund", "Incorrect. The correct answer is Hund. English: cat. Question 2 of 4"),
    ("Escape", "table"),
    ("alt+q", "Practice"),
    ("m", "Multiple Choice - words dialog", "radio button", "English: dog"),
    ("Return", "Incorrect. The correct answer is Hund. English: cat. Question 2 of 4"),
    ("Escape", "table"),
]
NOISE = "layered pane"


class ScreenReaderCase(ProgramCase):
    def test_a_learner_hears_all_that_counts(self):
        (self.home / "words.gla").write_bytes(vocabulary(WORDS))
        orca = Orca(self.desktop)
        self.desktop.start("--no-splash")
        with open("screen_reader.txt", "w", encoding="utf-8") as log:
            print("What Orca says on dog, cat, cow and horse; after > what the user typed or pressed.\n", file=log)
            for keys, *expected in STEPS:
                for key in keys.split():
                    (self.write if key[0] == "'" else self.press)(key.strip("'"))
                said, missing = orca.hear(expected)
                print(f"> {keys or '(the start)'}", *(f"    {text}" for text in said), sep="\n", file=log, flush=True)
                self.assertEqual(missing, [], f"after {keys} only {said} was heard")
                self.assertNotIn(NOISE, said)

    def press(self, key):
        """Holds Alt and the like as long as a person does: the program takes a key once the reader has seen it."""
        *held, last = key.split("+")
        for step in [("keydown", *held)] * bool(held) + [("key", last)] + [("keyup", *held)] * bool(held):
            self.desktop.tool("xdotool", *step)
            self.desktop.wait_until_idle()

    def write(self, text):
        self.desktop.type(text)
        self.desktop.wait(lambda: self.written().endswith(text), lambda: f"{text} instead of {self.written()}")

    def written(self):
        """What stands in the text box with the focus."""
        box = self.desktop.focused()
        return box.queryText().getText(0, -1) if box and box.getRoleName() == "text" else ""


if __name__ == "__main__":
    run()
