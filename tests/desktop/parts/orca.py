"""Orca on a desktop, without a voice: what it would say is taken from its log."""

import re
import time

# Its own command would end, or give way to, the Orca that the user of this machine may need.
START = """import sys
from orca import debug, orca, settings_manager
debug.debugLevel = debug.LEVEL_ALL
debug.eventDebugLevel = debug.LEVEL_OFF
debug.debugFile = open(sys.argv[1], "w", buffering=1)
settings_manager.getManager().activate(None, {"enableBraille": False, "enableKeyEcho": False,
                                              "speechServerFactory": "none", "speechFactoryModules": []})
orca.main()
"""
SAID = re.compile(r"SPEECH OUTPUT: '(.*?)\s*'(?: voice=\w+)? ?\{")
PATIENCE = 90  # seconds that all it says at once may take on a busy machine
QUIET = 1  # seconds without a line in the log after which nothing more comes


class Orca:
    def __init__(self, desktop):
        self._log = desktop.home / "orca.log"
        self._told = 0  # bytes of the log
        desktop.start_other("/usr/bin/python3", "-c", START, self._log)
        desktop.wait(self._log.exists, "Orca")
        self.hear(["Screen reader on"])

    def hear(self, expected):
        """Waits until all that is expected has been said and no more comes; what was said since the last call, and what
        of the expected was not."""
        text, said, missing = b"", [], expected
        last = time.monotonic()
        end = last + PATIENCE
        while time.monotonic() < (end if missing else min(end, last + QUIET)):
            time.sleep(0.1)
            before, text = text, self._log.read_bytes()[self._told:]
            if text != before:
                last = time.monotonic()
                said = SAID.findall(text.decode(errors="replace"))
                missing = [each for each in expected if each not in " ".join(said)]
        self._told += len(text)
        return said, missing
