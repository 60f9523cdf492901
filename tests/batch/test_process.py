# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""What brenica-batch does as a process: one file twice, signals, its standard streams, projects that are no files."""

import os
import pwd
import resource
import signal
import socket
import stat
import time
import unittest

from program import SUITE, TABLE, ProgramTest, snapshot

TIME_OF_A_GIBIBYTE = 120  # seconds, with sanitizers
SELECTED = 0
WRONG_USAGE = 1
UNREADABLE = 2
GATE = 3
NO_CARRIAGE_RETURN = "no line ends in CR, as those of a project do"


class OneFileTwice(ProgramTest):
    """Two outputs that are one file, or an output that is the project, are refused before anything is written."""

    def expectRefused(self, arguments, *named, **options):
        before = snapshot(self.folder)
        code, out, err = self.runProgram(*arguments, "p.brn", **options)
        self.assertEqual(code, WRONG_USAGE, err)
        self.assertEqual(err, f"brenica-batch: {named[0]} and {named[1]} are one file\n")
        self.assertFalse(out)
        self.assertEqual(snapshot(self.folder), before)

    def testOnePath(self):
        self.expectRefused(["--results", "a", "--messages", "a"], "--messages a", "--results a")

    def testAnExistingFileByTwoPaths(self):
        self.write("a")
        self.expectRefused(["--results", "a", "--messages", "./a"], "--messages ./a", "--results a")
        self.expectRefused(["--results", "a", "--messages", self.folder / "a"], f"--messages {self.folder / 'a'}",
                           "--results a")

    def testHardLinks(self):
        os.link(self.write("a"), self.folder / "b")
        self.expectRefused(["--results", "a", "--messages", "b"], "--messages b", "--results a")

    def testSymbolicLinks(self):
        self.link("b", "a")
        self.expectRefused(["--results", "a", "--messages", "b"], "--messages b", "--results a")
        self.write("a")
        self.expectRefused(["--results", "b", "--messages", "a"], "--messages a", "--results b")

    def testTwoDanglingLinks(self):
        self.link("b", "a")
        self.link("c", "b")
        self.expectRefused(["--results", "b", "--messages", "c"], "--messages c", "--results b")

    def testANewFileInAFolderReachedTwoWays(self):
        self.makeFolder("real")
        self.link("link", "real")
        self.expectRefused(["--results", "real/new", "--messages", "link/new"], "--messages link/new",
                           "--results real/new")

    def testAFileOfTheTables(self):
        self.expectRefused(["--tables", "t", "--results", f"t/{TABLE}"], f"--tables t/{TABLE}", f"--results t/{TABLE}")

    def testAFileOfTheTablesInAFolderThatIsNotThereYet(self):
        self.link("link", "real")
        self.expectRefused(["--tables", "link/deep", "--messages", f"real/x/../deep/./{TABLE}"],
                           f"--tables link/deep/{TABLE}", f"--messages real/x/../deep/./{TABLE}")

    def testTwoTables(self):
        self.makeFolder("t")
        os.link(self.write(f"t/{TABLE}"), self.folder / "t/FunctionData.txt")
        self.expectRefused(["--tables", "t"], "--tables t/FunctionData.txt", f"--tables t/{TABLE}")

    def testATableThatIsTheProject(self):
        self.makeFolder("t")
        os.link(self.folder / "p.brn", self.folder / "t/AreaSummary.txt")
        self.expectRefused(["--tables", "t"], "--tables t/AreaSummary.txt", "the project p.brn")

    def testAProjectThatIsMissing(self):
        code, _, err = self.runProgram("--results", "./new.brn", "new.brn")
        self.assertEqual((code, err), (WRONG_USAGE,
                                       "brenica-batch: --results ./new.brn and the project new.brn are one file\n"))

    def testTheProjectOnStandardInput(self):
        before = snapshot(self.folder)
        with open(self.folder / "p.brn", "rb") as project:
            code, _, err = self.runProgram("--results", "p.brn", "/dev/stdin", stdin=project)
        self.assertEqual((code, err), (WRONG_USAGE,
                                       "brenica-batch: --results p.brn and the project /dev/stdin are one file\n"))
        self.assertEqual(snapshot(self.folder), before)

    def testAPipeThatIsTheProjectToo(self):
        os.mkfifo(self.folder / "fifo")
        self.own(self.folder / "fifo")
        code, _, err = self.runProgram("--results", "fifo", "fifo")
        self.assertEqual((code, err), (WRONG_USAGE,
                                       "brenica-batch: --results fifo and the project fifo are one file\n"))

    def testStandardOutputSentToTheProject(self):
        before = snapshot(self.folder)
        with open(self.folder / "p.brn", "ab") as project:
            code, _, err = self.runProgram("p.brn", stdout=project)
        self.assertEqual(code, WRONG_USAGE)
        self.assertEqual(err, "brenica-batch: standard output and the project p.brn are one file\n")
        self.assertEqual(snapshot(self.folder), before)

    def testStandardOutputSentToAFileThatIsAnOutput(self):
        with open(self.write("a"), "ab") as file:
            self.expectRefused(["--results", "a"], "--results a", "standard output", stdout=file)

    def testStandardErrorSentToAFileThatIsAnOutput(self):
        with open(self.write("a", b""), "ab") as file:
            code, _, _ = self.runProgram("--messages", "a", "p.brn", stderr=file)
        self.assertEqual(code, WRONG_USAGE)
        self.assertEqual((self.folder / "a").read_text(),
                         "brenica-batch: --messages a and standard error are one file\n")

    def testStandardOutputAndErrorMayBeOneFile(self):
        with open(self.write("log"), "wb") as file:
            code, _, _ = self.runProgram("--results", "r", "p.brn", stdout=file, stderr=file)
        self.assertEqual(code, SELECTED)
        self.assertIn(SUITE, (self.folder / "log").read_bytes())

    def testDevicesAndPipesTakeSeveralOutputs(self):
        code, _, err = self.runProgram("--results", "/dev/null", "--messages", "/dev/null", "p.brn")
        self.assertEqual(code, SELECTED, err)
        code, out, err = self.runProgram("--results", "/dev/stdout", "--messages", "/dev/fd/1", "p.brn")
        self.assertEqual(code, SELECTED, err)
        self.assertTrue(out.startswith(b'{"kind":"message"'), out)
        self.assertLess(out.index(b"Brenic Species by Rank"), out.index(SUITE))


