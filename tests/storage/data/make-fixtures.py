#!/usr/bin/env python3
"""Writes the stored food storage files that the storage tests read: the
table of each kind as a family of four uses it, and FdsB2.Fil, the family
size shared by the kinds.

A table file is quoted-line text: 480 values, one a line, each in double
quotes, CR LF after every line, Windows-1252. The values are rows 1 to 60
and within a row the columns 0 to 7: item, number in family, amount per
person, total needed, on hand, last action date, added, used. The program
writes "*" into the cells that take no entry (the markers below), writes
item names as its screen shows them (sub-items four blanks in), and works
out column 3 as column 1 times column 2, so these files read and save back
to the same bytes.

Run it with python3 from anywhere; it rewrites the files beside it. The
tests read the committed files and never run this script.
"""
import pathlib

HERE = pathlib.Path(__file__).resolve().parent
FAMILY = 4
INDENT = "    "


def cells(rows, columns):
    return {(row, column) for row in rows for column in columns}


NEED = range(1, 4)
LAST_ACTION = range(5, 8)
ALL_BUT_ITEM = range(1, 8)

BASIC_GROUPS = [1, 13, 22, 35, 40]
BASIC_SUB_ITEMS = [row for row in range(1, 54) if row not in BASIC_GROUPS and row != 34]
EMERGENCY_HEADINGS = [1, 12, 25, 33, 39, 46]
ADDITIONAL_SUB_ITEMS = list(range(2, 17)) + list(range(18, 33))

# Per kind: the markers, the rows whose need is worked out, which rows show
# the item indented, and the rows written out by hand (item, amount per
# person, on hand, date, added, used); every other row is a plain item.
KINDS = {
    "FdsB1.Fil": {
        "markers": cells(BASIC_GROUPS, LAST_ACTION) | cells(BASIC_SUB_ITEMS, NEED),
        "calculated": BASIC_GROUPS + [34] + list(range(54, 61)),
        "indented": lambda row: row in BASIC_SUB_ITEMS,
        "rows": {
            1: ("Grains", "300 lbs", "150.5 lbs", "", "", ""),
            2: ("Wheat", "", "100 lbs", "4/3/26", "25", ""),
            3: ("White Rice", "", "50.5 lbs", "12/31/26", "", "4.5"),
            13: ("Dairy Products", "16 lbs", "", "", "", ""),
            22: ("Sugars", "60 lbs", "", "", "", ""),
            34: ("Salt", "8 lbs", "5", "2/29/28", "5", ""),
            35: ("Fats and Oils", "20 lbs", "", "", "", ""),
            40: ("Legumes", "60 lbs", "", "", "", ""),
            54: ("Water (2 weeks)", "14 gals", "", "", "", ""),
            55: ("Baking Soda", "1 lbs", "", "", "", ""),
            58: ("Jalape\u00f1o Peppers", "", "", "", "", ""),
        },
    },
    "EmerE1.Fil": {
        "markers": cells(EMERGENCY_HEADINGS, ALL_BUT_ITEM),
        "calculated": [row for row in range(1, 61) if row not in EMERGENCY_HEADINGS],
        "indented": lambda row: False,
        "rows": {
            1: ("Food (3 day supply)", "", "", "", "", ""),
            2: ("Canned Meat", "3 cans", "5 cans", "4/3/26", "5", ""),
            11: ("Drinking Water", "3 gals", "10 gals", "", "", ""),
            13: ("Flashlight", "0.25 ea", "", "", "", ""),
            14: ("Batteries", "4 ea", "", "", "", ""),
            60: ("Games and Books", "", "", "", "", ""),
        },
    },
    "AddA1.Fil": {
        "markers": cells([1, 17, 42], LAST_ACTION) | cells(ADDITIONAL_SUB_ITEMS, NEED) | cells([33, 47], ALL_BUT_ITEM),
        "calculated": [1, 17] + list(range(34, 53)) + list(range(55, 61)),
        "indented": lambda row: row in ADDITIONAL_SUB_ITEMS or (row > 33 and row not in (42, 47)),
        "rows": {
            1: ("Meats", "20 lbs", "12 lbs", "", "", ""),
            2: ("Canned Chicken", "", "12 lbs", "4/3/26", "12", ""),
            17: ("Fruits and Vegetables", "60 lbs", "", "", "", ""),
            33: ("Miscellaneous", "", "", "", "", ""),
            34: ("Pi\u00f1on Nuts", "2 lbs", "1", "", "1", ""),
            42: ("Water Storage", "14 gals", "", "", "", ""),
            47: ("Equipment", "*", "", "", "", ""),
            55: ("Paper Towels", "12 rolls", "", "", "", ""),
        },
    },
}


def leading_number(text):
    number = ""
    for character in text:
        if character.isdigit() or (character == "." and "." not in number):
            number += character
        else:
            break
    return float(number) if number else 0.0


def shortest(value):
    return str(int(value)) if value == int(value) else repr(value)


def table(kind):
    values = []
    for row in range(1, 61):
        item, per_person, on_hand, date, added, used = kind["rows"].get(
            row, (f"Stored item {row}", "", "", "", "", ""))
        row_cells = [INDENT + item if kind["indented"](row) else item, "", per_person, "", on_hand, date, added, used]
        amount = leading_number(per_person)
        if row in kind["calculated"] and amount > 0:
            row_cells[1] = str(FAMILY)
            unit = per_person.split(" ", 1)[1] if " " in per_person else None
            row_cells[3] = shortest(FAMILY * amount) + (" " + unit if unit is not None else "")
        for column in range(8):
            if (row, column) in kind["markers"]:
                row_cells[column] = "*"
        values.extend(row_cells)
    return values


def quoted_lines(values):
    return b"".join(b'"' + value.encode("cp1252") + b'"\r\n' for value in values)


def main():
    for name, kind in KINDS.items():
        (HERE / name).write_bytes(quoted_lines(table(kind)))
    (HERE / "FdsB2.Fil").write_bytes(quoted_lines([str(FAMILY)]))


if __name__ == "__main__":
    main()
