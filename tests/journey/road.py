# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The legs of the journey, each on its own page: what a planner does from an empty project to the exported results."""

import landscape
from landscape import ACTIVITIES, BREAKPOINTS, FUNCTIONS, HABITATS, NEW_FUNCTIONS, SPECIES, ZONES
from session import Failure, waitFor

PAGES = ("Candidate Species", "Parameter Specifications", "Selection Criteria", "Summary Tables", "Summary Graphs",
         "Aggregate Scores", "Complementarity")
LISTS = ("Habitat types", "Management zones", "Human activities", "Home range definition", "Functions")
CRITERIA = ("Heterogeneity", "Area", "Vulnerability", "Functionality", "Socio-economics")
SUMMARIES = ("Heterogeneity", "Heterogeneity by species", "Area", "Vulnerability", "Vulnerability by species",
             "Vulnerability by human activity", "Functionality", "Socio-economics", "Data quality")
GRAPHS = ("Habitat use", "Habitat use by species", "Management zone use", "Management zone use by species",
          "Species by threat", "Species by vulnerability", "Threats by species", "Vulnerability by species")
VIEWS = ("Overall", "Habitats covered", "Management zones covered", "Threats covered")
QUALITIES = ("1 - Excellent data from site", "2 - Excellent data from similar site",
             "3 - Good data from site/similar site", "4 - Bad or incomplete data from site/similar site",
             "5 - Data from similar species/dissimilar site", "6 - No data just informed guesses")
YES_NO = ("N/A", "Y", "N")

# A grade that is entered wrong and set right in a summary table: species, function, the wrong grade.
SLIP = (3, 0, "3")


def check(condition, what):
    if not condition:
        raise Failure(what)


def same(found, expected, what):
    check(found == expected, f"{what}: {found!r} instead of {expected!r}")


