# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""A desktop of its own for one program: X server, window manager, message bus, mouse, keyboard and clipboard."""

import os
import re
import shutil
import signal
import subprocess
import tempfile
import time
from pathlib import Path

from accessible import Bus, Gone

PATIENCE = float(os.environ.get("BRENICA_JOURNEY_PATIENCE", 30))  # seconds until a condition that does not come true is a failure
PAUSE = 0.02  # seconds between two looks
KEY_DELAY = 4  # milliseconds between two typed characters
DOUBLE_CLICK = 0.45, 8  # seconds and pixels within which a second click makes a double click
TOOLS = ("Xvfb", "dbus-daemon", "openbox", "xdotool", "xclip", "import")


class Failure(AssertionError):
    """What was waited for did not come."""


def waitFor(condition, what, patience=PATIENCE):
    """Looks until `condition()` gives something true, and returns it. An object that vanished counts as not yet.

    `what` names what is waited for, or is a function that says it when it has not come.
    """
    end = time.monotonic() + patience
    while True:
        gone = None
        try:
            found = condition()
        except Gone as fault:
            found, gone = None, fault
        if found:
            return found
        if time.monotonic() > end:
            break
        time.sleep(PAUSE)
    try:
        what = what() if callable(what) else what
    except Gone as fault:
        gone = fault
    raise Failure(f"after {patience} s still waiting for {what}" + (f" ({gone})" if gone else ""))


def missingTools():
    return [tool for tool in TOOLS if not shutil.which(tool)]


