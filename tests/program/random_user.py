"""A user who edits at random and remembers every state that the words had.

user = RandomUser(desktop, random.Random(seed), rows)
user.act()
user.states[-1].words
"""

import collections
import time

PASTED = [("árbol", "עץ"), ("日本語", "größer"), ("é", "🙂")]
LETTERS = "abcdefghijklmnopqrstuvwxyz"
LAST_ROW = 8  # that is edited

# words: the rows up to the last one with a first word, which is what a file can hold.
# done: when the keys for it had been sent, by the monotonic clock.
State = collections.namedtuple("State", "words done")


def as_stored(rows):
    end = max((number for number, row in enumerate(rows, 1) if row[0]), default=0)
    return tuple(rows[:end])


def read_vocabulary(bytes_):
    """The rows of a vocabulary file, the languages left out."""
    lines = bytes_.decode("utf-8" if b"\r\n[Encoding]\r\nUTF-8\r\n" in bytes_ else "cp1252").split("\r\n")
    lines = lines[lines.index("[Vocabulary]") + 3:-1]
    return tuple((first.rpartition("   [")[0], second) for first, second in zip(lines[::2], lines[1::2]))


class RandomUser:
    """Works on the document that has the keys. Every state is remembered before the program can have reached it."""

    def __init__(self, desktop, random, rows):
        self.desktop = desktop
        self.random = random
        self.rows = list(rows)
        self.states = [State(as_stored(self.rows), float("-inf"))]
        self.saved = [0]  # numbers of the states that were saved
        self.saved_at = [float("-inf")]
        self._before = None  # the rows that Undo brings back
        desktop.copy_elsewhere("".join(f"{first}\t{second}\r\n" for first, second in PASTED))

    def act(self):
        self.random.choice([self.overwrite, self.overwrite, self.clear, self.paste, self.undo])()

    def overwrite(self, leave_open=False):
        row, column = self._go()
        word = "".join(self.random.choices(LETTERS, k=self.random.randint(1, 9)))
        self._begin(row)
        for end in range(1, len(word) + 1):
            self._set(row, column, word[:end])
            self._remember()
        self.desktop.type(word + ("" if leave_open else "\r"))
        self._sent()

    def clear(self):
        row, column = self._go()
        self._begin(row)
        self._set(row, column, "")
        self._press("Delete")

    def paste(self):
        row, _ = self._go(column=0)
        self._begin(row + len(PASTED))
        self.rows[row:row + len(PASTED)] = PASTED
        self._press("ctrl+v")

    def undo(self):
        if self._before:
            self.rows, self._before = self._before, None
            self._press("ctrl+z")

    def save(self):
        self.saved.append(len(self.states) - 1)
        self.saved_at.append(float("inf"))
        self.desktop.key("ctrl+s")
        self.saved_at[-1] = time.monotonic()

    def states_since(self, moment):
        """The words of every state that the program may have when it has done what was sent before a moment."""
        first = max(number for number, state in enumerate(self.states) if state.done <= moment)
        return {state.words for state in self.states[first:]}

    def saved_since(self, moment):
        """The words that the file may hold when it holds what was saved before a moment."""
        first = max(number for number, sent in enumerate(self.saved_at) if sent <= moment)
        return {self.states[number].words for number in self.saved[first:]}

    def _go(self, column=None):
        row = self.random.randrange(LAST_ROW)
        column = self.random.randrange(2) if column is None else column
        self.desktop.key("ctrl+Home", *["Down"] * row, *["Right"] * column)
        return row, column

    def _begin(self, row):
        """Before a change that Undo takes back and that needs this row."""
        self._before = list(self.rows)
        while len(self.rows) <= row:
            self.rows.append(("", ""))

    def _set(self, row, column, text):
        words = list(self.rows[row])
        words[column] = text
        self.rows[row] = tuple(words)

    def _press(self, *keys):
        self._remember()
        self.desktop.key(*keys)
        self._sent()

    def _remember(self):
        self.states.append(State(as_stored(self.rows), float("inf")))

    def _sent(self):
        self.states[-1] = self.states[-1]._replace(done=time.monotonic())
