"""A tour of every window of the program in each of its states, with the keyboard alone.

Tour(desktop, visit).go(leg, home) drives the program and calls visit(name) at every stop, where the window to look at
is the active one of the desktop. Names begin with "main" where the whole main window is meant, with "dialog" otherwise.
"""

import pathlib
import shutil

from cases import SAMPLES, vocabulary

MENUS = {"f": "File", "e": "Edit", "v": "Vocabulary", "m": "Mode", "q": "Quiz", "w": "Window", "h": "Help"}
LESSON = "german/06-family-and-people.gla"
LONG_PAIRS = (
    ("the insurance company for legal protection", "die Rechtsschutzversicherungsgesellschaft"),
    ("the captain of a Danube steamboat company", "der Donaudampfschifffahrtsgesellschaftskapitän"),
    ("a bird in the hand is worth two in the bush", "besser den Spatz in der Hand als die Taube auf dem Dach"),
)


class Tour:
    """Goes leg by leg; each begins with a program of its own."""

    def __init__(self, desktop, visit):
        self._desktop = desktop
        self._visit = visit
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
        self._menu("f", "main empty, File menu")
        self._dialog("Open Glosaria Document", "open", "ctrl+o")
        self._dialog("About Glosaria", "about", "alt+h", "a")
        self._press("ctrl+n")
        self._desktop.wait_for("table")
        self._visit("main new document")

    def leg_document(self):
        self._start(LESSON)
        self._visit("main document")
        for key, menu in MENUS.items():
            self._menu(key, f"main, {menu} menu")
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
        self._dialog("Save Glosaria Document", "save as", "alt+f", "a")

    def leg_documents(self):
        self._start(LESSON)
        for name in ("japanese/07-food-and-drink.gla", "russian/05-time-and-days.gla"):
            self._open(self._copy(name))
        self._visit("main, several documents")
        for key, arrangement in (("c", "cascaded"), ("h", "tiled horizontally"), ("v", "tiled vertically")):
            self._press("alt+w", key)
            self._visit(f"main, documents {arrangement}")
        self._menu("w", "main, Window menu with documents")
        self._press("alt+minus")
        self._visit("main, system menu of a document")
        self._press("n")
        self._visit("main, a document minimized")
        self._press("alt+minus", "x")
        self._expect("Glosaria - [05-time-and-days]")
        self._visit("main, a document maximized")

    def leg_tools(self):
        self._start(LESSON)
        self._press("ctrl+f")
        self._expect("Find")
        self._desktop.type("father")
        self._visit("dialog find")
        self._press("alt+r")
        self._expect("Replace")
        self._visit("dialog replace")
        self._press("alt+f")
        self._desktop.type("qqq")
        self._press("Return")
        self._expect("Glosaria Alert")
        self._visit("dialog alert, not found")
        self._press("Return")
        self._expect("Replace")
        self._press("Escape")
        self._expect("Glosaria")
        self._dialog("Sort", "sort", "alt+v", "s")
        self._press("alt+v", "f")
        self._expect("Font")
        self._visit("dialog font")
        self._press("alt+o", "alt+Down")
        self._visit("dialog font, list of colors")
        self._press("Escape", "alt+s", "BackSpace", "BackSpace")
        self._expect("Glosaria Alert")
        self._visit("dialog alert, font size")
        self._press("Return")
        self._expect("Font")
        self._desktop.type("24")
        self._press("alt+o", "Return")
        self._expect("Glosaria")
        self._visit("main, large font")
        self._dialog("Check", "check", "alt+v", "k")
        self._dialog("Set Row Height", "row height", "alt+v", "r")
        self._dialog("Set Column Width", "column width", "alt+v", "c")
        self._dialog("Languages", "languages", "shift+F10", "l")
        self._dialog("Glosaria Alert", "alert, save changes", "ctrl+w")

    def leg_files(self):
        damaged = self._home / "damaged.gla"
        damaged.write_bytes(b"Glosaria\r\n3.1.0\r\nnothing more")
        self._desktop.start("--no-splash", damaged)
        self._expect("Glosaria Alert")
        self._visit("dialog alert, damaged file")
        self._press("Return")
        self._expect("Glosaria")
        newer = self._home / "newer.gla"
        newer.write_bytes(vocabulary(LONG_PAIRS, "9.0.0"))
        self._desktop.launch(newer)
        self._expect("Glosaria Alert")
        self._visit("dialog alert, newer file")

    def leg_quizzes(self):
        self._start_on("long words.gla", LONG_PAIRS)
        answered = "Previous Word"
        self._quiz("p", "Practice", [("answer", "alt+k", LONG_PAIRS[0][1]), ("known", None, answered)], "alt+o")
        self._quiz("m", "Multiple Choice", [("chosen", "1", None), ("answered", "Return", answered)], "1", "Return")
        self._quiz("q", "Question and Answer", [("hint", "alt+h", None), ("answered", "Return", answered), ("turned", "ctrl+z", None)], "Return")

    def leg_printing(self):
        self._start_on("long list.gla", [(f"word {number}", f"Wort {number}") for number in range(351)])
        self._dialog("Print", "print", "ctrl+p")
        self._dialog("Page Setup", "page setup", "alt+f", "u")
        self._dialog("Print Test", "print test", "alt+f", "t")
        self._press("alt+f", "v")
        self._desktop.wait_for(name="Page 1 of 7")
        self._visit("main, preview of the whole page")
        for zoom in ("half size", "full size"):
            self._press("plus")
            self._visit(f"main, preview at {zoom}")
        self._press("Page_Down")
        self._visit("main, preview scrolled")
        self._menu("f", "main, File menu of the preview")

    def leg_recovery(self):
        program = self._start(LESSON)
        self._desktop.type("changed")
        self._press("Return")
        state = self._home / "state"
        self._desktop.wait(lambda: any(path.is_file() for path in state.rglob("*.copy")), "the copy of the changes")
        self._desktop.kill(program)
        self._desktop.start("--no-splash")
        self._expect("Recovered Vocabularies")
        self._visit("dialog recovery")
        self._press("alt+d")
        self._expect("Glosaria Alert")
        self._visit("dialog alert, discard")

    def leg_help(self):
        self._start(LESSON)
        self._press("alt+h", "h")
        self._expect("Welcome to Glosaria - Glosaria Help")
        self._visit("dialog help, contents")
        self._press("alt+i")
        self._desktop.type("sort")
        self._visit("dialog help, index")
        self._press("alt+s")
        self._desktop.type("letters")
        self._press("Return")
        self._visit("dialog help, search")
        self._press("alt+f", "alt+a")
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
        self._desktop.key(*keys)

    def _expect(self, title):
        self._desktop.wait(lambda: self._desktop.active_title() == title, f"{title} instead of {self._desktop.active_title()}")

    def _menu(self, key, name):
        self._press("alt+" + key)
        self._visit(name)
        self._press("Escape", "Escape")

    def _dialog(self, title, name, *keys):
        self._press(*keys)
        self._expect(title)
        self._visit("dialog " + name)
        self._press("Escape")
        self._expect("Glosaria")

    def _quiz(self, key, kind, steps, *answer):
        """steps: what a stop is called, the key that leads there, and the label that shows that it is reached."""
        self._press("alt+q", key)
        self._expect(f"{kind} - long words")
        self._visit(f"dialog {kind}")
        for name, step, text in steps:
            if step:
                self._press(step)
            if text:
                self._desktop.wait_for("label", text)
            self._visit(f"dialog {kind}, {name}")
        while "Summary" not in (labels := self._labels()):
            self._press(*answer)
            self._desktop.wait(lambda: self._labels() != labels, "the next question")
        self._visit(f"dialog {kind}, summary")
        self._press("Escape")
        self._expect("Glosaria")

    def _labels(self):
        return [label.name for label in self._desktop.find_all("label")]
