"""Makes small random mistakes in the logic, one at a time, and sees whether a test finds each.

usage: scripts/mutants [COUNT] [SEED]      200 mistakes and a random seed by default

What could be mistaken: a comparison, a bound, a sign, a logical word, the order of two steps, a call
left out. All places under src but the real windows are equally likely. A mistake that doesn't compile
isn't counted. The unit tests are tried first, then the sessions on the plain controls; a hang or a
crash is a mistake found. Prints what no test finds; build/mutants/log has everything.
"""

import collections
import difflib
import pathlib
import random
import sys

from bench import PROGRAMS, Bench
from sites import sites_of

ROOT = pathlib.Path(__file__).resolve().parents[2]
FOLDER = ROOT / "build" / "mutants"
SURVIVED = "survived"
NOT_COMPILED = "doesn't compile"


def logic_sources(bench):
    """Sources that this system compiles, and all headers."""
    compiled = [file for file in bench.compiled_files()
                if file.match("src/*/*.cpp") or file.match("src/core/*/*.cpp")]
    headers = [file.relative_to(bench.tree) for file in bench.tree.glob("src/*/*.h")]
    return sorted(str(file) for file in [*compiled, *headers])


def difference(before, after):
    lines = list(difflib.unified_diff(before.splitlines(), after.splitlines(), n=0, lineterm=""))
    return "\n".join("    " + line for line in lines[2:])


def finder(bench, file):
    """What finds the mistake that is in the copy just now."""
    if not bench.compile("wheelwright-logic").passed or not bench.compile(*PROGRAMS).passed:
        return NOT_COMPILED
    steps = [("the tests beside it", lambda: bench.unit_tests(bench.suites_beside(file))),
             ("the other tests", bench.unit_tests), ("the sessions", bench.sessions)]
    for name, step in steps:
        outcome = step()
        if not outcome.ended:
            return "a hang"
        if not outcome.passed:
            return name
    return SURVIVED


def try_site(bench, site, text):
    """Puts the mistake in, looks who finds it and takes it out again; the finder and the difference."""
    source = (bench.tree / site.file).read_text(encoding="utf-8")
    mistaken = source[:site.start] + text + source[site.end:]
    with bench.changed(site.file, mistaken):
        return finder(bench, site.file), difference(source, mistaken)


def play(bench, sites, count, log):
    """Tries sites in their order until `count` of them have compiled; how many each finder found."""
    found = collections.Counter()
    for site, text in sites:
        if found.total() - found[NOT_COMPILED] == count:
            break
        source = (bench.tree / site.file).read_text(encoding="utf-8")
        place = f"{site.file}:{source.count(chr(10), 0, site.start) + 1}"
        found_by, lines = try_site(bench, site, text)
        found[found_by] += 1
        entry = f"{place}: {site.kind}: {found_by}\n{lines}"
        print(entry, file=log, flush=True)
        if found_by == SURVIVED:
            print(entry, flush=True)
    return found


def drawn_sites(bench, seed):
    dice = random.Random(seed)
    sites = [site for file in logic_sources(bench)
             for site in sites_of(file, (bench.tree / file).read_text(encoding="utf-8"))]
    dice.shuffle(sites)
    return [(site, dice.choice(site.choices)) for site in sites]


def main():
    if len(sys.argv) > 3 or not all(word.isdigit() for word in sys.argv[1:]):
        sys.exit(__doc__)
    count, seed = [int(word) for word in sys.argv[1:]] + [200, random.randrange(10**6)][len(sys.argv) - 1:]
    bench = Bench(ROOT, FOLDER)
    bench.prepare()
    sites = drawn_sites(bench, seed)
    print(f"seed {seed}, {len(sites)} places")
    with (FOLDER / "log").open("w", encoding="utf-8") as log:
        found = play(bench, sites, count, log)
    compiled = found.total() - found[NOT_COMPILED]
    summary = ", ".join(f"{number} {name}" for name, number in found.most_common())
    print(f"{compiled} mistakes tried, {compiled - found[SURVIVED]} found: {summary}")
    sys.exit(1 if found[SURVIVED] else 0)


main()