class Targets(ProgramTest):
    """What the matrix of targets does not try."""

    def testStandardOutputSentToAFileKeepsAllThatIsWrittenToIt(self):
        code, out, err = self.shell('"$0" --results r p.brn >suite && { echo before; "$0" --results /dev/stdout p.brn; '
                                    'echo after; } >all')
        self.assertEqual((code, out), (SELECTED, b""), err)
        self.assertEqual((self.folder / "all").read_bytes(),
                         b"before\n" + (self.folder / "r").read_bytes() + (self.folder / "suite").read_bytes() +
                         b"after\n")

    def testADescriptorOfTheShell(self):
        code, out, err = self.shell('{ "$0" --results /dev/fd/3 p.brn >/dev/null; echo after >&3; } 3>a; '
                                    '"$0" --messages >(cat >m; echo done) p.brn | tail -n 1; sleep 0.2')
        self.assertEqual(code, 0, err)
        self.assertTrue((self.folder / "a").read_bytes().startswith(b"Brenic Species by Rank"))
        self.assertTrue((self.folder / "a").read_bytes().endswith(b"\nafter\n"))
        self.assertTrue((self.folder / "m").read_bytes().startswith(b'{"kind":"message"'), out)

    def testADescriptorThatIsNotOpenOrForReading(self):
        for path in ("/dev/fd/77", "/dev/stdin", "/proc/self/fd/99999999999"):
            with open("/dev/null", "rb") as reading:
                code, out, err = self.runProgram("--results", path, "p.brn", stdin=reading)
            self.assertEqual((code, out), (WRONG_USAGE, b""), path)
            self.assertRegex(err, f"^brenica-batch: {path}: cannot be written: [A-Z][a-z ]+\n$")

    def testTheCountsOfASweepSentIntoAPipe(self):
        sweep = '"$0" sweep --vary levels --runs 5 --counts'
        code, _, err = self.shell(f'mkfifo f; cat f >read & timeout 20 {sweep} f p.brn && wait')
        self.assertEqual(code, SELECTED, err)
        self.shell(f'{sweep} written p.brn')
        self.assertEqual((self.folder / "read").read_bytes(), (self.folder / "written").read_bytes())

    def testASocketIsNoTarget(self):
        with socket.socket(socket.AF_UNIX) as server:
            server.bind(str(self.folder / "socket"))
            self.own(self.folder / "socket")
            code, _, err = self.runProgram("--results", "socket", "p.brn")
        self.assertEqual((code, err), (WRONG_USAGE, "brenica-batch: socket: cannot be written: "
                                                    "No such device or address\n"))

    def testANewFileHasTheModeThatTheMaskLeaves(self):
        for mask, mode in ((0o022, 0o644), (0o077, 0o600), (0, 0o666)):
            self.runProgram("--results", f"r{mask}", "--tables", f"t{mask}", "p.brn", umask=mask)
            for path in (f"r{mask}", f"t{mask}/{TABLE}"):
                self.assertEqual(stat.S_IMODE((self.folder / path).stat().st_mode), mode, path)

    @unittest.skipUnless(os.geteuid() == 0, "only root may write another's file and leave it the other's")
    def testAFileKeepsItsOwner(self):
        nobody = pwd.getpwnam("nobody")
        path = self.write("r")
        path.chmod(0o4640)
        os.chown(path, nobody.pw_uid, nobody.pw_gid)
        path.chmod(0o4640)
        code, _, err = self.runProgram("--results", "r", "p.brn", user=0, group=0)
        self.assertEqual(code, SELECTED, err)
        about = path.stat()
        self.assertEqual((about.st_uid, about.st_gid, stat.S_IMODE(about.st_mode)),
                         (nobody.pw_uid, nobody.pw_gid, 0o4640))

    def testAFullDiskLeavesTheOldFileAndNothingElse(self):
        self.write("r")
        before = snapshot(self.folder)
        code, out, err = self.shell('ulimit -f 0; "$0" --results r p.brn')
        self.assertEqual(code, WRONG_USAGE)
        self.assertIn("brenica-batch: r: cannot be written: ", err)
        self.assertEqual(snapshot(self.folder), before)
        self.assertTrue(out.startswith(SUITE), "the suite is printed all the same")

    def testSeveralThatCannotBeWrittenAreAllNamed(self):
        self.makeFolder("t/HabitatData.txt")
        self.makeFolder("t/AreaSummary.txt")
        self.own(self.folder / "t")
        code, out, err = self.runProgram("--tables", "t", "--results", "/dev/full", "--messages", "m", "p.brn")
        self.assertEqual(code, WRONG_USAGE)
        self.assertEqual(self.faults(err),
                         ["brenica-batch: /dev/full: cannot be written: No space left on device",
                          "brenica-batch: t/HabitatData.txt: cannot be written: Is a directory",
                          "brenica-batch: t/AreaSummary.txt: cannot be written: Is a directory"])
        self.assertTrue(out.startswith(SUITE))
        self.assertTrue((self.folder / "m").exists())
        self.assertEqual(sum(path.is_file() for path in (self.folder / "t").iterdir()), 21)

    def testAnOutputThatFailsLeavesTheCodeOfARunThatIsNotDone(self):
        self.write("gap.brn", self.project.replace(b"Home ranges = ", b"Home ranges = ,"))
        code, _, err = self.runProgram("--messages", "/dev/full", "gap.brn")
        self.assertEqual(code, GATE, err)
        self.assertIn("brenica-batch: /dev/full: cannot be written: No space left on device\n", err)


