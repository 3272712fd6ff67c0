#!/usr/bin/python3
"""The file manager of a desktop: file_manager.py. Prints "ready" once it can be asked, then a line
with the address of each file that it is to show in its folder."""

from gi.repository import Gio, GLib

DESCRIPTION = """
<node>
  <interface name="org.freedesktop.FileManager1">
    <method name="ShowItems">
      <arg type="as" direction="in"/><arg type="s" direction="in"/>
    </method>
  </interface>
</node>
"""


def answer(_connection, _sender, _path, _interface, _method, parameters, invocation):
    for file in parameters.unpack()[0]:
        print(file, flush=True)
    invocation.return_value(None)


bus = Gio.bus_get_sync(Gio.BusType.SESSION)
bus.register_object(
    "/org/freedesktop/FileManager1", Gio.DBusNodeInfo.new_for_xml(DESCRIPTION).interfaces[0], answer
)
Gio.bus_own_name_on_connection(
    bus,
    "org.freedesktop.FileManager1",
    Gio.BusNameOwnerFlags.NONE,
    lambda *_: print("ready", flush=True),
    None,
)
GLib.MainLoop().run()
