#!/usr/bin/python3
"""Mutation testing of the library's hand-written sources.

Draws mutants (one operator, constant, condition or statement that differs), builds a copy of the tree that holds them
all, each behind a variable, and runs the tests with one mutant at a time. A mutant is killed by the first test program
that fails, crashes or does not end. See --help.
"""
import argparse
import collections
import concurrent.futures
import json
import os
import random
import re
import sys
import time

sys.dont_write_bytecode = True  # the sources stay as they are

import candidates  # noqa: E402
import programs  # noqa: E402
import schemata  # noqa: E402

# Those of tests/check and tests/cli take as long to build as all these.
FOLDERS = ["tests/unit", "tests/documents", "tests/schema", "examples", "fuzz"]
EXPLAINED = "tools/mutation/survivors.md"


def draw(found, count, seed, rejected):
    """Draws numbers of mutants, from each file in proportion to what it has. A file's draw depends on its own
    candidates alone, as far as its share allows."""
    by_file = collections.defaultdict(list)
    for number, mutant in enumerate(found, 1):
        by_file[mutant.file].append(number)
    shares = {name: count * len(numbers) / len(found) for name, numbers in by_file.items()}
    taken = {name: int(share) for name, share in shares.items()}
    for name in sorted(shares, key=lambda n: taken[n] - shares[n])[:count - sum(taken.values())]:
        taken[name] += 1
    drawn = []
    for name, numbers in by_file.items():
        random.Random(f"{seed} {name}").shuffle(numbers)
        drawn += [n for n in numbers if key_of(found[n - 1]) not in rejected][:taken[name]]
    return sorted(drawn)


def key_of(mutant):
    """What a mutant is known by when lines move. Mutants of equal parts of a line have the same."""
    return (os.path.relpath(mutant.file, candidates.SOURCES), mutant.function, mutant.source, mutant.change)


def read_explained(path):
    """survivors.md: a section per file, per mutant a list entry of function, source line, change and reason.
    - `function`: `source line` : `change`
      reason
    """
    explained = collections.defaultdict(list)
    name = None
    with open(path, encoding="utf-8") as file:
        text = file.read()
    for block in re.split(r"\n(?=- |#)", text):
        if heading := re.match(r"## (\S+)", block):
            name = heading[1]
        elif entry := re.match(r"- `(\w*)`: ``?(.+?)``? : ``?(.+?)``?\s*\n\s+(\S.*)", block, re.S):
            explained[name, entry[1], entry[2].strip(), entry[3].strip()].append(" ".join(entry[4].split()))
    return explained


def build_mutants(found, args):
    """Builds the copy; mutants that are no valid code are replaced by others. Returns the mutants by number."""
    rejected = set()
    for _ in range(8):
        numbers = draw(found, args.count, args.seed, rejected)
        mutants = {number: found[number - 1] for number in numbers}
        schemata.write_copy(args.root, args.copy, mutants)
        schemata.configure(args.copy, args.build)
        places = schemata.build_copy(args.build, args.folders, args.jobs)
        if not places:
            print(f"{len(found)} candidates, {len(mutants)} drawn, {len(rejected)} were no valid code")
            return mutants
        invalid = {key_of(m) for m in mutants.values() if schemata.touches(m, places, args.root)}
        if not invalid:
            break
        rejected |= invalid
    raise SystemExit(f"the copy does not build: see {args.build}/build.log")


def in_order(tests, mutant):
    """The programs that pass the mutant: its folder's unit tests, other unit tests, documents, the rest."""
    folder = mutant.file.split("/")[-2]

    def rank(program):
        group = os.path.basename(program.folder)
        own = program.name.startswith(folder)
        return (0 if own else {"unit": 1, "documents": 2}.get(group, 3), program.seconds)

    return sorted(tests, key=rank)


def judge(number, mutant, tests, args):
    begin = time.monotonic()
    outcome, killer, tried = "survived", None, 0
    for program in in_order([t for t in tests if t.seen[number]], mutant):
        tried += 1
        result = programs.run(program, args.build, number, program.limits)
        if result != "passed":
            outcome, killer = ("killed" if result == "failed" else "timed out"), program.name
            break
    name, function, source, change = key_of(mutant)
    return {"number": number, "file": name, "function": function, "line": mutant.line, "source": source, "change": change,
            "outcome": outcome, "by": killer, "programs": tried,
            "seconds": round(time.monotonic() - begin, 2)}


def run_mutants(mutants, tests, args):
    results = []
    with concurrent.futures.ThreadPoolExecutor(args.jobs) as pool:
        waiting = [pool.submit(judge, number, mutant, tests, args) for number, mutant in mutants.items()]
        for done in concurrent.futures.as_completed(waiting):
            results.append(done.result())
            if args.verbose or len(results) % 25 == 0:
                row = results[-1]
                print(f"{len(results)}/{len(mutants)} {row['file']}:{row['line']} {row['outcome']} {row['by'] or ''}"
                      f" {row['seconds']} s", flush=True)
    return sorted(results, key=lambda row: row["number"])


