#!/usr/bin/env python3
"""Mutation check: do the tests notice a one-line fault?

Usage: tools/mutation_check.py [--build DIR] [--tests t1,t2] [--jobs N] FILE...

For each source file it makes simple one-line faults at decision points, one at a time: `<` and
`<=`, `>` and `>=`, `==` and `!=`, `&&` and `||` swapped; an `if`/`while` condition negated or a
`!` removed; a statement dropped; a number changed by one (in its last written digit). For each
mutant it rebuilds, incrementally, the test targets that link the file, runs them and writes the
original back. A mutant is killed when a test fails, crashes or hangs (timeout), not viable when
it does not compile (warnings are errors), and survives otherwise.

The build directory must already be configured, e.g.
    cmake -S . -B build-mutation -G Ninja -DCMAKE_BUILD_TYPE=Debug \\
          -DFERROW_WARNINGS_AS_ERRORS=ON -DFERROW_BUILD_BENCHMARKS=OFF
Tests default to every CTest test of that build whose target links the file. Mutants listed in
tools/mutation_equivalents.txt (they cannot change behaviour) are reported apart from survivors.

The file under test is always written back byte for byte: on success, on any exception, on
Ctrl-C, SIGTERM and SIGHUP. Its modification time is left new on purpose, so that every build
tree recompiles it. Should the process be killed outright (SIGKILL), the next run puts back the
original from BUILD/.mutation_check/ when the file still holds the mutant it left.

Exit status: 0 when no mutant survives unaccepted, 1 when some do, 2 on a usage or setup error.
"""
import argparse
import contextlib
import dataclasses
import fcntl
import hashlib
import json
import os
import pathlib
import re
import signal
import subprocess
import sys
import time

REPO = pathlib.Path(__file__).resolve().parent.parent
HANDLED_SIGNALS = (signal.SIGINT, signal.SIGTERM, signal.SIGHUP)


class Interrupted(Exception):
    pass


class SetupError(Exception):
    pass


# ---------------------------------------------------------------------------------------------
# Tokens

@dataclasses.dataclass
class Token:
    kind: str  # ident, number, string, op
    text: str
    start: int
    end: int


OPERATORS = sorted(
    "<<= >>= <=> ->* ... :: -> ++ -- << >> <= >= == != && || += -= *= /= %= &= |= ^= .* "
    "{ } ( ) [ ] ; : , . ? ~ ! + - * / % ^ & | = < > #".split(), key=len, reverse=True)
STRING_PREFIX = re.compile(r'(u8|u|U|L)?R?"|(u8|u|U|L)?\'')
NUMBER = re.compile(r"0[xX][0-9a-fA-F']+[uUlLzZ]*|(?:\d[\d']*\.?[\d']*|\.\d[\d']*)(?:[eEpP][+-]?\d+)?[a-zA-Z_]*")
IDENT = re.compile(r"[A-Za-z_]\w*")


def tokenize(text):
    """Tokens of C++ source, without comments, preprocessor lines and the insides of literals."""
    tokens, i, n = [], 0, len(text)
    line_start = True
    while i < n:
        c = text[i]
        if c == "\n":
            line_start, i = True, i + 1
            continue
        if c in " \t\r\f\v":
            i += 1
            continue
        if line_start and c == "#":  # a preprocessor line, with its continuations
            while True:
                i = text.find("\n", i)
                if i < 0:
                    i = n
                    break
                if text[i - 1] != "\\":
                    break
                i += 1
            continue
        line_start = False
        if text.startswith("//", i):
            i = text.find("\n", i)
            i = n if i < 0 else i
            continue
        if text.startswith("/*", i):
            end = text.find("*/", i + 2)
            i = n if end < 0 else end + 2
            continue
        literal = STRING_PREFIX.match(text, i)
        if literal:
            start = i
            i = literal.end()
            quote = text[i - 1]
            if quote == '"' and "R" in literal.group(0):
                open_paren = text.index("(", i)
                closing = ")" + text[i:open_paren] + '"'
                i = text.index(closing, open_paren) + len(closing)
            else:
                while i < n and text[i] != quote:
                    i += 2 if text[i] == "\\" else 1
                i += 1
            tokens.append(Token("string", text[start:i], start, i))
            continue
        if c.isdigit() or (c == "." and i + 1 < n and text[i + 1].isdigit()):
            m = NUMBER.match(text, i)
            tokens.append(Token("number", m.group(0), i, m.end()))
            i = m.end()
            continue
        m = IDENT.match(text, i)
        if m:
            tokens.append(Token("ident", m.group(0), i, m.end()))
            i = m.end()
            continue
        for op in OPERATORS:
            if text.startswith(op, i):
                tokens.append(Token("op", op, i, i + len(op)))
                i += len(op)
                break
        else:
            i += 1  # a stray character (e.g. '@' or '$'): not part of any mutation
    return tokens


