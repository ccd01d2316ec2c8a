#!/usr/bin/env python3
"""On Wayland, in a compositor whose screen is a window of the virtual display: wayland.py <program>"""

import pathlib
import re
import signal
import sys
import time

from cases import ProgramCase, run

OTHER = pathlib.Path(__file__).parent / "parts" / "window.py"
COLOUR = "#ff00fe"
HEIGHT, PANEL, TITLE = 740, 32, 20  # pixels: of the compositor's screen, the panel on it, and at least of a title bar
SETTINGS = "[shell]\nlocking=false\nanimation=none\nstartup-animation=none\n[input-method]\npath=\n"


class WaylandCase(ProgramCase):
    """Each test finds the program on a lesson; a picture of its end is left."""

    def setUp(self):
        super().setUp()
        socket = self.desktop.runtime / "wayland-g"
        if not socket.exists():
            (self.home / "weston.ini").write_text(SETTINGS)
            self.desktop.start_other("weston", "--backend=x11-backend.so", "--use-pixman", "--width=1240",
                                     f"--height={HEIGHT}", f"--config={self.home}/weston.ini",
                                     f"--socket={socket.name}")
            self.desktop.wait(socket.exists, "the compositor")
            self.desktop.set(QT_QPA_PLATFORM=None, XDG_SESSION_TYPE="wayland", WAYLAND_DISPLAY=socket.name)
        self.desktop.launch("--no-splash", self.sample())
        self.expect_column(0, ["the man", "the woman"])
        self.expect_active("frame", "Glosaria")

    def tearDown(self):
        self.desktop.wait_until_idle()
        self.desktop.screenshot(f"{self.id().rpartition('.')[2]}.png")

    # Windows

    def test_the_window_does_not_lie_under_the_panel(self):
        place = self.desktop.place(self.desktop.find("frame", "Glosaria"))
        self.assertLessEqual(place.height, HEIGHT - PANEL - TITLE)

    def test_another_start_opens_its_file_here(self):
        other = self.desktop.launch(self.sample("russian/05-time-and-days.gla"))
        self.desktop.wait_for(name="05-time-and-days")
        self.desktop.wait(lambda: other.poll() == 0, "the other copy to end")

    def test_an_x11_desktop_beside_it_has_a_copy_of_its_own(self):
        self.addCleanup(self.desktop.set, QT_QPA_PLATFORM=None, WAYLAND_DISPLAY="wayland-g")
        self.desktop.set(QT_QPA_PLATFORM="xcb", WAYLAND_DISPLAY=None)
        self.desktop.launch("--no-splash")
        self.desktop.wait(lambda: self.desktop.windows("--class", "glosaria"), "its window")

    def test_escape_closes_the_list_and_the_dialog_stays(self):
        self.open_dialog("Font", "alt+v", "f")
        for key in ("alt+Down", "Escape"):
            self.desktop.key(key)
            self.desktop.wait_until_idle()
        self.expect_active(name="Font")

    def test_help_comes_before_a_quiz(self):
        self.open_dialog("Practice - 06-family-and-people", "alt+q", "p")
        self.desktop.key("F1")
        self.expect_active("frame", "Practice - Glosaria Help")

    # What is exchanged with other programs

    def copy_elsewhere(self, text):
        owner = self.desktop.start_other("wl-copy", "--foreground", text)
        time.sleep(1)  # in which it has the keys
        self.expect_active("frame", "Glosaria")
        return owner

    def test_cells_are_copied_and_pasted_and_none_is_emptied_by_an_owner_that_hangs(self):
        self.desktop.key("shift+Right", "shift+Down", "ctrl+c")
        self.assertEqual(self.desktop.tool("wl-paste", "-n"), "the man\tder Mann\nthe woman\tdie Frau")
        self.copy_elsewhere("one\teins\ntwo\tzwei")
        self.desktop.key("Left", "Up", "ctrl+v")
        self.expect_column(0, ["one", "two", "the child"])
        owner = self.copy_elsewhere("lost")
        owner.send_signal(signal.SIGSTOP)
        self.desktop.key("ctrl+v")
        self.desktop.wait_for("alert")
        self.desktop.key("Return")
        owner.send_signal(signal.SIGCONT)
        self.expect_column(0, ["one", "two", "the child"])

    def source(self):
        """Width, height, left and top of what is drawn in the colour of the other window, or None."""
        self.desktop.screenshot("source.png")
        only = ("-fill", "black", "+opaque", COLOUR)
        place = re.split("[x+]", self.desktop.tool("convert", "source.png", *only, "-format", "%@", "info:"))
        return place if 100 < int(place[0]) < 400 else None

    def test_a_file_that_is_dropped_opens(self):
        file = self.sample("russian/05-time-and-days.gla")
        self.desktop.start_other(sys.executable, OTHER, self.desktop.program, file, COLOUR)
        width, height, left, top = map(int, self.desktop.wait(self.source, "the other window"))
        x, y, far = left + width // 2, top + height // 2, 60 if left < 500 else -60
        for place in ((2, 2), (x, y)):  # the compositor follows a pointer that has come in
            self.desktop.tool("xdotool", "mousemove", *place, "sleep", 0.3)
        self.desktop.tool("xdotool", "mousedown", 1)
        for step in range(8):
            self.desktop.tool("xdotool", "mousemove", x + far * step, y, "sleep", 0.1)
        self.desktop.tool("xdotool", "mouseup", 1)
        self.desktop.wait_for(name="05-time-and-days")


if __name__ == "__main__":
    run()
