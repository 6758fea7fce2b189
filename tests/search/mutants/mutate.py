#!/usr/bin/env python3
"""Makes one small change of the program at a time and reports which changes the tests notice.

mutate.py [--places N] [--seed N] [FOLDER...]

A folder is one below src, such as "host", "ui" or "ui/kit". Without a folder it takes those of the model.

Works in a copy of the committed tree below build/mutants. A change that does not build does not count, nor does
one from which the compiler makes the same object file, because it behaves like the original. A change is noticed when a
test program fails. The others are printed with their place."""
import argparse
import json
import pathlib
import random
import re
import shlex
import subprocess
import sys

TOP = pathlib.Path(__file__).resolve().parents[3]
COPY = TOP / "build" / "mutants"
FOLDERS = ["codecs", "firmware", "image", "core", "files", "panels", "registers", "link", "changes", "text_form", "checks",
           "acts", "sheet", "start"]
# The tests of a folder come first: most changes are noticed there.
PROGRAMS = ["test_codecs", "test_firmware", "test_image", "test_core", "test_files", "test_panels", "test_registers", "test_link",
            "test_changes", "test_text_form", "test_checks", "test_acts", "test_sheet", "test_start", "test_host", "test_tools",
            "test_stories", "ovl-disk-faults", "ovl-reference-model 50000", "ovl-fault-sweep 1499", "ovl-random-walk 3000",
            "ovl-text-walk 1", "test_ui", "ovl-monkey 150", "ovl-power-cuts"]
# The others have no part of the windows.
PROGRAMS_WITH_WINDOWS = ["test_ui", "ovl-monkey 150"]
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


def run(*words, seconds=600):
    try:
        return subprocess.run(words, cwd=COPY, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=seconds).returncode
    except subprocess.TimeoutExpired:
        return "late"


def prepare():
    if not COPY.exists():
        subprocess.run(["git", "clone", "--quiet", TOP, COPY], check=True)
    subprocess.run(["git", "fetch", "--quiet", "origin"], cwd=COPY, check=True)
    subprocess.run(["git", "reset", "--quiet", "--hard", "origin/HEAD"], cwd=COPY, check=True)
    # With the model as a shared library a change links one file anew instead of every program.
    subprocess.run(["cmake", "-S", ".", "-B", "build", "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                    "-DCMAKE_CXX_FLAGS_DEBUG=-O1", "-DBUILD_SHARED_LIBS=ON", "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON",
                    "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON", "-DOVL_SEARCHES=ON", "-DOVL_CCACHE=ON", "-DOVL_INSTALL_DATA=OFF"],
                   cwd=COPY, check=True, stdout=subprocess.DEVNULL)
    if not build(seconds=None) or notices(FOLDERS[0]):
        sys.exit("The unchanged tree does not build, or its tests fail.")


def build(seconds=600):
    return run("ninja", "-C", "build", *(program.split()[0] for program in PROGRAMS), seconds=seconds) == 0


def compiled(path):
    """The optimised object file without anything for a debugger, or nothing."""
    commands = json.loads((COPY / "build" / "compile_commands.json").read_text())
    words = next(shlex.split(command["command"]) for command in commands if command["file"] == str(path))
    made = COPY / "build" / "compared.o"
    words[words.index("-o") + 1] = str(made)
    return made.read_bytes() if run(*words, "-O2", "-g0") == 0 else None


def notices(folder):
    """The program that fails first."""
    top = folder.split("/")[0]
    programs = PROGRAMS_WITH_WINDOWS if top == "ui" else PROGRAMS
    for program in sorted(programs, key=lambda name: name != "test_" + top):
        name, *words = program.split()
        options = ["--gtest_fail_fast"] if name.startswith("test_") else words
        if run("build/bin/" + name, *options, seconds=300) != 0:
            return name
    return None


def main():
    words = argparse.ArgumentParser(usage=__doc__)
    words.add_argument("--places", type=int, default=300)
    words.add_argument("--seed", type=int, default=1)
    words.add_argument("folders", nargs="*", default=FOLDERS)
    options = words.parse_args()
    prepare()
    rng = random.Random(options.seed)
    rows = []
    originals = {}
    for folder in options.folders:
        steps = [(path, at, text) for path in sorted((COPY / "src" / folder).rglob("*.cpp")) for at, text in places_of(path)]
        noticed, tried, same = 0, 0, 0
        for path, at, text in rng.sample(steps, len(steps)):
            if tried == options.places // len(options.folders):
                break
            whole = path.read_text()
            if path not in originals:
                originals[path] = compiled(path)
            lines = whole.split("\n")
            before, lines[at] = lines[at], text
            path.write_text("\n".join(lines))
            changed = compiled(path)
            if changed is not None and changed == originals[path]:
                same += 1
            elif changed is not None and build():
                tried += 1
                by = notices(folder)
                noticed += by is not None
                if by is None:
                    print(f"missed, place {tried}: {path.relative_to(COPY)}:{at + 1}")
                    print(f"  - {before.strip()}\n  + {text.strip()}", flush=True)
            path.write_text(whole)
        rows.append((tried, noticed, same))
        report(folder, *rows[-1])
    report("all", *(sum(column) for column in zip(*rows)))


def report(what, tried, noticed, same):
    share = 100 * noticed / max(tried, 1)
    print(f"{what:10} {noticed:4} of {tried:4} noticed, {share:5.1f} %; {same} more compile to the same code", flush=True)


if __name__ == "__main__":
    main()