# ---------------------------------------------------------------------------------------------
# Where mutations go: function bodies (statements, conditions, operators, numbers) and the
# initialisers of constants at namespace or class scope (numbers only).

FUNCTION_BODY_AFTER = {")", "const", "override", "final", "noexcept", "mutable", "]"}
TYPE_KEYWORDS = {"class", "struct", "union", "enum"}
COMPOUND = {"if", "while", "for", "switch", "do", "else", "try", "case", "default", "catch"}
DECLARATION_STARTERS = {"const", "constexpr", "static", "auto", "using", "typedef", "thread_local",
                        "unsigned", "signed", "int", "long", "short", "char", "bool", "float",
                        "double", "void", "struct", "class", "enum"}


class Structure:
    def __init__(self, tokens):
        self.t = tokens
        self.body = set()            # token indices inside function bodies
        self.constant_numbers = set()  # number tokens in constant initialisers outside bodies
        self.conditions = []         # (open paren index, close paren index) of if/while
        self.statements = []         # (first token index, semicolon index) of droppable statements
        self.match = self._matching()
        self._scope(0, len(tokens))

    def _matching(self):
        match, stack = {}, []
        for index, token in enumerate(self.t):
            if token.kind != "op":
                continue
            if token.text in "([{":
                stack.append(index)
            elif token.text in ")]}" and stack:
                opened = stack.pop()
                match[opened], match[index] = index, opened
        return match

    def text(self, index):
        return self.t[index].text if 0 <= index < len(self.t) else ""

    def _scope(self, i, end):
        """Namespace or class scope from token i up to end (exclusive)."""
        start = i
        while i < end:
            text = self.text(i)
            if text == ";":
                self._declaration(start, i)
                i += 1
                start = i
            elif text == "(" or text == "[":
                i = self.match.get(i, end - 1) + 1
            elif text == "{":
                close = self.match.get(i, end - 1)
                head = [token.text for token in self.t[start:i]]
                if "namespace" in head or head[:2] == ["extern", '"C"'] or head[:1] == ['extern']:
                    self._scope(i + 1, close)
                    i, start = close + 1, close + 1
                elif TYPE_KEYWORDS & set(head) and "=" not in head and "(" not in head:
                    if "enum" not in head:
                        self._scope(i + 1, close)
                    i = close + 1  # the declaration goes on to its ';'
                elif self.text(i - 1) in FUNCTION_BODY_AFTER or "->" in head:
                    self._block(i + 1, close)
                    i, start = close + 1, close + 1
                else:
                    i = close + 1  # a braced initialiser: judged with its declaration
            elif text == "}":
                i += 1
                start = i
            else:
                i += 1

    def _declaration(self, start, semicolon):
        """Numbers in the initialiser of a constant; not array bounds, template arguments,
        parameter lists, pure specifiers or anything in a class body."""
        k = start
        while k < semicolon and self.text(k) not in ("=", "{", "("):
            if self.text(k) in (":", "}"):
                start = k + 1  # an access label or a nested class before this declaration
            k += 1
        declarator = {self.text(j) for j in range(start, k)}
        if k == semicolon or self.text(k) == "(" or "static_assert" in declarator \
                or not ({"const", "constexpr"} & declarator):
            return
        for index in range(k, semicolon):
            if self.t[index].kind == "number":
                self.constant_numbers.add(index)

    def _block(self, i, end):
        """A function body (or lambda body) from token i up to its closing brace at end."""
        self.body.update(range(i - 1, end + 1))
        while i < end:
            i = self._statement(i, end)

    def _statement(self, i, end):
        text = self.text(i)
        if text == "{":
            close = self.match.get(i, end)
            self._block(i + 1, close)
            return close + 1
        if text == ";":
            return i + 1
        if text in ("if", "while", "for", "switch"):
            j = i + 1
            if self.text(j) == "constexpr":
                j += 1
            if self.text(j) != "(":
                return self._expression(i, end)
            close = self.match.get(j, end)
            self._lambdas(j + 1, close)
            if text in ("if", "while") and j == i + 1 and not self._declares(j + 1, close) \
                    and not self._negated_whole(j + 1, close):
                self.conditions.append((j, close))
            k = self._statement(close + 1, end)
            if text == "if" and self.text(k) == "else":
                k = self._statement(k + 1, end)
            return k
        if text == "do":
            k = self._statement(i + 1, end)
            return self._expression(k, end)  # while (...);
        if text in ("case", "default"):
            k = i
            while k < end and self.text(k) != ":":
                k += 1
            return k + 1
        if text == "else":
            return self._statement(i + 1, end)
        if text == "try":
            k = self._statement(i + 1, end)
            while self.text(k) == "catch":
                k = self._statement(self.match.get(k + 1, end) + 1, end)
            return k
        semicolon = self._expression(i, end) - 1
        # A value returned just before a body's closing brace cannot go without breaking the build.
        last_return = text == "return" and semicolon + 1 == end and self.text(semicolon - 1) != "return"
        if self.text(semicolon) == ";" and not last_return and not self._is_declaration(i, semicolon):
            self.statements.append((i, semicolon))
        return semicolon + 1

    def _expression(self, i, end):
        """Skips to the statement's ';' (returns the index after it); lambdas inside are blocks."""
        while i < end:
            text = self.text(i)
            if text == ";":
                return i + 1
            if text in ("(", "["):
                close = self.match.get(i, end)
                self._lambdas(i + 1, close)
                i = close + 1
            elif text == "{":
                close = self.match.get(i, end)
                if self.text(i - 1) in (")", "]", "mutable"):
                    self._block(i + 1, close)
                else:
                    self._lambdas(i + 1, close)
                i = close + 1
            else:
                i += 1
        return end

    def _lambdas(self, i, end):
        while i < end:
            if self.text(i) == "{" and self.text(i - 1) in (")", "]", "mutable"):
                close = self.match.get(i, end)
                self._block(i + 1, close)
                i = close + 1
            else:
                i += 1

    def _negated_whole(self, i, close):
        # `if (!x)`: removing the '!' is already that mutant.
        if self.text(i) != "!":
            return False
        k = i + 1
        while k < close:
            if self.text(k) in ("(", "["):
                k = self.match.get(k, close)
            elif self.t[k].kind == "op" and self.text(k) not in (".", "->", "::", ")", "]"):
                return False
            k += 1
        return True

    def _declares(self, i, close):
        # `if (auto x = f())` and the like: negating it would not compile.
        depth = 0
        for j in range(i, close):
            text = self.text(j)
            if text in ("(", "[", "{"):
                depth += 1
            elif text in (")", "]", "}"):
                depth -= 1
            elif text in ("=", ";") and depth == 0:
                return True
        return False

    def _is_declaration(self, i, semicolon):
        first = self.text(i)
        if first in ("return", "break", "continue", "goto", "emit", "delete", "throw", "co_return", "Q_EMIT"):
            return first == "goto"
        if first in DECLARATION_STARTERS or first in COMPOUND:
            return True
        # The declarator ends before the first '=', '(' or '{' at depth 0; a declaration has a type
        # before its (possibly qualified) name.
        k, angle = i, 0
        while k < semicolon:
            text = self.text(k)
            if text == "<":
                angle += 1
            elif text == ">":
                angle -= 1
            elif text == ">>":
                angle -= 2
            elif angle <= 0 and text in ("=", "(", "{", "[", "+=", "-=", "*=", "/=", "|=", "&=", "++", "--"):
                break
            k += 1
        if k == i:
            return False  # starts with an operator: ++x, *p = ...
        # Strip the trailing qualified name a::b::c
        j = k - 1
        if self.t[j].kind != "ident":
            return False
        while j - 2 >= i and self.text(j - 1) == "::" and self.t[j - 2].kind == "ident":
            j -= 2
        if j == i:
            return False
        before = self.text(j - 1)
        return self.t[j - 1].kind == "ident" or before in (">", ">>", "*", "&", "&&")


