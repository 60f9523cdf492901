#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Random projects with levels and answers, the same for the same seed and number.

Most pass the gates and take several passes; the others have gaps, blank names or a broken file.
"""

import argparse
import collections
import random
import sys
from dataclasses import dataclass, field

DEFAULT_BINS = ("0 - 1 km2", "1 - 10 km2", "10 - 25 km2", "25 - 50 km2", "50 - 100 km2", "100+ km2")
WORDS = ("Wolf", "Lynx", "Otter", "Marsh", "Oak", "River", "Dry", "Upper", "Crane", "Logging", "Dam", "Peat",
         "Éland", "Straße", "Łoś", "Ωmega", "Niño", "森林", "O'Hara", 'the "old"', "a=b", "back\\slash", "K-2")
STATES = ("removal", "old areas", "no activities", "list of one blank", "comma in a name", "two lines of bins")
EXACT_LENGTHS = (19, 20, 21, 25, 26, 27, 28, 29, 40)


@dataclass
class Case:
    """One project file with what is given on the command line."""

    number: int
    kind: str
    project: bytes
    levels: dict
    answers: list
    version: int
    notes: list = field(default_factory=list)


class Maker:
    """Makes one project from one stream of random numbers."""

    def __init__(self, rng):
        self.rng = rng
        self.notes = []
        self.questions = 0

    def chance(self, share):
        return self.rng.random() < share

    def name(self):
        """One to four words, sometimes cut or filled to a length where names are cut."""
        text = " ".join(self.rng.choice(WORDS) for _ in range(self.rng.randint(1, 4)))
        if self.chance(0.3):
            text = text.ljust(50, "x")[: self.rng.choice(EXACT_LENGTHS)]
        return text.strip() or "x"

    def names(self, count):
        return [self.name() for _ in range(count)]

    def many(self, pool, count):
        return [self.rng.choice(pool) for _ in range(count)]

    def make(self, number, kind):
        """The whole case."""
        rng = self.rng
        self.version = 1 if self.chance(0.15) or kind == "old areas" else 2
        self.S, self.H, self.Z = rng.randint(1, 12), rng.randint(1, 6), rng.randint(1, 6)
        if kind == "removal":
            self.H = max(self.H, 3)
        if self.S < 6 and self.chance(0.75):
            self.S += 6
        self.A, self.F = rng.randint(1, 6), rng.randint(1, 7)
        levels = self.makeLevels()
        lines = self.makeLines(float(levels.get("conservation-status", "1")))
        spoil = {
            "gap": self.addGaps,
            "blank": self.blankNames,
            "malformed": self.breakFile,
            "removal": self.blankForRemoval,
            "old areas": self.shortenAreas,
            "no activities": self.takeActivitiesAway,
            "list of one blank": self.blankList,
            "comma in a name": self.commaInName,
            "two lines of bins": self.repeatBins,
        }
        if kind in spoil:
            lines = spoil[kind](lines) or lines
        agreed = ("yes",) if kind == "removal" else ("yes", "yes", "no")
        answers = [rng.choice(agreed) for _ in range(self.questions)] + self.makeAnswers()
        return Case(number, kind, self.encode(lines, kind), levels, answers, self.version, self.notes)

    def makeLevels(self):
        rng, levels = self.rng, {}
        if self.chance(0.9):
            levels["error-margin"] = rng.choice(
                ("0", "0", "1", "3", "5", "10", "10", "12.5", "20", "35", "100", str(rng.randint(0, 100))))
        if self.chance(0.85):
            levels["threat-representation"] = rng.choice(
                ("0", "0.25", "0.5", "0.6", "0.75", "0.75", "0.9", "1", "1", "1.0"))
        if self.chance(0.6):
            levels["conservation-status"] = rng.choice(("1", "1", "1", "0.9", "0.8", "0.75", "0.5", "0"))
        return levels

    def makeAnswers(self):
        pool = ["a"] * 4 + ["b"] * 5 + ["c"] * 4 + ["d"] * 4 + ["e"] * 4 + ["1", "2", "2", "3", "4"]
        pool += ["A", " b ", "E", "C", "0", "9", "x", "", "1 ", "ab", "é", "yes", "no"]
        return self.many(pool, self.rng.choice((0, 0, 2, 4, 6, 10, 14)))

    # A complete project

    def makeLines(self, statusLevel):
        S, H, Z, A, F = self.S, self.H, self.Z, self.A, self.F
        statuses = self.makeStatuses(statusLevel)
        kept = [s for s in range(S) if self.version == 1 or float(statuses[s]) <= statusLevel] or list(range(S))
        habitatNeeds, zoneNeeds = self.makeThresholds(H), self.makeThresholds(Z)
        activities, urgency = self.names(A), self.many("0112333", A)
        probability = self.many(("0", "0.1", "0.25", "0.5", "0.75", "1", "1", "1", ".5"), A)
        definition, homeRanges = self.makeHomeRanges()
        lines = [["Project Version", ["VERSION2"]]] if self.version == 2 else []
        lines += [
            ["Common Name", self.names(S)],
            ["Scientific Name", self.names(S)],
            ["Habitat Type", self.names(H)],
            ["Habitat Area", self.makeAreas(H)],
            ["Habitat UseLevel", habitatNeeds],
            ["Jurisdictional Unit", self.names(Z)],
            ["JU Area", self.makeAreas(Z)],
            ["MZone UseLevel", zoneNeeds],
            ["Land Use", activities],
            ["Urgency", urgency],
            ["Probability of occurence", probability],
            ["Home-range definition", definition],
            ["Functions", self.names(F)],
            ["HeteroHabitat Population", self.makeUse(H, habitatNeeds, kept)],
            ["HeteroJU Individual", self.makeUse(Z, zoneNeeds, kept)],
            ["Area Dispersal", self.many("YYNNy", S)],
            ["Area Connectivity", self.many("YNNn", S)],
            ["Home ranges", homeRanges],
            ["Landscape Occupied", self.many(("0.1", "0.25", "0.5", "0.5", ".75", "1", "0.333", "0.0", "1.5"), S)],
            ["Conservation Status", statuses],
            ["VulnerabilitybySpecies Severity", self.many(self.rng.choice(("0123", "0003", "23")), S * A)],
            ["VulnerabilitybySpecies Recovery", self.many(self.rng.choice(("0123", "1", "02")), S * A)],
            ["VulnerabilitybySpecies Proportion", self.many(self.rng.choice(("01234", "0014", "24")), S * A)],
        ]
        grades = self.rng.choice((("0", "1", "2", "3"), ("1",), ("0",), ("0", "1.5", "3"), ("0", "0.1", "0.2")))
        lines += [[f"Function{f}", self.many(grades, S)] for f in range(1, F + 1)]
        grades = self.rng.choice((("0", "1", "2"), ("1", "2"), ("0", "2"), ("1",)))
        lines += [[f"Socio-Econ{c}", self.many(grades, S)] for c in range(1, 6)]
        quality = self.rng.choice((("1", "2", "3", "4", "5", "6"), ("", "2"), ("1.5", "3")))
        lines += [[f"Data Quality{c}", self.many(quality, S)] for c in range(1, 6)]
        if self.version == 1:
            filled = ("Habitat UseLevel", "MZone UseLevel", "Landscape Occupied", "Conservation Status")
            lines = [line for line in lines if line[0] not in filled]
        return lines

    def makeStatuses(self, level):
        """Conservation statuses; seldom are all of them above the level."""
        pool = self.rng.choice((("0", "0.5", "1"), ("1",), ("0.2", "0.4", "0.6", "0.8"), ("0.25", "0.5", "0.75", "1")))
        low = [text for text in ("0", *pool) if float(text) <= level]
        lowered = self.rng.choice((0.3, 0.6, 0.9)) if self.chance(0.95) else 0
        return [self.rng.choice(low) if self.chance(lowered) else text for text in self.many(pool, self.S)]

    def makeThresholds(self, count):
        pool = self.rng.choice((("2",), ("2", "3"), ("3",), ("1", "2", "3"), ("1.5", "2.5"), ("0", "1", "3")))
        return self.many(pool, count)

    def makeAreas(self, count):
        areas = self.many(("1", "10", "12.5", "100", "250", "0.5"), count)
        if self.chance(0.25):
            areas[self.rng.randrange(count)] = ""
        return ["1"] * count if self.chance(0.1) else areas

    def makeUse(self, count, needs, kept):
        """Levels of use, sparse, so that one pick seldom covers all; mostly each unit can be covered."""
        if self.version == 1:
            pool = self.rng.choice((("0", "1"), ("0", "0", "0", "1"), ("0", "1", "0.5", "")))
            needs, full = ["2"] * count, "1"
        else:
            pool = self.rng.choice((
                ("0", "0", "0", "3"), ("0", "0", "1", "2", "3"), ("0", "1", "2", "3"),
                ("0", "0", "1.5", "2.5", "3"), ("0", "0", "0", "0", "2", "3")))
            full = "3"
        levels = self.many(pool, self.S * count)
        if self.chance(0.93):
            for unit in range(count):
                need = 2 if self.version == 1 else round(float(needs[unit]))
                reached = {"1": 2.0} if self.version == 1 else {}
                if not any(reached.get(v, float(v or 0)) >= need for v in (levels[s * count + unit] for s in kept)):
                    levels[self.rng.choice(kept) * count + unit] = full
        return levels

    def makeHomeRanges(self):
        rng, S = self.rng, self.S
        kind = rng.randrange(3)
        if kind == 0:
            return ["continuous"], self.many(("1", "5", "10", "10", "50", "120.5", "0.25"), S)
        if kind == 1:
            labels = self.many(DEFAULT_BINS, S)
            if self.chance(0.15):
                labels[rng.randrange(S)] = rng.choice(("100+ KM2", "somewhere", "10"))
            return [rng.choice(("default bins", "Default Bins"))], labels
        points = sorted(rng.sample(range(0, 60), rng.randint(1, 4)))
        bins = [f"{a} - {b} km2" for a, b in zip(points, points[1:])] + [f"{points[-1]}+ km2"]
        labels = self.many(bins, S)
        if self.chance(0.15):
            labels[rng.randrange(S)] = rng.choice((bins[0].upper(), "elsewhere", "5"))
        return ["user-defined bins", *map(str, points)], labels

    # Faults

    def addGaps(self, lines):
        """Blank a cell or two, take a line away, or leave a unit without any use."""
        for _ in range(self.rng.randint(1, 2)):
            key, values = line = self.rng.choice(lines[3:])
            what = self.rng.random()
            if what < 0.12:
                lines.remove(line)
                self.notes.append(f"no line {key}")
            elif what < 0.27:
                key = self.rng.choice(("HeteroHabitat Population", "HeteroJU Individual"))
                values, count = self.values(lines, key), self.H if "Habitat" in key else self.Z
                unit = self.rng.randrange(count)
                for s in range(self.S):
                    if s * count + unit < len(values):
                        values[s * count + unit] = ""
                self.notes.append(f"unit {unit + 1} of {key} unused")
            elif key not in ("Land Use", "Functions", "Jurisdictional Unit", "Habitat Type"):
                values[self.rng.randrange(len(values))] = self.rng.choice(("", "", "", "0", " ", "N/A"))
                self.notes.append(f"gap in {key}")

    @staticmethod
    def values(lines, key):
        """The values of a line, or none when the line is gone."""
        return next((values for k, values in lines if k == key), [])

    def blankNames(self, lines):
        """Blank some names; species and habitats are asked about."""
        asked = ["Common Name"] * 3 + ["Habitat Type"] * 2 + ["Jurisdictional Unit", "Land Use", "Functions"]
        for key in dict.fromkeys(self.many(asked, self.rng.randint(1, 3))):
            values = self.values(lines, key)
            count = self.rng.randint(1, 2) if self.chance(0.9) else len(values)
            for _ in range(count):
                values[self.rng.randrange(len(values))] = self.rng.choice(("", "", "  "))
            self.questions += key in ("Common Name", "Habitat Type")
            self.notes.append(f"blank in {key}")

    # States that a gate, an older program or a list left empty brings about

    def blankForRemoval(self, lines):
        """Blank names of habitats, mostly not of the last alone, and sometimes of species; all go at the gates."""
        asked = {"Habitat Type": self.H, **({"Common Name": self.S} if self.chance(0.4) else {})}
        for key, count in asked.items():
            values = self.values(lines, key)
            for i in self.rng.sample(range(count), self.rng.randint(1, max(1, count - 1))):
                values[i] = self.rng.choice(("", "  "))
            values[:] = [value if i or value else "  " for i, value in enumerate(values)]
            self.questions += any(not value.strip() for value in values)
            self.notes.append(f"blank in {key}")

    def shortenAreas(self, lines):
        """Area lines that are shorter than their lists, empty or away, in a file of version 1."""
        for key in self.rng.choice((("Habitat Area",), ("JU Area",), ("Habitat Area", "JU Area"))):
            line = next(line for line in lines if line[0] == key)
            what = self.rng.choice(("shorter", "empty", "away"))
            if what == "away":
                lines.remove(line)
            else:
                del line[1][self.rng.randrange(len(line[1])) if what == "shorter" else 0 :]
            self.notes.append(f"{key} {what}")

    def takeActivitiesAway(self, lines):
        """Ratings in a file whose activities are missing, or named only after them."""
        last = lines[-1]
        for key in ("Land Use", "Urgency", "Probability of occurence"):
            line = next(line for line in lines if line[0] == key)
            lines.remove(line)
            if self.chance(0.3):
                lines.insert(lines.index(last) + 1, line)
                last = line
                self.notes.append(f"{key} at the end")

    def blankList(self, lines):
        """A list of one blank name is written as none; the data lines behind it stay."""
        key = self.rng.choice(("Common Name", "Habitat Type", "Jurisdictional Unit", "Land Use"))
        self.values(lines, key)[:] = [""]
        self.notes.append(f"{key} of one blank")

    def commaInName(self, lines):
        """A comma makes two entries of one; every later value of the list moves."""
        key = self.rng.choice(("Common Name", "Common Name", "Habitat Type", "Jurisdictional Unit", "Land Use"))
        values = self.values(lines, key)
        values[self.rng.randrange(len(values))] = "Ant, red"
        self.notes.append(f"comma in {key}")

    def repeatBins(self, lines):
        """Other breakpoints stand before those that count."""
        definition = next(line for line in lines if line[0] == "Home-range definition")
        before = ["Home-range definition", ["user-defined bins", "5", "10"]]
        lines.insert(lines.index(definition), before)
        self.notes.append("bins before the bins")

    def breakFile(self, lines):
        """One or two faults of the file itself."""
        for fault in self.rng.sample(
            (self.shuffle, self.swap, self.repeat, self.lengthen, self.shorten, self.unknown,
             self.changeCase, self.renumber, self.spoilCell, self.bare), self.rng.choice((1, 1, 2))):
            lines = fault(lines)
            self.notes.append(fault.__name__)
        return lines

    def shuffle(self, lines):
        """Every line anywhere; a change of the home range kind may be asked about."""
        self.rng.shuffle(lines)
        self.questions = 1
        return lines

    def swap(self, lines):
        i = self.rng.randrange(len(lines) - 1)
        lines[i], lines[i + 1] = lines[i + 1], lines[i]
        return lines

    def repeat(self, lines):
        key, values = self.rng.choice(lines)
        again = [key, list(values)]
        if self.chance(0.5) and len(values) > 1:
            again[1].pop()
        elif self.chance(0.5):
            again[1].append(values[0])
        lines.insert(self.rng.randrange(len(lines) + 1), again)
        return lines

    def lengthen(self, lines):
        key, values = self.rng.choice(lines)
        values += self.many(values, self.rng.randint(1, 3))
        return lines

    def shorten(self, lines):
        key, values = self.rng.choice(lines)
        del values[-self.rng.randint(1, 3) :]
        return lines

    def unknown(self, lines):
        for key in ("Remark", "Common Names", "Species"):
            lines.insert(self.rng.randrange(len(lines) + 1), [key, ["1", "2"]])
        return lines

    def changeCase(self, lines):
        change = self.rng.choice((str.lower, str.upper))
        for line in lines:
            if self.chance(0.5):
                line[0] = change(line[0])
        return lines

    def renumber(self, lines):
        numbered = [line for line in lines if line[0][-1:].isdigit()]
        if not numbered:
            return lines
        line = self.rng.choice(numbered)
        stem = line[0].rstrip("0123456789")
        line[0] = stem + self.rng.choice(("", "0", "99", "X", " 2", "1.5", "-1", "007", "2 3", "1e0"))
        return lines

    def spoilCell(self, lines):
        key, values = self.rng.choice(lines[3:])
        if values:
            values[self.rng.randrange(len(values))] = self.rng.choice(("abc", "1x", "-1", "99", "1 2", "0.5.1"))
        return lines

    def bare(self, lines):
        for _ in range(3):
            lines.insert(self.rng.randrange(len(lines) + 1), self.rng.choice((["no sign", None], ["Empty", []], ["", None])))
        return lines

    def encode(self, lines, kind):
        """The bytes of the file; some in an older code page, some with other line ends."""
        texts = []
        for key, values in lines:
            texts.append(key if values is None else f"{key} = {','.join(values)}".strip())
        end = "\r" if self.chance(0.04) else "\r\n"
        if kind == "malformed" and self.chance(0.04):
            end = "\n"
        text = end.join(texts) + ("" if self.chance(0.05) else end)
        if self.chance(0.15):
            return text.encode("cp1252", errors="replace")
        return text.encode("utf-8")


def makeCase(seed, number):
    """Case of a number under a seed."""
    rng = random.Random(f"{seed}/{number}")
    kind = rng.choices(("complete", "gap", "blank", "malformed"), (70, 10, 9, 11))[0]
    return Maker(rng).make(number, kind)


def makeState(seed, number):
    """Case of a number under a seed, of one of the STATES; a stream apart from that of makeCase."""
    rng = random.Random(f"states/{seed}/{number}")
    return Maker(rng).make(number, rng.choice(STATES))


def makeCases(seed, count, make=makeCase):
    """The first cases of a seed."""
    return (make(seed, number) for number in range(count))


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--count", type=int, default=300)
    parser.add_argument("--case", type=int, help="print the project file of one case")
    parser.add_argument("--states", action="store_true", help="cases of the states: " + ", ".join(STATES))
    parser.add_argument("--statistics", action="store_true", help="run the model over the cases and print figures")
    options = parser.parse_args()
    make = makeState if options.states else makeCase
    if options.case is not None:
        case = make(options.seed, options.case)
        print(case.kind, case.notes, case.levels, case.answers, file=sys.stderr)
        sys.stdout.buffer.write(case.project)
    elif options.statistics:
        from compare import Figures, modelOutcome

        figures, kinds = Figures(), collections.Counter()
        for case in makeCases(options.seed, options.count, make):
            outcome = modelOutcome(case)
            figures.add(case, outcome)
            kinds[case.kind, outcome.exit_code] += 1
        print(figures.line())
        for (kind, code), count in sorted(kinds.items()):
            print(f"{kind:10} exit {code}: {count}")
    else:
        for case in makeCases(options.seed, options.count, make):
            print(case.number, case.kind, f"version {case.version}", *case.notes, sep="\t")


if __name__ == "__main__":
    main()
