#!/usr/bin/env python3
"""With GTK's own platform theme, which is dark: dialogs about files, and pictures of the windows: gtk.py <program>"""

import pathlib

from cases import ProgramCase, run


class GtkCase(ProgramCase):
    def setUp(self):
        super().setUp()
        self.file = self.sample()
        self.assertIn("libqgtk3", pathlib.Path(f"/proc/{self.open(self.file).pid}/maps").read_text())

    def ask(self, title, *keys):
        self.desktop.key(*keys)
        self.desktop.expect_title(title)
        self.desktop.wait_until_idle()

    def name(self, name, back_to="Glosaria"):
        self.desktop.key("ctrl+a" if name else "Escape")
        if name:
            self.desktop.type(f"{name}\r")
        self.desktop.expect_title(back_to)

    def test_files_are_saved_opened_exported_and_imported(self):
        self.desktop.type("changed\r")
        saved = "Save Glosaria Document"
        for name in ("", "copy"):
            self.ask(saved, "alt+f", "a")
            self.name(name)
        self.ask(saved, "alt+f", "a")
        self.name(self.file.name, saved)
        self.expect_active("alert")
        self.assertNotIn(b"changed", self.file.read_bytes())
        self.desktop.key("alt+y")
        self.desktop.wait(lambda: b"changed" in self.file.read_bytes(), "the file to be replaced")
        self.desktop.expect_title("Glosaria")
        self.ask("Export List", "alt+f", "e")
        self.name("list")
        for file in ("copy.gla", "list.csv"):
            self.desktop.wait((self.home / file).exists, "the file, under its full name")
        self.ask("Import List", "alt+f", "i")
        self.desktop.type(f"{self.home}/list.csv\r")
        self.desktop.expect_title("Import - list.csv")
        self.close_dialog("Import - list.csv", "Return")
        self.ask("Open Glosaria Document", "ctrl+o")
        self.desktop.type(f"{self.sample('russian/05-time-and-days.gla')}\r")
        self.desktop.wait_for(name="05-time-and-days")

    def test_windows_are_dark(self):
        lesson = "06-family-and-people"
        for name, title, *keys in (("quiz", f"Question and Answer - {lesson}", "alt+q", "q"),
                                   ("font", "Font", "alt+v", "f"), ("progress", f"Progress - {lesson}", "alt+v", "p")):
            self.ask(title, *keys)
            self.desktop.screenshot(f"{name}.png", self.desktop.active_window())
            mean = self.desktop.tool("convert", f"{name}.png", "-format", "%[fx:mean]", "info:")
            self.assertLess(float(mean), 0.4, name)
            self.name("")
        self.desktop.screenshot("document.png")
        self.close_document("ctrl+w")
        self.desktop.screenshot("start.png")


if __name__ == "__main__":
    run({"QT_QPA_PLATFORMTHEME": "gtk3", "GTK_THEME": "Adwaita:dark"})
