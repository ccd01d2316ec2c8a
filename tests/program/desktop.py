"""A desktop of its own for whole-program tests: display, window manager, session bus, home folder, and the program.

with Desktop("build/dev/glosaria") as desktop:
    desktop.start("words.gla")
    desktop.key("ctrl+s")

Everything the desktop started ends with it or with its display. What is missing on the machine raises an error that
names it; what is waited for in vain leaves a picture of the desktop in the working folder.
"""

import ctypes
import itertools
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

TOOLS = ("Xvfb", "openbox", "dbus-daemon", "xdotool", "xclip", "xkbcomp", "import", "pdftotext")
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


class Missing(Exception):
    """A tool or a Python module that the machine lacks."""


class Desktop:
    """Owns the processes and the temporary folders. One in a process: the screen reader's library knows one bus."""

    def __init__(self, program, size="1280x800", environment=None, through=(), patience=PATIENCE):
        """environment holds variables that the program is started with, through the command that starts it."""
        self.program = os.path.abspath(program)
        self._given = environment or {}
        self._through = through
        self._patience = patience
        self._size = size
        self._processes = []
        self._programs = []
        self._atspi = None

    def __enter__(self):
        missing = [tool for tool in TOOLS if not shutil.which(tool)]
        if missing:
            raise Missing("not installed: " + ", ".join(missing))
        if not os.access(self.program, os.X_OK):
            raise Missing(f"not built: {self.program}")
        self._temporary = tempfile.TemporaryDirectory(prefix="glosaria-desktop-")
        self._folder = pathlib.Path(self._temporary.name)
        self._homes = 0
        self._environment = {
            "PATH": os.environ["PATH"],
            "LANG": "C.UTF-8",
            "QT_QPA_PLATFORM": "xcb",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
        }
        checks = ("ASAN_OPTIONS", "UBSAN_OPTIONS", "MALLOC_PERTURB_")
        self._environment.update({name: os.environ[name] for name in checks if name in os.environ})
        for interruption in INTERRUPTIONS:
            signal.signal(interruption, _interrupt)
        self._environment.update(self._given)
        self._add_folder("XDG_RUNTIME_DIR", self._folder / "run")
        self.fresh_home()
        try:
            self._start_display()
            self._start_bus()
            self._load_accessibility()
            self._start_window_manager()
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
        self.home = self._folder / f"home{self._homes}"
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
        for name, value in variables.items():
            self._environment.pop(name, None)
            if value is not None:
                self._environment[name] = str(value)

    @property
    def runtime(self):
        """The folder of sockets that what is started here shares."""
        return self._folder / "run"

    def launch(self, *arguments, through=()):
        """Starts the program and returns the process at once; through is a command that starts what follows it."""
        process = self._launch(*map(str, (*self._through, *through)), self.program, *map(str, arguments))
        self._processes.remove(process)
        self._programs.append(process)
        return process

    def start(self, *arguments, through=()):
        """Starts the program, waits for its main window and returns the process."""
        process = self.launch(*arguments, through=through)
        self.wait(lambda: self.main_window() or process.poll() is not None, "the main window")
        if process.poll() is not None:
            raise AssertionError(f"the program ended at once with {process.returncode}")
        return process

    def start_other(self, *command):
        """Starts another program, which ends with the desktop, and returns its process."""
        return self._launch(*command)

    def succeeds(self, *command):
        """Whether a command ends well on this desktop."""
        return self._attempt(*command).returncode == 0

    def quit(self, process):
        """Closes the main window as the user does and waits for the process to end; returns its exit code."""
        self.tool("xdotool", "windowactivate", "--sync", self.main_window())
        self.key("alt+F4")
        self.wait(lambda: process.poll() is not None, "the end of the program")
        self._programs.remove(process)
        return process.returncode

    def kill(self, process):
        """Ends the program as a power cut does."""
        process.kill()
        process.wait()
        self._programs.remove(process)

    def main_window(self):
        """The X window number of the visible main window as text, or None while there is none."""
        listed = self._attempt("xdotool", "search", "--onlyvisible", "--name", "Glosaria").stdout.split()
        return next((window for window in listed if self._width(window) > 600), None)

    def active_title(self):
        """The title of the window that takes the keys, or None."""
        return self._attempt("xdotool", "getactivewindow", "getwindowname").stdout.strip() or None

    def active_window(self):
        """The X window number of the window that takes the keys, or None."""
        return self._attempt("xdotool", "getactivewindow").stdout.strip() or None

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

    def click(self, x, y, button=1, times=1):
        """Clicks at a point of the screen."""
        self.tool("xdotool", "mousemove", x, y, "click", "--repeat", times, "--delay", 60, button)

    def click_on(self, item):
        """Clicks in the middle of what a screen reader found."""
        place = item.queryComponent().getExtents(self._atspi.DESKTOP_COORDS)
        self.click(place.x + place.width // 2, place.y + place.height // 2)

    def copy_elsewhere(self, text):
        """Puts text on the clipboard, as another program in which it was copied."""
        subprocess.run(
            ["xclip", "-selection", "clipboard"], input=text.encode(), check=True, timeout=self._patience,
            env=self._environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
        )

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
            try:
                if item is not root and not self._showing(item):
                    continue  # nor is anything in it
                if role in (None, item.getRoleName()) and name in (None, item.name):
                    yield item
                if item.getRoleName() not in skipped:
                    pending.extend(child for child in item if child)
            except Exception:  # pylint: disable=broad-except
                continue  # the object went away meanwhile

    def cell(self, row, column, within=None):
        """The text of a cell of the first table, counted from 0 below the headers."""
        table = self.wait_for(role="table", within=within).queryTable()
        return table.getAccessibleAt(row, column).name

    def unnamed(self):
        """What can be reached, typed into or pressed and has no name for a screen reader, with all that holds it."""
        states = self._atspi.STATE_FOCUSABLE, self._atspi.STATE_CHECKABLE, self._atspi.STATE_EDITABLE
        for item in self.find_all():
            reachable = any(item.getState().contains(state) for state in states) or item.get_n_actions()
            # A scroll bar is worked through what it scrolls.
            if reachable and not item.name.strip() and item.getRoleName() != "scroll bar":
                yield " / ".join(f"{one.getRoleName()} {one.name!r}" for one in self._path(item))

    def focused(self):
        """What has the focus as a screen reader tells it, or None."""
        holders = [item for item in self.find_all() if item.getState().contains(self._atspi.STATE_FOCUSED)]
        return holders[-1] if holders else None

    def is_checked(self, item):
        return item.getState().contains(self._atspi.STATE_CHECKED)

    def is_active(self, window):
        return bool(window) and window.getState().contains(self._atspi.STATE_ACTIVE)

    def wait_for(self, role=None, name=None, within=None):
        return self.wait(lambda: self.find(role, name, within), f"{role or 'something'} named {name!r}")

    def wait(self, condition, what, seconds=None):
        """Returns the condition's first true value; what is the text for a wait in vain, or makes it."""
        seconds = seconds or self._patience
        end = time.monotonic() + seconds
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
        raise AssertionError(f"waited {seconds} s in vain for {what}; the desktop stands in {picture}")

    def wait_until_idle(self):
        """Waits until the programs have nothing to do."""
        self.wait(lambda: not any(time.sleep(0.03) or self._is_busy() for _ in range(8)), "the program to come to rest")

    # Beneath

    def _is_busy(self):
        for program in self._programs:
            for state in pathlib.Path(f"/proc/{program.pid}/task").glob("*/stat"):
                try:
                    if state.read_text().rpartition(")")[2].split()[0] in "RD":
                        return True
                except OSError:
                    continue  # the thread has ended
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
        self._environment[variable] = str(folder)

    def _launch(self, *command, **options):
        log = open(self._folder / (pathlib.Path(command[0]).name + ".log"), "ab")
        with log:
            options.setdefault("stdout", log)
            process = subprocess.Popen(
                command, env=self._environment, stdin=subprocess.DEVNULL, stderr=log, start_new_session=True,
                preexec_fn=_die_with_parent, **options
            )
        self._processes.append(process)
        return process

    def _start_display(self):
        server = self._launch(
            "Xvfb", "-displayfd", "1", "-screen", "0", self._size + "x24", "-noreset", "-nolisten", "tcp",
            "-r",  # no key repeats itself because a busy machine is slow to release it
            stdout=subprocess.PIPE,
        )
        number = self._first_line(server)
        if not number:
            raise AssertionError("Xvfb did not start")
        self._environment["DISPLAY"] = ":" + number
        self._letters = ""
        self._lay_out_keyboard()

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

    def _start_bus(self):
        bus = self._launch("dbus-daemon", "--session", "--nofork", "--print-address=1", stdout=subprocess.PIPE)
        self._environment["DBUS_SESSION_BUS_ADDRESS"] = self._first_line(bus)

    def _start_window_manager(self):
        """A window that shows before the window manager is ready may stay unseen for ever."""
        self._launch("openbox", "--sm-disable")
        self.wait(lambda: self._attempt("xdotool", "get_num_desktops").returncode == 0, "the window manager")

    def _load_accessibility(self):
        """Loads the screen reader's library, which takes bus and display from this process' environment."""
        os.environ.update({name: self._environment[name] for name in ("DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "HOME")})
        os.environ["XDG_RUNTIME_DIR"] = self._environment["XDG_RUNTIME_DIR"]
        try:
            import pyatspi  # pylint: disable=import-outside-toplevel
            from gi.repository import GLib  # pylint: disable=import-outside-toplevel
        except ImportError as error:
            raise Missing(f"not installed: {error.name} for {sys.executable}") from error
        pyatspi.setTimeout(self._patience * 1000, self._patience * 1000)
        self._atspi = pyatspi
        self._events = GLib.MainContext.default()

    def _showing(self, item):
        return item.getState().contains(self._atspi.STATE_SHOWING)

    def _path(self, item):
        """The item below all that holds it, without the application itself."""
        path = []
        while item and item.parent:
            path.insert(0, item)
            item = item.parent
        return path[1:]

    def _width(self, window):
        shape = self._attempt("xdotool", "getwindowgeometry", "--shell", window).stdout
        return int(dict(line.split("=") for line in shape.split() if "=" in line).get("WIDTH", 0))

    @staticmethod
    def _first_line(process):
        with process.stdout as output:
            return output.readline().decode().strip()

    def _end(self, process):
        """Ends a process and all that it started in its session."""
        for step in (signal.SIGTERM, signal.SIGKILL):
            try:
                os.killpg(process.pid, step)
            except ProcessLookupError:
                break
            try:
                process.wait(self._patience / 6)
            except subprocess.TimeoutExpired:
                continue
        process.wait()
