#pragma once
// What the food storage screen works on, apart from its widgets: the kind,
// the master copy of its table, the family size, the category on screen and
// the changed flag. The screen shows the rows of the category and hands
// this what the user typed; loading and saving happen here and say whether
// the files were written.
#include "storage/logic/storagecalc.h"
#include "storage/logic/storageentry.h"

#include <QString>

// The first file a save could not write; empty when both were written.
struct StorageSaveResult {
    QString failedFile;

    bool saved() const { return failedFile.isEmpty(); }
};

class StorageModel {
public:
    explicit StorageModel(StorageKind kind = StorageKind::Basic) : kind_(kind) {}

    StorageKind kind() const { return kind_; }
    // Takes the other kind and loads its table.
    void switchKind(StorageKind kind);
    QString caption() const;

    // ---- Files -----------------------------------------------------------
    // Reads the kind's table (item names indented as the screen shows them)
    // and the family size, works out every need and shows "&All"; the
    // changed flag is cleared.
    void load();
    // In the "&All" view the markers are written again first; then "&All"
    // is shown and the table is written, then the family size. The changed
    // flag is cleared once both were written.
    StorageSaveResult save();

    const StorageTable& table() const { return table_; }
    bool dataChanged() const { return dataChanged_; }

    // ---- The family size -------------------------------------------------
    const QString& familySize() const { return familySize_; }
    // A new family size: kept, and every need worked out again in "&All".
    void setFamilySize(const QString& familySize);

    // ---- The category on screen -------------------------------------------
    int category() const { return category_; }
    bool allView() const { return category_ == kAllCategory; }
    void showCategory(int category);
    RowRange shownRows() const { return CategoryRows(kind_, category_); }
    // The table row shown in grid row `gridRow` (0-based); 0 outside.
    int tableRow(int gridRow) const;

    // ---- Entry -------------------------------------------------------------
    CursorOutcome cursorRule(int row, int column) const;
    CommitOutcome commit(int row, int column, const QString& typed);

    // ---- Whole-table commands ---------------------------------------------
    void applyDefaultTitles();
    void applyDefaultAmounts();
    void clearLastActions();

    // ---- What the panels show --------------------------------------------
    QList<PercentLine> percentList() const { return PercentOfNeed(table_); }
    std::optional<PieSlices> pie() const { return CategoryPie(table_, kind_, category_); }

private:
    StorageKind kind_;
    StorageTable table_;
    QString familySize_ = QStringLiteral("1");
    int category_ = kAllCategory;
    bool dataChanged_ = false;  // data_changed
};
