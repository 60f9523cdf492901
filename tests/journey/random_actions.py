#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Random mouse and key actions on the real window, as somebody does who presses everything.

usage: random_actions.py [--actions N] [--seed S] [--program PATH] [--pictures FOLDER]

The window stands on a desktop of its own, for a user who may write nowhere but in a folder that is thrown away. It must
neither crash nor hang, and of the files in that folder none may change, go or be renamed but those that are saved. Run
by root, the actions are those of the user nobody. Exit code 1 tells a fault; the last actions are printed then.
"""

import argparse
import hashlib
import os
import random
import shutil
import sys
import time
from collections import deque
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path[:0] = [str(HERE)]

from session import Failure, Session, waitFor

TOP = HERE.parents[1]
NOBODY = 65534
ANSWERS_WITHIN = 20  # seconds; the longest command of the window on the example takes less than one
BATCH = 25  # actions between two looks at the program
PICTURE = 500  # actions between two pictures
POWER_CUT = 2000  # actions after which the program is killed, and begins with the example again
SAVED = {".brn", ".txt", ".png", ".svg", ".jpg", ".bmp", ".html"}
KEYS = ("Tab Tab Tab shift+Tab ctrl+Tab ctrl+shift+Tab Return Return space Escape Escape BackSpace Delete Insert F1 F2 F4 F10 "
        "Up Down Left Right Home End Page_Up Page_Down ctrl+Home ctrl+End shift+Down shift+Right ctrl+a ctrl+c ctrl+x "
        "ctrl+v ctrl+shift+c ctrl+z ctrl+y ctrl+shift+z ctrl+n ctrl+o ctrl+s ctrl+p ctrl+q alt+f alt+e alt+g alt+h alt+i "
        "alt+Down alt+F4 Menu a b n y 0 1 2 3 5 9 period comma minus").split()
TEXTS = ("0.5", "1e9", "-1", "Puma", "é", "日本", "a,b", "'\"", "<b>", "x" * 40)


# The window fills the screen and cannot be put aside, so that what is pressed goes to the program.
WINDOW_MANAGER = """<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew></focus>
  <desktops><number>1</number></desktops>
  <keyboard><keybind key="A-F4"><action name="Close"/></keybind></keyboard>
  <mouse>
    <context name="Frame">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
    <context name="Titlebar">
      <mousebind button="Left" action="Drag"><action name="Move"/></mousebind>
    </context>
    <context name="Close">
      <mousebind button="Left" action="Click"><action name="Close"/></mousebind>
    </context>
  </mouse>
  <applications><application type="normal"><decor>no</decor><maximized>yes</maximized></application></applications>