class Session:
    """`with Session(size) as session:` has a desktop on view to nobody; all of it is gone at the end."""

    def __init__(self, size=(1366, 768), pictures=None, **environment):
        self.size = size
        self.pictures = Path(pictures) if pictures else None
        self.folder = Path(tempfile.mkdtemp(prefix="brenica-journey-"))
        self.home = self.folder / "home"
        self.environment = self._environment(environment)
        self.processes = []
        self.bus = None
        self.program = None
        self.pictureCount = 0
        self.lastPoint, self.lastClick = (0, 0), 0
        self.scale = 1  # pixels of the screen for one of the program's

    def _environment(self, more):
        kept = {name: os.environ[name] for name in ("PATH", "LD_LIBRARY_PATH") if name in os.environ}
        places = {"HOME": self.home, "XDG_CONFIG_HOME": self.home / ".config", "XDG_CACHE_HOME": self.home / ".cache",
                  "XDG_DATA_HOME": self.home / ".local/share", "XDG_STATE_HOME": self.home / ".local/state",
                  "XDG_RUNTIME_DIR": self.folder / "run"}
        for place in places.values():
            place.mkdir(parents=True, exist_ok=True, mode=0o700)
        return {**kept, **{name: str(place) for name, place in places.items()}, "LC_ALL": "C.UTF-8",
                "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_QPA_PLATFORM": "xcb", **more}

    def __enter__(self):
        try:
            self._open()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *_):
        self.close()

    def _open(self):
        display = self._startAndRead(["Xvfb", "-displayfd", "{fd}", "-screen", "0",
                                      "{}x{}x24".format(*self.size), "-nolisten", "tcp", "-noreset"])
        self.environment["DISPLAY"] = f":{display}"
        address = self._startAndRead(["dbus-daemon", "--session", "--nofork", "--print-address={fd}"])
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address
        self._start(["openbox", "--sm-disable"])
        waitFor(lambda: self._run("xdotool", "get_desktop", check=False).returncode == 0, "the window manager")
        self.bus = Bus(address)

    def _startAndRead(self, command):
        """Starts a server that writes where it can be reached into a pipe."""
        reader, writer = os.pipe()
        self._start([part.format(fd=writer) if part.endswith("{fd}") else part for part in command], pass_fds=(writer,))
        os.close(writer)
        with os.fdopen(reader) as pipe:
            line = pipe.readline().strip()
        if not line:
            raise Failure(f"{command[0]} did not start; see {self.folder}")
        return line

    def _start(self, command, **options):
        log = open(self.folder / f"{Path(command[0]).name}.log", "ab")
        process = subprocess.Popen(command, env=self.environment, stdin=subprocess.DEVNULL, stdout=log, stderr=log,
                                   cwd=self.home, start_new_session=True, **options)
        log.close()
        self.processes.append(process)
        return process

    def close(self):
        """Ends what this session started, the last first, and removes its folder."""
        if self.bus:
            self.bus.close()
        for process in reversed(self.processes):
            self._end(process)
        shutil.rmtree(self.folder, ignore_errors=True)

    @staticmethod
    def _end(process):
        for signum in (signal.SIGTERM, signal.SIGKILL):
            if process.poll() is not None:
                break
            try:
                os.killpg(process.pid, signum)
                process.wait(5)
            except (ProcessLookupError, subprocess.TimeoutExpired):
                pass

    # The program.

    def standInForBrowser(self):
        """What a program started later has a browser show is only noted, a line each, in the file returned."""
        tools, shown = self.home / "bin", self.home / "shown"
        tools.mkdir()
        (tools / "xdg-open").write_text(f'#!/bin/sh\necho "$1" >>{shown}\n')
        (tools / "xdg-open").chmod(0o755)
        self.environment["PATH"] = f"{tools}:{self.environment['PATH']}"
        return shown

    def start(self, *command):
        """Starts the program and waits until it shows in the accessibility tree."""
        self.program = self._start([str(part) for part in command])
        return waitFor(lambda: self.application(), f"{command[0]} in the accessibility tree")

    def application(self):
        if self.program.poll() is not None:
            raise Failure(f"the program has ended with {self.program.returncode}: {self.programOutput()}")
        return self.bus.application(self.program.pid)

    def programOutput(self):
        logs = [path for path in self.folder.glob("*.log") if path.stem == Path(self.program.args[0]).name]
        return "".join(path.read_text(errors="replace") for path in logs)

    def kill(self):
        """Ends the program as a power cut does."""
        self.program.kill()
        self.program.wait(PATIENCE)

    def waitForEnd(self):
        """The exit code of the program, which must end by itself."""
        waitFor(lambda: self.program.poll() is not None, "the end of the program")
        return self.program.returncode

    # Mouse, keyboard, clipboard, pictures.

    def _run(self, *command, check=True, **options):
        done = subprocess.run(command, env=self.environment, capture_output=True, timeout=PATIENCE, **options)
        if check and done.returncode:
            raise Failure(f"{' '.join(command)}: {done.stderr.decode(errors='replace')}")
        return done

    def _keepApart(self, point):
        """Waits until a press at this point is no second half of a double click."""
        interval, distance = DOUBLE_CLICK
        near = all(abs(one - other) < distance for one, other in zip(point, self.lastPoint))
        rest = self.lastClick + interval - time.monotonic()
        if near and rest > 0:
            time.sleep(rest)

    def _keepInMind(self, point):
        self.lastPoint, self.lastClick = point, time.monotonic()

    def _onScreen(self, point):
        return [str(round(part * self.scale)) for part in point]

    def click(self, point, times=1, button=1):
        self._keepApart(point)
        repeat = ["--repeat", str(times), "--delay", "40"] if times > 1 else []
        self._run("xdotool", "mousemove", *self._onScreen(point), "click", *repeat, str(button))
        self._keepInMind(point)

    def move(self, point):
        self._run("xdotool", "mousemove", *self._onScreen(point))

    def drag(self, start, end):
        self._keepApart(start)
        halfway = [(one + other) / 2 for one, other in zip(start, end)]
        self._run("xdotool", "mousemove", *self._onScreen(start), "mousedown", "1",
                  "mousemove", *self._onScreen(halfway), "mousemove", *self._onScreen(end), "mouseup", "1")

    def type(self, text):
        if text:
            self._run("xdotool", "type", "--delay", str(KEY_DELAY), "--", text)

    def keys(self, *names):
        """Presses keys one after the other, by their names, such as ctrl+c, Tab, Return."""
        self._run("xdotool", "key", "--delay", str(KEY_DELAY), *names)

    def windowNamed(self, title):
        """The number of the window with this title."""
        found = waitFor(lambda: self._run("xdotool", "search", "--name", f"^{re.escape(title)}$", check=False).stdout,
                        f"the window {title}")
        return found.decode().split()[-1]

    @property
    def clipboard(self):
        return self._run("xclip", "-selection", "clipboard", "-o", check=False).stdout.decode()

    @clipboard.setter
    def clipboard(self, text):
        # xclip stays behind to serve the text, so that its output must not be a pipe that is read to its end.
        subprocess.run(["xclip", "-selection", "clipboard", "-i"], env=self.environment, input=text.encode(),
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True, timeout=PATIENCE)

    def clipboardTypes(self):
        done = self._run("xclip", "-selection", "clipboard", "-o", "-t", "TARGETS", check=False)
        return done.stdout.decode().split()

    def windows(self):
        """The program's windows on view, those of open lists among them."""
        done = self._run("xdotool", "search", "--onlyvisible", "--pid", str(self.program.pid), "", check=False)
        return done.stdout.decode().split()

    def picture(self, name):
        """Leaves what is on the screen among the pictures, numbered in the order of the road."""
        if not self.pictures:
            return
        self.pictures.mkdir(parents=True, exist_ok=True)
        self.pictureCount += 1
        self._run("import", "-silent", "-window", "root", str(self.pictures / f"{self.pictureCount:02d}_{name}.png"))

    def dump(self, path):
        """Writes the accessibility tree, for whoever looks into a failure."""
        with open(path, "w", encoding="utf-8") as out:
            try:
                for item, role, depth in self.application().walk():
                    out.write(f"{'  ' * depth}{role}: {item.name!r} {item.box} {sorted(item.states)}\n")
            except (Gone, AssertionError, AttributeError) as fault:
                out.write(f"no more: {fault}\n")
