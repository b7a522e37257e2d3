"""Checks that read every text file: words, spaces, names, lengths."""

import os
import re
from collections.abc import Iterator

import house
import tree


def spaces() -> Iterator[str]:
    """No spaces at line ends, no tabs, no carriage returns, one newline at the end"""
    for path in tree.texts():
        content = (tree.ROOT / path).read_bytes()
        if content and not content.endswith(b"\n"):
            yield f"{path}: no newline at the end"
        if content.endswith(b"\n\n"):
            yield f"{path}: empty lines at the end"
        for number, line in enumerate(content.split(b"\n"), 1):
            if line.endswith((b" ", b"\t", b"\r")):
                yield f"{path}:{number}: space at the end of the line"
            elif b"\t" in line and path.endswith(tree.CODE):
                yield f"{path}:{number}: tab"


def words() -> Iterator[str]:
    """No unfinished work, no paths of one machine, no references to texts that are not here"""
    for path in tree.texts():
        for number, line in enumerate(tree.lines(path), 1):
            for pattern, meaning in house.WORDS:
                if found := re.search(pattern, line, re.IGNORECASE if meaning == "unfinished work" else 0):
                    yield f"{path}:{number}: '{found[0]}' ({meaning})"


def lengths() -> Iterator[str]:
    """No source is longer than one sitting of reading"""
    for path in tree.with_suffix(*tree.CODE, ".py", ".sh", ".cmake", ".rc"):
        count = len(tree.lines(path))
        if count > house.LONGEST_FILE and not path.endswith(".rc"):
            yield f"{path}: {count} lines; split it by concern (at most {house.LONGEST_FILE})"


def names() -> Iterator[str]:
    """Sources are named in PascalCase, documents and scripts in lower case"""
    for path in tree.files():
        name = path.rsplit("/", 1)[-1]
        if path.endswith(tree.CODE) and not re.fullmatch(r"(?:[A-Z][A-Za-z0-9]*|Tfrm\w+)\.(?:h|cpp)", name):
            yield f"{path}: sources are named like the idea in them, in PascalCase"
        if path.startswith("docs/") and name.endswith(".md") and not re.fullmatch(r"[a-z0-9-]+\.md|README\.md", name):
            yield f"{path}: documents are named in lower case with hyphens"
        if path.startswith("scripts/") and not re.fullmatch(r"[a-z0-9_-]+(?:\.(?:py|sh))?", name):
            yield f"{path}: scripts are named in lower case"


def modes() -> Iterator[str]:
    """What starts with #! can be executed, nothing else can"""
    for path in tree.files():
        with (tree.ROOT / path).open("rb") as source:
            script = source.read(2) == b"#!"
        executable = os.access(tree.ROOT / path, os.X_OK)
        if script != executable:
            yield f"{path}: {'cannot be executed' if script else 'is executable and has no #! line'}"


def links() -> Iterator[str]:
    """Links of the documents lead somewhere"""
    for path in tree.with_suffix(".md"):
        folder = (tree.ROOT / path).parent
        inside = False
        for number, line in enumerate(tree.lines(path), 1):
            inside ^= line.lstrip().startswith("```")
            for target in [] if inside else re.findall(r"\]\(([^)#\s]+)[^)]*\)", line):
                if "://" not in target and not (folder / target).exists():
                    yield f"{path}:{number}: {target} is not there"


def examples() -> Iterator[str]:
    """Code in the documents stands in sources that are compiled"""
    sources = [bare(tree.text(path)) for path in tree.with_suffix(*tree.CODE) if tree.below(path, house.RUNNABLE)]
    for path in tree.with_suffix(".md"):
        for number, code in code_paragraphs(tree.lines(path)):
            if not any(bare(code) in source for source in sources):
                yield f"{path}:{number}: stands in no source; {house.CHAPTERS} compiles what is in the manual"


def code_paragraphs(lines: list[str]) -> Iterator[tuple[int, str]]:
    """Number of the first line and text of each run of lines without an empty one, in blocks of C++."""
    inside, start, paragraph = False, 0, []
    for number, line in enumerate(lines, 1):
        text = line.strip()
        if paragraph and (not text or text == "```"):
            yield start, "\n".join(paragraph)
            paragraph = []
        if text in ("```cpp", "```"):
            inside = text == "```cpp"
        elif inside and text:
            start = start if paragraph else number
            paragraph.append(line)


def bare(code: str) -> str:
    """The code without comments and white space: sources may break their lines elsewhere."""
    return re.sub(r"//[^\n]*|\s", "", code)
