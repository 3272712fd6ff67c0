"""The program on a desktop, as somebody uses it who sees its window and hears its names."""

import json
import re
import subprocess
import sys
from pathlib import Path

import accessibility
from accessibility import Accessibility
from desktop import Hand, missing_tools, photograph, wait_for

SKIPPED = 77

# Trials of exports stand back behind whatever else runs on the machine.
FORECAST_DEADLINE = 200

SLIDERS = ("Trim start", "Playhead", "Trim end")


def require_tools():
    """Ends the run as skipped, saying why, where something that it needs is not installed."""
    missing = missing_tools()
    if not accessibility.is_installed():
        missing.append("gir1.2-atspi-2.0")
    if missing:
        print("skipped: not installed:", ", ".join(missing))
        sys.exit(SKIPPED)


def expect(condition, what):
    if not condition:
        raise AssertionError("not so: " + what)


def expect_near(value, wanted, tolerance, what):
    is_near = abs(value - wanted) <= tolerance
    expect(is_near, f"{what} is {value:g}, not {wanted:g} ± {tolerance:g}")


def make_video(path, size, seconds, rate=30, with_sound=True):
    """A test picture with a clock in it, and a tone."""
    command = ["ffmpeg", "-v", "error", "-nostdin", "-y"]
    command += ["-f", "lavfi", "-i", f"testsrc2=d={seconds}:s={size}:r={rate}"]
    if with_sound:
        command += ["-f", "lavfi", "-i", f"sine=d={seconds}", "-c:a", "aac"]
    command += ["-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p"]
    subprocess.run([*command, str(path)], check=True)
    return path


def repeat_video(source, times, path):
    """The same several times over, without encoding it again."""
    command = ["ffmpeg", "-v", "error", "-nostdin", "-y", "-stream_loop", str(times - 1)]
    subprocess.run([*command, "-i", str(source), "-c", "copy", str(path)], check=True)
    return path


def probe(path):
    command = ["ffprobe", "-v", "error", "-of", "json", "-show_format", "-show_streams", str(path)]
    return json.loads(subprocess.run(command, check=True, capture_output=True).stdout)


def stream(report, kind):
    return next((each for each in report["streams"] if each["codec_type"] == kind), None)


def formatted(seconds):
    """A time as the labels show it, for less than an hour."""
    return f"{int(seconds) % 3600 // 60:02d}:{seconds % 60:04.1f}"


class Program:
    def __init__(self, desktop, path, *arguments, pictures=None):
        self.process = desktop.start(path, *arguments)
        self.tree = Accessibility(self.process.pid)
        self.hand = Hand()
        self.pictures = pictures
        self._picture_count = 0

    def keep_picture(self, name):
        if self.pictures is not None:
            self._picture_count += 1
            photograph(Path(self.pictures) / f"{self._picture_count:02d}-{name}.png")

    def click(self, role, name):
        self.hand.click(*self.tree.wait(role, name).center)

    def slider(self, name):
        return self.tree.wait("slider", name).value

    def sliders(self):
        return {name: self.slider(name) for name in SLIDERS}

    def has_label(self, text):
        return self.tree.find("label", text) is not None

    def wait_for_label(self, text):
        wait_for(f"label \"{text}\"", lambda: self.has_label(text))

    def wait_for_value(self, name, seconds, tolerance):
        """Waits until a slider stands at a time, and gives where it stands exactly."""
        wait_for(
            f"\"{name}\" at {seconds:g} s ± {tolerance:g}",
            lambda: abs(self.slider(name) - seconds) <= tolerance,
        )
        return self.slider(name)

    def wait_for_video(self, path):
        self.tree.wait("filler", Path(path).name)
        self.tree.wait("slider", "Playhead")

    def answer_panel(self, title, path):
        """Types a file's name into a panel. Gives the name that the panel proposed."""
        self.tree.wait("dialog", title)
        field = wait_for("keyboard in the panel's name", self._focused_text)
        proposed = field.text
        self.hand.press("ctrl+a")
        self.hand.type(str(path))
        self.hand.press("Return")
        wait_for("end of the panel", lambda: self._focused_text() is None)
        return proposed

    def _focused_text(self):
        # Only panels have texts to write in.
        element = self.tree.focused()
        return element if element is not None and element.role == "text" else None

    def crop(self):
        """x, y, width, height of the crop in pixels of the picture; None without one."""
        element = self.tree.find("image", "Crop")
        if element is None:
            return None
        numbers = re.fullmatch(r"(\d+)×(\d+) at (\d+), (\d+)", element.description)
        width, height, x, y = (int(number) for number in numbers.groups())
        return x, y, width, height

    def wait_for_end(self):
        wait_for("end of the program", lambda: self.process.poll() is not None)
        return self.process.returncode
