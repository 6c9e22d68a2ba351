"""Finds single changes of a C++ source: places where another operator, constant or statement would still compile."""

import re
from dataclasses import dataclass


@dataclass(frozen=True)
class Change:
    path: str  # from the top of the sources
    start: int  # characters from the start of the file
    end: int
    text: str  # in place of the characters from start to end
    kind: str

    def applied(self, source):
        return source[: self.start] + self.text + source[self.end :]


# Operators have a blank on both sides in this code, brackets of templates never have.
OPERATORS = {
    "comparison": {"==": ["!="], "!=": ["=="], "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"]},
    "arithmetic": {"+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["/"], "+=": ["-=", "="], "-=": ["+=", "="]},
    "logic": {"&&": ["||"], "||": ["&&"], "&": ["|"], "|": ["&"], "<<": [">>"], ">>": ["<<"]},
}
NOT_A_STATEMENT = {
    *("if for while do switch case default else return using namespace template typename class struct enum union".split()),
    *("public private protected static const constexpr auto explicit virtual friend operator extern inline".split()),
}
JUMPS = {"break", "continue", "return", "throw"}


NOT_CODE = re.compile(
    r'R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"'  # a raw text
    r"|//[^\n]*|/\*.*?\*/"
    r'|(?P<text>"(?:\\.|[^"\\\n])*")'
    r"|(?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])+'"  # not the separator within a number
    r"|^[ \t]*\#(?:\\\n|[^\n])*",
    re.DOTALL | re.MULTILINE,
)


def masked(source):
    """The source with comments, texts and preprocessor lines blanked out, every other character in its place."""
    return NOT_CODE.sub(lambda found: re.sub(r"[^\n]", " ", found.group()), source)


def operators(path, code):
    for kind, table in OPERATORS.items():
        for found in re.finditer(r"(?<= )(?:[=!<>+\-]=|&&|\|\||<<|>>|[<>+\-*/%&|])(?=[ \n])", code):
            for other in table.get(found.group(), []):
                yield Change(path, found.start(), found.end(), other, kind)
    for found in re.finditer(r"\+\+|--", code):
        yield Change(path, found.start(), found.end(), "--" if found.group() == "++" else "++", "arithmetic")
    for found in re.finditer(r"(?<=[\s(!])!(?=[\w(])", code):
        yield Change(path, found.start(), found.end(), "", "logic")


def constants(path, code):
    for found in re.finditer(r"(?<![\w.'])(?:0[xX][0-9A-Fa-f']+|\d[\d']*)(?:\.\d+)?[uUlLfFzZ]*(?![\w'])", code):
        number = found.group()
        yield Change(path, found.start(), found.end(), f"({number} + 1)", "constant")
        if number not in ("0", "1"):
            yield Change(path, found.start(), found.end(), f"({number} - 1)", "constant")
    for found in re.finditer(r"\b(?:true|false)\b", code):
        other = "false" if found.group() == "true" else "true"
        yield Change(path, found.start(), found.end(), other, "constant")


def texts(path, source):
    """Texts of at least two letters."""
    for found in NOT_CODE.finditer(source):
        if found.group("text") and re.search(r"[A-Za-z]{2}", found.group("text")):
            yield Change(path, found.end() - 1, found.end(), '~"', "text")


def closing(code, opening):
    """The place of the bracket that closes the one at `opening`; -1 when there is none."""
    pairs = {"(": ")", "{": "}", "[": "]"}
    depth = 0
    for place in range(opening, len(code)):
        if code[place] in pairs:
            depth += 1
        elif code[place] in pairs.values():
            depth -= 1
            if depth == 0:
                return place
    return -1


def conditions(path, source, code):
    for found in re.finditer(r"\b(?:if|while) (\()", code):
        begin = found.start(1)
        end = closing(code, begin) + 1
        inner = code[begin:end]
        if end == 0 or ";" in inner or re.search(r"(?<![=!<>])=(?!=)", inner):
            continue  # declares something
        yield Change(path, begin, end, f"(!{source[begin:end]})", "condition")
    for found in re.finditer(r" \? ", code):
        yield Change(path, found.start(), found.end(), " && false ? ", "condition")


def statement_end(code, start):
    """Behind the semicolon that ends the statement; -1 when a bracket closes before it."""
    depth = 0
    for place in range(start, len(code)):
        if code[place] in "({[":
            depth += 1
        elif code[place] in ")}]":
            depth -= 1
            if depth < 0:
                return -1
        elif code[place] == ";" and depth == 0:
            return place + 1
    return -1


def statements(path, code):
    """Calls, assignments and jumps that stand alone."""
    begin = re.compile(
        r"(?:[;{}:]|\)|\belse)\s+(?P<start>(?:\+\+|--|\*)?(?P<word>[A-Za-z_]\w*)"
        r"(?:(?:::|\.|->)\w+|\[[^\]\n]*\])*(?P<then>\(| [+\-|&]?= |\+\+|--|;| ))"
    )
    place = 0
    while found := begin.search(code, place):
        place = found.start("word") + 1
        word, then = found.group("word"), found.group("then")
        is_jump = word in JUMPS and (word != "return" or then == ";") and (then != " " or word == "throw")
        if word in NOT_A_STATEMENT | JUMPS and not is_jump:
            continue
        if not is_jump and (then in (" ", ";")):
            continue  # declares something
        end = statement_end(code, found.start("start"))
        if end > 0:
            yield Change(path, found.start("start"), end, ";", "jump" if is_jump else "statement")


def changes_of(path, source):
    code = masked(source)
    yield from operators(path, code)
    yield from constants(path, code)
    yield from texts(path, source)
    yield from conditions(path, source, code)
    yield from statements(path, code)
