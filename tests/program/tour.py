"""A tour of every window of the program in each of its states, with the keyboard alone.

Tour(desktop, visit).go(leg) drives the program and calls visit(name) at every stop, where the window to look at
is the active one of the desktop. Names begin with "main" where the whole main window is meant, with "dialog" otherwise.

Entries, titles and labels are named by the ids of their texts, and "alt+431" is Alt with the underlined letter of that
text: so the tour goes through the program in any of its languages.
"""

import pathlib
import shutil

from cases import LESSON, SAMPLES, vocabulary
from texts import Texts

MENUS = {400: "File", 418: "Edit", 431: "Vocabulary", 439: "Mode", 445: "Quiz", 449: "Window", 454: "Help"}
ALERT = 507  # its title
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

    @classmethod
    def legs(cls):
        return [name[4:] for name in vars(cls) if name.startswith("leg_")]

    def go(self, leg):
        """Goes one leg, which begins with the home folder that the desktop has, an empty one as a rule."""
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
        self._desktop.start("--no-splash")
        self._visit("main empty")
        self._menu(400, "main empty, File menu")
        self._dialog(717, "open", "ctrl+o")
        self._dialog(12002, "about", "alt+454", 457)
        self._stop("main new document", "ctrl+n", role="table")

    def leg_document(self):
        self._start()
        self._visit("main document")
        for title, menu in MENUS.items():
            self._menu(title, f"main, {menu} menu")
        self._stop("main, context menu of the grid", "shift+F10")
        self._stop("main, cells selected", "Escape", "Down", "Down", "shift+Down", "shift+Down", "shift+Right")
        self._stop("main, editing a cell", "Down", "space", role="text")
        self._press("Escape", "shift+F1")
        self._desktop.click_on(self._desktop.wait_for("table"))
        self._visit("main, what's this")
        self._press("Escape")
        self._dialog(718, "save as", "alt+400", 406)

    def leg_documents(self):
        self._start()
        for name in ("japanese/07-food-and-drink.gla", "russian/05-time-and-days.gla"):
            file = self._copy(name)
            self._desktop.launch(file)  # hands it to the program that runs
            self._desktop.wait_for(name=file.stem)
        self._visit("main, several documents")
        for entry, arrangement in ((450, "cascaded"), (451, "tiled horizontally"), (452, "tiled vertically")):
            self._stop(f"main, documents {arrangement}", "alt+449", entry)
        self._menu(449, "main, Window menu with documents")
        self._stop("main, system menu of a document", "alt+minus")
        if self._language:
            return  # in which the toolkit underlines other letters
        self._stop("main, a document minimized", "n")
        self._stop("main, a document maximized", "alt+minus", "x", title="Glosaria - [05-time-and-days]")

    def leg_tools(self):
        self._start()
        self._press("ctrl+f")
        self._expect(7000)
        self._desktop.type("father")
        self._visit("dialog find")
        self._stop("dialog replace", "alt+7008", title=7001)
        self._press("alt+7002")
        self._desktop.type("qqq\r")
        self._stop("dialog alert, not found", title=ALERT)
        self._leave(7001, "Return")
        self._leave("Glosaria")
        self._stop("dialog font", "alt+431", 437, title=8000)
        self._stop("dialog font, list of colors", "alt+8003", "alt+Down")
        self._stop("dialog alert, font size", "Escape", "alt+8002", "BackSpace", "BackSpace", title=ALERT)
        self._leave(8000, "Return")
        self._desktop.type("24")
        self._stop("main, large font", "alt+8003", "Return", title="Glosaria")
        self._dialog(14132, "check", "alt+431", 14130)
        progress = self._texts.of(14402, self._texts.name("06-family-and-people"))
        self._stop("dialog progress", "alt+431", 14400, title=progress)
        self._stop("dialog progress, numbers", "alt+14419")
        self._stop("dialog progress, forget", "alt+14421")
        self._leave("Glosaria", "Escape", "Escape")
        self._stop("main, Zoom menu", "alt+431", 14950)
        self._stop("main, zoomed in, editing a cell", 14952, "ctrl+plus", "ctrl+plus", "ctrl+plus", "F2", role="text")
        self._press("Escape", "ctrl+0")
        self._dialog(9001, "row height", "alt+431", 434)
        self._dialog(9000, "column width", "alt+431", 435)
        self._dialog(904, "languages", "shift+F10", 474)
        self._dialog(ALERT, "alert, save changes", "ctrl+w")

    def leg_lists(self):
        file = self._desktop.home / "words.csv"
        file.write_text("English;German;Note\nhouse;Haus;n\n;;\nto run;laufen;\n")
        self._start()
        self._press("alt+400", 14500)
        self._expect(14570)
        self._desktop.type(f"{file}\r")
        self._stop("dialog import, text", title=f"{self._texts.of(14511)} - {self._texts.name('words.csv')}")
        self._stop("dialog import, swapped", "alt+14519")
        self._stop("main, imported list", "alt+14522", "Return", title="Glosaria")

    def leg_files(self):
        damaged = self._desktop.home / "damaged.gla"
        damaged.write_bytes(b"Glosaria\r\n3.1.0\r\nnothing more")
        self._desktop.start("--no-splash", damaged)
        self._stop("dialog alert, damaged file", title=ALERT)
        self._leave("Glosaria", "Return")
        self._desktop.launch(self._list("newer.gla", LONG_PAIRS, "9.0.0"))
        self._stop("dialog alert, newer file", title=ALERT)

    def leg_quizzes(self):
        self._start(self._list("long words.gla", LONG_PAIRS))
        self._dialog(14330, "quiz options", "alt+445", 14312)
        self._stop("main, menu of the words to ask", "alt+445", 14300)
        self._press_in_turn((14304,), ("alt+431", 14372), ("Right",))
        self._visit("main, letters below the grid")
        self._press_in_turn(("alt+445", 14300), (14302,), ("alt+431", 14372))
        answered = 914
        spelled, chosen = ("answer", "alt+11000", LONG_PAIRS[0][1]), ("chosen", "1", None)
        self._quiz(446, 12003, "Practice", [spelled, ("known", None, answered)], "alt+11001")
        self._quiz(447, 12004, "Multiple Choice", [chosen, ("answered", "Return", answered)], "1", "Return")
        typed = [("hint", "alt+923", None), ("answered", "Return", answered), ("turned", "ctrl+z", None)]
        self._quiz(448, 12005, "Question and Answer", typed, "Return")

    def leg_printing(self):
        self._start(self._list("long list.gla", [(f"word {number}", f"Wort {number}") for number in range(351)]))
        self._stop("dialog print", "ctrl+p", role="dialog")
        self._leave("Glosaria")
        self._dialog(14094, "page setup", "alt+400", 408)
        self._dialog(14762, "print test", "alt+400", 14760)
        self._press("alt+400", 409)
        self._desktop.wait_for(name=self._texts.of(12406, 1, 7))
        self._visit("main, preview of the whole page")
        self._stop("main, preview at half size", "plus")
        self._stop("main, preview at full size", "plus")
        self._stop("main, preview scrolled", "Page_Down")
        self._menu(400, "main, File menu of the preview")

    def leg_recovery(self):
        program = self._start()
        self._desktop.type("changed\r")
        state = self._desktop.home / "state"
        self._desktop.wait(lambda: any(path.is_file() for path in state.rglob("*.copy")), "the copy of the changes")
        self._desktop.kill(program)
        self._desktop.start("--no-splash")
        self._stop("dialog recovery", title=12611)
        self._stop("dialog alert, discard", "alt+12617", title=ALERT)

    def leg_help(self):
        self._start()
        self._stop("dialog help, contents", "alt+454", 455, title=self._help("welcome.html"))
        for name, text, *keys in (("index", "sort", "alt+13006"), ("favorites", "", "alt+13008", "alt+13023"),
                                  ("find on the page", "the\r", "ctrl+f")):
            self._press(*keys)
            self._desktop.type(text)
            self._visit("dialog help, " + name)
        self._leave("Glosaria", "Escape", "Escape")
        self._stop("dialog sort", "alt+431", 438, title=6000)
        self._stop("dialog help, on a dialog", "F1", title=self._help("sort.html"))
        self._press("alt+13007")
        self._desktop.type("arabic\r")
        self._stop("dialog help, search", title=self._help("accents.html"))
        self._leave(6000)

    # Ways to go

    def _copy(self, sample):
        return pathlib.Path(shutil.copy(SAMPLES / sample, self._desktop.home))

    def _list(self, name, pairs, version="3.1.0"):
        file = self._desktop.home / name
        file.write_bytes(vocabulary(pairs, version))
        return file

    def _start(self, file=None):
        program = self._desktop.start("--no-splash", file or self._copy(LESSON))
        self._desktop.wait_for("table")
        return program

    def _press(self, *keys):
        self._desktop.key(*map(self._texts.key, keys))

    def _press_in_turn(self, *groups):
        """Keys of which the next need what those before them have done."""
        for keys in groups:
            self._press(*keys)
            self._desktop.wait_until_idle()

    def _expect(self, title):
        self._desktop.expect_title(self._texts.of(title))

    def _help(self, page):
        """The title of the help on a page."""
        return self._texts.of(13004, self._texts.help_title(page))

    def _stop(self, name, *keys, title=None, role=None):
        """Presses keys, waits for the title of the window that they open, or for what they show in it, and visits."""
        if keys:
            self._press(*keys)
        if title:
            self._expect(title)
        if role:
            self._desktop.wait_for(role)
        self._visit(name)

    def _leave(self, title, *keys):
        """Goes back to a window."""
        self._press(*keys or ("Escape",))
        self._expect(title)

    def _menu(self, title, name):
        self._stop(name, f"alt+{title}", role="popup menu")
        self._press("Escape", "Escape")

    def _dialog(self, title, name, *keys):
        self._stop("dialog " + name, *keys, title=title)
        self._leave("Glosaria")

    def _quiz(self, entry, title, kind, steps, *answer):
        """steps: what a stop is called, the key that leads there, and the label that shows that it is reached."""
        self._stop(f"dialog {kind}", "alt+445", entry, title=f"{self._texts.of(title)} - {self._texts.name('long words')}")
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
        self._leave("Glosaria")

    def _labels(self):
        return [label.name for label in self._desktop.find_all("label")]
