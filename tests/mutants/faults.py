"""The faults that mutants.py seeds: their kinds, the places in the sources that they fit, and which are chosen.

A new kind of fault, or a new way to write something, is a row of PATTERNS.
"""

import bisect
import collections
import dataclasses
import os
import random
import re

# Where faults are seeded, and how many of them in proportion to the size of the files.
AREAS = {"ims/xml/src": 1.0, "ims/xml/include": 0.35, "ims/dpl/src": 0.6, "ims/tools/imsxml": 0.5}

# --- The kinds of faults ---------------------------------------------------------------------------------------------


def other(*choices):
    """Another one of the choices."""
    return lambda found, source, rng: rng.choice([choice for choice in choices if choice != found])


def becomes(text):
    return lambda found, source, rng: text


def without_call(found, source, rng):
    return ";" if found.split("(")[0] not in source.classes else None  # Not a constructor's declaration.


def flipped(*pairs):
    table = dict(pairs) | {after: before for before, after in pairs}
    return lambda found, source, rng: table.get(found)


def another_name(found, source, rng):
    others = sorted(set(re.findall(r"\bIX_STR_\w+", source.code)) - {found})
    return rng.choice(others) if others else None


def another_number(found, source, rng):
    digits = found.rstrip("uUlL")
    if re.match(r"0\d", digits):
        return None
    value = int(digits, 0) + (rng.choice((-1, 1)) if int(digits, 0) > 0 else 1)
    return (hex(value) if digits[:2] in ("0x", "0X") else str(value)) + found[len(digits):]


def another_word(found, source, rng):
    words = list(re.finditer(r"(?<![%\\\w])[A-Za-z]{3,}", found))
    if not words:
        return None
    word = rng.choice(words)
    return found[:word.start()] + ("other" if word[0] != "other" else "another") + found[word.end():]


def another_member(found, source, rng):
    choices = {other for members in source.classes.values() if found in members
               for other, type_ in members.items() if other != found and type_ == members[found]}
    used = {name for name in choices if re.search(rf"\b{name}\b", source.code)}
    return rng.choice(sorted(used or choices)) if choices else None


CODE = r"\bk\w*Code, *\n? *(?:__LINE__|\d+|line)"  # Precedes the text of a log line; the level stands before it.
OPERAND = r"(?:[\w.:*\[\]]|->|\([^()\n]*\))+"
CALL = r"[\w.:]+(?:->[\w.:]+|\([^()\n]*\)\.\w+)*(?:<[^()\n]*>)?\("
KEYWORD = r"(?:if|for|while|switch|return|sizeof|static_assert|IX_FAMILY)\b"

