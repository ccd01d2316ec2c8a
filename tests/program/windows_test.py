#!/usr/bin/env python3
"""Goes through every window with the keyboard and listens as a screen reader does: windows_test.py <program>."""

from cases import ProgramCase, run
from tour import Tour

TOOLKITS_OWN = ("dialog open", "dialog save as", "dialog print")
WITHOUT_FOCUS = ("dialog splash", "main empty")


class WindowsCase(ProgramCase):
    """One test for each leg of the tour. A key that does not lead on makes the tour wait in vain."""

    def listen(self, stop):
        if stop not in TOOLKITS_OWN:
            self.assertEqual(sorted(set(self.desktop.unnamed())), [], f"without a name: {stop}")
        if stop not in WITHOUT_FOCUS:
            self.desktop.wait(self.name_of_focus, f"what has the focus to have a name: {stop}")

    def name_of_focus(self):
        focused = self.desktop.focused()
        return focused and focused.name.strip()


def test_of(leg):
    return lambda case: Tour(case.desktop, case.listen).go(leg)


for each in Tour.legs():
    setattr(WindowsCase, "test_" + each, test_of(each))

if __name__ == "__main__":
    run({"QT_QPA_PLATFORMTHEME": "gnome"})  # a desktop where Enter would press what is not typed into
