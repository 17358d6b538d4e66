#!/usr/bin/env python3
"""Seeds single faults into ims/ and tells which of them the tests do not notice.

    tests/mutants/mutants.py RESULTS                     # 300 faults of this tree, judged by its tests
    tests/mutants/mutants.py RESULTS --count 50 --seed 7 --jobs 2
    tests/mutants/mutants.py RESULTS --list              # what would be seeded; builds nothing
    tests/mutants/mutants.py RESULTS --report            # the summary of results that are there already
    tests/mutants/mutants.py NEW --replay RESULTS        # the same faults, judged by other tests
    tests/mutants/mutants.py NEW --replay RESULTS --source TREE --tests other_tests --least 94

Every fault is seeded into a copy of the tree below --build, built there and taken back; the tree itself is only read.
The copy is built without debug information and with warnings off, by ccache where there is one. A fault is noticed when
a test fails or ends abnormally, or takes far more processor time or memory than without the fault. Quick tests go
first, and the first that fails ends the run. A test that fails is run once more alone: if it passes then, it does not
count. Tests that check the packaging are not run.

The same tree, seed and count give the same faults, spread over the kinds and then over the files. One that does not
compile is replaced by the next. A fault that is noticed takes a second or two, one that is not as long as all tests:
300 take about half an hour.

RESULTS gets one JSON object a line for each fault:

    kind, file, line    what was changed, and where
    within, before, after    the line that the enclosing function or table begins with; the changed lines
    noticed             true, false, or null when it does not count
    by, how             the test, and how it noticed; without one, why the fault does not count
    seconds             to build it and to run the tests

A run that was interrupted goes on where it ended when it is started again with the same arguments. --replay finds a
fault by its line and text, or by its text alone where the lines have moved; one whose text is gone, or is there more
than once, does not count.

A fault that changes nothing anybody could notice stands in unnoticed.tsv beside this file, with its reason: file,
within, before, after, reason, separated by tabs, blanks and line ends as one blank each. The summary counts these
apart, and names the rows whose text is no longer there.
"""

import argparse
import collections
import dataclasses
import json
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import threading
import time

# The folder of the sources stays as it is.
sys.dont_write_bytecode = True
from faults import KINDS, Mutant, choose, find, read_sources

HERE = pathlib.Path(__file__).resolve().parent

# --- Building and running --------------------------------------------------------------------------------------------


