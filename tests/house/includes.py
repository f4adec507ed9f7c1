#!/usr/bin/env python3
"""Holds the includes to the order of the layers.

A source of src includes only from folders that stand higher in LAYERS than its own, or from its own;
never from the one that STRANGERS names for its own. The toolkit's headers stay in the folders named in
TOOLKIT_FOLDERS. No two headers have one name.

usage: includes.py [SOURCE_TREE]
"""

import pathlib
import re
import sys

LAYERS = ["core", "core/posix", "core/windows", "formats", "screen", "gamefiles", "editor",
          "catalogue", "exchange", "language", "forms", "forms/qt/widgets", "forms/qt/system",
          "forms/qt/mirrors", "forms/qt/layout", "forms/qt"]
STRANGERS = {"screen": "formats"}
TOOLKIT_FOLDERS = ["src/forms/qt", "src/main.cpp", "tools", "tests/forms/qt", "tests/program"]

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def layer_of(path):
    """The layer of a path below src, or None for what is in no layer."""
    folder = str(pathlib.PurePosixPath(path).parent)
    return folder if folder in LAYERS else None


def is_toolkit(header):
    return re.match(r"Q[A-Z]|Qt|q[a-z]+\.h$", header) is not None


def includes_of(file):
    for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
        found = INCLUDE.match(line)
        if found:
            yield number, found[1] == '"', found[2]


def fault_of_own(source, header):
    """What is wrong with an include of a project's header into a source; both are below src."""
    reached = layer_of(header)
    if reached is None:
        return "names no layer"
    own = layer_of(source)
    if STRANGERS.get(own) == reached:
        return f"reaches from {own} into {reached}, which don't know each other"
    if own is not None and LAYERS.index(reached) > LAYERS.index(own):
        return f"reaches down from {own} into {reached}"
    return None


def fault_of(source, quoted, header):
    """What is wrong with an include; `source` is relative to the tree."""
    may_use_toolkit = any(source == folder or source.startswith(folder + "/")
                          for folder in TOOLKIT_FOLDERS)
    if is_toolkit(header) and not may_use_toolkit:
        return "is of the toolkit"
    if quoted and source.startswith("src/") and not header.endswith(".moc"):
        return fault_of_own(source[len("src/"):], header)
    return None


def faults_in(tree):
    headers = {}
    for folder in ("src", "tests", "tools"):
        for file in sorted((tree / folder).rglob("*")):
            if file.suffix not in (".h", ".cpp"):
                continue
            source = file.relative_to(tree).as_posix()
            if folder == "src" and source != "src/main.cpp" and layer_of(source[4:]) is None:
                yield f"{source}: lies in no layer"
            if file.suffix == ".h" and headers.setdefault(file.name, source) != source:
                yield f"{source}: has the name of {headers[file.name]}"
            for number, quoted, header in includes_of(file):
                fault = fault_of(source, quoted, header)
                if fault:
                    yield f"{source}:{number}: {header} {fault}"


def main():
    own_tree = pathlib.Path(__file__).resolve().parent.parent.parent
    tree = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else own_tree
    faults = list(faults_in(tree))
    print("\n".join(faults))
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
