# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The full example from opening to export without a mouse: access keys, page keys, Tab, arrows and Enter."""

from road import PAGES, check, same
from session import waitFor

# What full_landscape.options holds: access key and text of each level, and the answers to the input boxes.
LEVELS = (("alt+m", "Margin of Error:", "6"), ("alt+t", "Threat Representation:", "0.4"),
          ("alt+c", "Conservation Status Representation:", "0.8"))
ANSWERS = ("b", "d", "b", "2")
SUITE = ("Jaguar", "Maned Wolf", "Dorado", "Andean Condor", "Andean Bear", "Military Macaw", "Giant Otter",
         "Great Fruit-eating Bat", "Torrent Duck")


class KeyboardRoad:
    def __init__(self, window):
        self.window = window
        self.session = window.session

    def open(self, path):
        self.session.keys("ctrl+o")
        self.window.chooseFile(path)
        waitFor(lambda: self.window.title == f"Brenica - {path}", "the project's path in the title")

    def waitForPage(self, caption):
        waitFor(lambda: self.window.isSelected(caption), f"the page {caption!r}")

    def waitForFocus(self, control):
        control.waitFor(lambda: "focused" in control.accessible.states, "the focus")

    def nextPage(self, caption):
        self.session.keys("ctrl+Next")
        self.waitForPage(caption)

    def walkLists(self):
        """Access keys choose a list; Tab leads from the options into its grid."""
        self.nextPage(PAGES[1])
        for key, caption in (("alt+n", "Human activities"), ("alt+m", "Management zones"), ("alt+f", "Functions")):
            self.session.keys(key)
            self.waitForPage(caption)
        self.session.keys("alt+a")
        self.waitForFocus(self.window.text("Number of new functions"))

    def walkCriteria(self):
        """The next species by an arrow, the next criterion by Ctrl+Tab."""
        self.nextPage(PAGES[2])
        self.session.keys("alt+c")
        species = self.window.combo("Candidate species:")
        self.waitForFocus(species)
        self.session.keys("Down")
        species.waitFor(lambda: species.accessible.name == "Puma", "the second species")
        self.session.keys("ctrl+Tab")
        self.waitForPage("Area")

    def editTable(self):
        """The last summary table by Ctrl+Tab, its editing by an access key, a value by Tab, arrows and typing."""
        self.nextPage(PAGES[3])
        for caption in ("Heterogeneity by species", "Area", "Vulnerability", "Vulnerability by species",
                        "Vulnerability by human activity", "Functionality", "Socio-economics", "Data quality"):
            self.session.keys("ctrl+Tab")
            self.waitForPage(caption)
        self.session.keys("alt+a")
        editing = self.window.check("Allow summary table editing")
        editing.waitFor(lambda: editing.checked, "to be on")
        self.waitForFocus(editing)
        self.session.keys("shift+Tab")
        grid = self.window.grid("Data quality")
        self.waitForFocus(grid)
        self.session.keys("ctrl+Home", "Down", "Right", "6", "Return")
        grid.waitForCell(2, 2, "6")

    def gradeFirstFunction(self, grade):
        """The function of the first species in its summary table, beginning on the first page."""
        self.goToSummaries()
        for _ in range(6):
            self.session.keys("ctrl+Tab")
        self.waitForPage("Functionality")
        self.session.keys("alt+a")
        editing = self.window.check("Allow summary table editing")
        editing.waitFor(lambda: editing.checked, "to be on")
        self.session.keys("shift+Tab")
        grid = self.window.grid("Functionality")
        self.waitForFocus(grid)
        self.session.keys("ctrl+Home", grade, "Return")
        grid.waitForCell(1, 1, grade)

    def goToSummaries(self):
        for page in PAGES[1:4]:
            self.nextPage(page)

    def viewScores(self):
        self.nextPage(PAGES[4])
        self.nextPage(PAGES[5])
        self.session.keys("alt+o")
        same(self.window.grid("Original scores").at(1, 0), "Jaguar", "the first species")
        self.session.keys("alt+r")
        waitFor(lambda: self.window.all("chart"), "a chart")

    def select(self):
        self.nextPage(PAGES[6])
        for key, label, level in LEVELS:
            self.session.keys(key)
            box = self.window.text(label)
            self.waitForFocus(box)
            self.session.type(level)  # over the old level, which the focus selects
            box.waitFor(lambda: box.text == level, lambda: f"the text {level!r}, not {box.text!r}")
        export = self.window.button("Export the results")
        check(not export.enabled, "there is something to export before the selection")
        self.session.keys("alt+s")
        answers = list(ANSWERS)
        while (title := waitFor(lambda: self.window.openBox() or export.enabled, "a box or the results")) is not True:
            box = self.window.box(title)
            if self.window.all("text", within=box.accessible):
                box.answer(answers.pop(0))
            else:
                box.end("space")
        same(answers, [], "answers left")
        same(self.window.grid("Brenic species:").column(1), list(SUITE), "the suite")

    def export(self, path):
        self.session.keys("alt+e")
        self.window.chooseFile(path)
        waitFor(path.exists, f"the file {path}")
