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
BY_WORD = [  # signs before letters, scripts in the order of most languages, ideographs by their radicals
    "Flag", "Thumb", "Family", "Joined", "Decomposed", "Vietnamese", "Greek", "Russian", "Hebrew", "Arabic", "Hindi",
    "Korean", "Rare", "Japanese", "Chinese",
]
FOUND = {  # what is searched for, where it is found and at which position (a sign beyond the basic plane counts as two)
    "جَدِ": ("Arabic", 8),
    "字": ("Chinese", 1),
    "E\u0301T": ("Decomposed", 0),
    "👧": ("Family", 6),
    "🇪": ("Flag", 2),
    "ΊΣΥΦΟΣ": ("Greek", 1),
    "וֹם ע": ("Hebrew", 4),
    "स्ते": ("Hindi", 2),
    "カナ": ("Japanese", 6),
    "\u200dB": ("Joined", 1),
    "국": ("Korean", 1),
    "\U00020bb7野": ("Rare", 0),
    "ёЛК": ("Russian", 0),
    "🏽": ("Thumb", 2),
    "TIẾNG": ("Vietnamese", 0),
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
        self.close()
        pasted = self.home / "pasted.gla"
        self.paste_words()
        self.save_as(pasted)
        self.check_file(pasted, [*WORDS.items(), ("Breaks", "one two three")])
        self.close()
        self.desktop.key("alt+f", "2")
        self.expect_column(1, [*WORDS.values(), ""])

        self.find()
        self.replace_and_undo()
        self.answer()
        self.print(self.home / "Glosaria - typed.pdf")
        self.sort()
        self.desktop.key("ctrl+z")
        self.expect_column(0, list(WORDS))
        self.desktop.key("ctrl+s")
        self.desktop.wait_for("frame", "Ready")
        self.assertEqual(self.desktop.quit(program), 0)
        self.check_file(typed, WORDS.items())

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

    def save_as(self, file):
        self.open_dialog("Save Glosaria Document", "alt+f", "a")
        self.desktop.type(f"{file}\r")
        self.desktop.wait_for("frame", file.stem)

    def check_file(self, file, words):
        lines = file.read_bytes().split(b"\r\n")
        begin = lines.index(b"[Vocabulary]")
        self.assertEqual(lines[begin - 3:begin], [b"[Encoding]", b"UTF-8", b""])
        rows = [line.encode() for name, word in words for line in (name + "   [0000000285]", word)]
        self.assertEqual(lines[begin + 3:], rows + [b""])

    def close(self):
        self.desktop.key("alt+f", "c")
        self.desktop.wait(lambda: not self.desktop.find("table"), "the vocabulary to close")

    # Tools

    def found(self):
        """Where the editor stands and what is selected in it."""
        editor = next((text for text in self.desktop.find_all("text") if text.name.startswith("Cell ")), None)
        if not editor or not editor.queryText().getNSelections():
            return None
        return editor.name, editor.queryText().getSelection(0)

    def find(self):
        self.open_dialog("Find", "alt+e", "f")
        for what, (name, begin) in FOUND.items():
            end = begin + len(what.encode("utf-16-le")) // 2
            place = f"Cell B{list(WORDS).index(name) + 1}", (begin, end)
            self.desktop.key("ctrl+a")
            self.desktop.type(f"{what}\r")
            self.desktop.wait(lambda place=place: self.found() == place, lambda: f"{place}, not {self.found()}")
        self.close_dialog("Find", "Escape")

    def replace_and_undo(self):
        self.open_dialog("Replace", "alt+e", "r")
        self.desktop.key("ctrl+a")
        self.desktop.type("カ")
        self.desktop.key("alt+e")
        self.desktop.type("\U00020bb7e\u0301")
        self.open_dialog("Glosaria Alert", "alt+a")
        self.desktop.wait_for("label", "The specified region has been searched. 2 replacements were made.")
        self.close_dialog("Glosaria Alert", "Return", "dialog", "Replace")
        self.close_dialog("Replace", "Escape")
        replaced = [word.replace("カ", "\U00020bb7e\u0301") for word in WORDS.values()]
        self.expect_column(1, [*replaced, ""])
        self.desktop.key("alt+e", "u")
        self.expect_column(1, [*WORDS.values(), ""])

    def sort(self):
        self.open_dialog("Sort", "alt+v", "s")
        self.choose("alt+2", "2 Language 2")
        self.close_dialog("Sort", "Return")
        self.expect_column(0, BY_WORD + [""])
        self.expect_column(1, [WORDS[name] for name in BY_WORD] + [""])

    def answer(self):
        """Every word is typed, one in another spelling that looks the same; then every word is asked."""
        self.answer_all((name, unicodedata.normalize("NFC", word)) for name, word in WORDS.items())
        self.desktop.key("alt+m", "2")
        self.desktop.wait_for("frame", "Language 2 -> Language 1 In Order")
        self.answer_all((word, name) for name, word in WORDS.items())

    def answer_all(self, pairs):
        self.desktop.key("alt+q", "q")
        quiz = self.desktop.wait_for("dialog", "Question and Answer - typed")
        self.expect_active("dialog", quiz.name)
        for asked, answer in pairs:
            self.desktop.wait_for("label", asked, quiz)
            self.desktop.type(answer + "\r")
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
