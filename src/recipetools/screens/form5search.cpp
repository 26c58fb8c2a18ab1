// Form5's search: the "Search Options" panel, the search by recipe name and
// by ingredient, and carrying a found recipe back into the screen.
#include "recipetools/screens/form5.h"

#include "common/dialogs.h"
#include "cookbook/logic/nameentry.h"
#include "recipetools/logic/recipesearch.h"
#include "recipetools/screens/ingredientsearchpanel.h"
#include "recipetools/screens/namesearchpanel.h"
#include "recipetools/screens/recipefieldspanel.h"
#include "recipetools/screens/searchoptionspanel.h"

#include <QPushButton>

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>

void Form5::buildSearchPanels(QWidget* area)
{
    searchOptions_ = new SearchOptionsPanel(area);
    nameSearch_ = new NameSearchPanel(area);
    ingredientSearch_ = new IngredientSearchPanel(area);
    for (QWidget* panel : {static_cast<QWidget*>(searchOptions_), static_cast<QWidget*>(nameSearch_),
                           static_cast<QWidget*>(ingredientSearch_)})
        panel->hide();
    connect(searchOptions_, &SearchOptionsPanel::byRecipeRequested, this,
            [this] { openSearchPanel(nameSearch_); });
    connect(searchOptions_, &SearchOptionsPanel::byIngredientRequested, this,
            [this] { openSearchPanel(ingredientSearch_); });
    connect(searchOptions_, &SearchOptionsPanel::closeRequested, this, &Form5::closeSearch);

    connect(nameSearch_, &NameSearchPanel::searchRequested, this, [this](const QString& text) {
        nameSearch_->runSearch([this, text] { return SearchByName(model_.cookbook(), text); });
    });
    connect(nameSearch_, &NameSearchPanel::viewAllRequested, this, [this] {
        nameSearch_->runSearch([this] { return SearchByName(model_.cookbook(), kViewAllText); });
    });
    connect(nameSearch_, &NameSearchPanel::viewSelectedRequested, this,
            [this] { viewFoundRecipe(nameSearch_->selectedHit()); });
    connect(nameSearch_, &NameSearchPanel::closeRequested, this, &Form5::closeSearch);

    connect(ingredientSearch_, &IngredientSearchPanel::searchAllRequested, this, &Form5::searchIngredients);
    connect(ingredientSearch_, &IngredientSearchPanel::searchByTypeRequested, this, &Form5::searchIngredients);
    connect(ingredientSearch_, &IngredientSearchPanel::viewSelectedRequested, this,
            [this] { viewFoundRecipe(ingredientSearch_->selectedHit()); });
    connect(ingredientSearch_, &IngredientSearchPanel::closeRequested, this, &Form5::closeSearch);
}

void Form5::searchIngredients()
{
    const IngredientQuery query = ingredientSearch_->query();
    const QStringList refusals = IngredientSearchRefusals(query, ingredientSearch_->searchByType());
    for (const QString& refusal : refusals) {
        dialogs().tell(kSearchTitle, refusal, Icon::Question);
        if (refusal == kSelectTypeMessage)
            ingredientSearch_->typeList()->setFocus(Qt::OtherFocusReason);
        else
            ingredientSearch_->box(1)->setFocus(Qt::OtherFocusReason);
    }
    if (!refusals.isEmpty())
        return;
    std::array<QString, kRecipeRows> buffer;
    for (int row = 0; row < kRecipeRows; ++row)
        buffer[row] = fields_->ingredientBox(row)->text();
    const int cookbook = model_.cookbook();
    ingredientSearch_->runSearch([cookbook, query, buffer] { return SearchByIngredient(cookbook, query, buffer); });
}

void Form5::openSearch()
{
    if (!convertPendingOldDatabase(Form5Command::Search))
        return;
    closeOpenPanel();
    setPanel(RecipePanel::Search);
    searchOptions_->open(searchOptions_->byRecipeButton());
    searchOptions_->centreInParent(1.0 / 3);
}

void Form5::openSearchPanel(QWidget* panel)
{
    if (panel == nameSearch_)
        nameSearch_->open();
    else
        ingredientSearch_->open();
    panel->setGeometry(centralWidget()->rect().adjusted(24, 24, -24, -24));
    searchOptions_->hide(); // after the panel took the keyboard
}

void Form5::closeSearch()
{
    setPanel(RecipePanel::None);
    focusCommandButton(Form5Command::Search);
    searchOptions_->hide();
    nameSearch_->hide();
    ingredientSearch_->hide();
}

void Form5::clearSearches()
{
    nameSearch_->clear();
    ingredientSearch_->clear();
}

// "&View Selected Recipe": the type of the row is viewed and the recipe whose
// entry holds the row's text is loaded, without a save question.
void Form5::viewFoundRecipe(const std::optional<SearchHit>& hit)
{
    if (!hit)
        return;
    showType(hit->typeName.trimmed());
    const RecordNumber recordNumber = RecordNumberOf(hit->entry);
    const QString wanted = hit->entry.trimmed();
    closeSearch();
    model_.dropChanges();
    viewRecipes();
    fields_->pickList()->hidePopup();
    showRecipeAt(recordNumber, wanted);
}
