#!/usr/bin/env python3
"""Makes a test program of the examples in a page.

make_page_examples.py PAGE OUT   The first block of C++ is the opening of the program. Every later
one is a test: what it prints has to be the block of text below it.
"""
import pathlib
import re
import sys

HEAD = """#include <gtest/gtest.h>

"""
TEST = """
TEST(MatrixLanguagePage, {name})
{{
    testing::internal::CaptureStdout();
    {{
{code}
    }}
    EXPECT_EQ(testing::internal::GetCapturedStdout(), R"page({text})page");
}}
"""


def main(page, out):
    text = pathlib.Path(page).read_text()
    blocks = re.findall(r"^## ([^\n]*)$|^```(\w+)\n(.*?)^```$", text, re.M | re.S)
    program, title, number, code = HEAD, "", 0, None
    for heading, kind, body in blocks:
        if heading:
            title, number = re.sub(r"\W+", " ", heading).title().replace(" ", ""), 0
        elif kind == "cpp" and "#include" in body:
            program += body
        elif kind == "cpp":
            if code is not None:
                return f"{page}: an example under {title} has no output below it"
            code = body
        else:
            number += 1
            program += TEST.format(name=f"{title}{number}", code=code.rstrip(), text=body)
            code = None
    if code is not None:
        return f"{page}: the last example has no output below it"
    pathlib.Path(out).write_text(program)
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]) if len(sys.argv) == 3 else __doc__)
