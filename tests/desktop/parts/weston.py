"""Cases in a Wayland compositor that shows its screen in a window of the virtual display."""

from cases import ProgramCase

HEIGHT, PANEL, TITLE = 740, 32, 20  # pixels: of the compositor's screen, the panel on it, and at least of a title bar
SETTINGS = "[shell]\nlocking=false\nanimation=none\nstartup-animation=none\n[input-method]\npath=\n"


class WestonCase(ProgramCase):
    """Each finds the program on a lesson; a picture of its end is left."""

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
        self.desktop.launch("--no-splash", self.sample("german/06-family-and-people.gla"))
        self.expect_column(0, ["the man", "the woman"])
        self.expect_active("frame", "Glosaria")

    def tearDown(self):
        self.desktop.wait_until_idle()
        self.desktop.screenshot(f"{self.id().rpartition('.')[2]}.png")
