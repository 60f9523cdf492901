# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""brenica-batch as a process, in a folder of its own, never as root: to root no folder is without permission."""

import os
import pwd
import shutil
import stat
import subprocess
import tempfile
import unittest
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]
TIME_LIMIT = 60  # seconds for one run
TABLE = "HabitatData.txt"
SUITE = b"No.\tCommon Name\tHabitat Types\tManag. Zones\tThreats\n"


def childUser():
    """Arguments of subprocess that make a child of root somebody else."""
    if os.geteuid() != 0:
        return {}
    nobody = pwd.getpwnam("nobody")
    return {"user": nobody.pw_uid, "group": nobody.pw_gid, "extra_groups": []}


def snapshot(folder):
    """What lies in a folder: for each path the kind, the mode and what it holds."""
    found = {}
    for path in sorted(Path(folder).rglob("*")):
        about = path.lstat()
        kind = stat.S_IFMT(about.st_mode)
        holds = None
        if path.is_symlink():
            holds = os.readlink(path)
        elif stat.S_ISREG(about.st_mode):
            holds = path.read_bytes()
        found[str(path.relative_to(folder))] = (kind, stat.S_IMODE(about.st_mode), holds)
    return found


class ProgramTest(unittest.TestCase):
    """A test with a folder of its own, where a project lies; the programs run in it."""

    @classmethod
    def setUpClass(cls):
        # The build may lie where the child's user may not look.
        cls.shared = Path(tempfile.mkdtemp(prefix="brenica-batch-"))
        cls.shared.chmod(0o755)
        cls.program = Path(shutil.copy(os.environ["BRENICA_BATCH"], cls.shared))
        cls.project = (SOURCE / "examples" / "small_landscape.brn").read_bytes()

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.shared)

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp(prefix="brenica-batch-"))
        self.addCleanup(self.removeFolder)
        self.own(self.folder)
        self.write("p.brn", self.project)

    def removeFolder(self):
        for path in self.folder.rglob("*"):
            if path.is_dir() and not path.is_symlink():
                path.chmod(0o755)
        shutil.rmtree(self.folder)

    def own(self, path):
        user = childUser()
        if user:
            os.chown(path, user["user"], user["group"], follow_symlinks=False)
        return path

    def write(self, name, content=b"old"):
        path = self.folder / name
        path.write_bytes(content)
        return self.own(path)

    def makeFolder(self, name, mode=0o755):
        path = self.folder / name
        path.mkdir(parents=True)
        path.chmod(mode)
        return self.own(path)

    def link(self, name, target):
        path = self.folder / name
        path.symlink_to(target)
        return path

    def start(self, *arguments, **options):
        """The program as it runs; paths are those of the folder."""
        options = {"stdin": subprocess.DEVNULL, "stdout": subprocess.PIPE, "stderr": subprocess.PIPE,
                   "cwd": self.folder, "umask": 0o022, **childUser(), **options}
        return subprocess.Popen([self.program, *map(str, arguments)], **options)

    def runProgram(self, *arguments, **options):
        """Runs to the end and gives exit code, standard output and standard error."""
        with self.start(*arguments, **options) as child:
            try:
                out, err = child.communicate(timeout=TIME_LIMIT)
            except subprocess.TimeoutExpired:
                child.kill()
                raise
        return child.returncode, out, (err or b"").decode()

    def shell(self, script, *arguments, **options):
        """Runs a shell script in which "$0" is the program."""
        child = subprocess.run(["bash", "-c", script, self.program, *map(str, arguments)], cwd=self.folder,
                               stdin=subprocess.DEVNULL, capture_output=True, timeout=TIME_LIMIT, umask=0o022,
                               check=False, **childUser(), **options)
        return child.returncode, child.stdout, child.stderr.decode()

    def faults(self, err):
        """The lines of the program's own, without the boxes that the run showed."""
        return [line for line in err.splitlines() if line.startswith("brenica-batch: ")]
