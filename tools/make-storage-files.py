#!/usr/bin/env python3
"""Writes the food storage files of the delivered file set
(resources/delivered): for each kind the default titles (60 item names)
and the default amounts per person (one for each row that takes one), and
the table file a new program folder starts with, built from them as the
program saves a table:

  - the "*" markers of the kind in the cells that take no entry;
  - the default titles in column 0, sub-items four blanks in;
  - the default amounts in column 2 of their rows;
  - for a family of 1: column 1 "1" and column 3 the amount, in every row
    whose need is worked out and whose amount is a number above 0.

Every file is quoted-line text: one value a line in double quotes, CR LF,
Windows-1252. A table file holds 480 values, rows 1 to 60 and within a row
columns 0 to 7. Amounts are written in their shortest form ("0.25 ea",
never ".250 ea"), so a family of 1 needs exactly the amount.

Run it with python3 from anywhere; it rewrites the nine files. The program
only reads the default files; the tests check that the table files are what
the program's own rules make of them.
"""
import pathlib

OUT = pathlib.Path(__file__).resolve().parents[1] / "resources" / "delivered"
ROWS = 60
COLUMNS = 8
INDENT = "    "

BASIC_TITLES = [
    # Grains, 1 to 12
    "Grains", "Wheat", "White Rice", "Brown Rice", "Rolled Oats", "White Flour", "Cornmeal", "Pasta",
    "Barley", "Popcorn", "Crackers", "Other Grains",
    # Dairy, 13 to 21
    "Dairy Products", "Dry Milk", "Evaporated Milk", "Canned Cheese", "Powdered Eggs", "Powdered Butter",
    "Cheese Powder", "Sour Cream Powder", "Other Dairy",
    # Sugar, 22 to 33
    "Sugars", "White Sugar", "Brown Sugar", "Powdered Sugar", "Honey", "Molasses", "Corn Syrup",
    "Maple Syrup", "Jam and Jelly", "Drink Mix", "Gelatin Dessert", "Other Sweets",
    # Salt, 34
    "Salt",
    # Fats, 35 to 39
    "Fats and Oils", "Cooking Oil", "Shortening", "Peanut Butter", "Mayonnaise",
    # Legumes, 40 to 53
    "Legumes", "Pinto Beans", "Kidney Beans", "Navy Beans", "Black Beans", "Lima Beans", "Split Peas",
    "Lentils", "Garbanzo Beans", "Soy Beans", "Black-eyed Peas", "Dry Soup Mix", "Canned Beans",
    "Other Legumes",
    # Water, 54
    "Water (2 weeks)",
    # Misc., 55 to 60
    "Baking Soda", "Baking Powder", "Yeast", "Vitamins", "Bouillon", "Vinegar",
]
# Rows 1, 13, 22, 34, 35, 40, 54 and 55.
BASIC_AMOUNTS = ["300 lbs", "16 lbs", "60 lbs", "8 lbs", "20 lbs", "60 lbs", "14 gals", "1 lbs"]

