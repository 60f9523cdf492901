# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The window as its user knows it: controls by their captions and labels, grids by their cells, boxes by their titles."""

from accessible import Gone
from session import Failure, waitFor

BOX_ROLES = ("dialog", "alert message")
TAB_ROLES = ("page tab", "radio button", "check box")
OPTION_ROLES = ("radio button", "check box")


class Control:
    """A control on view. What it shows is read from the program, what is done to it goes by mouse and keys."""

    def __init__(self, window, accessible, what):
        self.window = window
        self.session = window.session
        self.accessible = accessible
        self.what = what

    def waitFor(self, condition, what):
        return waitFor(condition, lambda: f"{self.what}: {what() if callable(what) else what}")

    @property
    def enabled(self):
        return "enabled" in self.accessible.states

    @property
    def checked(self):
        return "checked" in self.accessible.states

    @property
    def text(self):
        return self.accessible.text

    def click(self, times=1):
        self.waitFor(lambda: self.enabled, "to be enabled")
        self.session.click(self.accessible.box.middle, times)

    def tick(self):
        """Clicks a check box or an option and sees that it is on."""
        self.click()
        self.waitFor(lambda: self.checked, "to be on")

    def untick(self):
        self.click()
        self.waitFor(lambda: not self.checked, "to be off")

    def focus(self):
        self.click()
        self.waitFor(lambda: "focused" in self.accessible.states, "the focus")

    def write(self, text):
        """Types over what the box holds."""
        self.focus()
        self.session.keys("ctrl+a")
        self.session.type(text)
        self.waitFor(lambda: self.text == text, lambda: f"the text {text!r}, not {self.text!r}")


