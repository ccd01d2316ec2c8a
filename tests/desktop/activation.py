#!/usr/bin/env python3
"""On Wayland, where a window gets the keys by a token only: activation.py <program>"""

import json
import os
import pathlib
import shutil
import sys
import tempfile

from cases import ProgramCase, run

PARTS = pathlib.Path(__file__).parent / "parts"
NOBODY = 65534


class ActivationCase(ProgramCase):
    def setUp(self):
        super().setUp()
        self.sockets = pathlib.Path(tempfile.mkdtemp(prefix="glosaria-sway-"))
        self.addCleanup(shutil.rmtree, self.sockets)
        settings = shutil.copy(PARTS / "sway.conf", self.sockets)
        command = ["env", f"XDG_RUNTIME_DIR={self.sockets}", f"HOME={self.sockets}", "WLR_BACKENDS=x11",
                   "WLR_RENDERER=pixman", "WLR_LIBINPUT_NO_DEVICES=1", "sway", "--config", settings]
        if os.getuid() == 0:  # as whom this compositor does not start
            os.chown(self.sockets, NOBODY, NOBODY)
            command = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups", *command]
        self.desktop.start_other(*command)
        self.desktop.wait(lambda: self.socket("wayland-?") and self.socket("sway-ipc.*"), "the compositor")
        self.desktop.set(QT_QPA_PLATFORM=None, XDG_SESSION_TYPE="wayland", WAYLAND_DISPLAY=self.socket("wayland-?"))

    def socket(self, name):
        return next(self.sockets.glob(name), None)

    def sway(self, *words):
        return json.loads(self.desktop.tool("swaymsg", "-s", self.socket("sway-ipc.*"), *words))

    def focused(self, *nodes):
        """The title of the window that has the keys, or None."""
        for node in nodes or [self.sway("-t", "get_tree")]:
            within = node["nodes"] + node["floating_nodes"]
            title = node["name"] if node["focused"] else within and self.focused(*within)
            if title:
                return title
        return None

    def expect_focused(self, title):
        self.desktop.expect(self.focused, title)

    def test_a_file_that_another_program_opens_brings_the_keys(self):
        self.desktop.launch("--no-splash", self.sample())
        self.expect_column(0, ["the man", "the woman"])
        self.expect_focused("Glosaria")
        file = self.sample("russian/05-time-and-days.gla")
        self.desktop.start_other(sys.executable, PARTS / "window.py", self.desktop.program, file, "gray")
        self.expect_focused("other")
        self.desktop.key("f")
        self.desktop.wait_for(name="05-time-and-days")
        self.expect_focused("Glosaria")
        self.open_dialog("Sort", "alt+v", "s")
        self.sway("[title=other]", "focus")
        self.expect_focused("other")
        self.desktop.key("a")
        self.expect_focused("Sort")
        self.sway("nop")  # which draws anew only after a command
        self.desktop.screenshot("front.png")


if __name__ == "__main__":
    run()
