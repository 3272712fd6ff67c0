#!/usr/bin/python3
"""Edits and exports through assistive technology alone, with neither mouse nor keyboard:
assistive.py PROGRAM [PICTURES]

Goes to a time, trims, undoes, redoes, reads the forecast and the page of keys, exports, has the file
shown, says no and yes to the question whether to stop an export, and brings a closed edit back."""

import sys
from pathlib import Path

from desktop import Desktop, wait_for
from program import (
    FORECAST_DEADLINE, Program, expect, expect_near, make_video, probe, repeat_video, require_tools
)

SECONDS = 10
ENTRIES = ("menu item", "check menu item")


class Assistant:
    def __init__(self, program):
        self.program = program
        self.tree = program.tree

    def _entry(self, name):
        """Of a menu that need not be open."""
        self.tree.refresh()
        for element in self.tree.application.descendants():
            if element.role in ENTRIES and element.name.startswith(name):
                return element
        return None

    def choose(self, name):
        def enabled():
            entry = self._entry(name)
            return entry if entry is not None and "enabled" in entry.states else None

        wait_for(f"entry \"{name}\" to choose", enabled).act()

    def push(self, name):
        self.tree.wait("push button", name).act()

    def write(self, text):
        wait_for("field", lambda: self.tree.find("text")).write(text)

    # The steps

    def go_to(self, text):
        self.choose("Go to Time")
        self.tree.wait("dialog", "Go to Time")
        self.write(text)
        self.push("Go")

    def trim(self):
        self.go_to("soon")
        field = self.tree.wait("text", "Go to Time")
        wait_for("reason", lambda: field.description.startswith("This is no time."))
        self.write("2")
        self.push("Go")
        self.tree.wait_gone("dialog", "Go to Time")
        self.program.wait_for_value("Playhead", 2, 1e-3)
        self.choose("Set Trim Start at Playhead")
        self.program.wait_for_value("Trim start", 2, 1e-3)

    def undo_and_redo(self):
        self.choose("Undo Trim Start")
        self.program.wait_for_value("Trim start", 0, 0)
        self.choose("Redo Trim Start")
        self.program.wait_for_value("Trim start", 2, 1e-3)
        self.program.wait_for_label("Range 0:00:08.000")

    def read_forecast(self):
        """By the button and, in the same words, by the last line of its menu."""
        def whole():
            description = self.tree.wait("push button", "Export MP4…").description
            return description.splitlines()[0] if "about" in description else None

        said = wait_for("forecast", whole, FORECAST_DEADLINE)
        expect(said.startswith("00:08.0 · 320 × 180 · about "), f"the forecast is \"{said}\"")
        expect(self._entry(said) is not None, f"the menu says \"{said}\", too")

    def read_keys(self):
        self.choose("Keyboard Shortcuts")
        page = self.tree.wait("dialog", "Keyboard Shortcuts")
        rows = [each.name for each in page.descendants() if each.role in ("tree item", "table cell")]
        for words in ("Undo", "Ctrl+Z", "Go to Time…", "Ctrl+G", "Wheel", "Take the drag back"):
            expect(words in rows, f"\"{words}\" is on the page of keys")
        expect("" not in rows, "each cell says something")
        self.push("Close")
        self.tree.wait_gone("dialog", "Keyboard Shortcuts")

    def export(self, output):
        self.push("Export MP4…")
        panel = self.tree.wait("dialog", "Export")
        next(each for each in panel.descendants() if each.role == "text").write(str(output))
        self.push("Save")
        self.tree.wait_gone("file chooser")

    def answer_question(self, name):
        self.choose("Quit")
        self.program.wait_for_label("Stop the export and close?")
        self.push(name)


def edit_and_export(assistant, folder, file_manager):
    assistant.trim()
    assistant.undo_and_redo()
    assistant.read_forecast()
    assistant.read_keys()
    output = folder / "assisted.mp4"
    assistant.export(output)
    wait_for("exported file", output.exists)
    expect_near(float(probe(output)["format"]["duration"]), SECONDS - 2, 0.05, "the duration")
    assistant.choose("Show Last Export")
    expect(file_manager.stdout.readline().strip().endswith("/assisted.mp4"), "it is shown")


def reopen(assistant, video):
    """An edit that was not exported."""
    assistant.go_to("3")
    assistant.program.wait_for_value("Playhead", 3, 1e-3)
    assistant.choose("Set Trim Start at Playhead")
    assistant.choose("New Window")
    assistant.tree.wait("filler", "Brisklet")
    for element in assistant.tree.wait("filler", video.name).descendants():
        if element.role == "menu item" and element.name == "Close Video":
            element.act()
            break
    assistant.tree.wait_gone("filler", video.name)
    assistant.choose("Reopen Last Edit")
    assistant.program.wait_for_video(video)
    assistant.program.wait_for_value("Trim start", 3, 1e-3)


def stop_while_exporting(desktop, path, video, pictures):
    program = Program(desktop, path, video, pictures=pictures)
    program.wait_for_video(video)
    assistant = Assistant(program)
    output = desktop.folder / "stopped.mp4"
    assistant.export(output)
    bar = program.tree.wait("progress bar", "Export progress")
    wait_for("progress in words", lambda: "%" in bar.description)
    assistant.answer_question("Keep Exporting")
    program.tree.wait_gone("label", "Stop the export and close?")
    expect(program.has_label("Exporting…"), "the export goes on")
    assistant.answer_question("Stop and Close")
    expect(program.wait_for_end() == 0, "the program ends")
    expect(not output.exists(), "a stopped export leaves nothing")


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    require_tools()
    with Desktop() as desktop:
        pictures = Path(sys.argv[2]) if len(sys.argv) == 3 else None
        if pictures is not None:
            pictures.mkdir(parents=True, exist_ok=True)
        file_manager = desktop.start_file_manager()
        video = make_video(desktop.folder / "clip.mp4", "320x180", SECONDS)
        program = Program(desktop, sys.argv[1], video, pictures=pictures)
        program.wait_for_video(video)
        assistant = Assistant(program)
        try:
            edit_and_export(assistant, desktop.folder, file_manager)
            reopen(assistant, video)
            assistant.choose("Quit")
            expect(program.wait_for_end() == 0, "the program ends well")
            long = make_video(desktop.folder / "short.mp4", "1280x720", SECONDS)
            long = repeat_video(long, 20, desktop.folder / "long.mp4")
            stop_while_exporting(desktop, sys.argv[1], long, pictures)
        except BaseException:
            program.keep_picture("failed")
            raise
    print("done without mouse and keyboard")


if __name__ == "__main__":
    main()