# Kind, what is looked for in code (comments blank, texts as "~~~"), what group x of it, or each text in it, becomes.
PATTERNS = (
    ("log level", rf"\b(?P<x>[1-4]),\s*(?={CODE})", other("1", "2", "3", "4")),
    ("log text", rf"{CODE},\s*(?P<texts>(?:\"~*\"|\w+|\s)+)", another_word),
    ("log text", r"\bIX_(?:\w*TEXTS|UNMARSHALLER_INFO|SERVICE)\((?P<texts>[^;{}]*?)\)[;,]", another_word),
    ("log text", r"\b(?:DocumentError\{|Warn\()(?P<texts>[^;]*);", another_word),
    ("name constant", r"(?<=[(&{ ])(?P<x>IX_STR_\w+)(?!\w|,\n| = )", another_name),
    ("name constant", r"(?<=[({ ])(?P<x>IX_STR_\w+)(?=,\n {8})", another_name),
    ("closing flag", r"\bAttribute::(?P<x>Open|Closing|SelfClosing)\b", other("Open", "Closing", "SelfClosing")),
    ("closing flag", r"(?:\.|->)(?P<x>Close|SelfClose)(?=\(\))", flipped(("Close", "SelfClose"))),
    ("closing flag", r"^ +(?P<x>StartElement|StartElementOpen)(?=\()", flipped(("StartElement", "StartElementOpen"))),
    ("closing flag", r"\b(?P<x>ixStartElement|ixStartElementSelfEnding|ixStartElementWithoutNL)(?=\()",
     other("ixStartElement", "ixStartElementSelfEnding", "ixStartElementWithoutNL")),
    ("null check", rf"^ +(?P<x>if \({OPERAND} == nullptr\) (?:return|continue|break)\b.*;)$", becomes(";")),
    ("null check", rf"(?<=[( !])(?P<x>{OPERAND} != nullptr && )", becomes("")),
    ("null check", rf"(?P<x> && {OPERAND} != nullptr)(?=[); ])", becomes("")),
    ("null check", rf"(?<=[( ])(?P<x>{OPERAND} == nullptr \|\| )", becomes("")),
    ("null check", rf"(?P<x> \|\| {OPERAND} == nullptr)(?=[); ])", becomes("")),
    ("null check", rf"\bif \((?P<x>{OPERAND} == nullptr)\) (?!return|continue|break)", becomes("false")),
    ("null check", rf"\bif \((?P<x>{OPERAND} != nullptr)\)", becomes("true")),
    ("null check", rf"(?P<x>{OPERAND} != nullptr)(?= \?)", becomes("true")),
    ("null check", rf"(?P<x>{OPERAND} == nullptr)(?= \?)", becomes("false")),
    ("wrong member", r"(?:->|\.|::|[(! *&,])(?P<x>m[A-Z_]\w*)\b", another_member),
    ("comparison", r"(?<=\S )(?P<x>==|!=|<|<=|>|>=|&&|\|\|)(?=\s)",
     flipped(("==", "!="), ("<", "<="), (">", ">="), ("&&", "||"))),
    ("answer", r"\breturn (?P<x>[01]);", flipped(("0", "1"))),
    ("answer", r"(?<!while \()\b(?P<x>true|false)\b", flipped(("true", "false"))),
    ("number", rf"(?<![\w.'])(?<!return )(?<!Code, )(?<!const = )(?P<x>(?:0[xX][\da-fA-F]+|\d+)[uUlL]*)(?![\w.'])"
     rf"(?!,\s*{CODE})", another_number),
    ("statement", rf"^ +(?:if \(.*\) |else )?(?P<x>(?!{KEYWORD}){CALL}.*\);)$", without_call),
)
MEMBER = re.compile(r" +(?!return|if)[\w:<>*]+[\w:<>*, ]* m[A-Z_]\w*( =|\{|;)")  # A declaration is no use.
# Rows that are looked up by their names, so that their order does not matter.
UNORDERED = re.compile(r"\bXml(?:Container|Attribute|Writer)Row\b")
SKIPPED_LINES = re.compile(r"static_assert|\bchar \w+\[\d|^\s*IX_STR_\w+(?: = 0)?,$")
KINDS = list(dict.fromkeys(kind for kind, _, _ in PATTERNS)) + ["order"]


def swapped_units(source):
    """Adjacent calls or table rows at the same depth, as (start, end, new text)."""
    row = re.compile(r"(?:\{|IX_\w+\().*[})],", re.DOTALL)
    call = re.compile(rf"(?!{KEYWORD}|IX_){CALL}.*\);", re.DOTALL)
    assignment = re.compile(r"[\w.>\[\]*-]+ [-+|&]?= .*;", re.DOTALL)
    previous = None
    for first in range(len(source.starts)):
        last, code = first, source.line(first)
        # A unit ends where its brackets are closed.
        while (is_open := any(code.count(a) != code.count(b) for a, b in ("()", "{}", "[]"))) and last < first + 6:
            last += 1
            code = source.code[source.starts[first]:source.end(last)]
        depth = len(code) - len(code.lstrip())
        kind = next((i for i, form in enumerate((row, call, assignment)) if form.fullmatch(code.strip())), None)
        if is_open or kind is None or depth == 0 or (kind == 0 and UNORDERED.search(source.within(first))):
            continue
        unit = (first, last, depth, kind)
        if previous is not None and previous[1] + 1 == first and previous[2] == depth:
            kinds = {previous[3], kind}
            one = source.text[source.starts[previous[0]]:source.end(previous[1])]
            two = source.text[source.starts[first]:source.end(last)]
            if kinds in ({0}, {1}, {1, 2}) and one != two:
                yield source.starts[previous[0]], source.end(last), two + "\n" + one
        previous = unit


# --- Sources and the faults that fit them ----------------------------------------------------------------------------


@dataclasses.dataclass(frozen=True)
class Mutant:
    kind: str
    file: str
    line: int
    within: str
    before: str
    after: str

    def key(self):
        return self.file, self.line, self.before, self.after


