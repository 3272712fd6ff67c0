"""A desktop of its own for one run of the program: display, window manager, session bus and
accessibility bus, and the mouse and keyboard of xdotool. Everything ends with it; the settings of
the person who runs it are neither read nor changed."""

import ctypes
import os
import shutil
import signal
import subprocess
import tempfile
import time
from pathlib import Path

DEADLINE = 20.0

PROGRAMS = ("Xvfb", "openbox", "dbus-daemon", "xdotool", "xprop", "import", "ffmpeg", "ffprobe")
PRIVATE_FOLDERS = (
    "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR", "HOME"
)
FOREIGN_SETTINGS = (
    "WAYLAND_DISPLAY", "XDG_CURRENT_DESKTOP", "QT_STYLE_OVERRIDE", "AT_SPI_BUS_ADDRESS"
)
ACCESSIBILITY_BUS = (
    "/usr/libexec/at-spi-bus-launcher",
    "/usr/lib/at-spi2-core/at-spi-bus-launcher",
    "/usr/lib/at-spi-bus-launcher",
)

HERE = Path(__file__).resolve().parent


def missing_tools():
    """What is not installed of what this needs."""
    missing = [name for name in PROGRAMS if shutil.which(name) is None]
    if not any(Path(path).exists() for path in ACCESSIBILITY_BUS):
        missing.append("at-spi2-core")
    return missing


def wait_for(what, condition, seconds=DEADLINE):
    """Asks again and again until there is an answer that counts as true, and gives it."""
    end = time.monotonic() + seconds
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            raise AssertionError(f"in {seconds:g} s there was no {what}")
        time.sleep(0.02)


def _end_with_parent():
    """So that nothing is left where the script is killed, as a test is that takes too long."""
    set_parent_death_signal = 1
    ctypes.CDLL(None).prctl(set_parent_death_signal, signal.SIGTERM)


class Desktop:
    """Use it in a with statement."""

    def __init__(self, screen="1800x1200", scale=1, dark=False, locale="C.UTF-8"):
        self.screen = screen
        self.locale = locale
        self.scale = scale
        self.dark = dark
        self.folder = Path(tempfile.mkdtemp(prefix="brisklet-desktop-"))
        self._processes = []

    def __enter__(self):
        try:
            self._start()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        for process in reversed(self._processes):
            if process.poll() is None:
                process.send_signal(signal.SIGTERM)
                try:
                    process.wait(5)
                except subprocess.TimeoutExpired:
                    process.kill()
                    process.wait()
        self._processes.clear()
        shutil.rmtree(self.folder, ignore_errors=True)

    def start(self, *command, **options):
        """Starts a program that ends with the desktop at the latest."""
        process = subprocess.Popen(
            [str(part) for part in command], preexec_fn=_end_with_parent, **options
        )
        self._processes.append(process)
        return process

    def _start(self):
        for name in PRIVATE_FOLDERS:
            folder = self.folder / name.lower()
            folder.mkdir(mode=0o700)
            os.environ[name] = str(folder)
        for name in FOREIGN_SETTINGS:
            os.environ.pop(name, None)
        os.environ.update(
            LC_ALL=self.locale,
            QT_QPA_PLATFORM="xcb",
            QT_QPA_PLATFORMTHEME="",
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
            QT_SCALE_FACTOR=str(self.scale),
            NO_AT_BRIDGE="1",
        )
        display = self._start_and_read(
            "Xvfb", "-displayfd", "1", "-screen", "0", self.screen + "x24", "-nolisten", "tcp",
            "-noreset"
        )
        os.environ["DISPLAY"] = ":" + display
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self._start_and_read(
            "dbus-daemon", "--session", "--nofork", "--print-address=1"
        )
        quiet = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        self.start("openbox", "--sm-disable", **quiet)
        launcher = next(path for path in ACCESSIBILITY_BUS if Path(path).exists())
        self.start(launcher, "--launch-immediately", **quiet)
        portal = self._start_and_read(
            "/usr/bin/python3", HERE / "settings_portal.py", "dark" if self.dark else "light"
        )
        assert portal == "ready"
        name = "_NET_SUPPORTING_WM_CHECK"
        wait_for("window manager", lambda: "window id" in self._ask_root(name))

    def start_file_manager(self):
        """Gives the process, which says on a line of its own what it is to show."""
        process = self.start(
            "/usr/bin/python3", HERE / "file_manager.py", stdout=subprocess.PIPE, text=True
        )
        assert process.stdout.readline().strip() == "ready"
        return process

    def _ask_root(self, atom):
        answer = subprocess.run(["xprop", "-root", atom], capture_output=True, text=True)
        return answer.stdout

    def _start_and_read(self, *command):
        process = self.start(*command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        return process.stdout.readline().strip()


class Hand:
    """Mouse and keyboard. Positions are pixels of the screen."""

    def _xdotool(self, *words):
        subprocess.run(["xdotool", *[str(word) for word in words]], check=True)

    def move(self, x, y):
        self._xdotool("mousemove", "--sync", round(x), round(y))

    def click(self, x, y):
        self._xdotool("mousemove", round(x), round(y), "click", 1)

    def drag(self, start, end, steps=6):
        """Presses, moves in steps as a hand does, and lets go."""
        words = ["mousemove", round(start[0]), round(start[1]), "mousedown", 1]
        for step in range(1, steps + 1):
            part = step / steps
            x = start[0] + (end[0] - start[0]) * part
            y = start[1] + (end[1] - start[1]) * part
            words += ["mousemove", round(x), round(y), "sleep", "0.01"]
        self._xdotool(*words, "mouseup", 1)

    def hold(self, x, y):
        """Presses the button of the mouse and keeps it down."""
        self._xdotool("mousemove", round(x), round(y), "mousedown", 1)

    def scroll(self, x, y, notches):
        """Turns the wheel; a positive number is up."""
        button = 4 if notches > 0 else 5
        self._xdotool("mousemove", round(x), round(y), "click", "--repeat", abs(notches), button)

    def key_down(self, key):
        self._xdotool("keydown", key)

    def key_up(self, key):
        self._xdotool("keyup", key)

    def let_go(self):
        self._xdotool("mouseup", 1)

    def press_while_held(self, key):
        """Presses a key with the mouse's button down, which press() would let go of."""
        self._xdotool("key", key)

    def press(self, *keys):
        for key in keys:
            self._xdotool("key", "--clearmodifiers", key)

    def type(self, text):
        self._xdotool("type", "--delay", 4, "--", text)


def photograph(path):
    """Keeps a picture of the whole screen."""
    subprocess.run(["import", "-window", "root", str(path)], check=True)