def template_angles(tokens):
    """Indices of '<' and '>' tokens that bracket template arguments rather than compare."""
    allowed_kinds = {"ident", "number"}
    allowed = {"::", ",", "*", "&", "(", ")", "[", "]", "..."}
    angles = set()
    for i, token in enumerate(tokens):
        if token.text != "<" or i == 0:
            continue
        previous = tokens[i - 1]
        if previous.kind != "ident" or previous.text == "operator":
            continue
        depth, opened, j = 1, [i], i + 1
        while j < len(tokens) and depth > 0:
            text = tokens[j].text
            if text == "<":
                depth += 1
                opened.append(j)
            elif text in (">", ">>"):
                depth -= 1 if text == ">" else 2
                opened.append(j)
            elif text == "&&" and j + 1 < len(tokens) and tokens[j + 1].text in (">", ",", ">>"):
                pass
            elif not (tokens[j].kind in allowed_kinds or text in allowed):
                break
            j += 1
        if depth <= 0:
            angles.update(opened)
    return angles


# ---------------------------------------------------------------------------------------------
# Mutants

@dataclasses.dataclass
class Mutant:
    start: int
    end: int
    replacement: str
    kind: str
    line: int = 0
    original_text: str = ""
    mutant_text: str = ""
    outcome: str = ""
    killed_by: str = ""
    failures: list = dataclasses.field(default_factory=list)


