# SPDX-FileCopyrightText: 2026 The Brenica developers
# SPDX-License-Identifier: GPL-3.0-or-later
"""The mutants of a source file: each changes one operator, constant, condition, result or statement."""
import re
from dataclasses import dataclass
from pathlib import Path

from clang.cindex import CursorKind, Index, TypeKind

ROOT = Path(__file__).resolve().parents[2]
FOLDERS = ("src/method", "src/scoring", "src/selection", "src/entry")
FILES = ("src/project/project_file_reader.cpp", "src/project/project_file_writer.cpp",
         "src/project/version1_project.cpp")

COMPARISONS = {b"<": (b"<=", b">="), b"<=": (b"<", b">"), b">": (b">=", b"<="), b">=": (b">", b"<"),
               b"==": (b"!=",), b"!=": (b"==",)}
ARITHMETIC = {b"+": b"-", b"-": b"+", b"*": b"/", b"/": b"*", b"%": b"*"}
ASSIGNMENTS = {b"+=": b"-=", b"-=": b"+=", b"*=": b"/=", b"/=": b"*="}
LOGICAL = {b"&&": b"||", b"||": b"&&"}
STEPS = {b"++": b"--", b"--": b"++"}
TRAP = "ReportError"

FUNCTIONS = {CursorKind.FUNCTION_DECL, CursorKind.CXX_METHOD, CursorKind.CONSTRUCTOR, CursorKind.DESTRUCTOR,
             CursorKind.FUNCTION_TEMPLATE, CursorKind.CONVERSION_FUNCTION}
BODIES = {CursorKind.COMPOUND_STMT, CursorKind.IF_STMT, CursorKind.FOR_STMT, CursorKind.CXX_FOR_RANGE_STMT,
          CursorKind.WHILE_STMT, CursorKind.DO_STMT, CursorKind.CASE_STMT, CursorKind.DEFAULT_STMT}
JUMPS = {CursorKind.BREAK_STMT, CursorKind.CONTINUE_STMT}
EFFECTS = {CursorKind.CALL_EXPR, CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR,
           CursorKind.UNARY_OPERATOR, CursorKind.UNEXPOSED_EXPR}
CONDITIONS = {CursorKind.IF_STMT, CursorKind.WHILE_STMT, CursorKind.CONDITIONAL_OPERATOR}
WHOLE_NUMBERS = {TypeKind.INT, TypeKind.UINT, TypeKind.LONG, TypeKind.ULONG, TypeKind.LONGLONG,
                 TypeKind.ULONGLONG, TypeKind.SHORT, TypeKind.USHORT}
NUMBERS = WHOLE_NUMBERS | {TypeKind.DOUBLE, TypeKind.FLOAT}


@dataclass(frozen=True)
class Mutant:
    file: str
    function: str
    line: int
    before: str  # its lines without what only the layout adds
    after: str
    start: int  # bytes of the file, from start to end, give way to the replacement
    end: int
    replacement: bytes
    deletes: bool = False  # takes a whole statement away
    constant: bool = False  # where the compiler wants a constant, so that no switch can stand there

    @property
    def key(self):
        """Names it wherever its lines move to."""
        return (self.file, self.function, self.before, self.after)

    def applied(self, source):
        return source[:self.start] + self.replacement + source[self.end:]


def plain(text):
    return " ".join(text.decode().split())


def sources(root=ROOT):
    """The files under test, as paths from the root."""
    found = [path for folder in FOLDERS for path in sorted((root / folder).rglob("*")) if path.suffix in (".cpp", ".h")]
    return [str(path.relative_to(root)) for path in found] + list(FILES)


def parse(path, content=None, root=ROOT):
    """The translation unit of a file, of which `content` may stand in for what the disk holds."""
    arguments = ["-xc++", "-std=c++20", "-Wno-everything", f"-I{root}/src", f"-I{Path(__file__).parent}"]
    unsaved = [(str(path), content.decode())] if content is not None else []
    return Index.create().parse(str(path), arguments, unsaved)


def errors(unit):
    """The places, in bytes of the unit's own file, of what does not compile; -1 for what lies elsewhere."""
    return [found.location.offset if str(found.location.file) == unit.spelling else -1
            for found in unit.diagnostics if found.severity >= found.Error]


