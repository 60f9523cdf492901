# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Numbers, texts and run-time failures, as the whole model uses them."""

import functools
import math
import re
from decimal import Decimal

DESCRIPTIONS = {
    5: "Invalid procedure call or argument",
    6: "Overflow",
    9: "Subscript out of range",
    11: "Division by zero",
    13: "Type mismatch",
    53: "File not found",
    75: "Path/File access error",
    380: "Invalid property value",
}

NUMBER = re.compile(r"[+-]?(?:[0-9]+\.?[0-9]*|\.[0-9]+)(?:[eE][+-]?[0-9]+)?")
GROUPING = re.compile(r"(?<=[0-9]),(?=[0-9])")


class RunTimeError(Exception):
    """A failure of the platform: a number and its description."""

    def __init__(self, number):
        super().__init__(number)
        self.Number = number
        self.Description = DESCRIPTIONS[number]


class ReportedError(Exception):
    """A failure that a procedure has wrapped and handed on with its own name."""

    def __init__(self, source, error):
        self.Source = "Brenica." + source
        self.Cause = error
        self.Description = (
            "Unexpected error in Brenica System.\r\n"
            f"Source: {self.Source}\r\n"
            f"Internal Error number: {error.Number}.\r\n"
            f'Internal Error description: "{error.Description}".\r\n'
        )
        super().__init__(self.Description)


def reported(source):
    """The trap of nearly every procedure: the first wrap wins, the rest passes it on."""

    def decorate(procedure):
        @functools.wraps(procedure)
        def trapped(*arguments):
            try:
                return procedure(*arguments)
            except RunTimeError as error:
                raise ReportedError(source, error) from error

        return trapped

    return decorate


def CDbl(text):
    """Text to real: blanks around are dropped, a comma between digits is a grouping mark."""
    digits = GROUPING.sub("", text.strip(" "))
    if not NUMBER.fullmatch(digits):
        raise RunTimeError(13)
    value = float(digits)
    if math.isinf(value):
        raise RunTimeError(6)
    return value


def CLng(text):
    """Text to a 32-bit integer, through the real, halves to even."""
    return toLong(CDbl(text))


def toLong(value):
    """A number to a 32-bit integer, halves to even."""
    whole = round(value)
    if not -(2**31) <= whole < 2**31:
        raise RunTimeError(6)
    return whole


def IsNumeric(text):
    """Whether the text converts to a real."""
    try:
        CDbl(text)
    except RunTimeError:
        return False
    return True


def Round(value, places):
    """Multiply, round to nearest with halves to even, divide."""
    factor = 10.0**places
    return float(round(value * factor)) / factor


def CStr(value):
    """Number to text: at most 15 significant digits, plain decimal, no trailing zeros."""
    if isinstance(value, int):
        return str(value)
    text = format(Decimal(format(value, ".15g")), "f")
    if "." in text:
        text = text.rstrip("0").rstrip(".")
    return "0" if text == "-0" else text


def fold(text):
    """Simple case folding, one code point to one."""
    return "".join(_foldOne(c) for c in text)


def _foldOne(c):
    for candidate in (c.casefold(), c.lower()):
        if len(candidate) == 1:
            return candidate
    return c


def sameText(one, other):
    """Equality of texts without regard to case."""
    return fold(one) == fold(other)


def Trim(text):
    """The text without the blanks at both ends."""
    return text.strip(" ")


def decode(data):
    """UTF-8; a byte that is none is read as Windows-1252."""
    pieces = []
    while data:
        try:
            pieces.append(data.decode("utf-8"))
            break
        except UnicodeDecodeError as error:
            pieces.append(data[: error.start].decode("utf-8"))
            byte = data[error.start : error.start + 1]
            try:
                pieces.append(byte.decode("cp1252"))
            except UnicodeDecodeError:
                pieces.append(byte.decode("latin-1"))
            data = data[error.start + 1 :]
    return "".join(pieces)


def splitLines(text):
    """Lines of a project file: each ends at CR or CR LF, a lone LF stays in its line."""
    lines = re.split("\r\n?", text)
    if lines[-1] == "":
        lines.pop()
    return lines
