#!/usr/bin/env python3
"""Writes the stored shopping files that the shopping tests read.

  LISTNAME.Fil  the catalogue of item names typed before: one name a line,
                in double quotes, CR LF after each, in the order they were
                added (one of them with a Windows-1252 letter)
  15Nov26.Lst   the list for 15 November 2026 as a 16-row grid saves it:
                two quoted lines for each of the 15 rows under the header,
                the item cell as shown (two leading blanks) and the amount
                cell; three items, then twelve empty rows ("" and "")

Run it with python3 from anywhere; it rewrites the two files beside it. The
tests read the committed files and never run this script.
"""
import pathlib
import sys

HERE = pathlib.Path(__file__).resolve().parent
sys.dont_write_bytecode = True  # keep the source tree clean
sys.path.insert(0, str(HERE.parents[1] / "support"))
from fixture_bytes import code_page  # noqa: E402

GRID_ROWS = 15  # a 16-row grid: the header and 15 rows


def quoted_lines(values):
    """Each value in double quotes on a line of its own, ended by CR LF."""
    return b"".join(b'"' + code_page(value) + b'"\r\n' for value in values)


CATALOGUE = ["Milk", "Bread", "Eggs", "Crème fraîche", "Apples"]

ROWS = [("  Milk", "2 Gallons"), ("  Bread", ""), ("  Eggs", "1 Dozen")]
ROWS += [("", "")] * (GRID_ROWS - len(ROWS))


def main():
    (HERE / "LISTNAME.Fil").write_bytes(quoted_lines(CATALOGUE))
    (HERE / "15Nov26.Lst").write_bytes(quoted_lines([cell for row in ROWS for cell in row]))


if __name__ == "__main__":
    main()
