#!/usr/bin/python3
"""Says on the session bus whether the person prefers dark windows, as a desktop's settings portal
does: settings_portal.py light|dark. Prints "ready" once it can be asked."""

import sys

from gi.repository import Gio, GLib

DESCRIPTION = """
<node>
  <interface name="org.freedesktop.portal.Settings">
    <method name="Read">
      <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/>
    </method>
    <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
  </interface>
</node>
"""


def answer(_connection, _sender, _path, _interface, _method, parameters, invocation):
    if parameters.unpack() != ("org.freedesktop.appearance", "color-scheme"):
        invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", "No such setting")
        return
    scheme = GLib.Variant("u", 1 if sys.argv[1] == "dark" else 2)
    # This call wraps its answer twice.
    invocation.return_value(GLib.Variant("(v)", (GLib.Variant("v", scheme),)))


bus = Gio.bus_get_sync(Gio.BusType.SESSION)
bus.register_object(
    "/org/freedesktop/portal/desktop",
    Gio.DBusNodeInfo.new_for_xml(DESCRIPTION).interfaces[0],
    answer,
)
Gio.bus_own_name_on_connection(
    bus,
    "org.freedesktop.portal.Desktop",
    Gio.BusNameOwnerFlags.NONE,
    lambda *_: print("ready", flush=True),
    None,
)
GLib.MainLoop().run()
