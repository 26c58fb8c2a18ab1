#include "recipetools/screens/searchgrid.h"

#include "cookbook/logic/nameentry.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>

QTableWidget* MakeSearchGrid(QWidget* parent, const QString& objectName, const QString& typeHeading,
                             const QString& nameHeading)
{
    auto* grid = new QTableWidget(0, 2, parent);
    grid->setObjectName(objectName);
    grid->setHorizontalHeaderLabels({typeHeading, nameHeading});
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid->setSelectionMode(QAbstractItemView::SingleSelection);
    grid->setSortingEnabled(false);
    grid->setWordWrap(false);
    grid->verticalHeader()->hide();
    grid->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Interactive);
    grid->horizontalHeader()->setStretchLastSection(true);
    grid->setColumnWidth(0, 220);
    grid->setMinimumSize(560, 240);
    return grid;
}

QLabel* MakeCountLabel(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QStringLiteral("lblMatches"));
    label->setAlignment(Qt::AlignCenter);
    label->hide();
    return label;
}

QLabel* MakeNoMatchPanel(QWidget* parent, const QString& text)
{
    auto* panel = new QLabel(text, parent);
    panel->setObjectName(QStringLiteral("pnlNoMatch"));
    panel->setAlignment(Qt::AlignCenter);
    panel->setFrameStyle(QFrame::Panel | QFrame::Raised);
    panel->setLineWidth(2);
    QFont bold = panel->font();
    bold.setBold(true);
    panel->setFont(bold);
    panel->hide();
    return panel;
}

void ResetSearchGrid(QTableWidget* grid)
{
    grid->clearContents();
    grid->setRowCount(0);
}

void FillSearchGrid(QTableWidget* grid, const QList<SearchHit>& hits)
{
    ResetSearchGrid(grid);
    grid->setRowCount(int(hits.size()));
    for (int row = 0; row < int(hits.size()); ++row) {
        const SearchHit& hit = hits[row];
        grid->setItem(row, 0, new QTableWidgetItem(hit.typeName));
        auto* name = new QTableWidgetItem(RecipeNameOf(hit.entry));
        name->setData(Qt::UserRole, hit.entry);
        grid->setItem(row, 1, name);
    }
    if (!hits.isEmpty())
        grid->selectRow(0);
}

std::optional<SearchHit> SelectedSearchHit(const QTableWidget* grid)
{
    const QList<QTableWidgetSelectionRange> ranges = grid->selectedRanges();
    if (ranges.isEmpty())
        return std::nullopt;
    const int row = ranges.first().topRow();
    const QTableWidgetItem* type = grid->item(row, 0);
    const QTableWidgetItem* name = grid->item(row, 1);
    if (!type || !name)
        return std::nullopt;
    return SearchHit{type->text(), name->data(Qt::UserRole).toString()};
}
