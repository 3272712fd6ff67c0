#!/usr/bin/python3
"""Undoes, redoes and reopens edits as a person does: edits.py PROGRAM [PICTURES]

Takes back drags, runs of keys, crop, turn and mute by Ctrl+Z; brings an edit back that Escape
closed, one after a restart, and one after each of twenty deaths by SIGKILL in the middle of
editing, of which at most the last two seconds may be lost. What came back is judged by what the
window shows and by what it exports."""

import random
import signal
import sys
import time
from pathlib import Path

from desktop import Desktop, wait_for
from program import Program, expect, expect_near, make_video, probe, require_tools, stream

WIDTH, HEIGHT = 640, 360
SECONDS = 10
FRAME = 1 / 30
DEATHS = 20
MOST_LOST_SECONDS = 2.0


def shown(program):
    """All that the window shows of an edit."""
    return (
        program.slider("Trim start"),
        program.slider("Trim end"),
        program.crop(),
        program.tree.find("check box", "Unmute") is not None,
    )


def wait_for_shown(program, wanted, what):
    wait_for(f"{what}: {wanted}, not {shown(program)}", lambda: shown(program) == wanted)


def drag_handle(program, name, to_share):
    x, y, width, _ = program.tree.wait("filler", "Timeline").rect
    handle = program.tree.wait("slider", name).center
    program.hand.drag(handle, (x + width * to_share, handle[1]))


def focus(program, name):
    for _ in range(20):
        element = program.tree.focused()
        if element is not None and element.name.startswith(name):
            return
        program.hand.press("Tab")
    raise AssertionError(f"the tabulator does not get to \"{name}\"")


def edit_everything(program):
    """Gives what was shown before each step, the fresh edit first, and after the last."""
    hand = program.hand
    states = [shown(program)]

    def note(what):
        wait_for(what, lambda: shown(program) != states[-1])
        # Once more when it is at rest.
        time.sleep(0.2)
        states.append(shown(program))

    drag_handle(program, "Trim start", 0.3)
    note("drag of the start")
    drag_handle(program, "Trim end", 0.7)
    note("drag of the end")
    focus(program, "Trim end")
    hand.press(*["Left"] * 6)
    note("run of keys")
    hand.press("k")
    note("crop")
    x, y = program.tree.wait("image", "Crop").center
    hand.drag((x, y), (x + 30, y + 20))
    note("moved crop")
    hand.press("r")
    note("turn")
    hand.press("m")
    note("mute")
    return states


def undo_and_redo(program, states):
    program.hand.press("alt+e")
    program.tree.wait("menu item", "Undo Mute")
    program.keep_picture("edit-menu")
    # The menu, and the bar that has the keyboard then.
    program.hand.press("Escape", "Escape")
    for number in range(len(states) - 2, -1, -1):
        program.hand.press("ctrl+z")
        wait_for_shown(program, states[number], f"undo to step {number}")
    program.keep_picture("undone")
    for number, state in enumerate(states[1:], 1):
        program.hand.press("ctrl+shift+z" if number % 2 else "ctrl+y")
        wait_for_shown(program, state, f"redo to step {number}")
    program.keep_picture("redone")


def reopen(program, video):
    """The entry waits for the first look at the disk."""
    for _ in range(20):
        program.hand.press("ctrl+shift+t")
        try:
            wait_for("reopened video", lambda: program.tree.find("filler", video.name), 1)
        except AssertionError:
            continue
        program.wait_for_video(video)
        return
    raise AssertionError("there is nothing to reopen")


def reopen_after_escape(program, video, wanted):
    """The other window stays, so that the program does."""
    program.hand.press("ctrl+n")
    program.tree.wait("filler", "Brisklet")
    program.hand.press("Escape")
    program.tree.wait_gone("filler", "Brisklet")
    wait_for_shown(program, wanted, "edit beside a window that closed")
    program.hand.press("ctrl+n")
    empty = program.tree.wait("filler", "Brisklet")
    for element in program.tree.wait("filler", video.name).descendants():
        if element.role == "menu item" and element.name == "Close Video":
            element.act()
            break
    program.tree.wait_gone("filler", video.name)
    expect(empty.name == "Brisklet", "the empty window is still there")
    reopen(program, video)
    wait_for_shown(program, wanted, "edit that was closed")
    expect(program.tree.find("filler", "Brisklet") is None, "it came into the empty window")


