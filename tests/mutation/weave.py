# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Many mutants in one source, each behind a switch that the environment of the process turns."""
from mutants import errors, parse

HEADER = b'#include "active_mutant.h"\n'


class Woven:
    """A source with switches, and where in it each mutant stands."""

    def __init__(self, source, numbered):
        self.source = source
        self.text = HEADER
        self.places = []  # start, end and number
        # An outer stretch comes before those inside it, and of two alike the first holds the second.
        ordered = sorted(numbered, key=lambda pair: (pair[1].start, -pair[1].end, not pair[1].deletes))
        self.weave(0, len(source), ordered)

    def weave(self, start, end, numbered):
        position = start
        while numbered:
            number, mutant = numbered[0]
            inside = [pair for pair in numbered[1:] if pair[1].end <= mutant.end]
            self.text += self.source[position:mutant.start]
            place = len(self.text)
            if mutant.deletes:
                self.text += b"{ if (!mutation::on(%d)) " % number
                self.weave(mutant.start, mutant.end, inside)
                self.text += b" }"
            else:
                # Both sides of a truth value are one: a class that is made from one would swallow the other side.
                truth = b"!!" if mutant.replacement.startswith(b"!") else b""
                self.text += b"(mutation::on(%d) ? (%s) : %s(" % (number, mutant.replacement, truth)
                self.weave(mutant.start, mutant.end, inside)
                self.text += b"))"
            self.places.append((place, len(self.text), number))
            position = mutant.end
            numbered = numbered[1 + len(inside):]
        self.text += self.source[position:end]

    def numbers_at(self, offset):
        """The mutants to blame for an error: the innermost one around it, else all."""
        around = [(end - start, number) for start, end, number in self.places if start <= offset <= end]
        return [min(around)[1]] if around else [number for _, _, number in self.places]


def weave(path, source, numbered, root):
    """The woven source, and the numbers of the mutants that cannot stand behind a switch in it."""
    refused = set()
    while True:
        woven = Woven(source, [pair for pair in numbered if pair[0] not in refused])
        found = errors(parse(path, woven.text, root))
        if not found:
            return woven.text if woven.places else source, refused
        if not woven.places:
            raise RuntimeError(f"{path} does not compile")
        for offset in found:
            refused.update(woven.numbers_at(offset))


def compiles(path, source, mutant, root):
    return not errors(parse(path, mutant.applied(source), root))
