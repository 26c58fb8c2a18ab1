#pragma once
// The working state of the shopping list screen: the list of entries in the
// order the user made them (EntryList), the same entries sorted
// (SortedEntryList), the display mode, the changed flag, the cell last
// clicked, and the grid as it is shown. Every change of the list ends in
// rebuild(), which lays the entries out on the grid again.
//
// Grid rows are numbered as the screen's grid numbers them: row 0 is the
// header, rows 1 on hold the entries. A fresh grid has 16 rows (the header
// and 15), a grid of 16 or more entries one row per entry and the header,
// and a cleared grid 15 rows until the next rebuild.
//
// Each shown row remembers the position of its entry in EntryList: row - 1
// in the order of entry, and in the alphabetical view the number behind the
// row's sorted text. The grid's own header sort moves rows without touching
// EntryList; the rows carry their positions along, so a row clicked after
// such a sort still changes its own entry.
#include <QList>
#include <QString>
#include <QStringList>

enum class SortMode { AsEntered = 0, Alphabetically = 1 };

struct GridRow {
    QString item;       // as shown: two blanks and up to 26 characters
    QString amount;
    int position = -1;  // the entry's place in EntryList; -1 for a row without one

    bool operator==(const GridRow&) const = default;
};

// What a click on a grid cell asks of the screen.
struct CellClickOutcome {
    enum class Kind {
        StoredFromBox,  // the item box's text took the row: check it in the catalogue, clear the box
        AwaitingName,   // the item box (or the drop-down) gives the row its new name
        ItemFirst,      // an amount was clicked on a row without an item
        EnterAmount,    // the amount panel opens for the row
    };
    Kind kind = Kind::AwaitingName;
    bool deleteItemAllowed = false;  // AwaitingName on a filled item cell
    int firstEmptyRow = 0;           // ItemFirst: where the user is sent; 0 when every row is filled
    QString itemName;                // EnterAmount: the row's item, left-trimmed
    QString amount;                  // EnterAmount: the row's amount cell

    bool operator==(const CellClickOutcome&) const = default;
};

class ShoppingList {
public:
    // The alphabetical view finds an entry by a three-digit position.
    static constexpr int kMaxEntries = 999;
    static constexpr int kOpeningRowCount = 16;
    static constexpr int kClearedRowCount = 15;
    static constexpr int kSortedTextWidth = 60;

    ShoppingList();

    const QStringList& entryList() const { return entries_; }
    const QStringList& sortedEntryList() const { return sorted_; }
    SortMode sortMode() const { return sortMode_; }
    // Switching the view rebuilds the grid (and so marks a list unsaved).
    void setSortMode(SortMode mode);
    bool dirty() const { return dirty_; }
    void setDirty(bool dirty) { dirty_ = dirty; }
    int currentRow() const { return currentRow_; }
    int currentColumn() const { return currentColumn_; }
    // Row 0, the header, counts as row 1.
    void setCurrentCell(int row, int column);
    bool editInPlace() const { return editInPlace_; }
    void setEditInPlace(bool on) { editInPlace_ = on; }

    // ---- The grid ----
    int rowCount() const { return int(rows_.size()) + 1; }
    // "Grocery Item" on a fresh or cleared grid, else "Grocery Items = " and the count.
    QString header() const { return header_; }
    // Row 0 gives the headings; a cell outside the grid is empty.
    QString cell(int row, int column) const;
    // Rows 1 on.
    const QList<GridRow>& rows() const { return rows_; }
    // The first row whose item cell is blank; 0 when there is none.
    int firstEmptyItemRow() const;
    // The entry shown on `row`, or -1.
    int positionOfRow(int row) const;

    // ---- Changing the list ----
    bool isFull() const { return entries_.size() >= kMaxEntries; }
    // Appends the name, cut to 30 characters; false when the list is full.
    bool appendName(QStringView name);
    // Appends a whole entry (name and amount); false when the list is full.
    bool appendEntry(const QString& entry);
    void rebuild();
    // The new name of `row`: a row without an item or amount gets a new
    // entry, a row with an item has its entry replaced, keeping the amount
    // of the amount cell. A blank name changes nothing. Rebuilds.
    void storeIntoRow(int row, QStringView name);
    // A click on a cell, with the item box's text.
    CellClickOutcome clickCell(int row, int column, QStringView itemBox);
    // "Enter Amount on Item Grid": the amount goes into the current row's
    // amount cell and its entry takes it up.
    void enterAmount(QStringView amount);
    // The question before a row is deleted.
    QString deleteQuestion(int row) const;
    // Removes the row's entry and the row itself, and rebuilds.
    void deleteRow(int row);
    // "&Clear Grid": the header and 14 empty rows, both lists empty.
    void clear();
    // A list read from a file: the entries laid out, nothing to save.
    void load(const QStringList& entries);
    // The grid after its own header sort: rows without an item go, the
    // grid has 16 rows at the least, and the list counts as changed.
    void adoptHeaderSort(QList<GridRow> rows);
    // What a save writes: item cell and amount cell of every row from 1 on.
    QStringList fileValues() const;

private:
    void setRowCount(int rowCount);

    QStringList entries_;
    QStringList sorted_;
    QList<GridRow> rows_;
    QString header_;
    SortMode sortMode_ = SortMode::AsEntered;
    bool dirty_ = false;
    bool editInPlace_ = false;
    int currentRow_ = 1;
    int currentColumn_ = 0;
};

// The text an entry has in SortedEntryList: the entry padded with blanks to
// 60 characters, then its position. A longer entry keeps three blanks before
// the position, so that the last three characters always read it back.
QString SortedEntryText(QStringView entry, int position);
// Val of the last three characters.
int PositionInSortedText(QStringView text);
