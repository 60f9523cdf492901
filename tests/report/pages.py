# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Reports of the examples and of projects that strain a page, and the tables of the other verbs to hold them against."""

import csv
import io
import os
import subprocess
import sys
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]
EXAMPLES = SOURCE / "examples"
PROGRAM = os.environ["BRENICA_BATCH"]
TIME_LIMIT = 120  # seconds
LIMITS = ["--nodes", "3000"]

STRANGE = {
    "Great Bittern": "Great <b>Bittern</b> & 'co' \"x\" </style><script>alert(1)</script>",
    "Corncrake": "Corncrake" + " of the long and winding name" * 40,
    "Eurasian Badger": "גירית מצויה (אירואסיה)",
    "European Adder": "W" * 400,
    "Green Woodpecker": "歐亞綠啄木鳥" * 12,
    "Oak woodland": "Oak\twoodland" + "M" * 300,
    "Wet meadow": "مرج رطب",
    "Village commons": "&amp; commons <!-- ",
    "Land drainage": "Land " + "drainage" * 250,
}


def optionsOf(name):
    path = EXAMPLES / f"{name}.options"
    return path.read_text().splitlines() if path.exists() else []


def strangeProject():
    text = (EXAMPLES / "small_landscape.brn").read_bytes()
    for name, other in STRANGE.items():
        text = text.replace(name.encode(), other.encode())
    return text


def largeProject():
    return subprocess.run([sys.executable, SOURCE / "bench" / "make_project", "--species", "200", "--habitats", "40",
                           "--zones", "40", "--activities", "40"], check=True, capture_output=True).stdout


def makeProjects(folder):
    """By name: a project file and the options of its run."""
    projects = {}
    for name in ("small_landscape", "full_landscape", "version1_landscape", "missed_unit"):
        projects[name] = (EXAMPLES / f"{name}.brn", optionsOf(name))
    excluded = ["--conservation-status", "0.05"]
    projects["nobody_admitted"] = (EXAMPLES / "small_landscape.brn", excluded)
    for name, content in (("strange_names", strangeProject()), ("large", largeProject())):
        path = Path(folder) / f"{name}.brn"
        path.write_bytes(content)
        projects[name] = (path, [])
    return projects


def run(verb, project, options):
    child = subprocess.run([PROGRAM, verb, *options, project], capture_output=True, timeout=TIME_LIMIT, check=False)
    if child.returncode != 0:
        raise RuntimeError(f"{verb} {project}: {child.stderr.decode()}")
    return child.stdout.decode()


def table(verb, project, options):
    lines = io.StringIO(run(verb, project, options), newline="\n")
    return list(csv.DictReader(lines, delimiter="\t", quoting=csv.QUOTE_NONE))


def makePages(folder):
    """By name: the page of each project."""
    pages = {}
    for name, (project, options) in makeProjects(folder).items():
        pages[name] = Path(folder) / f"{name}.html"
        run("report", project, [*options, *LIMITS, "--out", pages[name]])
    return pages
