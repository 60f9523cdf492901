# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The grid helpers and the two small utilities for lists of texts."""

from conversion import CDbl, CLng, CStr, ReportedError, RunTimeError, Trim, reported


@reported("FlexGridUtilities.UpdateFlexGrid")
def UpdateFlexGrid(grid, added, count, numberFirstColumn):
    """Grow or shrink a grid by rows; gives the new count."""
    rows = grid.Rows + added
    if rows < 0:
        return count
    grid.Rows = rows
    if numberFirstColumn:
        for row in range(1, rows):
            grid.TextMatrix(row, 0, CStr(row))
    return rows - 1


@reported("FlexGridUtilities.RemoveGridEntry")
def RemoveGridEntry(grid, row, count):
    """Delete a row and number the rest again; gives the new count."""
    if row > count or row < 1:
        return count
    count -= 1
    grid.RemoveItem(row)
    for i in range(1, count + 1):
        grid.TextMatrix(i, 0, CStr(i))
    return count


@reported("FlexGridUtilities.RemoveHRData")
def RemoveHRData(grid):
    """Wipe the home ranges."""
    for row in range(1, grid.Rows):
        grid.TextMatrix(row, 3, "")


@reported("FlexGridUtilities.CheckMissingVals")
def CheckMissingVals(boxes, grid, col, prompt):
    """0 no blank, 1 blanks and Yes, 2 blanks and No."""
    for row in range(1, grid.Rows):
        if Trim(grid.TextMatrix(row, col)) == "":
            return 1 if boxes.question("Invalid value", prompt) else 2
    return 0


@reported("FlexGridUtilities.GetAreaTotal")
def GetAreaTotal(grid, count, areas):
    """The sum of the areas, or the count when one is blank; fills areas up to the blank."""
    total = 0.0
    for row in range(1, count + 1):
        text = grid.TextMatrix(row, 2)
        if text == "":
            return float(count)
        area = CDbl(text)
        total += area
        areas[row - 1] = area
    return total


@reported("FlexGridUtilities.GetHeteroVals")
def GetHeteroVals(species, count, source, target):
    """One species' levels of use into the entry grid."""
    if species < 1:
        return
    for i in range(1, count + 1):
        target.TextMatrix(i, 1, source.TextMatrix((species - 1) * count + i, 2))


@reported("FlexGridUtilities.GetVulnVals")
def GetVulnVals(species, count, source, target):
    """One species' ratings into the entry grid."""
    if species < 1:
        return
    for i in range(1, count + 1):
        for k in (1, 2, 3):
            target.TextMatrix(i, k, source.TextMatrix((species - 1) * count + i, k + 3))


@reported("FlexGridUtilities.GetFuncSEVals")
def GetFuncSEVals(species, count, source, target):
    """One species' row of grades into the entry grid."""
    if species < 1:
        return
    for i in range(1, count + 1):
        target.TextMatrix(i, 1, source.TextMatrix(species, i))


@reported("FlexGridUtilities.GetColContents")
def GetColContents(grid, col):
    """The body cells of a column; None when there is no body row."""
    if grid.Rows - 1 < 1:
        return None
    return [grid.TextMatrix(row, col) for row in range(1, grid.Rows)]


@reported("GeneralUtilities.ConstructIntervals")
def ConstructIntervals(breakpoints):
    """Bin labels from breakpoints, joined as typed."""
    last = len(breakpoints) - 1
    labels = [f"{breakpoints[i]} - {breakpoints[i + 1]} km2" for i in range(last)]
    labels.append(breakpoints[last] + "+ km2")
    return labels


@reported("GeneralUtilities.UpdateComboBox")
def UpdateComboBox(box, texts):
    """Append each text."""
    for text in texts:
        box.AddItem(text)


@reported("GeneralUtilities.SelectAllText")
def GetComboIndex(box):
    """The list index, or -1 without items."""
    return box.ListIndex if box.ListCount > 0 else -1


def CheckTotal(boxes, box, name, minimum, maximum, default):
    """Hold a box within its bounds; only an invalid text is told to the user."""
    try:
        if box.Text == "":
            box.Text = minimum
            return
        value = CDbl(box.Text)
        if value < CLng(minimum):
            box.Text = minimum
        elif value > CLng(maximum):
            box.Text = maximum
    except (RunTimeError, ReportedError):
        box.Text = default
        boxes.message("Invalid value", f"Number of {name} is invalid. Resetting value to {default}.")
