# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""A copy of the project with mutants in it, and the test programs that are to notice them."""
import os
import resource
import shutil
import signal
import subprocess
import tempfile
from pathlib import Path

LINKED = ("CMakeLists.txt", "CMakePresets.json", "examples", "packaging", "tests", "LICENSE", "README.md")
FLAGS = "-w -O1 -D_GLIBCXX_ASSERTIONS"
# By what a run costs; a mutant is shown first to the tests of its own folder.
FOLDERS = ("method", "scoring", "selection", "graphs", "project", "entry", "ui", "batch", "memory")
MEMORY = 3 << 30
WALL_SECONDS = 600


class Tree:
    """The project with its sources copied, to be changed and built apart."""

    def __init__(self, root, place):
        self.root = root
        self.place = place / "tree"
        self.build_folder = place / "build"

    def prepare(self):
        self.place.mkdir(parents=True, exist_ok=True)
        for name in LINKED:
            link = self.place / name
            link.unlink(missing_ok=True)
            link.symlink_to(self.root / name)
        for path in (self.root / "src").rglob("*"):
            if path.is_file():
                self.write(str(path.relative_to(self.root)), path.read_bytes())
        gone = [path for path in (self.place / "src").rglob("*")
                if path.is_file() and not (self.root / path.relative_to(self.place)).exists()]
        for path in gone:
            path.unlink()

    def write(self, file, content):
        """Leaves a file alone that is so already, so that nothing is built twice."""
        path = self.place / file
        if path.exists() and path.read_bytes() == content:
            return
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)

    def configure(self):
        subprocess.run(["cmake", "-S", self.place, "-B", self.build_folder, "-G", "Ninja",
                        "-DCMAKE_BUILD_TYPE=None", "-DBRENICA_BUILD_DESKTOP=OFF",
                        f"-DCMAKE_CXX_FLAGS={FLAGS} -I{self.place}/tests/mutation",
                        "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=mold"],
                       check=True, stdout=subprocess.DEVNULL)

    def build(self, programs, jobs):
        """Nothing, or what the compiler said."""
        targets = [program.target for program in programs]
        done = subprocess.run(["cmake", "--build", self.build_folder, "-j", str(jobs), "--target", *targets],
                              capture_output=True, text=True, check=False)
        return None if done.returncode == 0 else done.stdout + done.stderr


class Program:
    """A test program and what a run without a mutant costs."""

    def __init__(self, name, target, *arguments, cost=60):
        self.name = name
        self.target = target
        self.arguments = arguments
        self.cpu_seconds = cost
        self.reached = set()

    def run(self, tree, environment, cpu_seconds):
        """The exit code; a run that takes too long is ended by a signal."""
        def limit():
            resource.setrlimit(resource.RLIMIT_CPU, (cpu_seconds, cpu_seconds + 1))
            resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

        command = [tree.build_folder / "tests" / self.target, *self.arguments]
        folder = tempfile.mkdtemp(prefix="mutant-")
        process = subprocess.Popen(command, cwd=folder, env={**os.environ, "TMPDIR": folder, **environment},
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                   start_new_session=True, preexec_fn=limit)
        try:
            return process.wait(WALL_SECONDS)
        except subprocess.TimeoutExpired:
            return -signal.SIGKILL
        finally:
            end_session(process)
            shutil.rmtree(folder, ignore_errors=True)

    def measure(self, tree):
        """Runs without a mutant; raises where that fails."""
        listing = tree.build_folder / f"reached_{self.name}"
        listing.unlink(missing_ok=True)
        before = children_seconds()
        code = self.run(tree, {"BRENICA_MUTANTS_REACHED": str(listing)}, 1000)
        if code != 0:
            raise RuntimeError(f"{self.target} fails without a mutant, with {code}")
        self.cpu_seconds = children_seconds() - before
        self.reached = {int(line) for line in listing.read_text().split()} if listing.exists() else set()

    def kills(self, tree, number):
        allowed = int(5 * self.cpu_seconds) + 3
        return self.run(tree, {"BRENICA_MUTANT": str(number)}, allowed) != 0


def end_session(process):
    """Ends what the program may have left behind."""
    try:
        os.killpg(process.pid, signal.SIGKILL)
    except ProcessLookupError:
        pass
    process.wait()


def children_seconds():
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


def programs(root, walks=True):
    fast = ("--gtest_fail_fast", "--gtest_brief=1")
    found = [Program(folder, f"brenica_{folder}_tests", *fast) for folder in FOLDERS
             if (root / "tests" / folder).is_dir()]
    found.append(Program("fuzz", "brenica_fuzz_replay", str(root / "tests/fuzz/corpus")))
    if walks:
        found.append(Program("walk", "brenica_walk_tests", *fast))
    return found


def in_order(found, mutant):
    """The programs, those of the mutant's own folder first."""
    folder = Path(mutant.file).parent.name
    return sorted(found, key=lambda program: (program.name != folder, program.cpu_seconds))
