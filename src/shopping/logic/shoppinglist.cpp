#include "shopping/logic/shoppinglist.h"

#include "common/blanktext.h"
#include "common/listorder.h"
#include "common/numbertext.h"
#include "shopping/logic/groceryentry.h"

namespace {

const QString kFreshHeader = QStringLiteral("Grocery Item");
const QString kCountHeader = QStringLiteral("Grocery Items = ");
const QString kAmountHeader = QStringLiteral("Amount to Purchase");

// Blanks that the last three characters of a sorted text always hold before
// a position of one or two digits.
constexpr int kPositionRoom = 3;

} // namespace

QString SortedEntryText(QStringView entry, int position)
{
    const qsizetype width = qMax<qsizetype>(ShoppingList::kSortedTextWidth, entry.size() + kPositionRoom);
    return PaddedTo(entry, width) + QString::number(position);
}

int PositionInSortedText(QStringView text)
{
    return int(Val(text.right(kPositionRoom)));
}

ShoppingList::ShoppingList()
{
    clear();
    setRowCount(kOpeningRowCount);
}

void ShoppingList::setRowCount(int rowCount)
{
    const int rows = qMax(0, rowCount - 1);
    while (rows_.size() > rows)
        rows_.removeLast();
    while (rows_.size() < rows)
        rows_.append(GridRow{});
}

void ShoppingList::setSortMode(SortMode mode)
{
    sortMode_ = mode;
    rebuild();
}

void ShoppingList::setCurrentCell(int row, int column)
{
    currentRow_ = qMax(1, row);
    currentColumn_ = column;
}

QString ShoppingList::cell(int row, int column) const
{
    if (row == 0)
        return column == 0 ? header_ : column == 1 ? kAmountHeader : QString();
    if (row < 1 || row > rows_.size())
        return {};
    const GridRow& shown = rows_[row - 1];
    return column == 0 ? shown.item : column == 1 ? shown.amount : QString();
}

int ShoppingList::firstEmptyItemRow() const
{
    for (int row = 1; row <= rows_.size(); ++row) {
        if (IsBlank(rows_[row - 1].item))
            return row;
    }
    return 0;
}

int ShoppingList::positionOfRow(int row) const
{
    if (row < 1 || row > rows_.size())
        return -1;
    const int position = rows_[row - 1].position;
    return position >= 0 && position < entries_.size() ? position : -1;
}

bool ShoppingList::appendName(QStringView name)
{
    return appendEntry(MakeGroceryEntry(name));
}

bool ShoppingList::appendEntry(const QString& entry)
{
    if (isFull())
        return false;
    entries_.append(entry);
    return true;
}

void ShoppingList::rebuild()
{
    sorted_.clear();
    for (int i = 0; i < entries_.size(); ++i)
        sorted_.append(SortedEntryText(entries_[i], i));
    SortListTexts(sorted_);

    const int count = int(entries_.size());
    setRowCount(count < kOpeningRowCount ? kOpeningRowCount : count + 1);
    header_ = kCountHeader + QString::number(count);
    for (int row = 1; row <= count; ++row) {
        const int position = sortMode_ == SortMode::AsEntered ? row - 1 : PositionInSortedText(sorted_[row - 1]);
        const QString& entry = entries_[position];
        rows_[row - 1] = GridRow{ItemCellOf(entry), AmountCellOf(entry), position};
    }
    dirty_ = !entries_.isEmpty() || !sorted_.isEmpty();
}

void ShoppingList::storeIntoRow(int row, QStringView name)
{
    row = qMax(1, row);
    if (IsBlank(name) || row > rows_.size())
        return;
    const QString cut = name.left(kItemNameLength).toString();
    const GridRow& shown = rows_[row - 1];
    const int position = positionOfRow(row);
    if (shown.amount.isEmpty() && IsBlank(shown.item)) {
        if (!appendEntry(cut))
            return;
    } else if (position >= 0) {
        entries_[position] = shown.amount.isEmpty() ? cut : MakeGroceryEntry(cut, shown.amount);
    }
    rebuild();
}

CellClickOutcome ShoppingList::clickCell(int row, int column, QStringView itemBox)
{
    setCurrentCell(row, column);
    row = currentRow_;
    const QString clicked = LTrim(cell(row, column));
    CellClickOutcome outcome;
    if (column == 0) {
        if (!IsBlank(itemBox)) {
            storeIntoRow(row, itemBox);
            dirty_ = true;
            outcome.kind = CellClickOutcome::Kind::StoredFromBox;
            return outcome;
        }
        editInPlace_ = true;
        outcome.kind = CellClickOutcome::Kind::AwaitingName;
        outcome.deleteItemAllowed = !clicked.isEmpty();
        return outcome;
    }
    const QString item = LTrim(cell(row, 0));
    if (item.isEmpty()) {
        outcome.kind = CellClickOutcome::Kind::ItemFirst;
        outcome.firstEmptyRow = firstEmptyItemRow();
        return outcome;
    }
    outcome.kind = CellClickOutcome::Kind::EnterAmount;
    outcome.itemName = item;
    outcome.amount = cell(row, 1);
    return outcome;
}

void ShoppingList::enterAmount(QStringView amount)
{
    const int row = currentRow_;
    const QString item = LTrim(cell(row, 0));
    if (item.isEmpty() || row > rows_.size())
        return;
    rows_[row - 1].amount = amount.toString();
    dirty_ = true;
    storeIntoRow(row, item);
}

QString ShoppingList::deleteQuestion(int row) const
{
    const QString item = cell(row, 0);
    if (IsBlank(item))
        return QStringLiteral("Delete This Row?");
    return QStringLiteral("Delete Item and Amount for - \n") + item + QStringLiteral(", ") + cell(row, 1)
         + QStringLiteral("?");
}

void ShoppingList::deleteRow(int row)
{
    if (row < 1 || row > rows_.size())
        return;
    const int position = positionOfRow(row);
    // The rebuild gives every remaining row its new position.
    if (position >= 0)
        entries_.removeAt(position);
    dirty_ = true;
    rows_.removeAt(row - 1);
    rebuild();
}

void ShoppingList::clear()
{
    entries_.clear();
    sorted_.clear();
    rows_.clear();
    setRowCount(kClearedRowCount);
    header_ = kFreshHeader;
    dirty_ = false;
    editInPlace_ = false;
}

void ShoppingList::load(const QStringList& entries)
{
    entries_ = entries.mid(0, kMaxEntries);
    editInPlace_ = false;
    rebuild();
    dirty_ = false;
}

void ShoppingList::adoptHeaderSort(QList<GridRow> rows)
{
    rows_.clear();
    for (GridRow& shown : rows) {
        if (!IsBlank(shown.item))
            rows_.append(std::move(shown));
    }
    if (rowCount() < kOpeningRowCount)
        setRowCount(kOpeningRowCount);
    dirty_ = true;
}

QStringList ShoppingList::fileValues() const
{
    QStringList values;
    values.reserve(rows_.size() * 2);
    for (const GridRow& shown : rows_) {
        values.append(shown.item);
        values.append(shown.amount);
    }
    return values;
}
