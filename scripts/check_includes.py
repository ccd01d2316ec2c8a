#!/usr/bin/env python3
"""Refuses includes that run upward: check_includes.py <source folder> <folder of the Qt headers>.

The floors come from the table in src/README.md. A file may include its own folder and folders on lower floors; what
stands in a folder named rules may include no header of a windows library, neither Qt's nor one of the program's own.
"""

import pathlib
import re
import sys

WINDOWS_MODULES = ("QtWidgets", "QtPrintSupport", "QtSvgWidgets")
ALL_RULES = (("platform",), ("resources",), ("services", "settings"), ("memory",))  # folders that know no screen as a whole
FLOOR_ROW = re.compile(r"^\| (\d) \| `(\w+)/` \|", re.MULTILINE)
INCLUDE = re.compile(r'^\s*#\s*include\s+(?:"([^"]+)"|<([^>]+)>)', re.MULTILINE)


def floors(source):
    return {name: int(floor) for floor, name in FLOOR_ROW.findall((source / "README.md").read_text())}


def windows_headers(qt_headers):
    names = set()
    for module in WINDOWS_MODULES:
        folder = qt_headers / module
        names.update(f"{prefix}{file.name}" for file in folder.glob("*") for prefix in ("", f"{module}/"))
        names.add(module)
    return names


def knows_no_screen(path):
    return "rules" in path.parts or any(path.parts[: len(room)] == room for room in ALL_RULES)


def own_header_fault(includer, header, source, floor_of):
    if re.match(r"(ui_\w+\.h|\w+\.moc|moc_\w+\.cpp)$", header):
        return "a form" if knows_no_screen(includer) and header.startswith("ui_") else None
    if not (source / header).is_file():
        return "a path that does not start in src/"
    target = pathlib.PurePath(header)
    own, other = includer.parts[0], target.parts[0]
    if own in floor_of and own != other and floor_of[other] >= floor_of[own]:
        return f"floor {floor_of[other]} from floor {floor_of[own]}"
    if knows_no_screen(includer) and not knows_no_screen(target):
        return "a windows library from rules"
    return None


def faults(source, qt_headers):
    floor_of = floors(source)
    windows = windows_headers(qt_headers)
    files = [file for pattern in ("*.h", "*.cpp") for file in source.rglob(pattern)]
    if not files or not floor_of or not windows:
        yield "nothing to check: no source files, no floors or no Qt headers"
    for file in sorted(files):
        includer = file.relative_to(source)
        if len(includer.parts) > 1 and includer.parts[0] not in floor_of:
            yield f"{includer}: its folder has no floor in README.md"
        for own, other in INCLUDE.findall(file.read_text()):
            fault = own_header_fault(includer, own, source, floor_of) if own else None
            if other in windows and knows_no_screen(includer):
                fault = "a Qt windows header from rules"
            if fault:
                yield f"{includer} includes {own or other}: {fault}"


def main():
    found = list(faults(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])))
    print("\n".join(found) or "Every include runs downwards.")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
