#!/usr/bin/env python3
"""Writes Chinese in a quiz and in dialogs with an input method: input_windows.py <program>."""

from cases import run, vocabulary
from parts.pinyin import ENVIRONMENT, PinyinCase


class InputWindowsCase(PinyinCase):
    def setUp(self):
        super().setUp()
        file = self.home / "words.gla"
        words = vocabulary([("hello", "@1"), ("world", "@2")]).decode().replace("@1", "你好").replace("@2", "世界")
        file.write_text(words, encoding="utf-8", newline="")
        self.open(file)

    def test_answers(self):
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
        self.open_dialog("Find", "ctrl+f")
        self.compose()
        self.desktop.key("space", "Return")
        self.desktop.wait(lambda: "你好" in self.desktop.focused().queryText().getText(0, -1), "the word to be sought")
        self.close_dialog("Find", "Escape")
        self.open_dialog("Languages", "alt+v", "l")
        self.compose()
        self.desktop.click_on(self.desktop.wait_for("push button", "OK"))
        self.desktop.wait_for(name="ni hao -> German In Order")


if __name__ == "__main__":
    run(ENVIRONMENT)
