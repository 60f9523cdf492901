#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Pictures of every page with the full example, or of what comes and goes beside the pages, on screens of several sizes,
for somebody to look at."""

import argparse
import os
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path[:0] = [str(HERE)]

from keyboard import KeyboardRoad
from pieces import walkPieces
from road import CRITERIA, GRAPHS, LISTS, PAGES, SUMMARIES, VIEWS
from session import Session, waitFor
from window import Window

TOP = HERE.parents[1]
SCREENS = {"1366x768": {}, "1920x1080": {}, "3840x2160": {"QT_FONT_DPI": "192"}}
POINTS = 9
# A desktop whose colours and font Qt itself reads from the settings in the home folder.
THEME = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5", "QT_QPA_PLATFORMTHEME": "kde"}
FONTS = ("font", "menuFont", "toolBarFont", "smallestReadableFont")
INK, PAPER = "35,38,41", "252,252,252"
LIGHT = {"Window": ("239,240,241", INK), "View": ("255,255,255", INK), "Button": (PAPER, INK),
         "Selection": ("61,174,233", PAPER), "Tooltip": ("247,247,247", INK)}  # background and text
DARK = {"Window": ("42,46,50", PAPER), "View": ("27,30,32", PAPER), "Button": ("49,54,59", PAPER),
        "Selection": ("61,174,233", PAPER), "Tooltip": ("49,54,59", PAPER)}


def desktopSettings(dark, points):
    lines = ["[KDE]", "widgetStyle=Fusion", "[General]"]
    lines += [f"{name}=DejaVu Sans,{points},-1,5,50,0,0,0,0,0" for name in FONTS]
    for group, (back, text) in (DARK if dark else LIGHT).items():
        lines += [f"[Colors:{group}]", f"ForegroundNormal={text}"]
        lines += [f"Background{kind}={back}" for kind in ("Normal", "Alternate")]
    return "\n".join([*lines, ""])


def dressed(size, pictures, dark=False, points=POINTS, **environment):
    """A session whose desktop has dark or light colours and a font of this size."""
    isPlain = not dark and points == POINTS
    session = Session(size, pictures, **environment, **({} if isPlain else THEME))
    if not isPlain:
        (session.home / ".config/kdeglobals").write_text(desktopSettings(dark, points))
    return session


def start(session, program, byKey, *arguments):
    """Goes past the splash by a key or a click, to the main window."""
    session.start(program, *arguments)
    window = Window(session)
    splash = window.find("label", "Brenica Software")
    session.picture("splash")
    if byKey:
        session.keys("space")
    else:
        session.click(splash.accessible.box.middle)
    waitFor(lambda: window.isSelected(PAGES[0]), "the main window")
    window.waitUntilAtRest()
    return window


def walkPages(window):
    """Every page, list, criterion, table, graph and view, with a picture each."""
    session = window.session

    def look(kind, captions, turn):
        for caption in captions:
            turn(caption)
            session.picture(f"{kind}_{caption.lower().replace(' ', '_')}")

    session.picture("candidate_species")
    window.page(PAGES[1])
    look("list", LISTS, lambda caption: window.option(caption).tick())
    window.page(PAGES[2])
    look("criteria", CRITERIA, window.page)
    window.page(PAGES[3])
    look("summary", SUMMARIES, window.page)
    window.page(PAGES[4])
    look("graph", GRAPHS, window.page)
    window.page(PAGES[5])
    session.picture("scores")
    window.check("Display results graphically").tick()
    session.picture("scores_chart")
    window.page(PAGES[6])
    session.picture("complementarity")
    export = window.button("Export the results")
    window.button("Select Brenic Species").click()
    number = 0
    while title := waitFor(lambda: window.openBox() or export.enabled and "done", "a box or the results"):
        if title == "done":
            break
        number += 1
        session.picture(f"box_{number}")
        window.box(title).end("Return")
    look("results", VIEWS, lambda caption: window.option(caption).tick())


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--program", type=Path, default=TOP / "build/release/src/desktop/brenica")
    parser.add_argument("--project", type=Path, default=TOP / "examples/full_landscape.brn")
    parser.add_argument("--screen", choices=SCREENS, action="append", help="default: all")
    parser.add_argument("--dark", action="store_true", help="a desktop with dark colours")
    parser.add_argument("--points", type=int, default=POINTS, help="of the desktop's font; default: %(default)s")
    parser.add_argument("--pieces", action="store_true", help="the full example's tips, menus, boxes and strip instead")
    parser.add_argument("--output", type=Path, default=TOP / "build/journey")
    options = parser.parse_args()
    for screen in options.screen or SCREENS:
        size = tuple(int(part) for part in screen.split("x"))
        look = f"{'dark' if options.dark else 'light'}_{options.points}"
        pictures = options.output / f"{screen}_{look}"
        with dressed(size, pictures, options.dark, options.points, **SCREENS[screen]) as session:
            window = start(session, options.program.resolve(), byKey=True)
            KeyboardRoad(window).open(options.project.resolve())
            if options.pieces:
                walkPieces(window, session.home)
            else:
                walkPages(window)


if __name__ == "__main__":
    sys.exit(main())
