#include "shell/kit/screengrid.h"

#include "common/programfolder.h"
#include "common/widgets/qtcolors.h"
#include "shell/logic/gridorder.h"

#include <QHeaderView>
#include <QPixmap>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>

namespace {

// Bold is kept as a mark in the cell and drawn from the grid's own font, so
// a bold cell follows the grid's font size.
constexpr int kBoldRole = Qt::UserRole + 1;

class BoldDelegate final : public QStyledItemDelegate {
public:
    explicit BoldDelegate(const ScreenGrid* grid) : QStyledItemDelegate(const_cast<ScreenGrid*>(grid)), grid_(grid) {}

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.data(kBoldRole).toBool())
            option->font.setBold(true);
        option->text = grid_->shownText(index.row(), index.column());
    }

private:
    const ScreenGrid* grid_;
};

// Every cell of the grid sorts in the grid's order, also one that the user
// typed into an empty cell (made from the prototype).
class GridItem final : public QTableWidgetItem {
public:
    GridItem() : QTableWidgetItem(UserType) {}
    QTableWidgetItem* clone() const override { return new GridItem(*this); }
    bool operator<(const QTableWidgetItem& other) const override { return GridCellLess(text(), other.text()); }
};

} // namespace

ScreenGrid::ScreenGrid(const QString& objectName, QWidget* parent) : QTableWidget(parent)
{
    setObjectName(objectName);
    setItemPrototype(new GridItem);
    setItemDelegate(new BoldDelegate(this));
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionKind(Selection::SingleCell);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &ScreenGrid::headingClicked);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        if (rowTip_ && verticalScrollBar()->isSliderDown())
            showRowTip();
    });
    connect(verticalScrollBar(), &QScrollBar::sliderReleased, this, [this] {
        if (rowTip_)
            QToolTip::hideText();
    });
}

// ---- Filling ---------------------------------------------------------------

void ScreenGrid::setHeadings(const QStringList& headings)
{
    setColumnCount(int(headings.size()));
    setHorizontalHeaderLabels(headings);
}

QStringList ScreenGrid::headings() const
{
    QStringList headings;
    for (int column = 0; column < columnCount(); ++column) {
        const QTableWidgetItem* heading = horizontalHeaderItem(column);
        headings.append(heading ? heading->text() : QString());
    }
    return headings;
}

void ScreenGrid::setText(int row, int column, const QString& text)
{
    if (QTableWidgetItem* cell = cellItem(row, column))
        cell->setText(text);
}

QString ScreenGrid::text(int row, int column) const
{
    const QTableWidgetItem* cell = item(row, column);
    return cell ? cell->text() : QString();
}

void ScreenGrid::setRowTexts(int row, const QStringList& texts)
{
    if (row < 0)
        return;
    if (row >= rowCount())
        setRowCount(row + 1);
    for (int column = 0; column < int(texts.size()); ++column)
        setText(row, column, texts[column]);
}

QStringList ScreenGrid::rowTexts(int row) const
{
    QStringList texts;
    for (int column = 0; column < columnCount(); ++column)
        texts.append(text(row, column));
    return texts;
}

void ScreenGrid::setValue(int row, int column, const QVariant& value)
{
    if (QTableWidgetItem* cell = cellItem(row, column))
        cell->setData(Qt::UserRole, value);
}

QVariant ScreenGrid::value(int row, int column) const
{
    const QTableWidgetItem* cell = item(row, column);
    return cell ? cell->data(Qt::UserRole) : QVariant();
}

void ScreenGrid::clearRows()
{
    clearContents();
    setRowCount(0);
}

QList<QStringList> ScreenGrid::rowsAsText() const
{
    QList<QStringList> rows;
    if (!horizontalHeader()->isHidden())
        rows.append(headings());
    for (int row = 0; row < rowCount(); ++row)
        rows.append(rowTexts(row));
    return rows;
}

// ---- Cells and columns -----------------------------------------------------

QTableWidgetItem* ScreenGrid::cellItem(int row, int column)
{
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount())
        return nullptr;
    if (QTableWidgetItem* existing = item(row, column))
        return existing;
    auto* made = new GridItem;
    made->setFlags(flagsOf(column));
    if (alignments_.contains(column))
        made->setTextAlignment(alignments_.value(column));
    setItem(row, column, made);
    return made;
}

Qt::ItemFlags ScreenGrid::flagsOf(int column) const
{
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (isColumnEditable(column))
        flags |= Qt::ItemIsEditable;
    return flags;
}

void ScreenGrid::setBold(int row, int column, bool bold)
{
    if (QTableWidgetItem* cell = cellItem(row, column))
        cell->setData(kBoldRole, bold);
}

