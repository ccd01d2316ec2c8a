#!/usr/bin/env python3
"""What the program and others exchange on Wayland: wayland_exchange.py <program>"""

import pathlib
import re
import signal
import sys
import time

from cases import run
from parts.weston import WestonCase

SOURCE = pathlib.Path(__file__).parent / "parts" / "drag_source.py"
COLOUR = "#ff00fe"


class ExchangeCase(WestonCase):
    def source(self):
        """Width, height, left and top of what is drawn in the source's colour, or None."""
        self.desktop.screenshot("source.png")
        only = ("-fill", "black", "+opaque", COLOUR)
        place = re.split("[x+]", self.desktop.tool("convert", "source.png", *only, "-format", "%@", "info:"))
        return place if 100 < int(place[0]) < 400 else None

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

    def test_a_file_that_is_dropped_opens(self):
        file = self.sample("russian/05-time-and-days.gla")
        self.desktop.start_other(sys.executable, SOURCE, file.as_uri(), COLOUR)
        width, height, left, top = map(int, self.desktop.wait(self.source, "the source"))
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