class Worker:
    """A copy of the tree, with its build."""

    def __init__(self, folder, arguments):
        self.tree, self.build, self.folder = folder / "tree", folder / "build", folder
        self.targets, self.cores = arguments.tests.split(","), max(1, (os.cpu_count() or 1) // arguments.jobs)
        self.shaky, self.process = set(), None
        (folder / "tmp").mkdir(parents=True, exist_ok=True)
        self.environment = dict(os.environ, CCACHE_BASEDIR=str(self.tree), CCACHE_NOHASHDIR="1", GTEST_FAIL_FAST="1",
                                GTEST_COLOR="no", TMPDIR=str(folder / "tmp"), TEST_TMPDIR=f"{folder / 'tmp'}/")
        self._copy(arguments.source)
        flags = "-O1 -w" + (" -fuse-ld=lld" if shutil.which("ld.lld") else "")
        settings = ["CMAKE_BUILD_TYPE=", f"CMAKE_CXX_FLAGS={flags}", "CMAKE_LINK_DEPENDS_NO_SHARED=ON",
                    "IMSXML_STRICT=OFF", "IMSXML_BUILD_BENCH=OFF", "CMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST"]
        if shutil.which("ccache"):
            settings.append("CMAKE_CXX_COMPILER_LAUNCHER=ccache")
        self.sanitized = any("SANITIZE" in setting for setting in arguments.define)
        command = ["cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja"]
        command += [f"-D{setting}" for setting in settings + arguments.define]
        if self._run(command, "configure.log") != 0 or not self.builds():
            sys.exit(f"the tree does not build; see {folder}/*.log")
        self.programs = []
        for target in self.targets:
            found = [path for path in self.build.rglob(target) if path.is_file() and os.access(path, os.X_OK)]
            if len(found) != 1:
                sys.exit(f"no test program {target}")
            self.programs += found

    def _copy(self, source):
        """Brings the copy up to date, and leaves alone what is the same, so that it is not built again."""
        def files(root):
            for folder, folders, names in os.walk(root):
                folders[:] = [name for name in folders if name not in ("build", ".git") and not name.startswith("obj-")]
                yield from (pathlib.Path(folder, name).relative_to(root) for name in names)
        wanted = set(files(source))
        for name in set(files(self.tree)) - wanted:
            (self.tree / name).unlink()
        for name in wanted:
            to = self.tree / name
            if not to.is_file() or to.read_bytes() != (source / name).read_bytes():
                to.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source / name, to)

    def _run(self, command, log, seconds=None):
        with open(self.folder / log, "wb") as output:
            self.process = subprocess.Popen([str(word) for word in command], stdin=subprocess.DEVNULL, stdout=output,
                                            stderr=subprocess.STDOUT, env=self.environment, cwd=self.folder,
                                            start_new_session=True)
            try:
                return self.process.wait(seconds)
            except subprocess.TimeoutExpired:
                return -signal.SIGXCPU
            finally:
                self.stop()

    def stop(self):
        """Ends what is running, with its children."""
        if self.process is not None and self.process.poll() is None:
            os.killpg(self.process.pid, signal.SIGKILL)
            self.process.wait()

    def _run_limited(self, command, seconds):
        """Processor time is the same on a busy machine; the clock only ends what waits for ever."""
        limits = f"ulimit -c 0; ulimit -t {seconds}; ulimit -f 10000000; "
        limits += "" if self.sanitized else "ulimit -v 4000000; "
        return self._run(["sh", "-c", limits + 'exec "$@"', "sh", *command], "test.log", 60 + 10 * seconds)

    def builds(self):
        return self._run(["ninja", "-C", self.build, f"-j{self.cores}", *self.targets], "build.log") == 0

    def measure(self):
        """Runs all tests without a fault. @return the stages they are run in later: (program, tests, seconds)."""
        stages = []
        for program in self.programs:
            report = self.folder / "report.json"
            report.unlink(missing_ok=True)
            begin = time.monotonic()
            if self._run_limited([program, f"--gtest_output=json:{report}"], 600) != 0:
                sys.exit(f"the tests fail without a fault; see {self.folder}/test.log")
            if not report.exists():
                stages.append((program, None, time.monotonic() - begin))
                continue
            times = {f"{test['classname']}.{test['name']}": float(test["time"].rstrip("s"))
                     for suite in json.loads(report.read_text())["testsuites"] for test in suite["testsuite"]}
            for above, upto in ((-1, 0.02), (0.02, 0.2), (0.2, 1e9)):
                tests = [test for test, seconds in times.items() if above < seconds <= upto]
                if tests:
                    stages.append((program, tests, sum(times[test] for test in tests)))
        return sorted(stages, key=lambda stage: stage[2])

    def _run_tests(self, program, tests, seconds):
        """@return None, or (test or program, how) when something was noticed."""
        command = [program]
        if tests is not None:
            flags = self.folder / "flags"
            flags.write_text("--gtest_filter=" + ":".join(tests) + "\n")
            command.append(f"--gtest_flagfile={flags}")
        status = self._run_limited(command, int(10 + 4 * seconds))
        if status == 0:
            return None
        log = (self.folder / "test.log").read_text(errors="replace")
        failed = re.search(r"^\[  FAILED  \] ([^\s,]+)", log, re.MULTILINE)
        if failed:
            return failed[1], "failed"
        begun = re.findall(r"^\[ RUN      \] (\S+)", log, re.MULTILINE)
        if status in (-signal.SIGXCPU, -signal.SIGKILL):
            how = "time limit"
        else:
            how = signal.Signals(-status).name if status < 0 else f"exit code {status}"
        return (begun[-1] if begun else program.name), how

    def judge(self, stages):
        """@return (test or program, how) of the first to notice a fault, or None."""
        for program, tests, seconds in stages:
            left = tests
            while (noticed := self._run_tests(program, left, seconds)) is not None:
                name, how = noticed
                trusted = tests is None or name not in left or how == "time limit"
                if trusted or self._run_tests(program, [name], seconds):
                    return noticed
                self.shaky.add(name)
                left = [test for test in left if test != name]
        return None

    def try_out(self, mutant, stages):
        begin = time.monotonic()
        path = self.tree / mutant.file
        original = path.read_bytes().decode() if path.exists() else ""
        at = find(mutant, original)
        if at is None:
            return {"noticed": None, "by": None, "how": "not in the tree", "seconds": 0}
        try:
            path.write_bytes((original[:at] + mutant.after + original[at + len(mutant.before):]).encode())
            if not self.builds():
                noticed, by, how = None, None, "does not compile"
            else:
                by, how = self.judge(stages) or (None, None)
                noticed = by is not None
        finally:
            path.write_bytes(original.encode())
        return {"noticed": noticed, "by": by, "how": how, "seconds": round(time.monotonic() - begin, 1)}


