#!/usr/bin/env python3
"""Writes the stored settings files that the settings tests read: the seven
slot files of a data folder in use, with a value at every slot this program
reads or writes, and values of other programs at slots it never uses.

A slot file is a row of fixed-length slots; slot n starts at byte
(n - 1) x slot length. A slot holds one value in one of three forms:

  text        2-byte length L, then L Windows-1252 characters
  integer     2-byte signed integer
  tagged      2-byte kind, then kind 3: a 4-byte integer,
                                 kind 8: a text as above

Numbers are little-endian. After a value the program writes zeros to the end
of its slot, and so does this script for the program's own slots. The slots
of other programs are filled to their last byte with bytes that are not
zeros, so that a test sees any byte a write should have left alone.

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

TAGGED_INTEGER = 3
TAGGED_TEXT = 8


def text(value):
    return length_prefixed(value)


def integer(value):
    return struct.pack("<h", value)


def tagged_integer(value):
    return u16(TAGGED_INTEGER) + struct.pack("<i", value)


def tagged_text(value):
    return u16(TAGGED_TEXT) + length_prefixed(value)


def foreign(slot_length, label):
    """A slot this program never uses, as another program left it: a text
    followed by filler that is not zeros."""
    return (u16(len(label)) + code_page(label)).ljust(slot_length, b"\xa5")


ALL_SCREENS_COLOR = text("12632256")  # a grey given to every screen at once

FILES = {
    "GColor1.Fil": (20, {
        **{slot: ALL_SCREENS_COLOR for slot in (10, 11, 12, 13, 16, 17, 18, 22, 32, 36, 38, 40, 54, 56)},
        27: text("8421504"),     # panel colour of the shopping list screen
        28: text("WP3"),         # shared grid background: a picture
        29: text("0"),           # shared grid text colour
        49: text("Default"),     # panel colour of the main menu
        55: text("1"),           # top toolbar flag
        70: text("65535"),       # the food storage screen: panel,
        71: text("Default"),     # grid background
        72: text("16711680"),    # and grid text
        80: text("32768"),       # the weight tracker: panel colour,
        81: text("1"),           # toolbar flag,
        82: text("16777215"),    # grid colour
        83: text("1"),           # and date checker option
        1: foreign(20, "Other"),
        44: foreign(20, "Spare 44"),
        90: foreign(20, "Last"),
    }),
    "GColor2.Fil": (20, {
        **{slot: ALL_SCREENS_COLOR for slot in (5, 12, 16, 19, 20, 40)},
        9: text("8454143"),      # panel colour of the food guide
        22: text("12648384"),    # the menu planner: panel colour
        23: text("16744576"),    # and second colour
        25: text("Default"),     # the recipe screen: panel colour
        26: text("14737632"),    # and grid colour
        2: foreign(20, "Other"),
        30: foreign(20, "Spare 30"),
    }),
    "GColor3.Fil": (20, {
        **{slot: ALL_SCREENS_COLOR for slot in (8, 17, 91, 92, 100, 101, 102, 103, 104, 105)},
        28: text("1"),           # guide lines of the food storage screen
        35: text("Yes"),         # windowed mode
        36: integer(9600),       # window height in twips
        37: integer(12800),      # window width in twips
        38: text("1"),           # guide lines of the recipe screen
        42: text("0"),           # of the menu planner
        50: text("1"),           # of the shopping list
        80: text("0"),           # of the weight tracker
        1: foreign(20, "Other"),
        60: foreign(20, "Spare 60"),
        106: foreign(20, "Last"),
    }),
    "GColor4.Fil": (40, {
        1: text(" 2"),                     # current cookbook of the recipe screen
        2: text("Family Favorites"),       # titles of cookbooks 1 to 8
        3: text("Holidays"),
        4: text("Cr\u00eapes & Cakes"),
        5: text("Grandma's Sunday Dinner Recipe"),  # 30 characters, the most a title takes
        6: text(""),
        7: text("Quick Meals"),
        8: text(""),
        9: text("Canning"),
        11: text(" 3"),                    # cookbook of the shopping list
        26: tagged_text("Times New Roman"),  # menu planner print font
        27: tagged_integer(12),            # and its size
        32: tagged_text("Arial"),          # weight tracker print font
        33: tagged_integer(10),            # and its size
        34: text("1"),                     # weight trend option
        10: foreign(40, "Not a title"),
        20: foreign(40, "Spare 20"),
        40: foreign(40, "Last"),
    }),
    "GQORB1.Fil": (10, {
        3: tagged_text("WP12"),  # main background: picture 12
        10: integer(1),          # side toolbar flag
        1: foreign(10, "Old"),
        5: foreign(10, "Spare"),
        12: foreign(10, "End"),
    }),
    "QORBNAME.FIL": (40, {
        1: text("M\u00fcller"),  # family name
        2: foreign(40, "Another name"),
    }),
    "SWR2.fil": (20, {
        2: integer(1),           # start values, read and not used further
        3: text("Start"),
        4: text("06/30/2006"),
        10: integer(1),          # menu planner options
        11: integer(0),
        12: integer(3),
        13: integer(-1),
        1: foreign(20, "Other"),
        14: foreign(20, "Spare 14"),
    }),
}


def main():
    for name, (slot_length, slots) in FILES.items():
        (HERE / name).write_bytes(slot_file(slot_length, slots))


if __name__ == "__main__":
    main()
