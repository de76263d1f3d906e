#!/usr/bin/env python3
"""Puts the table of operations by class into docs/matrix-language.md, read from the class headers.

    python3 docs/make_matrix_table.py           rewrites the table in place
    python3 docs/make_matrix_table.py --check   fails if the table is not what the headers say
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PAGE = ROOT / "docs" / "matrix-language.md"
CLASSES = ["clsMatrix", "clsLong", "clsComplexMatrix", "clsMatrixComplex", "clsComplex",
           "clsString", "clsVariant"]
BEGIN, END = "<!-- operations: begin -->\n", "<!-- operations: end -->\n"

SHORT = {"Ref<clsMatrix>": "r", "Ref<clsLong>": "L", "Ref<clsComplexMatrix>": "c",
         "Ref<clsMatrixComplex>": "mc", "Ref<clsComplex>": "z", "Ref<clsString>": "s",
         "Ref<clsVariant>": "v", "Variant": "any", "double": "number", "std::int32_t": "number",
         "std::string": "text", "bool": "bool", "void": "-"}
# Members of a kernel's door, and constructors.
NOT_OPERATIONS = {"Elements", "RealPart", "ImagePart", *CLASSES} - {"clsEye"}

STEMS = ["Plus", "Minus", "Times", "Mtimes", "MTimes", "Rdivide"]
FUNCTION = re.compile(r"((Sin|Cos|Tan|Cot|Sec|Csc|A(sin|cos|tan|cot|sec|csc))h?|Exp|Log|Log2|"
                      r"Log10|LogBase|Sqr|Abs)M$|Power$|H(cos|sin)$|\w+_z$")
ORDER = re.compile(r"(Min|Max)(max|Dim|Index|R?Num|Complex|ComplexNum|MatrixComplex|String|"
                   r"RR|RL|LL|CC|CD|CL|MCMC|MCD|MCL|SS)?$|All$|AllAll$|Any(Obj|Any)$")


def group_of(name):
    if any(name.startswith(stem) for stem in STEMS) and not name.endswith("_z"):
        return "Operators"
    if FUNCTION.match(name):
        return "Elementary functions"
    if ORDER.match(name):
        return "Order"
    return "Making, reading, shaping"


def stopping(cls):
    """The members that compute and then fail: by their own line, or by the member they call."""
    lines = (ROOT / "src" / "numeric" / "linear" / f"{cls}Operators.cpp")
    stops = set()
    if lines.exists():
        bodies = re.findall(r"\w+::(\w+) *\(.*return (.*);", lines.read_text())
        stops = {name for name, body in bodies if "Stops<" in body}
        stops |= {name for name, body in bodies if body.split("(")[0] in stops}
    return stops


def members(cls):
    """Name and result of every operation, in the order of the header."""
    stops = stopping(cls)
    text = (ROOT / "src" / "numeric" / f"{cls}.h").read_text()
    text = re.sub(r"//.*", "", text)
    body = text[text.index("public:"):]
    found = {}
    for result, name in re.findall(r"^ {4}([\w:<>&]+(?:<[^;()]*>)?&?) (\w+)\(", body, re.M):
        if name in NOT_OPERATIONS or (name in found and result == "void"):
            continue
        given = "itself" if result.endswith("&") else SHORT.get(result, "array")
        found[name] = "stops" if name in stops else given
    return found


def table():
    by_class = {cls: members(cls) for cls in CLASSES}
    names = list(dict.fromkeys(name for cls in CLASSES for name in by_class[cls]))
    lines = []
    for group in ("Making, reading, shaping", "Operators", "Elementary functions", "Order"):
        lines += [f"### {group}", "", "| | " + " | ".join(f"`{cls}`" for cls in CLASSES) + " |",
                  "|---|" + ":-:|" * len(CLASSES)]
        for name in names:
            if group_of(name) == group:
                cells = " | ".join(by_class[cls].get(name, "") for cls in CLASSES)
                lines.append(f"| `{name}` | {cells} |")
        lines.append("")
    return "\n".join(lines)


def main(arguments):
    page = PAGE.read_text()
    head, rest = page.split(BEGIN)
    new = head + BEGIN + "\n" + table() + END + rest.split(END)[1]
    if arguments == ["--check"]:
        return "docs/make_matrix_table.py has to be run" if new != page else 0
    PAGE.write_text(new)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
