# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Mutants that no input can tell from the program, each with the argument why."""
from pathlib import Path

LIST = Path(__file__).with_name("equivalents.txt")


def read(path=LIST):
    """The argument for each mutant by file, function, line before and line after. Blocks are parted by blank lines:
    file and function, "- " and the line, "+ " and the mutated line, then the argument."""
    found = {}
    for block in path.read_text(encoding="utf-8").split("\n\n"):
        lines = [line for line in block.splitlines() if line and not line.startswith("#")]
        if not lines:
            continue
        file, function = lines[0].split(" ", 1)
        before, after, *reason = lines[1:]
        if not (before.startswith("- ") and after.startswith("+ ") and reason):
            raise ValueError(f"{path}: not a mutant with its argument: {lines}")
        found[(file, function, before[2:], after[2:])] = " ".join(reason)
    return found