class Run:
    """The faults, shared by the workers. Which of them count does not depend on the number of workers."""

    def __init__(self, mutants, count, path):
        self.mutants, self.count, self.path = iter(mutants), count, path
        self.known = dict(read_results(path))
        self.counted, self.begun, self.lock = 0, 0, threading.Condition()
        self.ended, self.broken = False, False
        whole = path.read_text() if path.exists() else ""
        if whole and whole[-1] != "\n":
            path.write_text(whole[:whole.rfind("\n") + 1])

    def next(self):
        with self.lock:
            while True:
                self.lock.wait_for(lambda: self.counted + self.begun < self.count or self.begun == 0 or self.ended)
                mutant = next(self.mutants, None) if self.counted < self.count and not self.ended else None
                if mutant is None:
                    return None
                known = self.known.pop(mutant, None)
                if known is None:
                    self.begun += 1
                    return mutant
                self.counted += known["noticed"] is not None

    def end(self, broken):
        with self.lock:
            self.ended, self.broken = True, self.broken or broken
            self.lock.notify_all()

    def done(self, mutant, result):
        with self.lock:
            if self.broken:
                return
            self.begun -= 1
            self.counted += result["noticed"] is not None
            with open(self.path, "a") as results:
                results.write(json.dumps(dataclasses.asdict(mutant) | result) + "\n")
            said = {True: "noticed", False: "UNNOTICED", None: result["how"]}[result["noticed"]]
            by = f" by {result['by']} ({result['how']})" if result["by"] else ""
            what = f"{mutant.kind}, {mutant.file}:{mutant.line}"
            print(f"{self.counted}/{self.count} {result['seconds']:5.1f} s  {what}: {said}{by}", flush=True)
            self.lock.notify_all()


def run(mutants, count, arguments):
    workers = [Worker(arguments.build / f"{number}", arguments) for number in range(arguments.jobs)]
    stages = workers[0].measure()
    todo = Run(mutants, count, arguments.results)

    def work(worker):
        own = [(program, tests, seconds) for (path, tests, seconds) in stages
               for program in worker.programs if program.name == path.name]
        broken = True
        try:
            while (mutant := todo.next()) is not None:
                todo.done(mutant, worker.try_out(mutant, own))
            broken = False
        finally:
            todo.end(broken)

    threads = [threading.Thread(target=work, args=(worker,), daemon=True) for worker in workers]
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("ended"))
    try:
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
    finally:
        # What is interrupted has no result.
        if any(thread.is_alive() for thread in threads):
            todo.end(broken=True)
        for worker in workers:
            worker.stop()
    if todo.broken:
        sys.exit("a fault could not be judged")
    if todo.known:
        print(f"{len(todo.known)} results are of another tree, seed or count")
    for worker in workers:
        for name in sorted(worker.shaky):
            print(f"{name} failed among the others, but not alone")


# --- Results ---------------------------------------------------------------------------------------------------------


def read_results(path):
    """The records of a file, each with its fault; a line that was not written whole is left out."""
    if path is None or not path.exists():
        return []
    records = [json.loads(line) for line in path.read_text().splitlines() if line.endswith("}")]
    names = [field.name for field in dataclasses.fields(Mutant)]
    return [(Mutant(*(record[name] for name in names)), record) for record in records]


def one_line(text):
    return " ".join(text.split())


def read_known(sources):
    """The reasons of the faults that change nothing, and the rows that do not fit the tree."""
    rows = [line.split("\t") for line in (HERE / "unnoticed.tsv").read_text().splitlines() if line and line[0] != "#"]
    for row in rows:
        if len(row) != 5 or not row[4].strip():
            sys.exit(f"unnoticed.tsv: not file, within, before, after and reason: {row}")
    stale = [row for row in rows if row[0] not in sources or row[2] not in one_line(sources[row[0]].text)]
    return {tuple(row[:4]): row[4] for row in rows}, stale


