"""A desktop of its own for whole-program tests: display, window manager, session bus, home folder, and the program.

with Desktop("build/dev/glosaria") as desktop:
    desktop.start("words.gla")
    desktop.key("ctrl+s")

Everything the desktop started ends with it or with its display. What is waited for in vain leaves a picture of the
desktop in the working folder.
"""

import contextlib
import ctypes
import itertools
import os
import pathlib
import re
import signal
import subprocess
import tempfile
import time

PATIENCE = 30  # seconds that anything may take on a busy machine
INTERRUPTIONS = (signal.SIGINT, signal.SIGTERM, signal.SIGHUP)
FREE_KEYS = (*range(147, 191), *range(208, 235), *range(239, 256))
KEYBOARD = """
    xkb_keymap {
        xkb_keycodes { include "evdev+aliases(qwerty)" };
        xkb_types { include "complete" };
        xkb_compat { include "complete" };
        xkb_symbols { include "pc+us" LETTERS };
    };
"""

_LIBC = ctypes.CDLL(None)
_PR_SET_PDEATHSIG = 1


def _die_with_parent():
    """What a desktop started ends even if this process is killed and cannot end it."""
    _LIBC.prctl(_PR_SET_PDEATHSIG, signal.SIGKILL)


def _interrupt(*_):
    raise KeyboardInterrupt  # which passes through every test and ends the desktop on its way