EMERGENCY_TITLES = [
    # Food, 1 to 10
    "Food (3 day supply)", "Canned Meat", "Canned Fruit", "Canned Vegetables", "Canned Soup",
    "Granola Bars", "Crackers", "Peanut Butter", "Dried Fruit", "Hard Candy",
    # Water, 11
    "Drinking Water",
    # Equipment, 12 to 24
    "Equipment", "Flashlight", "Batteries", "Radio", "First Aid Kit", "Can Opener", "Pocket Knife",
    "Matches", "Rope", "Tarp", "Whistle", "Duct Tape", "Work Gloves",
    # Bedding, 25 to 32
    "Bedding", "Sleeping Bag", "Blanket", "Emergency Blanket", "Pillow", "Ground Pad", "Tent",
    "Hand Warmers",
    # Clothing, 33 to 38
    "Clothing", "Change of Clothes", "Jacket", "Rain Poncho", "Sturdy Shoes", "Hat and Gloves",
    # Fuel and light, 39 to 45
    "Fuel and Light", "Candles", "Lantern", "Lamp Oil", "Camp Stove", "Stove Fuel", "Light Sticks",
    # Personal items, 46 to 54
    "Personal Items", "Toothbrush", "Toothpaste", "Soap", "Toilet Paper", "Medications", "Eyeglasses",
    "Cash", "Documents",
    # Other, 55 to 60
    "Paper Plates", "Plastic Utensils", "Garbage Bags", "Bucket", "Bleach", "Games and Books",
]
# Every row but the headings 1, 12, 25, 33, 39 and 46, in row order.
EMERGENCY_AMOUNTS = [
    "3 cans", "3 cans", "3 cans", "3 cans", "6 bars", "1 box", "1 jar", "1 lbs", "1 bag",
    "3 gals",
    "1 ea", "4 ea", "0.25 ea", "0.25 ea", "0.25 ea", "0.25 ea", "1 box", "10 ft", "0.25 ea", "1 ea",
    "0.25 ea", "1 pair",
    "1 ea", "1 ea", "1 ea", "1 ea", "1 ea", "0.25 ea", "4 ea",
    "1 set", "1 ea", "1 ea", "1 pair", "1 set",
    "4 ea", "0.25 ea", "0.25 qts", "0.25 ea", "0.5 lbs", "4 ea",
    "1 ea", "1 ea", "1 bar", "2 rolls", "7 days", "1 pair", "20 dollars", "1 set",
    "9 ea", "9 ea", "2 ea", "0.25 ea", "0.25 gals", "1 set",
]

ADDITIONAL_TITLES = [
    # Meats, 1 to 16
    "Meats", "Canned Chicken", "Canned Tuna", "Canned Salmon", "Canned Beef", "Canned Ham", "Corned Beef",
    "Beef Jerky", "Vienna Sausages", "Chili with Meat", "Beef Stew", "Freeze-dried Meat", "Bacon Bits",
    "Soy Protein", "Sardines", "Other Meats",
    # Fruits and vegetables, 17 to 32
    "Fruits and Vegetables", "Canned Peaches", "Canned Pears", "Applesauce", "Dried Apples", "Raisins",
    "Canned Corn", "Green Beans", "Canned Peas", "Canned Tomatoes", "Tomato Sauce", "Dried Potatoes",
    "Dried Onions", "Canned Carrots", "Fruit Juice", "Other Produce",
    # Misc., 33 to 41
    "Miscellaneous", "Soup Base", "Spices", "Cocoa", "Pudding Mix", "Pancake Mix", "Cake Mix",
    "Coffee and Tea", "Garden Seeds",
    # Water, 42 to 46
    "Water Storage", "Drinking Water", "Water Barrel", "Purification Tabs", "Water Filter",
    # Equipment, 47 to 54
    "Equipment", "Grain Mill", "Canner", "Dutch Oven", "Manual Can Opener", "Buckets with Lids",
    "Mylar Bags", "Oxygen Absorbers",
    # Other, 55 to 60
    "Paper Towels", "Laundry Soap", "Dish Soap", "Aluminum Foil", "Plastic Wrap", "Zipper Bags",
]
# Rows 1, 17, 34 to 52 and 55 to 60; the heading row 47 keeps its marker.
ADDITIONAL_AMOUNTS = [
    "20 lbs", "60 lbs",
    "1 lbs", "1 lbs", "2 lbs", "2 lbs", "5 lbs", "3 ea", "2 lbs", "2 pkgs",
    "14 gals", "7 gals", "0.25 ea", "1 ea", "0.25 ea",
    "*", "0.25 ea", "0.25 ea", "0.25 ea", "0.25 ea", "4 ea",
    "12 rolls", "5 lbs", "1 qts", "1 rolls", "1 rolls", "1 box",
]


def cells(rows, columns):
    return {(row, column) for row in rows for column in columns}


