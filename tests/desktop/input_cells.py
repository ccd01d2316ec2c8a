#!/usr/bin/env python3
"""Writes Chinese in cells with an input method and leaves them in every way: input_cells.py <program>."""

from cases import run, vocabulary
from parts.pinyin import ENVIRONMENT, PinyinCase

PLACES = [("in the first cell", "ctrl+Home", 0, 0), ("at the right edge", "Right", 0, 1),
          ("after scrolling", "ctrl+Down", -1, 0), ("in large words", "ctrl+plus ctrl+plus", 0, 0)]


class InputCellsCase(PinyinCase):
    def test_candidates_stand_beside_the_caret(self):
        for name, keys, row, column in PLACES:
            for opened in (False, True):
                with self.subTest(place=name, opened=opened):
                    self.desktop.end_programs()
                    self.desktop.fresh_home()
                    self.desktop.start("--no-splash")
                    self.desktop.key("alt+f", "n")
                    row %= self.desktop.wait_for("table").queryTable().nRows
                    self.desktop.key(*keys.split(), *["F2"] * opened)
                    window = self.compose()
                    shape = self.desktop.tool("xdotool", "getwindowgeometry", "--shell", window).split()
                    x, y = (int(line[2:]) for line in shape[1:3])
                    place = self.cell_at(row, column).queryComponent().getExtents(0)
                    self.desktop.screenshot(f"{name}{' opened' * opened}.png")
                    self.assertIn(x - place.x, range(-8, 60))
                    self.assertIn(y - place.y - place.height, range(-4, 16))
                    self.desktop.type(" shijie \r")
                    self.desktop.wait(
                        lambda row=row, column=column: self.cell_at(row, column).name == "你好世界", "both words"
                    )

    def test_nothing_is_lost_when_a_cell_is_left(self):
        self.desktop.start_other("xclock", "-geometry", "+1000+600")
        for leave in (self.to_cell, self.to_window, self.save, self.close, self.undo):
            for opened in (False, True):
                with self.subTest(leave=leave.__name__, opened=opened):
                    self.desktop.end_programs()
                    file = self.desktop.fresh_home() / "words.gla"
                    file.write_bytes(vocabulary([("one", "eins"), ("", "zwei"), ("three", "")]))
                    self.open(file)
                    self.desktop.key("Down", *["F2"] * opened)
                    self.compose()
                    leave(file)

    # The ways to leave a cell. The input method gives the letters with a blank between the syllables or without.

    def expect_cell(self, *texts):
        self.desktop.wait(lambda: self.cell_at(1, 0).name in texts, f"one of {texts} in the cell")

    def expect_saved(self, file):
        self.desktop.wait(lambda: file.read_bytes().count(b"ni hao") == 1, "the word once in the file")

    def to_cell(self, _):
        self.desktop.click_on(self.cell_at(0, 1))
        self.expect_cell("ni hao", "nihao")

    def to_window(self, _):
        for window in ("xclock", "Glosaria"):
            self.desktop.tool("xdotool", "search", "--onlyvisible", "--name", window, "windowactivate", "--sync")
            self.desktop.wait_until_idle()
        for _ in "letters", "cell":  # the first Enter is the input method's
            self.desktop.key("Return")
            self.desktop.wait_until_idle()
        self.expect_cell("ni hao", "nihao")

    def save(self, file):
        self.desktop.key("ctrl+s")
        self.expect_saved(file)

    def close(self, file):
        self.desktop.key("ctrl+F4")
        self.close_dialog("Glosaria Alert", "Return")
        self.expect_saved(file)

    def undo(self, _):
        self.choose_with_mouse("Edit", "Undo Typing")
        self.desktop.key("Return")
        self.expect_cell("")


if __name__ == "__main__":
    run(ENVIRONMENT)
