"""A tour of every window of the program in each of its states, with the keyboard alone.

Tour(desktop, visit).go(leg, home) drives the program and calls visit(name) at every stop, where the window to look at
is the active one of the desktop. Names begin with "main" where the whole main window is meant, with "dialog" otherwise.

Entries, titles and labels are named by the ids of their texts, and "alt+431" is Alt with the underlined letter of that
text: so the tour goes through the program in any of its languages.
"""

import pathlib
import shutil

from cases import SAMPLES, vocabulary
from texts import Texts

MENUS = {400: "File", 418: "Edit", 431: "Vocabulary", 439: "Mode", 445: "Quiz", 449: "Window", 454: "Help"}
ALERT = 507  # its title
LESSON = "german/06-family-and-people.gla"
LONG_PAIRS = (
    ("the insurance company for legal protection", "die Rechtsschutzversicherungsgesellschaft"),
    ("the captain of a Danube steamboat company", "der Donaudampfschifffahrtsgesellschaftskapitän"),
    ("a bird in the hand is worth two in the bush", "besser den Spatz in der Hand als die Taube auf dem Dach"),
)


class Tour:
    """Goes leg by leg; each begins with a program of its own."""

    def __init__(self, desktop, visit, language=""):
        """language is that of a table of texts; the desktop has to be one on which the program speaks it."""
        self._desktop = desktop
        self._visit = visit
        self._language = language
        self._texts = Texts(language)
        self._home = None

    @classmethod
    def legs(cls):
        return [name[4:] for name in vars(cls) if name.startswith("leg_")]

    def go(self, leg, home):
        """Goes one leg; home is the empty home folder of the program."""
        self._home = home
        try:
            getattr(self, "leg_" + leg)()
        finally:
            self._desktop.end_programs()

    # The legs

    def leg_start(self):
        self._desktop.launch()
        self._desktop.wait_for("label")
        self._visit("dialog splash")
        self._desktop.end_programs()
        self._start()
        self._visit("main empty")
        self._menu(400, "main empty, File menu")
        self._dialog(717, "open", "ctrl+o")
        self._dialog(12002, "about", "alt+454", 457)
        self._press("ctrl+n")
        self._desktop.wait_for("table")
        self._visit("main new document")

    def leg_document(self):
        self._start(LESSON)
        self._visit("main document")
        for title, menu in MENUS.items():
            self._menu(title, f"main, {menu} menu")
        self._press("shift+F10")
        self._visit("main, context menu of the grid")
        self._press("Escape", "Down", "Down", "shift+Down", "shift+Down", "shift+Right")
        self._visit("main, cells selected")
        self._press("Down", "space")
        self._desktop.wait_for("text")
        self._visit("main, editing a cell")
        self._press("Escape", "shift+F1")
        self._desktop.click(250, 250)
        self._visit("main, what's this")
        self._press("Escape")
        self._dialog(718, "save as", "alt+400", 406)

    def leg_documents(self):
        self._start(LESSON)
        for name in ("japanese/07-food-and-drink.gla", "russian/05-time-and-days.gla"):
            self._open(self._copy(name))
        self._visit("main, several documents")
        for entry, arrangement in ((450, "cascaded"), (451, "tiled horizontally"), (452, "tiled vertically")):
            self._press("alt+449", entry)
            self._visit(f"main, documents {arrangement}")
        self._menu(449, "main, Window menu with documents")
        self._press("alt+minus")
        self._visit("main, system menu of a document")
        if self._language:
            return  # in which the toolkit underlines other letters
        self._press("n")
        self._visit("main, a document minimized")
        self._press("alt+minus", "x")
        self._expect("Glosaria - [05-time-and-days]")
        self._visit("main, a document maximized")

    def leg_tools(self):
        self._start(LESSON)
        self._press("ctrl+f")
        self._expect(7000)
        self._desktop.type("father")
        self._visit("dialog find")
        self._press("alt+7008")
        self._expect(7001)
        self._visit("dialog replace")
        self._press("alt+7002")
        self._desktop.type("qqq")
        self._press("Return")
        self._expect(ALERT)
        self._visit("dialog alert, not found")
        self._press("Return")
        self._expect(7001)
        self._press("Escape")
        self._expect("Glosaria")
        self._dialog(6000, "sort", "alt+431", 438)
        self._press("alt+431", 437)
        self._expect(8000)
        self._visit("dialog font")
        self._press("alt+8003", "alt+Down")
        self._visit("dialog font, list of colors")
        self._press("Escape", "alt+8002", "BackSpace", "BackSpace")
        self._expect(ALERT)
        self._visit("dialog alert, font size")
        self._press("Return")
        self._expect(8000)
        self._desktop.type("24")
        self._press("alt+8003", "Return")
        self._expect("Glosaria")
        self._visit("main, large font")
        self._dialog(14132, "check", "alt+431", 14130)
        self._press("alt+431", 14400)
        self._expect(self._texts.of(14402, "06-family-and-people"))
        self._visit("dialog progress")
        self._press("alt+14419")
        self._visit("dialog progress, numbers")
        self._press("alt+14421")
        self._visit("dialog progress, forget")
        self._press("Escape", "Escape")
        self._expect("Glosaria")
        self._press("alt+431", 14950)
        self._visit("main, Zoom menu")
        self._press(14952, "ctrl+plus", "ctrl+plus", "ctrl+plus", "F2")
        self._desktop.wait_for("text")
        self._visit("main, zoomed in, editing a cell")
        self._press("Escape", "ctrl+0")
        self._dialog(9001, "row height", "alt+431", 434)
        self._dialog(9000, "column width", "alt+431", 435)
        self._dialog(904, "languages", "shift+F10", 474)
        self._dialog(ALERT, "alert, save changes", "ctrl+w")

    def leg_lists(self):
        file = self._home / "words.csv"
        file.write_text("English;German;Note\nhouse;Haus;n\n;;\nto run;laufen;\n")
        self._start(LESSON)
        self._press("alt+400", 14500)
        self._expect(14570)
        self._desktop.type(f"{file}\r")
        self._expect(f"{self._texts.of(14511)} - words.csv")
        self._visit("dialog import, text")
        self._press("alt+14519")
        self._visit("dialog import, swapped")
        self._press("alt+14522", "Return")
        self._expect("Glosaria")
        self._visit("main, imported list")

    def leg_files(self):
        damaged = self._home / "damaged.gla"
        damaged.write_bytes(b"Glosaria\r\n3.1.0\r\nnothing more")
        self._desktop.start("--no-splash", damaged)
        self._expect(ALERT)
        self._visit("dialog alert, damaged file")
        self._press("Return")
        self._expect("Glosaria")
        newer = self._home / "newer.gla"
        newer.write_bytes(vocabulary(LONG_PAIRS, "9.0.0"))
        self._desktop.launch(newer)
        self._expect(ALERT)
        self._visit("dialog alert, newer file")

    def leg_quizzes(self):
        self._start_on("long words.gla", LONG_PAIRS)
        self._dialog(14330, "quiz options", "alt+445", 14312)
        self._press("alt+445", 14300)
        self._visit("main, menu of the words to ask")
        for keys in ((14304,), ("alt+431", 14372), ("Right",)):
            self._press(*keys)
            self._desktop.wait_until_idle()
        self._visit("main, letters below the grid")
        for keys in (("alt+445", 14300), (14302,), ("alt+431", 14372)):
            self._press(*keys)
            self._desktop.wait_until_idle()
        answered = 914
        self._quiz(446, 12003, "Practice", [("answer", "alt+11000", LONG_PAIRS[0][1]), ("known", None, answered)], "alt+11001")
        self._quiz(447, 12004, "Multiple Choice", [("chosen", "1", None), ("answered", "Return", answered)], "1", "Return")
        self._quiz(448, 12005, "Question and Answer", [("hint", "alt+923", None), ("answered", "Return", answered), ("turned", "ctrl+z", None)], "Return")

    def leg_printing(self):
        self._start_on("long list.gla", [(f"word {number}", f"Wort {number}") for number in range(351)])
        self._press("ctrl+p")
        self._desktop.wait_for("dialog")
        self._visit("dialog print")
        self._press("Escape")
        self._expect("Glosaria")
        self._dialog(14094, "page setup", "alt+400", 408)
        self._dialog(14762, "print test", "alt+400", 14760)
        self._press("alt+400", 409)
        self._desktop.wait_for(name=self._texts.of(12406, 1, 7))
        self._visit("main, preview of the whole page")
        for zoom in ("half size", "full size"):
            self._press("plus")
            self._visit(f"main, preview at {zoom}")
        self._press("Page_Down")
        self._visit("main, preview scrolled")
        self._menu(400, "main, File menu of the preview")

    def leg_recovery(self):
        program = self._start(LESSON)
        self._desktop.type("changed")
        self._press("Return")
        state = self._home / "state"
        self._desktop.wait(lambda: any(path.is_file() for path in state.rglob("*.copy")), "the copy of the changes")
        self._desktop.kill(program)
        self._desktop.start("--no-splash")
        self._expect(12611)
        self._visit("dialog recovery")
        self._press("alt+12617")
        self._expect(ALERT)
        self._visit("dialog alert, discard")

    def leg_help(self):
        self._start(LESSON)
        self._press("alt+454", 455)
        self._expect(self._texts.of(13004, "Welcome to Glosaria"))
        self._visit("dialog help, contents")
        self._press("alt+13006")
        self._desktop.type("sort")
        self._visit("dialog help, index")
        self._press("alt+13007")
        self._desktop.type("letters")
        self._press("Return")
        self._visit("dialog help, search")
        self._press("alt+13008", "alt+13023")
        self._visit("dialog help, favorites")
        self._press("ctrl+f")
        self._desktop.type("the")
        self._press("Return")
        self._visit("dialog help, find on the page")

    # Ways to go

    def _copy(self, sample):
        return pathlib.Path(shutil.copy(SAMPLES / sample, self._home))

    def _start(self, *samples):
        program = self._desktop.start("--no-splash", *map(self._copy, samples))
        if samples:
            self._desktop.wait_for("table")
        return program

    def _start_on(self, name, pairs):
        file = self._home / name
        file.write_bytes(vocabulary(pairs))
        self._desktop.start("--no-splash", file)
        self._desktop.wait_for("table")

    def _open(self, file):
        """Hands a file to the program that runs."""
        self._desktop.launch(file)
        self._desktop.wait_for(name=file.stem)

    def _press(self, *keys):
        self._desktop.key(*map(self._texts.key, keys))

    def _expect(self, text):
        title = self._texts.of(text)
        self._desktop.wait(lambda: self._desktop.active_title() == title, f"{title} instead of {self._desktop.active_title()}")

    def _menu(self, title, name):
        self._press(f"alt+{title}")
        self._visit(name)
        self._press("Escape", "Escape")

    def _dialog(self, title, name, *keys):
        self._press(*keys)
        self._expect(title)
        self._visit("dialog " + name)
        self._press("Escape")
        self._expect("Glosaria")

    def _quiz(self, entry, title, kind, steps, *answer):
        """steps: what a stop is called, the key that leads there, and the label that shows that it is reached."""
        self._press("alt+445", entry)
        self._expect(f"{self._texts.of(title)} - long words")
        self._visit(f"dialog {kind}")
        for name, step, text in steps:
            if step:
                self._press(step)
            if text:
                self._desktop.wait_for("label", self._texts.of(text))
            self._visit(f"dialog {kind}, {name}")
        while self._texts.of(915) not in (labels := self._labels()):
            self._press(*answer)
            self._desktop.wait(lambda: self._labels() != labels, "the next question")
        self._visit(f"dialog {kind}, summary")
        self._press("Escape")
        self._expect("Glosaria")

    def _labels(self):
        return [label.name for label in self._desktop.find_all("label")]
