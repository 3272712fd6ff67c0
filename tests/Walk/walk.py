#!/usr/bin/python3
"""Walks through the whole program by mouse, as a person does: walk.py PROGRAM [PICTURES]

Opens, plays, scrubs, trims, crops, turns, mutes, exports with every choice of the menu, cancels,
and meets an alert. Looks at what came of it: the exported files, and what the program tells a
screen reader. Leaves pictures of the screen in the folder PICTURES."""

import sys
from pathlib import Path

from desktop import Desktop, wait_for
from program import (
    Program, expect, expect_near, formatted, make_video, probe, repeat_video, require_tools, stream
)

WIDTH, HEIGHT = 640, 360
LARGE_SHORT_EDGE = 2400
RESOLUTIONS = {
    "Original": LARGE_SHORT_EDGE, "2160p": 2160, "1440p": 1440, "1080p": 1080, "720p": 720,
    "480p": 480
}


class Walk:
    def __init__(self, program, folder):
        self.program = program
        self.hand = program.hand
        self.tree = program.tree
        self.folder = folder

    # The timeline

    def strip(self):
        x, y, width, _ = self.tree.wait("filler", "Timeline").rect
        # The axis of time lies between the handles' own widths.
        handle_width = self.tree.wait("slider", "Trim start").rect[2]
        return x + handle_width, y + 28, width - 2 * handle_width

    def duration(self):
        return self.tree.wait("slider", "Playhead").maximum

    def place(self, seconds):
        x, y, width = self.strip()
        return x + width * seconds / self.duration(), y

    def drag_handle(self, name, seconds):
        self.hand.drag(self.tree.wait("slider", name).center, self.place(seconds))

    def trim(self, start, end):
        tolerance = 1.5 * self.duration() / self.strip()[2]
        self.drag_handle("Trim start", start)
        self.program.wait_for_value("Trim start", start, tolerance)
        self.drag_handle("Trim end", end)
        self.program.wait_for_value("Trim end", end, tolerance)

    def expect_labels(self):
        """The three times below the strip are those of the strip."""
        def agree():
            times = self.program.sliders()
            position = f"{formatted(times['Playhead'])} / {formatted(self.duration())}"
            return all(
                self.program.has_label(text)
                for text in (formatted(times["Trim start"]), position, formatted(times["Trim end"]))
            )

        wait_for("labels that agree with the strip", agree)

    # The steps

    def open_by_panel(self, path):
        expect(self.tree.find("slider") is None, "the window is empty at first")
        self.program.wait_for_label("Drop a video here")
        self.program.keep_picture("empty")
        self.program.click("push button", "Open Video…")
        self.tree.wait("dialog", "Open")
        self.program.keep_picture("open-panel")
        self.program.answer_panel("Open", path)
        self.program.wait_for_video(path)
        self.program.wait_for_label("00:00.0 / 00:10.0")
        expect_near(self.program.slider("Trim end"), 10, 0, "the trim end")
        self.program.keep_picture("opened")

    def play(self):
        self.program.click("push button", "Play")
        self.tree.wait("push button", "Pause")
        wait_for("moving playhead", lambda: self.program.slider("Playhead") > 0.3)
        self.program.click("push button", "Pause")
        self.tree.wait("push button", "Play")
        self.expect_labels()

    def scrub(self):
        self.hand.drag(self.place(3), self.place(7))
        self.program.wait_for_value("Playhead", 7, 0.02)
        self.expect_labels()
        # Beyond the end there is nothing.
        right = self.place(10)
        self.hand.drag(self.place(5), (right[0] + 200, right[1]))
        self.program.wait_for_value("Playhead", 10, 0)
        self.program.keep_picture("scrubbed")

    def drag_handles(self):
        self.trim(2, 6)
        # The player counts in 600ths of a second.
        self.program.wait_for_value("Playhead", self.program.slider("Trim end"), 0.001)
        self.expect_labels()
        start = self.program.slider("Trim start")
        self.drag_handle("Trim end", 0)
        self.program.wait_for_value("Trim end", start + 0.1, 1e-9)
        self.drag_handle("Trim end", 3)
        end = self.program.wait_for_value("Trim end", 3, 0.02)
        self.drag_handle("Trim start", 9)
        self.program.wait_for_value("Trim start", end - 0.1, 1e-9)
        self.trim(2, 3)
        self.program.keep_picture("trimmed")

    def crop(self):
        self.program.click("check box", "Crop")
        wait_for("crop", self.program.crop)
        self.tree.wait("check box", "Remove crop")
        self.program.wait_for_label("512×288")
        expect(self.program.crop() == (64, 36, 512, 288), "the first crop is the middle 80 %")
        self.program.keep_picture("crop")
        self.move_crop()
        for handle in (
            (-1, -1), (0, -1), (1, -1), (1, 0), (1, 1), (0, 1), (-1, 1), (-1, 0)
        ):
            self.resize_crop(*handle)
        _, _, width, height = self.program.crop()
        self.program.wait_for_label(f"{width}×{height}")
        self.program.keep_picture("crop-resized")

    def points_per_pixel(self):
        _, _, view_width, _ = self.tree.wait("image", "Crop").rect
        return view_width / self.program.crop()[2]

    def move_crop(self):
        scale = self.points_per_pixel()
        x, y = self.tree.wait("image", "Crop").center
        before = self.program.crop()
        self.hand.drag((x, y), (x + 40, y - 24))
        wanted = (before[0] + 40 / scale, before[1] - 24 / scale, before[2], before[3])
        self.wait_for_crop(wanted)
        # The edge of the picture holds it.
        self.hand.drag((x, y), (x - 400, y))
        self.wait_for_crop((0, wanted[1], before[2], before[3]))
        self.program.click("check box", "Remove crop")
        wait_for("end of the crop", lambda: self.program.crop() is None)
        self.program.click("check box", "Crop")
        wait_for("crop", self.program.crop)

    def resize_crop(self, horizontal, vertical):
        """By one handle, given as where it lies: -1 left or top, 0 in the middle, 1 the others.
        Inwards by forty points."""
        scale = self.points_per_pixel()
        left, top, width, height = self.tree.wait("image", "Crop").rect
        before = self.program.crop()
        start = (left + width * (horizontal + 1) / 2, top + height * (vertical + 1) / 2)
        by = 40
        self.hand.drag(start, (start[0] - horizontal * by, start[1] - vertical * by))
        x, y, crop_width, crop_height = before
        step = by / scale
        self.wait_for_crop(
            (
                x + (step if horizontal < 0 else 0),
                y + (step if vertical < 0 else 0),
                crop_width - step * abs(horizontal),
                crop_height - step * abs(vertical),
            )
        )

    def wait_for_crop(self, wanted):
        wanted_text = ", ".join(f"{number:.1f}" for number in wanted)
        wait_for(
            f"crop of {wanted_text} (it is {self.program.crop()})",
            lambda: all(abs(a - b) <= 1.5 for a, b in zip(self.program.crop(), wanted)),
            5,
        )

    def rotate(self):
        _, _, width, height = self.program.crop()
        x, y, _, _ = before = self.program.crop()
        self.hand.move(5, 5)
        expected = before
        for turn in range(4):
            self.program.click("push button", "Rotate left")
            x, y, width, height = expected
            picture_width = WIDTH if turn % 2 == 0 else HEIGHT
            expected = (y, picture_width - x - width, height, width)
            self.wait_for_crop(expected)
            self.program.wait_for_label(f"{self.program.crop()[2]}×{self.program.crop()[3]}")
            self.program.keep_picture(f"turned-{90 * (turn + 1)}")
        self.wait_for_crop(before)
        self.program.click("check box", "Remove crop")
        wait_for("end of the crop", lambda: self.program.crop() is None)

    def mute(self):
        self.program.click("check box", "Mute")
        button = self.tree.wait("check box", "Unmute (audio will be removed on export)")
        expect("checked" in button.states, "the mute button is pressed in")
        self.program.keep_picture("muted")

    def export(self, name, proposed):
        """By the button. Gives what the file holds."""
        self.program.click("push button", "Export M")
        output = self.folder / name
        said = self.program.answer_panel("Export", output)
        expect(said == proposed, f"the panel proposed \"{said}\"")
        wait_for(f"file {name}", output.exists)
        self.tree.wait_gone("label", "Exporting…")
        return probe(output)

    def export_muted(self):
        times = self.program.sliders()
        report = self.export("muted.mp4", "small Trimmed.mp4")
        video = stream(report, "video")
        expect((video["width"], video["height"]) == (WIDTH, HEIGHT), "the picture has its size")
        expect(stream(report, "audio") is None, "the muted file is silent")
        wanted = times["Trim end"] - times["Trim start"]
        expect_near(float(report["format"]["duration"]), wanted, 0.05, "the duration")
        self.program.click("check box", "Unmute")
        self.tree.wait("check box", "Mute")

    def open_by_menu(self, path):
        self.program.click("menu item", "File")
        self.program.click("menu item", "Open Video…")
        self.program.answer_panel("Open", path)
        self.program.wait_for_video(path)

    def choose(self, choice):
        x, y, width, height = self.tree.wait("push button", "Export M").rect
        self.hand.click(x + width - 12, y + height / 2)
        self.tree.wait("menu item", choice)
        self.program.click("menu item", choice)
        self.tree.wait_gone("popup menu", "Export options")

    def export_each_choice(self):
        self.trim(2, 2.3)
        times = self.program.sliders()
        wanted = times["Trim end"] - times["Trim start"]
        container = "MP4"
        for number, (resolution, edge) in enumerate(RESOLUTIONS.items()):
            # Both containers take turns.
            container = "MOV" if number % 2 == 0 else "MP4"
            self.choose(container)
            self.choose(resolution)
            cap = "" if resolution == "Original" else " · " + resolution
            self.tree.wait("push button", f"Export {container}{cap}…")
            extension = container.lower()
            report = self.export(f"{resolution}.{extension}", f"large Trimmed.{extension}")
            self.expect_export(report, container, edge, wanted)
        self.choose("Reset to Defaults")
        self.tree.wait("push button", "Export MP4…")

    def expect_export(self, report, container, edge, seconds):
        brand = report["format"]["tags"]["major_brand"]
        expect((brand == "qt  ") == (container == "MOV"), f"the brand of {container} is {brand}")
        video = stream(report, "video")
        expect(video["height"] == edge, f"the short edge is {video['height']}, not {edge}")
        expect(stream(report, "audio") is not None, "the file has its sound")
        # The last of ten pictures a second may begin just before the end.
        expect_near(float(report["format"]["duration"]), seconds, 0.11, "the duration")

    def cancel_export(self):
        self.trim(0, self.duration())
        self.program.click("push button", "Export M")
        output = self.folder / "cancelled.mp4"
        self.program.answer_panel("Export", output)
        self.program.wait_for_label("Exporting…")
        wait_for("progress", lambda: (self.tree.wait("progress bar").value or 0) > 0)
        self.program.keep_picture("export-sheet")
        self.program.click("push button", "Cancel")
        self.tree.wait_gone("label", "Exporting…")
        expect(self.tree.find("label", "Something Went Wrong") is None, "nothing is said of it")
        left = [each.name for each in self.folder.iterdir() if "cancelled" in each.name]
        expect(not left, f"nothing of a cancelled export is left: {left}")

    def meet_alert(self, path, video):
        self.program.click("menu item", "File")
        self.program.click("menu item", "Open Video…")
        self.program.answer_panel("Open", path)
        self.program.wait_for_label("Something Went Wrong")
        self.program.wait_for_label("Couldn't open “notes.txt”")
        self.program.keep_picture("alert")
        self.program.click("push button", "OK")
        self.tree.wait_gone("label", "Something Went Wrong")
        # The video is still there.
        self.program.wait_for_video(video)

    def close(self):
        self.hand.press("Escape")
        expect(self.program.wait_for_end() == 0, "the program ends well with its last window")


def walk_through(walk, small, large, notes):
    walk.open_by_panel(small)
    walk.play()
    walk.scrub()
    walk.drag_handles()
    walk.crop()
    walk.rotate()
    walk.mute()
    walk.export_muted()
    walk.open_by_menu(large)
    walk.export_each_choice()
    walk.cancel_export()
    walk.meet_alert(notes, large)
    walk.close()


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
        second = make_video(folder / "second.mp4", f"3840x{LARGE_SHORT_EDGE}", 1, rate=10)
        large = repeat_video(second, 10, folder / "large.mp4")
        notes = folder / "notes.txt"
        notes.write_text("Buy milk.\n" * 40)

        walk = Walk(Program(place, sys.argv[1], pictures=pictures), folder)
        try:
            walk_through(walk, small, large, notes)
        except BaseException:
            walk.program.keep_picture("failed")
            raise
    print("walked through")


if __name__ == "__main__":
    main()
