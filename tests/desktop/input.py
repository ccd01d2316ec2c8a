#!/usr/bin/env python3
"""Writes Chinese with fcitx5 and pinyin, in cells that are left in every way, a quiz and dialogs: input.py <program>"""

import time

from cases import ProgramCase, run, vocabulary

GROUP = """[Groups/0]
Name=Default
Default Layout=us
DefaultIM=pinyin
[Groups/0/Items/0]
Name=keyboard-us
[Groups/0/Items/1]
Name=pinyin
[GroupOrder]
0=Default
"""
SETTINGS = {
    "profile": GROUP, "config": "[Behavior]\nActiveByDefault=True\nShareInputState=All\n",
    "conf/xcb.conf": "Allow Overriding System XKB Settings=False\n",
}
PLACES = [("in the first cell", "ctrl+Home", 0, 0), ("at the right edge", "Right", 0, 1),
          ("after scrolling", "ctrl+Down", -1, 0), ("in large words", "ctrl+plus ctrl+plus", 0, 0)]


class InputCase(ProgramCase):
    @classmethod
    def setUpClass(cls):
        for name, text in SETTINGS.items():
            file = cls.desktop.home / "config" / "fcitx5" / name
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text)
        cls.desktop.start_other("fcitx5", "--disable=cloudpinyin,notifications")
        cls.desktop.wait(lambda: cls.desktop.succeeds("fcitx5-remote", "-s", "pinyin"), "the input method")

    def compose(self, letters="nihao"):
        """Types and returns the window with the candidates."""
        self.desktop.tool("fcitx5-remote", "-s", "pinyin")
        time.sleep(1)  # a window that has just come is not known to the input method yet
        self.desktop.type(letters)
        window = self.desktop.wait(lambda: self.desktop.windows("--name", "Fcitx5 Input Window"), "the candidates")[0]
        self.desktop.wait_until_idle()
        return window

    def open_words(self, *pairs):
        """Starts the program anew, on a file in a new home, and returns the file."""
        self.desktop.end_programs()
        file = self.desktop.fresh_home() / "words.gla"
        file.write_bytes(vocabulary(pairs, encoding="utf-8"))
        self.open(file)
        return file

    def cell(self, row, column):
        return self.desktop.table().getAccessibleAt(row, column)

    def expect_cell(self, *texts, row=1, column=0):
        self.desktop.wait(lambda: self.cell(row, column).name in texts, f"one of {texts} in the cell")

    # Tests

    def test_candidates_stand_beside_the_caret(self):
        for name, keys, row, column in PLACES:
            for opened in (False, True):
                with self.subTest(place=name, opened=opened):
                    self.desktop.end_programs()
                    self.desktop.fresh_home()
                    self.desktop.start("--no-splash")
                    self.desktop.key("alt+f", "n")
                    row %= self.desktop.table().nRows
                    self.desktop.key(*keys.split(), *["F2"] * opened)
                    x, y, *_ = self.desktop.shape(self.compose())
                    place = self.desktop.place(self.cell(row, column))
                    self.desktop.screenshot(f"{name}{' opened' * opened}.png")
                    self.assertIn(x - place.x, range(-8, 60))
                    self.assertIn(y - place.y - place.height, range(-4, 16))
                    self.desktop.type(" shijie \r")
                    self.expect_cell("你好世界", row=row, column=column)

    def test_nothing_is_lost_when_a_cell_is_left(self):
        self.desktop.start_other("xclock", "-geometry", "+1000+600")
        for leave in (self.to_cell, self.to_window, self.save, self.close, self.undo):
            for opened in (False, True):
                with self.subTest(leave=leave.__name__, opened=opened):
                    file = self.open_words(("one", "eins"), ("", "zwei"), ("three", ""))
                    self.desktop.key("Down", *["F2"] * opened)
                    self.compose()
                    leave(file)

    def test_answers(self):
        self.open_words(("hello", "你好"), ("world", "世界"))
        self.choose_with_mouse("Quiz", "Question and Answer...")
        self.expect_active("dialog", "Question and Answer - words")
        self.compose()
        self.desktop.screenshot("answer.png")
        self.desktop.key("space", "Return")
        self.desktop.wait_for("label", "Correct Answers: 1")
        self.compose("shijie")
        self.desktop.click_on(self.desktop.wait_for("push button", "Check"))
        self.desktop.wait_for("label", "shi jie")

    def test_dialogs(self):
        self.open_words(("hello", "你好"))
        self.open_dialog("Find", "ctrl+f")
        self.compose()
        self.desktop.key("space", "Return")
        self.desktop.wait(lambda: "你好" in self.desktop.text(self.desktop.focused()), "the word to be sought")
        self.close_dialog("Find", "Escape")
        self.open_dialog("Languages", "alt+v", "l")
        self.compose()
        self.desktop.click_on(self.desktop.wait_for("push button", "OK"))
        self.desktop.wait_for(name="ni hao -> German In Order")

    # The ways to leave a cell. The input method gives the letters with a blank between the syllables or without.

    def expect_saved(self, file):
        self.desktop.wait(lambda: file.read_bytes().count(b"ni hao") == 1, "the word once in the file")

    def to_cell(self, _):
        self.desktop.click_on(self.cell(0, 1))
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
    run({"QT_IM_MODULE": "fcitx"})
