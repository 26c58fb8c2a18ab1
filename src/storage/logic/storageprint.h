#pragma once
// The printed food storage form, composed on a PageBuilder: the screen's
// caption bold and centred on each page, an "As of" date under it, the
// column headings as stacked words, then the rows. The item name stands at
// a fortieth of the page width W from the left; every other value is
// centred on W divided by its column's divisor:
//
//   column              1     2     3     4     5     6     7
//   five columns       2.4   1.75  1.35  1.1
//   all eight columns  3.0   2.33  1.86  1.53  1.31  1.16  1.05
//
// A new page starts, headings and all, once a row ends within 400 twips of
// the bottom. A "*" prints blank; with grid lines a line runs under the
// headings and under each row.
#include "common/textfont.h"
#include "storage/logic/storagetable.h"

#include <QDate>
#include <QStringList>

class PageBuilder;

enum class StoragePrintChoice {
    FirstFiveColumns = 0,   // "Complete Form (First 5 Columns)"
    AllColumns = 1,         // "Complete Form (All 8 Columns)"
    OnHandFiveColumns = 2,  // "Only Lines w/OnHand Data(5 Cols.)"
    OnHandAllColumns = 3,   // "Only Lines w/OnHand Data(All Cols.)"
};
inline constexpr int kStoragePrintChoices = 4;

// The captions of the choices, in their order.
QStringList StoragePrintChoiceCaptions();

struct StoragePrintSettings {
    StoragePrintChoice choice = StoragePrintChoice::AllColumns;
    bool asOfDate = true;    // "Print 'As of' date on each page"
    bool gridLines = true;   // "Print Grid Lines on each page"
    TextFont font;
};

// Where the last row may end: a new page starts once a row ends this close
// to the bottom.
inline constexpr double kStorageBottomReserve = 400;

void ComposeStoragePages(PageBuilder& page, const QString& caption, const StorageTable& table,
                         const StoragePrintSettings& settings, QDate today);
