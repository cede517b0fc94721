#!/usr/bin/env python3
"""Writes src/automation/case_folding_table.inc: simple case folding, one character to one character.

    tools/make_case_folding.py > src/automation/case_folding_table.inc

Run it again when the Unicode version of the table should move on.
"""

import sys
import unicodedata


def folded(code):
    """The character that stands for both cases of `code`, or `code` itself."""
    character = chr(code)
    full = character.casefold()
    if len(full) == 1:
        return ord(full)
    # Where the full folding is longer than one character, the simple one is the small letter.
    small = character.lower()
    return ord(small) if len(small) == 1 else code


def ranges():
    """Runs of characters with one distance to their folded forms: [first, last, delta, stride]."""
    found = []
    for code in range(0x80, sys.maxunicode + 1):
        delta = folded(code) - code
        if delta == 0:
            continue
        if found and found[-1][2] == delta:
            first, last, _, stride = found[-1]
            step = code - last
            if step == stride or (first == last and step <= 2):
                found[-1][1] = code
                found[-1][3] = step
                continue
        found.append([code, code, delta, 1])
    return found


def main():
    print("// Made by tools/make_case_folding.py from Unicode "
          f"{unicodedata.unidata_version}; not to be edited by hand.")
    print("// First and last character, what is added to fold, and the step from one to the next.")
    for first, last, delta, stride in ranges():
        print(f"{{0x{first:05X}, 0x{last:05X}, {delta}, {stride}}},")


main()