class Signals(ProgramTest):
    """A signal ends the program as it ends others, and nothing of a file is left."""

    def expectNoLitter(self, number):
        os.mkfifo(self.folder / "fifo")
        self.own(self.folder / "fifo")
        self.write("r")
        before = snapshot(self.folder)
        with self.start("--results", "r", "--messages", "m", "fifo") as child:
            with open(self.folder / "fifo", "wb"):  # opens when the program reads
                child.send_signal(number)
                child.communicate(timeout=10)
        self.assertEqual(child.returncode, -number)
        self.assertEqual(snapshot(self.folder), before)

    def testInterrupt(self):
        self.expectNoLitter(signal.SIGINT)

    def testTerminate(self):
        self.expectNoLitter(signal.SIGTERM)

    def testHangUp(self):
        self.expectNoLitter(signal.SIGHUP)

    def testKill(self):
        self.expectNoLitter(signal.SIGKILL)

    def testABrokenPipeOfMessages(self):
        reading, writing = os.pipe()
        os.close(reading)
        before = snapshot(self.folder)
        code, out, _ = self.runProgram("--results", "r", "p.brn", stderr=writing)
        os.close(writing)
        self.assertEqual(code, -signal.SIGPIPE)
        self.assertEqual(out, b"")
        self.assertEqual(snapshot(self.folder), before)

    def testABrokenPipeOfAnOutput(self):
        code, _, _ = self.shell('{ sleep 0.3; "$0" --results /dev/stdout --messages m p.brn; echo $? >code; } | true; '
                                'cat code')
        self.assertEqual(code, 0)
        self.assertEqual((self.folder / "code").read_text().strip(), str(128 + signal.SIGPIPE))
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()), ["code", "m", "p.brn"])

    def testAtAnyMomentAFileIsOldOrNewAndNoneIsHalf(self):
        self.runProgram("--results", "r", "p.brn")
        whole = (self.folder / "r").read_bytes()
        started = time.monotonic()
        self.runProgram("--results", "r", "--tables", "t", "--messages", "m", "p.brn")
        length = time.monotonic() - started
        known = {path.relative_to(self.folder) for path in self.folder.rglob("*")}
        for i in range(60):
            (self.folder / "r").write_bytes(b"old")
            with self.start("--results", "r", "--tables", "t", "--messages", "m", "p.brn") as child:
                time.sleep(length * i / 50)
                child.send_signal((signal.SIGTERM, signal.SIGINT)[i % 2])
                child.communicate(timeout=10)
            self.assertIn((self.folder / "r").read_bytes(), (b"old", whole))
            self.assertEqual({path.relative_to(self.folder) for path in self.folder.rglob("*")}, known)