NEED = range(1, 4)
LAST_ACTION = range(5, 8)
ALL_BUT_ITEM = range(1, 8)

BASIC_GROUPS = [1, 13, 22, 35, 40]
BASIC_SUB_ITEMS = [row for row in range(1, 54) if row not in BASIC_GROUPS and row != 34]
EMERGENCY_HEADINGS = [1, 12, 25, 33, 39, 46]
ADDITIONAL_SUB_ITEMS = list(range(2, 17)) + list(range(18, 33))

KINDS = [
    {
        "table": "FdsB1.Fil", "titles_file": "FdsB3.Fil", "amounts_file": "FdsB4.Fil",
        "titles": BASIC_TITLES, "amounts": BASIC_AMOUNTS,
        "markers": cells(BASIC_GROUPS, LAST_ACTION) | cells(BASIC_SUB_ITEMS, NEED),
        "calculated": BASIC_GROUPS + [34] + list(range(54, 61)),
        "amount_rows": [1, 13, 22, 34, 35, 40, 54, 55],
        "indented": lambda row, family: family == "*",
    },
    {
        "table": "EmerE1.Fil", "titles_file": "EmerE3.Fil", "amounts_file": "EmerE4.Fil",
        "titles": EMERGENCY_TITLES, "amounts": EMERGENCY_AMOUNTS,
        "markers": cells(EMERGENCY_HEADINGS, ALL_BUT_ITEM),
        "calculated": [row for row in range(1, 61) if row not in EMERGENCY_HEADINGS],
        "amount_rows": [row for row in range(1, 61) if row not in EMERGENCY_HEADINGS],
        "indented": lambda row, family: False,
    },
    {
        "table": "AddA1.Fil", "titles_file": "AddA3.Fil", "amounts_file": "AddA4.Fil",
        "titles": ADDITIONAL_TITLES, "amounts": ADDITIONAL_AMOUNTS,
        "markers": cells([1, 17, 42], LAST_ACTION) | cells(ADDITIONAL_SUB_ITEMS, NEED)
        | cells([33, 47], ALL_BUT_ITEM),
        "calculated": [1, 17] + list(range(34, 53)) + list(range(55, 61)),
        "amount_rows": [1, 17] + list(range(34, 53)) + list(range(55, 61)),
        "indented": lambda row, family: family == "*" if row < 33 else row > 33 and row not in (42, 47),
    },
]


def quoted_lines(values):
    return b"".join(b'"' + value.encode("cp1252") + b'"\r\n' for value in values)


def leading_number(text):
    """The number at the front of an amount, as the program reads it."""
    number = ""
    for character in text.strip():
        if character.isdigit() or (character == "." and "." not in number):
            number += character
        else:
            break
    return float(number) if number else 0.0


def table_of(kind):
    table = {(row, column): "" for row in range(1, ROWS + 1) for column in range(COLUMNS)}
    for cell in kind["markers"]:
        table[cell] = "*"
    for row, title in enumerate(kind["titles"], start=1):
        table[(row, 0)] = INDENT + title if kind["indented"](row, table[(row, 1)]) else title
    for row, amount in zip(kind["amount_rows"], kind["amounts"]):
        table[(row, 2)] = amount
    for row in kind["calculated"]:
        amount = table[(row, 2)]
        if leading_number(amount) > 0:
            table[(row, 1)] = "1"
            table[(row, 3)] = amount
    return [table[(row, column)] for row in range(1, ROWS + 1) for column in range(COLUMNS)]


def main():
    for kind in KINDS:
        assert len(kind["titles"]) == ROWS, kind["titles_file"]
        assert len(kind["amounts"]) == len(kind["amount_rows"]), kind["amounts_file"]
        (OUT / kind["titles_file"]).write_bytes(quoted_lines(kind["titles"]))
        (OUT / kind["amounts_file"]).write_bytes(quoted_lines(kind["amounts"]))
        (OUT / kind["table"]).write_bytes(quoted_lines(table_of(kind)))


if __name__ == "__main__":
    main()