bool ScreenGrid::isBold(int row, int column) const
{
    const QTableWidgetItem* cell = item(row, column);
    return cell && cell->data(kBoldRole).toBool();
}

void ScreenGrid::setColumnEditable(int column, bool editable)
{
    editableColumns_.removeAll(column);
    if (editable)
        editableColumns_.append(column);
    for (int row = 0; row < rowCount(); ++row) {
        if (QTableWidgetItem* cell = item(row, column))
            cell->setFlags(flagsOf(column));
    }
    setEditTriggers(editableColumns_.isEmpty() ? QAbstractItemView::NoEditTriggers
                                               : QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                                                     | QAbstractItemView::AnyKeyPressed);
}

bool ScreenGrid::isColumnEditable(int column) const
{
    return editableColumns_.contains(column);
}

void ScreenGrid::setColumnAlignment(int column, Qt::Alignment alignment)
{
    alignments_.insert(column, alignment);
}

void ScreenGrid::setColumnDisplay(int column, DisplayForm form)
{
    displayForms_.insert(column, std::move(form));
    viewport()->update();
}

QString ScreenGrid::shownText(int row, int column) const
{
    const QString cell = text(row, column);
    const auto form = displayForms_.constFind(column);
    return form == displayForms_.constEnd() ? cell : (*form)(cell);
}

bool ScreenGrid::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    if (index.isValid() && !isColumnEditable(index.column()))
        return false;
    return QTableWidget::edit(index, trigger, event);
}

// ---- Look and behaviour ----------------------------------------------------

void ScreenGrid::setSelectionKind(Selection selection)
{
    selection_ = selection;
    switch (selection) {
    case Selection::None:
        setSelectionMode(QAbstractItemView::NoSelection);
        break;
    case Selection::SingleCell:
        setSelectionMode(QAbstractItemView::SingleSelection);
        setSelectionBehavior(QAbstractItemView::SelectItems);
        break;
    case Selection::Rows:
        setSelectionMode(QAbstractItemView::SingleSelection);
        setSelectionBehavior(QAbstractItemView::SelectRows);
        break;
    }
}

void ScreenGrid::applyColors(const GridColors& colors)
{
    QPalette shown = palette();
    switch (colors.kind) {
    case GridColors::Kind::Unchanged:
        break;
    case GridColors::Kind::Color:
        shown.setColor(QPalette::Base, ColorFromColorref(colors.color));
        break;
    case GridColors::Kind::Picture: {
        const QPixmap picture(ResolveFileName(colors.pictureFile));
        if (!picture.isNull())
            shown.setBrush(QPalette::Base, QBrush(picture));
        break;
    }
    }
    if (colors.textColor)
        shown.setColor(QPalette::Text, ColorFromColorref(*colors.textColor));
    setPalette(shown);
}

void ScreenGrid::applySharedColors()
{
    applyColors(ReadSharedGridColors());
}

// ---- Header sort -----------------------------------------------------------

void ScreenGrid::setHeaderSort(bool on, SortHook before, SortHook after)
{
    headerSort_ = on;
    beforeSort_ = std::move(before);
    afterSort_ = std::move(after);
    horizontalHeader()->setSortIndicatorShown(on);
    if (on)
        horizontalHeader()->setSectionsClickable(true);
}

void ScreenGrid::headingClicked(int column)
{
    if (!headerSort_)
        return;
    const bool again = column == sortColumn_ && sortOrder_ == Qt::AscendingOrder;
    sortBy(column, again ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void ScreenGrid::sortBy(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= columnCount())
        return;
    if (beforeSort_)
        beforeSort_(column, order);
    sortColumn_ = column;
    sortOrder_ = order;
    sortItems(column, order);
    horizontalHeader()->setSortIndicator(column, order);
    if (afterSort_)
        afterSort_(column, order);
}

// ---- Row tip ---------------------------------------------------------------

void ScreenGrid::setRowTip(RowTip tip)
{
    rowTip_ = std::move(tip);
}

// The tip stands left of the scroll bar, at the height of its handle.
void ScreenGrid::showRowTip()
{
    const int top = rowAt(0);
    if (top < 0)
        return;
    const QScrollBar* bar = verticalScrollBar();
    const int range = bar->maximum() - bar->minimum();
    const int y = range > 0 ? bar->height() * (bar->value() - bar->minimum()) / range : 0;
    const QString tip = rowTip_(top);
    const QPoint at = bar->mapToGlobal(QPoint(-fontMetrics().horizontalAdvance(tip) - 24, y));
    QToolTip::showText(at, tip, verticalScrollBar());
}
