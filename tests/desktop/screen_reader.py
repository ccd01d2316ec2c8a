#!/usr/bin/env python3
"""Keeps in screen_reader.txt what Orca's log says of a learner's way through the program: screen_reader.py <program>"""

import re
import time

from cases import ProgramCase, run, vocabulary

# Orca's own command would end, or give way to, the Orca that the user of this machine may need.
START = """import sys
from orca import debug, orca, settings_manager
debug.debugLevel = debug.LEVEL_ALL
debug.eventDebugLevel = debug.LEVEL_OFF
debug.debugFile = open(sys.argv[1], "w", buffering=1)
settings_manager.getManager().activate(None, {"enableBraille": False, "enableKeyEcho": False,
                                              "speechServerFactory": "none", "speechFactoryModules": []})
orca.main()
"""
SAID = re.compile(r"SPEECH OUTPUT: '(.*?)\s*'(?: voice=\w+)? ?\{")
PATIENCE = 90  # seconds that all it says at once may take on a busy machine
QUIET = 1  # seconds without a line in the log after which nothing more comes

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
        self.log, self.told = self.home / "orca.log", 0  # bytes of it
        self.desktop.start_other("/usr/bin/python3", "-c", START, self.log)
        self.desktop.wait(self.log.exists, "Orca")
        self.hear(["Screen reader on"])
        self.desktop.start("--no-splash")
        with open("screen_reader.txt", "w", encoding="utf-8") as log:
            print("What Orca says on dog, cat, cow and horse; after > what the user typed or pressed.\n", file=log)
            for keys, *expected in STEPS:
                for key in keys.split():
                    (self.write if key[0] == "'" else self.press)(key.strip("'"))
                said, missing = self.hear(expected)
                print(f"> {keys or '(the start)'}", *(f"    {text}" for text in said), sep="\n", file=log, flush=True)
                self.assertEqual(missing, [], f"after {keys} only {said} was heard")
                self.assertNotIn(NOISE, " ".join(said))

    def hear(self, expected):
        """Waits until what is expected and all after it has been said; returns what was said, and what was missing."""
        text, said, missing = b"", [], expected
        last = time.monotonic()
        end = last + PATIENCE
        while time.monotonic() < (end if missing else min(end, last + QUIET)):
            time.sleep(0.1)
            before, text = text, self.log.read_bytes()[self.told:]
            if text != before:
                last = time.monotonic()
                said = SAID.findall(text.decode(errors="replace"))
                missing = [each for each in expected if each not in " ".join(said)]
        self.told += len(text)
        return said, missing

    def press(self, key):
        """Holds Alt and the like as long as a person does: the program takes a key once the reader has seen it."""
        *held, last = key.split("+")
        for step in [("keydown", *held)] * bool(held) + [("key", last)] + [("keyup", *held)] * bool(held):
            self.desktop.tool("xdotool", *step)
            self.desktop.wait_until_idle()

    def write(self, text):
        self.desktop.type(text)
        self.desktop.wait(lambda: self.desktop.text(self.desktop.focused()).endswith(text), f"{text} in a text box")


if __name__ == "__main__":
    run()