SWAPS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&"}


def bumped_number(literal):
    """The literal changed by one in its last written digit, or None when that is meaningless."""
    m = re.fullmatch(r"(0[xX])([0-9a-fA-F']+)([uUlLzZ]*)", literal)
    if m:
        value = int(m.group(2).replace("'", ""), 16) + 1
        return f"{m.group(1)}{value:X}{m.group(3)}"
    m = re.fullmatch(r"([\d'.]+)([eE][+-]?\d+)?([a-zA-Z_]*)", literal)
    if not m:
        return None
    mantissa = m.group(1).replace("'", "")
    digits = mantissa.replace(".", "")
    if len(digits.lstrip("0")) > 15:
        return None  # beyond a double's precision: the same number
    if "." not in mantissa:
        return str(int(mantissa) + 1) + (m.group(2) or "") + m.group(3)
    whole, _, fraction = mantissa.partition(".")
    if not fraction:
        return f"{int(whole or '0') + 1}.{m.group(2) or ''}{m.group(3)}"
    scaled = int((whole or "0") + fraction) + 1
    text = str(scaled).rjust(len(fraction) + 1, "0")
    return f"{text[:-len(fraction)]}.{text[-len(fraction):]}{m.group(2) or ''}{m.group(3)}"


def find_mutants(text):
    tokens = tokenize(text)
    structure = Structure(tokens)
    angles = template_angles(tokens)
    mutants = []
    in_static_assert = set()
    for i, token in enumerate(tokens):
        if token.text == "static_assert" and i + 1 < len(tokens) and i + 1 in structure.match:
            in_static_assert.update(range(i, structure.match[i + 1] + 1))

    for i, token in enumerate(tokens):
        if i in in_static_assert:
            continue
        if i in structure.body and token.kind == "op":
            previous = tokens[i - 1].text if i else ""
            if token.text in SWAPS and i not in angles and previous != "operator":
                mutants.append(Mutant(token.start, token.end, SWAPS[token.text], "operator"))
            elif token.text == "!" and previous != "operator":
                mutants.append(Mutant(token.start, token.end, "", "negation"))
        if token.kind == "number" and (i in structure.body or i in structure.constant_numbers):
            bumped = bumped_number(token.text)
            if bumped:
                mutants.append(Mutant(token.start, token.end, bumped, "constant"))

    for opened, closed in structure.conditions:
        start, end = tokens[opened].end, tokens[closed].start
        mutants.append(Mutant(start, end, "!(" + text[start:end] + ")", "negation"))
    for first, semicolon in structure.statements:
        mutants.append(Mutant(tokens[first].start, tokens[semicolon].end, "{}", "statement"))

    mutants.sort(key=lambda m: (m.start, m.end))
    for mutant in mutants:
        describe(text, mutant)
    return mutants


