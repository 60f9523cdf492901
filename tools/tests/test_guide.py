# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The check of the guide passes a sound one and names what is missing or left over."""
import unittest

from check_tree import CheckTree

SOURCE = r'''// "Only said in a comment"
ui::MenuItem mnuOpen{*this, {.Caption = "&Open", .AccessKey = '"'}};
const char* text = "Enter a value "
                   "before proceeding.";
'''
GUIDE = """# A guide

[the first](#first-steps)

## First steps

Choose **Open**, read **Enter a
value before proceeding.**, not `**this**`. ![The page](images/page.png)
"""


class GuideCheck(CheckTree):
    def setUp(self):
        super().setUp()
        self.write("src/menu.cpp", SOURCE)
        self.write("docs/guide.md", GUIDE)
        self.write("docs/images/page.png", "")

    def check(self):
        return self.said_by("guide")

    def test_a_sound_guide_passes(self):
        self.assertEqual(self.check(), "")

    def test_a_picture_that_is_missing_is_named(self):
        (self.tree / "docs/images/page.png").unlink()
        self.assertEqual(self.check(), "guide: docs/guide.md leads to images/page.png, which is not there\n")

    def test_a_picture_that_nothing_shows_is_named_unless_the_readme_shows_it(self):
        self.write("docs/images/more.png", "")
        self.assertEqual(self.check(), "guide: docs/images/more.png is shown nowhere\n")
        self.write("README.md", "![More](docs/images/more.png) and [the web](https://example.org)\n")
        self.assertEqual(self.check(), "")

    def test_a_heading_that_is_missing_is_named(self):
        self.write("docs/guide.md", GUIDE.replace("## First steps", "## Other steps"))
        self.assertIn("the heading #first-steps", self.check())

    def test_captions_must_stand_in_the_program_whole(self):
        for caption in ("Open it", "Only said in a comment", "Enter a value"):
            with self.subTest(caption):
                self.write("docs/guide.md", f"{GUIDE}**{caption}**\n")
                self.assertEqual(self.check(), f"guide: docs/guide.md: no text of the program reads **{caption}**\n")


if __name__ == "__main__":
    unittest.main()
