#!/usr/bin/env python3
"""The whole program beside a bare Qt window: when the first thing is painted, and how much memory it takes.

Usage: program_bench.py [--json FILE] [--quick] FOLDER-OF-THE-PROGRAMS

Both run on an X server of their own without a screen, in turns, several times; the medians count. Memory is the
proportional set size, in which a library that two programs share counts half for each; both stand in the same
situation, alone. The figures are appended to FILE; for memory the columns of microseconds hold kibibytes.
"""

import argparse
import json
import os
import pathlib
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import threading
import time

PATIENCE = 20  # seconds until something that is not painted counts as never painted
SPLASH, FRAME, FULL_VIEW = "frmSplash", "MDIForm1", "FullView"
SCREENS = (("frmselector", "frmSelector"), ("frmselector1", "frmSelector1"), ("formtree2", "FormTree2"),
           ("formmain1", "FormMain1"), ("businessadd", "FormMainBusiness"), ("turboadd", "TurboAdd"), ("frmbday", "frmbday"),
           ("frmphlist", "FrmPhList"), ("frmphsearch", "FrmPhSearch"), ("frmdialer", "FrmDialer"),
           ("previouscall", "Form1"))
SCREEN_GOAL = 150_000  # microseconds, as orientation
HAND_OVER = 100_000  # microseconds that the splash has to stand


class NotMeasured(Exception):
    """A program did not do what was to be measured."""


class Display:
    """An X server that shows nothing."""

    def __enter__(self):
        reading, writing = os.pipe()
        self.process = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
            pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            number = answer.readline().strip()
        if not number:
            raise SystemExit("program_bench: Xvfb did not start")
        self.name = ":" + number
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()


class Run:
    """A program that was started, with the moments that it tells on standard error."""

    def __init__(self, command, environment):
        self.moments = {}
        self.news = threading.Condition()
        self.start = time.clock_gettime_ns(time.CLOCK_MONOTONIC) // 1000
        self.process = subprocess.Popen(command, env=environment, stderr=subprocess.PIPE, text=True,
                                        errors="replace", stdout=subprocess.DEVNULL)
        self.reader = threading.Thread(target=self.read, daemon=True)
        self.reader.start()

    def read(self):
        for line in self.process.stderr:
            words = line.split()
            if len(words) == 3 and words[0] == "orvane-timing" and words[2].isdigit():
                with self.news:
                    self.moments.setdefault(words[1], int(words[2]) - self.start)
                    self.news.notify_all()
        with self.news:
            self.news.notify_all()

    def wait_for(self, name):
        """Microseconds from the start until NAME was painted."""
        with self.news:
            self.news.wait_for(lambda: name in self.moments or self.process.poll() is not None, PATIENCE)
            if name not in self.moments:
                raise NotMeasured(f"{self.process.args[0]} did not paint {name}; "
                                  f"painted: {sorted(self.moments) or 'nothing'}")
            return self.moments[name]

    def settled_memory(self):
        """Proportional set size in KiB, once it changes no more."""
        before = -1
        for _ in range(20):
            time.sleep(0.5)
            with open(f"/proc/{self.process.pid}/smaps_rollup", encoding="ascii") as rollup:
                now = next(int(line.split()[1]) for line in rollup if line.startswith("Pss:"))
            if abs(now - before) < 256:
                break
            before = now
        return now

    def end(self):
        self.process.send_signal(signal.SIGTERM)
        try:
            self.process.wait(5)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()