class Source:
    """A file, and its code: the same text with comments and directives blank, and texts made of ~."""
    TOKENS = re.compile(r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|\'(?:\\[^\']+|[^\'\\\n])\''
                        r'|^[ \t]*#(?!\s*define)[^\n]*', re.DOTALL | re.MULTILINE)

    def __init__(self, name, text):
        self.name, self.text, self.classes = name, text, {}
        self.code = self.TOKENS.sub(self._blank, text)
        self.starts = [0] + [match.end() for match in re.finditer("\n", text)]

    @staticmethod
    def _blank(token):
        if token[0][0] == "'":
            return "'" + "~" * (len(token[0]) - 2) + "'"
        if token[0][0] == '"':
            return '"' + "~" * (len(token[0]) - 2) + '"'
        return re.sub(r"[^\n]", "~" if token[0][0] == "R" else " ", token[0])

    def end(self, line):
        return self.starts[line + 1] - 1 if line + 1 < len(self.starts) else len(self.text)

    def line_at(self, offset):
        return bisect.bisect_right(self.starts, offset) - 1

    def line(self, line):
        return self.code[self.starts[line]:self.end(line)]

    def own_classes(self):
        """The members of the classes that the file declares, each with its type."""
        member = re.compile(r"^ +((?:const )?[\w:<>*, ]+?[ *&]+)(m[A-Z_]\w*)(?: = .*|\{.*)?;", re.MULTILINE)
        found = {}
        declaration = re.compile(r"^(?:class|struct) (?:IX_\w+ )?(\w+)[^;{]*\{(.*?)^\};", re.DOTALL | re.MULTILINE)
        for body in declaration.finditer(self.code):
            found[body[1]] = {name: type_.strip() for type_, name in member.findall(body[2])}
        return found

    def mutants(self, seed):
        rng = random.Random(f"{seed} {self.name}")
        edits = [("order", *edit) for edit in swapped_units(self)]
        for kind, pattern, change in PATTERNS:
            for match in re.finditer(pattern, self.code, re.MULTILINE):
                for start, end in self._places(match):
                    new = change(self.text[start:end], self, rng)
                    if new is not None:
                        edits.append((kind, start, end, new))
        for kind, start, end, new in edits:
            first, last = self.line_at(start), self.line_at(end - 1)
            begin, stop = self.starts[first], self.end(last)
            declares = kind == "wrong member" and MEMBER.match(self.line(first))
            before, after = self.text[begin:stop], self.text[begin:start] + new + self.text[end:stop]
            if before != after and not declares and not SKIPPED_LINES.search(self.line(first)):
                yield Mutant(kind, self.name, first + 1, self.within(first), before, after)

    @staticmethod
    def _places(match):
        if "x" in match.re.groupindex:
            return [match.span("x")]
        offset = match.start("texts")
        return [(offset + text.start(), offset + text.end()) for text in re.finditer(r'"~+"', match["texts"])]

    def within(self, line):
        while line > 0 and not re.match(r"[\w#]", self.line(line)):
            line -= 1
        return self.text[self.starts[line]:self.end(line)].strip()


def read_sources(tree):
    sources = {}
    for area in AREAS:
        for path in sorted((tree / area).glob("*")):
            if path.suffix in (".cpp", ".h"):
                name = path.relative_to(tree).as_posix()
                sources[name] = Source(name, path.read_text())
    # What a file can name is what it and the others declare; classes of the same name do not share members.
    classes = {}
    for source in sources.values():
        classes.update(source.own_classes())
    for source in sources.values():
        source.classes = classes
    return sources


def choose(sources, seed):
    """All faults in the order in which they are tried: kind after kind, each in the file that has had least of them."""
    rng = random.Random(f"{seed}")
    left = {kind: collections.defaultdict(list) for kind in KINDS}
    share = {}
    for name, source in sources.items():
        share[name] = AREAS[os.path.dirname(name)] * len(source.starts) ** 0.5
        for mutant in source.mutants(seed):
            left[mutant.kind][name].append(mutant)
    for files in left.values():
        for mutants in files.values():
            rng.shuffle(mutants)
    rank = {name: rng.random() for name in sources}
    had, seen = collections.Counter(), set()
    while any(left.values()):
        for kind in KINDS:
            files = left[kind]
            if not files:
                continue
            name = min(files, key=lambda file: ((had[file] + 1) / share[file], rank[file]))
            mutant = files[name].pop()
            if not files[name]:
                del files[name]
            if mutant.key() not in seen:
                seen.add(mutant.key())
                had[name] += 1
                yield mutant


def find(mutant, text):
    """Where the text of a fault begins in a file, or None."""
    source = Source(mutant.file, text)
    starts = [start for start in source.starts if text.startswith(mutant.before + "\n", start)]
    if mutant.line <= len(source.starts) and source.starts[mutant.line - 1] in starts:
        return source.starts[mutant.line - 1]
    if len(starts) > 1:
        starts = [start for start in starts if source.within(source.line_at(start)) == mutant.within]
    return starts[0] if len(starts) == 1 else None
