"""fcitx5 with pinyin on the desktop of the cases."""

import time

from cases import ProgramCase

GROUP = """[Groups/0]
Name=Default
Default Layout=us
DefaultIM=pinyin
[Groups/0/Items/0]
Name=keyboard-us
[Groups/0/Items/1]
Name=pinyin
[GroupOrder]
0=Default
"""
SETTINGS = {
    "profile": GROUP, "config": "[Behavior]\nActiveByDefault=True\nShareInputState=All\n",
    "conf/xcb.conf": "Allow Overriding System XKB Settings=False\n",
}
ENVIRONMENT = {"QT_IM_MODULE": "fcitx"}  # for the program


class PinyinCase(ProgramCase):
    @classmethod
    def setUpClass(cls):
        for name, text in SETTINGS.items():
            file = cls.desktop.home / "config" / "fcitx5" / name
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text)
        cls.desktop.start_other("fcitx5", "--disable=cloudpinyin,notifications")
        cls.desktop.wait(lambda: cls.desktop.succeeds("fcitx5-remote", "-s", "pinyin"), "the input method")

    def candidates(self):
        """The window with the candidates while it shows, or None."""
        search = ("xdotool", "search", "--onlyvisible", "--name", "Fcitx5 Input Window")
        return self.desktop.tool(*search).split()[0] if self.desktop.succeeds(*search) else None

    def compose(self, letters="nihao"):
        """Types and returns the window with the candidates."""
        self.desktop.tool("fcitx5-remote", "-s", "pinyin")
        time.sleep(1)  # a window that has just come is not known to the input method yet
        self.desktop.type(letters)
        window = self.desktop.wait(self.candidates, "the candidates")
        self.desktop.wait_until_idle()
        return window

    def cell_at(self, row, column):
        table = self.desktop.wait_for("table").queryTable()
        return table.getAccessibleAt(row, column)
