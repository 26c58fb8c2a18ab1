// Form5's cookbook: which of the eight is current, switching, and titles.
#include "recipetools/screens/form5.h"

#include "common/programfolder.h"
#include "cookbook/logic/cookbookselection.h"
#include "recipetools/screens/cookbooktitlespanel.h"
#include "recipetools/screens/ingredientsearchpanel.h"
#include "recipetools/screens/namesearchpanel.h"
#include "recipetools/screens/recipefieldspanel.h"
#include "shell/logic/processvalues.h"
#include "shell/kit/screenstatusbar.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>

void Form5::loadCookbook()
{
    EnterProgramFolder();
    cookbook_ = ReadCurrentCookbook();
    titles_ = ReadCookbookTitles();
    for (int i = 0; i < kCookbookCount; ++i) {
        cookbookEntries_[i]->setText(CookbookMenuCaption(i + 1, titles_.value(i)));
        cookbookEntries_[i]->setChecked(i + 1 == cookbook_);
    }
    setWindowTitle(CookbookCaption(Process().FamilyName, cookbook_, titles_.value(cookbook_ - 1)));
}

void Form5::selectCookbook(int cookbook)
{
    // No save question here: what was typed and not saved is gone.
    state_ = RecipeScreenState{};
    clearScreen();
    WriteCurrentCookbook(cookbook);
    setPickEntries({});
    setCurrentNames({});
    // Hits of the old cookbook would open records of the new one.
    nameSearch_->clearResults();
    ingredientSearch_->clearResults();
    fields_->typeList()->setCurrentIndex(-1);
    currentTypeName_.clear();
    loadCookbook();
    setMode(RecipeMode::Idle);
    fields_->showCurrentNames();
    statusBar_->setActivity(windowTitle());
    QApplication::processEvents();
    focusCommandButton(kViewButton);
}

void Form5::openTitles()
{
    titlesPanel_->open(ReadCookbookTitles());
    titlesPanel_->move((centralWidget()->width() - titlesPanel_->width()) / 2,
                       (centralWidget()->height() - titlesPanel_->height()) / 2);
}

void Form5::saveTitles(const QStringList& titles)
{
    WriteCookbookTitles(titles);
    focusCommandButton(kCreateButton);
    titlesPanel_->hide();
    loadCookbook();
    applyCommandStates();
    statusBar_->setActivity(windowTitle());
}
