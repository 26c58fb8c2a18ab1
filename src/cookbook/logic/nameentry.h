#pragma once
// The text of a name slot: the recipe name padded with blanks to exactly 52
// characters, then the record number in decimal with no blank before it.
//
//   "Apple Pie" + 43 blanks + "17"
//
// A sorted list of entries sorts by name, and the pad pushes the number out
// of sight to the right of the list. The longest entry is 52 + 5 = 57
// characters, which with its 2-byte length fits a 60-byte slot.
#include "cookbook/logic/cookbooknames.h"

#include <QString>

inline constexpr int kNameEntryPadWidth = 52;
// The longest name kept in an entry; the name field itself takes 40.
inline constexpr int kNameEntryMaxName = 41;
// What the screens show of an entry's name.
inline constexpr int kRecipeNameWidth = 40;

// The name is cut to 41 characters, its trailing blanks removed, then padded.
QString MakeNameEntry(QStringView name, RecordNumber recordNumber);

// The number read from character 52 on (1-based: the last pad blank), the
// way the original number reader reads: blanks, tabs and line feeds are
// skipped, reading stops at the first other non-digit. 0 when there is no
// number or it does not fit a record number.
RecordNumber RecordNumberOf(QStringView entry);

// The first 40 characters with trailing blanks removed.
QString RecipeNameOf(QStringView entry);

// True when the text is empty or all blanks; such a name slot is no entry.
bool IsBlankText(QStringView text);