</openbox_config>
"""


class Chance:
    """Actions as lines for xdotool, the same for the same seed."""

    def __init__(self, seed, size):
        self.random = random.Random(seed)
        self.size = size
        self.point = size[0] // 2, size[1] // 2

    def place(self):
        """Anywhere, or near the last place: what opens there, opens there."""
        reach = self.random.choice((8, 60, max(self.size)))
        moved = (part + self.random.randint(-reach, reach) for part in self.point)
        self.point = tuple(min(max(part, 0), most - 1) for part, most in zip(moved, self.size))
        return "mousemove {} {}".format(*self.point)

    def action(self):
        kind = self.random.random()
        if kind < 0.45:
            return f"{self.place()} click 1"
        if kind < 0.52:
            return f"{self.place()} click --repeat 2 --delay 30 1"
        if kind < 0.56:
            return f"{self.place()} click 3"
        if kind < 0.60:
            return f"{self.place()} click {self.random.choice((4, 5))}"
        if kind < 0.66:
            return f"{self.place()} mousedown 1 {self.place()} mouseup 1"
        if kind < 0.95:
            return f"key {self.random.choice(KEYS)}"
        return f"type --delay 2 {self.quoted(self.random.choice(TEXTS))}"

    @staticmethod
    def quoted(text):
        return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def contents(folder):
    """A digest of each file below a folder, and its folders."""
    found = {}
    for path in folder.rglob("*"):
        name = str(path.relative_to(folder))
        found[name] = hashlib.sha256(path.read_bytes()).hexdigest() if path.is_file() else "a folder"
    return found


def prepare(folder):
    """Projects to open, and what a user has besides them."""
    (folder / "Documents" / "older").mkdir(parents=True)
    for project in (TOP / "examples").glob("*.brn"):
        shutil.copy(project, folder / "Documents")
        shutil.copy(project, folder / "Documents" / "older" / f"{project.stem}_2024.brn")
    for name in ("diary.odt", "photo.raw", "Documents/budget.ods", "Documents/older/notes.md"):
        (folder / name).write_text(f"What must stay: {name}\n", encoding="utf-8")


def faultsOf(before, after):
    """What became of the files that nobody may have saved."""
    faults = []
    for name, content in before.items():
        if name not in after:
            faults.append(f"{name} is gone")
        elif after[name] != content and Path(name).suffix not in SAVED:
            faults.append(f"{name} was changed")
    return faults


class Run:
    def __init__(self, session, program, seed):
        self.session, self.program = session, program
        self.chance = Chance(seed, session.size)
        self.last = deque(maxlen=3 * BATCH)
        self.ends = 0

    def start(self):
        self.session.start(self.program, self.session.home / "Documents/full_landscape.brn")

    def act(self, count):
        lines = [self.chance.action() for _ in range(count)]
        self.last.extend(lines)
        # An X server that is busy, or a window that goes under the pointer, fails a line of xdotool: the next comes.
        self.session._run("xdotool", "-", input="\n".join(lines).encode(), check=False)

    def look(self):
        """Whether the program lives and answers; one that was ended by its own commands is started again."""
        waitFor(self.answers, "an answer of the program", ANSWERS_WITHIN)
        code = self.session.program.poll()
        if code is None:
            return
        if code:
            raise Failure(f"the program ended with {code}: {self.session.programOutput()}")
        self.ends += 1
        self.start()

    def answers(self):
        if self.session.program.poll() is not None:
            return True
        root = self.session.bus.application(self.session.program.pid)
        return root is not None and root.children is not None

    def whole(self, actions):
        self.start()
        for done in range(0, actions, BATCH):
            self.act(min(BATCH, actions - done))
            self.look()
            if done % PICTURE == 0:
                self.session.picture(f"after_{done + BATCH}")
            if (done + BATCH) % POWER_CUT == 0:
                self.session.kill()
                self.start()


def dropRights():
    if os.getuid() == 0:
        os.setgroups([])
        os.setgid(NOBODY)
        os.setuid(NOBODY)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--actions", type=int, default=10_000)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--program", type=Path, default=TOP / "build/release/src/desktop/brenica")
    parser.add_argument("--pictures", type=Path, help="a folder that anybody may write to")
    options = parser.parse_args()
    dropRights()
    started = time.monotonic()
    desktop = Session(pictures=options.pictures)
    windowManager = desktop.home / ".config/openbox/rc.xml"
    windowManager.parent.mkdir()
    windowManager.write_text(WINDOW_MANAGER, encoding="utf-8")
    with desktop as session:
        prepare(session.home)
        before = contents(session.home)
        run = Run(session, options.program.resolve(), options.seed)
        try:
            run.whole(options.actions)
        except Failure as failure:
            print(*run.last, sep="\n")
            print(f"seed {options.seed}: {failure}", file=sys.stderr)
            return 1
        after = contents(session.home)
    faults = faultsOf(before, after)
    saved = sorted(name for name, content in after.items() if before.get(name) != content and name[0] != ".")
    print(f"seed {options.seed}: {options.actions} actions in {time.monotonic() - started:.0f} s, ended and started again "
          f"{run.ends} times; saved: {', '.join(saved) or 'nothing'}")
    for fault in faults:
        print(f"seed {options.seed}: {fault}", file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