class StandardStreams(ProgramTest):
    """What cannot be printed is said; a stream that is closed is not taken for a file."""

    FULL = "brenica-batch: standard output cannot be written: No space left on device\n"
    CLOSED = "brenica-batch: standard output cannot be written: Bad file descriptor\n"

    def testAFullStandardOutput(self):
        code, _, err = self.shell('"$0" --results r p.brn >/dev/full')
        self.assertEqual(code, WRONG_USAGE)
        self.assertTrue(err.endswith(self.FULL), err)
        self.assertTrue((self.folder / "r").exists())

    def testAFullStandardOutputOfALongText(self):
        code, _, err = self.shell('"$0" --help >/dev/full')
        self.assertEqual((code, err), (WRONG_USAGE, self.FULL))
        code, _, err = self.shell('"$0" --version >/dev/full')
        self.assertEqual((code, err), (WRONG_USAGE, self.FULL))

    def testAClosedStandardOutput(self):
        self.runProgram("--results", "expected", "p.brn")
        code, _, err = self.shell('"$0" --results r p.brn >&-')
        self.assertEqual(code, WRONG_USAGE)
        self.assertTrue(err.endswith(self.CLOSED), err)
        self.assertEqual((self.folder / "r").read_bytes(), (self.folder / "expected").read_bytes())

    def testABrokenPipeWhereTheSignalIsIgnored(self):
        code, _, err = self.shell('trap "" PIPE; { sleep 0.3; "$0" p.brn; echo $? >code; } | true')
        self.assertEqual((self.folder / "code").read_text().strip(), str(WRONG_USAGE), err)
        self.assertTrue(err.endswith("brenica-batch: standard output cannot be written: Broken pipe\n"), err)

    def testAClosedStandardOutputAsTarget(self):
        code, _, err = self.shell('"$0" --results /dev/stdout p.brn >&-')
        self.assertEqual((code, err), (WRONG_USAGE,
                                       "brenica-batch: /dev/stdout: cannot be written: Bad file descriptor\n"))

    def testAllStreamsClosed(self):
        code, _, _ = self.shell('"$0" --results r --messages m p.brn <&- >&- 2>&-')
        self.assertEqual(code, WRONG_USAGE)
        self.assertTrue((self.folder / "m").read_bytes().startswith(b'{"kind":"message"'))
        self.assertTrue((self.folder / "r").read_bytes().startswith(b"Brenic Species"))

    def testTheCodeOfARunThatIsNotDoneStays(self):
        lines = self.project.replace(b"Home ranges = ", b"Home ranges = x")
        self.write("bad.brn", lines)
        expected, out, _ = self.runProgram("bad.brn")
        code, _, err = self.shell('"$0" bad.brn >/dev/full')
        self.assertGreater(expected, UNREADABLE)
        self.assertEqual(code, expected)
        self.assertEqual(err.endswith(self.FULL), bool(out))


