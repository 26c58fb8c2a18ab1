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
    connect(searchOptions_, &SearchOptionsPanel::cancelRequested, this, &Form5::closeSearch);

    connect(nameSearch_, &NameSearchPanel::searchRequested, this, [this](const QString& text) {
        nameSearch_->runSearch([this, text] { return SearchByName(cookbook_, text); });
    });
    connect(nameSearch_, &NameSearchPanel::viewAllRequested, this, [this] {
        nameSearch_->runSearch([this] { return SearchByName(cookbook_, kViewAllText); });
    });
    connect(nameSearch_, &NameSearchPanel::viewSelectedRequested, this,
            [this] { viewFoundRecipe(nameSearch_->selectedHit()); });
    connect(nameSearch_, &NameSearchPanel::closeRequested, this, &Form5::closeSearch);

    const auto searchIngredients = [this] {
        const IngredientQuery query = ingredientSearch_->query();
        const QStringList refusals = IngredientSearchRefusals(query, ingredientSearch_->searchByType());
        for (const QString& refusal : refusals) {
            dialogs_.tell(kSearchTitle, refusal, Icon::Question);
            if (refusal == kSelectTypeMessage)
                ingredientSearch_->typeList()->setFocus(Qt::OtherFocusReason);
            else
                ingredientSearch_->box(1)->setFocus(Qt::OtherFocusReason);
        }
        if (!refusals.isEmpty())
            return;
        std::array<QString, 20> buffer;
        for (int row = 0; row < kRecipeRows; ++row)
            buffer[row] = fields_->ingredientBox(row)->text();
        ingredientSearch_->runSearch([this, query, buffer] { return SearchByIngredient(cookbook_, query, buffer); });
    };
    connect(ingredientSearch_, &IngredientSearchPanel::searchAllRequested, this, searchIngredients);
    connect(ingredientSearch_, &IngredientSearchPanel::searchByTypeRequested, this, searchIngredients);
    connect(ingredientSearch_, &IngredientSearchPanel::viewSelectedRequested, this,
            [this] { viewFoundRecipe(ingredientSearch_->selectedHit()); });
    connect(ingredientSearch_, &IngredientSearchPanel::closeRequested, this, &Form5::closeSearch);
}

void Form5::openSearch()
{
    state_.searchOpen = true;
    applyCommandStates();
    searchOptions_->open();
    searchOptions_->move((centralWidget()->width() - searchOptions_->width()) / 2,
                         (centralWidget()->height() - searchOptions_->height()) / 3);
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
    state_.searchOpen = false;
    applyCommandStates();
    focusCommandButton(kSearchButton);
    searchOptions_->hide();
    nameSearch_->hide();
    ingredientSearch_->hide();
}

// "&View Selected Recipe": the type of the row is viewed and the recipe whose
// entry holds the row's text is loaded, without a save question.
void Form5::viewFoundRecipe(const std::optional<SearchHit>& hit)
{
    if (!hit)
        return;
    fields_->typeList()->setCurrentText(hit->typeName.trimmed());
    const RecordNumber recordNumber = RecordNumberOf(hit->entry);
    const QString wanted = hit->entry.trimmed();
    closeSearch();
    state_.recipeChanged = false;
    state_.amountsRecalculated = false;
    viewRecipes();
    fields_->pickList()->hidePopup();
    showRecipeAt(recordNumber, wanted);
}
