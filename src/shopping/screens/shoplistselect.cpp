// Shoplist's select panels: Recipe Select, with its own cookbook, and Quick
// Select. One is open at a time, and the list changes only at their add
// commands.
#include "shopping/screens/shoplist.h"

#include "shell/kit/screenstatusbar.h"
#include "shopping/logic/recipeselect.h"
#include "shopping/screens/quickselectpanel.h"
#include "shopping/screens/recipeselectpanel.h"

#include <QAction>

void Shoplist::buildSelectPanels(QWidget* area)
{
    recipePanel_ = new RecipeSelectPanel(dialogs(), area);
    quickPanel_ = new QuickSelectPanel(area);
    panels_.append(recipePanel_);
    panels_ += quickPanel_->colouredPanels();
    overList_ += {recipePanel_, quickPanel_};
    connect(recipePanel_, &RecipeSelectPanel::entriesChosen, this, &Shoplist::addChosenEntries);
    connect(recipePanel_, &RecipeSelectPanel::leaveRequested, this, &Shoplist::closeRecipeSelect);
    connect(quickPanel_, &QuickSelectPanel::addRequested, this, &Shoplist::addQuickSelections);
    connect(quickPanel_, &QuickSelectPanel::leaveRequested, this, &Shoplist::closeQuickSelect);
}

void Shoplist::toggleRecipeSelect()
{
    if (panel_ == ShoplistPanel::RecipeSelect) {
        closeRecipeSelect();
        return;
    }
    showItemEntry();
    setPanel(ShoplistPanel::RecipeSelect);
    recipePanel_->open(cookbook_, titles_.value(cookbook_ - 1));
    placePanels();
    screenStatusBar()->setActivity(RecipeSelectStatus(cookbook_, titles_.value(cookbook_ - 1)));
}

// The keyboard goes to the panel's command before the panel hides, so it
// does not pass on to whatever field comes next.
void Shoplist::closeRecipeSelect()
{
    setPanel(ShoplistPanel::None);
    focusCommandButton(ShoplistCommand::RecipeSelect);
    recipePanel_->reset();
    screenStatusBar()->setActivity(windowTitle());
}

void Shoplist::addChosenEntries(const QStringList& entries)
{
    appendToList(entries, false);
    closeRecipeSelect();
}

void Shoplist::selectCookbook(int cookbook)
{
    WriteShoplistCookbook(cookbook);
    cookbook_ = cookbook;
    showCookbookMenu();
    recipePanel_->changeCookbook(cookbook_, titles_.value(cookbook_ - 1));
    screenStatusBar()->setActivity(RecipeSelectStatus(cookbook_, titles_.value(cookbook_ - 1)));
}

void Shoplist::toggleQuickSelect()
{
    if (panel_ == ShoplistPanel::QuickSelect) {
        closeQuickSelect();
        return;
    }
    showItemEntry();
    setPanel(ShoplistPanel::QuickSelect);
    quickPanel_->open();
    placePanels();
}

void Shoplist::addQuickSelections()
{
    const QStringList names = quickPanel_->takeChecked();
    appendToList(names, true);
    closeQuickSelect();
}

void Shoplist::closeQuickSelect()
{
    setPanel(ShoplistPanel::None);
    focusCommandButton(ShoplistCommand::QuickSelect);
    quickPanel_->hide();
}

// Each text is a row of its own, after the rows there are; nothing is looked
// for or merged. A full list takes what fits and says so.
void Shoplist::appendToList(const QStringList& entries, bool names)
{
    for (const QString& entry : entries) {
        if (!(names ? list_.appendName(entry) : list_.appendEntry(entry))) {
            tellListFull();
            break;
        }
    }
    list_.rebuild();
    itemCellSelected_ = false;
    showList();
}
