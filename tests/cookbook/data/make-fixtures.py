#!/usr/bin/env python3
"""Writes the stored cookbook that the cookbook tests read: cookbook 1 of a
small data folder, three files, and a recipe file of the earlier format.

  Recipe2.db1   recipe records, 2045 bytes a slot, five slots:
                  1  used   Cranberry Punch
                  2  free   deleted: every field blank, marked "****"
                  3  used   Hot Crab Dip (accented text, full-width fields)
                  4  free   never written: zeros, left by extending the file
                  5  used   Spinach Balls
  Recipe4.db1   picture paths, 250 bytes a slot, the same five slots:
                  1 a path, 2 empty (deleted), 3 "**" (picture removed),
                  4 zeros, 5 empty (saved without a picture)
  Appenfil.db1  the names of the type "Appetizers and beverages", 60 bytes a
                slot: five entries, one of them numbered 0 and one pointing
                at the never-written slot 4, then two cleared slots

  old_recipe2.db1  recipe records of the earlier versions, 1545 bytes a slot,
                five slots: recipes in slots 2 and 5, each with 14 distinct
                rows and 800 characters of directions, marked "Full "; slots
                1 and 4 deleted (blank, "****"), slot 3 never written (zeros).
                Row r of slot s: amount "s.rr", unit "unit s-rr", ingredient
                "ingredient rr of recipe s"; the directions repeat
                "Stir the crème of recipe s. " and are cut at 800.

Every byte is put at its offset from the record layouts written out below;
text is Windows-1252, numbers are little-endian. The bytes a program writes
after a length-prefixed text are zeros here, as the program writes them, so
that writing the same values back gives the same files.

Run it with python3 from anywhere; it rewrites the three files beside it. The
tests read the committed files and never run this script.
"""
import pathlib
import sys

HERE = pathlib.Path(__file__).resolve().parent
sys.dont_write_bytecode = True  # keep the source tree clean
sys.path.insert(0, str(HERE.parents[1] / "support"))
from fixture_bytes import code_page, length_prefixed, slot_file, u16  # noqa: E402

# RecipeRecord: 2045 bytes, texts left-justified and padded with blanks.
RECIPE_SLOT = 2045
ROWS = 20
AMOUNT_AT, AMOUNT_WIDTH = 0, 5            # 20 x 5, one per ingredient row
DIRECTIONS_AT, DIRECTIONS_WIDTH = 100, 1000
OVEN_AT, OVEN_WIDTH = 1100, 4
UNIT_AT, UNIT_WIDTH = 1104, 10            # 20 x 10
INGREDIENT_AT, INGREDIENT_WIDTH = 1304, 35  # 20 x 35
YIELD_AT, YIELD_WIDTH = 2004, 5
TIME_AT, TIME_WIDTH = 2009, 20
YIELD_TYPE_AT, YIELD_TYPE_WIDTH = 2029, 11
MARK_AT, MARK_WIDTH = 2040, 5

# OldRecipeRecord: 1545 bytes, 14 rows, 800 characters of directions.
OLD_SLOT = 1545
OLD_ROWS = 14
OLD_AMOUNT_AT = 0                  # 14 x 5
OLD_DIRECTIONS_AT, OLD_DIRECTIONS_WIDTH = 70, 800
OLD_OVEN_AT = 870
OLD_UNIT_AT = 874                  # 14 x 10
OLD_INGREDIENT_AT = 1014           # 14 x 35
OLD_YIELD_AT = 1504
OLD_TIME_AT = 1509
OLD_YIELD_TYPE_AT = 1529
OLD_MARK_AT = 1540

# RecipeExtraRecord: 250 bytes; kind 8 (text) at 0, length at 2, path at 4.
EXTRA_SLOT = 250
TEXT_KIND = 8

# RecipeNameRecord: 60 bytes; length at 0, the entry at 2.
NAME_SLOT = 60
ENTRY_PAD = 52  # the name padded with blanks to 52 characters, then the number


def put_text(record, offset, width, text):
    """A fixed-width field: the text, then blanks up to the width."""
    data = code_page(text)
    assert len(data) <= width, text
    record[offset:offset + width] = data.ljust(width, b" ")


def recipe_slot(rows, directions, oven, time, yield_amount, yield_type, mark="Full1"):
    """`rows` maps a row number (1 to 20; 11 to 20 are the right column) to
    its amount, unit and ingredient; the other rows stay blank."""
    record = bytearray(b" " * RECIPE_SLOT)
    for row, (amount, unit, ingredient) in rows.items():
        assert 1 <= row <= ROWS
        put_text(record, AMOUNT_AT + (row - 1) * AMOUNT_WIDTH, AMOUNT_WIDTH, amount)
        put_text(record, UNIT_AT + (row - 1) * UNIT_WIDTH, UNIT_WIDTH, unit)
        put_text(record, INGREDIENT_AT + (row - 1) * INGREDIENT_WIDTH, INGREDIENT_WIDTH, ingredient)
    put_text(record, DIRECTIONS_AT, DIRECTIONS_WIDTH, directions)
    put_text(record, OVEN_AT, OVEN_WIDTH, oven)
    put_text(record, YIELD_AT, YIELD_WIDTH, yield_amount)
    put_text(record, TIME_AT, TIME_WIDTH, time)
    put_text(record, YIELD_TYPE_AT, YIELD_TYPE_WIDTH, yield_type)
    put_text(record, MARK_AT, MARK_WIDTH, mark)
    return bytes(record)


