#!/usr/bin/env python3
"""Writes the stored files that the planner tests read: a year file of menu
plans, a meal list, and the two settings files the planner reads.

A year file " 2026.Mnu" is a row of 700-byte slots; slot n starts at byte
(n - 1) x 700. A saved day is 682 bytes: 21 lines of 32 Windows-1252
characters padded with blanks, then the mark "Full" padded to 10. The last
18 bytes of each slot are never written by the planner; here they are filled
with bytes that are not zeros, so that a test sees whether a save touched
them. The slots of a day:

  months 1 to 9   the day's digits and the month's read as a number
                  (15 March is 153, 3 April 34)
  October 320 + day, November 360 + day, December 400 + day

A meal list is a quoted-line file: one item a line in double quotes, CR LF.
The settings files are slot files (see tests/shell/data/make-fixtures.py).

Run it with python3 from anywhere; it rewrites the files beside it. The
tests read the committed files and never run this script.
"""
import pathlib
import struct
import sys

HERE = pathlib.Path(__file__).resolve().parent
sys.dont_write_bytecode = True  # keep the source tree clean
sys.path.insert(0, str(HERE.parents[1] / "support"))
from fixture_bytes import code_page, length_prefixed, slot_file, u16  # noqa: E402

SLOT = 700
TAIL = b"\xa5" * 18          # what another program left at a slot's end


def day(lines, mark="Full"):
    """A saved day: 21 lines (missing ones blank) and its mark."""
    lines = list(lines) + [""] * (21 - len(lines))
    data = b"".join(code_page(line)[:32].ljust(32, b" ") for line in lines)
    return data + code_page(mark).ljust(10, b" ")


YEAR_2026 = {
    # 15 March: a full day with a 32-character dinner line.
    153: day(["Oatmeal", "Orange juice"] + [""] * 5
             + ["Tomato soup"] + [""] * 6
             + ["Roast chicken with potatoes, gra", "Green salad"]) + TAIL,
    # 3 April: breakfast only, with a café.
    34: day(["Pancakes", "Café au lait"]) + TAIL,
    # 10 January: a day whose mark is not exactly "Full".
    101: day(["Never saved"], mark="FULL") + TAIL,
    # 5 March: control bytes and zeros inside the lines.
    53: (code_page("Toast").ljust(32, b"\x00")
         + b"Jam\x09and\x01butter".ljust(32, b" ")
         + b" " * 32 * 19
         + code_page("Full").ljust(10, b" ")) + TAIL,
    # 31 December: a saved day with every line blank.
    431: day([]) + TAIL,
}

MEAL_LIST = ["Pancakes", "eggs and toast", "Bagel", "Oatmeal", "bacon", "Waffles", "Café crème"]

TAGGED_INTEGER = 3
TAGGED_TEXT = 8


def foreign(slot_length, label):
    return (u16(len(label)) + code_page(label)).ljust(slot_length, b"\xa5")


FILES = {
    " 2026.Mnu": slot_file(SLOT, YEAR_2026),
    "Menu1.Fil": b"".join(b'"' + code_page(item) + b'"\r\n' for item in MEAL_LIST),
    "SWR2.fil": slot_file(20, {
        2: struct.pack("<h", 5),
        9: foreign(20, "Spare 9"),
        10: struct.pack("<h", 2),    # three months
        11: struct.pack("<h", 1),    # no week numbers
        12: struct.pack("<h", 2),    # weeks start on Monday
        13: struct.pack("<h", 1),    # today's line shown
        14: foreign(20, "Spare 14"),
    }),
    "GColor4.Fil": slot_file(40, {
        1: length_prefixed(" 1"),
        25: foreign(40, "Spare 25"),
        26: u16(TAGGED_TEXT) + length_prefixed("MS Sans Serif"),
        27: u16(TAGGED_INTEGER) + struct.pack("<i", 12),
        28: foreign(40, "Spare 28"),
    }),
}

for name, data in FILES.items():
    (HERE / name).write_bytes(data)