def export(program, path, wanted):
    program.hand.press("ctrl+e")
    program.answer_panel("Export", path)
    wait_for("exported file", path.exists)
    program.tree.wait_gone("label", "Exporting…")
    # Escape would be meant for the sheet until then.
    time.sleep(1)
    report = probe(path)
    video = stream(report, "video")
    start, end, (_, _, width, height), is_muted = wanted
    expect_near(float(report["format"]["duration"]), end - start, 0.05, "the duration")
    expect_near(video["width"], width, 2, "the width")
    expect_near(video["height"], height, 2, "the height")
    expect(video["height"] > video["width"], "the picture is turned")
    expect((stream(report, "audio") is None) == is_muted, "it is as silent as shown")


def leave(program):
    program.hand.press("Escape")
    expect(program.wait_for_end() == 0, "the program ends with its last window")


def edit_until_killed(program, seconds):
    """Moves the start of the range on and on. Gives the moments and where it stood then, and the
    moment of death."""
    focus(program, "Trim start")
    slider = program.tree.wait("slider", "Trim start")
    history = [(time.monotonic(), slider.value)]
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        program.hand.press("Right")
        program.tree.refresh()
        history.append((time.monotonic(), slider.value))
    killed_at = time.monotonic()
    program.process.send_signal(signal.SIGKILL)
    program.process.wait()
    return history, killed_at


def expect_restored(value, history, killed_at, number):
    """The start only ever moves on, so what was lost is what it moved by meanwhile."""
    safe = [each for moment, each in history if moment <= killed_at - MOST_LOST_SECONDS]
    least = safe[-1] if safe else history[0][1]
    most = history[-1][1] + FRAME
    lost = sum(1 for _, each in history if each > value)
    print(f"death {number}: {lost} of {len(history) - 1} steps lost")
    expect(least - 1e-6 <= value <= most, f"{value} lies in {least} … {most} after death {number}")


def die_again_and_again(desktop, path, video, pictures):
    chance = random.Random(5)
    program = Program(desktop, path, video, pictures=pictures)
    program.wait_for_video(video)
    # So that there is something to bring back from the first death on.
    program.hand.press("m")
    program.tree.wait("check box", "Unmute")
    time.sleep(MOST_LOST_SECONDS)
    for number in range(1, DEATHS + 1):
        history, killed_at = edit_until_killed(program, chance.uniform(0.2, 3.5))
        program = Program(desktop, path, pictures=pictures)
        reopen(program, video)
        expect_restored(program.slider("Trim start"), history, killed_at, number)
        expect(program.tree.find("check box", "Unmute"), "it is still muted")
    program.keep_picture("after-the-last-death")
    leave(program)


def main():
    path = Path(sys.argv[1]).resolve()
    pictures = Path(sys.argv[2]).resolve() if len(sys.argv) > 2 else None
    if pictures is not None:
        pictures.mkdir(parents=True, exist_ok=True)
    require_tools()
    with Desktop() as desktop:
        video = make_video(desktop.folder / "clip <b>.mp4", f"{WIDTH}x{HEIGHT}", SECONDS)
        long = make_video(desktop.folder / "long.mp4", "320x180", 120)
        program = Program(desktop, path, video, pictures=pictures)
        program.wait_for_video(video)
        states = edit_everything(program)
        undo_and_redo(program, states)
        reopen_after_escape(program, video, states[-1])
        leave(program)

        program = Program(desktop, path, pictures=pictures)
        reopen(program, video)
        wait_for_shown(program, states[-1], "edit of the last start")
        program.keep_picture("after-a-restart")
        export(program, desktop.folder / "exported.mp4", states[-1])
        leave(program)

        program = Program(desktop, path, pictures=pictures)
        program.tree.wait("filler", "Brisklet")
        time.sleep(1)
        program.hand.press("alt+f")
        program.tree.wait("menu item", "Reopen Last Edit")
        expect("enabled" not in program.tree.wait("menu item", "Reopen Last Edit").states,
               "an exported edit is not offered")
        program.hand.press("Escape", "Escape", "Escape")
        expect(program.wait_for_end() == 0, "the program ends")

        die_again_and_again(desktop, path, long, pictures)
    print("nothing was lost")


main()