def find(file, root=ROOT):
    path = root / file
    unit = parse(path, root=root)
    if errors(unit):
        raise RuntimeError(f"{file}: {[str(found) for found in unit.diagnostics]}")
    search = Search(file, path.read_bytes())
    for cursor in unit.cursor.get_children():
        if str(cursor.location.file) == str(path):
            search.visit(cursor)
    return sorted(set(search.found), key=lambda mutant: (mutant.start, mutant.end, mutant.replacement))


class Search:
    def __init__(self, file, source):
        self.file = file
        self.source = source
        self.found = []
        self.functions = []
        self.constant = False

    def text(self, cursor):
        return self.source[cursor.extent.start.offset:cursor.extent.end.offset]

    def add(self, cursor, replacement, **more):
        self.add_range(cursor.extent.start.offset, cursor.extent.end.offset, replacement, **more)

    def add_range(self, start, end, replacement, **more):
        function = "::".join(name for name, _ in self.functions) or "-"
        first = self.source.rfind(b"\n", 0, start) + 1
        last = self.source.find(b"\n", end)
        before = plain(self.source[first:last])
        after = plain(self.source[first:start] + replacement + self.source[end:last])
        line = self.source.count(b"\n", 0, start) + 1
        self.found.append(Mutant(self.file, function, line, before, after, start, end, replacement,
                                 constant=self.constant, **more))

    def visit(self, cursor):
        named = cursor.kind in FUNCTIONS or cursor.kind in (CursorKind.CLASS_DECL, CursorKind.STRUCT_DECL)
        wasConstant = self.constant
        self.constant = self.constant or self.is_constant(cursor)
        if named:
            returnsNothing = cursor.result_type.kind in (TypeKind.VOID, TypeKind.INVALID)
            self.functions.append((cursor.spelling, returnsNothing))
        self.mutate(cursor)
        children = list(cursor.get_children())
        for index, child in enumerate(children):
            if cursor.kind in BODIES:
                self.delete(cursor, children, index)
            if self.is_alike_in_every_trap(cursor, index):
                continue
            inCase = cursor.kind == CursorKind.CASE_STMT and index == 0
            self.constant, kept = self.constant or inCase, self.constant
            self.visit(child)
            self.constant = kept
        if named:
            self.functions.pop()
        self.constant = wasConstant

    def is_constant(self, cursor):
        if cursor.kind in (CursorKind.ENUM_DECL, CursorKind.STATIC_ASSERT):
            return True
        if cursor.kind not in FUNCTIONS and cursor.kind != CursorKind.VAR_DECL:
            return False
        start = cursor.extent.start.offset
        head = re.split(rb"[={(]", self.source[start:cursor.extent.end.offset])[0]
        return re.search(rb"\bconstexpr\b", head) is not None

    @staticmethod
    def is_alike_in_every_trap(cursor, index):
        """All traps hand on the code 9999 and an extra text that no report of that code reads."""
        return cursor.kind == CursorKind.CALL_EXPR and cursor.spelling == TRAP and index in (1, 3)

    # Statements

    def delete(self, parent, children, index):
        cursor = children[index]
        if not self.is_statement(parent, children, index):
            return
        if not (cursor.kind in JUMPS or self.is_empty_return(cursor) or self.has_effect(cursor)):
            return
        end = self.source.find(b";", cursor.extent.end.offset)
        if self.source[cursor.extent.end.offset:end].strip() == b"":
            self.add_range(cursor.extent.start.offset, end + 1, b";", deletes=True)

    @staticmethod
    def is_statement(parent, children, index):
        """Whether a child is a statement rather than a condition or the step of a loop."""
        if parent.kind == CursorKind.COMPOUND_STMT:
            return True
        if parent.kind == CursorKind.IF_STMT:
            return index > 0 and children[index].kind.is_statement() or index >= 1
        return index == len(children) - 1 and index > 0

    @staticmethod
    def is_empty_return(cursor):
        return cursor.kind == CursorKind.RETURN_STMT and not list(cursor.get_children())

    def has_effect(self, cursor):
        if cursor.kind not in EFFECTS:
            return False
        returnsNothing = self.functions[-1][1] if self.functions else True
        return returnsNothing or not self.text(cursor).startswith(TRAP.encode())

    # Expressions

    def mutate(self, cursor):
        kind = cursor.kind
        if kind == CursorKind.BINARY_OPERATOR:
            self.mutate_binary(cursor)
        elif kind == CursorKind.COMPOUND_ASSIGNMENT_OPERATOR:
            self.swap_operator(cursor, ASSIGNMENTS)
        elif kind == CursorKind.CALL_EXPR and cursor.spelling in ("operator==", "operator!="):
            self.swap_operator(cursor, {b"==": b"!=", b"!=": b"=="})
        elif kind == CursorKind.UNARY_OPERATOR:
            self.mutate_unary(cursor)
        elif kind in (CursorKind.INTEGER_LITERAL, CursorKind.FLOATING_LITERAL):
            self.mutate_number(cursor)
        elif kind == CursorKind.CXX_BOOL_LITERAL_EXPR:
            self.add(cursor, b"false" if self.text(cursor) == b"true" else b"true")
        elif kind == CursorKind.STRING_LITERAL:
            self.add(cursor, self.text(cursor)[:-1] + b'~"')
        elif kind == CursorKind.CHARACTER_LITERAL:
            self.add(cursor, b"'`'" if self.text(cursor) != b"'`'" else b"'~'")
        elif kind == CursorKind.RETURN_STMT:
            self.mutate_result(cursor)
        if kind in CONDITIONS:
            self.negate(next(cursor.get_children()))

    def operator_place(self, cursor):
        """Where the operator of a binary expression stands."""
        operands = list(cursor.get_children())
        if len(operands) < 2:
            return None
        start, end = operands[0].extent.end.offset, operands[-1].extent.start.offset
        between = re.search(rb"[^\s()]+", self.source[start:end])
        return (start + between.start(), start + between.end()) if between else None

    def with_operator(self, cursor, place, operator):
        """Replaces the whole expression, so that it can be put behind a switch."""
        start, end = cursor.extent.start.offset, cursor.extent.end.offset
        self.add_range(start, end, self.source[start:place[0]] + operator + self.source[place[1]:end])

    def swap_operator(self, cursor, swaps):
        place = self.operator_place(cursor)
        operator = self.source[place[0]:place[1]] if place else None
        if operator in swaps:
            self.with_operator(cursor, place, swaps[operator])

    def mutate_binary(self, cursor):
        place = self.operator_place(cursor)
        operator = self.source[place[0]:place[1]] if place else None
        for other in COMPARISONS.get(operator, ()):
            self.with_operator(cursor, place, other)
        if operator in LOGICAL:
            self.with_operator(cursor, place, LOGICAL[operator])
        if operator in ARITHMETIC and cursor.type.get_canonical().kind in NUMBERS:
            self.with_operator(cursor, place, ARITHMETIC[operator])

    def mutate_unary(self, cursor):
        text = self.text(cursor)
        for operator, other in STEPS.items():
            if text.startswith(operator):
                return self.add(cursor, other + text[2:])
            if text.endswith(operator):
                return self.add(cursor, text[:-2] + other)
        if text.startswith(b"!"):
            operand = next(cursor.get_children())
            self.add(cursor, text[1:] if self.is_bool(operand) else b"!" + text)
        elif text.startswith(b"-") and cursor.type.get_canonical().kind in NUMBERS:
            self.add(cursor, text[1:])

    def is_bool(self, cursor):
        """Whether it is one by itself: what converts to one may be made from one, too."""
        while cursor.kind == CursorKind.UNEXPOSED_EXPR or cursor.spelling == "operator bool":
            cursor = next(cursor.get_children())
        return cursor.type.get_canonical().kind == TypeKind.BOOL

    def mutate_number(self, cursor):
        text = self.text(cursor)
        if not text:
            return
        for step in (b" + 1", b" - 1"):
            self.add(cursor, b"(" + text + step + b")")

    def mutate_result(self, cursor):
        value = next(cursor.get_children(), None)
        if value is None:
            return
        kind = value.type.get_canonical().kind
        if kind == TypeKind.BOOL:
            self.negate(value)
        elif kind in NUMBERS and not self.is_literal(value):
            self.add(value, b"(" + self.text(value) + b") + 1")

    def negate(self, condition):
        """Comparisons, negations and literals have mutants of their own that say the same."""
        text = self.text(condition)
        if not text or text.startswith(b"!") or self.is_literal(condition) or condition.kind.is_declaration():
            return
        if condition.kind == CursorKind.BINARY_OPERATOR:
            place = self.operator_place(condition)
            if place and self.source[place[0]:place[1]] in COMPARISONS:
                return
        self.add(condition, b"!(" + text + b")")

    def is_literal(self, cursor):
        return re.fullmatch(rb"-?[\w.']+|true|false", self.text(cursor)) is not None and (
            self.text(cursor)[:1] in b"-0123456789" or self.text(cursor) in (b"true", b"false"))