def merge(results, path):
    """A run of some mutants replaces their rows of the last report, which must be of the same mutants."""
    with open(path, encoding="utf-8") as file:
        rows = {row["number"]: row for row in json.load(file)["mutants"]}
    for row in results:
        before = rows.get(row["number"])
        if before is None or before["change"] != row["change"] or before["file"] != row["file"]:
            raise SystemExit("the last report is of other mutants: run all")
        rows[row["number"]] = row
    return [rows[number] for number in sorted(rows)]


def table(rows):
    return "".join(f"{r['number']:5} {r['file']}:{r['line']}  {r['change']}  "
                   f"{r['outcome']}{' by ' + r['by'] if r['by'] else ''}\n" for r in rows)


def report(rows, found, args):
    """Writes the report and returns whether enough mutants are killed and all others are explained."""
    explained = read_explained(os.path.join(args.root, EXPLAINED))
    survivors = [row for row in rows if row["outcome"] == "survived"]
    left = collections.Counter(key_of(mutant) for mutant in found)
    left.subtract({key: len(reasons) for key, reasons in explained.items()})
    stale = sorted(key for key, number in left.items() if number < 0)
    for key in stale:
        print(f"explained, but there is no such mutant: {': '.join(key)}")
    # Each entry excuses one mutant.
    for row in survivors:
        reasons = explained[row["file"], row["function"], row["source"], row["change"]]
        row["reason"] = reasons.pop(0) if reasons else None
    equivalent = [row for row in survivors if row["reason"]]
    killed = len(rows) - len(survivors)
    timed_out = sum(row["outcome"] == "timed out" for row in rows)
    raw = 100 * killed / len(rows)
    summary = {"mutants": len(rows), "killed": killed, "timed_out": timed_out, "survived": len(survivors),
               "equivalent": len(equivalent), "score": round(raw, 1), "seed": args.seed}
    with open(os.path.join(args.out, "report.json"), "w", encoding="utf-8") as file:
        json.dump({"summary": summary, "mutants": rows}, file, indent=1, ensure_ascii=False)
    with open(os.path.join(args.out, "report.txt"), "w", encoding="utf-8") as file:
        file.write(table(rows))
    for title, some in (("Survived", [r for r in survivors if not r["reason"]]),
                        ("Survived and explained as equivalent", equivalent)):
        if some:
            print(f"\n{title}:\n{table(some)}", end="")
    print(f"\n{killed} of {len(rows)} mutants killed ({timed_out} of them did not end): {raw:.1f} %")
    if equivalent:
        real = len(rows) - len(equivalent)
        print(f"{len(equivalent)} survivors are explained in {EXPLAINED}: {100 * killed / real:.1f} % of the others")
    return raw >= args.at_least and len(equivalent) == len(survivors) and not stale


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n", maxsplit=1)[0])
    parser.add_argument("--count", type=int, default=500, help="how many mutants are drawn (500)")
    parser.add_argument("--seed", default="1", help="another seed draws other mutants (1)")
    parser.add_argument("--only", default="", help="numbers of drawn mutants: only these are run again; or 'survivors'")
    parser.add_argument("--tests", default=".", help="only test programs whose name this regular expression finds")
    parser.add_argument("--folders", nargs="+", default=FOLDERS, help=f"folders of test programs ({' '.join(FOLDERS)})")
    parser.add_argument("--at-least", type=float, default=90, help="percent of killed mutants that is enough (90)")
    parser.add_argument("--jobs", type=int, default=1, help="programs at a time (1)")
    parser.add_argument("--out", default="build/mutation", help="where the copy, its build and the report are made")
    parser.add_argument("--verbose", action="store_true", help="a line for each mutant")
    args = parser.parse_args()
    args.root = os.path.abspath(os.path.join(os.path.dirname(__file__), "../.."))
    args.out = os.path.join(args.root, args.out)
    args.copy = os.path.join(args.out, "tree")
    args.build = os.path.join(args.out, "programs")
    return args


def main():
    args = arguments()
    os.makedirs(args.out, exist_ok=True)
    found = candidates.find_candidates(args.root)
    mutants = build_mutants(found, args)
    tests = [t for t in programs.list_programs(args.build, args.folders) if re.search(args.tests, t.name)]
    tests = programs.measure(tests, args.build)
    for test in sorted(tests, key=lambda t: t.seconds):
        print(f"{test.name}: {test.seconds:.1f} s, passes {sum(test.seen)} mutants")
    last = os.path.join(args.out, "report.json")
    numbers = set(mutants)
    if args.only == "survivors":
        with open(last, encoding="utf-8") as file:
            numbers = {row["number"] for row in json.load(file)["mutants"] if row["outcome"] == "survived"}
    elif args.only:
        numbers = set(map(int, args.only.split(",")))
    rows = run_mutants({n: m for n, m in mutants.items() if n in numbers}, tests, args)
    return 0 if report(merge(rows, last) if args.only else rows, found, args) else 1


if __name__ == "__main__":
    sys.exit(main())
