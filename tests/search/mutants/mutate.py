#!/usr/bin/env python3
"""Makes one small change of the program at a time and reports which changes the tests notice.

mutate.py [--places N] [--seed N] [--workers N] [FOLDER...]
mutate.py --again LOG [--workers N] [FOLDER...]

A folder is one below src, such as "host", "ui" or "ui/kit". Without a folder it takes those of the model. --again tries only
the changes that slipped through in an earlier run, whose output LOG is.

Each worker has a copy of the committed tree below build/mutants. A change that does not build does not count, nor does
one from which the compiler makes the same object file, because it behaves like the original. A change is noticed when a
test program fails. The others are printed with their place. For a change in "ui" that no test notices, the script compares
the pictures of all windows with those of the unchanged tree. A change of the pictures alone counts separately: it is found
when somebody compares two builds, not by ./test."""
import argparse
import contextlib
import hashlib
import json
import os
import pathlib
import queue
import random
import re
import shutil
import signal
import subprocess
import sys
import threading

TOP = pathlib.Path(__file__).resolve().parents[3]
FOLDERS = ["codecs", "firmware", "image", "core", "files", "panels", "registers", "link", "changes", "text_form", "checks",
           "acts", "sheet", "start"]
# Tests of the windows that take seconds. The others notice most changes first.
SLOW = "Pictures.*:RegisterFrames.*:UnsavedCopy.*:*/Keyboard.EveryControl*:HelpWindowTest.ThePages*:*SiteSheetFile.*"
PROGRAMS_WITH_WINDOWS = ["ovl-monkey 150", "test_ui --gtest_filter=-" + SLOW, "test_ui --gtest_filter=" + SLOW]
# The tests of a folder come first: most changes are noticed there.
PROGRAMS = ["test_codecs", "test_firmware", "test_image", "test_core", "test_files", "test_panels", "test_registers", "test_link",
            "test_changes", "test_text_form", "test_checks", "test_acts", "test_sheet", "test_start", "test_host", "test_tools",
            "test_stories", "ovl-disk-faults", "ovl-reference-model 50000", "ovl-fault-sweep 1499", "ovl-random-walk 3000",
            "ovl-text-walk 1", *PROGRAMS_WITH_WINDOWS, "ovl-power-cuts"]
# The others do not use "host".
PROGRAMS_WITH_HOST = ["test_host", "test_files", "test_text_form", "test_start", "test_tools", "test_stories", "ovl-disk-faults",
                      "ovl-text-walk 1", *PROGRAMS_WITH_WINDOWS, "ovl-power-cuts"]
