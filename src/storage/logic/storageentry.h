#pragma once
// Entry on the food storage grid. Every value goes through one input box:
// the cell under the cursor decides whether it takes an entry, where the
// entry goes and what the box starts with; Enter commits the box's text to
// that cell and runs what follows (the needs, Add, Use).
#include "common/dialogs.h"
#include "storage/logic/storagetable.h"

#include <QDate>
#include <optional>

inline const QString kFoodStorageEntryTitle = QStringLiteral("Food Storage Entry");

// What the screen does when the cursor reaches a cell.
struct CursorOutcome {
    enum class Then {
        Nothing,         // the cell takes no entry
        ToItemColumn,    // the cursor goes to column 0 of the row
        FocusFamily,     // the family field takes the keyboard
        LoadInput,       // the input box takes the keyboard for `entryColumn`
        OpenCalendar,    // the calendar opens for the date column
    };
    std::optional<Message> notice;   // shown first
    Then then = Then::Nothing;
    bool closeCalendar = true;       // the calendar closes outside the date column
    int entryColumn = -1;            // where a commit writes (2 for columns 2 and 3)
    QString inputText;               // LoadInput and OpenCalendar: the box starts with it
    QDate calendarDate;              // OpenCalendar: the cell's date; invalid: today

    bool operator==(const CursorOutcome&) const = default;
};

// The rules for the cursor in `row` (1 to 60), `column`, with "&All" on
// screen (`allView`) or a category.
CursorOutcome CursorRuleFor(const StorageTable& table, int row, int column, bool allView);

// Whether the input box keeps `typed` as the last character typed while it
// edits `column`: columns 0 and 2 take any text (column 2 may hold a unit),
// the others only '.', '/' and digits. A double quote would end the value in
// the file: no column takes it.
bool InputAccepts(int column, QChar typed);
// The family field takes digits only.
bool FamilyAccepts(QChar typed);

// The unit a new amount per person keeps from the old text when none is
// typed: "gals" when the old text ends so, otherwise its last three
// characters without leading blanks ("25 lbs" lbs, "2 cans" ans); none
// when the old text has no blank.
QString KeptUnit(const QString& oldAmount);

struct CommitOutcome {
    bool refused = false;        // a negative amount: nothing changed
    bool recalculated = false;   // the needs of every row were worked out again
    bool stockChanged = false;   // Add or Use ran

    bool operator==(const CommitOutcome&) const = default;
};

// Commits `typed` to `column` of `row`: the amount per person keeps its
// unit or empties the row's need, a negative amount from column 3 on is
// refused, a sub-item name is indented, the cell takes the value, an amount
// per person works out every need again (in the "&All" view only), "Added"
// runs Add and "Used" runs Use.
CommitOutcome CommitValue(StorageTable& table, StorageKind kind, int row, int column, const QString& typed,
                          const QString& familySize, bool allView);
