"""A window of another program: window.py <program> <file> <colour>

It is all of one colour. The file can be dragged from it. A key starts the program as a desktop's menu does, F on the
file.
"""

import pathlib
import sys

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, Gio, Gtk  # pylint: disable=wrong-import-position

program, file, colour = sys.argv[1:]


def launch(_, event):
    told = Gio.AppInfoCreateFlags.SUPPORTS_STARTUP_NOTIFICATION
    entry = Gio.AppInfo.create_from_commandline(program, "Glosaria", told)
    files = [Gio.File.new_for_path(file)] if event.string == "f" else []
    entry.launch(files, Gdk.Display.get_default().get_app_launch_context())


window = Gtk.Window(title="other", default_width=240, default_height=160)
window.connect("key-press-event", launch)
area = Gtk.EventBox()
window.add(area)
style = Gtk.CssProvider()
style.load_from_data(f"* {{ background: {colour}; }}".encode())
area.get_style_context().add_provider(style, Gtk.STYLE_PROVIDER_PRIORITY_APPLICATION)
kinds = [Gtk.TargetEntry.new("text/uri-list", 0, 0)]
area.drag_source_set(Gdk.ModifierType.BUTTON1_MASK, kinds, Gdk.DragAction.COPY)
area.connect("drag-data-get", lambda area, drag, data, kind, when: data.set_uris([pathlib.Path(file).as_uri()]))
window.show_all()
Gtk.main()
