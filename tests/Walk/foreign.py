#!/usr/bin/python3
"""Exports on desktops of other languages: foreign.py PROGRAM

Opens a video by the real program, trims it by keys and exports it, once in each locale. The files
must not differ in a byte, and the settings that the encoder states in them must be the program's
own."""

import locale
import re
import subprocess
import sys
import tempfile
from pathlib import Path

from desktop import Desktop, wait_for
from program import SKIPPED, Program, expect, make_video, require_tools

PLAIN = "C.UTF-8"
# A decimal comma; other digits, from right to left.
FOREIGN = ("de_DE.UTF-8", "ar_EG.UTF-8")
STATED = ("crf=17.1", "qcomp=0.85", "aq=2:0.90")


def is_installed(name):
    try:
        locale.setlocale(locale.LC_ALL, name)
        return True
    except locale.Error:
        return False
    finally:
        locale.setlocale(locale.LC_ALL, "C")


def has_keyboard(title):
    """Whether the window of this title is the one that keys go to."""
    command = ["xdotool", "getwindowfocus", "getwindowname"]
    return subprocess.run(command, capture_output=True, text=True).stdout.strip() == title


def export(program_path, name, output):
    """Writes an export of the end of a video, made in the locale."""
    with Desktop(locale=name) as place:
        source = make_video(place.folder / "small.mp4", "320x180", 3)
        program = Program(place, program_path, source)
        program.wait_for_video(source)
        # Keys that come before the window has the keyboard are nobody's.
        wait_for("window with the keyboard", lambda: has_keyboard(source.name))
        program.hand.press("Right", "Right", "bracketleft")
        program.wait_for_value("Trim start", 2 / 30, 1e-3)
        program.hand.press("ctrl+e")
        program.answer_panel("Export", output)
        wait_for("exported file", output.exists)


def exported(program_path, name, folder):
    """The bytes of such an export. A process knows one accessibility bus only, so that each
    desktop needs one of its own."""
    output = Path(folder) / f"{name}.mp4"
    subprocess.run([sys.executable, __file__, program_path, name, str(output)], check=True)
    return output.read_bytes()


def stated_settings(content):
    found = re.search(rb"options: ([^\0]*)", content)
    return found.group(1).decode("ascii", "replace") if found else ""


def main():
    if len(sys.argv) == 4:
        return export(sys.argv[1], sys.argv[2], Path(sys.argv[3]))
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    require_tools()
    names = [name for name in FOREIGN if is_installed(name)]
    if not names:
        print("skipped: not installed: the locales", ", ".join(FOREIGN))
        sys.exit(SKIPPED)
    with tempfile.TemporaryDirectory() as folder:
        plain = exported(sys.argv[1], PLAIN, folder)
        for name in names:
            content = exported(sys.argv[1], name, folder)
            settings = stated_settings(content)
            for setting in STATED:
                expect(setting in settings, f"{setting} in {name}: {settings}")
            expect(content == plain, f"the export is the same in {name}")
    print("the same in", ", ".join(names))


if __name__ == "__main__":
    main()
