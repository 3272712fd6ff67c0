#!/usr/bin/python3
"""Does everything by keyboard, and reads what a screen reader is told:
keyboard.py PROGRAM [PICTURES]

Lists the elements of each face of the window and checks that every control has a name, a role and
a state; opens, trims, crops, exports, cancels and dismisses an alert by keys alone."""

import sys
from pathlib import Path

from desktop import Desktop, wait_for
from program import (
    Program, expect, expect_near, make_video, probe, repeat_video, require_tools, stream
)

OPERATED = {"push button", "check box", "slider", "text", "image"}
CONTROLS = OPERATED | {"menu item", "progress bar", "label", "tree item", "table cell"}
# In the order in which one reads the window.
TAB_ORDER = ["Crop", "Trim start", "Playhead", "Trim end", "Play", "Mute", "Rotate left",
             "Remove crop", "Export MP4…"]
WIDTH, HEIGHT = 640, 360
FRAME = 1 / 30


class Keyboard:
    def __init__(self, program, folder):
        self.program = program
        self.tree = program.tree
        self.press = program.hand.press
        self.folder = folder
        self.is_audible = True

    def list_elements(self, face):
        """Prints what can be heard of a face of the program; finds controls that say nothing."""
        print(f"\n{face}:")
        silent = []
        for element in self.tree.elements():
            states = element.states
            if element.role in CONTROLS or "focusable" in states:
                shown = sorted(states - {"showing", "visible", "sensitive", "read-only"})
                if "enabled" not in states:
                    shown.append("disabled")
                value = "" if element.value is None else f" = {element.value:g}"
                about = f" ({element.description})" if element.description else ""
                print(f"  {element.role:12} \"{element.name}\"{value}{about} {', '.join(shown)}")
                takes_keys = "focusable" in states or "enabled" not in states
                if not element.name or (element.role in OPERATED and not takes_keys):
                    silent.append(repr(element))
        expect(not silent, f"each control of the {face} says what it is: {silent}")

    def focus(self, name):
        """By the tabulator."""
        for _ in range(2 * len(TAB_ORDER)):
            element = self.tree.focused()
            if element is not None and element.name.startswith(name):
                return element
            before = element.name if element is not None else None
            self.press("Tab")
            wait_for("other focus", lambda: self._focused_name() != before, 5)
        raise AssertionError(f"the tabulator does not get to \"{name}\"")

    def _focused_name(self):
        element = self.tree.focused()
        return element.name if element is not None else None

    def wait_for_focus(self, role, name=""):
        def has_it():
            element = self.tree.focused()
            return element is not None and element.role == role and element.name.startswith(name)

        wait_for(f"focus on the {role} {name}", has_it)

    # The steps

    def open(self, path):
        self.list_elements("empty window")
        self.focus("Open Video…")
        self.press("space")
        self.program.answer_panel("Open", path)
        self.program.wait_for_video(path)
        self.program.wait_for_label("00:00.0 / 00:10.0")
        self.list_elements("editor")

    def go_through_tab_order(self):
        self.press("k")
        wait_for("crop", self.program.crop)
        self.list_elements("editor with a crop")
        self.focus("Crop")
        names = []
        for _ in TAB_ORDER:
            element = self.tree.focused()
            names.append(element.name)
            self.press("Tab")
            wait_for("other focus", lambda: self._focused_name() != names[-1], 5)
        expect(names == TAB_ORDER, f"the order of the tabulator is {names}")
        self.press("shift+Tab")
        self.wait_for_focus("push button", TAB_ORDER[-1])

    def trim(self):
        self.focus("Trim start")
        self.press("Prior", "Prior", "shift+Right")
        start = self.program.wait_for_value("Trim start", 2 + 10 * FRAME, 1e-6)
        self.program.keep_picture("focused-handle")
        self.focus("Trim end")
        self.press("Home")
        self.program.wait_for_value("Trim end", start + 0.1, 1e-6)
        self.press("Prior", "Left")
        self.program.wait_for_value("Trim end", start + 1.1 - FRAME, 1e-6)
        # The same at the playhead.
        self.focus("Playhead")
        self.press("Home")
        self.program.wait_for_value("Playhead", 0, 0)
        self.press("Prior", "bracketleft")
        self.program.wait_for_value("Trim start", 1, 1e-3)
        self.press("Prior", "bracketright")
        self.program.wait_for_value("Trim end", 2, 1e-3)

    def undo_and_redo(self):
        before = self.program.slider("Trim end")
        self.press("ctrl+z")
        wait_for("undone step", lambda: self.program.slider("Trim end") != before)
        self.press("alt+e")
        wait_for("entry to redo", lambda: self._menu_item("Redo Trim End"))
        # The menu, and the bar that has the keyboard then.
        self.press("Escape", "Escape")
        self.press("ctrl+shift+z")
        self.program.wait_for_value("Trim end", before, 0)

    def go_to_time(self):
        self.press("ctrl+g")
        self.wait_for_focus("text", "Go to Time")
        self.list_elements("field for a time")
        self.program.hand.type("10f")
        self.press("Return")
        self.program.wait_for_label("Type +10f")
        self.wait_for_focus("text", "Go to Time")
        expect(self.tree.focused().description.startswith("Type +10f"), "the field says so, too")
        self.program.keep_picture("refused-time")
        self.program.hand.type("1.5")
        self.press("Return")
        self.tree.wait_gone("dialog", "Go to Time")
        self.program.wait_for_value("Playhead", 1.5, 1e-3)

    def read_keys(self):
        self.press("ctrl+question")
        self.tree.wait("dialog", "Keyboard Shortcuts")
        wait_for("keyboard in the page", lambda: self._focused_name() == "Keyboard Shortcuts")
        self.list_elements("page of keys")
        self.program.keep_picture("keys")
        self.press("Escape")
        self.tree.wait_gone("dialog", "Keyboard Shortcuts")

    def crop(self):
        self.focus("Crop")
        x, y, width, height = self.program.crop()
        self.press(*["shift+Left"] * 2, *["Down"] * 3)
        moved = self.settled_crop()
        expect(moved[0] < x and moved[1] > y, f"the crop went to the left and down: {moved}")
        expect(moved[2:] == (width, height), f"it kept its size: {moved}")
        # With Shift the first of them is the window manager's.
        self.press(*["alt+Right"] * 4, "ctrl+shift+Up")
        smaller = self.settled_crop()
        expect(smaller[2] < width and smaller[3] < height, f"the crop became smaller: {smaller}")
        expect(abs(smaller[0] + smaller[2] - moved[0] - moved[2]) <= 1, "its right side stayed")
        expect(smaller[1] == moved[1], "its top side stayed")
        self.program.keep_picture("focused-crop")

    def settled_crop(self):
        """The crop once the keys pressed so far have done what they do: a later key has."""
        before = self.tree.wait("check box", "Mute" if self.is_audible else "Unmute").name
        self.press("m")
        wait_for("other mute button", lambda: self.tree.find("check box", before) is None)
        self.is_audible = not self.is_audible
        return self.program.crop()

    def play_and_mute(self):
        self.press("m")
        self.tree.wait("check box", "Unmute")
        self.focus("Remove crop")
        self.press("l", "r", "r", "r", "r", "l")
        self.focus("Play")
        self.press("space")
        self.tree.wait("push button", "Pause")
        self.press("space")
        self.tree.wait("push button", "Play")

    def choose_format(self):
        self.focus("Export MP4…")
        self.program.keep_picture("focused-export")
        self.press("Down")
        self.tree.wait("popup menu", "Export options")
        self.list_elements("export menu")
        # What will come out, which is no entry to choose.
        line = self.tree.wait("menu item", "00:01.0 · ")
        expect("enabled" not in line.states, f"{line} is only there to be read")
        self.press("Down", "Down", "Return")
        self.tree.wait("push button", "Export MOV…")

    def export(self):
        _, _, width, height = self.program.crop()
        seconds = self.program.slider("Trim end") - self.program.slider("Trim start")
        output = self.folder / "keys.mov"
        self.press("ctrl+e")
        proposed = self.program.answer_panel("Export", output)
        expect(proposed == "small Trimmed.mov", f"the panel proposed \"{proposed}\"")
        wait_for("exported file", output.exists)
        report = probe(output)
        video = stream(report, "video")
        for side, wanted in (("width", width), ("height", height)):
            expect(video[side] % 2 == 0 and abs(video[side] - wanted) <= 2,
                   f"the {side} is {video[side]}, near {wanted}")
        expect_near(float(report["format"]["duration"]), seconds, 0.05, "the duration")
        expect(stream(report, "audio") is None, "the file is silent")

    def show_last_export(self, file_manager):
        self.press("alt+f")
        wait_for("open menu", lambda: self._menu_item("Show Last Export"))
        for _ in range(10):
            if self._focused_name() == "Show Last Export":
                break
            self.press("Down")
        self.press("Return")
        shown = file_manager.stdout.readline().strip()
        expect(shown.endswith("/keys.mov"), f"the file manager shows {shown}")

    def look_at_menus(self):
        for menu, first in (("f", "New Window"), ("e", "Undo"), ("c", "Set Trim Start"),
                            ("g", "Go to Time"), ("h", "Keyboard Shortcuts"), ("b", "About")):
            self.press("alt+" + menu)
            wait_for("open menu", lambda: self._menu_item(first))
            self.list_elements(f"menu of Alt+{menu}")
            self.press("Escape")
            wait_for("closed menu", lambda: self._menu_item(first) is None)
            # The bar has the keyboard after that; this must not close the window.
            self.press("Escape")
            self.wait_for_focus("push button", "Export")

    def _menu_item(self, name):
        return self.tree.find("menu item", name)

    def cancel(self, path):
        self.press("ctrl+o")
        self.program.answer_panel("Open", path)
        self.program.wait_for_video(path)
        output = self.folder / "cancelled.mov"
        self.press("ctrl+e")
        self.program.answer_panel("Export", output)
        self.program.wait_for_label("Exporting…")
        self.wait_for_focus("push button", "Cancel")
        self.list_elements("export sheet")
        # The sheet does not go by this.
        self.press("Escape")
        expect(self.program.has_label("Exporting…"), "the sheet stays")
        self.press("ctrl+w")
        self.wait_for_focus("push button", "Keep Exporting")
        self.press("Return")
        self.tree.wait_gone("push button", "Keep Exporting")
        self.wait_for_focus("push button", "Cancel")
        self.press("space")
        self.tree.wait_gone("label", "Exporting…")
        expect(not output.exists(), "a cancelled export leaves nothing")

    def meet_alert(self, path):
        self.press("ctrl+o")
        self.program.answer_panel("Open", path)
        self.program.wait_for_label("Something Went Wrong")
        self.wait_for_focus("push button", "OK")
        self.list_elements("alert")
        self.press("Escape")
        self.tree.wait_gone("label", "Something Went Wrong")
        expect(self.tree.find("slider", "Playhead"), "the window is still there")

    def close(self):
        self.press("Escape")
        expect(self.program.wait_for_end() == 0, "the program ends well with its last window")


