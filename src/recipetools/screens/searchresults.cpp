#include "recipetools/screens/searchresults.h"

#include "cookbook/logic/nameentry.h"
#include "shell/kit/gridcolors.h"
#include "shell/kit/screenbusy.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

QTableWidget* MakeGrid(const QString& objectName, const QString& typeHeading, QWidget* parent)
{
    auto* grid = new QTableWidget(0, 2, parent);
    grid->setObjectName(objectName);
    grid->setHorizontalHeaderLabels({typeHeading, QStringLiteral("Recipe Name")});
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

QLabel* MakeNoMatchPanel(const QString& text, QWidget* parent)
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

} // namespace

SearchResults::SearchResults(const Names& names, EmptySearch emptySearch, QWidget* parent)
    : QWidget(parent), emptySearch_(emptySearch)
{
    grid_ = MakeGrid(names.grid, names.typeHeading, this);
    countLabel_ = new QLabel(this);
    countLabel_->setObjectName(QStringLiteral("lblMatches"));
    countLabel_->setAlignment(Qt::AlignCenter);
    countLabel_->hide();
    noMatchPanel_ = MakeNoMatchPanel(names.noMatchText, this);
    viewSelected_ = new QPushButton(QStringLiteral("&View Selected Recipe"), this);
    viewSelected_->setObjectName(names.viewSelected);
    viewSelected_->setEnabled(false);
    auto* closeButton = new QPushButton(QStringLiteral("&Close"), this);
    closeButton->setObjectName(names.close);

    connect(viewSelected_, &QPushButton::clicked, this, &SearchResults::viewSelected);
    connect(grid_, &QTableWidget::cellDoubleClicked, this, [this](int row, int) {
        grid_->selectRow(row);
        viewSelected();
    });
    connect(closeButton, &QPushButton::clicked, this, &SearchResults::closeRequested);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(viewSelected_);
    buttons->addWidget(closeButton);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(grid_, 1);
    layout->addWidget(countLabel_);
    layout->addWidget(noMatchPanel_);
    layout->addLayout(buttons);
}

void SearchResults::reset()
{
    noMatchPanel_->hide();
    countLabel_->hide();
    if (emptySearch_ == EmptySearch::DisablesViewSelected)
        viewSelected_->setEnabled(false);
    grid_->clearContents();
    grid_->setRowCount(0);
}

void SearchResults::showHits(const QList<SearchHit>& hits, const QString& countText)
{
    reset();
    grid_->setRowCount(int(hits.size()));
    for (int row = 0; row < int(hits.size()); ++row) {
        const SearchHit& hit = hits[row];
        grid_->setItem(row, 0, new QTableWidgetItem(hit.typeName));
        auto* name = new QTableWidgetItem(RecipeNameOf(hit.entry));
        name->setData(Qt::UserRole, hit.entry);
        grid_->setItem(row, 1, name);
    }
    if (hits.isEmpty()) {
        noMatchPanel_->show();
        return;
    }
    grid_->selectRow(0);
    countLabel_->setText(countText);
    countLabel_->show();
    viewSelected_->setEnabled(true);
}

void SearchResults::run(const std::function<QList<SearchHit>()>& search,
                        const std::function<QString(qsizetype)>& countText)
{
    QList<SearchHit> hits;
    {
        const ScreenBusy busy;
        reset();
        hits = search();
    }
    showHits(hits, countText(hits.size()));
}

std::optional<SearchHit> SearchResults::selectedHit() const
{
    const QList<QTableWidgetSelectionRange> ranges = grid_->selectedRanges();
    if (ranges.isEmpty())
        return std::nullopt;
    const int row = ranges.first().topRow();
    const QTableWidgetItem* type = grid_->item(row, 0);
    const QTableWidgetItem* name = grid_->item(row, 1);
    if (!type || !name)
        return std::nullopt;
    return SearchHit{type->text(), name->data(Qt::UserRole).toString()};
}

void SearchResults::clear()
{
    reset();
    viewSelected_->setEnabled(false);
}

void SearchResults::showEvent(QShowEvent* event)
{
    ApplyGridColors(grid_, ReadSharedGridColors());
    QWidget::showEvent(event);
}

void SearchResults::viewSelected()
{
    if (selectedHit())
        emit viewSelectedRequested();
}
