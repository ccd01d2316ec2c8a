"""A window that starts a program as a desktop's menu does when a key is pressed: launcher.py <program> <file>

With F the program is started on the file.
"""

import sys

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, Gio, Gtk  # pylint: disable=wrong-import-position


def launch(_, event):
    told = Gio.AppInfoCreateFlags.SUPPORTS_STARTUP_NOTIFICATION
    entry = Gio.AppInfo.create_from_commandline(sys.argv[1], "Glosaria", told)
    files = [Gio.File.new_for_path(sys.argv[2])] if event.string == "f" else []
    entry.launch(files, Gdk.Display.get_default().get_app_launch_context())


window = Gtk.Window(title="launcher", default_width=400, default_height=200)
window.connect("key-press-event", launch)
window.show_all()
Gtk.main()
