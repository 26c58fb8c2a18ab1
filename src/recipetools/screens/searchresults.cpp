#include "recipetools/screens/searchresults.h"

#include "cookbook/logic/nameentry.h"
#include "shell/kit/screenbusy.h"
#include "shell/kit/screengrid.h"
#include "shell/kit/raisedpanel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

ScreenGrid* MakeGrid(const QString& objectName, const QString& typeHeading, QWidget* parent)
{
    auto* grid = new ScreenGrid(objectName, parent);
    grid->setHeadings({typeHeading, QStringLiteral("Recipe Name")});
    grid->setSelectionKind(ScreenGrid::Selection::Rows);
    grid->setWordWrap(false);
    grid->verticalHeader()->hide();
    grid->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Interactive);
    grid->horizontalHeader()->setStretchLastSection(true);
    grid->setColumnWidth(0, 220);
    grid->setMinimumSize(480, 150);
    return grid;
}

QLabel* MakeNoMatchPanel(const QString& text, QWidget* parent)
{
    auto* panel = new QLabel(text, parent);
    panel->setObjectName(QStringLiteral("pnlNoMatch"));
    panel->setAlignment(Qt::AlignCenter);
    MakeRaised(panel, 2);
    panel->setAutoFillBackground(false);
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
    connect(grid_, &ScreenGrid::cellDoubleClicked, this, [this](int row, int) {
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
    grid_->clearRows();
}

void SearchResults::showHits(const QList<SearchHit>& hits, const QString& countText)
{
    reset();
    grid_->setRowCount(int(hits.size()));
    for (int row = 0; row < int(hits.size()); ++row) {
        const SearchHit& hit = hits[row];
        grid_->setRowTexts(row, {hit.typeName, RecipeNameOf(hit.entry)});
        grid_->setValue(row, 1, hit.entry);
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
    if (!grid_->item(row, 0) || !grid_->item(row, 1))
        return std::nullopt;
    return SearchHit{grid_->text(row, 0), grid_->value(row, 1).toString()};
}

void SearchResults::clear()
{
    reset();
    viewSelected_->setEnabled(false);
}

void SearchResults::showEvent(QShowEvent* event)
{
    grid_->applySharedColors();
    QWidget::showEvent(event);
}

void SearchResults::viewSelected()
{
    if (selectedHit())
        emit viewSelectedRequested();
}