def collapse(text):
    return " ".join(text.split())


def describe(text, mutant):
    line_start = text.rfind("\n", 0, mutant.start) + 1
    line_end = text.find("\n", mutant.end)
    line_end = len(text) if line_end < 0 else line_end
    mutant.line = text.count("\n", 0, mutant.start) + 1
    mutant.original_text = collapse(text[line_start:line_end])
    mutant.mutant_text = collapse(text[line_start:mutant.start] + mutant.replacement + text[mutant.end:line_end])


def apply(text, mutant):
    mutated = text[:mutant.start] + mutant.replacement + text[mutant.end:]
    if mutant.replacement in ("&&", "||"):
        # `a || b || c` made `a && b || c` only reads ambiguously; it is still a fault to find.
        mutated = '#pragma GCC diagnostic ignored "-Wparentheses"\n' + mutated
    return mutated


# ---------------------------------------------------------------------------------------------
# Accepted equivalent mutants: blocks of "FILE", "- original line", "+ mutated line", "# why",
# separated by blank lines. Lines are compared with runs of whitespace collapsed. "FILE:LINE" holds
# for that line only, for a line written the same way elsewhere in the file (a `return {};`) whose
# other mutants are not equivalent; when the file changes under it, the mutant shows up again.

def read_equivalents(path):
    accepted = set()
    if not path.exists():
        return accepted
    for block in re.split(r"\n\s*\n", path.read_text(encoding="utf-8")):
        lines = [line for line in block.splitlines() if line.strip() and not line.startswith("#")]
        if len(lines) >= 3 and lines[1].startswith("- ") and lines[2].startswith("+ "):
            name, _, line = lines[0].strip().partition(":")
            accepted.add((name, int(line) if line.isdigit() else None, collapse(lines[1][2:]), collapse(lines[2][2:])))
    return accepted


def is_accepted(accepted, name, mutant):
    return any((name, line, mutant.original_text, mutant.mutant_text) in accepted for line in (None, mutant.line))


# ---------------------------------------------------------------------------------------------
# Build and tests

@dataclasses.dataclass
class Test:
    name: str
    command: list
    environment: dict
    directory: str
    target: str
    baseline_s: float = 0.0


def run(command, cwd=None, env=None, timeout=None):
    """Runs a child in its own process group, so that a timeout or an interrupt ends all of it."""
    process = subprocess.Popen(command, cwd=cwd, env=env, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                               start_new_session=True)
    try:
        output, _ = process.communicate(timeout=timeout)
        return process.returncode, output.decode(errors="replace")
    except subprocess.TimeoutExpired:
        return None, ""
    finally:
        if process.poll() is None:
            with contextlib.suppress(ProcessLookupError):
                os.killpg(process.pid, signal.SIGKILL)
            process.wait()


def ctest_tests(build):
    code, output = run(["ctest", "--test-dir", str(build), "--show-only=json-v1"])
    if code != 0:
        raise SetupError(f"ctest could not list the tests of {build}")
    listed = {}
    for path in build.rglob("CTestTestfile.cmake"):
        for m in re.finditer(r'add_test\(\[=\[(.*?)\]=\] "([^"]*)"', path.read_text()):
            listed[m.group(1)] = m.group(2)
    tests = []
    for entry in json.loads(output)["tests"]:
        command = entry.get("command") or [listed.get(entry["name"], "")]
        properties = {p["name"]: p["value"] for p in entry.get("properties", [])}
        environment = dict(os.environ)
        environment.update(item.split("=", 1) for item in properties.get("ENVIRONMENT", []))
        environment.setdefault("QT_QPA_PLATFORM", "offscreen")
        tests.append(Test(entry["name"], command, environment, properties.get("WORKING_DIRECTORY", str(build)),
                          pathlib.Path(command[0]).name))
    return tests


def target_inputs(build, target):
    code, output = run(["ninja", "-C", str(build), "-t", "inputs", target])
    return set(output.split()) if code == 0 else set()


