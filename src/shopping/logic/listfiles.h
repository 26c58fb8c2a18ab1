#pragma once
// The saved shopping lists. A list is named by its date: the date box
// formatted "ddmmmyy" (two-digit day, the month's three-letter abbreviation,
// two-digit year) and ".Lst", as 15Nov26.Lst, in the program folder. There
// is no index: the folder is the index, and one date has one list.
//
// A list file holds two quoted lines for every grid row from row 1 to the
// last, in the order shown: the item cell exactly as shown (its two leading
// blanks too) and the amount cell; an empty cell is written "". Empty rows
// are written as well. No header, no date inside, no count.
#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>

// The date of the date box's text, or nothing when it is no date.
std::optional<QDate> ProjectedDate(QStringView dateBox);
// "15Nov26", for the date box's date; empty when it is no date.
QString ListFileBase(QStringView dateBox);
QString ListFileName(QStringView base);   // base + ".Lst"

// The question before a list is replaced: name + ".lst", then the two lines.
QString ReplaceListQuestion(QStringView base);

// A chosen name names a list when Val of it is above 0 and it ends in
// ".LST" in any case.
bool IsListFileName(QStringView name);
// The date box text for a list's name: month (characters 3 to 5), day
// (the first two) and year (the last two) of the part before the first
// ".", read as a date and shown in the short date form; the composed text
// itself when it reads as no date.
QString DateBoxTextOfListName(QStringView name);

struct ReadList {
    bool opened = false;       // false: the file could not be read
    QStringList entries;       // GroceryEntry texts in file order
    bool tooLong = false;      // more than 999 entries: nothing is taken
};
// Reads the pairs of a list file: the item left-trimmed and cut to 30, with
// its amount when it has one; a pair without an item is skipped. A last
// item without its amount line has no amount.
ReadList ReadListFile(const QString& fileName);
QStringList EntriesOfListValues(const QStringList& values);

// Replaces the file with the values; false when it could not be written,
// and the old file is unchanged.
bool WriteListFile(const QString& fileName, const QStringList& values);

// The list files in the program folder, "*.lst" in any case, by name.
QStringList SavedListFiles();
