#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The reference model of brenica-batch: opens a project, walks the pages, selects, exports."""

import argparse
import json
import os
import sys
from dataclasses import dataclass, field
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))

from conversion import CDbl, ReportedError, RunTimeError, decode
from form import frmBrenica

DONE, WRONG_USAGE, NOT_READABLE, REFUSED, UNEXPECTED = range(5)

LEVELS = {
    "error-margin": ("txtErrorMargin", 100),
    "threat-representation": ("txtThreatRep", 1),
    "conservation-status": ("txtCCSRep", 1),
}


@dataclass
class Outcome:
    """What a run leaves behind."""

    exit_code: int
    tables: dict = field(default_factory=dict)
    messages: list = field(default_factory=list)
    results: bytes | None = None
    report: str = ""
    form: frmBrenica | None = None

    def messageLines(self):
        """The messages as JSON lines."""
        lines = (json.dumps(box, ensure_ascii=False, separators=(",", ":")) for box in self.messages)
        return "".join(line + "\n" for line in lines).encode("utf-8")


def projectText(project):
    """The text of a project given as bytes, as a path, or as text."""
    if isinstance(project, bytes):
        return decode(project)
    if isinstance(project, os.PathLike) or os.path.isfile(project):
        return decode(Path(project).read_bytes())
    return project


def checkLevels(levels):
    """What is wrong with the levels, or an empty text."""
    for name, text in levels.items():
        if name not in LEVELS:
            return f"unknown level {name}"
        if "," in text:
            return f"{name}: not a number: {text}"
        try:
            inside = 0 <= CDbl(text) <= LEVELS[name][1]
        except RunTimeError:
            return f"{name}: not a number: {text}"
        if not inside:
            return f"{name}: out of bounds: {text}"
    return ""


def run(project_text_or_path, levels=None, answers=()):
    """One run of the batch program.

    levels: text by the names of LEVELS; answers: texts for input boxes and questions, in order.
    """
    levels = levels or {}
    wrong = checkLevels(levels)
    if wrong:
        return Outcome(WRONG_USAGE, report=wrong)
    try:
        text = projectText(project_text_or_path)
    except OSError as error:
        return Outcome(NOT_READABLE, report=str(error))
    form = frmBrenica(answers)
    form.InitializeProject()
    try:
        form.OpenProject(text)
    except (ReportedError, RunTimeError) as error:
        report = f"line {form.LineNumber}: {error.Description}"
        return Outcome(NOT_READABLE, messages=form.boxes.shown, report=report, form=form)
    if "\r" not in text:
        return Outcome(NOT_READABLE, messages=form.boxes.shown, report="no line ends in CR", form=form)
    form.ProjectChanged = False
    code, report = REFUSED, ""
    try:
        for name, text in levels.items():
            getattr(form, LEVELS[name][0]).Text = text
        if walk(form):
            form.cmdComplement_Click()
            code = DONE
    except ReportedError as error:
        code, report = UNEXPECTED, error.Description
    results = form.cmdExportResults_Click().encode("utf-8") if code == DONE else None
    return Outcome(code, form.tables(), form.boxes.shown, results, report, form)


def walk(form):
    """Pages 2 to 7; a refused move ends it. True when the selection command is enabled."""
    for page in range(2, 8):
        form.tabBrenica.SelectedItem = page
        if form.CurrentMainTab != page:
            return False
    return form.complementEnabled


def main(arguments=None):
    """The command line of brenica-batch."""
    parser = argparse.ArgumentParser(description=__doc__)
    for name in LEVELS:
        parser.add_argument("--" + name)
    parser.add_argument("--answer", action="append", default=[])
    for name in ("results", "tables", "messages"):
        parser.add_argument("--" + name, type=Path)
    parser.add_argument("project", type=Path)
    try:
        options = parser.parse_args(arguments)
    except SystemExit as stop:
        return WRONG_USAGE if stop.code else DONE
    given = vars(options)
    levels = {name: given[name.replace("-", "_")] for name in LEVELS if given[name.replace("-", "_")] is not None}
    outcome = run(options.project, levels, options.answer)
    try:
        write(options, outcome)
    except OSError as error:
        print(error, file=sys.stderr)
        return WRONG_USAGE
    for box in outcome.messages:
        print(f"{box['title']}: {box['text']}".replace("\r", "\n"), file=sys.stderr)
    if outcome.report:
        print(outcome.report.replace("\r\n", "\n").rstrip("\n"), file=sys.stderr)
    if outcome.exit_code == DONE:
        print(outcome.tables["BrenicSuiteData.txt"].decode("utf-8").replace("\r\n", "\n"), end="")
    return outcome.exit_code


def write(options, outcome):
    """Write what was asked for."""
    if options.tables and outcome.tables:
        options.tables.mkdir(parents=True, exist_ok=True)
        for name, data in outcome.tables.items():
            (options.tables / name).write_bytes(data)
    if options.results and outcome.results is not None:
        options.results.write_bytes(outcome.results)
    if options.messages and outcome.exit_code != WRONG_USAGE:
        options.messages.write_bytes(outcome.messageLines())


if __name__ == "__main__":
    sys.exit(main())
