"""Checks that read C++ sources: includes, headers, tests."""

import re
from collections.abc import Iterator

import house
import tree

INCLUDE = re.compile(r'^\s*#\s*include\s+(["<])([^">]+)[">]')


def includes_of(path: str) -> list[tuple[int, str, str]]:
    """Line, kind of bracket and path of every include."""
    found = []
    for number, line in enumerate(tree.lines(path), 1):
        if match := INCLUDE.match(line):
            found.append((number, match[1], match[2]))
    return found


def layer_of(path: str) -> str | None:
    """The layer with the longest name that the file lies in."""
    layers = [layer for layer in house.MAY_INCLUDE if tree.below(path, (layer,))]
    return max(layers, key=len, default=None)


def includes() -> Iterator[str]:
    """Includes are written from the root, name what exists, and point to lower layers only"""
    known = set(tree.files())
    for path in tree.with_suffix(*tree.CODE):
        layer = layer_of(path)
        if layer is None:
            yield f"{path}: its folder has no place in scripts/lint/house.py"
            continue
        for number, bracket, target in includes_of(path):
            if bracket == "<":
                if target in known:
                    yield f"{path}:{number}: {target} is ours: write it in quotes"
            elif target not in known:
                yield f"{path}:{number}: {target} is not a path from the root"
            elif not may_include(layer, target):
                yield f"{path}:{number}: {layer} may not include {target}"


def may_include(layer: str, target: str) -> bool:
    if not tree.below(target, (layer, *house.MAY_INCLUDE[layer])):
        return False
    # Framework layers are folders in a folder: being below it is not enough.
    return layer == house.VCL or layer_of(target) == layer or tree.below(target, house.MAY_INCLUDE[layer])


def own_header_first() -> Iterator[str]:
    """A source includes its own header first, so that the header is known to stand alone"""
    known = set(tree.files())
    for path in tree.with_suffix(".cpp"):
        own = path.removesuffix(".cpp") + ".h"
        found = includes_of(path)
        if own in known and (not found or found[0][2] != own):
            yield f"{path}: includes something before {own}"


def circles() -> Iterator[str]:
    """Headers include each other without circles"""
    known = set(tree.files())
    graph = {path: [target for _, bracket, target in includes_of(path) if bracket == '"' and target in known]
             for path in tree.with_suffix(".h")}
    state: dict[str, int] = {}

    def visit(path: str, trail: list[str]) -> Iterator[str]:
        state[path] = 1
        for target in graph.get(path, []):
            if state.get(target) == 1:
                yield " -> ".join([*trail[trail.index(target):], target])
            elif target not in state:
                yield from visit(target, [*trail, target])
        state[path] = 2

    for path in graph:
        if path not in state:
            yield from visit(path, [path])


def pragma_once() -> Iterator[str]:
    """Headers are included once"""
    for path in tree.with_suffix(".h"):
        if "#pragma once" not in tree.text(path):
            yield f"{path}: no #pragma once"


def docstrings() -> Iterator[str]:
    """Every class of a public header says what it is"""
    # Small structs without the framework's prefix (traits, say) speak for themselves.
    declared = re.compile(r"^(?:class|struct(?=\s+[TEI][A-Z]))\s+(\w+)[^;]*$")
    for path in tree.with_suffix(".h"):
        if not tree.below(path, house.PUBLIC):
            continue
        lines = tree.lines(path)
        for index, line in enumerate(lines):
            match = declared.match(line)
            if match and not has_docstring(lines, index):
                yield f"{path}:{index + 1}: {match[1]} has no docstring"


def has_docstring(lines: list[str], index: int) -> bool:
    """Whether /// stands above the declaration and its template head. A specialisation needs none."""
    above = index - 1
    while above >= 0 and lines[above].startswith(("template", "    ", "requires")):
        if lines[above].startswith("template <>"):
            return True
        above -= 1
    return above >= 0 and lines[above].startswith("///")


def shared_state() -> Iterator[str]:
    """Headers hold no variables: each DLL and program would have its own"""
    variable = re.compile(r"^\s*(?:inline\s+static|static\s+inline|inline|thread_local|extern)\s+"
                          r"(?!const\b|constexpr\b|static\b|thread_local\b|namespace\b|auto\b)[\w:<>*&, ]+\s\w+\s*(?:=|;|\{)")
    for path in tree.with_suffix(".h"):
        if not tree.below(path, house.PUBLIC):
            continue
        for number, line in enumerate(tree.lines(path), 1):
            if variable.match(line) and "(" not in line.split("=")[0] and "constexpr" not in line:
                yield f"{path}:{number}: a variable in a header"


def tests() -> Iterator[str]:
    """Tests are not skipped, can fail, and wait for conditions"""
    for path in tree.with_suffix(*tree.CODE):
        if not path.startswith("tests/"):
            continue
        patterns = house.EMPTY_TESTS if path.startswith("tests/support/") else (*house.EMPTY_TESTS, house.WAITING)
        for number, line in enumerate(tree.lines(path), 1):
            for pattern, meaning in patterns:
                if re.search(pattern, line):
                    yield f"{path}:{number}: {meaning}"