class Bench:
    def __init__(self, folder, display, scratch):
        self.folder = folder
        self.display = display
        self.scratch = scratch
        self.lines = []

    def environment(self, place=None):
        home = self.scratch / "home"
        home.mkdir(exist_ok=True)
        environment = dict(os.environ, DISPLAY=self.display.name, QT_QPA_PLATFORM="xcb", HOME=str(home),
                           XDG_CONFIG_HOME=str(home / "config"), XDG_DATA_HOME=str(home / "data"),
                           XDG_RUNTIME_DIR=str(home), ORVANE_TIMING="1", LC_ALL="C.UTF-8")
        for name in ("WAYLAND_DISPLAY", "QT_QPA_GENERIC_PLUGINS", "QT_STYLE_OVERRIDE"):
            environment.pop(name, None)
        if place:
            environment.update(ORVANE_PROGRAM_FOLDER=str(place / "program"), ORVANE_DRIVE_C=str(place / "drive"))
        return environment

    def make_place(self, contacts):
        """A program's folder with a book, as one who uses the program has it: started once before, backed up today."""
        place = self.scratch / f"place-{contacts}"
        for part in ("program", "drive"):
            (place / part).mkdir(parents=True)
        subprocess.run([self.folder / "orvane-make-book", str(contacts), place / "program" / "Orvanedata.dll"],
                       check=True)
        first = Run([str(self.folder / "orvane-contacts")], self.environment(place))
        first.wait_for(FRAME)
        first.settled_memory()
        time.sleep(2)
        first.end()
        return place

    def bare(self):
        run = Run([str(self.folder / "bare_window")], self.environment())
        painted = run.wait_for("bare")
        memory = run.settled_memory()
        run.end()
        return painted, memory

    def product(self, place, last):
        run = Run([str(self.folder / "orvane-contacts")], self.environment(place))
        try:
            run.wait_for(last)
            return run.moments, run.settled_memory()
        finally:
            run.end()

    def ask_for(self, place, key):
        """The frame opens the screen that a program of the suite has left a word for."""
        answer = subprocess.run([self.folder / "orvane-sql", place / "program" / "Orvanedata.dll"], check=True,
                                input=json.dumps(f"update ov_setup set [key]='{key}'") + "\n", text=True,
                                capture_output=True).stdout
        if not json.loads(answer)["ok"]:
            raise NotMeasured(f"{answer}")

    def add(self, name, contacts, ours, plain, goal, isMet=None):
        met = isMet if isMet is not None else ours <= goal * plain
        self.lines.append({"name": name, "n": contacts, "ours_us": ours, "plain_us": plain, "ratio": ours / plain})
        print(f"{name:<70} {contacts:>7} {ours:>12.0f} {plain:>12.0f} {ours / plain:>7.2f}  "
              f"{'OK' if met else 'MISSED'} (goal {goal})", flush=True)

    def start(self, contacts, times):
        place = self.make_place(contacts)
        self.bare()  # once for the page cache
        bare, bare_memory, splash, frame, memory = [], [], [], [], []
        for _ in range(times):
            painted, size = self.bare()
            bare.append(painted)
            bare_memory.append(size)
            moments, size = self.product(place, FRAME)
            if SPLASH not in moments:
                raise NotMeasured("the splash was not painted")
            splash.append(moments[SPLASH])
            frame.append(moments[FRAME])
            memory.append(size)
        middle = statistics.median
        self.add("splash painted, beside a bare window", contacts, middle(splash), middle(bare), 2)
        after_splash = middle(b - a for a, b in zip(splash, frame))
        self.add("first page painted, from start, beside a bare window", contacts, middle(frame), middle(bare),
                 "100 ms after the splash + 2 times", after_splash <= HAND_OVER + 2 * middle(bare))
        self.add("memory of the frame (KiB PSS)", contacts, middle(memory), middle(bare_memory), 2)
        return place, middle(bare), middle(bare_memory), middle(frame)

    def full_view(self, contacts, place, bare, bare_memory, times):
        painted, memory = [], []
        for _ in range(times):
            self.ask_for(place, "fullview")
            moments, size = self.product(place, FULL_VIEW)
            painted.append(moments[FULL_VIEW])
            memory.append(size)
        middle = statistics.median
        self.add("memory with FullView open (KiB PSS)", contacts, middle(memory), bare_memory, 3)
        self.lines.append({"name": "FullView painted, from start, beside a bare window", "n": contacts,
                           "ours_us": middle(painted), "plain_us": bare, "ratio": middle(painted) / bare})
        print(f"{'FullView painted, from start, beside a bare window':<70} {contacts:>7} {middle(painted):>12.0f} "
              f"{bare:>12.0f} {middle(painted) / bare:>7.2f}")


    def screens(self, contacts, place, frame, times):
        """How much later than the frame alone a screen is painted that the frame opens at its start."""
        for key, form in SCREENS:
            taken = []
            for _ in range(times):
                self.ask_for(place, key)
                moments, _size = self.product(place, form)
                taken.append(moments[form] - frame)
            self.add(f"{form} opened, beside 150 ms", contacts, statistics.median(taken), SCREEN_GOAL, 1)


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("--json", type=pathlib.Path)
    arguments.add_argument("--quick", action="store_true")
    arguments.add_argument("folder", type=pathlib.Path)
    chosen = arguments.parse_args()
    if not shutil.which("Xvfb"):
        sys.exit("program_bench: Xvfb is not installed (package xvfb)")
    times = 3 if chosen.quick else 7
    failures = 0
    with Display() as display, tempfile.TemporaryDirectory(prefix="orvane-bench-") as scratch:
        bench = Bench(chosen.folder.resolve(), display, pathlib.Path(scratch))
        for contacts in (10_000,) if chosen.quick else (10_000, 100_000):
            try:
                place, bare, memory, frame = bench.start(contacts, times)
                bench.full_view(contacts, place, bare, memory, min(times, 3))
                bench.screens(contacts, place, frame, min(times, 3))
            except NotMeasured as failure:
                print(f"NOT MEASURED: {failure}", flush=True)
                failures += 1
    if chosen.json:
        known = json.loads(chosen.json.read_text()) if chosen.json.exists() else []
        chosen.json.write_text(json.dumps(known + bench.lines, indent=4) + "\n")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
