#!/usr/bin/python3
"""Compares the outputs that a document shows with those that its commands print.

console_blocks.py DOCUMENT --commands FOLDER --folder SAMPLES [--fix]

Blocks fenced as ```console hold commands behind "$ ", each with the output below it. They run one after the
other in one shell, in an empty folder with a copy of SAMPLES, with the programs of FOLDER first in PATH.
--fix writes what they print into the document.
"""
import argparse
import difflib
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

MARK = "=== end of command"


def split_blocks(lines):
    """Yields (line, is_console) for every line of the document."""
    inside = False
    for line in lines:
        if line.startswith("```"):
            inside = not inside and line == "```console"
            yield line, False
        else:
            yield line, inside


def read_commands(lines):
    """The commands of the document, each one text; a backslash at the end goes on with the next line."""
    commands = []
    goes_on = False
    for line, is_console in split_blocks(lines):
        if is_console and (goes_on or line.startswith("$ ")):
            if goes_on:
                commands[-1] += "\n" + line
            else:
                commands.append(line[2:])
            goes_on = line.endswith("\\")
    return commands


def run_commands(commands, options):
    """What each command prints, standard error with standard output."""
    script = "exec 2>&1\n" + "".join(f"{command}\necho '{MARK}'\n" for command in commands)
    with tempfile.TemporaryDirectory() as folder:
        shutil.copytree(options.folder, pathlib.Path(folder) / options.folder.name)
        # Of a load that failed the library keeps the handle, and sanitizers would say so.
        environment = dict(os.environ, LC_ALL="C.UTF-8", NO_COLOR="1", ASAN_OPTIONS="detect_leaks=0",
                           PATH=f"{options.commands}:{os.environ['PATH']}")
        output = subprocess.run(["bash", "-c", script], cwd=folder, env=environment, check=False,
                                stdout=subprocess.PIPE, timeout=100).stdout.decode("utf-8")
    outputs = output.split(MARK + "\n")
    if len(outputs) != len(commands) + 1:
        sys.exit("a command ended the shell or printed no last newline")
    return outputs


def with_outputs(lines, outputs):
    """The document with the outputs below their commands."""
    result = []
    remaining = iter(outputs)
    goes_on = False
    for line, is_console in split_blocks(lines):
        if not is_console:
            result.append(line)
        elif goes_on or line.startswith("$ "):
            result.append(line)
            goes_on = line.endswith("\\")
            if not goes_on:
                result.extend(next(remaining).splitlines())
    return result


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("document", type=pathlib.Path)
    parser.add_argument("--commands", type=pathlib.Path, required=True)
    parser.add_argument("--folder", type=pathlib.Path, required=True)
    parser.add_argument("--fix", action="store_true")
    options = parser.parse_args()
    options.commands = options.commands.resolve()
    lines = options.document.read_text(encoding="utf-8").splitlines()
    commands = read_commands(lines)
    if not commands:
        sys.exit(f"{options.document}: no commands")
    fresh = with_outputs(lines, run_commands(commands, options))
    if options.fix:
        options.document.write_text("\n".join(fresh) + "\n", encoding="utf-8")
    elif fresh != lines:
        print("\n".join(difflib.unified_diff(lines, fresh, str(options.document), "printed", lineterm="")))
        return 1
    return 0


sys.exit(main())