class Desktop:
    """Owns the processes and the temporary folders. One in a process: the screen reader's library knows one bus."""

    def __init__(self, program, size="1280x800", environment=None, patience=PATIENCE):
        """environment holds variables for the program and all else that is started."""
        self.program = os.path.abspath(program)
        self.through = ()  # a command that starts what follows it, to start the program with
        self._size = size
        self._patience = patience
        self._processes = []
        self._programs = []
        self._letters = ""  # that have keys of their own
        self._homes = 0
        self._temporary = tempfile.TemporaryDirectory(prefix="glosaria-desktop-")
        self.runtime = pathlib.Path(self._temporary.name) / "run"  # the folder of sockets that all share
        self._environment = {
            "PATH": os.environ["PATH"],
            "LANG": "C.UTF-8",
            "QT_QPA_PLATFORM": "xcb",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
        }
        checks = ("ASAN_OPTIONS", "UBSAN_OPTIONS", "MALLOC_PERTURB_")
        self._environment |= {name: os.environ[name] for name in checks if name in os.environ}
        self._environment |= environment or {}

    def __enter__(self):
        for interruption in INTERRUPTIONS:
            signal.signal(interruption, _interrupt)
        self._add_folder("XDG_RUNTIME_DIR", self.runtime)
        self.fresh_home()
        try:
            # -r: no key repeats itself because a busy machine is slow to release it
            screen = ("-screen", "0", self._size + "x24", "-noreset", "-nolisten", "tcp", "-r")
            self.set(DISPLAY=":" + self._serve("Xvfb", "-displayfd", "1", *screen))
            bus = self._serve("dbus-daemon", "--session", "--nofork", "--print-address=1")
            self.set(DBUS_SESSION_BUS_ADDRESS=bus)
            self._load_accessibility()
            self.start_other("openbox", "--sm-disable")
            # A window that shows before the window manager is ready may stay unseen for ever.
            self.wait(lambda: self.succeeds("xdotool", "get_num_desktops"), "the window manager")
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for interruption in INTERRUPTIONS:
            signal.signal(interruption, signal.SIG_IGN)
        self.end_programs()
        for process in reversed(self._processes):
            self._end(process)
        self._temporary.cleanup()

    # The program

    def fresh_home(self):
        """Gives what is started from now on a new, empty home, and returns that folder."""
        self._homes += 1
        self.home = self.runtime.with_name(f"home{self._homes}")
        self.through = ()
        for variable, folder in (
            ("HOME", ""), ("XDG_CONFIG_HOME", "config"), ("XDG_DATA_HOME", "data"), ("XDG_STATE_HOME", "state"),
            ("XDG_CACHE_HOME", "cache"), ("TMPDIR", "tmp"),
        ):
            self._add_folder(variable, self.home / folder)
        return self.home

    def end_programs(self):
        """Ends every program still running, without asking."""
        while self._programs:
            self._end(self._programs.pop())

    def set(self, **variables):
        """Gives variables to what is started from now on; None takes one away."""
        given = self._environment | variables
        self._environment = {name: str(value) for name, value in given.items() if value is not None}

    def launch(self, *arguments):
        """Starts the program and returns the process at once."""
        self._programs.append(self._launch(*self.through, self.program, *arguments))
        return self._programs[-1]

    def start(self, *arguments):
        """Starts the program, waits until a window of it takes the keys and returns the process."""
        process = self.launch(*arguments)
        self.wait(lambda: self.find("frame") and self.active_window() or process.poll() is not None, "the main window")
        assert process.poll() is None, f"the program ended at once with {process.returncode}"
        return process

    def start_other(self, *command, stdout=None):
        """Starts another program, which ends with the desktop, and returns its process."""
        self._processes.append(self._launch(*command, stdout=stdout))
        return self._processes[-1]

    def succeeds(self, *command):
        """Whether a command ends well on this desktop."""
        return self._attempt(*command).returncode == 0

    def quit(self, process):
        """Closes the window that takes the keys and waits for the process to end; returns its exit code."""
        self.key("alt+F4")
        self.wait(lambda: process.poll() is not None, "the end of the program")
        return process.returncode

    def kill(self, process):
        """Ends the program as a power cut does."""
        process.kill()
        process.wait()

    def active_title(self):
        """The title of the window that takes the keys; empty if none does."""
        return self._attempt("xdotool", "getactivewindow", "getwindowname").stdout.strip()

    def active_window(self):
        """The X window number of the window that takes the keys; empty if none does."""
        return self._attempt("xdotool", "getactivewindow").stdout.strip()

    def windows(self, *wanted):
        """The X window numbers of the windows that show and that xdotool finds so."""
        return self._attempt("xdotool", "search", "--onlyvisible", *wanted).stdout.split()

    def shape(self, window):
        """Left, top, width and height of a window on the screen."""
        lines = self.tool("xdotool", "getwindowgeometry", "--shell", window).split()
        return [int(line.partition("=")[2]) for line in lines[1:5]]

    # The user's hands and eyes

    def key(self, *keys):
        """Presses keys in xdotool's names: "ctrl+s", "Return", "alt+ö"."""
        self._add_keys("".join(keys))
        named = [re.sub("[^ -~]", lambda letter: f"U{ord(letter[0]):04X}", key) for key in keys]
        self.tool("xdotool", "key", "--clearmodifiers", *named)

    def type(self, text):
        """Types on a keyboard that gets a key for each letter it lacks."""
        self._add_keys(text)
        self.tool("xdotool", "type", "--clearmodifiers", "--delay", "2", text)

    def click_on(self, item):
        """Clicks in the middle of what a screen reader found."""
        place = self.place(item)
        self.tool("xdotool", "mousemove", place.x + place.width // 2, place.y + place.height // 2, "click", 1)

    def copy_elsewhere(self, text):
        """Puts text on the clipboard, as another program in which it was copied."""
        self.tool("sh", "-c", "xclip -selection clipboard > /dev/null 2>&1", input=text)

    def copied(self):
        """The text that another program pastes."""
        return self.tool("xclip", "-selection", "clipboard", "-out")

    def screenshot(self, path, window=None):
        """A picture of the desktop, or of one window with its frame and what lies over it."""
        what = ["-window", window, "-frame", "-screen"] if window else ["-window", "root"]
        self.tool("import", *what, path)

    # What a screen reader finds

    def application(self):
        """The program's accessible root, or None while it is not there."""
        desktop = self._atspi.Registry.getDesktop(0)
        return next((child for child in desktop if child and child.name == "Glosaria"), None)

    def find(self, role=None, name=None, within=None):
        """The first showing accessible of this role and name (either may be None), or None.

        Cells are asked for by row and column, and buttons of a tool bar are only found within a window or a tool bar:
        walking through them takes long.
        """
        return next(self.find_all(role, name, within), None)

    def find_all(self, role=None, name=None, within=None):
        root = within or self.application()
        skipped = ("table",) if within else ("table", "tool bar")
        pending = [root] if root else []
        while pending:
            item = pending.pop(0)
            with contextlib.suppress(Exception):  # the object went away meanwhile
                if item is not root and not self.has(item, "SHOWING"):
                    continue  # nor is anything in it
                if role in (None, item.getRoleName()) and name in (None, item.name):
                    yield item
                if item.getRoleName() not in skipped:
                    pending.extend(child for child in item if child)

    def has(self, item, state):
        """Whether an accessible is in a state: "CHECKED", "ACTIVE"."""
        return item.getState().contains(getattr(self._atspi, "STATE_" + state))

    def place(self, item):
        """Where an accessible stands on the screen: x, y, width and height."""
        return item.queryComponent().getExtents(self._atspi.DESKTOP_COORDS)

    def text(self, item):
        """What stands in a text box; nothing in what is none."""
        return item.queryText().getText(0, -1) if item and item.getRoleName() == "text" else ""

    def table(self):
        """The first table, whose cells are counted from 0 below the headers."""
        return self.wait_for("table").queryTable()

    def unnamed(self):
        """What can be reached, typed into or pressed and has no name for a screen reader, with what holds it."""
        for item in self.find_all():
            reachable = any(self.has(item, state) for state in ("FOCUSABLE", "CHECKABLE", "EDITABLE"))
            # A scroll bar is worked through what it scrolls.
            if (reachable or item.get_n_actions()) and not item.name.strip() and item.getRoleName() != "scroll bar":
                yield f"{item.getRoleName()} in {item.parent.getRoleName()} {item.parent.name!r}"

    def focused(self):
        """What has the focus as a screen reader tells it, or None."""
        holders = [item for item in self.find_all() if self.has(item, "FOCUSED")]
        return holders[-1] if holders else None

    def wait_for(self, role=None, name=None, within=None):
        return self.wait(lambda: self.find(role, name, within), f"{role or 'something'} named {name!r}")

    def expect(self, look, wanted):
        """Waits until a look shows what is wanted."""
        self.wait(lambda: look() == wanted, lambda: f"{wanted!r} instead of {look()!r}")

    def expect_title(self, title):
        """Waits until a window of this title takes the keys."""
        self.expect(self.active_title, title)

    def wait(self, condition, what):
        """Returns the condition's first true value; what is the text for a wait in vain, or makes it."""
        end = time.monotonic() + self._patience
        while time.monotonic() < end:
            while self._events.iteration(False):
                pass  # what changed reaches the screen reader's memory only so
            value = condition()
            if value:
                return value
            time.sleep(0.1)
        picture = pathlib.Path("waited-in-vain.png").resolve()
        self.screenshot(picture)
        what = what() if callable(what) else what
        raise AssertionError(f"waited {self._patience} s in vain for {what}; the desktop stands in {picture}")

    def wait_until_idle(self):
        """Waits until the programs have nothing to do."""
        self.wait(lambda: not any(time.sleep(0.03) or self._is_busy() for _ in range(8)), "the program to come to rest")

    # Beneath

    def _is_busy(self):
        for program in self._programs:
            for thread in pathlib.Path(f"/proc/{program.pid}/task").glob("*/stat"):
                with contextlib.suppress(OSError):  # the thread has ended
                    if thread.read_text().rpartition(")")[2].split()[0] in "RD":
                        return True
        return False

    def tool(self, *command, **options):
        """Runs a command on this desktop and returns what it printed."""
        result = self._attempt(*command, **options)
        result.check_returncode()
        return result.stdout

    def _attempt(self, *command, **options):
        """Runs a command that may fail."""
        return subprocess.run(
            [str(word) for word in command],
            env=self._environment, capture_output=True, text=True, check=False, timeout=self._patience, **options,
        )

    def _add_folder(self, variable, folder):
        folder.mkdir(mode=0o700)
        self.set(**{variable: folder})

    def _launch(self, *command, stdout=None):
        with open(self.runtime.with_name(pathlib.Path(command[0]).name + ".log"), "ab") as log:
            return subprocess.Popen(
                command, env=self._environment, stdin=subprocess.DEVNULL, stdout=stdout or log, stderr=log,
                start_new_session=True, preexec_fn=_die_with_parent,
            )

    def _serve(self, *command):
        """Starts what prints where it can be reached, and returns that."""
        with self.start_other(*command, stdout=subprocess.PIPE).stdout as output:
            return output.readline().decode().strip()

    def _add_keys(self, text):
        """xdotool would lend a key to a letter for a moment only, and the program may look too late."""
        missing = sorted({letter for letter in text if ord(letter) > 126} - set(self._letters))
        if missing:
            self._letters += "".join(missing)
            self._lay_out_keyboard()

    def _lay_out_keyboard(self):
        """An American keyboard, its media keys with further letters."""
        signs = [f"U{ord(letter):04X}" for letter in self._letters]
        keys = zip(FREE_KEYS, itertools.zip_longest(signs[::2], signs[1::2], fillvalue="NoSymbol"))
        symbols = "".join(f"key <I{key}> {{ [ {', '.join(levels)} ] }};" for key, levels in keys)
        self.tool("xkbcomp", "-w0", "-", self._environment["DISPLAY"], input=KEYBOARD.replace("LETTERS", symbols))

    def _load_accessibility(self):
        """Loads the screen reader's library, which takes bus and display from this process' environment."""
        os.environ.update(self._environment)
        import pyatspi  # pylint: disable=import-outside-toplevel
        from gi.repository import GLib  # pylint: disable=import-outside-toplevel
        pyatspi.setTimeout(self._patience * 1000, self._patience * 1000)
        self._atspi = pyatspi
        self._events = GLib.MainContext.default()

    def _end(self, process):
        """Ends a process and all that it started in its session."""
        for step in (signal.SIGTERM, signal.SIGKILL):
            with contextlib.suppress(ProcessLookupError, subprocess.TimeoutExpired):
                os.killpg(process.pid, step)
                process.wait(self._patience / 6)
        process.wait()
