#!/usr/bin/env python3
"""Takes pictures of every window: screenshots.py <program> <folder> <look> [<leg of the tour>...].

A look is a palette, a scale in percent and, if it is not English, a language: light-100, dark-125-de.
Palettes are set as users of Debian set them: light and dark by the theme of GTK, high contrast by qt6ct.
"""

import pathlib
import sys
import time

from desktop import Desktop
from tour import Tour

SETTLE = 0.6  # seconds for the last repaint, a fading menu and a blinking cursor

GTK = {"QT_QPA_PLATFORMTHEME": "gtk3"}
PALETTES = {
    "light": GTK | {"GTK_THEME": "Adwaita"},
    "dark": GTK | {"GTK_THEME": "Adwaita:dark"},
    "contrast": {"QT_QPA_PLATFORMTHEME": "qt6ct"},
}

# The colour roles of the toolkit in their order, from the text of windows to the placeholder of a box.
ACTIVE = ("white black white white gray silver white white white black black white yellow black cyan fuchsia black "
          "black black white silver")
DISABLED = ("lime black white white gray silver lime white lime black black white gray black cyan fuchsia black black "
            "black white gray")
NAMED = {
    "white": "#ffffffff", "black": "#ff000000", "gray": "#ff808080", "silver": "#ffc0c0c0", "yellow": "#ffffff00",
    "cyan": "#ff00ffff", "fuchsia": "#ffff80ff", "lime": "#ff3ff23f",
}


def colours(names):
    return ", ".join(NAMED[name] for name in names.split())


def choose_high_contrast(home):
    """What qt6ct stores when such a colour scheme is chosen in its window."""
    folder = home / "config" / "qt6ct"
    folder.mkdir(parents=True)
    scheme = folder / "contrast.conf"
    scheme.write_text(
        f"[ColorScheme]\nactive_colors={colours(ACTIVE)}\ninactive_colors={colours(ACTIVE)}\n"
        f"disabled_colors={colours(DISABLED)}\n"
    )
    (folder / "qt6ct.conf").write_text(
        f"[Appearance]\ncolor_scheme_path={scheme}\ncustom_palette=true\nstyle=Fusion\nstandard_dialogs=default\n"
    )


class Album:
    """Takes the pictures, numbered in the order of the tour."""

    def __init__(self, desktop, folder):
        self._desktop = desktop
        self._folder = folder
        self._count = 0

    def take(self, name):
        time.sleep(SETTLE)
        self._count += 1
        window = None if name.startswith("main") else self._desktop.active_window()
        self._desktop.screenshot(self._folder / f"{self._count:02} {name.removeprefix('dialog ')}.png", window)


def main():
    program, folder, look, *legs = sys.argv[1:]
    palette, percent, *language = look.split("-")
    album = pathlib.Path(folder)
    album.mkdir(parents=True, exist_ok=True)
    environment = PALETTES[palette] | {"QT_SCALE_FACTOR": str(int(percent) / 100), "GDK_SCALE": str(int(percent) // 100)}
    environment |= {"LANG": f"{name}.UTF-8" for name in language}
    failed = []
    with Desktop(program, environment=environment) as desktop:
        tour = Tour(desktop, Album(desktop, album).take, *language)
        for leg in legs or Tour.legs():
            home = desktop.fresh_home()
            if palette == "contrast":
                choose_high_contrast(home)
            try:
                tour.go(leg)
            except AssertionError as error:
                failed.append(f"{leg}: {error}")
    if failed:
        sys.exit("\n".join(failed))


if __name__ == "__main__":
    main()
