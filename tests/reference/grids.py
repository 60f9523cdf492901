# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The platform's controls, reduced to what cells and choices need. Events run inside the setter."""

from conversion import CDbl, RunTimeError, fold


def RGB(red, green, blue):
    """A colour as one number."""
    return red + 256 * green + 65536 * blue


class Grid:
    """A table of text cells with back colours; one fixed row and one fixed column."""

    FixedRows = 1
    FixedCols = 1

    def __init__(self, headings, changed=None):
        self._cells = [list(headings)]
        self._colours = [{}]
        self._cols = len(headings)
        self._selected = (0, 0, 0, 0)
        self.CellChanged = changed

    @property
    def Rows(self):
        return len(self._cells)

    @Rows.setter
    def Rows(self, count):
        if count < 0:
            raise RunTimeError(380)
        del self._cells[count:], self._colours[count:]
        while len(self._cells) < count:
            self._cells.append([""] * self._cols)
            self._colours.append({})

    @property
    def Cols(self):
        return self._cols

    @Cols.setter
    def Cols(self, count):
        self._cols = count
        for cells in self._cells:
            del cells[count:]
            cells.extend([""] * (count - len(cells)))
        for colours in self._colours:
            for col in [c for c in colours if c >= count]:
                del colours[col]

    def _check(self, row, col):
        if not (0 <= row < len(self._cells) and 0 <= col < self._cols):
            raise RunTimeError(9)

    def TextMatrix(self, row, col, text=None):
        """Read a cell, or write it and fire CellChanged, also when the text is equal."""
        self._check(row, col)
        if text is None:
            return self._cells[row][col]
        self._cells[row][col] = text
        if self.CellChanged:
            self.CellChanged(row, col)
        return text

    def AddItem(self, row=None):
        """A blank row at the end, or before the given row."""
        if row is None:
            row = self.Rows
        if not 0 <= row <= self.Rows:
            raise RunTimeError(9)
        self._cells.insert(row, [""] * self._cols)
        self._colours.insert(row, {})

    def RemoveItem(self, row):
        """Delete a row and close the gap."""
        self._check(row, 0)
        del self._cells[row], self._colours[row]

    def Select(self, row1, col1, row2=None, col2=None):
        """Select a range; the last two may be left out."""
        row2, col2 = (row1 if row2 is None else row2), (col1 if col2 is None else col2)
        self._check(row1, col1)
        self._check(row2, col2)
        self._selected = (row1, col1, row2, col2)

    @property
    def CellBackColor(self):
        row, col = self._selected[:2]
        return self._colours[row].get(col, 0)

    @CellBackColor.setter
    def CellBackColor(self, colour):
        row1, col1, row2, col2 = self._selected
        for row in range(row1, row2 + 1):
            for col in range(col1, col2 + 1):
                self._colours[row][col] = colour

    def Sort(self, order):
        """1 generic ascending, 2 generic descending; stable, on the first selected column.

        With one cell selected all rows below the fixed ones, else the rows of the range.
        """
        row1, col, row2, col2 = self._selected
        if (row1, col) == (row2, col2):
            row1, row2 = self.FixedRows, self.Rows - 1
        rows = list(zip(self._cells, self._colours))[row1 : row2 + 1]
        rows.sort(key=lambda row: sortKey(row[0][col]), reverse=order == 2)
        self._cells[row1 : row2 + 1] = [cells for cells, _ in rows]
        self._colours[row1 : row2 + 1] = [colours for _, colours in rows]

    def text(self):
        """Every row and every column, tab-separated, as a grid text file."""
        return "".join("\t".join(cells) + "\r\n" for cells in self._cells)


def sortKey(text):
    """An empty cell is below every number, every number below every text."""
    if text == "":
        return (0, 0.0, "")
    try:
        return (1, CDbl(text), "")
    except RunTimeError:
        return (2, 0.0, fold(text))


class TextBox:
    """A box whose Change fires when the text differs from before."""

    def __init__(self, text, change=None):
        self._text = text
        self.Change = change

    @property
    def Text(self):
        return self._text

    @Text.setter
    def Text(self, text):
        if text == self._text:
            return
        self._text = text
        if self.Change:
            self.Change()


class ComboBox:
    """A list whose Click fires when ListIndex changes to another item."""

    def __init__(self, items=(), click=None):
        self.items = list(items)
        self._index = -1
        self.Click = click

    @property
    def ListCount(self):
        return len(self.items)

    @property
    def ListIndex(self):
        return self._index

    @ListIndex.setter
    def ListIndex(self, index):
        if not -1 <= index < len(self.items):
            raise RunTimeError(380)
        changed = index != self._index
        self._index = index
        if changed and index >= 0 and self.Click:
            self.Click()

    @property
    def Text(self):
        return self.items[self._index] if self._index >= 0 else ""

    def Clear(self):
        self.items.clear()
        self._index = -1

    def AddItem(self, text):
        self.items.append(text)

    def RemoveItem(self, index):
        if not 0 <= index < len(self.items):
            raise RunTimeError(5)
        del self.items[index]
        if index == self._index:
            self._index = -1
        elif index < self._index:
            self._index -= 1


class OptionGroup:
    """Option buttons of one array; Click fires when the button was off before."""

    def __init__(self, chosen=0, click=None):
        self.chosen = chosen
        self.Click = click

    def setOn(self, index):
        if index == self.chosen:
            return
        self.chosen = index
        if self.Click:
            self.Click(index)


class TabStrip:
    """Tabs from 1; Click fires on every setting of SelectedItem."""

    def __init__(self, click=None):
        self._selected = 1
        self.Click = click

    @property
    def SelectedItem(self):
        return self._selected

    @SelectedItem.setter
    def SelectedItem(self, index):
        self._selected = index
        if self.Click:
            self.Click()


class Boxes:
    """Message boxes, questions and input boxes, answered from a list and kept in order."""

    def __init__(self, answers=()):
        self.answers = list(answers)
        self.shown = []

    def message(self, title, text):
        self.shown.append({"kind": "message", "title": title, "text": text})

    def question(self, title, text):
        """True for Yes; Yes when the answers are used up."""
        answer = self.answers.pop(0) if self.answers else "yes"
        yes = answer.strip().lower() != "no"
        answer = "yes" if yes else "no"
        self.shown.append({"kind": "question", "title": title, "text": text, "answer": answer})
        return yes

    def input(self, title, text, default):
        """The typed text; the default when the answers are used up."""
        answer = self.answers.pop(0) if self.answers else default
        self.shown.append({"kind": "input", "title": title, "text": text, "answer": answer})
        return answer
