#!/usr/bin/env python3
"""A learner's evening with the program, with menus, keys and mouse: learner_test.py <program> [unittest arguments]."""

from cases import ProgramCase, run
from speech import SpeechCase  # runs too  # pylint: disable=unused-import

WORDS = [("house", "casa"), ("tree", "árbol"), ("dog", "perro"), ("cat", "gato"), ("bread", "pan")]
ANSWERS = dict(WORDS)
SCRIPTS = [  # a key each for signs beyond the basic plane and for joiners too
    ("Arabic", "كِتَابٌ جَدِيدٌ"), ("Chinese", "汉字"), ("Decomposed", "e\u0301te\u0301"), ("Family", "👩\u200d👩\u200d👧"),
    ("Flag", "🇩🇪"), ("Greek", "Σίσυφος"), ("Hebrew", "שָׁלוֹם עולם"), ("Hindi", "नमस्ते क्षेत्र"), ("Japanese", "日本語のカタカナ"),
    ("Korean", "한국어"), ("Rare", "\U00020bb7野家"), ("Russian", "Ёлка"), ("Thumb", "👍🏽"), ("Vietnamese", "tiếng Việt"),
]


class LearnerCase(ProgramCase):
    """From the first word to a printed list."""

    def test_a_list_is_made_drilled_printed_and_opened_again(self):
        program = self.desktop.start("--no-splash")
        self.make_list()
        file = self.home / "holiday.gla"
        self.save_as(file)
        self.desktop.wait_for("frame", file.stem)
        self.check_file(file, sorted(WORDS))
        self.answer_by_typing()
        self.print_list()
        self.close_document()

        self.desktop.key("alt+f", "1")
        self.expect_column(1, [second for _, second in sorted(WORDS)])
        self.assertEqual(self.desktop.quit(program), 0)

    def test_words_of_every_script_are_typed_saved_pasted_and_printed(self):
        self.desktop.start("--no-splash")
        words = [word for _, word in SCRIPTS]
        text = "\n".join(f"{name}\t{word}" for name, word in SCRIPTS)
        for file in (self.home / "typed.gla", self.home / "pasted.gla"):
            self.desktop.key("alt+f", "n")
            self.desktop.wait_for("table")
            if file.stem == "typed":
                self.desktop.type(text.replace("\t", "\r").replace("\n", "\r") + "\r")
            else:
                self.desktop.copy_elsewhere(text)
                self.desktop.key("alt+e", "p")
            self.expect_column(1, [*words, ""])
            self.save_as(file)
            self.check_file(file, SCRIPTS, ("Language 1", "Language 2"))
        self.desktop.key(*["shift+Down"] * (len(SCRIPTS) - 1), "shift+Right", "alt+e", "c")
        self.desktop.expect(lambda: self.desktop.copied().replace("\r", "\n"), text)
        self.open_dialog("Print", "alt+f", "p")
        self.close_dialog("Print", "Return")
        fonts = self.desktop.tool("pdffonts", self.home / "Glosaria - pasted.pdf").splitlines()[2:]
        self.assertEqual({font.split()[-5] for font in fonts}, {"yes"}, "every font is embedded")

    # The list

    def make_list(self):
        self.desktop.key("alt+f", "n")
        self.desktop.wait_for("frame", "Untitled 1")
        self.open_dialog("Languages", "alt+v", "l")
        self.desktop.type("English\tSpanish")
        self.close_dialog("Languages", "Return")
        self.desktop.wait_for("frame", "English -> Spanish In Order")

        for first, second in WORDS[:3]:
            self.desktop.type(f"{first}\r{second}\r")
        self.expect_column(1, ["casa", "árbol", "perro", ""])
        self.desktop.copy_elsewhere("cat\tgato\r\nbread\tpan\r\n")
        self.desktop.key("alt+e", "p")
        self.expect_column(0, [first for first, _ in WORDS] + [""])

        self.open_dialog("Sort", "alt+v", "s")
        self.close_dialog("Sort", "Return")
        self.expect_column(0, sorted(ANSWERS) + [""])
        self.expect_column(1, [ANSWERS[first] for first in sorted(ANSWERS)] + [""])

    def check_file(self, file, words, languages=("English", "Spanish")):
        lines = file.read_bytes().decode("utf-8" if b"UTF-8" in file.read_bytes() else "cp1252").split("\r\n")
        rows = [line for first, second in [languages, *words] for line in (first + "   [0000000285]", second)]
        self.assertEqual(lines[14], str(len(words)))
        self.assertEqual(lines[lines.index("[Vocabulary]") + 1:], rows + [""])

    # Quizzes

    def expect_shown(self, *texts):
        """Waits until the quiz shows these texts."""
        def shown():
            return {item.name for item in self.desktop.find_all("label", within=self.quiz)}

        self.desktop.wait(lambda: shown().issuperset(texts), lambda: f"{texts} instead of {shown()}")

    def answer_by_typing(self):
        """Bread is known; gato needs a hint; perro is wrong; the rest is not known. What was missed comes again."""
        self.choose_with_mouse("Quiz", "Question and Answer...")
        self.quiz = self.desktop.wait_for("dialog", "Question and Answer - holiday")
        self.expect_active("dialog", self.quiz.name)
        self.expect_shown("English", "bread", "Spanish")
        self.desktop.type("pan\r")
        self.expect_shown("cat", "Previous Word", "bread", "Your Answer", "pan")
        self.desktop.type("gX")
        self.desktop.key("alt+h")
        answer = self.desktop.wait_for("text", "Answer in Spanish", self.quiz)
        self.desktop.expect(lambda: self.desktop.text(answer), "ga")
        self.desktop.type("to\rPerro\r")
        for word in ("house", "tree"):  # one Enter after the other: a key that is held answers nothing
            self.expect_shown(word)
            self.desktop.key("Return")
        self.expect_shown("Summary", "2 of 5 answered correctly", "tree", "árbol", "Incorrect Answers: 3")
        self.desktop.click_on(self.desktop.wait_for("push button", "Repeat Errors", self.quiz))
        self.expect_shown("dog", "Number Of Questions: 3")
        self.desktop.type("perro\rcasa\rárbol\r")
        self.expect_shown("Summary", "3 of 3 answered correctly")
        self.close_dialog(self.quiz.name, "Return", back_to="Glosaria")

    # Paper

    def print_list(self):
        """To the file that is proposed."""
        pdf = self.home / "Glosaria - holiday.pdf"
        self.open_dialog("Print", "alt+f", "p")
        self.close_dialog("Print", "Return")
        self.desktop.wait(pdf.exists, "the PDF file")
        text = self.desktop.tool("pdftotext", "-layout", pdf, "-")
        numbered = [[str(number), *words] for number, words in enumerate(sorted(WORDS), 1)]
        self.assertEqual(
            [line.split() for line in text.splitlines() if line.strip()],
            [["Glosaria", "-", "holiday"], ["English", "Spanish"], *numbered, ["1"]],
        )


if __name__ == "__main__":
    run()
