#include "recipetools/screens/namesearchpanel.h"

#include "recipetools/screens/searchresults.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

NameSearchPanel::NameSearchPanel(QWidget* parent)
    : OverlayPanel(QStringLiteral("Search Files by Recipe"), QStringLiteral("Search Files by Recipe"), parent)
{
    QLabel* title = captionLabel();
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

    results_ = new SearchResults({QStringLiteral("VSFlexGrid1"), QStringLiteral("Type Recipe"), kNoMatchingRecipes,
                                  QStringLiteral("cmdViewSelectedName"), QStringLiteral("cmdCloseNameSearch")},
                                 SearchResults::EmptySearch::KeepsViewSelected, this);

    connect(searchButton, &QPushButton::clicked, this, &NameSearchPanel::search);
    connect(searchBox_, &QLineEdit::returnPressed, this, &NameSearchPanel::search);
    connect(viewAllButton, &QPushButton::clicked, this, &NameSearchPanel::viewAll);
    connect(results_, &SearchResults::viewSelectedRequested, this, &NameSearchPanel::viewSelectedRequested);
    connect(results_, &SearchResults::closeRequested, this, &NameSearchPanel::closeRequested);

    auto* entry = new QHBoxLayout;
    entry->addWidget(prompt);
    entry->addWidget(searchBox_, 1);
    entry->addWidget(searchButton);
    entry->addWidget(viewAllButton);
    body()->addLayout(entry);
    body()->addWidget(results_, 1);
}

void NameSearchPanel::open()
{
    OverlayPanel::open(searchBox_);
}

void NameSearchPanel::showResults(const QList<SearchHit>& hits)
{
    results_->showHits(hits, NameSearchCountText(hits.size()));
}

void NameSearchPanel::runSearch(const std::function<QList<SearchHit>()>& search)
{
    results_->run(search, NameSearchCountText);
}

std::optional<SearchHit> NameSearchPanel::selectedHit() const
{
    return results_->selectedHit();
}

void NameSearchPanel::clearResults()
{
    results_->clear();
}

void NameSearchPanel::clear()
{
    searchBox_->clear();
    clearResults();
}

QTableWidget* NameSearchPanel::grid() const
{
    return results_->grid();
}

bool NameSearchPanel::eventFilter(QObject* watched, QEvent* event)
{
    // The single blank that "View All Recipes" leaves goes when the user
    // comes back to type a word.
    if (watched == searchBox_ && event->type() == QEvent::FocusIn && searchBox_->text() == kViewAllText)
        searchBox_->clear();
    return OverlayPanel::eventFilter(watched, event);
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