def targets_using(build, path, targets):
    """The targets whose build reads the file: as a source, or as a header of one of their objects."""
    inputs = {target: target_inputs(build, target) for target in targets}
    using = {target for target, files in inputs.items() if str(path) in files}
    if path.suffix in (".h", ".hpp"):
        code, output = run(["ninja", "-C", str(build), "-t", "deps"])
        objects, current = set(), None
        for line in output.splitlines():
            if line and not line.startswith(" "):
                current = line.split(":")[0]
            elif line.strip() == str(path) and current:
                objects.add(current)
        using |= {target for target, files in inputs.items() if files & objects}
    return using


def build(build_dir, targets, jobs):
    code, output = run(["cmake", "--build", str(build_dir), "-j", str(jobs), "--target", *targets])
    return code == 0, output


def run_test(test, timeout):
    started = time.monotonic()
    code, output = run(test.command, cwd=test.directory, env=test.environment, timeout=timeout)
    return code, time.monotonic() - started, output


FAILURE = re.compile(r"^FAIL!\s*:\s*\w+::(\w+\(.*?\))\s", re.MULTILINE)


def failed_functions(output):
    """The Qt Test functions (with their rows) that failed, for telling tests apart."""
    return sorted(set(FAILURE.findall(output)))


# ---------------------------------------------------------------------------------------------
# Writing the file: signals wait while it is written, and a journal outlives a SIGKILL.

@contextlib.contextmanager
def signals_held():
    previous = signal.pthread_sigmask(signal.SIG_BLOCK, HANDLED_SIGNALS)
    try:
        yield
    finally:
        signal.pthread_sigmask(signal.SIG_SETMASK, previous)


def write_bytes(path, data):
    with open(path, "r+b") as f:
        f.write(data)
        f.truncate()
        f.flush()
        os.fsync(f.fileno())


def sha256(data):
    return hashlib.sha256(data).hexdigest()


class Journal:
    def __init__(self, build):
        self.folder = build / ".mutation_check"
        self.folder.mkdir(exist_ok=True)
        self.record = self.folder / "journal.json"
        self.backup = self.folder / "original"

    def recover(self):
        if not self.record.exists():
            return
        entry = json.loads(self.record.read_text())
        path = pathlib.Path(entry["path"])
        current = path.read_bytes() if path.exists() else b""
        if sha256(current) == entry["mutant"] and self.backup.exists():
            original = self.backup.read_bytes()
            if sha256(original) == entry["original"]:
                write_bytes(path, original)
                print(f"restored {path} from an earlier run that was killed", file=sys.stderr)
        self.record.unlink()

    def mutating(self, path, original, mutant):
        self.backup.write_bytes(original)
        self.record.write_text(json.dumps({"path": str(path), "original": sha256(original), "mutant": sha256(mutant)}))

    def restored(self):
        with contextlib.suppress(FileNotFoundError):
            self.record.unlink()


# ---------------------------------------------------------------------------------------------

@dataclasses.dataclass
class FileResult:
    path: str
    mutants: int = 0
    killed: int = 0
    not_viable: int = 0
    survivors: list = dataclasses.field(default_factory=list)
    equivalents: list = dataclasses.field(default_factory=list)
    all: list = dataclasses.field(default_factory=list)
    set_aside: list = dataclasses.field(default_factory=list)
    skipped: str = ""


def relative(path):
    with contextlib.suppress(ValueError):
        return str(path.relative_to(REPO))
    return str(path)


def has_uncommitted_changes(path):
    code, output = run(["git", "-C", str(REPO), "status", "--porcelain", "--", str(path)])
    return code != 0 or bool(output.strip())


