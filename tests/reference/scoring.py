# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Gates, use tables, vulnerability, criterion scores and ranks."""

from conversion import CDbl, CStr, Round, RunTimeError, Trim, reported, sameText, toLong
from helpers import CheckMissingVals

WHITE, TOTALS, THREATENED = 16777215, 16777088, 12648447

SPECIES_PROMPT = (
    "Select 'Yes' to delete those rows with blank species common names or 'No' to enter a value"
    " into each row with missing names before proceeding."
)
HABITAT_PROMPT = (
    "Select 'Yes' to delete those rows with blank habitat names or 'No' to enter a value"
    " into each row with missing names before proceeding."
)

AREA_GAPS = (
    (1, "N/A", "Enter a dispersion value for each species before proceeding."),
    (2, "N/A", "Enter a connectivity value for each species before proceeding."),
    (3, "0", "Enter a home range value for each species before proceeding."),
    (4, "0", "Enter propotion of the landscape occupied by each species before proceeding."),
)
VULNERABILITY_GAPS = (
    (4, "Enter a severity value for each human activity by species before proceeding."),
    (5, "Enter a recovery value for each human activity by species before proceeding."),
    (6, "Enter a proportion affected value for each human activity by species before proceeding."),
)


class Scoring:
    """The arithmetic before the selection."""

    # Gates

    @reported("Brenica.ValidateMainTab")
    def ValidateMainTab(self, tab):
        """Whether the page may be left."""
        if tab == 1:
            answer = CheckMissingVals(self.boxes, self.flxCandidateSpecies, 1, SPECIES_PROMPT)
            if answer == 1:
                for row in range(self.flxCandidateSpecies.Rows - 1, 0, -1):
                    if Trim(self.flxCandidateSpecies.TextMatrix(row, 1)) == "":
                        self.RemoveSpecies(row)
            return answer != 2
        if tab == 2:
            return self.ValidateLandChar()
        return True

    @reported("Brenica.ValidateLandChar")
    def ValidateLandChar(self):
        """Whether the list frame may be left; the walk never leaves the first, the habitats."""
        answer = CheckMissingVals(self.boxes, self.flxHabitatTypes, 1, HABITAT_PROMPT)
        if answer == 1:
            for row in range(self.flxHabitatTypes.Rows - 1, 0, -1):
                if Trim(self.flxHabitatTypes.TextMatrix(row, 1)) == "":
                    self.RemoveHabitatType(row)
        return answer != 2

    def refuse(self, text):
        """Tell the gap."""
        self.boxes.message("Invalid value", text)
        return False

    @reported("Brenica.ValidateScoreValues")
    def ValidateScoreValues(self):
        """Whether the scores may be calculated; tells the first gap."""
        if min(self.TotalSpecies, self.TotalHabitatTypes, self.TotalJurisUnits, self.TotalLandUses) < 1:
            return False
        name = self.firstUnused(self.flxSummary[2], self.flxHabitatTypes, self.TotalHabitatTypes)
        if name is not None:
            return self.refuse(
                f"The '{name}' habitat type is not used by any candidate species."
                " Either select or remove this habitat type."
            )
        name = self.firstUnused(self.flxSummary[3], self.flxJurisUnits, self.TotalJurisUnits)
        if name is not None:
            return self.refuse(
                f"The '{name}' management zone is not used by any candidate species."
                " Either select or remove this management zone."
            )
        area = self.flxSummary[4]
        for col, none, text in AREA_GAPS:
            for row in range(1, area.Rows):
                cell = Trim(area.TextMatrix(row, col))
                if cell == "" or sameText(cell, none):
                    return self.refuse(text)
        threats = self.flxSummary[6]
        for col, text in VULNERABILITY_GAPS:
            for row in range(1, threats.Rows):
                if Trim(threats.TextMatrix(row, col)) == "":
                    return self.refuse(text)
        for index, count, kind in ((8, self.TotalFunctions, "function"), (9, 5, "socio-economic")):
            grid = self.flxSummary[index]
            for row in range(1, grid.Rows):
                for col in range(1, count + 1):
                    if Trim(grid.TextMatrix(row, col)) == "":
                        return self.refuse(f"Enter {kind} values for each species before proceeding.")
        return True

    def firstUnused(self, long, names, count):
        """The name of the first unit with no filled level of use; a level of 0 is filled."""
        used = [False] * (count + 1)
        for unit in range(1, count + 1):
            for s in range(1, self.TotalSpecies + 1):
                if long.TextMatrix((s - 1) * count + unit, 2) != "":
                    used[unit] = True
        for unit in range(1, count + 1):
            if not used[unit]:
                return names.TextMatrix(unit, 1)
        return None

    # Use and vulnerability

    @reported("Brenica.CalculateHabitatUse")
    def CalculateHabitatUse(self):
        """Totals of the species by habitat table."""
        self.calculateUse(self.flxSummary[0], self.flxSummary[2], self.TotalHabitatTypes,
                          "No. habitats", "Total by habitat")

    @reported("Brenica.CalculateJurisUnitUse")
    def CalculateJurisUnitUse(self):
        """Totals of the species by zone table."""
        self.calculateUse(self.flxSummary[1], self.flxSummary[3], self.TotalJurisUnits,
                          "No. Manag. zones", "Total by MZ")

    def calculateUse(self, wide, long, count, counted, totalled):
        """What the two have in common. After the removal of a unit its table first follows the long one."""
        if self.TotalSpecies < 1 or count < 1:
            return
        if wide in self.shiftedTables:
            for s in range(1, self.TotalSpecies + 1):
                for c in range(1, count + 1):
                    wide.TextMatrix(s, c, long.TextMatrix((s - 1) * count + c, 2))
            self.shiftedTables.remove(wide)
        sums, users = [0] * (count + 1), [0] * (count + 1)
        if wide.Cols == count + 1:
            wide.Cols += 3
        if wide.Rows == self.TotalSpecies + 1:
            wide.Rows += 3
        lastRow, lastCol = wide.Rows - 1, wide.Cols - 1
        wide.TextMatrix(0, lastCol - 1, "Total by species")
        wide.TextMatrix(0, lastCol, counted)
        wide.TextMatrix(lastRow - 1, 0, totalled)
        wide.TextMatrix(lastRow, 0, "No. species")
        wide.Select(1, 1, lastRow, lastCol)
        wide.CellBackColor = WHITE
        for s in range(1, self.TotalSpecies + 1):
            total = used = 0
            for c in range(1, count + 1):
                text = wide.TextMatrix(s, c)
                value = 0 if Trim(text) == "" else toLong(CDbl(text))
                total = toLong(total + value)
                sums[c] = toLong(sums[c] + value)
                if value > 0:
                    used += 1
                    users[c] += 1
            wide.TextMatrix(s, lastCol - 1, CStr(total))
            wide.TextMatrix(s, lastCol, CStr(used))
        for c in range(1, count + 1):
            wide.TextMatrix(lastRow - 1, c, CStr(sums[c]))
            wide.TextMatrix(lastRow, c, CStr(users[c]))
        self.paintTotals(wide)

    @staticmethod
    def paintTotals(wide):
        """Colour the two totals columns and the two totals rows."""
        lastRow, lastCol = wide.Rows - 1, wide.Cols - 1
        wide.Select(1, lastCol - 1, lastRow, lastCol)
        wide.CellBackColor = TOTALS
        wide.Select(lastRow - 1, 1, lastRow, lastCol)
        wide.CellBackColor = TOTALS

    def CalculateVunerabilityScores(self):
        """Scores of species by threat; a statement that fails is skipped."""
        if self.TotalSpecies < 1 or self.TotalLandUses < 1:
            return
        wide, ratings, count = self.flxSummary[5], self.flxSummary[6], self.TotalLandUses
        totals, affected = [0.0] * (count + 1), [0] * (count + 1)
        if wide.Cols == count + 3:
            wide.Cols += 3
        if wide.Rows == self.TotalSpecies + 1:
            wide.Rows += 3
        lastRow, lastCol = wide.Rows - 1, wide.Cols - 1
        wide.TextMatrix(0, lastCol - 1, "Total by species")
        wide.TextMatrix(0, lastCol, "No. threats")
        wide.TextMatrix(lastRow - 1, 0, "Total by threat")
        wide.TextMatrix(lastRow, 0, "No. species affected")
        wide.Select(1, 1, lastRow, lastCol)
        wide.CellBackColor = WHITE
        urgency = recovery = severity = proportion = probability = 0.0
        for s in range(1, self.TotalSpecies + 1):
            speciesTotal, speciesCount = 0.0, 0
            for t in range(1, count + 1):
                r = (s - 1) * count + t
                urgency = self.rating(ratings, r, 2, urgency)
                recovery = self.rating(ratings, r, 5, recovery)
                severity = self.rating(ratings, r, 4, severity)
                proportion = self.rating(ratings, r, 6, proportion)
                probability = self.rating(ratings, r, 3, probability)
                score = (urgency + recovery) * severity * proportion * probability
                speciesTotal += score
                totals[t] += score
                wide.Select(s, t + 2)
                if score != 0:
                    affected[t] += 1
                    wide.CellBackColor = THREATENED
                    speciesCount += 1
                wide.TextMatrix(s, t + 2, CStr(Round(score, 2)))
            wide.TextMatrix(s, lastCol, CStr(speciesCount))
            wide.TextMatrix(s, lastCol - 1, CStr(Round(speciesTotal, 2)))
        for t in range(1, count + 1):
            wide.TextMatrix(lastRow - 1, t + 2, CStr(Round(totals[t], 2)))
            wide.TextMatrix(lastRow, t + 2, CStr(affected[t]))
        self.paintTotals(wide)

    @staticmethod
    def rating(grid, row, col, before):
        """A rating; blank is 0, one that does not convert keeps the value before."""
        try:
            text = grid.TextMatrix(row, col)
            return 0.0 if Trim(text) == "" else CDbl(text)
        except RunTimeError:
            return before

    # Criterion scores

    @reported("BrenicaUtilities.GetHeteroScore")
    def GetHeteroScore(self, s, habitats, zones):
        """Habitats count twice, zones once."""
        habitatSum = zoneSum = 0.0
        for h in range(1, self.TotalHabitatTypes + 1):
            habitatSum += CDbl(habitats.TextMatrix((s - 1) * self.TotalHabitatTypes + h, 2))
        for z in range(1, self.TotalJurisUnits + 1):
            zoneSum += CDbl(zones.TextMatrix((s - 1) * self.TotalJurisUnits + z, 2))
        return habitatSum + habitatSum + zoneSum

    @reported("BrenicaUtilities.GetAreaScore")
    def GetAreaScore(self, s, homeRange, area):
        """Dispersal, connectivity, home range and landscape occupied."""
        score = 0.0
        if sameText(area.TextMatrix(s, 1), "Y"):
            score += 1.0
        if sameText(area.TextMatrix(s, 2), "Y"):
            score += 1.0
        score += homeRange
        score += CDbl(area.TextMatrix(s, 4))
        return score

    @reported("BrenicaUtilities.GetVulnerabilityScore")
    def GetVulnerabilityScore(self, s, threats):
        """A higher conservation status lowers it, each point of threat raises it."""
        return (1.0 - CDbl(threats.TextMatrix(s, 1))) + CDbl(threats.TextMatrix(s, threats.Cols - 2))

    @reported("BrenicaUtilities.GetFunctionScore")
    def GetFunctionScore(self, s, grid):
        """The sum of the functions' grades."""
        score = 0.0
        for f in range(1, self.TotalFunctions + 1):
            score += CDbl(grid.TextMatrix(s, f))
        return score

    @reported("BrenicaUtilities.GetSocioEconScore")
    def GetSocioEconScore(self, s, grid):
        """The sum of the five socio-economic grades."""
        score = 0.0
        for c in range(1, 6):
            score += CDbl(grid.TextMatrix(s, c))
        return score

    @reported("BrenicaUtilities.ScaleHomeRanges")
    def ScaleHomeRanges(self):
        """Home ranges of any kind on one scale from 0 to 3."""
        scaled = []
        kind = self.HomeRangeType
        labels = self.DefaultBinLabels if kind == 1 else self.UserBinLabels[: self.TotalBins]
        maximum = (0.0, 6.0, float(self.TotalBins))[kind]
        position = 0
        for s in range(1, self.TotalSpecies + 1):
            text = self.flxSummary[4].TextMatrix(s, 3)
            if text == "":
                scaled.append(0.0)
            elif kind == 0:
                scaled.append(CDbl(text))
                maximum = max(maximum, scaled[-1])
            else:
                found = self.labelPosition(labels, text)
                if found >= 0:
                    position = found + 1
                scaled.append(float(position))
        return [element * 3.0 / maximum if maximum > 0 else 0.0 for element in scaled]

    @reported("BrenicaUtilities.UpdateScores")
    def UpdateScores(self, homeRanges):
        """Fill the score grids, rank the species."""
        normalised, original, summary = self.flxScores[0], self.flxScores[1], self.flxSummary
        maxima = [0.0] * 5
        for s in range(1, self.TotalSpecies + 1):
            scores = []
            for criterion in range(5):
                if criterion == 0:
                    score = self.GetHeteroScore(s, summary[2], summary[3])
                elif criterion == 1:
                    score = self.GetAreaScore(s, homeRanges[s - 1], summary[4])
                elif criterion == 2:
                    score = self.GetVulnerabilityScore(s, summary[5])
                elif criterion == 3:
                    score = self.GetFunctionScore(s, summary[8])
                else:
                    score = self.GetSocioEconScore(s, summary[9])
                maxima[criterion] = max(maxima[criterion], score)
                scores.append(score)
            for col in (1, 2, 3):
                original.TextMatrix(s, col, CStr(Round(scores[col - 1], 3)))
            original.TextMatrix(s, 4, CStr(scores[3]))
            original.TextMatrix(s, 5, CStr(scores[4]))
        for s in range(1, self.TotalSpecies + 1):
            for col in range(3, 8):
                maximum = maxima[col - 3]
                if not maximum > 0:
                    text = "0"
                else:
                    text = CStr(Round(CDbl(original.TextMatrix(s, col - 2)) / maximum, 3))
                normalised.TextMatrix(s, col, text)
        aggregates = []
        for s in range(1, self.TotalSpecies + 1):
            total = 0.0
            for col in range(3, 8):
                total += CDbl(normalised.TextMatrix(s, col))
            normalised.TextMatrix(s, 2, CStr(Round(total, 3)))
            aggregates.append(total)
        ranks = GetRanks(aggregates)
        self.SpeciesRanks = [0] * self.TotalSpecies
        for s in range(1, self.TotalSpecies + 1):
            rank = ranks[s - 1]
            normalised.TextMatrix(s, 1, CStr(rank))
            self.SpeciesRanks[rank - 1] = s
            if rank == 1:
                self.TopRankedSpecies = normalised.TextMatrix(s, 0)
        self.ScoresCalculated = True

    @reported("Brenica.CalculateScores")
    def CalculateScores(self):
        """Gate, scores, and the sorted views."""
        self.ScoresCalculated = False
        if not self.ValidateScoreValues():
            for grid in (*self.flxScores, *self.flxScoresSort):
                for row in range(grid.FixedRows, grid.Rows):
                    for col in range(grid.FixedCols, grid.Cols):
                        grid.TextMatrix(row, col, "")
            for view, grid in zip(self.flxScoresSort, self.flxScores):
                for row in range(view.FixedRows, view.Rows):
                    view.TextMatrix(row, 0, grid.TextMatrix(row, 0))
            return
        self.UpdateScores(self.ScaleHomeRanges())
        for i in (0, 1):
            grid, view = self.flxScores[i], self.flxScoresSort[i]
            view.Rows = grid.Rows
            for row in range(grid.FixedRows, grid.Rows):
                for col in range(grid.Cols):
                    view.TextMatrix(row, col, grid.TextMatrix(row, col))
                view.TextMatrix(row, (8, 6)[i], CStr(row))
            self.flxScoresSort[0].Select(0, 1)
            self.flxScoresSort[0].Sort(1)


@reported("BrenicaUtilities.GetRanks")
def GetRanks(values):
    """Ranks by an ascending exchange sort: equal values keep their order, the later ranks better."""
    last = len(values) - 1
    positions = list(range(1, len(values) + 1))
    for i in range(last):
        for j in range(last - i):
            if values[j] > values[j + 1]:
                values[j], values[j + 1] = values[j + 1], values[j]
                positions[j], positions[j + 1] = positions[j + 1], positions[j]
    ranks = [0] * len(values)
    for k, position in enumerate(positions):
        ranks[position - 1] = last + 1 - k
    return ranks
