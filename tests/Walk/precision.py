#!/usr/bin/python3
"""Cuts to the frame in a long video: precision.py PROGRAM [PICTURES]

Drags both ends slowly with Shift, turns the wheel over them, types times, goes about by keys, and
looks which frames the exported files hold."""

import subprocess
import sys
import time
from pathlib import Path

from desktop import Desktop, wait_for
from program import Program, expect, require_tools

RATE = 24
SECONDS = 1200
BITS = 15


def make_numbered_video(path):
    """Twenty minutes; each picture shows its number in black and white squares, lowest bit first."""
    command = ["ffmpeg", "-v", "error", "-nostdin", "-y", "-f", "lavfi",
               "-i", f"nullsrc=d={SECONDS}:s={BITS}x2:r={RATE},format=gray",
               "-vf", "geq=lum='255*mod(floor(N/pow(2\\,X))\\,2)',"
               f"scale={8 * BITS}:16:flags=neighbor,format=yuv420p",
               "-c:v", "libx264", "-preset", "ultrafast", "-g", "250"]
    subprocess.run([*command, str(path)], check=True)
    return path


def numbers_in(path):
    """Those of all pictures of a file, as ffmpeg decodes them."""
    command = ["ffmpeg", "-v", "error", "-nostdin", "-i", str(path), "-f", "rawvideo",
               "-pix_fmt", "gray", "-vf", f"scale={BITS}:1:flags=area", "-"]
    pixels = subprocess.run(command, check=True, capture_output=True).stdout
    return [sum(1 << bit for bit in range(BITS) if pixels[start + bit] > 127)
            for start in range(0, len(pixels), BITS)]


