#!/usr/bin/python3
"""Takes pictures of every face of the window, in light and dark, at both densities and two sizes:
pictures.py PROGRAM FOLDER [WORD...]

With words, only the pictures whose names contain one of the variants, such as dark-2x-720x480."""

import os
import re
import signal
import subprocess
import sys
import tempfile
from multiprocessing import Process
from pathlib import Path

from desktop import Desktop, wait_for
from program import Program, repeat_video, require_tools
from usage import family_of

SIZES = ((720, 480), (1600, 1000))


def render(path, *arguments):
    command = ["ffmpeg", "-v", "error", "-nostdin", "-y", *arguments, "-c:v", "libx264"]
    command += ["-preset", "ultrafast", "-crf", "18", "-pix_fmt", "yuv420p", str(path)]
    subprocess.run(command, check=True)
    return path


class Videos:
    """Generated, so that nobody else's pictures are in ours."""

    def __init__(self, folder):
        source = "mandelbrot=s=1280x720:r=15:start_scale=1.6:end_scale=0.02:end_pts=120"
        self.landscape = render(
            folder / "mandelbrot.mp4", "-f", "lavfi", "-i", source, "-t", "8"
        )
        self.portrait = render(
            folder / "portrait.mp4", "-i", str(self.landscape), "-vf", "crop=404:720", "-t", "4"
        )
        self.long = repeat_video(self.landscape, 8, folder / "long.mp4")
        self.notes = folder / "notes.txt"
        self.notes.write_text("Buy milk.\n" * 40)


class Photographer:
    def __init__(self, place, program, folder, variant, size):
        self.scale = place.scale
        self.program = program
        self.folder = folder
        self.variant = variant
        self.size = size

    def _window(self):
        answer = subprocess.run(
            ["xdotool", "search", "--onlyvisible", "--pid", str(self.program.process.pid)],
            capture_output=True, text=True,
        )
        return max(answer.stdout.split(), key=lambda window: self._area(window)[2], default=None)

    @staticmethod
    def _area(window):
        """x, y, width, height without the frame."""
        answer = subprocess.run(["xwininfo", "-id", window], capture_output=True, text=True).stdout
        names = ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
        found = [re.search(name + r":\s+(-?\d+)", answer) for name in names]
        return tuple(int(each[1]) if each else 0 for each in found)

    def resize(self):
        window = wait_for("window", self._window)
        width, height = (side * self.scale for side in self.size)
        command = ["xdotool", "windowsize", "--sync", window, str(width), str(height)]
        subprocess.run(command, check=True)
        wait_for("size", lambda: self._area(window)[2:] == (width, height))

    def take(self, name):
        # What moves gets to its end: the pointer's traces, a frame that is being painted.
        previous = None

        def is_still():
            nonlocal previous
            latest, previous = previous, self._pixels()
            return latest == previous

        wait_for("still picture", is_still)
        (self.folder / f"{name}-{self.variant}.png").write_bytes(previous)

    def _pixels(self):
        x, y, width, height = self._area(self._window())
        return subprocess.run(
            ["import", "-window", "root", "-crop", f"{width}x{height}+{x}+{y}", "+repage",
             "-define", "png:exclude-chunks=date,time", "png:-"],
            check=True, capture_output=True,
        ).stdout

    def choose(self, path):
        self.program.hand.press("ctrl+o")
        self.program.answer_panel("Open", path)

    def open(self, path):
        self.choose(path)
        self.program.wait_for_video(path)

    def go_to(self, part):
        """Clicks on the strip, so far from its left end."""
        x, y, width, _ = self.program.tree.wait("filler", "Timeline").rect
        # Qt counts in points here, too.
        self.program.hand.click((x + width * part) * self.scale, (y + 28) * self.scale)
        # Where it lights nothing up.
        self.program.hand.move(4, 4)

    def take_all(self, videos):
        press = self.program.hand.press
        self.resize()
        self.program.hand.move(4, 4)
        self.take("empty")
        self.open(videos.landscape)
        self.go_to(0.06)
        press("bracketleft")
        self.go_to(0.7)
        press("bracketright")
        self.go_to(0.14)
        self.take("editor")
        press("k")
        self.take("crop")
        self.program.tree.wait("push button", "Export M")
        for _ in range(4):
            press("shift+Tab")
            if self.program.tree.focused().name.startswith("Export"):
                break
        press("Down")
        self.program.tree.wait("popup menu", "Export options")
        self.take("menu")
        press("Escape")
        self.open(videos.long)
        press("ctrl+e")
        self.program.answer_panel("Export", self.folder / "not-kept.mp4")
        self.program.wait_for_label("Exporting…")
        wait_for("progress", lambda: (self.program.tree.wait("progress bar").value or 0) > 100)
        (self.folder / f"sheet-{self.variant}.png").write_bytes(self._pixels())
        press("space")
        self.program.tree.wait_gone("label", "Exporting…")
        self.choose(videos.notes)
        self.program.wait_for_label("Something Went Wrong")
        self.take("alert")
        press("Return")
        self.program.tree.wait_gone("label", "Something Went Wrong")
        self.open(videos.portrait)
        self.take("portrait")
        press("r", "k")
        self.take("portrait-turned")
        self.lose_video()
        self.take("lost")
        press("Escape")
        self.program.tree.wait_gone("label", "Something Went Wrong")
        self.take("lost-dismissed")

    def lose_video(self):
        """Ends the processes that decode it: those that the program’s engine has forked."""
        _program, _engine, *helpers = family_of(self.program.process.pid)
        for helper in helpers:
            os.kill(helper, signal.SIGKILL)
        self.program.wait_for_label("Something Went Wrong")


def photograph(program, folder, videos, dark, scale, size):
    variant = f"{'dark' if dark else 'light'}-{scale}x-{size[0]}x{size[1]}"
    words = sys.argv[3:]
    if words and not any(word in variant for word in words):
        return
    screen = f"{size[0] * scale + 100}x{size[1] * scale + 140}"
    with Desktop(screen, scale, dark) as place:
        Photographer(place, Program(place, program), folder, variant, size).take_all(videos)
    print(variant)


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    require_tools()
    folder = Path(sys.argv[2]).resolve()
    folder.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory() as work:
        videos = Videos(Path(work))
        for dark in (False, True):
            for scale in (1, 2):
                for size in SIZES:
                    # A process has one accessibility bus for all its life.
                    worker = Process(
                        target=photograph,
                        args=(sys.argv[1], folder, videos, dark, scale, size),
                    )
                    worker.start()
                    worker.join()
                    if worker.exitcode != 0:
                        sys.exit("not all pictures were taken")


if __name__ == "__main__":
    main()
