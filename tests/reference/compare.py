#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs random projects through brenica-batch and through the model and compares what they leave."""

import argparse
import collections
import json
import os
import shutil
import subprocess
import sys
import tempfile
from itertools import zip_longest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))

from brenica_reference import DONE, REFUSED, UNEXPECTED, run
from random_projects import STATES, makeCase, makeState

TIME_LIMIT = 60  # seconds for one project


class Figures:
    """Counts over all cases, so that a run tells what it has covered."""

    def __init__(self):
        self.counts = collections.Counter()
        self.codes = collections.Counter()

    def add(self, case, outcome):
        self.codes[outcome.exit_code] += 1
        titles = [box["title"] for box in outcome.messages]
        self.counts["projects"] += 1
        self.counts["margin dialogues"] += any(title.startswith("Species with aggregate") for title in titles)
        self.counts["second dialogues"] += any(title.startswith("Select the species") for title in titles)
        self.counts["omissions"] += "Species Omitted" in titles
        self.counts["exclusions"] += "Excluded species" in titles
        self.counts["questions"] += any(box["kind"] == "question" for box in outcome.messages)
        self.counts["version 1"] += case.version == 1
        if outcome.exit_code == DONE:
            self.counts["picks"] += outcome.tables["BrenicSuiteData.txt"].count(b"\r\n") - 1
            self.counts["three passes"] += outcome.tables["BrenicSuiteData.txt"].count(b"\r\n") - 1 >= 3

    def line(self):
        codes = ", ".join(f"exit {code}: {self.codes[code]}" for code in sorted(self.codes))
        names = ("margin dialogues", "second dialogues", "omissions", "exclusions", "questions",
                 "picks", "three passes", "version 1")
        rest = ", ".join(f"{name}: {self.counts[name]}" for name in names)
        return f"projects: {self.counts['projects']}, {codes}, {rest}"


def modelOutcome(case):
    """What the model says."""
    return run(case.project, case.levels, case.answers)


def arguments(case, folder):
    """The command line of a case, without the program."""
    given = [str(folder / "project.brn")]
    for name, text in case.levels.items():
        given += ["--" + name, text]
    for answer in case.answers:
        given += ["--answer", answer]
    for name, file in (("tables", "tables"), ("messages", "messages.jsonl"), ("results", "results.txt")):
        given += ["--" + name, str(folder / file)]
    return given


def programOutcome(batch, case, folder):
    """Exit code and files of the program: name to bytes."""
    (folder / "project.brn").write_bytes(case.project)
    (folder / "tables").mkdir()
    try:
        done = subprocess.run([batch, *arguments(case, folder)], capture_output=True, timeout=TIME_LIMIT)
        (folder / "stderr.txt").write_bytes(done.stderr)
        code = done.returncode
    except subprocess.TimeoutExpired:
        code = "no end"
    files = {f"tables/{path.name}": path.read_bytes() for path in sorted((folder / "tables").iterdir())}
    for name in ("messages.jsonl", "results.txt"):
        if (folder / name).exists():
            files[name] = (folder / name).read_bytes()
    return code, files


def modelFiles(outcome):
    """The files that the model expects: name to bytes."""
    files = {}
    if outcome.exit_code in (DONE, REFUSED, UNEXPECTED):
        files = {f"tables/{name}": data for name, data in outcome.tables.items()}
    if outcome.results is not None:
        files["results.txt"] = outcome.results
    files["messages.jsonl"] = outcome.messageLines()
    return files


def firstDifference(name, model, program):
    """The first line in which two files differ."""
    if program is None:
        return f"{name}: not written by the program"
    if model is None:
        return f"{name}: not expected by the model"
    pairs = zip_longest(model.split(b"\n"), program.split(b"\n"))
    number, (one, other) = next((n, p) for n, p in enumerate(pairs, 1) if p[0] != p[1])
    return f"{name}, line {number}:\n    model   {one!r}\n    program {other!r}"


def differences(outcome, code, files):
    """What differs between the model and the program."""
    if code != outcome.exit_code:
        yield f"exit code: model {outcome.exit_code}, program {code}"
    expected = modelFiles(outcome)
    for name in sorted({*expected, *files}):
        if expected.get(name) != files.get(name):
            yield firstDifference(name, expected.get(name), files.get(name))


def keep(folder, case, outcome, target):
    """Copy a failing case: the program's files, the model's files, and how to run it."""
    target.mkdir(parents=True, exist_ok=True)
    shutil.copytree(folder, target / "program", dirs_exist_ok=True)
    for name, data in modelFiles(outcome).items():
        path = target / "model" / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)
    (target / "model" / "report.txt").write_text(f"exit code {outcome.exit_code}\n{outcome.report}\n")
    about = {"kind": case.kind, "notes": case.notes, "arguments": arguments(case, target / "program")}
    (target / "case.json").write_text(json.dumps(about, ensure_ascii=False, indent=2) + "\n")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--batch", required=True, help="path to brenica-batch")
    parser.add_argument("--count", type=int, default=300)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--states", action="store_true", help="cases of the states: " + ", ".join(STATES))
    parser.add_argument("--keep", type=Path, help="folder for the failing cases")
    parser.add_argument("--case", type=int, help="run one case only")
    options = parser.parse_args()
    if not (os.path.isfile(options.batch) and os.access(options.batch, os.X_OK)):
        print(f"compare.py: no program at {options.batch}", file=sys.stderr)
        return 2
    batch = str(Path(options.batch).resolve())
    make = makeState if options.states else makeCase
    figures, failed = Figures(), []
    numbers = range(options.count) if options.case is None else [options.case]
    for number in numbers:
        case = make(options.seed, number)
        outcome = modelOutcome(case)
        figures.add(case, outcome)
        with tempfile.TemporaryDirectory() as name:
            folder = Path(name)
            found = list(differences(outcome, *programOutcome(batch, case, folder)))
            if not found:
                continue
            failed.append(number)
            print(f"case {number} ({case.kind}{''.join('; ' + note for note in case.notes)}) differs:")
            for text in found:
                print("  " + text)
            if options.keep:
                keep(folder, case, outcome, options.keep / f"seed{options.seed}-case{number}")
    print(f"{figures.line()}, different: {len(failed)}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
