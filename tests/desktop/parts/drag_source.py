"""A window of one colour from which a file can be dragged: drag_source.py <URI> <colour>"""

import sys

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gdk, Gtk  # pylint: disable=wrong-import-position

window = Gtk.Window(title="source", default_width=240, default_height=160)
area = Gtk.EventBox()
window.add(area)
style = Gtk.CssProvider()
style.load_from_data(f"* {{ background: {sys.argv[2]}; }}".encode())
area.get_style_context().add_provider(style, Gtk.STYLE_PROVIDER_PRIORITY_APPLICATION)
kinds = [Gtk.TargetEntry.new("text/uri-list", 0, 0)]
area.drag_source_set(Gdk.ModifierType.BUTTON1_MASK, kinds, Gdk.DragAction.COPY)
area.connect("drag-data-get", lambda area, drag, data, kind, when: data.set_uris([sys.argv[1]]))
window.show_all()
Gtk.main()