def report(arguments, sources):
    """@return the percentage of the faults that were noticed, of those that change something."""
    known, stale = read_known(sources)
    records = read_results(arguments.results)
    earlier = {mutant: record for mutant, record in read_results(arguments.replay)}
    counts = collections.Counter()
    kinds = {kind: collections.Counter() for kind in KINDS}
    for mutant, record in records:
        reason = known.get((mutant.file, *map(one_line, (mutant.within, mutant.before, mutant.after))))
        verdict = {True: "noticed", False: "nothing" if reason else "unnoticed", None: record["how"]}[record["noticed"]]
        counts[verdict] += 1
        kinds[mutant.kind][verdict] += 1
        before = earlier.get(mutant, {"noticed": False})
        counts["before"] += before["noticed"] is True and record["noticed"] is not None
        if record["noticed"] is False:
            title = f"changes nothing: {reason}" if reason else "UNNOTICED"
            print(f"\n{mutant.file}:{mutant.line}: {mutant.kind}: {title}")
            print(f" in {mutant.within}\n-{mutant.before}\n+{mutant.after}")
            if before["noticed"]:
                print(f" noticed before, by {before['by']}")
    print()
    for kind, own in kinds.items():
        print(f"{kind:15} {own['noticed']:4} noticed {own['unnoticed']:4} unnoticed {own['nothing']:4} change nothing")
    for row in stale:
        print("unnoticed.tsv: no longer in the tree:", *row[:4])
    for reason in {record["how"] for _, record in records if record["noticed"] is None}:
        print(f"{counts[reason]} do not count: {reason}")
    counted = counts["noticed"] + counts["unnoticed"]
    share = 100 * counts["noticed"] / max(1, counted)
    seconds = sum(record["seconds"] for _, record in records) / max(1, counted + counts["nothing"])
    print(f"{counts['noticed']} of {counted} noticed, {share:.1f} %; {counts['nothing']} more change nothing; "
          f"{seconds:.1f} s each")
    if earlier:
        print(f"{counts['before']} of the same were noticed before")
    return share


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    tree = HERE.parent.parent
    parser.add_argument("results", type=pathlib.Path, metavar="RESULTS")
    parser.add_argument("--count", type=int, default=300, help="faults that compile (300)")
    parser.add_argument("--seed", default="1")
    parser.add_argument("--source", type=pathlib.Path, default=tree, help="the tree (this one)")
    parser.add_argument("--build", type=pathlib.Path, default=tree / "build/mutants", help="for copies (build/mutants)")
    parser.add_argument("--tests", default="otherdpl_test,imsxml_tests", help="CMake targets, separated by commas")
    parser.add_argument("--define", action="append", default=[], metavar="NAME=VALUE", help="a setting for CMake")
    parser.add_argument("--jobs", type=int, default=1, choices=(1, 2), help="copies at work at a time")
    parser.add_argument("--replay", type=pathlib.Path, metavar="RESULTS", help="seed the faults of these results")
    parser.add_argument("--least", type=float, default=0, metavar="PERCENT", help="exit code 1 if less are noticed")
    parser.add_argument("--list", action="store_true", help="only print the faults")
    parser.add_argument("--report", action="store_true", help="only print the summary")
    arguments = parser.parse_args()
    arguments.source, arguments.build = arguments.source.resolve(), arguments.build.resolve()
    os.nice(max(0, 10 - os.nice(0)))

    sources = read_sources(arguments.source)
    count = arguments.count
    if arguments.replay:
        mutants = [mutant for mutant, record in read_results(arguments.replay) if record["noticed"] is not None]
        count = len(mutants)
    else:
        mutants = choose(sources, arguments.seed)
    if arguments.list:
        for _, mutant in zip(range(count), mutants):
            print(f"{mutant.file}:{mutant.line}: {mutant.kind}\n-{mutant.before}\n+{mutant.after}")
        return 0
    if not arguments.report:
        run(mutants, count, arguments)
    return 1 if report(arguments, sources) < arguments.least else 0


if __name__ == "__main__":
    sys.exit(main())
