#!/usr/bin/python3
"""Exports onto a disk that is too full: space.py PROGRAM [PICTURES]

The disk is a small file system in memory, which is there for this run alone. With clearly too little
space the program says so with both numbers before it writes anything; with nearly too little it
begins all the same; with enough the file is there."""

import os
import re
import subprocess
import sys
from pathlib import Path

from desktop import Desktop, wait_for
from program import FORECAST_DEADLINE, SKIPPED, Program, expect, expect_near, probe, require_tools

MEGABYTE = 1_000_000
SECONDS = 12
REFUSAL = "Export failed: There is not enough free space"
SEPARATED = "BRISKLET_WALK_HAS_MOUNTS_OF_ITS_OWN"


def separate_mounts():
    """Starts again where file systems may be mounted that nobody else sees; else ends as skipped."""
    if SEPARATED in os.environ:
        return
    command = ["unshare", "--mount"]
    if os.geteuid() != 0:
        command.append("--map-root-user")
    trial = [*command, "mount", "-t", "tmpfs", "none", "/mnt"]
    try:
        is_allowed = subprocess.run(trial, capture_output=True).returncode == 0
    except OSError:
        is_allowed = False
    if not is_allowed:
        print("skipped: no small file system may be mounted here")
        sys.exit(SKIPPED)
    os.environ[SEPARATED] = "1"
    os.execvp(command[0], [*command, sys.executable, *sys.argv])


def make_noisy_video(path):
    """Of a size that hardly depends on the encoder's cleverness: 12 s in some 20 MB. A key frame
    each second, so that a slow machine gets to each place of a trial as well."""
    command = ["ffmpeg", "-v", "error", "-nostdin", "-y", "-f", "lavfi",
               "-i", f"testsrc2=d={SECONDS}:s=1280x720:r=30,noise=alls=20:allf=t",
               "-c:v", "libx264", "-preset", "ultrafast", "-g", "30", "-b:v", "14M",
               "-pix_fmt", "yuv420p"]
    subprocess.run([*command, str(path)], check=True)
    return path


class SmallDisk:
    def __init__(self, folder):
        self.folder = folder
        folder.mkdir()
        subprocess.run(["mount", "-t", "tmpfs", "-o", "size=1m", "none", str(folder)], check=True)

    def resize(self, size):
        subprocess.run(["mount", "-o", f"remount,size={round(size)}", str(self.folder)], check=True)

    def free(self):
        status = os.statvfs(self.folder)
        return status.f_bavail * status.f_frsize

    def names(self):
        return sorted(each.name for each in self.folder.iterdir())


class Space:
    def __init__(self, program, disk):
        self.program = program
        self.tree = program.tree
        self.hand = program.hand
        self.disk = disk

    def forecast(self):
        """Bytes, as the export button tells a screen reader once they are known."""
        def known():
            button = self.tree.find("push button", "Export MP4…")
            return button and re.search(r"about ([\d.]+) MB", button.description)

        return float(wait_for("forecast", known, FORECAST_DEADLINE)[1]) * MEGABYTE

    def begin(self, name):
        output = self.disk.folder / name
        self.hand.press("ctrl+e")
        self.program.answer_panel("Export", output)
        return output

    def be_refused(self, expected):
        """Before anything is written: what was there is what is there."""
        free = self.disk.free()
        self.begin("refused.mp4")
        alert = self.tree.wait("label", REFUSAL)
        self.program.keep_picture("refused")
        numbers = re.findall(r"([\d.]+) MB", alert.name)
        expect(len(numbers) == 2, f"both numbers are in \"{alert.name}\"")
        expect_near(float(numbers[0]) * MEGABYTE, expected, 0.06 * expected, "what it takes")
        expect_near(float(numbers[1]) * MEGABYTE, free, 0.06 * free, "what is free")
        expect(not self.program.has_label("Exporting…"), "no export goes on")
        expect(self.disk.names() == [], f"nothing is left there: {self.disk.names()}")
        expect(self.disk.free() == free, "as much is free as before")
        self.hand.press("Return")
        self.tree.wait_gone("label", REFUSAL)

    def nearly_fit(self):
        """Whether it fits is seen at the end only; here the user does not wait for that."""
        self.begin("nearly.mp4")
        self.program.wait_for_label("Exporting…")
        self.program.keep_picture("nearly")
        expect(not self.program.has_label(REFUSAL), "it is not refused")
        self.tree.wait("push button", "Cancel").act()
        self.tree.wait_gone("label", "Exporting…")
        expect(self.disk.names() == [], f"a cancelled export leaves nothing: {self.disk.names()}")

    def fit(self):
        output = self.begin("fits.mp4")
        wait_for("exported file", output.exists, 60)
        self.tree.wait_gone("label", "Exporting…")
        expect_near(float(probe(output)["format"]["duration"]), SECONDS, 0.1, "the duration")
        return output.stat().st_size

    def close(self):
        self.hand.press("Escape", "Escape")
        expect(self.program.wait_for_end() == 0, "the program ends well with its last window")


def work(space):
    expected = space.forecast()
    print(f"forecast: {expected / MEGABYTE:g} MB")
    space.disk.resize(expected / 4)
    space.be_refused(expected)
    space.disk.resize(expected * 0.8)
    space.nearly_fit()
    space.disk.resize(expected * 1.5)
    print(f"in truth: {space.fit() / MEGABYTE:.1f} MB")
    space.close()


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    require_tools()
    separate_mounts()
    with Desktop() as place:
        pictures = Path(sys.argv[2]) if len(sys.argv) == 3 else None
        if pictures is not None:
            pictures.mkdir(parents=True, exist_ok=True)
        video = make_noisy_video(place.folder / "noisy.mp4")
        disk = SmallDisk(place.folder / "disk")
        program = Program(place, sys.argv[1], video, pictures=pictures)
        program.wait_for_video(video)
        try:
            work(Space(program, disk))
        except BaseException:
            program.keep_picture("failed")
            raise
        finally:
            subprocess.run(["umount", "--lazy", str(disk.folder)], check=True)
    print("what does not fit is not begun")


if __name__ == "__main__":
    main()
