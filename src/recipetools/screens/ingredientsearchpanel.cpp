#include "recipetools/screens/ingredientsearchpanel.h"

#include "cookbook/logic/cookbooknames.h"
#include "recipetools/screens/searchresults.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

IngredientSearchPanel::IngredientSearchPanel(QWidget* parent)
    : OverlayPanel(QStringLiteral("Search Recipes by Ingredient"), QStringLiteral("Search Recipes by Ingredient"), parent)
{
    QLabel* title = captionLabel();
    title->setObjectName(QStringLiteral("lblSearchByIngredient"));
    title->setAlignment(Qt::AlignCenter);

    auto* prompt = new QLabel(QStringLiteral("Enter Search Ingredient(s) -"), this);
    auto* boxesLayout = new QGridLayout;
    boxesLayout->addWidget(prompt, 0, 0, 1, 2);
    for (int i = 0; i < 3; ++i) {
        auto* box = new QLineEdit(this);
        box->setObjectName(QStringLiteral("Text%1").arg(13 + i));
        boxes_[std::size_t(i)] = box;
        boxesLayout->addWidget(box, i + 1, 0);
        if (i > 0) {
            auto* optional = new QLabel(QStringLiteral("(Optional)"), this);
            optional->setObjectName(QStringLiteral("lblOptional%1").arg(i + 1));
            boxesLayout->addWidget(optional, i + 1, 1);
        }
    }
    prompt->setBuddy(boxes_[0]);

    optionsFrame_ = new QGroupBox(QStringLiteral("Multi-Ingredient Options"), this);
    optionsFrame_->setObjectName(QStringLiteral("Multi-Ingredient Options"));
    allOf_ = new QRadioButton(QStringLiteral("Must contain All Ingredients"), optionsFrame_);
    allOf_->setObjectName(QStringLiteral("optAllIngredients"));
    anyOf_ = new QRadioButton(QStringLiteral("At least One of the Ingredients"), optionsFrame_);
    anyOf_->setObjectName(QStringLiteral("optOneIngredient"));
    allOf_->setChecked(true);
    auto* optionsLayout = new QVBoxLayout(optionsFrame_);
    optionsLayout->addWidget(allOf_);
    optionsLayout->addWidget(anyOf_);
    optionsFrame_->hide();

    auto* typePrompt = new QLabel(QStringLiteral("Select Type of Recipe - If Desired -"), this);
    typeList_ = new QListWidget(this);
    typeList_->setObjectName(QStringLiteral("lstSearchType"));
    typeList_->addItems(RecipeTypeNames());
    typeList_->setSelectionMode(QAbstractItemView::SingleSelection);
    typePrompt->setBuddy(typeList_);

    auto* searchAll = new QPushButton(QStringLiteral("Search &All Recipes"), this);
    searchAll->setObjectName(QStringLiteral("cmdSearchAllRecipes"));
    auto* searchByType = new QPushButton(QStringLiteral("&Search By Type"), this);
    searchByType->setObjectName(QStringLiteral("cmdSearchByType"));

    results_ = new SearchResults({QStringLiteral("VSFlexGrid2"), QStringLiteral("Recipe Type"), kNoMatchingIngredients,
                                  QStringLiteral("cmdViewSelectedIngredient"),
                                  QStringLiteral("cmdCloseIngredientSearch")},
                                 SearchResults::EmptySearch::DisablesViewSelected, this);

    for (int i = 1; i < 3; ++i)
        connect(boxes_[std::size_t(i)], &QLineEdit::textChanged, this, &IngredientSearchPanel::updateOptionsFrame);
    connect(searchAll, &QPushButton::clicked, this, [this] { command(false); });
    connect(searchByType, &QPushButton::clicked, this, [this] { command(true); });
    connect(results_, &SearchResults::viewSelectedRequested, this, &IngredientSearchPanel::viewSelectedRequested);
    connect(results_, &SearchResults::closeRequested, this, &IngredientSearchPanel::closeRequested);

    auto* typeColumn = new QVBoxLayout;
    typeColumn->addWidget(typePrompt);
    typeColumn->addWidget(typeList_);
    auto* leftColumn = new QVBoxLayout;
    leftColumn->addLayout(boxesLayout);
    leftColumn->addWidget(optionsFrame_);
    leftColumn->addStretch();
    auto* top = new QHBoxLayout;
    top->addLayout(leftColumn, 1);
    top->addLayout(typeColumn, 1);
    auto* commands = new QHBoxLayout;
    commands->addStretch();
    commands->addWidget(searchAll);
    commands->addWidget(searchByType);
    body()->addLayout(top);
    body()->addLayout(commands);
    body()->addWidget(results_, 1);
}

void IngredientSearchPanel::open()
{
    OverlayPanel::open(boxes_[0]);
}

IngredientQuery IngredientSearchPanel::query() const
{
    IngredientQuery query;
    query.box1 = boxes_[0]->text();
    query.box2 = boxes_[1]->text();
    query.box3 = boxes_[2]->text();
    query.allOfTerms = allOf_->isChecked();
    if (searchByType_)
        query.onlyType = pickedType();
    return query;
}

std::optional<RecipeType> IngredientSearchPanel::pickedType() const
{
    const QListWidgetItem* item = typeList_->currentItem();
    if (!item || !item->isSelected())
        return std::nullopt;
    return RecipeTypeFromName(item->text());
}

void IngredientSearchPanel::showResults(const QList<SearchHit>& hits)
{
    results_->showHits(hits, IngredientSearchCountText(searchByType_, hits.size()));
}

void IngredientSearchPanel::runSearch(const std::function<QList<SearchHit>()>& search)
{
    results_->run(search, [this](qsizetype hits) { return IngredientSearchCountText(searchByType_, hits); });
}

std::optional<SearchHit> IngredientSearchPanel::selectedHit() const
{
    return results_->selectedHit();
}

void IngredientSearchPanel::clearResults()
{
    results_->clear();
}

void IngredientSearchPanel::clear()
{
    for (QLineEdit* box : boxes_)
        box->clear();
    typeList_->clearSelection();
    clearResults();
}

QTableWidget* IngredientSearchPanel::grid() const
{
    return results_->grid();
}

QLineEdit* IngredientSearchPanel::box(int number) const
{
    return (number >= 1 && number <= 3) ? boxes_[std::size_t(number - 1)] : nullptr;
}

void IngredientSearchPanel::command(bool byType)
{
    QString box1 = boxes_[0]->text();
    QString box2 = boxes_[1]->text();
    QString box3 = boxes_[2]->text();
    CompactBoxes(box1, box2, box3);
    boxes_[0]->setText(box1);
    boxes_[1]->setText(box2);
    boxes_[2]->setText(box3);
    searchByType_ = byType;
    if (byType)
        emit searchByTypeRequested();
    else
        emit searchAllRequested();
}

void IngredientSearchPanel::updateOptionsFrame()
{
    optionsFrame_->setVisible(MultiIngredientFrameShown(boxes_[1]->text(), boxes_[2]->text()));
}