class ComboBox(Control):
    def _items(self):
        """The items of the list, while it is open, by their names."""
        return {item.name: item for item, role, _ in self.accessible.walk() if role == "list item"}

    def _open(self, item):
        self.click()
        return self.waitFor(lambda: self._items().get(item), f"the item {item!r} in its list")

    def _waitFor(self, item):
        self.waitFor(lambda: not self._items(), "its list to close")
        self.waitFor(lambda: self.accessible.name == item, lambda: f"{item!r}, not {self.accessible.name!r}")

    def choose(self, item):
        """Opens the list and clicks an item."""
        box = self._open(item).box
        self.session.click((box.x + min(box.width, 20) // 2, box.middle[1]))
        self._waitFor(item)

    def chooseByKeys(self, item, steps):
        """Opens the list and goes down to an item from the first one."""
        self._open(item)
        self.session.keys("Home", *["Down"] * steps, "Return")
        self._waitFor(item)


class Grid(Control):
    """Rows and columns count from 0 and include the headings."""

    def cell(self, row, column):
        return self.accessible.cell(row, column)

    def at(self, row, column):
        return self.cell(row, column).name

    @property
    def rows(self):
        return self.accessible.size[0]

    @property
    def columns(self):
        return self.accessible.size[1]

    def row(self, row):
        return [self.at(row, column) for column in range(self.columns)]

    def column(self, column):
        return [self.at(row, column) for row in range(1, self.rows)]

    def clickCell(self, row, column, times=1):
        self.session.click(self.cell(row, column).box.middle, times)

    def waitForCell(self, row, column, text):
        self.waitFor(lambda: self.at(row, column) == text,
                     lambda: f"{text!r} in row {row}, column {column}, not {self.at(row, column)!r}")

    def enter(self, row, column, text):
        """Clicks a cell, types and ends with Enter."""
        self.clickCell(row, column)
        self.session.type(text)
        self.session.keys("Return")
        self.waitForCell(row, column, text)

    def chooseInCell(self, row, column, items, item):
        """Opens the list of a cell by a double click and clicks an item, which stands below the cell."""
        before = len(self.session.windows())
        box = self.cell(row, column).box
        self.session.click(box.middle, times=2)
        self.waitFor(lambda: len(self.session.windows()) > before, "the list of a cell")
        x, y = box.middle
        self.session.click((x, y + box.height * (items.index(item) + 1)))
        self.waitForCell(row, column, item)
        self.waitFor(lambda: len(self.session.windows()) == before, "the list of a cell to close")

    def chooseInCellByKeys(self, row, column, items, item):
        """Opens the list of a cell by F2 and goes down to an item."""
        before = len(self.session.windows())
        self.clickCell(row, column)
        self.session.keys("F2")
        self.waitFor(lambda: len(self.session.windows()) > before, "the list of a cell")
        self.session.keys("Home", *["Down"] * items.index(item), "Return")
        self.waitForCell(row, column, item)

    def enterDown(self, column, texts, row=1):
        """Types a column downward: Enter writes a cell and goes on to the next one."""
        self.clickCell(row, column)
        for text in texts:
            if text:
                self.session.type(text)
                self.session.keys("Return")
            else:
                self.session.keys("Down")
        for place, text in enumerate(texts, row):
            self.waitForCell(place, column, text)

    def enterRow(self, row, texts, column=1):
        """Types a row from left to right: Tab writes a cell and goes on to the next one."""
        self.clickCell(row, column)
        for text in texts:
            self.session.type(text)
            self.session.keys("Tab")
        for place, text in enumerate(texts, column):
            self.waitForCell(row, place, text)

    def paste(self, row, column, lines):
        """Puts a block from the clipboard in, from this cell on."""
        self.session.clipboard = "\n".join("\t".join(line) for line in lines)
        self.clickCell(row, column)
        self.session.keys("ctrl+v")
        for down, line in enumerate(lines):
            for right, text in enumerate(line):
                self.waitForCell(row + down, column + right, text)

    def copy(self, start, end):
        """Drags over cells and copies them; returns the clipboard's lines."""
        self.session.drag(self.cell(*start).box.middle, self.cell(*end).box.middle)
        self.session.clipboard = "nothing yet"
        self.session.keys("ctrl+c")
        text = self.waitFor(lambda: self.session.clipboard.replace("nothing yet", ""), "cells on the clipboard")
        return [line.split("\t") for line in text.splitlines()]


class Box(Control):
    """A box or dialogue with a title."""

    @property
    def shown(self):
        """The text of the box."""
        return "\n".join(item.name for item in self.window.all("label", within=self.accessible) if item.name)

    def button(self, caption):
        return self.window.find("push button", caption, within=self.accessible)

    def end(self, *keys):
        """Ends the box by keys, and waits until it is gone."""
        self.session.keys(*keys)
        self.waitForEnd()

    def press(self, caption):
        self.button(caption).click()
        self.waitForEnd()

    def waitForEnd(self):
        self.waitFor(lambda: not self.isOpen, "to close")

    @property
    def isOpen(self):
        try:
            return "showing" in self.accessible.states
        except Gone:
            return False

    def answer(self, text):
        """Types over the proposed answer of an input box."""
        field = self.window.find("text", None, within=self.accessible)
        self.session.keys("ctrl+a")
        self.session.type(text)
        field.waitFor(lambda: field.text == text, f"the text {text!r}")
        self.end("Return")


class StripLine(Control):
    """A line of the strip at the window's edge."""

    def button(self, caption):
        return self.window.find("push button", caption, within=self.accessible)

    def press(self, caption):
        """By the mouse, which must leave the focus where it is."""
        self.button(caption).click()

    def pressByKeys(self, caption):
        """F6 leads into the strip, Tab from button to button."""
        self.session.keys("F6")
        button = self.button(caption)
        for _ in range(20):
            if "focused" in button.accessible.states:
                return self.session.keys("Return")
            self.session.keys("Tab")
        raise Failure(f"{self.what}: the keys do not reach {caption!r}")


KINDS = {"combo box": ComboBox, "table": Grid}


class Window:
    def __init__(self, session):
        self.session = session

    # Finding.

    def _roots(self, anywhere):
        application = self.session.application()
        if application is None:
            raise Gone("the program is not in the tree")
        tops = [top for top in application.children if "showing" in top.states]
        if anywhere:
            return tops
        boxes = [top for top in tops if top.role in BOX_ROLES]
        return boxes or tops

    def all(self, roles, name=None, within=None, anywhere=False):
        """The objects on view of a role, in the order of the window; of an open box alone, when there is one."""
        roles = (roles,) if isinstance(roles, str) else roles
        found = []
        for root in [within] if within else self._roots(anywhere):
            for item, role, _ in root.walk():
                if role in roles and (name is None or item.name.strip() == name):
                    found.append(item)
        return found

    def find(self, roles, name=None, within=None, anywhere=False):
        what = f"{roles} {name!r}" if isinstance(roles, str) else f"{roles[0]} {name!r}"
        found = waitFor(lambda: self.all(roles, name, within, anywhere), f"the {what}")
        return KINDS.get(found[0].role, Control)(self, found[0], what)

    def button(self, caption):
        return self.find("push button", caption)

    def option(self, caption):
        return self.find(OPTION_ROLES, caption)

    def check(self, caption):
        return self.find("check box", caption)

    def text(self, label):
        return self.find("text", label)

    def combo(self, label):
        """A combo box goes by its chosen item, so that it is found behind its label."""
        def look():
            seen = False
            for root in self._roots(anywhere=False):
                for item, role, _ in root.walk():
                    seen = seen or role == "label" and item.name == label
                    if seen and role == "combo box":
                        return item
            return None
        what = f"combo box {label!r}"
        return ComboBox(self, waitFor(look, f"the {what}"), what)

    def grid(self, name):
        return self.find("table", name)

    @property
    def title(self):
        """Of the main window, the last one that has come and is no box."""
        tops = [top for top in self._roots(anywhere=True) if top.role not in BOX_ROLES]
        return tops[-1].name if tops else None

    def waitUntilAtRest(self):
        """The window manager moves a new window about before it has the keys and stands still."""
        looks = []

        def look():
            tops = self._roots(anywhere=True)
            looks.append(tops[0].box if len(tops) == 1 and "active" in tops[0].states else None)
            return looks[-1] and looks[-3:] == [looks[-1]] * 3
        waitFor(look, "a window that is active and at rest")
        self.session.scale = round(self.session.size[0] / looks[-1].width)

    def strip(self):
        """The texts of the lines of the strip."""
        return [line.name for line in self.all("notification")]

    def stripLine(self, beginning):
        def look():
            return [line for line in self.all("notification") if line.name.startswith(beginning)]
        what = f"line {beginning!r} of the strip"
        return StripLine(self, waitFor(look, lambda: f"the {what}, not {self.strip()}")[0], what)

    # Doing.

    def tab(self, caption):
        self.find(TAB_ROLES, caption).click()

    def page(self, caption):
        """Turns to a page and sees that it is there."""
        self.tab(caption)
        waitFor(lambda: self.isSelected(caption), f"the page {caption!r}")

    def isSelected(self, caption):
        return any({"selected", "checked"} & tab.states for tab in self.all(TAB_ROLES, caption))

    def menu(self, *captions):
        for caption in captions:
            self.find("menu item", caption, anywhere=True).click()

    def box(self, title):
        """The box with this title; another one that is open is a failure."""
        def look():
            for top in self._roots(anywhere=True):
                if top.role in BOX_ROLES:
                    if top.name != title:
                        raise Failure(f"the box {top.name!r} has come instead of {title!r}")
                    if "active" in top.states:
                        return top
            return None
        return Box(self, waitFor(look, f"the box {title!r}"), f"box {title!r}")

    def openBox(self):
        """The title of the box that is open, if any."""
        titles = [top.name for top in self._roots(anywhere=True) if top.role in BOX_ROLES]
        return titles[0] if titles else None

    def chooseFile(self, path):
        """Types a path into the file dialogue, which is the one with a list of files."""
        def look():
            boxes = [top for top in self._roots(anywhere=True) if top.role in BOX_ROLES]
            return boxes[0] if boxes and self.all("tree", within=boxes[0]) else None
        Box(self, waitFor(look, "the file dialogue"), "file dialogue").answer(str(path))
