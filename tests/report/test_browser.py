# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""How reports look in a real browser: nothing is said of them, nothing is loaded, nothing overlaps."""

import re
import tempfile
import unittest
from pathlib import Path

import pages
from browser import Browser

LAYOUT = (Path(__file__).parent / "layout.js").read_text()
WIDTHS = (360, 800, 1400)


class ReportsInTheBrowser(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory(prefix="brenica-report-")
        cls.pages = pages.makePages(cls.folder.name)
        cls.browser = Browser().__enter__()

    @classmethod
    def tearDownClass(cls):
        cls.browser.__exit__()
        cls.folder.cleanup()

    def open(self, name, width, dark=False):
        self.browser.open(self.pages[name], width, dark)

    def testOpensWithoutAMessageAndLoadsNothing(self):
        for name, path in self.pages.items():
            with self.subTest(page=name):
                self.open(name, 800)
                self.browser.evaluate("1")
                self.assertEqual(self.browser.messages(), [])
                self.assertEqual(self.browser.requested(), [path.resolve().as_uri()])

    def testNothingOverlapsOrIsTooPale(self):
        for name in self.pages:
            for width in WIDTHS:
                for dark in (False, True):
                    with self.subTest(page=name, width=width, dark=dark):
                        self.open(name, width, dark)
                        self.assertEqual(self.browser.evaluate(LAYOUT)[:5], [])

    def testTheCheckFindsWhatOverlaps(self):
        self.open("small_landscape", 800)
        self.browser.evaluate("document.querySelector('h2').style.transform = 'translateY(2rem)'")
        self.assertIn("lies over", " ".join(self.browser.evaluate(LAYOUT)))
        self.open("small_landscape", 800)
        self.browser.evaluate("document.querySelector('h2').style.width = '1000px'")
        self.assertIn("wider than the page", " ".join(self.browser.evaluate(LAYOUT)))
        self.open("small_landscape", 800)
        self.browser.evaluate("document.querySelector('h2').style.color = '#ccc'")
        self.assertIn("too pale", " ".join(self.browser.evaluate(LAYOUT)))

    def testIsDarkInTheDark(self):
        ground = "getComputedStyle(document.documentElement).backgroundColor"
        self.open("small_landscape", 800)
        light = self.browser.evaluate(ground)
        self.open("small_landscape", 800, dark=True)
        self.assertNotEqual(self.browser.evaluate(ground), light)

    def testLongTablesFoldOnTheScreenAlone(self):
        rows = ("[...document.querySelectorAll('#candidates tbody tr')]"
                ".filter((row) => row.getClientRects().length > 0).length")
        self.open("full_landscape", 800)
        self.assertEqual(self.browser.evaluate(rows), 10)
        self.browser.evaluate("document.querySelector('#candidates input').click()")
        self.assertEqual(self.browser.evaluate(rows), 25)
        self.browser.open(self.pages["full_landscape"], 680, media="print")
        self.assertEqual(self.browser.evaluate(rows), 25)

    def testFiguresAreWholeOnANarrowScreen(self):
        self.open("full_landscape", 800)
        boxes = "[...document.querySelectorAll('figure .scroll')].map((box) => box.scrollWidth - box.clientWidth)"
        self.assertEqual(set(self.browser.evaluate(boxes)), {0})

    def testPrintsOnA4(self):
        for name in self.pages:
            with self.subTest(page=name):
                self.open(name, 800)
                sizes = set(re.findall(rb"/MediaBox \[([^]]*)\]", self.browser.printed()))
                self.assertEqual({tuple(round(float(side)) for side in size.split()[2:]) for size in sizes},
                                 {(595, 842)})

    def testTablesFitOnPaper(self):
        for name in self.pages:
            with self.subTest(page=name):
                # The width of A4 between its margins, at 96 pixels an inch.
                self.browser.open(self.pages[name], 680, media="print")
                self.assertLessEqual(self.browser.evaluate("document.documentElement.scrollWidth"), 680)


if __name__ == "__main__":
    unittest.main()
