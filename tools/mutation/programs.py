"""The test programs of a build, as ctest knows them, and running one of them with a mutant."""
import dataclasses
import json
import math
import os
import resource
import signal
import subprocess
import tempfile

MOST_MUTANTS = 65536
MEMORY = 4 << 30
FILE_SIZE = 256 << 20
# A program that takes so many times as much processor time as without a mutant never ends. The clock, which other work
# on the machine moves, is for those that wait for ever.
PATIENCE = 8
SHORTEST_LIMIT = 10
PATIENCE_OF_CLOCK = 40
SHORTEST_LIMIT_OF_CLOCK = 120


@dataclasses.dataclass
class Program:
    name: str
    folder: str  # of its build, below the build folder
    command: list
    environment: dict
    seconds: float = 0.0  # of processor time
    seen: bytes = b""

    @property
    def limits(self):
        """Seconds of processor time and of the clock."""
        return (max(SHORTEST_LIMIT, math.ceil(PATIENCE * self.seconds)),
                max(SHORTEST_LIMIT_OF_CLOCK, PATIENCE_OF_CLOCK * self.seconds))


def list_programs(build, folders):
    """The tests of some folders as ctest lists them; the many tests of a GoogleTest program are one."""
    answer = subprocess.run(["ctest", "--test-dir", build, "--show-only=json-v1"], check=True, capture_output=True)
    programs = {}
    for test in json.loads(answer.stdout)["tests"]:
        command = test.get("command")
        if not command:
            continue
        properties = {p["name"]: p["value"] for p in test["properties"]}
        name = test["name"]
        if any(argument.startswith("--gtest_filter") for argument in command):
            name = os.path.basename(command[0])
            command = [command[0], "--gtest_fail_fast", "--gtest_brief=1"]
        folder = os.path.relpath(properties["WORKING_DIRECTORY"], build)
        if folder not in folders:
            continue
        environment = dict(line.split("=", 1) for line in properties.get("ENVIRONMENT", []))
        programs.setdefault(name, Program(name, folder, command, environment))
    return list(programs.values())


def restrict(processor_time):
    resource.setrlimit(resource.RLIMIT_CPU, (processor_time, processor_time + 1))
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_FSIZE, (FILE_SIZE, FILE_SIZE))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def run(program, build, mutant, limits, seen=None, log=subprocess.DEVNULL):
    """Runs a program; returns passed, failed or timed out."""
    with tempfile.TemporaryDirectory(prefix="mutation_") as scratch:
        environment = dict(os.environ, **program.environment, INV_MUTANT=str(mutant), TMPDIR=scratch,
                           TEST_TMPDIR=scratch + "/")
        if seen:
            environment["INV_MUTANTS_SEEN"] = seen
        process = subprocess.Popen(program.command, cwd=os.path.join(build, program.folder), env=environment,
                                   stdin=subprocess.DEVNULL, stdout=log, stderr=log, start_new_session=True,
                                   preexec_fn=lambda: restrict(limits[0]))
        try:
            status = process.wait(limits[1])
            return "passed" if status == 0 else "timed out" if status == -signal.SIGXCPU else "failed"
        except subprocess.TimeoutExpired:
            return "timed out"
        finally:
            # What it started goes with it.
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            process.wait()


def time_of_children():
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


def measure(programs, build):
    """Runs all programs without a mutant: how long they take and which mutants they pass. All that pass one of them
    must succeed; others cannot tell mutants apart and are left out."""
    useful = []
    for program in programs:
        with tempfile.NamedTemporaryFile(prefix="mutants_seen_") as seen, \
                open(os.path.join(build, "baseline.log"), "ab") as log:
            seen.truncate(MOST_MUTANTS)
            begin = time_of_children()
            result = run(program, build, 0, (1800, 3600), seen.name, log)
            program.seconds = time_of_children() - begin
            program.seen = seen.read()
        if any(program.seen):
            if result != "passed":
                raise SystemExit(f"{program.name} {result} without a mutant: see {build}/baseline.log")
            useful.append(program)
    return useful
