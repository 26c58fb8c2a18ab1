#pragma once
// The one grid of every screen: search results, the food guide, the
// conversion table, and the shopping list, menu views, weigh-ins and storage
// tables to come. A QTableWidget that keeps the old grid's habits: columns
// read-only unless a screen opens one for typing, a header sort that screens
// can wrap (before and after) when it is switched on, bold cells, the shared
// grid colours or picture, a hidden value per cell, and a tip beside the
// vertical scroll bar that tells which row is at the top while it is dragged.
#include "shell/logic/gridcolors.h"

#include <QHash>
#include <QTableWidget>
#include <functional>

class ScreenGrid final : public QTableWidget {
    Q_OBJECT
public:
    enum class Selection {
        None,        // nothing is selected: a grid to read
        SingleCell,  // one cell at a time; a drag comes back to the current cell
        Rows,        // one whole row at a time
    };
    // Called with the column and the order of a header sort.
    using SortHook = std::function<void(int column, Qt::SortOrder order)>;
    // The tip for a grid row (0-based) while the scroll bar is dragged.
    using RowTip = std::function<QString(int row)>;

    ScreenGrid(const QString& objectName, QWidget* parent);
    using QTableWidget::edit;  // the public edit(index) next to the override below

    // ---- Filling ----
    // Sets the column count to the headings' and shows them in the header.
    void setHeadings(const QStringList& headings);
    QStringList headings() const;
    // Cells outside the grid are left alone and read as empty.
    void setText(int row, int column, const QString& text);
    QString text(int row, int column) const;
    // Fills the row from column 0, adding rows when `row` lies below the last.
    void setRowTexts(int row, const QStringList& texts);
    QStringList rowTexts(int row) const;
    // A value kept out of sight in the cell (Qt::UserRole); it moves with the
    // cell when the grid sorts.
    void setValue(int row, int column, const QVariant& value);
    QVariant value(int row, int column) const;
    // Empties the grid down to its header.
    void clearRows();
    // The headings (when the header is shown), then every row's texts: what
    // an export writes.
    QList<QStringList> rowsAsText() const;

    // ---- Cells and columns ----
    void setBold(int row, int column, bool bold);
    bool isBold(int row, int column) const;
    // Columns are read-only until opened here; an open column is typed into
    // directly, as the old grid's editable columns were.
    void setColumnEditable(int column, bool editable);
    bool isColumnEditable(int column) const;
    // How the cells of a column set their text from now on.
    void setColumnAlignment(int column, Qt::Alignment alignment);
    // How a column shows its cells (a number in a pattern such as "###.#");
    // the cell keeps its text as typed, which is what text() reads and an
    // edit starts from.
    using DisplayForm = std::function<QString(const QString& text)>;
    void setColumnDisplay(int column, DisplayForm form);
    QString shownText(int row, int column) const;

    // ---- Look and behaviour ----
    void setSelectionKind(Selection selection);
    Selection selectionKind() const { return selection_; }
    // A colour fills the background behind the cells; a picture found in the
    // program folder (in any case) fills it instead; a missing picture and
    // "Default" leave the grid as it is. The text colour follows when given.
    void applyColors(const GridColors& colors);
    // The pair most screens share (GColor1.Fil slots 28 and 29).
    void applySharedColors();

    // ---- Header sort ----
    // Off by default. When on, a click on a column's heading sorts by that
    // column, ascending, and a second click on the same heading descending.
    // `before` runs before the rows move, `after` once they have.
    void setHeaderSort(bool on, SortHook before = {}, SortHook after = {});
    bool headerSort() const { return headerSort_; }
    // The sort a heading click runs, hooks included.
    void sortBy(int column, Qt::SortOrder order);

    // ---- Row tip ----
    // Nothing: no tip.
    void setRowTip(RowTip tip);

protected:
    // Read-only columns refuse editing, empty cells included (the table
    // offers every empty cell for editing otherwise).
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;

private:
    // The cell's item, made with its column's flags and alignment when the
    // cell has none yet; nothing outside the grid.
    QTableWidgetItem* cellItem(int row, int column);
    Qt::ItemFlags flagsOf(int column) const;
    void headingClicked(int column);
    void showRowTip();

    Selection selection_ = Selection::SingleCell;
    QList<int> editableColumns_;
    QHash<int, Qt::Alignment> alignments_;
    QHash<int, DisplayForm> displayForms_;
    bool headerSort_ = false;
    SortHook beforeSort_;
    SortHook afterSort_;
    int sortColumn_ = -1;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
    RowTip rowTip_;
};
