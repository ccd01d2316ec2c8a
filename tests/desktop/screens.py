#!/usr/bin/env python3
"""Two screens, the right one of double scale, which is taken away: screens.py <program>"""

from cases import ProgramCase, run

WIDTH, HEIGHT = 1280, 800  # of each screen, in its own pixels
FRAME = 24  # by which places that are asked for are too large


class ScreensCase(ProgramCase):
    def setUp(self):
        super().setUp()
        for name, left, output in (("LEFT", 0, "screen"), ("RIGHT", WIDTH, "none")):
            self.desktop.succeeds("xrandr", "--setmonitor", name, f"{WIDTH}/340x{HEIGHT}/212+{left}+0", output)
        self.assertIn("Monitors: 2", self.desktop.tool("xrandr", "--listmonitors"))
        self.program = self.open(self.sample())
        self.desktop.key("alt+minus", "x")  # the document fills its window

    def move_right(self, x, y, *size):
        window = self.desktop.active_window()
        if size:
            self.desktop.tool("xdotool", "windowsize", "--sync", window, *size)
        self.desktop.tool("xdotool", "windowmove", "--sync", window, WIDTH + x, y)
        self.desktop.wait_until_idle()

    def expect_in_view(self, count):
        def seen():
            shapes = map(self.desktop.shape, self.desktop.windows("--class", "glosaria"))
            far = [max(left + width - WIDTH, top + height - HEIGHT, FRAME - left, FRAME - top)
                   for left, top, width, height in shapes]
            return len(far) == count and max(far) <= FRAME

        self.desktop.wait(seen, f"{count} windows in view")

    def columns(self):
        return [self.desktop.place(self.desktop.table().getAccessibleAt(0, column)).width for column in (0, 1)]

    def test_windows_come_back_and_keep_their_columns(self):
        before = self.columns()
        self.move_right(40, 60, 1000, 700)
        self.desktop.screenshot("right.png")
        self.assertEqual(self.columns(), before, "in points")
        self.open_dialog("Find", "ctrl+f")
        self.move_right(500, 400)
        self.desktop.key("F1")
        self.expect_active("frame", "Find - Glosaria Help")
        self.move_right(300, 200)
        self.desktop.tool("xrandr", "--delmonitor", "RIGHT")
        self.expect_in_view(3)
        self.desktop.screenshot("after.png")
        self.assertEqual(self.columns(), before)

    def test_a_place_on_a_screen_that_has_gone_is_not_taken(self):
        self.move_right(100, 60, 900, 600)
        self.assertEqual(self.desktop.quit(self.program), 0)
        self.desktop.tool("xrandr", "--delmonitor", "RIGHT")
        self.desktop.start("--no-splash")
        self.expect_in_view(1)


if __name__ == "__main__":
    run({"QT_SCREEN_SCALE_FACTORS": "LEFT=1;RIGHT=2"}, f"{2 * WIDTH}x{HEIGHT}")
