"""Finds what may be mutated: walks the syntax trees of the library's hand-written sources.

Only code that runs is looked at: bodies of functions that are neither constexpr nor consteval, without what the
compiler evaluates in them (case labels, static_assert, template arguments, constants, sizes of arrays).
"""
import dataclasses
import os
import re

from clang.cindex import CursorKind as Kind
from clang.cindex import Diagnostic, Index, StorageClass, TranslationUnit, TypeKind

PARSER = "shared_pkg/common/schema/parser"
SOURCES = PARSER + "/src"
FOLDERS = ("frame", "decode", "tree", "access", "records", "load")
OPTIONS = ["-std=c++20", "-x", "c++", "-w", f"-I{PARSER}/include", f"-I{PARSER}/src", "-Iplatform/include"]

OPERATORS = {"<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"), "==": ("!=",), "!=": ("==",),
             "+": ("-",), "-": ("+",), "&&": ("||",), "||": ("&&",), "+=": ("-=",), "-=": ("+=",)}
COMPARISONS = ("<", "<=", ">", ">=", "==", "!=")

FUNCTIONS = (Kind.FUNCTION_DECL, Kind.CXX_METHOD, Kind.CONSTRUCTOR, Kind.DESTRUCTOR, Kind.FUNCTION_TEMPLATE,
             Kind.CONVERSION_FUNCTION)
SCOPES = (Kind.NAMESPACE, Kind.STRUCT_DECL, Kind.CLASS_DECL, Kind.CLASS_TEMPLATE, Kind.UNEXPOSED_DECL,
          Kind.LINKAGE_SPEC, Kind.CLASS_TEMPLATE_PARTIAL_SPECIALIZATION)
CONDITIONED = (Kind.IF_STMT, Kind.WHILE_STMT, Kind.CONDITIONAL_OPERATOR)
BODIES = (Kind.IF_STMT, Kind.WHILE_STMT, Kind.FOR_STMT, Kind.CXX_FOR_RANGE_STMT)
UNEVALUATED = (Kind.STATIC_ASSERT, Kind.CXX_UNARY_EXPR, Kind.DECL_REF_EXPR, Kind.TYPE_REF, Kind.TEMPLATE_REF,
               Kind.TYPEDEF_DECL, Kind.TYPE_ALIAS_DECL, Kind.ENUM_DECL, Kind.NAMESPACE_REF)

NUMBERS = (TypeKind.UCHAR, TypeKind.SCHAR, TypeKind.USHORT, TypeKind.SHORT, TypeKind.UINT, TypeKind.INT,
           TypeKind.ULONG, TypeKind.LONG)

WITHOUT_EFFECT = "__builtin_prefetch"


@dataclasses.dataclass(frozen=True, order=True)
class Candidate:
    """One mutant: the text from start to end of a file reads differently."""
    file: str
    start: int
    end: int
    mutated: str
    form: str  # value, condition or statement: how the text stands in its surroundings
    original: str
    line: int
    source: str  # the line, trimmed
    function: str  # that it stands in, by its bare name

    @property
    def change(self):
        return f"{self.original} → {readable(self.mutated) or '(dropped)'}"


def readable(text):
    """What was read as one character per octet."""
    return text.encode("latin-1").decode("utf-8", "replace")


def function_around(lines):
    """The bare name of the function whose head is the last one of these lines that begins at the margin."""
    for line in reversed(lines):
        if head := re.match(r"[A-Za-z].*?(\w+)\(", line):
            return head[1]
    return ""


def one_line(text):
    """The code without comments and line breaks."""
    return " ".join(re.sub(r"//[^\n]*", "", text).split())


class File:
    def __init__(self, root, name):
        self.name = name
        # One character per octet, as offsets count.
        with open(os.path.join(root, name), encoding="latin-1") as file:
            self.text = file.read()
        self.macros = []

    def inside_macro(self, start, end):
        """Whether a text is a use of a macro or cuts one."""
        return any((start, end) == (begin, stop) or begin < start < stop or begin < end < stop
                   for begin, stop in self.macros)


