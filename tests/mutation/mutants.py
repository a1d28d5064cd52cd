"""Finds the places in C++ sources where one small change makes a mutant."""

import re
from dataclasses import dataclass

# What is found at a place decides what replaces it.
OPERATORS = {
    "==": "!=", "!=": "==", "<=": "<", ">=": ">", "<": "<=", ">": ">=",
    "&&": "||", "||": "&&", "+": "-", "-": "+", "*": "/", "/": "*",
    "+=": "-=", "-=": "+=", "++": "--",
}
WORDS = {"true": "false", "false": "true", "nullptr": None}

TOKEN = re.compile(r"""
    (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<directive>^[ \t]*\#[^\n]*)
  | (?P<string>"(?:\\.|[^"\\\n])*")
  | (?P<char>'(?:\\.|[^'\\\n])*')
  | (?P<number>\b(?:0[xX][0-9a-fA-F]+|\d+\.?\d*(?:[eE][+-]?\d+)?)\b)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<operator><<|>>|->|::|==|!=|<=|>=|&&|\|\||\+\+|\+=|-=|--|[-+*/<>!&|])
""", re.VERBOSE | re.MULTILINE | re.DOTALL)

# A call that is a statement of its own, from the first letter of its line to the semicolon.
CALL = re.compile(r"^([ \t]+)((?!return\b|delete\b|throw\b|else\b|case\b|using\b|static_assert\b)"
                  r"[A-Za-z_][\w:.>()-]*(?:->|\.|::)?\w*\((?:[^;{}]|\{[^;{}]*\})*\);)", re.MULTILINE)


@dataclass(frozen=True)
class Mutant:
    """`old` at `offset` of `path` becomes `new`."""
    path: str
    offset: int
    old: str
    new: str
    kind: str
    line: int
    column: int
    text: str

    @property
    def name(self):
        return f"{self.path}:{self.line}:{self.column}: {self.kind}: {shortened(self.old)} -> {shortened(self.new)}"


def shortened(text):
    text = " ".join(text.split())
    return text if len(text) <= 60 else text[:57] + "..."


def changed_number(text):
    if text.lower().startswith("0x"):
        return hex(int(text, 16) + 1)
    if "." in text or "e" in text.lower():
        return repr(float(text) + 1)
    return str(int(text) + 1)


def is_binary(source, start, end, operator):
    """Whether an operator has spaces around it: template brackets, signs and pointers do not."""
    if operator in ("++",):
        return True
    return source[start - 1:start] in (" ", "\n") and source[end:end + 1] in (" ", "\n")


def token_changes(source):
    """(offset, old, new, kind) of every token that can be changed."""
    for match in TOKEN.finditer(source):
        kind, text = match.lastgroup, match.group()
        start, end = match.span()
        if kind == "number":
            yield start, text, changed_number(text), "constant"
        elif kind == "string" and not is_context(source, start):
            yield start, text, text[:-1] + "X\"", "string"
        elif kind == "word" and WORDS.get(text):
            yield start, text, WORDS[text], "constant"
        elif kind == "operator" and text in OPERATORS and is_binary(source, start, end, text):
            yield start, text, OPERATORS[text], "operator"
        elif kind == "operator" and text == "!":
            yield start, text, "", "negation"


def is_context(source, start):
    """Whether the string is the first argument of a macro that only marks texts for lupdate."""
    return source[:start].endswith("QT_TRANSLATE_NOOP(")


def call_changes(source, comments):
    for match in CALL.finditer(source):
        start = match.start(2)
        if not any(first <= start < last for first, last in comments):
            yield start, match.group(2), ";", "call"


def is_declared(line):
    """Lines that name something, where a different text is only a different spelling."""
    return re.search(r"Q_LOGGING_CATEGORY|Q_OBJECT|static_assert|^\s*(class|friend|namespace|enum)\b", line)


def mutants_of(path, source):
    comments = [m.span() for m in TOKEN.finditer(source) if m.lastgroup in ("comment", "directive")]
    lines = source.split("\n")
    found = []
    for offset, old, new, kind in (*token_changes(source), *call_changes(source, comments)):
        number = source.count("\n", 0, offset) + 1
        line = lines[number - 1]
        column = offset - source.rfind("\n", 0, offset)
        if not is_declared(line):
            found.append(Mutant(path, offset, old, new, kind, number, column, line.strip()))
    return sorted(found, key=lambda mutant: mutant.offset)
