#!/usr/bin/env python3
"""Opens and closes every window under valgrind: memcheck.py <program> [legs of the tour].

Fails on any use of memory that valgrind reports and memcheck.supp, which knows the toolkit and what lies below it, does
not excuse. The tests' sanitizers see what the program's own code reads and writes; this sees the toolkit do it, too.
"""

import pathlib
import sys
import tempfile

from desktop import Desktop
from tour import Tour

PATIENCE = 120  # valgrind makes a program some thirty times slower
SUPPRESSIONS = pathlib.Path(__file__).with_suffix(".supp")
WITHOUT_COMPILED_EXPRESSIONS = {"QT_ENABLE_REGEXP_JIT": "0"}  # valgrind cannot follow them


class PatientTour(Tour):
    """Lets the program finish with a key before the next."""

    def _press(self, *keys):
        for key in keys:
            super()._press(key)
            self._desktop.wait_until_idle()


def reports(program, legs):
    """What valgrind wrote about each process of the program."""
    with tempfile.TemporaryDirectory() as folder:
        valgrind = ("valgrind", "--quiet", "--error-limit=no", "--num-callers=40", f"--suppressions={SUPPRESSIONS}",
                    f"--log-file={folder}/%p")
        with Desktop(program, environment=WITHOUT_COMPILED_EXPRESSIONS, patience=PATIENCE) as desktop:
            for leg in legs:
                desktop.fresh_home()
                desktop.through = valgrind
                PatientTour(desktop, lambda stop: desktop.wait_until_idle()).go(leg)
        return [path.read_text() for path in pathlib.Path(folder).iterdir()]


def main():
    program, *legs = sys.argv[1:]
    legs = legs or Tour.legs()
    written = reports(program, legs)
    assert len(written) >= len(legs), "valgrind did not run"
    if any(written):
        sys.exit("".join(written))
    print(f"valgrind has nothing to report about {len(written)} processes.")


if __name__ == "__main__":
    main()