def old_recipe_slot(slot, mark="Full "):
    """A used old recipe whose texts are made from its slot number."""
    record = bytearray(b" " * OLD_SLOT)
    for row in range(1, OLD_ROWS + 1):
        put_text(record, OLD_AMOUNT_AT + (row - 1) * AMOUNT_WIDTH, AMOUNT_WIDTH, f"{slot}.{row:02d}")
        put_text(record, OLD_UNIT_AT + (row - 1) * UNIT_WIDTH, UNIT_WIDTH, f"unit {slot}-{row:02d}")
        put_text(record, OLD_INGREDIENT_AT + (row - 1) * INGREDIENT_WIDTH, INGREDIENT_WIDTH,
                 f"ingredient {row:02d} of recipe {slot}")
    directions = (f"Stir the cr\u00e8me of recipe {slot}. " * 40)[:OLD_DIRECTIONS_WIDTH]
    put_text(record, OLD_DIRECTIONS_AT, OLD_DIRECTIONS_WIDTH, directions)
    put_text(record, OLD_OVEN_AT, OVEN_WIDTH, "350")
    put_text(record, OLD_YIELD_AT, YIELD_WIDTH, str(slot))
    put_text(record, OLD_TIME_AT, TIME_WIDTH, f"{slot * 10} minutes")
    put_text(record, OLD_YIELD_TYPE_AT, YIELD_TYPE_WIDTH, "Serving(s)")
    put_text(record, OLD_MARK_AT, MARK_WIDTH, mark)
    return bytes(record)


def old_deleted_slot():
    record = bytearray(b" " * OLD_SLOT)
    put_text(record, OLD_MARK_AT, MARK_WIDTH, "****")
    return bytes(record)


def extra_slot(path):
    return u16(TEXT_KIND) + length_prefixed(path)


def name_slot(text):
    return length_prefixed(text)


def entry(name, number):
    return name.ljust(ENTRY_PAD) + str(number)


NEVER_WRITTEN = 4

RECIPES = {
    1: recipe_slot(
        {1: ("2", "quarts", "cranberry juice"),
         2: ("1", "can", "frozen lemonade"),
         3: (".5", "cup", "sugar"),
         11: ("1", "bottle", "ginger ale"),
         12: (".25", "tsp.", "nutmeg")},
        "Stir the juice, lemonade and sugar until the sugar dissolves.\r\n"
        "Chill.\r\nAdd the ginger ale just before serving.",
        oven="", time="10 minutes", yield_amount="24", yield_type="Serving(s)"),
    # What deleting a recipe leaves: every field blank, the mark "****".
    2: recipe_slot({}, "", oven="", time="", yield_amount="", yield_type="", mark="****"),
    # Fields filled to their widths: an amount of 5, a unit of 10, an
    # ingredient of 35, "Casserole(s)" as saving cuts it to 11.
    3: recipe_slot(
        {1: ("1.125", "cups", "cr\u00e8me fra\u00eeche"),
         2: ("8", "oz.", "cream cheese, softened"),
         3: ("6", "oz.", "fresh crab meat, drained and flaked"),
         10: ("1", "tablespoon", "lemon juice"),
         20: (".125", "tsp.", "paprika")},
        "Heat the oven.\r\nStir everything but the paprika together and spread it in a dish.\r\n"
        "Dust with paprika and bake until bubbly.",
        oven="350", time="30 minutes", yield_amount="1", yield_type="Casserole(s"),
    5: recipe_slot(
        {1: ("2", "pkg.", "frozen chopped spinach"),
         2: ("2", "cups", "herb stuffing mix"),
         3: ("4", "large", "eggs, beaten"),
         4: ("1", "small", "onion, chopped")},
        "Mix, roll into balls and bake on a greased sheet.",
        oven="375", time="15 minutes", yield_amount="4", yield_type="Dozen"),
}

EXTRAS = {
    1: extra_slot("C:\\My Recipes\\Pictures\\Cranberry Punch.jpg"),
    2: extra_slot(""),
    3: extra_slot("**"),
    5: extra_slot(""),
}

OLD_RECIPES = {
    1: old_deleted_slot(),
    2: old_recipe_slot(2),
    4: old_deleted_slot(),
    5: old_recipe_slot(5),
}

NAMES = {
    1: name_slot(entry("Cranberry Punch", 1)),
    2: name_slot(entry("Hot Crab Dip", 3)),
    3: name_slot(entry("Jalape\u00f1o Poppers", NEVER_WRITTEN)),
    4: name_slot(entry("Party Mix", 0)),
    5: name_slot(entry("Spinach Balls", 5)),
    6: name_slot(" "),
    7: name_slot(" "),
}


def main():
    assert NEVER_WRITTEN not in RECIPES and NEVER_WRITTEN not in EXTRAS
    (HERE / "Recipe2.db1").write_bytes(slot_file(RECIPE_SLOT, RECIPES))
    (HERE / "Recipe4.db1").write_bytes(slot_file(EXTRA_SLOT, EXTRAS))
    (HERE / "Appenfil.db1").write_bytes(slot_file(NAME_SLOT, NAMES))
    (HERE / "old_recipe2.db1").write_bytes(slot_file(OLD_SLOT, OLD_RECIPES))


if __name__ == "__main__":
    main()