class Road:
    def __init__(self, window):
        self.window = window
        self.session = window.session

    def picture(self, name):
        self.session.picture(name)

    def addRows(self, count, name, box, button):
        """Grows a list, and returns its grid."""
        grid = self.window.grid(name)
        before = grid.rows
        self.window.text(f"Number of new {box}").write(str(count))
        self.window.button(button).click()
        grid.waitFor(lambda: grid.rows == before + count, f"{count} more rows")
        return grid

    # Page 1.

    def addSpecies(self):
        """One row too many, which the gate offers to delete, and the first two in the wrong order."""
        grid = self.addRows(len(SPECIES) + 1, "Candidate species", "species", "Update species list")
        first, second, *others = SPECIES
        for row, species in enumerate((second, first, *others), 1):
            grid.enterRow(row, (species.name, species.scientific))
        grid.clickCell(1, 1)
        self.window.button("Move down").click()
        grid.waitForCell(1, 1, first.name)
        grid.waitForCell(2, 2, second.scientific)
        self.picture("candidate_species")
        self.window.tab(PAGES[1])
        question = self.window.box("Invalid value")
        check("blank species common names" in question.shown, question.shown)
        self.picture("question_blank_name")
        question.press("Yes")
        waitFor(lambda: self.window.isSelected(PAGES[1]), "the second page")

    # Page 2.

    def fillLists(self):
        for caption, fill in zip(LISTS, (self.fillHabitats, self.fillZones, self.fillActivities, self.fillBins,
                                         self.fillFunctions)):
            self.window.option(caption).tick()
            fill()
            self.picture("list_" + caption.lower().replace(" ", "_"))

    def fillHabitats(self):
        grid = self.addRows(len(HABITATS), "Habitat types", "habitats", "Update habitat list")
        grid.enterDown(1, [name for name, _, _ in HABITATS])
        grid.enterDown(2, [area for _, area, _ in HABITATS])
        same(grid.column(3), ["2"] * len(HABITATS), "levels of use")
        for row, (_, _, level) in enumerate(HABITATS, 1):
            if level != "2":
                grid.chooseInCell(row, 3, "0123", level)

    def fillZones(self):
        """A block of names and areas, as it comes from a spreadsheet."""
        grid = self.addRows(len(ZONES), "Management zones", "management zones", "Update mng. zone list")
        grid.paste(1, 1, [(name, area) if area else (name,) for name, area, _ in ZONES])
        same(grid.copy((2, 2), (1, 1)), [list(zone[:2]) for zone in ZONES[:2]], "copied cells")

    def fillActivities(self):
        grid = self.addRows(len(ACTIVITIES), "Human activities", "human activities", "Update human act. list")
        grid.enterDown(1, [name for name, _, _ in ACTIVITIES])
        grid.enterDown(2, [urgency for _, urgency, _ in ACTIVITIES])
        grid.enterDown(3, [probability for _, _, probability in ACTIVITIES[1:]], row=2)
        grid.clickCell(1, 3)
        self.session.type("0.4")
        self.session.keys("Return")
        box = self.window.box("Invalid value")
        same(box.shown, "With a value of 3 for Urgency the Probability of Occurrence must be 1.", "message")
        self.picture("message_urgency")
        box.end("Return")
        grid.waitForCell(1, 3, "1")

    def fillBins(self):
        self.window.option("User-defined bins (in square kilometers)").tick()
        grid = self.addRows(len(BREAKPOINTS), "Home range breakpoints", "breakpoints", "Update breakpoints")
        grid.enterDown(1, BREAKPOINTS)

    def fillFunctions(self):
        grid = self.addRows(1, "Functions", "functions", "Update function list")
        for row, name in NEW_FUNCTIONS.items():
            grid.enter(row, 1, name)
        same(grid.column(1), list(FUNCTIONS), "functions")

    # Page 3.

    def gradeSpecies(self, places=range(len(SPECIES))):
        self.window.page(PAGES[2])
        for place in places:
            self.gradeOne(place)

    def gradeOne(self, place, tabs=range(len(CRITERIA))):
        """The criteria on these tabs, counted from 0, for one species."""
        species = SPECIES[place]
        grades = self.gradeUse, self.gradeArea, self.gradeThreats, self.gradeFunctions, self.gradeValues
        if place:
            self.window.combo("Candidate species:").choose(species.name)
        for tab in tabs:
            self.window.page(CRITERIA[tab])
            grades[tab](species, place)
            self.chooseQuality(species, place, tab)
            if place == 0:
                self.picture("criteria_" + CRITERIA[tab].lower())

    def chooseQuality(self, species, place, tab):
        level = int(species.quality[tab])
        box = self.window.combo("Data quality:")
        if (place + tab) % 2:
            box.choose(QUALITIES[level - 1])
        else:
            box.chooseByKeys(QUALITIES[level - 1], level - 1)

    def gradeUse(self, species, place):
        habitats = self.window.grid("Level of use of habitats")
        zones = self.window.grid("Level of use of management zones")
        if place == 0:
            for row, level in enumerate(species.habitats, 1):
                habitats.chooseInCell(row, 1, "0123", level)
        else:
            habitats.enterDown(1, species.habitats)
        if place == 1:
            self.pasteInVain(zones)
            zones.paste(1, 1, [(level,) for level in species.zones])
        else:
            zones.enterDown(1, species.zones)

    def pasteInVain(self, grid):
        """A block with a value that is refused, which a tip tells at its cell; taken back, done again, taken back."""
        before = grid.column(1)
        windows = len(self.session.windows())
        self.session.clipboard = "3\n7\n1\n"
        grid.clickCell(1, 1)
        self.session.keys("ctrl+v")
        grid.waitForCell(1, 1, "3")
        waitFor(lambda: len(self.session.windows()) > windows, "the tip of a value that is refused")
        self.picture("paste_refused")
        same(grid.column(1), ["3", *before[1:]], "what was pasted")
        for key, text in (("ctrl+z", before[0]), ("ctrl+shift+z", "3"), ("ctrl+z", before[0])):
            self.session.keys(key)
            grid.waitForCell(1, 1, text)
        same(grid.column(1), before, "what was taken back")

    def gradeArea(self, species, _):
        self.window.combo("Dispersal > 10 km:").choose(species.dispersal)
        self.window.combo("Connectivity:").chooseByKeys(species.connectivity, YES_NO.index(species.connectivity))
        self.window.combo("Select the home range user-defined bin:").choose(species.home_range)
        self.window.text("Proportion of landscape occupied:").write(species.occupied)

    def gradeThreats(self, species, _):
        """A severity of 0 fills the rest of its row as soon as the cell is left."""
        grid = self.window.grid("Vulnerability to human activities")
        grid.enterDown(1, [threat[0] for threat in species.threats])
        for column in (2, 3):
            for row, threat in enumerate(species.threats, 1):
                if threat[0] == "0":
                    grid.waitForCell(row, column, "0")
                else:
                    grid.enter(row, column, threat[column - 1])
        for row, threat in enumerate(species.threats, 1):
            for column in (2, 3):
                if threat[0] == "0" and threat[column - 1] != "0":
                    grid.enter(row, column, threat[column - 1])
        self.window.text("Current Conservation Status:").write(species.status)

    def gradeFunctions(self, species, place):
        grades = list(species.functions)
        if place == SLIP[0]:
            grades[SLIP[1]] = SLIP[2]
        self.window.grid("Ecological functions").enterDown(1, grades)

    def gradeValues(self, species, _):
        self.window.grid("Socio-economic value").enterDown(1, species.values)

    def seeUse(self, place):
        """What was graded of a species' use is there."""
        self.window.combo("Candidate species:").choose(SPECIES[place].name)
        self.window.page(CRITERIA[0])
        for name, grades in (("habitats", SPECIES[place].habitats), ("management zones", SPECIES[place].zones)):
            same(self.window.grid(f"Level of use of {name}").column(1), list(grades), f"use of {name}")

    # Page 4.

    def viewSummaries(self):
        self.window.page(PAGES[3])
        for caption in SUMMARIES:
            self.window.page(caption)
            self.picture("summary_" + caption.lower().replace(" ", "_"))

    def mendSlip(self):
        """Sets the wrong grade right in its summary table, and sees that it has arrived where it was entered."""
        place, function, wrong = SLIP
        right = SPECIES[place].functions[function]
        self.window.page("Functionality")
        grid = self.window.grid("Functionality")
        same(grid.at(place + 1, function + 1), wrong, "the grade entered")
        self.window.check("Allow summary table editing").tick()
        grid.chooseInCellByKeys(place + 1, function + 1, "0123", right)
        self.picture("summary_editing")
        self.window.check("Allow summary table editing").untick()
        self.window.page(PAGES[2])
        self.window.combo("Candidate species:").choose(SPECIES[place].name)
        self.window.page("Functionality")
        self.window.grid("Ecological functions").waitForCell(function + 1, 1, right)

    # Page 5.

    def viewGraphs(self):
        self.window.page(PAGES[4])
        for caption in GRAPHS:
            self.window.page(caption)
            self.picture("graph_" + caption.lower().replace(" ", "_"))

    def keepGraph(self, path):
        """Copies a chart, and saves it as a bitmap."""
        self.session.clipboard = "no picture"
        self.window.menu("Graph", "Copy")
        waitFor(lambda: any(kind.startswith("image/") for kind in self.session.clipboardTypes()), "a picture to paste")
        self.window.menu("Graph", "Save")
        self.window.chooseFile(path)
        waitFor(path.exists, f"the file {path}")
        check(path.read_bytes()[:2] == b"BM", "the chart is no bitmap")

    # Page 6.

    def viewScores(self, tables):
        """The tables stand as the model says; a heading sorts; the charts come and go."""
        self.window.page(PAGES[5])
        grid = self.window.grid("Normalized scores")
        same([grid.row(row) for row in range(grid.rows)], byRank(tables["NormalizedScoresData.txt"]), "scores")
        self.picture("scores_normalized")
        grid.clickCell(0, 3)
        grid.waitFor(lambda: descends(grid.column(3)), "to be sorted by the heading that was clicked")
        self.picture("scores_sorted")
        self.window.option("Original values").tick()
        original = self.window.grid("Original scores")
        same([original.row(row) for row in range(original.rows)], lines(tables["OriginalScoresData.txt"]), "scores")
        self.picture("scores_original")
        self.window.check("Display results graphically").tick()
        self.picture("scores_original_chart")
        self.window.option("Normalized values").tick()
        self.picture("scores_normalized_chart")
        self.window.check("Show aggregate score").untick()
        self.picture("scores_chart_without_aggregate")
        self.window.check("Show aggregate score").tick()
        self.window.check("Display results graphically").untick()

    # Page 7.

    def select(self, pictures=True):
        """One selection with levels of its own; the boxes come in their order and are answered."""
        self.window.page(PAGES[6])
        self.window.text("Margin of Error:").write(landscape.ERROR_MARGIN)
        self.window.text("Threat Representation:").write(landscape.THREAT_REPRESENTATION)
        self.window.text("Conservation Status Representation:").write(landscape.CONSERVATION_STATUS)
        self.window.button("Select Brenic Species").click()
        for number, (title, answer) in enumerate(landscape.BOXES, 1):
            box = self.window.box(title)
            if pictures:
                self.picture(f"box_{number}_" + title.lower().replace(" ", "_")[:20])
            if answer is None:
                box.end("Return")
            else:
                box.answer(answer)
        suite = self.window.grid("Brenic species:")
        suite.waitFor(lambda: suite.column(1) == list(landscape.SUITE), "the suite")
        if not pictures:
            return
        for view in VIEWS:
            self.window.option(view).tick()
            self.picture("results_" + view.lower().replace(" ", "_"))
        self.window.option(VIEWS[0]).tick()

    def export(self, path):
        self.window.button("Export the results").click()
        self.picture("dialogue_export")
        self.window.chooseFile(path)
        waitFor(path.exists, f"the file {path}")

    # What ends the program.

    def removeLastBreakpoint(self):
        """Fails in an error box, after which the program ends."""
        self.window.page(PAGES[1])
        self.window.option("Home range definition").tick()
        self.window.text("Number of the breakpoint to remove").write(str(len(BREAKPOINTS)))
        self.window.button("Remove breakpoint no:").click()
        box = self.window.box("Brenica")
        check("Unexpected error in Brenica System." in box.shown, box.shown)
        self.picture("box_error")
        self.session.keys("Return")

    # The project.

    def save(self, path):
        self.window.menu("Project", "Save")
        self.picture("dialogue_save")
        self.window.chooseFile(path)
        waitFor(lambda: self.window.title == f"Brenica - {path}", "the project's path in the title")

    def startAnew(self):
        self.window.menu("Project", "New")
        box = self.window.box("Save Project")
        same(box.shown, "Would you like to save the current project before starting a new project?", "question")
        self.picture("question_save")
        box.press("No")
        self.window.box("Delete home range data").press("Yes")  # bins are given up before the species
        waitFor(lambda: self.window.title == "Brenica", "the title without a project")
        same(self.window.grid("Candidate species").rows, 1, "rows of the species list")

    def open(self, path):
        self.window.menu("Project", "Open")
        self.window.chooseFile(path)
        waitFor(lambda: self.window.title == f"Brenica - {path}", "the project's path in the title")
        same(self.window.grid("Candidate species").column(1), [species.name for species in SPECIES], "species")

    def exit(self):
        self.window.menu("Project", "Exit")
        box = self.window.box("Save Project")
        same(box.shown, "Would you like to save the current project before exiting?", "question")
        box.press("No")


def lines(table):
    """The rows of a table that was written as text."""
    return [line.split("\t") for line in table.decode().split("\r\n") if line]


def byRank(table):
    """The normalised scores as they are first shown: by rank."""
    heading, *rows = lines(table)
    return [heading, *sorted(rows, key=lambda row: float(row[1]))]


def descends(column):
    numbers = [float(text) for text in column]
    return all(one >= other for one, other in zip(numbers, numbers[1:]))
