"""What a program and its helpers hold, sampled over time, and a plot of it."""

import csv
import os
import threading
import time
from pathlib import Path

# Name and unit: memory in MB, the others are counts; all of all processes. Memory that several of
# them share is counted once, whatever other programs share it too.
QUANTITIES = {"memory": "MB", "anonymous": "MB", "processes": "", "threads": "", "descriptors": ""}
# Those that may not grow. Anonymous memory is the part that is not in a file: it tells what the
# program holds from what the system keeps of its libraries.
BOUNDED = ("memory", "processes", "threads", "descriptors")
INTERVAL = 5.0

WIDTH, HEIGHT, MARGIN, GAP = 900, 150, 70, 34
LINE, REST = "#8aa4c8", "#c0392b"


def family_of(pid):
    """The process and all that descend from it."""
    children = {}
    for entry in Path("/proc").iterdir():
        if entry.name.isdigit():
            try:
                parent = int((entry / "stat").read_text().rpartition(")")[2].split()[1])
            except OSError:
                continue
            children.setdefault(parent, []).append(int(entry.name))
    family = [pid]
    for member in family:
        family += children.get(member, [])
    return family


def file_pages(process):
    """Kilobytes of files in memory, by name and place in the file."""
    pages = {}
    place = None
    for line in (process / "smaps").read_text(errors="replace").splitlines():
        words = line.split()
        if not words[0].endswith(":"):
            # Address, rights, offset, device, inode, name.
            is_file = len(words) > 5 and words[5].startswith("/") and not words[5].startswith(
                ("/memfd:", "/SYSV", "/dev/"))
            place = (words[5], words[2]) if is_file else None
        elif place and words[0] == "Rss:":
            pages[place] = int(words[1])
        elif place and words[0] == "Anonymous:":
            pages[place] -= int(words[1])
    return pages


def usage_of_one(pid, files):
    process = Path("/proc") / str(pid)
    lines = (process / "smaps_rollup").read_text().splitlines()[1:]
    kilobytes = {line.split(":")[0]: int(line.split()[1]) for line in lines}
    for place, count in file_pages(process).items():
        files[place] = max(files.get(place, 0), count)
    return {
        "memory": (kilobytes["Pss_Anon"] + kilobytes["Pss_Shmem"]) / 1000,
        "anonymous": kilobytes["Pss_Anon"] / 1000,
        "processes": 1,
        "threads": len(os.listdir(process / "task")),
        "descriptors": len(os.listdir(process / "fd")),
    }


def usage_of(pid):
    total = dict.fromkeys(QUANTITIES, 0)
    files = {}
    for member in family_of(pid):
        try:
            usage = usage_of_one(member, files)
        except OSError:
            if member == pid:
                raise
            # A helper that has ended meanwhile.
            continue
        for name, value in usage.items():
            total[name] += value
    total["memory"] += sum(files.values()) / 1000
    return total


class Sampler:
    """Looks at a process every few seconds, in a with statement."""

    def __init__(self, pid):
        self.pid = pid
        self.samples = []
        self._start = time.monotonic()
        self._is_over = threading.Event()
        self._thread = threading.Thread(target=self._sample, daemon=True)

    def __enter__(self):
        self._thread.start()
        return self

    def __exit__(self, *_):
        self._is_over.set()
        self._thread.join()

    def note(self, is_at_rest):
        usage = usage_of(self.pid)
        self.samples.append(
            {"seconds": time.monotonic() - self._start, "at_rest": int(is_at_rest), **usage}
        )
        return ", ".join(f"{name} {usage[name]:.0f}{QUANTITIES[name]}" for name in QUANTITIES)

    def write(self, path):
        with open(path, "w", newline="") as file:
            table = csv.DictWriter(file, ["seconds", "at_rest", *QUANTITIES])
            table.writeheader()
            for sample in self.samples:
                table.writerow({name: round(value, 1) for name, value in sample.items()})

    def _sample(self):
        while not self._is_over.wait(INTERVAL):
            try:
                self.note(is_at_rest=False)
            except OSError:
                # The process has ended.
                return


def draw(samples, path):
    """A line per quantity over the minutes; the points are the samples at rest."""
    samples = sorted(samples, key=lambda each: each["seconds"])
    last = max(each["seconds"] for each in samples) or 1
    height = len(QUANTITIES) * (HEIGHT + GAP) + GAP
    parts = [
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {height}" '
        'font-family="sans-serif" font-size="13">',
        f'<rect width="{WIDTH}" height="{height}" fill="white"/>',
    ]
    for number, (name, unit) in enumerate(QUANTITIES.items()):
        top = GAP + number * (HEIGHT + GAP)
        most = 1.1 * max(each[name] for each in samples)

        def place(sample):
            x = MARGIN + (WIDTH - 2 * MARGIN) * sample["seconds"] / last
            return f"{x:.1f}", f"{top + HEIGHT * (1 - sample[name] / most):.1f}"

        line = " ".join(",".join(place(each)) for each in samples)
        right, bottom = WIDTH - MARGIN, top + HEIGHT
        parts.append(f'<path d="M{MARGIN},{top}V{bottom}H{right}" fill="none" stroke="#555"/>')
        parts.append(f'<polyline points="{line}" fill="none" stroke="{LINE}"/>')
        for each in samples:
            if each["at_rest"]:
                x, y = place(each)
                parts.append(f'<circle cx="{x}" cy="{y}" r="3" fill="{REST}"/>')
        parts.append(f'<text x="{MARGIN + 6}" y="{top}">{name} {unit}</text>')
        for value in (0, most / 1.1):
            y = top + HEIGHT * (1 - value / most) + 4
            parts.append(f'<text x="{MARGIN - 8}" y="{y:.0f}" text-anchor="end">{value:.0f}</text>')
    parts.append(f'<text x="{MARGIN}" y="{height - 8}">0</text>')
    parts.append(
        f'<text x="{WIDTH - MARGIN}" y="{height - 8}" text-anchor="end">{last / 60:.0f} min</text>'
    )
    path.write_text("\n".join([*parts, "</svg>", ""]))
