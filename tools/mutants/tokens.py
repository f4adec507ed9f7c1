"""Cuts a C++ source into tokens, just as far as changing one of them needs it."""

import re
from dataclasses import dataclass

TOKEN = re.compile(
    r"""
    (?P<blank>\s+)
  | (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<directive>^\#(?:[^\n\\]|\\.)*)
  | (?P<text>(?:u8|[uUL])?R"(?P<delimiter>[^()\s]*)\(.*?\)(?P=delimiter)"
           |(?:u8|[uUL])?"(?:[^"\\]|\\.)*"
           |(?<![0-9A-Za-z_])(?:u8|[uUL])?'(?:[^'\\]|\\.)+')
  | (?P<number>\.?[0-9](?:[0-9A-Za-z_.]|'[0-9A-Fa-f])*)
  | (?P<name>[A-Za-z_]\w*)
  | (?P<sign><=>|<<=|>>=|->\*|\.\.\.|::|->|\+\+|--|<<|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|.)
    """,
    re.VERBOSE | re.DOTALL | re.MULTILINE)


@dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int

    @property
    def end(self):
        return self.start + len(self.text)


def other_systems(tokens):
    """The stretches that other systems compile: where the sources ask for a system, it is Windows or this."""
    began, is_foreign = 0, False
    for token in tokens:
        asked = re.match(r"#(ifdef|else|endif)(.*)", token.text) if token.kind == "directive" else None
        if not asked:
            continue
        if is_foreign:
            yield began, token.start
        began = token.end
        is_foreign = {"ifdef": "_WIN32" in asked[2], "else": not is_foreign, "endif": False}[asked[1]]


def code_tokens(source):
    """What this system compiles, without blanks, comments, directives and assertions of the compiler."""
    tokens = [Token(match.lastgroup if match.lastgroup != "delimiter" else "text", match.group(),
                    match.start()) for match in TOKEN.finditer(source)]
    foreign = list(other_systems(tokens))
    asserting = False
    for token in tokens:
        if token.kind in ("blank", "comment", "directive"):
            continue
        if any(start <= token.start < end for start, end in foreign):
            continue
        asserting = token.text == "static_assert" or (asserting and token.text != ";")
        if not asserting:
            yield token
