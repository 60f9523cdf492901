# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""What comes and goes beside the pages: tips, menus, boxes and the lines of the strip, with a picture each."""

import time

from road import PAGES

SHOWN = 0.7  # seconds until a tip or a menu is whole


def walkPieces(window, folder):
    """Of a window with the full example; files go to `folder`."""
    _Pieces(window, folder).walk()


class _Pieces:
    def __init__(self, window, folder):
        self.window = window
        self.session = window.session
        self.folder = folder

    def walk(self):
        self.tables()
        self.menus()
        self.report()
        self.gap()

    def take(self, name, *keys):
        """A picture after these keys."""
        if keys:
            self.session.keys(*keys)
        time.sleep(SHOWN)
        self.session.picture(f"piece_{name}")

    def tables(self):
        window, session = self.window, self.session
        window.page(PAGES[0])
        self.take("frame_of_the_first_cell", "Tab")
        self.take("menu_of_a_table", "shift+F10")
        session.keys("Escape")
        window.page(PAGES[1])
        grid = window.grid("Habitat types")
        grid.clickCell(2, 3)
        self.take("refused_key", "9")
        session.keys("Escape")
        session.clipboard = "1\n2\n7\n1"
        self.take("refused_paste", "ctrl+v")
        window.page(PAGES[3])
        window.page("Functionality")
        window.grid("Functionality").clickCell(3, 2)
        self.take("what_a_column_means", "shift+F1")
        window.page(PAGES[4])
        self.take("menu_of_a_graph", "Tab", "Tab", "shift+F10")
        session.keys("Escape")
        window.page(PAGES[5])
        window.grid("Normalized scores").clickCell(2, 2)
        self.take("menu_that_sorts", "shift+F10")
        session.keys("Escape")

    def menus(self):
        self.take("menu_of_insight", "alt+i")
        self.session.keys("Escape", "Escape")
        self.take("menu_of_examples", "alt+l", "e")
        self.session.keys("Escape", "Escape", "Escape")
        self.window.menu("Help", "About Brenica")
        self.take("about")
        self.session.keys("Return")
        time.sleep(SHOWN)

    def report(self):
        window = self.window
        self.session.keys("alt+i", "r")
        time.sleep(SHOWN)
        self.take("file_of_the_report")
        window.chooseFile(self.folder / "a report.html")
        self.session.picture("piece_report_being_made")
        self.take("report_cancelled", "F6", "Tab", "Return")  # or its line closed, where it was made by then
        self.session.keys("alt+i", "r")
        window.chooseFile(self.folder / "another report.html")
        window.stripLine("The report on full_landscape.brn is made")
        self.take("report_made")

    def gap(self):
        """A species without a dispersal."""
        window, session = self.window, self.session
        window.page(PAGES[0])
        window.text("Number of new species").write("1")
        window.button("Update species list").click()
        grid = window.grid("Candidate species")
        grid.clickCell(1, 1)
        session.keys("ctrl+End", "Home")
        session.type("Newt")
        session.keys("Return")
        grid.waitForCell(26, 1, "Newt")
        session.keys(*["ctrl+Next"] * 5)
        self.take("box_of_a_gap")
        session.keys("Return")
        self.take("strip_of_a_gap")
        session.keys("alt+i", "r")
        self.take("no_report")
        session.keys("Return")
