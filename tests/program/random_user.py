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
NEVER = float("inf")

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


def words_since(states, moment):
    """The words of every state that may be reached when what was sent before a moment is done."""
    first = max(number for number, state in enumerate(states) if state.done <= moment)
    return {state.words for state in states[first:]}


class RandomUser:
    """Works on the document that has the keys. Every state is remembered before the program can have reached it."""

    def __init__(self, desktop, random, rows):
        self.desktop = desktop
        self.random = random
        self.rows = list(rows)
        self.states = [State(as_stored(self.rows), -NEVER)]
        self.saved = self.states[:]  # those that were saved
        self._before = None  # the rows that Undo brings back
        desktop.copy_elsewhere("".join(f"{first}\t{second}\r\n" for first, second in PASTED))

    def act(self):
        self.random.choice([self.overwrite, self.overwrite, self.clear, self.paste, self.undo])()

    def overwrite(self, leave_open=False):
        row, column = self._go()
        word = "".join(self.random.choices(LETTERS, k=self.random.randint(1, 9)))
        for end in range(1, len(word) + 1):
            self._set(row, column, word[:end])
        self.desktop.type(word + ("" if leave_open else "\r"))
        self._sent(self.states)

    def clear(self):
        self._set(*self._go(), "")
        self._press("Delete")

    def paste(self):
        row, _ = self._go(columns=1)
        self.rows[row:row + len(PASTED)] = PASTED
        self._remember()
        self._press("ctrl+v")

    def undo(self):
        if self._before:
            self.rows, self._before = self._before, None
            self._remember()
            self._press("ctrl+z")

    def save(self):
        self.saved.append(State(self.states[-1].words, NEVER))
        self.desktop.key("ctrl+s")
        self._sent(self.saved)

    def _go(self, columns=2):
        """Goes to a cell for a change that Undo takes back."""
        row, column = self.random.randrange(LAST_ROW), self.random.randrange(columns)
        self.desktop.key("ctrl+Home", *["Down"] * row, *["Right"] * column)
        self._before = list(self.rows)
        self.rows += [("", "")] * (row + 1 - len(self.rows))
        return row, column

    def _set(self, row, column, text):
        first, second = self.rows[row]
        self.rows[row] = (first, text) if column else (text, second)
        self._remember()

    def _press(self, key):
        self.desktop.key(key)
        self._sent(self.states)

    def _remember(self):
        self.states.append(State(as_stored(self.rows), NEVER))

    @staticmethod
    def _sent(states):
        states[-1] = states[-1]._replace(done=time.monotonic())
