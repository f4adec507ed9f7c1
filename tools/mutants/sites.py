"""The places of a source where a small change could be a mistake, and what each could become."""

import re
from dataclasses import dataclass

from tokens import code_tokens

COMPARISONS = ["<", "<=", ">", ">=", "==", "!="]
SWAPPED = {"+": ("sign", "-"), "-": ("sign", "+"), "+=": ("sign", "-="), "-=": ("sign", "+="),
           "++": ("sign", "--"), "--": ("sign", "++"), "&&": ("logic", "||"), "||": ("logic", "&&"),
           "true": ("logic", "false"), "false": ("logic", "true")}
TAKES_BLANKS = {"<", ">", "+", "-", "&&", "||"}
BEFORE_AN_OPERAND = {"(", "[", "{", ",", "=", "==", "!=", "<", ">", "<=", ">=", "?", ":", "+", "-", "*",
                     "/", "&&", "||", "return", ";", "}"}
CALL = re.compile(r"[A-Za-z_][\w:.<>\[\]()*-]*\(.*\);")
DECLARATION = re.compile(r"(?!(return|throw|delete)\b)(using |([\w:]+(<[^=;]*>)?[&*]* )+\w+( = .*)?;)")
CALL_WITH_ARGUMENTS = re.compile(r"\w\([^)]")
BLOCK_OF_NAMES = re.compile(r"\b(namespace|struct|class|enum|union)\b[^()]*$")
BLOCK_OF_STEPS = re.compile(r"(\)|\b(else|do|try|const|noexcept|override|mutable)\b)[^;={}]*$")


@dataclass(frozen=True)
class Site:
    """A stretch of a file and the texts that can stand there instead."""
    file: str
    start: int
    end: int
    kind: str
    choices: tuple


def stands_free(source, token):
    return source[token.start - 1].isspace() and source[token.end].isspace()


def neighbouring_numbers(text):
    """The same number one larger and one smaller; nothing for a number with a fraction."""
    match = re.fullmatch(r"(0[xX][0-9A-Fa-f']+|[0-9']+)([uUlLzZ]*)", text)
    if not match:
        return ()
    value = int(match[1].replace("'", ""), 0 if match[1][:2].lower() == "0x" else 10)
    return tuple(f"{number}{match[2]}" for number in (value + 1, value - 1) if number >= 0)


def changes_of(source, before, token):
    """The kind of change of a token and its choices; no choices if it stays as it is."""
    text = token.text
    if before == "operator" or (text in TAKES_BLANKS and not stands_free(source, token)):
        is_negative = text == "-" and before in BEFORE_AN_OPERAND
        return ("sign", ("",)) if is_negative else ("", ())
    if token.kind == "number":
        return "bound", neighbouring_numbers(text)
    if text in COMPARISONS:
        return "comparison", tuple(other for other in COMPARISONS if other != text)
    if text == "!":
        return "logic", ("",)
    kind, other = SWAPPED.get(text, ("", None)) if token.kind in ("sign", "name") else ("", None)
    return kind, () if other is None else (other,)


def token_sites(file, source):
    before = ""
    for token in code_tokens(source):
        kind, choices = changes_of(source, before, token)
        if choices:
            yield Site(file, token.start, token.end, kind, choices)
        before = token.text


def size_sites(file, source):
    tokens = list(code_tokens(source))
    for dot, name, left, right in zip(tokens, tokens[1:], tokens[2:], tokens[3:]):
        if dot.text in (".", "->") and (name.text, left.text, right.text) == ("size", "(", ")"):
            yield Site(file, right.end, right.end, "bound", (" + 1", " - 1"))


@dataclass(frozen=True)
class Line:
    """A statement that is one line."""
    number: int
    start: int
    end: int
    indent: int
    text: str


def statement_lines(source):
    """The lines inside functions that are a whole statement each."""
    code = list(code_tokens(source))
    lines = {}
    for token in code:
        lines.setdefault(source.count("\n", 0, token.start), []).append(token)
    blocks = []
    head = ""
    for number in sorted(lines):
        tokens = lines[number]
        begins = not head.strip()
        for token in tokens:
            if token.text == "{":
                steps = BLOCK_OF_STEPS.search(head) and not BLOCK_OF_NAMES.search(head)
                blocks.append(bool(steps) or (not head.strip() and bool(blocks) and blocks[-1]))
            elif token.text == "}" and blocks:
                blocks.pop()
            head = "" if token.text in ("{", "}", ";") else head + " " + token.text
        start, end = tokens[0].start, tokens[-1].end
        if begins and blocks and blocks[-1] and tokens[-1].text == ";" and tokens[0].text != "}":
            indent = start - source.rfind("\n", 0, start) - 1
            yield Line(number, start, end, indent, source[start:end])


def are_independent(first, second):
    """Two declarations in either order are the same, or don't compile, unless both may take from a third."""
    return all(DECLARATION.match(text) for text in (first, second)) \
        and not all(CALL_WITH_ARGUMENTS.search(text) for text in (first, second))


def order_sites(file, source):
    lines = list(statement_lines(source))
    for first, second in zip(lines, lines[1:]):
        between = source[first.end:second.start]
        if second.number - first.number == 1 and first.indent == second.indent \
                and first.text != second.text and not are_independent(first.text, second.text):
            swapped = second.text + between + first.text
            yield Site(file, first.start, second.end, "order", (swapped,))


def removal_sites(file, source):
    for line in statement_lines(source):
        if CALL.fullmatch(line.text):
            yield Site(file, line.start, line.end, "removal", (";",))


def sites_of(file, source):
    for find in (token_sites, size_sites, order_sites, removal_sites):
        yield from find(file, source)
