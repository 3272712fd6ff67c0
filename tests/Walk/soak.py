#!/usr/bin/python3
"""Uses the program for a long time, at random, and watches what it holds:
soak.py PROGRAM FOLDER [--minutes 60] [--seed N] [--media FOLDER]
soak.py PROGRAM FOLDER --exports 500
soak.py PROGRAM FOLDER --windows 50

Opens videos, drags, types, plays, crops, turns, exports, cancels, opens and closes windows, stops
the program for a moment and lets it go on, and ends and starts its sound server. From time to time
it closes all but an empty window and compares what the program holds there: memory, threads and
descriptors may not grow. Leaves samples.csv and plot.svg in FOLDER.

The clock is not set forward: that needs the rights of the administrator."""

import argparse
import random
import shutil
import signal
import statistics
import subprocess
import time
from pathlib import Path

from desktop import Desktop, photograph, wait_for
from program import Program, expect, make_video, repeat_video, require_tools
from usage import BOUNDED, QUANTITIES, Sampler, draw

try:
    from gi.repository import GLib
except ImportError:
    # require_tools() says so.
    GLib = None

APPLICATION = "com.quorvan.brisklet"
EMPTY = "Brisklet"
# Between two looks at the empty window.
ROUND_SECONDS = 45
EXPORTS_PER_ROUND = 25
WINDOWS_PER_ROUND = 3
MOST_GROWTH = 0.05
# From then on nothing may grow; after a third of a run that is shorter than three times that, but
# not before each video was open once.
WARM_UP_SECONDS = 600
# Of the samples at rest that are compared.
COMPARED = 5
# Two seconds after its last video the program gives memory back, and half a minute after its last
# work an idle thread ends.
REST_SECONDS = 35
KEYS = (
    "space", "Left", "Right", "Up", "Down", "Home", "End", "bracketleft", "bracketright", "k", "r",
    "m", "l", "ctrl+z", "ctrl+shift+z", "shift+Right", "Prior", "Next", "Tab"
)


def call(method, *arguments):
    """One of the program's doors on the session bus."""
    subprocess.run(
        ["gdbus", "call", "--session", "--dest", APPLICATION, "--object-path",
         "/" + APPLICATION.replace(".", "/"), "--method",
         "org.freedesktop.Application." + method, *arguments],
        check=True, stdout=subprocess.DEVNULL
    )


