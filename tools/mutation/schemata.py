"""Makes the copy of the tree in which a variable chooses the mutant, and builds it."""
import os
import re
import shutil
import subprocess

from candidates import SOURCES

LEFT_OUT = {"build", ".git", ".cache"}
TOOL = "tools/mutation"
# What the copy's library compiles beside its own sources.
RUNTIME = {f"{TOOL}/mutants.cpp": f"{SOURCES}/frame/mutants.cpp", f"{TOOL}/mutants.h": f"{SOURCES}/frame/mutants.h"}


def choice(number, mutant, original):
    """Code that is the mutant when it is chosen. Each mutant starts from the unchanged text: only one is chosen."""
    if mutant.form == "statement":
        return f"(inv_mutant({number}) ? void() : void({original}))"
    if mutant.form == "condition":
        return f"(inv_mutant({number}) ? static_cast<bool>({mutant.mutated}) : static_cast<bool>({original}))"
    return f"(inv_mutant({number}) ? ({mutant.mutated}) : ({original}))"


def rewrite(text, mutants):
    """The text with every mutant in it, on the lines where it was. mutants: (number, candidate)."""
    places = {}
    for number, mutant in mutants:
        places.setdefault((mutant.start, mutant.end), []).append((number, mutant))
    # Places nest as expressions do; the outer ones come first.
    order = sorted(places, key=lambda place: (place[0], -place[1]))

    def render(begin, end):
        """The text from begin to end; takes the places that begin there off the order."""
        made = []
        while order and order[0][1] <= end and order[0][0] >= begin:
            start, stop = order.pop(0)
            made.append(text[begin:start])
            inner = render(start, stop)
            # A dropped statement or a condition takes in what is said of its value.
            for number, mutant in sorted(places[start, stop], key=lambda m: m[1].form == "statement"):
                inner = choice(number, mutant, inner)
            made.append(inner)
            begin = stop
        made.append(text[begin:end])
        return "".join(made)

    return render(0, len(text))


def wanted_files(root):
    for folder, folders, names in os.walk(root):
        folders[:] = [f for f in folders if f not in LEFT_OUT and f != "__pycache__"]
        for name in names:
            yield os.path.relpath(os.path.join(folder, name), root)


def write_copy(root, copy, mutants):
    """Brings the copy to the state of the tree with the mutants; files that are right already stay untouched."""
    by_file = {}
    for number, mutant in mutants.items():
        by_file.setdefault(mutant.file, []).append((number, mutant))
    wanted = {name: name for name in wanted_files(root) if name != ".git"}
    wanted.update({to: source for source, to in RUNTIME.items()})
    for name, source in wanted.items():
        path = os.path.join(root, source)
        with open(path, "rb") as file:
            content = file.read()
        if name in by_file:
            content = rewrite(content.decode("latin-1"), by_file[name]).encode("latin-1")
        place = os.path.join(copy, name)
        if os.path.isfile(place):
            with open(place, "rb") as file:
                if file.read() == content:
                    continue
        os.makedirs(os.path.dirname(place), exist_ok=True)
        with open(place, "wb") as file:
            file.write(content)
        shutil.copymode(path, place)
    for name in list(wanted_files(copy)):
        if name not in wanted:
            os.unlink(os.path.join(copy, name))


def configure(copy, build):
    flags = "-O1 -w -Wno-narrowing -D_GLIBCXX_ASSERTIONS " + f"-include {copy}/{SOURCES}/frame/mutants.h"
    subprocess.run(["cmake", "-S", copy, "-B", build, "-G", "Ninja", "--log-level=WARNING",
                    "-DCMAKE_BUILD_TYPE=Mutation", f"-DCMAKE_CXX_FLAGS_MUTATION={flags}",
                    "-DCMAKE_C_FLAGS_MUTATION=-O1 -w", "-DINV_HARDENING=OFF"],
                   check=True, stdout=subprocess.DEVNULL)


def build_copy(build, folders, jobs):
    """Builds what the tests of some folders need. Returns the places (file, line) that do not compile; none when
    everything is built."""
    targets = [f"{folder}/all" for folder in folders]
    done = subprocess.run(["ninja", "-C", build, "-k", "0", "-j", str(jobs), *targets], text=True, capture_output=True)
    with open(os.path.join(build, "build.log"), "w", encoding="utf-8") as log:
        log.write(done.stdout + done.stderr)
    if done.returncode == 0:
        return set()
    places = re.findall(rf"({SOURCES}/[^\s:]+):(\d+):\d+: error", done.stdout)
    if not places:
        raise SystemExit(f"the copy does not build: see {build}/build.log")
    return {(name, int(line)) for name, line in places}


def touches(mutant, places, root):
    """Whether one of the places lies on the mutant's lines."""
    with open(os.path.join(root, mutant.file), encoding="latin-1") as file:
        text = file.read()
    last = mutant.line + text.count("\n", mutant.start, mutant.end)
    return any(name == mutant.file and mutant.line <= line <= last for name, line in places)
