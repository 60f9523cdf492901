# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""Every kind of target under every option that names an output: exit code, what is said, what is left on the disk.

A target stands for the results, for the messages, for the folder of the tables, or for one table of that folder.
With MATRIX=1 in the environment the outcomes are printed as a table.
"""

import os
import stat
import threading
import unittest
from dataclasses import dataclass, replace
from typing import Optional

from program import SUITE, TABLE, ProgramTest, snapshot

OPTIONS = ("results", "messages", "table", "tables")
OUTCOMES = {}

NO_FOLDER = "cannot be made a folder: Not a directory"
ONE_FILE = "are one file"


@dataclass
class Cell:
    """What a run with this target comes to."""
    code: int = 0
    says: Optional[str] = None  # part of the program's one line on standard error
    written: Optional[str] = None  # path that holds what the option writes; "stdout" is standard output
    mode: int = 0o644
    ran: bool = True  # the suite is printed


def refused(says):
    return Cell(1, says, ran=False)


class Target:
    """A kind of target: how it comes to be at a path, and what each option makes of it."""

    def __init__(self, name, prepare, cells, path="target", twice=False):
        self.name = name
        self.prepare = prepare
        self.cells = cells
        self.path = path
        self.twice = twice  # another option names the file too, by another path


def same(file, tables):
    """The cells of a target that results, messages and a table meet alike; of a table it shows only after the run,
    unless it is another file of that run."""
    return {"results": file, "messages": file, "table": replace(file, ran=file.ran or file.says != ONE_FILE),
            "tables": tables}


def anywhere(cell):
    """The cells of a place where no table of a folder can be."""
    return {"results": cell, "messages": cell, "tables": cell}


def nothing(test, path):
    pass


def directory(test, path):
    test.makeFolder(path)


TARGETS = [
    Target("new file", nothing, same(Cell(written="{}"), Cell(written="{}"))),
    Target("existing file, mode 0640", lambda test, path: test.write(path).chmod(0o640),
           same(Cell(written="{}", mode=0o640), refused(NO_FOLDER))),
    Target("existing file, mode 0444", lambda test, path: test.write(path).chmod(0o444),
           same(refused("cannot be written: Permission denied"), refused(NO_FOLDER))),
    Target("symlink to a file", lambda test, path: (test.write("real").chmod(0o640),
                                                    test.link(path, test.folder / "real")),
           same(Cell(written="real", mode=0o640), refused(NO_FOLDER))),
    Target("symlink to a folder", lambda test, path: (test.makeFolder("real"),
                                                      test.link(path, test.folder / "real")),
           same(refused("cannot be written: Is a directory"), Cell(written="real"))),
    Target("dangling symlink", lambda test, path: test.link(path, test.folder / "real"),
           same(Cell(written="real"), Cell(written="real"))),
    Target("dangling symlink to a missing folder", lambda test, path: test.link(path, test.folder / "no/real"),
           same(refused("cannot be written: No such file or directory"), Cell(written="no/real"))),
    Target("hard link to the project", lambda test, path: os.link(test.folder / "p.brn", test.folder / path),
           same(refused(ONE_FILE), refused(NO_FOLDER))),
    Target("symlink to the project", lambda test, path: test.link(path, test.folder / "p.brn"),
           same(refused(ONE_FILE), refused(NO_FOLDER))),
    Target("the project itself", nothing,
           {"results": refused("--results p.brn and the project p.brn are one file"),
            "messages": refused("--messages p.brn and the project p.brn are one file"),
            "tables": refused(NO_FOLDER)}, path="p.brn"),
    Target("one file by two paths, not there yet", nothing, same(refused(ONE_FILE), refused(ONE_FILE)), twice=True),
    Target("one file by two paths, there", lambda test, path: test.write(path),
           {"results": refused(ONE_FILE), "messages": refused(ONE_FILE), "table": refused(ONE_FILE)}, twice=True),
    Target("FIFO with a reader", lambda test, path: test.makeFifo(path),
           same(Cell(written="fifo"), refused(NO_FOLDER))),
    Target("/dev/null", lambda test, path: test.link(path, "/dev/null"), same(Cell(), refused(NO_FOLDER))),
    Target("/dev/full", lambda test, path: test.link(path, "/dev/full"),
           same(Cell(1, "cannot be written: No space left on device"), refused(NO_FOLDER))),
    Target("/dev/stdout", lambda test, path: test.link(path, "/dev/stdout"),
           same(Cell(written="stdout"), refused(NO_FOLDER))),
    Target("directory", directory, same(refused("cannot be written: Is a directory"), Cell(written="{}"))),
    Target("missing folder", nothing,
           {"results": refused("cannot be written: No such file or directory"),
            "messages": refused("cannot be written: No such file or directory"),
            "tables": Cell(written="{}")}, path="no/such/target"),
    Target("folder without permission to write", lambda test, path: test.makeFolder("locked", 0o555),
           anywhere(refused("Permission denied")),
           path="locked/target"),
    Target("folder without permission to look", lambda test, path: test.makeFolder("locked", 0o000),
           anywhere(refused("Permission denied")),
           path="locked/target"),
    Target("the folder itself without permission", lambda test, path: test.makeFolder(path, 0o555),
           {"tables": refused("cannot be written to: Permission denied")}),
    Target("name of 255 bytes", nothing,
           anywhere(Cell(written="{}")), path="n" * 255),
    Target("name of 300 bytes", nothing,
           anywhere(refused("File name too long")), path="n" * 300),
    Target("loop of links", lambda test, path: test.link(path, test.folder / path),
           same(refused("Too many levels of symbolic links"), refused("Too many levels of symbolic links"))),
    Target("below a loop of links", lambda test, path: test.link("loop", test.folder / "loop"),
           anywhere(refused("Too many levels of symbolic links")),
           path="loop/target"),
    Target("below a file", lambda test, path: test.write("file"),
           anywhere(refused("Not a directory")),
           path="file/target"),
    Target("a file named -", nothing,
           anywhere(Cell(written="{}")), path="-"),
    Target("empty name", nothing,
           anywhere(refused("No such file or directory")), path=""),
]


class OutputMatrix(ProgramTest):
    """One test for each kind of target and option."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.expected = cls.plainOutputs()

    @classmethod
    def plainOutputs(cls):
        """What the options write where nothing is in the way."""
        plain = cls()
        plain.setUp()
        code, out, err = plain.runProgram("--results", "r", "--messages", "m", "--tables", "t", "p.brn")
        assert code == 0, err
        found = {"results": (plain.folder / "r").read_bytes(), "messages": (plain.folder / "m").read_bytes(),
                 "table": (plain.folder / "t" / TABLE).read_bytes(), "stdout": out,
                 "tables": {path.name: path.read_bytes() for path in (plain.folder / "t").iterdir()}}
        plain.doCleanups()
        return found

    def makeFifo(self, name):
        """A pipe with a name, and a thread that reads it."""
        path = self.folder / name
        os.mkfifo(path)
        self.own(path)
        self.reader = threading.Thread(target=self.readFifo, args=(path,), daemon=True)
        self.reader.start()

    def readFifo(self, path):
        self.fifo = path.read_bytes()

    def releaseReader(self, path):
        """Lets the reader end where nobody opened the pipe."""
        self.reader.join(0.2)
        if self.reader.is_alive():
            os.close(os.open(path, os.O_WRONLY))
            self.reader.join(5)
        self.assertFalse(self.reader.is_alive(), "the pipe is gone")

    def tryTarget(self, target, option):
        cell = target.cells[option]
        path = f"tables/{TABLE}" if option == "table" else target.path
        if option == "table":
            self.makeFolder("tables")
        target.prepare(self, path)
        arguments = ["--tables", "tables"] if option == "table" else [f"--{option}={path}"]
        if target.twice:
            other = "messages" if option == "results" else "results"
            arguments.append(f"--{other}=../{self.folder.name}/{path}{'/' + TABLE if option == 'tables' else ''}")
        before = snapshot(self.folder)
        code, out, err = self.runProgram(*arguments, "p.brn")
        if hasattr(self, "reader"):
            self.releaseReader(self.folder / path)
        after = snapshot(self.folder)
        OUTCOMES.setdefault(target.name, {})[option] = f"{code} {'; '.join(self.faults(err))}".strip()

        self.assertEqual(code, cell.code, err)
        self.checkSaid(cell, path, err)
        self.checkWritten(cell, option, path, before, after, out)

    def checkSaid(self, cell, path, err):
        faults = self.faults(err)
        if cell.says is None:
            self.assertEqual(faults, [])
            return
        self.assertEqual(len(faults), 1, err)
        self.assertIn(cell.says, faults[0])
        self.assertIn(path, faults[0])
        if cell.says == ONE_FILE:
            self.assertRegex(faults[0], "and (the project p.brn|--[a-z]+ [^ ]+) are one file$")

    def checkWritten(self, cell, option, path, before, after, out):
        suite = self.expected["stdout"] if cell.ran else b""
        holds = self.expected[option]
        expected = dict(before)
        place = (cell.written or "").format(path)
        if place == "stdout":
            suite = holds + suite
        elif place == "fifo":
            self.assertEqual(self.fifo, holds)
        elif option == "tables" and place:
            self.addFolders(expected, place)
            expected |= {f"{place}/{name}": (stat.S_IFREG, 0o644, text) for name, text in holds.items()}
        elif place:
            expected[place] = (stat.S_IFREG, cell.mode, holds)
        if option == "table" and cell.ran:
            for name, text in self.expected["tables"].items():
                if name != TABLE:
                    expected[f"tables/{name}"] = (stat.S_IFREG, 0o644, text)
        self.assertEqual(out, suite)
        self.assertEqual(after, expected)

    def addFolders(self, expected, place):
        parts = place.split("/")
        for count in range(1, len(parts) + 1):
            expected.setdefault("/".join(parts[:count]), (stat.S_IFDIR, 0o755, None))


def addTests():
    for target in TARGETS:
        for option in target.cells:
            name = "".join(part.capitalize() for part in target.name.replace("/", " ").split())
            setattr(OutputMatrix, f"test{name}As{option.capitalize()}",
                    lambda self, target=target, option=option: self.tryTarget(target, option))


addTests()


def tearDownModule():
    if "MATRIX" not in os.environ:
        return
    print("\n| Target | --results | --messages | one file of --tables | --tables |\n|---|---|---|---|---|")
    for target in TARGETS:
        cells = OUTCOMES.get(target.name, {})
        print(f"| {target.name} | " + " | ".join(cells.get(option, "-") for option in OPTIONS) + " |")


if __name__ == "__main__":
    unittest.main()
