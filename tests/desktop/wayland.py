#!/usr/bin/env python3
"""Windows on Wayland: wayland.py <program>"""

from cases import run
from parts.weston import HEIGHT, PANEL, TITLE, WestonCase


class WaylandCase(WestonCase):
    def test_the_window_does_not_lie_under_the_panel(self):
        place = self.desktop.find("frame", "Glosaria").queryComponent().getSize()
        self.assertLessEqual(place[1], HEIGHT - PANEL - TITLE)

    def test_another_start_opens_its_file_here(self):
        other = self.desktop.launch(self.sample("russian/05-time-and-days.gla"))
        self.desktop.wait_for(name="05-time-and-days")
        self.desktop.wait(lambda: other.poll() == 0, "the other copy to end")

    def test_an_x11_desktop_beside_it_has_a_copy_of_its_own(self):
        self.addCleanup(self.desktop.set, QT_QPA_PLATFORM=None, WAYLAND_DISPLAY="wayland-g")
        self.desktop.set(QT_QPA_PLATFORM="xcb", WAYLAND_DISPLAY=None)
        self.desktop.start("--no-splash")

    def test_escape_closes_the_list_and_the_dialog_stays(self):
        self.open_dialog("Font", "alt+v", "f")
        self.desktop.key("alt+Down", "Escape")
        self.desktop.wait_until_idle()
        self.expect_active(name="Font")

    def test_help_comes_before_a_quiz(self):
        self.open_dialog("Practice - 06-family-and-people", "alt+q", "p")
        self.desktop.key("F1")
        self.expect_active("frame", "Practice - Glosaria Help")


if __name__ == "__main__":
    run()
