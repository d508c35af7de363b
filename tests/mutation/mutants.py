"""Single-line changes of a source that a test ought to notice."""

import re
from dataclasses import dataclass

LAYERS = ("services", "platform", "config", "project", "binding")

# What is looked for, and what takes its place. A line gives a mutant for each match.
REPLACEMENTS = [
    ("equality", r" == ", " != "),
    ("equality", r" != ", " == "),
    ("border", r" < ", " <= "),
    ("border", r" <= ", " < "),
    ("border", r" > ", " >= "),
    ("border", r" >= ", " > "),
    ("direction", r" < ", " > "),
    ("direction", r" > ", " < "),
    ("logic", r" && ", " || "),
    ("logic", r" \|\| ", " && "),
    ("arithmetic", r" \+ ", " - "),
    ("arithmetic", r" - ", " + "),
    ("arithmetic", r" \* ", " / "),
    ("arithmetic", r" / ", " * "),
    ("arithmetic", r" % ", " / "),
    ("step", r"\+\+", "--"),
    ("truth", r"\btrue\b", "false"),
    ("truth", r"\bfalse\b", "true"),
    ("negation", r"(?<![\w\"])!(?=[\w(])", ""),
    ("condition", r"\bif \(", "if (! "),
    ("loop", r"\bcontinue;", "break;"),
    ("bound", r"\bstd::min\b", "std::max"),
    ("bound", r"\bstd::max\b", "std::min"),
    ("quantifier", r"\ball_of\b", "any_of"),
    ("quantifier", r"\bany_of\b", "all_of"),
    ("quantifier", r"\bnone_of\b", "any_of"),
    ("number", r"(?<![\w.\"'])\d+(?![\w.\"'])", lambda m: str(int(m.group()) + 1)),
    ("text", r'"[^"\\]+"', lambda m: m.group()[:-1] + "~\""),
    ("letter", r"'[A-Za-z0-9]'", "'~'"),
]

STATEMENT = re.compile(r"^\s+(?!return|break|continue|using|case|default|struct|class|else|throw|const|auto|static|\[)"
                       r"[\w:*>.\[\]()-]+.*;$")
DECLARATION = re.compile(r"^\s+[\w:<>,\s]+[&*]?\s+\w+(\s*=.*|\{.*\}|\(.*\))?;$")
NEVER = re.compile(r"^\s*(#|//|static_assert|using |namespace |template|friend|\[\[nodiscard\]\])|= delete|= default")
OPENS_LINE = (";", "{", "}", ")", ":")


@dataclass(frozen=True)
class Mutant:
    file: str
    line: int  # from 1
    kind: str
    before: str
    after: str

    @property
    def name(self):
        return f"{self.file}:{self.line} {self.kind}: {self.before.strip()} => {self.after.strip() or 'nothing'}"


def _code_of(line):
    """The line without the comment behind it."""
    return re.sub(r"\s+//.*$", "", line)


def _inside_text(line, at):
    return len(re.findall(r'(?<!\\)"', line[:at])) % 2 == 1


def _replaced(code):
    for kind, pattern, replacement in REPLACEMENTS:
        for match in re.finditer(pattern, code):
            if kind != "text" and _inside_text(code, match.start()):
                continue
            if kind == "condition":
                depth, end = 1, match.end()
                while end < len(code) and depth:
                    depth += {"(": 1, ")": -1}.get(code[end], 0)
                    end += 1
                if depth or ";" in code[match.end():end]:
                    continue  # goes on in the next line, or declares what it tests
                yield kind, code[:match.start()] + "if (!(" + code[match.end():end] + ")" + code[end:]
                continue
            new = replacement(match) if callable(replacement) else replacement
            yield kind, code[:match.start()] + new + code[match.end():]


def _dropped(code, before):
    whole = before.rstrip().endswith(OPENS_LINE) or not before.strip()
    if whole and STATEMENT.match(code) and not DECLARATION.match(code) and code.count("(") == code.count(")"):
        yield "statement", re.match(r"^\s*", code).group() + ";"


def mutants_of(file, text):
    """All mutants of one source, in the order of its lines."""
    lines = text.split("\n")
    for number, line in enumerate(lines, start=1):
        code = _code_of(line)
        if NEVER.search(code) or not code.strip():
            continue
        before = _code_of(lines[number - 2]) if number > 1 else ""
        for kind, changed in [*_replaced(code), *_dropped(code, before)]:
            yield Mutant(file, number, kind, code, changed)
