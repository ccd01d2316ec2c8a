"""The program's texts in a language, as strings.txt and the tables beside it hold them."""

import pathlib
import re

FOLDER = pathlib.Path(__file__).resolve().parents[2] / "src/resources"


class Texts:
    """Looks texts up by id. What a table lacks is English, as in the program."""

    def __init__(self, language=""):
        self._language = language
        self._texts = self._table("strings.txt") | (self._table(f"strings.{language}.txt") if language else {})

    def of(self, text, *values):
        """The text with this id as it shows, its placeholders filled; what is no id stays as it is."""
        if isinstance(text, int):
            text = re.sub(r"\(&.\)|&", "", self._texts[text])
        for number, value in enumerate(values, 1):
            text = text.replace(f"%{number}", str(value))
        return text

    def name(self, name):
        """A name as it stands within a text."""
        return f"\u2068{name}\u2069" if self._language == "ar" else name

    def help_title(self, page):
        """The title of a page of the help, in the language if the page exists in it."""
        pages = FOLDER / "help/html"
        translated = pages / self._language / page
        html = (translated if translated.exists() else pages / page).read_text(encoding="utf-8")
        return re.search("<title>(.*)</title>", html)[1]

    def key(self, key):
        """A key in xdotool's names. "alt+431" stands for Alt and the underlined letter of the text with that id."""
        return re.sub(r"\b\d\d+$", lambda found: self._letter(int(found[0])), str(key))

    def _letter(self, text):
        return re.search("&(.)", self._texts[text])[1].lower()

    @staticmethod
    def _table(name):
        lines = (line.split("\t") for line in (FOLDER / name).read_text(encoding="utf-8").splitlines())
        return {int(line[0]): line[1] for line in lines if len(line) == 2}
