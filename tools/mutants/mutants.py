"""Makes small random mistakes in the program, one at a time, and sees whether a test finds each.

usage: scripts/mutants [--windows] [COUNT] [SEED]      200 mistakes and a random seed by default

What could be mistaken: a comparison, a bound, a sign, a logical word, the order of two steps, a call
left out. All places are equally likely: those of the logic, or with --windows those of the real windows
and the main program. A mistake that doesn't compile isn't counted. The logic is judged by the unit tests,
then the sessions on the plain controls; the windows by the widget tests, then those of the program itself.
A hang or a crash is a mistake found. Prints what no test finds; build/mutants/log has everything.
"""

import collections
import difflib
import pathlib
import random
import sys
from collections.abc import Callable
from dataclasses import dataclass

from bench import Bench
from sites import sites_of

ROOT = pathlib.Path(__file__).resolve().parents[2]
FOLDER = ROOT / "build" / "mutants"
# The slowest of the widget tests.
WALK = "Settings/WindowsTest.*"
SURVIVED = "survived"
NOT_COMPILED = "doesn't compile"


@dataclass(frozen=True)
class Judge:
    """An entry of ctest, the programs it needs, and which of its tests are run, given the bench and the
    changed file."""
    name: str
    entry: str
    programs: tuple
    chosen: Callable = lambda bench, file: "*"


# The quickest first.
UNIT_TESTS = ("wheelwright-tests", ("wheelwright-tests",))
LOGIC = (
    Judge("the unit tests beside it", *UNIT_TESTS, Bench.suites_beside),
    Judge("the other unit tests", *UNIT_TESTS),
    Judge("the sessions", "sessions-plain", ("wheelwright-replay",)))
WIDGET_TESTS = ("wheelwright-widget-tests", ("wheelwright-widget-tests",))
WINDOWS = (
    Judge("the widget tests", *WIDGET_TESTS, lambda bench, file: f"-{WALK}"),
    Judge("the walk through all windows", *WIDGET_TESTS, lambda bench, file: WALK),
    Judge("the program's own tests", "program", ("wheelwright", "wheelwright-person")))


def sources_of(bench, judges):
    """Sources of the half of the program that this system compiles, and its headers."""
    headers = [file.relative_to(bench.tree) for file in bench.tree.rglob("src/**/*.h")]
    files = {str(file) for file in [*bench.compiled_files(), *headers] if file.parts[0] == "src"}
    windows = {file for file in files if file.startswith("src/forms/qt/") or file == "src/main.cpp"}
    others = {file for file in files if file.startswith("src/core/windows/")}
    return sorted(windows if judges is WINDOWS else files - windows - others)


def difference(before, after):
    lines = list(difflib.unified_diff(before.splitlines(), after.splitlines(), n=0, lineterm=""))
    return "\n".join("    " + line for line in lines[2:])


def finder(bench, judges, file):
    """What finds the mistake that is in the copy just now."""
    for judge in judges:
        if not bench.compile(*judge.programs).passed:
            return NOT_COMPILED
        outcome = bench.tests(judge.entry, judge.chosen(bench, file))
        if not outcome.ended:
            return "a hang"
        if not outcome.passed:
            return judge.name
    return SURVIVED


def try_site(bench, judges, site, text):
    """Puts the mistake in, looks who finds it and takes it out again; the finder and the difference."""
    source = (bench.tree / site.file).read_text(encoding="utf-8")
    mistaken = source[:site.start] + text + source[site.end:]
    with bench.changed(site.file, mistaken):
        return finder(bench, judges, site.file), difference(source, mistaken)


def play(bench, judges, sites, count, log):
    """Tries sites in their order until `count` of them have compiled; how many each finder found."""
    found = collections.Counter()
    for site, text in sites:
        if found.total() - found[NOT_COMPILED] == count:
            break
        source = (bench.tree / site.file).read_text(encoding="utf-8")
        place = f"{site.file}:{source.count(chr(10), 0, site.start) + 1}"
        found_by, lines = try_site(bench, judges, site, text)
        found[found_by] += 1
        entry = f"{place}: {site.kind}: {found_by}\n{lines}"
        print(entry, file=log, flush=True)
        if found_by == SURVIVED:
            print(entry, flush=True)
    return found


def drawn_sites(bench, judges, seed):
    dice = random.Random(seed)
    sites = [site for file in sources_of(bench, judges)
             for site in sites_of(file, (bench.tree / file).read_text(encoding="utf-8"))]
    dice.shuffle(sites)
    return [(site, dice.choice(site.choices)) for site in sites]


def main():
    judges = WINDOWS if sys.argv[1:2] == ["--windows"] else LOGIC
    numbers = sys.argv[2 if judges is WINDOWS else 1:]
    if len(numbers) > 2 or not all(word.isdigit() for word in numbers):
        sys.exit(__doc__)
    count, seed = [int(word) for word in numbers] + [200, random.randrange(10**6)][len(numbers):]
    bench = Bench(ROOT, FOLDER)
    bench.prepare(judges)
    sites = drawn_sites(bench, judges, seed)
    print(f"seed {seed}, {len(sites)} places")
    with (FOLDER / "log").open("w", encoding="utf-8") as log:
        found = play(bench, judges, sites, count, log)
    compiled = found.total() - found[NOT_COMPILED]
    summary = ", ".join(f"{number} {name}" for name, number in found.most_common())
    print(f"{compiled} mistakes tried, {compiled - found[SURVIVED]} found: {summary}")
    sys.exit(1 if found[SURVIVED] else 0)


main()