class SoundServer:
    """One that plays into nothing, where it is installed."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.process = None

    def start(self):
        if shutil.which("pulseaudio") is None:
            print("without a sound server: pulseaudio is not installed")
            return
        self.process = self.desktop.start(
            "pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
            "-L", "module-null-sink", "-L", "module-native-protocol-unix auth-anonymous=1",
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL
        )

    def restart(self):
        if self.process is None:
            return
        self.process.terminate()
        self.process.wait()
        time.sleep(1)
        self.start()


class Person:
    """Does things with the program, one after the other."""

    def __init__(self, program, folder, chance, videos):
        self.program = program
        self.tree = program.tree
        self.hand = program.hand
        self.folder = folder
        self.chance = chance
        self.videos = videos
        self.sound = None
        self.export_number = 0
        self.done = {}

    def windows(self):
        """Main windows and panels alike."""
        self.tree.refresh()
        return list(self.tree.application.children())

    # What a person does

    def open(self, path=None):
        path = path or self.chance.choice(self.videos)
        call("Open", f'["{Path(path).resolve().as_uri()}"]', "{}")
        time.sleep(self.chance.uniform(0.1, 2))

    def new_window(self):
        self.hand.press("ctrl+n")

    def close_window(self):
        if len(self.windows()) > 1:
            self.hand.press("Escape")

    def press_keys(self):
        self.hand.press(*self.chance.choices(KEYS, k=self.chance.randint(1, 8)))

    def drag(self, name):
        element = self.tree.find("slider", name)
        timeline = self.tree.find("filler", "Timeline")
        if element is None or timeline is None:
            return
        x, _, width, _ = timeline.rect
        start = element.center
        end = (x + width * self.chance.random(), start[1])
        self.hand.drag(start, end, steps=self.chance.randint(3, 40))

    def drag_handle(self):
        self.drag(self.chance.choice(("Trim start", "Trim end")))

    def scrub(self):
        self.drag("Playhead")

    def play(self):
        self.hand.press("space")
        time.sleep(self.chance.uniform(0.2, 2))
        self.hand.press("space")

    def crop(self):
        crop = self.tree.find("image", "Crop")
        if crop is None:
            self.hand.press("k")
            return
        x, y, width, height = crop.rect
        start = self.chance.choice((crop.center, (x, y), (x + width, y + height)))
        by = [self.chance.randint(-80, 80) for _ in range(2)]
        self.hand.drag(start, (start[0] + by[0], start[1] + by[1]))

    def export(self, longest=None):
        """Ends by itself or by the button."""
        if self.tree.find("slider", "Playhead") is None:
            return
        self.export_number += 1
        output = self.folder / f"export-{self.export_number}.mp4"
        self.hand.press("ctrl+e")
        try:
            self.program.answer_panel("Export", output)
        except GLib.Error:
            # The panel went away while it was looked at.
            pass
        try:
            wait_for("end of the export", lambda: not self.program.has_label("Exporting…"),
                     longest or self.chance.uniform(0.5, 6))
        except AssertionError:
            self.press_button("Cancel")
        output.unlink(missing_ok=True)

    def suspend(self):
        """As the machine does it, as far as a process is concerned."""
        self.program.process.send_signal(signal.SIGSTOP)
        time.sleep(self.chance.uniform(0.5, 3))
        self.program.process.send_signal(signal.SIGCONT)

    def restart_sound(self):
        self.sound.restart()

    def press_button(self, *names):
        for name in names:
            button = self.tree.find("push button", name)
            if button is not None:
                button.act()
                return True
        return False

    def sees_video_or_alert(self):
        self.tree.refresh()
        if self.tree.find("slider", "Playhead") is not None:
            return "video"
        return "alert" if self.tree.find("push button", "OK") is not None else None

    def act(self):
        """Any of these."""
        weights = {
            "open": 6, "new_window": 1, "close_window": 2, "press_keys": 6, "drag_handle": 5,
            "scrub": 5, "play": 5, "crop": 3, "export": 3, "suspend": 1, "restart_sound": 1
        }
        name = self.chance.choices(list(weights), list(weights.values()))[0]
        self.done[name] = self.done.get(name, 0) + 1
        try:
            getattr(self, name)()
        except (AssertionError, GLib.Error):
            # Another window came in between, or an alert: the next is one that closes it.
            self.leave_panels()
        status = self.program.process.poll()
        expect(status is None, f"the program lives after {name}, where it ended with {status}")

    # The state that is compared

    def leave_panels(self):
        while self.press_button("OK", "Stop and Close", "Cancel", "Close"):
            time.sleep(0.2)

    def settle(self):
        """Closes everything but an empty window. None of what is open may resist."""
        end = time.monotonic() + 120
        while time.monotonic() < end:
            try:
                if self._is_settled():
                    return
            except GLib.Error:
                # Something went away while it was looked at.
                pass
            time.sleep(0.3)
        names = [f"{each.role} {each.name}" for each in self.windows()]
        raise AssertionError(f"there is more than an empty window: {names}")

    def _is_settled(self):
        self.leave_panels()
        windows = self.windows()
        empty = [each for each in windows if each.name == EMPTY]
        if len(windows) == 1 and empty:
            return True
        if not empty:
            call("ActivateAction", "new-window", "[]", "{}")
            wait_for("empty window", lambda: self.tree.find("filler", EMPTY))
            return False
        for window in [each for each in windows if each not in empty] + empty[1:]:
            for element in window.descendants():
                if element.role == "menu item" and element.name.startswith("Close"):
                    element.act()
                    break
        return False

    def expect_nothing_stuck(self, video):
        """Picture and sound of a good video go on: the sound is the clock of the playhead."""
        self.open(video)
        self.program.wait_for_video(video)
        self.hand.press("space")
        wait_for("moving playhead", lambda: self.program.slider("Playhead") > 0.5)
        self.hand.press("space")


def rest(person, sampler):
    person.settle()
    time.sleep(REST_SECONDS)
    return sampler.note(is_at_rest=True)


def warm_up(person):
    """Uses each kind of video once, so that no library is loaded for the first time later on.
    Gives how many could be opened."""
    count = 0
    for video in person.videos:
        person.open(video)
        if wait_for("video or alert", person.sees_video_or_alert, 60) == "video":
            count += 1
            person.scrub()
            person.export(longest=3)
        person.settle()
    return count


def soak(person, sampler, minutes, good):
    """Gives how many seconds the warm-up took."""
    start = time.monotonic()
    count = warm_up(person)
    warm = time.monotonic() - start
    print(f"{warm / 60:5.1f} min", count, "videos used once", rest(person, sampler), flush=True)
    while time.monotonic() < start + 60 * minutes:
        end = min(start + 60 * minutes, time.monotonic() + ROUND_SECONDS)
        while time.monotonic() < end:
            person.act()
        person.settle()
        person.expect_nothing_stuck(good)
        sample = rest(person, sampler)
        print(f"{(time.monotonic() - start) / 60:5.1f} min", sample, flush=True)
    print("done:", person.done)
    return warm


def export_again_and_again(person, sampler, count, good):
    for number in range(count):
        if number % EXPORTS_PER_ROUND == 0:
            person.open(good)
            person.program.wait_for_video(good)
        person.export(longest=60)
        if (number + 1) % EXPORTS_PER_ROUND == 0:
            print(f"{number + 1:4} exports", rest(person, sampler), flush=True)


def open_and_close_windows(person, sampler, count, good):
    for number in range(count):
        person.open(good)
        person.program.wait_for_video(good)
        person.settle()
        if (number + 1) % WINDOWS_PER_ROUND == 0:
            print(f"{number + 1:4} windows", rest(person, sampler), flush=True)


def compare(sampler, after_seconds):
    """What the program held at rest from then on, and what it holds at the end."""
    samples = [each for each in sampler.samples if each["at_rest"]]
    expect(len(samples) > COMPARED, "it ran for long enough to compare anything")
    early = [each for each in samples if each["seconds"] >= after_seconds][:COMPARED]
    late = samples[-COMPARED:]
    grown = []
    for name in QUANTITIES:
        before, after = (statistics.median(each[name] for each in part) for part in (early, late))
        growth = (after - before) / before
        print(f"{name:12} {before:10.0f} → {after:10.0f}  {100 * growth:+.1f} %")
        if name in BOUNDED and growth > MOST_GROWTH:
            grown.append(name)
    return grown


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("program", type=Path)
    arguments.add_argument("folder", type=Path)
    arguments.add_argument("--minutes", type=float, default=60)
    arguments.add_argument("--exports", type=int)
    arguments.add_argument("--windows", type=int)
    arguments.add_argument("--seed", type=int, default=random.randrange(10**6))
    arguments.add_argument("--media", type=Path)
    chosen = arguments.parse_args()
    require_tools()
    chosen.folder.mkdir(parents=True, exist_ok=True)
    print("seed", chosen.seed)
    with Desktop() as desktop:
        good = make_video(desktop.folder / "good.mp4", "640x360", 10)
        long = repeat_video(good, 20, desktop.folder / "long.mp4")
        videos = [good, long]
        if chosen.media is not None:
            videos += sorted(each for each in chosen.media.iterdir() if each.suffix != ".json")
        sound = SoundServer(desktop)
        sound.start()
        program = Program(desktop, chosen.program.resolve())
        program.tree.wait("filler", EMPTY)
        person = Person(program, desktop.folder, random.Random(chosen.seed), videos)
        person.sound = sound
        warm = 0
        with Sampler(program.process.pid) as sampler:
            try:
                if chosen.exports:
                    # Alone in its folder: while it is read by assistive technology, Qt’s panel
                    # keeps something for each file in it.
                    folder = desktop.folder / "brief"
                    folder.mkdir()
                    brief = make_video(folder / "brief.mp4", "320x180", 0.5)
                    export_again_and_again(person, sampler, chosen.exports, brief)
                elif chosen.windows:
                    open_and_close_windows(person, sampler, chosen.windows, good)
                else:
                    warm = soak(person, sampler, chosen.minutes, good)
            except BaseException:
                photograph(chosen.folder / "failed.png")
                raise
            finally:
                sampler.write(chosen.folder / "samples.csv")
                draw(sampler.samples, chosen.folder / "plot.svg")
        last = max(each["seconds"] for each in sampler.samples)
        grown = compare(sampler, max(warm, min(WARM_UP_SECONDS, last / 3)))
        expect(not grown, f"flat: {grown}")
        program.hand.press("Escape")
        expect(program.wait_for_end() == 0, "the program ends with its last window")
    print("nothing grew")


main()
