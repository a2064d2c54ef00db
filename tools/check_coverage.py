#!/usr/bin/python3
"""Compares the lines that no test runs with the list of those that are known, and why.

check_coverage.py REPORT [--list docs/uncovered.md] [--figures] [--update]

REPORT is gcovr's JSON. A line that is not covered and not in the list is an error, as are a row without a reason and
a row whose line is covered now, or gone. Lines are known by file and text, not by number, so that edits
elsewhere in a file leave the list alone; a text that is uncovered twice in a file has two rows.
--figures prints lines and branches by folder as a Markdown table. --update writes the list: new lines get rows
without a reason, rows that are no longer needed go.
"""
import argparse
import collections
import json
import pathlib
import re
import subprocess
import sys

HEAD = """# Lines that no test runs

`make coverage` compares this list with its report: a line that is not covered and not listed fails it. After a
change `tools/check_coverage.py build/coverage/coverage.json --update` adds and removes rows; the reasons are
written by hand. Lines are known by their text, so that their numbers do not matter.
"""
ROW = re.compile(r"^\| `(?P<function>[^`]*)` \| (?P<text>`.*`) \| (?P<reason>.*?) ?\|$")


def quoted(text):
    """The text as code in a table cell."""
    mark = "``" if "`" in text else "`"
    return mark + text.replace("|", "\\|") + mark


def short_name(name):
    """A demangled name without arguments, template arguments, result and the project's namespaces."""
    name = name.replace("(anonymous namespace)::", "").split(" [clone")[0]
    while "<" in name.replace("operator<", ""):
        bare = re.sub(r"<[^<>]*>", "", name)
        if bare == name:
            break
        name = bare
    parts = name.split("(")[0].split()
    return re.sub(r"^inv::(?:\w+::)?", "", parts[-1]) if parts else ""


def demangle(names):
    """The names of functions as they are written, by their symbols."""
    shown = subprocess.run(["c++filt"], input="\n".join(names), capture_output=True, text=True, check=True)
    return dict(zip(names, shown.stdout.splitlines()))


def uncovered_lines(report, sources):
    """(file, function, text) of each line that was compiled and never run."""
    symbols = demangle(sorted({f["name"] for part in report["files"] for f in part["functions"]}))
    for part in report["files"]:
        starts = sorted((f["lineno"], short_name(symbols[f["name"]])) for f in part["functions"])
        text = (sources / part["file"]).read_text(encoding="utf-8").splitlines()
        for line in part["lines"]:
            if line["count"] != 0 or line["gcovr/noncode"]:
                continue
            before = [name for number, name in starts if number <= line["line_number"]]
            yield part["file"], before[-1] if before else "", text[line["line_number"] - 1].strip()


def read_list(path):
    """(file, text) to the reasons of its rows, in order."""
    rows = collections.defaultdict(list)
    file = None
    for line in path.read_text(encoding="utf-8").splitlines() if path.exists() else []:
        if line.startswith("## "):
            file = line[3:].strip().strip("`")
        elif file is not None and (row := ROW.match(line)):
            rows[file, row["text"]].append(row["reason"])
    return rows


def write_list(path, found, rows):
    """Rows for what was found, with the reasons that are there."""
    left = {key: list(reasons) for key, reasons in rows.items()}
    lines = [HEAD]
    file = None
    for name, function, text in found:
        if name != file:
            lines += ["" if file else None, f"## {name}", "", "| Function | Line | Reason |", "|---|---|---|"]
            file = name
        reasons = left.get((name, quoted(text)), [])
        lines.append(f"| `{function}` | {quoted(text)} | {reasons.pop(0) if reasons else ''} |")
    path.write_text("\n".join(line for line in lines if line is not None) + "\n", encoding="utf-8")


def compare(found, rows):
    """Prints what differs; False where the list has to be mended."""
    count = collections.Counter((name, quoted(text)) for name, _, text in found)
    good = True
    for (name, text), number in count.items():
        if number > len(rows.get((name, text), [])):
            print(f"not covered and not listed: {name}: {text}")
            good = False
    for (name, text), reasons in rows.items():
        if not all(reasons):
            print(f"listed without a reason: {name}: {text}")
            good = False
        if len(reasons) > count[name, text]:
            print(f"listed, but covered or gone: {name}: {text}")
            good = False
    return good


def folder_of(name):
    """What a file is counted under: the folder below platform or src, its own one for other headers."""
    return str(pathlib.PurePath(name).parent)


def print_figures(report):
    """Lines and branches by folder."""
    totals = collections.defaultdict(lambda: [0, 0, 0, 0])
    for part in report["files"]:
        for line in part["lines"]:
            if line["gcovr/noncode"]:
                continue
            for total in totals[folder_of(part["file"])], totals["all"]:
                total[0] += line["count"] > 0
                total[1] += 1
                total[2] += sum(branch["count"] > 0 for branch in line["branches"])
                total[3] += len(line["branches"])
    print("| folder | lines | covered | branches | covered |\n|---|---:|---:|---:|---:|")
    for name in sorted(totals, key=lambda name: (name == "all", name)):
        lines, all_lines, branches, all_branches = totals[name]
        print(f"| {name} | {all_lines} | {100 * lines / max(all_lines, 1):.1f} % "
              f"| {all_branches} | {100 * branches / max(all_branches, 1):.1f} % |")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("report", type=pathlib.Path)
    sources = pathlib.Path(__file__).resolve().parent.parent
    parser.add_argument("--list", type=pathlib.Path, default=sources / "docs/uncovered.md")
    parser.add_argument("--figures", action="store_true")
    parser.add_argument("--update", action="store_true")
    options = parser.parse_args()

    report = json.loads(options.report.read_text(encoding="utf-8"))
    if options.figures:
        print_figures(report)
        return 0
    found = list(uncovered_lines(report, sources))
    if options.update:
        write_list(options.list, found, read_list(options.list))
    if not compare(found, read_list(options.list)):
        return 1
    print(f"{len(found)} lines are not covered, each with its reason in {options.list.name}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
