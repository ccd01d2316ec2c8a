#!/usr/bin/env python3
"""Lists the pictures that screenshots.py has taken, a window a row and a look a column: screenshots_index.py <folder>."""

import html
import pathlib
import sys
import urllib.parse


def main():
    folder = pathlib.Path(sys.argv[1])
    looks = sorted({picture.parent.name for picture in folder.glob("*/*.png")})
    names = sorted({picture.name for picture in folder.glob("*/*.png")})

    def cell(look, name):
        if not (folder / look / name).exists():
            return "<td>missing</td>"
        address = urllib.parse.quote(f"{look}/{name}")
        return f'<td><a href="{address}"><img src="{address}" alt="{html.escape(look + " " + name)}" loading="lazy"></a></td>'

    rows = "\n".join(
        f"<tr><th>{html.escape(name.removesuffix('.png'))}</th>{''.join(cell(look, name) for look in looks)}</tr>"
        for name in names
    )
    (folder / "index.html").write_text(
        '<!DOCTYPE html><html lang="en"><head><meta charset="utf-8"><title>Every window of Glosaria</title>'
        "<style>body{font-family:sans-serif} img{max-width:20em} th{text-align:left;position:sticky;top:0;left:0;"
        "background:Canvas}</style></head>"
        f"<body><table><tr><th></th>{''.join(f'<th>{look}</th>' for look in looks)}</tr>\n{rows}</table></body></html>\n"
    )


if __name__ == "__main__":
    main()