def check_file(path, args, tests, accepted, journal, results):
    name = relative(path)
    result = FileResult(name)
    results.append(result)  # partial counts still show when a signal stops the run
    if not args.list and not args.allow_dirty and has_uncommitted_changes(path):
        result.skipped = "uncommitted changes (someone may be editing it; --allow-dirty to mutate anyway)"
        return result
    original = path.read_bytes()
    text = original.decode("utf-8", errors="surrogateescape")
    mutants = find_mutants(text)
    if args.lines:
        low, _, high = args.lines.partition("-")
        mutants = [m for m in mutants if int(low) <= m.line <= int(high or low)]
    result.mutants = len(mutants)
    if not mutants:
        return result
    if args.list:
        for mutant in mutants:
            print(f"{name}:{mutant.line}: [{mutant.kind}] {mutant.original_text} -> {mutant.mutant_text}")
        return result

    targets = sorted({test.target for test in tests})
    using = targets_using(args.build, path, targets)
    chosen = [test for test in tests if test.target in using]
    if not chosen:
        result.skipped = "no chosen test links it"
        return result

    ok, output = build(args.build, sorted(using), args.jobs)
    if not ok:
        result.skipped = "the unmutated build fails:\n" + output[-3000:]
        return result
    for test in list(chosen):
        code, seconds, output = run_test(test, args.timeout_floor * 10)
        if code != 0:  # it cannot tell a mutant from the original: set aside, and say so
            chosen.remove(test)
            result.set_aside.append(test.name)
            print(f"{name}: {test.name} fails without any mutation, set aside:\n{output[-2000:]}", file=sys.stderr)
        test.baseline_s = seconds
    if not chosen:
        result.skipped = "every test that links it fails without any mutation"
        return result
    chosen.sort(key=lambda t: t.baseline_s)
    print(f"{name}: {len(mutants)} mutants, tests {', '.join(t.name for t in chosen)}", file=sys.stderr)

    last_killer = None
    for number, mutant in enumerate(mutants, 1):
        mutated = apply(text, mutant).encode("utf-8", errors="surrogateescape")
        order = sorted(chosen, key=lambda t: (t is not last_killer, t.baseline_s))
        outcome, detail = "survived", ""
        try:
            with signals_held():
                journal.mutating(path, original, mutated)
                write_bytes(path, mutated)
            built = set()
            for test in order:
                if test.target not in built:
                    ok, _ = build(args.build, [test.target], args.jobs)
                    if not ok:
                        outcome = "not viable"
                        break
                    built.add(test.target)
                timeout = max(args.timeout_floor, args.timeout_factor * test.baseline_s)
                code, _, output = run_test(test, timeout)
                if code != 0:
                    outcome, detail = "killed", test.name + (" (timeout)" if code is None else "")
                    mutant.failures = failed_functions(output)
                    last_killer = test
                    break
        finally:
            with signals_held():
                write_bytes(path, original)
                journal.restored()

        mutant.killed_by = detail
        if outcome == "killed":
            result.killed += 1
        elif outcome == "not viable":
            result.not_viable += 1
        elif is_accepted(accepted, name, mutant):
            result.equivalents.append(mutant)
            outcome = "equivalent"
        else:
            result.survivors.append(mutant)
        mutant.outcome = outcome
        result.all.append(mutant)
        print(f"  [{number}/{len(mutants)}] {name}:{mutant.line} {outcome} {detail}".rstrip(), file=sys.stderr)
        print(f"    {mutant.original_text} -> {mutant.mutant_text}", file=sys.stderr)
    return result


