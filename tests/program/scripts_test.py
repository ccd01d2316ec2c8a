#!/usr/bin/env python3
"""Words of many scripts through the whole program: scripts_test.py <program> [unittest arguments].

Words are typed as key events: the tests' keyboard has a key for every letter that is needed, also for signs beyond the
basic plane and for joiners. No input method is at work. Pasted words come from another program's clipboard.
"""

import re
import unicodedata

from cases import ProgramCase, run

WORDS = {  # words of language 2 by their names in language 1
    "Arabic": "كِتَابٌ جَدِيدٌ",
    "Chinese": "汉字",
    "Decomposed": "e\u0301te\u0301",
    "Family": "👩\u200d👩\u200d👧",
    "Flag": "🇩🇪",
    "Greek": "Σίσυφος",
    "Hebrew": "שָׁלוֹם עולם",
    "Hindi": "नमस्ते क्षेत्र",
    "Japanese": "日本語のカタカナ",
    "Joined": "a\u200db",
    "Korean": "한국어",
    "Rare": "\U00020bb7野家",
    "Russian": "Ёлка",
    "Thumb": "👍🏽",
    "Vietnamese": "tiếng Việt",
}
BREAKS = "one\u2028two\u2029three"
READ_BACK = ("Decomposed", "Greek", "Japanese", "Joined", "Korean", "Russian", "Vietnamese")  # from the PDF file


class ScriptsCase(ProgramCase):
    """A vocabulary of many scripts."""

    def test_words_of_every_script_live_through_all_that_is_done_with_them(self):
        program = self.desktop.start("--no-splash")
        typed = self.home / "typed.gla"
        self.type_words()
        self.save_as(typed)
        self.check_file(typed, WORDS.items())
        pasted = self.home / "pasted.gla"
        self.paste_words()
        self.save_as(pasted)
        self.check_file(pasted, [*WORDS.items(), ("Breaks", "one two three")])
        self.desktop.key("alt+f", "2")
        self.expect_column(1, [*WORDS.values(), ""])

        self.answer()
        self.print(self.home / "Glosaria - typed.pdf")
        self.assertEqual(self.desktop.quit(program), 0)

    # Words in and out

    def type_words(self):
        self.desktop.key("alt+f", "n")
        self.desktop.wait_for("table")
        self.desktop.type("".join(f"{name}\r{word}\r" for name, word in WORDS.items()))
        self.expect_column(1, [*WORDS.values(), ""])

    def paste_words(self):
        """Line separators do not divide rows; what comes in is what goes out again."""
        self.desktop.key("alt+f", "n")
        self.desktop.wait_for("table")
        text = "\n".join(f"{name}\t{word}" for name, word in WORDS.items())
        self.desktop.copy_elsewhere(f"{text}\nBreaks\t{BREAKS}\n")
        self.desktop.key("alt+e", "p")
        self.expect_column(1, [*WORDS.values(), "one two three", ""])
        self.desktop.key(*["shift+Down"] * (len(WORDS) - 1), "shift+Right", "alt+e", "c")
        self.desktop.wait(lambda: self.desktop.copied().replace("\r", "\n") == text, "the copied words")

    def check_file(self, file, words):
        self.desktop.wait_for("frame", file.stem)
        self.close_document()
        lines = file.read_bytes().split(b"\r\n")
        begin = lines.index(b"[Vocabulary]")
        self.assertEqual(lines[begin - 3:begin], [b"[Encoding]", b"UTF-8", b""])
        rows = [line.encode() for name, word in words for line in (name + "   [0000000285]", word)]
        self.assertEqual(lines[begin + 3:], rows + [b""])

    def answer(self):
        """Every word is typed, one in another spelling that looks the same."""
        self.desktop.key("alt+q", "q")
        quiz = self.desktop.wait_for("dialog", "Question and Answer - typed")
        self.expect_active("dialog", quiz.name)
        for name, word in WORDS.items():
            self.desktop.wait_for("label", name, quiz)
            self.desktop.type(unicodedata.normalize("NFC", word) + "\r")
        self.desktop.wait_for("label", f"{len(WORDS)} of {len(WORDS)} answered correctly", quiz)
        self.close_dialog(quiz.name, "Return")

    # Paper

    def print(self, pdf):
        """Every word leaves ink, coloured signs too, in fonts that travel with the file."""
        self.open_dialog("Print", "alt+f", "p")
        self.close_dialog("Print", "Return")
        fonts = self.desktop.tool("pdffonts", pdf).splitlines()[2:]
        self.assertTrue(fonts)
        for font in fonts:
            self.assertEqual(font.split()[-5], "yes", "the font is embedded")
        # Ligatures have no letters in the file and right-to-left words stand as they are drawn.
        text = unicodedata.normalize("NFKC", self.desktop.tool("pdftotext", pdf, "-"))
        for name in READ_BACK:
            self.assertIn(unicodedata.normalize("NFKC", WORDS[name].replace("\u200d", "")), text)
        for number, ink in enumerate(self.ink_of_rows(pdf), 1):
            self.assertGreater(ink, 20, f"row {number}")

    def ink_of_rows(self, pdf):
        """How many dark or coloured points of the page stand right of its middle, in each row that has a number."""
        boxes = self.desktop.tool("pdftotext", "-bbox", pdf, "-")
        places = re.findall(r'xMax="7[0-9.]+" yMax="([0-9.]+)">([0-9]+)<', boxes)
        self.assertEqual([int(number) for _, number in places], list(range(1, len(WORDS) + 1)))
        picture = pdf.with_suffix("")
        self.desktop.tool("pdftoppm", "-r", "72", "-gray", "-singlefile", pdf, picture)
        _, size, _, points = picture.with_suffix(".pgm").read_bytes().split(b"\n", 3)
        width, _ = map(int, size.split())
        for bottom, _ in places:
            lines = range(int(float(bottom)) - 10, int(float(bottom)))
            yield sum(points[line * width + x] < 220 for line in lines for x in range(width // 2, width))


if __name__ == "__main__":
    run()