def work(keyboard, small, long, notes, file_manager):
    keyboard.open(small)
    keyboard.go_through_tab_order()
    keyboard.trim()
    keyboard.undo_and_redo()
    keyboard.go_to_time()
    keyboard.read_keys()
    keyboard.crop()
    keyboard.play_and_mute()
    keyboard.choose_format()
    keyboard.export()
    keyboard.show_last_export(file_manager)
    keyboard.look_at_menus()
    keyboard.cancel(long)
    keyboard.meet_alert(notes)
    keyboard.close()


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    require_tools()
    with Desktop() as place:
        pictures = Path(sys.argv[2]) if len(sys.argv) == 3 else None
        if pictures is not None:
            pictures.mkdir(parents=True, exist_ok=True)
        folder = place.folder
        small = make_video(folder / "small.mp4", f"{WIDTH}x{HEIGHT}", 10)
        long = repeat_video(small, 30, folder / "long.mp4")
        notes = folder / "notes.txt"
        notes.write_text("Buy milk.\n" * 40)
        keyboard = Keyboard(Program(place, sys.argv[1], pictures=pictures), folder)
        try:
            work(keyboard, small, long, notes, place.start_file_manager())
        except BaseException:
            keyboard.program.keep_picture("failed")
            raise
    print("\ndone by keys")


if __name__ == "__main__":
    main()
