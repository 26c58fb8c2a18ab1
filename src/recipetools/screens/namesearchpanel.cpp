#include "recipetools/screens/namesearchpanel.h"

#include "recipetools/screens/overlaypanel.h"
#include "recipetools/screens/searchgrid.h"
#include "shell/screens/gridcolors.h"
#include "shell/screens/screenbusy.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

NameSearchPanel::NameSearchPanel(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("Search Files by Recipe"));

    auto* title = MakeOverlayPanel(this, QStringLiteral("Search Files by Recipe"));
    title->setObjectName(QStringLiteral("lblSearchByRecipe"));
    title->setAlignment(Qt::AlignCenter);

    auto* prompt = new QLabel(QStringLiteral("Enter Search Word(s):"), this);
    searchBox_ = new QLineEdit(this);
    searchBox_->setObjectName(QStringLiteral("Text12"));
    searchBox_->installEventFilter(this);
    prompt->setBuddy(searchBox_);
    auto* searchButton = new QPushButton(QStringLiteral("&Search"), this);
    searchButton->setObjectName(QStringLiteral("cmdSearchNames"));
    auto* viewAllButton = new QPushButton(QStringLiteral("View &All Recipes"), this);
    viewAllButton->setObjectName(QStringLiteral("cmdViewAllRecipes"));

    grid_ = MakeSearchGrid(this, QStringLiteral("VSFlexGrid1"), QStringLiteral("Type Recipe"),
                           QStringLiteral("Recipe Name"));
    countLabel_ = MakeCountLabel(this);
    noMatchPanel_ = MakeNoMatchPanel(this, kNoMatchingRecipes);

    viewSelected_ = new QPushButton(QStringLiteral("&View Selected Recipe"), this);
    viewSelected_->setObjectName(QStringLiteral("cmdViewSelectedName"));
    viewSelected_->setEnabled(false);
    auto* closeButton = new QPushButton(QStringLiteral("&Close"), this);
    closeButton->setObjectName(QStringLiteral("cmdCloseNameSearch"));

    connect(searchButton, &QPushButton::clicked, this, &NameSearchPanel::search);
    connect(searchBox_, &QLineEdit::returnPressed, this, &NameSearchPanel::search);
    connect(viewAllButton, &QPushButton::clicked, this, &NameSearchPanel::viewAll);
    connect(viewSelected_, &QPushButton::clicked, this, &NameSearchPanel::viewSelected);
    connect(grid_, &QTableWidget::cellDoubleClicked, this, [this](int row, int) {
        grid_->selectRow(row);
        viewSelected();
    });
    connect(closeButton, &QPushButton::clicked, this, &NameSearchPanel::closeRequested);

    auto* entry = new QHBoxLayout;
    entry->addWidget(prompt);
    entry->addWidget(searchBox_, 1);
    entry->addWidget(searchButton);
    entry->addWidget(viewAllButton);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(viewSelected_);
    buttons->addWidget(closeButton);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addLayout(entry);
    layout->addWidget(grid_, 1);
    layout->addWidget(countLabel_);
    layout->addWidget(noMatchPanel_);
    layout->addLayout(buttons);
    hide();
}

void NameSearchPanel::open()
{
    RaiseOverlayPanel(this);
    searchBox_->setFocus(Qt::OtherFocusReason);
}

void NameSearchPanel::showResults(const QList<SearchHit>& hits)
{
    noMatchPanel_->hide();
    countLabel_->hide();
    FillSearchGrid(grid_, hits);
    if (hits.isEmpty()) {
        noMatchPanel_->show();
        return;
    }
    countLabel_->setText(NameSearchCountText(hits.size()));
    countLabel_->show();
    viewSelected_->setEnabled(true);
}

void NameSearchPanel::runSearch(const std::function<QList<SearchHit>()>& search)
{
    QList<SearchHit> hits;
    {
        const ScreenBusy busy;
        noMatchPanel_->hide();
        countLabel_->hide();
        ResetSearchGrid(grid_);
        hits = search();
    }
    showResults(hits);
}

std::optional<SearchHit> NameSearchPanel::selectedHit() const
{
    return SelectedSearchHit(grid_);
}

void NameSearchPanel::showEvent(QShowEvent* event)
{
    ApplyGridColors(grid_, ReadSharedGridColors());
    QFrame::showEvent(event);
}

bool NameSearchPanel::eventFilter(QObject* watched, QEvent* event)
{
    // The single blank that "View All Recipes" leaves goes when the user
    // comes back to type a word.
    if (watched == searchBox_ && event->type() == QEvent::FocusIn && searchBox_->text() == kViewAllText)
        searchBox_->clear();
    return QFrame::eventFilter(watched, event);
}

void NameSearchPanel::search()
{
    const QString text = searchBox_->text();
    if (text.isEmpty())
        return;
    emit searchRequested(text);
}

void NameSearchPanel::viewAll()
{
    searchBox_->setText(kViewAllText);
    emit viewAllRequested();
}

void NameSearchPanel::viewSelected()
{
    if (selectedHit())
        emit viewSelectedRequested();
}