class Precision:
    def __init__(self, program, folder):
        self.program = program
        self.hand = program.hand
        self.tree = program.tree
        self.folder = folder

    def strip(self):
        x, y, width, _ = self.tree.wait("filler", "Timeline").rect
        handle_width = self.tree.wait("slider", "Trim start").rect[2]
        return x + handle_width, y + 28, width - 2 * handle_width

    def place(self, seconds):
        x, y, width = self.strip()
        return x + width * seconds / SECONDS, y

    def readout(self):
        """The exact time beside a marker; none where none is shown."""
        for element in self.tree.elements():
            if element.role == "label" and element.name.count(":") == 2 and "#" in element.name:
                return element.name
        return None

    def wait_for_readout(self, part):
        wait_for(f"exact time with \"{part}\"", lambda: part in (self.readout() or ""))

    def frame(self, name):
        return self.program.slider(name) * RATE

    def fine_drag(self):
        """A pixel is thirty frames, a hundredth of it less than one."""
        self.hand.drag(self.tree.wait("slider", "Trim start").center, self.place(SECONDS / 2))
        x, y = self.place(SECONDS / 2)
        per_pixel = SECONDS / self.strip()[2]
        coarse = self.program.wait_for_value("Trim start", SECONDS / 2, per_pixel)
        x, y = round(x) - 6, round(y)
        self.hand.key_down("shift")
        self.hand.hold(x, y)
        self.program.wait_for_value("Trim start", coarse, 1e-6)
        self.wait_for_readout("1/10 speed")
        self.hand.move(x + 10, y)
        tenth = self.program.wait_for_value("Trim start", coarse + per_pixel, 0.01)
        self.program.keep_picture("tenth")
        self.hand.move(x + 10, y - 120)
        self.wait_for_readout("1/100 speed")
        self.program.wait_for_value("Trim start", tenth, 1e-6)
        self.hand.move(x + 11, y - 120)
        hundredth = self.program.wait_for_value("Trim start", tenth + per_pixel / 100, 1e-4)
        expect(0 < (hundredth - tenth) * RATE < 1, "a pixel is less than a frame")
        self.program.keep_picture("hundredth")
        self.hand.key_up("shift")
        wait_for("full speed", lambda: "speed" not in (self.readout() or "speed"))
        self.program.wait_for_value("Trim start", hundredth, 1e-6)
        self.hand.let_go()

    def turn_wheel(self):
        before = self.frame("Trim start")
        place = self.tree.wait("slider", "Trim start").center
        self.hand.scroll(*place, 3)
        self.program.wait_for_value("Trim start", (before + 3) / RATE, 1e-6)
        self.wait_for_readout("#")
        self.hand.scroll(*place, -1)
        self.program.wait_for_value("Trim start", (before + 2) / RATE, 1e-6)
        self.hand.key_down("shift")
        self.hand.scroll(*place, 1)
        self.hand.key_up("shift")
        self.program.wait_for_value("Trim start", (before + 12) / RATE, 1e-6)
        wait_for("end of the exact time", lambda: self.hand.move(5, 5) or not self.readout())

    def go_to(self, text):
        self.hand.press("ctrl+g")
        self.tree.wait("dialog", "Go to Time")
        wait_for("keyboard in the field", self._focused_field)
        self.hand.type(text)
        self.hand.press("Return")
        self.tree.wait_gone("dialog", "Go to Time")

    def _focused_field(self):
        element = self.tree.focused()
        return element is not None and element.role == "text"

    def type_times(self):
        self.go_to("0:10:03,5")
        self.program.wait_for_value("Playhead", 603.5, 1e-3)
        self.go_to("-10f")
        self.program.wait_for_value("Playhead", 603.5 - 10 / RATE, 1e-3)
        self.hand.press("ctrl+g")
        self.tree.wait("dialog", "Go to Time")
        wait_for("keyboard in the field", self._focused_field)
        self.program.keep_picture("time-field")
        self.hand.type("soon")
        self.hand.press("Return")
        self.program.wait_for_label("This is no time.")
        self.program.keep_picture("refused")
        self.hand.press("Escape")
        self.tree.wait_gone("dialog", "Go to Time")
        expect(self.tree.find("slider", "Playhead"), "the window is still there")
        self.go_to("#14501")
        self.program.wait_for_value("Playhead", 14501 / RATE, 1e-3)
        # After the move it stands there for a moment only; under the pointer it stays.
        self.hand.move(*self.tree.wait("slider", "Playhead").center)
        self.wait_for_readout("#14501")
        self.go_to("+5f")
        self.program.wait_for_value("Playhead", 14506 / RATE, 1e-3)
        self.hand.press("bracketright")
        self.go_to("-5f")
        self.program.wait_for_value("Playhead", 14501 / RATE, 1e-3)
        self.hand.press("bracketleft")
        self.program.wait_for_label("Range 0:00:00.208")
        self.program.keep_picture("range")

    def go_by_keys(self):
        last = SECONDS * RATE
        for key, frame in (("Home", 0), ("End", 14506), ("Up", 14530),
                           ("Down", 14506), ("End", last)):
            self.hand.press(key)
            self.program.wait_for_value("Playhead", frame / RATE, 2e-3)

    def export(self, name):
        self.hand.press("ctrl+e")
        output = self.folder / name
        self.program.answer_panel("Export", output)
        wait_for(f"file {name}", output.exists)
        self.tree.wait_gone("label", "Exporting…")
        # Escape would be meant for the sheet until then.
        time.sleep(1)
        return numbers_in(output)

    def close(self):
        self.hand.press("Escape")
        expect(self.program.wait_for_end() == 0, "the program ends well with its last window")


def work(walk):
    walk.fine_drag()
    walk.turn_wheel()
    first = int(walk.frame("Trim start"))
    walk.go_to("#" + str(first + 20))
    walk.hand.press("bracketright")
    numbers = walk.export("fine.mp4")
    shown = int(walk.program.slider("Trim start") * RATE + 1e-3)
    expect(numbers[0] == shown, f"the file begins with frame {numbers[0]}, not {shown}")
    expect(numbers == list(range(shown, first + 20)), f"the frames are {numbers}")
    walk.type_times()
    numbers = walk.export("typed.mp4")
    expect(numbers == list(range(14501, 14506)), f"the frames are {numbers}")
    walk.go_by_keys()
    walk.close()


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    require_tools()
    with Desktop() as place:
        pictures = Path(sys.argv[2]) if len(sys.argv) == 3 else None
        if pictures is not None:
            pictures.mkdir(parents=True, exist_ok=True)
        video = make_numbered_video(place.folder / "long.mp4")
        program = Program(place, sys.argv[1], video, pictures=pictures)
        program.wait_for_video(video)
        walk = Precision(program, place.folder)
        try:
            work(walk)
        except BaseException:
            program.keep_picture("failed")
            raise
    print("cut to the frame")


if __name__ == "__main__":
    main()