class Finder:
    def __init__(self, root):
        self.root = root
        self.files = {}
        self.found = {}

    def file_of(self, cursor):
        place = cursor.location.file
        name = os.path.relpath(place.name, self.root) if place else ""
        if not any(name.startswith(f"{SOURCES}/{folder}/") for folder in FOLDERS):
            return None
        if name not in self.files:
            self.files[name] = File(self.root, name)
        return self.files[name]

    def add(self, file, start, end, mutated, form="value"):
        line = file.text.count("\n", 0, start) + 1
        original = readable(one_line(file.text[start:end]))
        lines = file.text.splitlines()
        source = readable(lines[line - 1].strip())
        self.found.setdefault((file.name, start, end, mutated),
                              Candidate(file.name, start, end, mutated, form, original, line, source,
                                        function_around(lines[:line])))

    def scan_unit(self, name):
        unit = Index.create().parse(name, args=OPTIONS, options=TranslationUnit.PARSE_DETAILED_PROCESSING_RECORD)
        errors = [str(d) for d in unit.diagnostics if d.severity >= Diagnostic.Error]
        if errors:
            raise SystemExit(f"{name} does not parse: {errors[0]}")
        for cursor in unit.cursor.get_children():
            if cursor.kind == Kind.MACRO_INSTANTIATION and (file := self.file_of(cursor)):
                extent = (cursor.extent.start.offset, cursor.extent.end.offset)
                if extent not in file.macros:
                    file.macros.append(extent)
        for cursor in unit.cursor.get_children():
            if file := self.file_of(cursor):
                self.scan_scope(file, cursor)

    def scan_scope(self, file, cursor):
        if cursor.kind in FUNCTIONS:
            body = [c for c in cursor.get_children() if c.kind == Kind.COMPOUND_STMT]
            head = file.text[cursor.extent.start.offset:body[0].extent.start.offset] if body else "constexpr"
            if not re.search(r"\b(constexpr|consteval)\b", head):
                self.scan(file, body[0], cursor)
        elif cursor.kind in SCOPES:
            for child in cursor.get_children():
                self.scan_scope(file, child)

    def scan(self, file, node, parent):
        if node.kind in UNEVALUATED or file.text.startswith(WITHOUT_EFFECT, node.extent.start.offset):
            self.see_named_constant(file, node)
            return
        start, end = node.extent.start.offset, node.extent.end.offset
        if file.inside_macro(start, end) and node.kind != Kind.COMPOUND_STMT:
            if node.kind == Kind.INTEGER_LITERAL and (start, end) in file.macros:
                self.see_integer(file, start, end)
            return
        children = list(node.get_children())
        self.see_node(file, node, children, start, end)
        self.see_statements(file, node, children)
        for child in self.evaluated(file, node, children):
            self.scan(file, child, node)

    def evaluated(self, file, node, children):
        """The children that the program evaluates while it runs."""
        if node.kind == Kind.CASE_STMT:
            return children[1:]
        if node.kind == Kind.MEMBER_REF_EXPR:
            return children[:1]
        if node.kind == Kind.IF_STMT and re.match(r"if\s+constexpr", file.text[node.extent.start.offset:]):
            return children[1:]
        if node.kind == Kind.VAR_DECL:
            return children[-1:] if children and self.is_initialised(file, node, children[-1]) else []
        return children

    @staticmethod
    def is_initialised(file, variable, value):
        """Whether the value is the variable's, and made while the program runs."""
        head = file.text[variable.extent.start.offset:variable.location.offset]
        if variable.storage_class == StorageClass.STATIC or re.search(r"\bconstexpr\b", head):
            return False
        behind = variable.location.offset + len(variable.spelling)
        between = re.sub(r"\[[^]]*\]", "", file.text[behind:value.extent.start.offset]).strip()
        return between == "=" or (between == "" and file.text[value.extent.start.offset] == "{")

    def see_named_constant(self, file, node):
        """A constexpr number is used: the constant itself stays, its use may differ."""
        named = node.referenced if node.kind == Kind.DECL_REF_EXPR else None
        if named is None or named.kind != Kind.VAR_DECL or \
                not any(token.spelling == "constexpr" for token in named.get_tokens()):
            return
        start, end = node.extent.start.offset, node.extent.end.offset
        text = file.text[start:end]
        if named.type.get_canonical().kind in NUMBERS and not file.inside_macro(start, end):
            self.add(file, start, end, f"{text} + 1")
            self.add(file, start, end, f"{text} - 1")

    def see_integer(self, file, start, end):
        text = file.text[start:end]
        for mutated in (f"{text} + 1", f"{text} - 1") + (() if text.strip("uUlL") in ("0", "1") else ("0",)):
            self.add(file, start, end, mutated)

    def see_node(self, file, node, children, start, end):
        text = file.text[start:end]
        if node.kind == Kind.INTEGER_LITERAL:
            self.see_integer(file, start, end)
        elif node.kind == Kind.CXX_BOOL_LITERAL_EXPR and text in ("true", "false"):
            self.add(file, start, end, "false" if text == "true" else "true")
        elif node.kind == Kind.UNARY_OPERATOR and text.startswith("!"):
            self.add(file, start, end, one_line(text[1:]), "condition")
        elif node.kind in (Kind.BINARY_OPERATOR, Kind.COMPOUND_ASSIGNMENT_OPERATOR) and len(children) == 2:
            left, right = children[0].extent.end.offset, children[1].extent.start.offset
            for other in OPERATORS.get(one_line(file.text[left:right]), ()):
                form = "({}) {} ({})" if other in ("&&", "||") else "{} {} {}"
                self.add(file, start, end, form.format(one_line(file.text[start:left]), other,
                                                       one_line(file.text[right:end])))
        if node.kind in CONDITIONED and children and children[0].kind.is_expression():
            self.see_condition(file, node, children[0])

    def see_condition(self, file, node, condition):
        if re.match(r"if\s+constexpr", file.text[node.extent.start.offset:]):
            return
        start, end = condition.extent.start.offset, condition.extent.end.offset
        text = file.text[start:end]
        parts = list(condition.get_children())
        is_comparison = condition.kind == Kind.BINARY_OPERATOR and len(parts) == 2 and one_line(
            file.text[parts[0].extent.end.offset:parts[1].extent.start.offset]) in COMPARISONS
        # Those have mutants that say the same.
        if not is_comparison and not text.startswith("!") and condition.kind != Kind.CXX_BOOL_LITERAL_EXPR and \
                not file.inside_macro(start, end):
            self.add(file, start, end, f"!({one_line(text)})", "condition")

    def see_statements(self, file, node, children):
        if node.kind == Kind.COMPOUND_STMT:
            statements = children
        elif node.kind in BODIES:
            statements = children[1:] if node.kind == Kind.IF_STMT else children[-1:]
        else:
            return
        for child in statements:
            start, end = child.extent.start.offset, child.extent.end.offset
            if child.kind.is_expression() and not file.inside_macro(start, end) and \
                    not file.text.startswith((WITHOUT_EFFECT, "static_cast<void>"), start):
                self.add(file, start, end, "", "statement")


def find_candidates(root):
    """All mutants of the sources below root, in the order of files and places; the number of each is its index + 1."""
    root = os.path.abspath(root)
    os.chdir(root)
    finder = Finder(root)
    for folder in FOLDERS:
        for name in sorted(os.listdir(f"{SOURCES}/{folder}")):
            if name.endswith(".cpp"):
                finder.scan_unit(f"{SOURCES}/{folder}/{name}")
    return sorted(finder.found.values())