def summary(results):
    print()
    print(f"{'file':<48} {'mutants':>7} {'killed':>6} {'survived':>8} {'equivalent':>10} {'not viable':>10}")
    totals = [0, 0, 0, 0, 0]
    for r in results:
        if r.skipped:
            print(f"{r.path:<48} skipped: {r.skipped.splitlines()[0]}")
            continue
        row = [r.mutants, r.killed, len(r.survivors), len(r.equivalents), r.not_viable]
        totals = [a + b for a, b in zip(totals, row)]
        print(f"{r.path:<48} {row[0]:>7} {row[1]:>6} {row[2]:>8} {row[3]:>10} {row[4]:>10}")
    print(f"{'total':<48} {totals[0]:>7} {totals[1]:>6} {totals[2]:>8} {totals[3]:>10} {totals[4]:>10}")
    viable = totals[1] + totals[2] + totals[3]
    if viable:
        print(f"score: {totals[1]} killed of {viable} viable mutants ({100.0 * totals[1] / viable:.1f} %); "
              f"{totals[1]} of {totals[1] + totals[2]} without the accepted equivalents")
    survivors = [(r.path, m) for r in results for m in r.survivors]
    if survivors:
        print("\nSurvivors:")
        for path, m in survivors:
            print(f"{path}:{m.line}: {m.original_text} -> {m.mutant_text}")
    equivalents = [(r.path, m) for r in results for m in r.equivalents]
    if equivalents:
        print("\nAccepted as equivalent:")
        for path, m in equivalents:
            print(f"{path}:{m.line}: {m.original_text} -> {m.mutant_text}")
    for r in results:
        if r.set_aside:
            print(f"\n{r.path}: set aside, failing without any mutation: {', '.join(r.set_aside)}")
        if r.skipped and "\n" in r.skipped:
            print(f"\n{r.path}: {r.skipped}")
    return 1 if survivors else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0],
                                     formatter_class=argparse.RawDescriptionHelpFormatter,
                                     epilog="\n\n".join(__doc__.split("\n\n")[1:]))
    parser.add_argument("files", nargs="+", type=pathlib.Path, metavar="FILE")
    parser.add_argument("--build", type=pathlib.Path, default=REPO / "build-mutation",
                        help="a configured CMake build directory (default: build-mutation)")
    parser.add_argument("--tests", help="comma-separated CTest names to run (default: every test that links the file)")
    parser.add_argument("--jobs", type=int, default=2, help="parallel build jobs (default: 2)")
    parser.add_argument("--timeout-factor", type=float, default=5.0,
                        help="a test taking this many times its unmutated duration counts as hung (default: 5)")
    parser.add_argument("--timeout-floor", type=float, default=10.0, help="the shortest timeout in seconds (default: 10)")
    parser.add_argument("--lines", help="only mutants on these lines of each file, e.g. 40-80")
    parser.add_argument("--equivalents", type=pathlib.Path, default=REPO / "tools" / "mutation_equivalents.txt",
                        help="accepted equivalent mutants (default: tools/mutation_equivalents.txt)")
    parser.add_argument("--allow-dirty", action="store_true", help="mutate files that have uncommitted changes")
    parser.add_argument("--list", action="store_true", help="list the mutants without building or running anything")
    parser.add_argument("--json", type=pathlib.Path, help="also write every mutant and its outcome to this file")
    args = parser.parse_args()

    files = [path.resolve() for path in args.files]
    for path in files:
        if not path.is_file():
            parser.error(f"{path}: no such file")
    args.build = args.build.resolve()

    def interrupted(signum, _frame):
        raise Interrupted(signal.Signals(signum).name)

    for signum in HANDLED_SIGNALS:
        signal.signal(signum, interrupted)

    results = []
    try:
        if args.list:
            for path in files:
                check_file(path, args, [], set(), None, results)
            return 0
        if not (args.build / "build.ninja").exists():
            raise SetupError(f"{args.build} is not a configured Ninja build directory")
        with open(args.build / ".mutation_check.lock", "w") as lock:
            try:
                fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
            except BlockingIOError:
                raise SetupError(f"another mutation check is using {args.build}") from None
            journal = Journal(args.build)
            journal.recover()
            tests = ctest_tests(args.build)
            if args.tests:
                wanted = set(args.tests.split(","))
                unknown = wanted - {t.name for t in tests}
                if unknown:
                    raise SetupError(f"no such test: {', '.join(sorted(unknown))}")
                tests = [t for t in tests if t.name in wanted]
            accepted = read_equivalents(args.equivalents)
            for path in files:
                check_file(path, args, tests, accepted, journal, results)
    except SetupError as error:
        print(f"mutation_check: {error}", file=sys.stderr)
        return 2
    except Interrupted as signal_name:
        print(f"\nmutation_check: stopped by {signal_name}; every file is back as it was", file=sys.stderr)
        summary(results)
        return 130
    finally:
        if args.json:
            write_json(args.json, results)
    return summary(results)


def write_json(path, results):
    entries = [{"file": r.path, "line": m.line, "kind": m.kind, "original": m.original_text, "mutant": m.mutant_text,
                "outcome": m.outcome, "killed_by": m.killed_by, "failures": m.failures}
               for r in results for m in r.all]
    skipped = {r.path: r.skipped for r in results if r.skipped}
    set_aside = {r.path: r.set_aside for r in results if r.set_aside}
    path.write_text(json.dumps({"mutants": entries, "skipped": skipped, "set_aside": set_aside}, indent=1) + "\n")


if __name__ == "__main__":
    sys.exit(main())
