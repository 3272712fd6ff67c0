"""Prints what is said of starts on the X display, one message a line; "listening" first.

The pieces of one message are taken as they come: only one program speaks at a time.
"""
import ctypes


class Event(ctypes.Structure):
    """A client message, in the union of all events."""
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong),
                ("message_type", ctypes.c_ulong), ("format", ctypes.c_int),
                ("data", ctypes.c_long * 5), ("rest", ctypes.c_long * 12)]


CLIENT_MESSAGE = 33
PROPERTY_CHANGE_MASK = 1 << 22

x11 = ctypes.CDLL("libX11.so.6")
x11.XOpenDisplay.restype = ctypes.c_void_p
x11.XDefaultRootWindow.restype = ctypes.c_ulong
x11.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
x11.XInternAtom.restype = ctypes.c_ulong
x11.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
x11.XSelectInput.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_long]
x11.XSync.argtypes = [ctypes.c_void_p, ctypes.c_int]
x11.XNextEvent.argtypes = [ctypes.c_void_p, ctypes.POINTER(Event)]

display = x11.XOpenDisplay(None)
begin = x11.XInternAtom(display, b"_NET_STARTUP_INFO_BEGIN", 0)
following = x11.XInternAtom(display, b"_NET_STARTUP_INFO", 0)
x11.XSelectInput(display, x11.XDefaultRootWindow(display), PROPERTY_CHANGE_MASK)
x11.XSync(display, 0)
print("listening", flush=True)

event = Event()
message = b""
while True:
    x11.XNextEvent(display, ctypes.byref(event))
    if event.type != CLIENT_MESSAGE or event.message_type not in (begin, following):
        continue
    piece = ctypes.string_at(ctypes.addressof(event) + Event.data.offset, 20)
    message = piece if event.message_type == begin else message + piece
    if b"\0" in piece:
        print(message.split(b"\0")[0].decode(), flush=True)
