"""Asks a window on the X display to close, as a window manager does when its cross is clicked.

    close_window.py WINDOW
"""
import ctypes
import sys


class ClientMessage(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong),
                ("message_type", ctypes.c_ulong), ("format", ctypes.c_int),
                ("data", ctypes.c_long * 5),
                # The union of all events is this much larger.
                ("rest", ctypes.c_long * 12)]


CLIENT_MESSAGE = 33

x11 = ctypes.CDLL("libX11.so.6")
x11.XOpenDisplay.restype = ctypes.c_void_p
x11.XInternAtom.restype = ctypes.c_ulong
x11.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
x11.XSendEvent.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_long,
                           ctypes.POINTER(ClientMessage)]
x11.XCloseDisplay.argtypes = [ctypes.c_void_p]

window = int(sys.argv[1])
display = x11.XOpenDisplay(None)
if not display:
    sys.exit("close_window: there is no display")
event = ClientMessage(type=CLIENT_MESSAGE, window=window, format=32,
                      message_type=x11.XInternAtom(display, b"WM_PROTOCOLS", 0))
event.data[0] = x11.XInternAtom(display, b"WM_DELETE_WINDOW", 0)
x11.XSendEvent(display, window, 0, 0, ctypes.byref(event))
x11.XCloseDisplay(display)
