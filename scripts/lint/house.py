"""The rules of the house in figures and names: what the checks measure against."""

# Which folders a folder may include from, besides itself. Right is below left; a name stands for all below it.
VCL = "platform/vcl"
BASES = ("platform/velmora", "platform/tms", "platform/flatstyle")
PACKAGE = ("skin", "buttons", "explorerbar", "header", "menus", "indicators", "inputs", "package")

MAY_INCLUDE = {
    f"{VCL}/core": (),
    f"{VCL}/streaming": (f"{VCL}/core",),
    f"{VCL}/graphics": (f"{VCL}/core", f"{VCL}/streaming"),
    f"{VCL}/controls": (f"{VCL}/core", f"{VCL}/streaming", f"{VCL}/graphics"),
    f"{VCL}/stdctrls": (f"{VCL}/core", f"{VCL}/streaming", f"{VCL}/graphics", f"{VCL}/controls"),
    f"{VCL}/menus": (f"{VCL}/core", f"{VCL}/streaming", f"{VCL}/graphics", f"{VCL}/controls"),
    f"{VCL}/actions": (f"{VCL}/core", f"{VCL}/streaming", f"{VCL}/graphics", f"{VCL}/controls", f"{VCL}/menus"),
    f"{VCL}/forms": (VCL,),
    VCL: (VCL,),
    "platform/velmora": (VCL,),
    "platform/tms": (VCL,),
    "platform/flatstyle": (VCL,),
    "skin": (VCL, *BASES),
    "buttons": (VCL, *BASES, "skin"),
    "explorerbar": (VCL, *BASES, "skin"),
    "header": (VCL, *BASES, "skin"),
    "menus": (VCL, *BASES, "skin"),
    "indicators": (VCL, *BASES, "skin"),
    "inputs": (VCL, *BASES, "skin", "buttons", "explorerbar", "header", "menus", "indicators"),
    "package": (VCL, *BASES, "skin", "buttons", "explorerbar", "header", "menus", "indicators", "inputs"),
    "resources": (),
    "gallery": (VCL, *BASES, *PACKAGE),
    "designer": (VCL, *BASES, *PACKAGE),
    "examples": (VCL, *BASES, *PACKAGE),
    "tools": (VCL, *BASES, *PACKAGE),
    "bench": (VCL, *BASES, *PACKAGE, "gallery", "designer"),
    "tests": (VCL, *BASES, *PACKAGE, "gallery", "designer", "bench", "tools", "resources"),
}

# Folders whose headers a host includes: their classes carry a docstring.
PUBLIC = (VCL, *BASES, *PACKAGE)

# Where code of the documents may stand; that of the manual which no example has is compiled and tried in CHAPTERS.
RUNNABLE = ("examples", "tests", "bench")
CHAPTERS = "tests/manual"

# Lines of a file: more than the first is worth a thought, more than the second fails.
LONG_FILE = 500
LONGEST_FILE = 700

# Words of unfinished work, paths of one machine, references to texts that are not in this tree. The brackets keep
# the list itself from matching.
WORDS = (
    (r"\bTOD[O]\b|\bFIXM[E]\b|\bXX[X]\b|\bHAC[K]\b", "unfinished work"),
    (r"\bnot implemente[d]\b|\bstu[b]\b|\bplaceholde[r] art", "unfinished work"),
    (r"(?<![\w.])/(?:home|root|work|farm|Users)/\w", "a path of one machine"),
    (r"\b[A-Z]:\\(?:Users|work)\\", "a path of one machine"),
    (r"\b[Pp]art [0-9]+\.[0-9]|\b(?:the|our|this|per|by|from) spe[c]\b|\bspecificatio[n]s?\b|\bspe[c]\.md\b",
     "a text that is not here"),
    (r"\b[Ii]ssu[e] #?[0-9]+\b|\.\./share[d]\b", "a text that is not here"),
    (r"\bsubagen[t]\b|\bAI assistan[t]\b|\blanguage mode[l]\b", "a tool"),
)

# Tests that do not test, and waiting for time instead of for a condition.
EMPTY_TESTS = (
    (r"\bGTEST_SKIP\b|\bDISABLED_", "is skipped"),
    (r"\b(?:EXPECT|ASSERT)_TRUE\(true\)|\b(?:EXPECT|ASSERT)_FALSE\(false\)|\bSUCCEED\(", "cannot fail"),
    (r"\b(?:EXPECT|ASSERT)_EQ\((\w+), \1\)", "cannot fail"),
)
WAITING = (r"(?<![\w.>])(?:::)?Sleep\(|\bsleep_for\(", "waits for time; wait for a condition (tests/support/Pump.h)")