MAIN = pathlib.Path("src/ui/app/main.cpp")
# No test program runs the main function of the program.
TESTS_THAT_START_OVL = "^(story_images|session_.*|command_line_ovl)$"
SWAPS = [(r" == ", " != "), (r" != ", " == "), (r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "),
         (r" && ", " || "), (r" \|\| ", " && "), (r"\btrue\b", "false"), (r"\bfalse\b", "true"), (r" \+ ", " - ")]
NUMBER = re.compile(r"(?<![\w.\"'])(0x[0-9A-Fa-f]+|[1-9]\d*|0)(?![\w.\"'])")
STATEMENT = re.compile(r"^\s+(?!return|using|case|const |constexpr|static_assert|auto |throw|break|continue)[\w.:>\[\]()-]+.*;$")


def places_of(path):
    """Every small step that the file offers: line, its new text."""
    for at, line in enumerate(path.read_text().split("\n")):
        code = line.split("//")[0]
        # Reserved memory changes nothing but the time.
        if not code.strip() or code.lstrip().startswith("#") or ".reserve(" in code:
            continue
        for pattern, other in SWAPS:
            for match in re.finditer(pattern, code):
                yield at, line[:match.start()] + other + line[match.end():]
        for match in NUMBER.finditer(code):
            number = int(match.group(), 0) + 1
            text = hex(number) if match.group().startswith("0x") else str(number)
            yield at, line[:match.start()] + text + line[match.end():]
        if STATEMENT.match(code):
            yield at, ""


class Copy:
    """A copy of the committed tree, with its build."""

    def __init__(self, number):
        self.path = TOP / "build" / "mutants" / str(number)
        self.environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
        if not self.path.exists():
            subprocess.run(["git", "clone", "--quiet", TOP, self.path], check=True)
        subprocess.run(["git", "fetch", "--quiet", "origin"], cwd=self.path, check=True)
        subprocess.run(["git", "reset", "--quiet", "--hard", "origin/HEAD"], cwd=self.path, check=True)
        # With the model as a shared library a change links one file anew instead of every program.
        subprocess.run(["cmake", "-S", ".", "-B", "build", "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                        "-DCMAKE_CXX_FLAGS_DEBUG=-O2", "-DBUILD_SHARED_LIBS=ON", "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON",
                        "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON", "-DOVL_SEARCHES=ON", "-DOVL_CCACHE=ON",
                        "-DOVL_INSTALL_DATA=OFF"],
                       cwd=self.path, check=True, stdout=subprocess.DEVNULL)
        if not self.build(seconds=None):
            sys.exit("The unchanged tree does not build.")
        commands = json.loads((self.path / "build" / "compile_commands.json").read_text())
        self.unchanged_pictures = None
        self.commands = {pathlib.Path(command["file"]).relative_to(self.path): command["command"] for command in commands}

    def run(self, *words, seconds=600):
        # A change can make a program endless. It ends with this script, even if the script is killed.
        process = subprocess.Popen(["setpriv", "--pdeathsig", "KILL", *words], cwd=self.path, env=self.environment,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True)
        try:
            return process.wait(timeout=seconds)
        except subprocess.TimeoutExpired:
            return "late"
        finally:
            # The processes that it started.
            with contextlib.suppress(ProcessLookupError):
                os.killpg(process.pid, signal.SIGKILL)
            process.wait()

    def build(self, *targets, seconds=600):
        return self.run("ninja", "-C", "build", *targets, seconds=seconds) == 0

    def compiled(self, source):
        """The object file of a source, or nothing."""
        words = self.commands[source].split()
        made = words[words.index("-o") + 1]
        return (self.path / "build" / made).read_bytes() if self.build(made) else None

    def notices(self, source):
        """The program that fails first."""
        top = source.parts[1]
        programs = {"ui": PROGRAMS_WITH_WINDOWS, "host": PROGRAMS_WITH_HOST}.get(top, PROGRAMS)
        for program in sorted(programs, key=lambda name: name != "test_" + top):
            name, *words = program.split()
            options = ["--gtest_fail_fast", *words] if name.startswith("test_") else words
            if self.run("build/bin/" + name, *options, seconds=300) != 0:
                return name
        if source.parent == MAIN.parent and self.run("ctest", "--test-dir", "build", "-R", TESTS_THAT_START_OVL) != 0:
            return "ctest"
        return None

    def pictures(self):
        """A digest of the pictures and spoken texts of all windows."""
        # Some texts contain the path, so it is always the same.
        place = self.path / "build" / "site"
        shutil.rmtree(place, ignore_errors=True)
        (place / "ORB").mkdir(parents=True)
        (place / "ORB" / "OVL Software.conf").write_text("[General]\nVersion=V1400\nRelease=R12\n")
        self.run("build/bin/ovl-images", place, "V1400R12")
        status = self.run("build/bin/ovl-pictures", "--folder", place, "--store", place, place / "pictures", seconds=120)
        made = hashlib.sha256(str(status).encode())
        for path in sorted(path for path in (place / "pictures").rglob("*") if path.is_file()):
            made.update(str(path.relative_to(place)).encode() + path.read_bytes())
        return made.digest()

    def looks_other(self):
        """True if the pictures differ from those of the unchanged tree, both times that they are taken."""
        return self.unchanged_pictures is not None and all(self.pictures() != self.unchanged_pictures for _ in range(2))


class Count:
    """What came of the changes of one folder."""

    def __init__(self, folder, wanted):
        self.folder, self.wanted = folder, wanted
        self.tried = self.noticed = self.pictured = self.same = 0
        self.compared = False  # the pictures
        self.lock = threading.Lock()

    def add(self, source, at, before, text, by):
        with self.lock:
            if self.tried == self.wanted:
                return
            self.tried += 1
            self.pictured += by == "pictures"
            self.noticed += by not in (None, "pictures")
            if by in (None, "pictures"):
                print(f"{'only in ' + by if by else 'missed'}, place {self.tried}: {source}:{at + 1}")
                print(f"  - {before.strip()}\n  + {text.strip()}", flush=True)

    def report(self):
        share, seen = (100 * number / max(self.tried, 1) for number in (self.noticed, self.noticed + self.pictured))
        pictures = f"with {self.pictured} only in pictures {seen:5.1f} %; " if self.compared else ""
        print(f"{self.folder:10} {self.noticed:4} of {self.tried:4} noticed, {share:5.1f} %; "
              f"{pictures}{self.same} more compile to the same code", flush=True)


def work(copy, steps, count):
    """Takes changes until enough of them were tried."""
    while count.tried < count.wanted:
        try:
            source, at, text = steps.get_nowait()
        except queue.Empty:
            return
        path = copy.path / source
        whole, original = path.read_text(), copy.compiled(source)
        lines = whole.split("\n")
        before, lines[at] = lines[at], text
        path.write_text("\n".join(lines))
        changed = copy.compiled(source)
        if changed is not None and changed == original:
            count.same += 1
        elif changed is not None and copy.build():
            by = copy.notices(source)
            if by is None and copy.looks_other():
                by = "pictures"
            count.add(source, at, before, text, by)
        path.write_text(whole)


def slipped_through(log, top):
    """The changes that a run before printed, where their lines still exist."""
    lines = log.read_text().split("\n")
    for place, before, text in zip(lines, lines[1:], lines[2:]):
        found = re.match(r"(?:missed|only in pictures), place \d+: (\S+):(\d+)$", place)
        if not found:
            continue
        source, number = pathlib.Path(found[1]), int(found[2])
        now = (top / source).read_text().split("\n") if (top / source).exists() else []
        same = [at for at, line in enumerate(now) if line.strip() == before[4:]]
        if not same:
            print(f"gone: {source}:{number}")
            continue
        at = min(same, key=lambda at: abs(at + 1 - number))
        indent = now[at][:len(now[at]) - len(now[at].lstrip())]
        yield source, at, indent + text[4:]


def try_changes(copies, folder, changes, wanted):
    """Tries the changes of a folder below src until as many as wanted counted."""
    sources = sorted({source for source, _, _ in changes})
    if any(copies[0].notices(source) for source in sources if source in (sources[0], MAIN)):
        sys.exit("The tests of the unchanged tree fail.")
    for copy in copies:
        copy.unchanged_pictures = copy.pictures() if folder.startswith("ui") else None
        if copy.unchanged_pictures is not None and not (copy.path / "build/site/pictures/light/about.png").exists():
            sys.exit("The pictures of the unchanged tree cannot be taken.")
        if copy.looks_other():
            sys.exit("The pictures of the unchanged tree differ from run to run.")
    steps = queue.SimpleQueue()
    for change in changes:
        steps.put(change)
    count = Count(folder, wanted)
    count.compared = copies[0].unchanged_pictures is not None
    workers = [threading.Thread(target=work, args=(copy, steps, count)) for copy in copies]
    for worker in workers:
        worker.start()
    for worker in workers:
        worker.join()
    count.report()
    return count


def main():
    words = argparse.ArgumentParser(usage=__doc__)
    words.add_argument("--places", type=int, default=300)
    words.add_argument("--seed", type=int, default=1)
    words.add_argument("--workers", type=int, default=2)
    words.add_argument("--again", type=pathlib.Path)
    words.add_argument("folders", nargs="*", default=FOLDERS)
    options = words.parse_args()
    copies = [Copy(number) for number in range(options.workers)]
    top = copies[0].path
    rng = random.Random(options.seed)
    repeated = list(slipped_through(options.again, top)) if options.again else None
    counts = []
    for folder in options.folders:
        below = f"src/{folder}"
        if repeated is not None:
            changes = [change for change in repeated if change[0].is_relative_to(below)]
            wanted = len(changes)
        else:
            # The sources for another system are not compiled.
            sources = sorted(source for source in copies[0].commands if source.is_relative_to(below))
            offered = [(source, at, text) for source in sources for at, text in places_of(top / source)]
            changes = rng.sample(offered, len(offered))
            wanted = options.places // len(options.folders)
        if changes:
            counts.append(try_changes(copies, folder, changes, wanted))
    total = Count("all", 0)
    for name in ("tried", "noticed", "pictured", "same"):
        setattr(total, name, sum(getattr(count, name) for count in counts))
    total.compared = any(count.compared for count in counts)
    total.report()


if __name__ == "__main__":
    main()
