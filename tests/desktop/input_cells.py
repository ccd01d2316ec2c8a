#!/usr/bin/env python3
"""Writes Chinese in cells with an input method: input_cells.py <program>."""

from cases import run
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


if __name__ == "__main__":
    run(ENVIRONMENT)
