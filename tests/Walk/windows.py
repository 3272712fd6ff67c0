#!/usr/bin/python3
"""Uses two windows as a person does, and as assistive technology does:
windows.py PROGRAM [PICTURES]

A file that can't be opened says so over its own window; Escape takes a drag back instead of closing
the window; closing during an export asks first; the menus of a window act on that window, whichever
has the keyboard."""

import sys
from pathlib import Path

from desktop import Desktop, wait_for
from program import Program, expect, expect_near, make_video, repeat_video, require_tools

WIDTH, HEIGHT = 640, 360
SECONDS = 10


def window_of(program, title):
    return program.tree.wait("filler", title)


def alerts_of(program):
    return [each for each in program.tree.elements() if each.role in ("dialog", "alert")]


def expect_over(alert, window):
    """The middle of the alert stands over the middle of its window, as near as the screen lets it."""
    for middle, wanted in zip(alert.center, window.center):
        expect_near(middle, wanted, 40, f"the middle of the alert of {window}")


def fail_in_own_window(desktop, path, folder, pictures):
    """The window of the file that is missing is the second one: the first is somewhere else."""
    video = make_video(folder / "good.mp4", f"{WIDTH}x{HEIGHT}", 1)
    program = Program(desktop, path, video, folder / "missing.mp4", pictures=pictures)
    program.wait_for_video(video)
    alert = wait_for("alert", lambda: next(iter(alerts_of(program)), None))
    program.keep_picture("alert")
    expect_over(alert, window_of(program, "Brisklet"))
    program.hand.press("Escape")
    wait_for("end of the alert", lambda: not alerts_of(program))
    wait_for("end of its window", lambda: program.tree.find("filler", "Brisklet") is None)
    program.hand.press("Escape")
    expect(program.wait_for_end() == 0, "the program ends with its last window")


class Drags:
    def __init__(self, program):
        self.program = program
        self.hand = program.hand

    def take_back(self, start, end):
        """Drags, presses Escape, goes on dragging and lets go."""
        before = (self.program.sliders(), self.program.crop())
        self.hand.hold(*start)
        self.hand.move((start[0] + end[0]) / 2, (start[1] + end[1]) / 2)
        self.hand.move(*end)
        wait_for("drag", lambda: (self.program.sliders(), self.program.crop()) != before)
        self.hand.press_while_held("Escape")
        wait_for("end of the drag", lambda: (self.program.sliders(), self.program.crop()) == before)
        self.hand.move(*start)
        self.hand.let_go()
        expect((self.program.sliders(), self.program.crop()) == before, "nothing is left of it")

    def take_everything_back(self):
        tree = self.program.tree
        for name in ("Trim start", "Trim end", "Playhead"):
            x, y = tree.wait("slider", name).center
            middle = tree.wait("filler", "Timeline").center[0]
            # The playhead stands below the handle of the start; the drag of it begins beside that.
            start = (x + 150, y) if name == "Playhead" else (x, y)
            self.take_back(start, (middle, y))
        self.hand.press("k")
        wait_for("crop", self.program.crop)
        x, y, width, height = tree.wait("image", "Crop").rect
        self.take_back((x + width / 2, y + height / 2), (x + width / 2 + 60, y + height / 2 + 30))
        self.take_back((x, y), (x + 80, y + 60))


def choose(tree, title, entry):
    """Has the entry of a window's menu chosen by assistive technology, which needs no keyboard."""
    window = tree.wait("filler", title)
    for element in window.descendants():
        if element.role in ("menu item", "check menu item") and element.name.startswith(entry):
            element.act()
            return
    raise AssertionError(f"the window \"{title}\" has no \"{entry}\"")


def obey_own_menus(program, video):
    """The second window has the keyboard throughout."""
    tree = program.tree
    program.hand.press("ctrl+n")
    window_of(program, "Brisklet")
    # A frame on and back leaves the playhead where it was, but not in the other window.
    choose(tree, video.name, "Next Frame")
    program.wait_for_value("Playhead", 1 / 30, 1e-3)
    choose(tree, video.name, "Set Trim Start at Playhead")
    program.wait_for_value("Trim start", 1 / 30, 1e-3)
    choose(tree, video.name, "Close Video")
    wait_for("end of the window", lambda: tree.find("filler", video.name) is None)
    window_of(program, "Brisklet")


class Closing:
    """Asks for the end of the window or the program while a long export runs."""

    def __init__(self, program, folder):
        self.program = program
        self.tree = program.tree
        self.hand = program.hand
        self.output = folder / "long Trimmed.mp4"

    def export(self):
        self.hand.press("ctrl+e")
        self.program.answer_panel("Export", self.output)
        self.program.wait_for_label("Exporting…")

    def press_close_button(self, title):
        """The one that the window manager draws, at the right end of the title bar."""
        x, y, width, _ = window_of(self.program, title).rect
        self.hand.click(x + width - 11, y - 11)

    def answer(self, name):
        self.program.wait_for_label("Stop the export and close?")
        names = [each.name for each in self.tree.elements() if each.role == "push button"]
        expect("Keep Exporting" in names and "Stop and Close" in names, f"the answers are {names}")
        self.program.keep_picture("closing-question")
        self.tree.wait("push button", name).act()

    def keep_exporting(self):
        self.answer("Keep Exporting")
        self.tree.wait_gone("label", "Stop the export and close?")
        expect(self.program.has_label("Exporting…"), "the export goes on")


def ask_before_closing(desktop, path, folder, pictures):
    short = make_video(folder / "short.mp4", "1280x720", SECONDS)
    video = repeat_video(short, 20, folder / "long.mp4")
    program = Program(desktop, path, video, pictures=pictures)
    program.wait_for_video(video)
    closing = Closing(program, folder)
    closing.export()
    closing.press_close_button(video.name)
    closing.keep_exporting()
    for key in ("ctrl+w", "ctrl+q", "alt+F4"):
        program.hand.press(key)
        closing.keep_exporting()
    # Nothing behind the sheet takes the mouse or the keys.
    program.click("check box", "Mute")
    program.hand.press("k")
    expect(program.crop() is None, "there is no crop")
    expect(program.tree.find("check box", "Unmute") is None, "the sound is still on")
    program.hand.press("ctrl+q")
    closing.answer("Stop and Close")
    expect(program.wait_for_end() == 0, "the program ends")
    expect(not closing.output.exists(), "a stopped export leaves nothing")


def main():
    path = Path(sys.argv[1]).resolve()
    pictures = Path(sys.argv[2]).resolve() if len(sys.argv) > 2 else None
    if pictures is not None:
        pictures.mkdir(parents=True, exist_ok=True)
    require_tools()
    with Desktop() as desktop:
        fail_in_own_window(desktop, path, desktop.folder, pictures)
        ask_before_closing(desktop, path, desktop.folder, pictures)
        video = make_video(desktop.folder / "clip.mp4", f"{WIDTH}x{HEIGHT}", SECONDS)
        program = Program(desktop, path, video, pictures=pictures)
        program.wait_for_video(video)
        Drags(program).take_everything_back()
        program.keep_picture("taken-back")
        obey_own_menus(program, video)
        program.hand.press("Escape")
        expect(program.wait_for_end() == 0, "the program ends with its last window")
    print("all as it should be")


main()
