#!/usr/bin/env python3
"""Starts the program on a file on a virtual desktop and takes a picture: show.py <program> <file> <picture>."""

import pathlib
import sys
import time

from desktop import Desktop


def main():
    program, file, picture = sys.argv[1:]
    with Desktop(program) as desktop:
        desktop.start(file)
        desktop.wait_for(name=pathlib.Path(file).stem)
        time.sleep(1)  # the last repaint
        desktop.screenshot(picture)


if __name__ == "__main__":
    main()
