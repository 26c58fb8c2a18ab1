#pragma once
// The three kinds of food storage and the fixed layout of their tables of 60
// item rows: the files of each kind, the category buttons beside the grid,
// the cells every save marks "*", the rows whose need is worked out from the
// family size, the groups whose sub-items add up to a total, and which item
// names are shown indented.
//
// Rows are numbered 1 to 60 and columns 0 to 7, as the grid numbers them.
#include <QList>
#include <QString>
#include <array>
#include <optional>

enum class StorageKind { Basic = 0, Emergency = 1, Additional = 2 };
inline constexpr StorageKind kStorageKinds[] = {StorageKind::Basic, StorageKind::Emergency, StorageKind::Additional};

inline constexpr int kStorageRows = 60;
inline constexpr int kStorageColumns = 8;
inline constexpr int kCategoryButtons = 9;  // button 0 always shows every row
inline constexpr int kAllCategory = 0;

// The columns of every row.
enum StorageColumn {
    kItemColumn = 0,       // "Storage Item"
    kFamilyColumn = 1,     // copy of the family size
    kPerPersonColumn = 2,  // number, optionally a blank and a unit
    kNeededColumn = 3,     // worked out: family times per person
    kOnHandColumn = 4,
    kDateColumn = 5,       // date of the last addition or removal
    kAddedColumn = 6,      // the last amount added
    kUsedColumn = 7,       // the last amount used
};

// A cell that does not apply and takes no entry.
inline const QString kNotApplicable = QStringLiteral("*");
// Sub-item names stand four blanks in.
inline const QString kItemIndent = QStringLiteral("    ");

struct RowRange {
    int first = 0;
    int last = -1;

    bool contains(int row) const { return row >= first && row <= last; }
    int count() const { return last - first + 1; }
    bool operator==(const RowRange&) const = default;
};

struct CategoryButton {
    const char* caption;  // nullptr: the button is hidden for this kind
    RowRange rows;
};

struct StorageKindInfo {
    StorageKind kind;
    const char* caption;       // the screen's caption
    const char* tableFile;
    const char* titlesFile;    // default item titles, one per row
    const char* amountsFile;   // default amounts per person, one per row that takes one
    int backupMode;            // the backup screen's mode; restore is the next code
    std::array<CategoryButton, kCategoryButtons> categories;
};

// The family size, shared by the three kinds.
inline constexpr const char* kFamilyFile = "FdsB2.Fil";

const StorageKindInfo& KindInfo(StorageKind kind);

// The rows a category button shows; an unknown or hidden button shows none.
RowRange CategoryRows(StorageKind kind, int category);

// True where every save writes "*".
bool IsMarkerCell(StorageKind kind, int row, int column);

// The rows whose column 3 is worked out (when column 2 holds a number above 0).
bool IsCalculatedRow(StorageKind kind, int row);

// A group row holds the total of the sub-items below it.
struct StorageGroup {
    int groupRow = 0;
    int lastRow = 0;  // sub-items are groupRow + 1 to lastRow

    bool operator==(const StorageGroup&) const = default;
};
// The group a row belongs to (the group row itself included), or none.
std::optional<StorageGroup> GroupOf(StorageKind kind, int row);
// Whether a change of the amount on hand in `row` runs the group total:
// every row in Basic, rows below 33 in Additional.
bool RunsGroupTotal(StorageKind kind, int row);

// Whether the item name of `row` is shown indented once the file is read;
// `familyCell` is the row's column 1.
bool IndentsOnLoad(StorageKind kind, int row, const QString& familyCell);
// Whether a name typed into `row` is indented; `familyCell` is column 1.
bool IndentsOnEntry(StorageKind kind, int row, const QString& familyCell, const QString& name);
// Whether the leading blanks of stored item names are dropped on reading
// (the indent is the screen's; kept, it would grow by four blanks a save).
bool StripsStoredIndent(StorageKind kind);

// The rows that the default amounts file fills, in its order.
QList<int> DefaultAmountRows(StorageKind kind);