class Projects(ProgramTest):
    """What can be read as a project, and what is said of what cannot."""

    def expectUnreadable(self, path, reason, **options):
        code, out, err = self.runProgram(path, **options)
        self.assertEqual((code, out), (UNREADABLE, b""), err)
        self.assertEqual(self.faults(err), [f"brenica-batch: {path}: {reason}"])

    def testStandardInputAndPipesAreRead(self):
        _, expected, _ = self.runProgram("p.brn")
        for script in ('"$0" /dev/stdin <p.brn', 'cat p.brn | "$0" /dev/stdin', '"$0" <(cat p.brn)',
                       '"$0" /dev/fd/3 3<p.brn', 'mkfifo f; cat p.brn >f & "$0" f'):
            code, out, err = self.shell(script)
            self.assertEqual((code, out), (SELECTED, expected), script + err)

    def testAFileNamedDash(self):
        self.write("-", self.project)
        code, out, _ = self.runProgram("-")
        self.assertEqual(code, SELECTED)
        self.assertTrue(out.startswith(SUITE))

    def testADeviceThatNeverEnds(self):
        child = self.start("/dev/zero")
        child.communicate(timeout=TIME_OF_A_GIBIBYTE)
        self.assertEqual(child.returncode, UNREADABLE)
        used = resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss
        self.assertLess(used, 3 << 20, "KiB at most")
        self.expectUnreadable("/dev/zero", "Larger than 1 GiB, and no regular file")

    def testADeviceWithoutContent(self):
        self.expectUnreadable("/dev/null", NO_CARRIAGE_RETURN)

    def testAFileWhoseLinesEndInLineFeeds(self):
        self.write("lf.brn", self.project.replace(b"\r\n", b"\n"))
        self.expectUnreadable("lf.brn", NO_CARRIAGE_RETURN)
        self.write("function.brn", b"Function1x = 1\nCommon Name = Otter\n")
        self.expectUnreadable("function.brn", NO_CARRIAGE_RETURN)

    def testAnEmptyFile(self):
        self.write("empty.brn", b"")
        self.expectUnreadable("empty.brn", NO_CARRIAGE_RETURN)

    def testAFaultNamesItsLine(self):
        self.write("bad.brn", self.project + b"Functionx = 1\r\n")
        line = self.project.count(b"\r\n") + 1
        code, _, err = self.runProgram("bad.brn")
        self.assertEqual((code, err), (UNREADABLE, f"brenica-batch: bad.brn:{line}: Type mismatch\n"))

    def testAFolder(self):
        self.expectUnreadable(".", "Path/File access error")

    def testWhatMayNotBeReadIsNotMissing(self):
        self.write("secret.brn", self.project).chmod(0)
        self.expectUnreadable("secret.brn", "Permission denied")
        self.makeFolder("locked/inner")
        self.write("locked/inner/p.brn", self.project)
        (self.folder / "locked").chmod(0)
        self.expectUnreadable("locked/inner/p.brn", "Permission denied")

    def testWhatIsMissing(self):
        self.link("loop", "loop")
        self.expectUnreadable("missing.brn", "File not found")
        self.expectUnreadable("no/such/p.brn", "Path not found")
        self.expectUnreadable("p.brn/p.brn", "Path not found")
        self.expectUnreadable("loop", "Path/File access error")
        self.expectUnreadable("n" * 300, "Path/File access error")
        self.expectUnreadable("", "Path/File access error")


if __name__ == "__main__":
    unittest.main()
