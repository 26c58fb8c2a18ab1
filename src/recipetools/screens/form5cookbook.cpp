// Form5's cookbook: which of the eight is current, switching, titles, and
// converting an older recipe file of cookbook 1.
#include "recipetools/screens/form5.h"

#include "common/programfolder.h"
#include "cookbook/logic/cookbookselection.h"
#include "recipetools/screens/calculatorpanel.h"
#include "recipetools/screens/conversionpanel.h"
#include "recipetools/screens/cookbooktitlespanel.h"
#include "recipetools/screens/recipefieldspanel.h"
#include "shell/kit/screenstatusbar.h"
#include "shell/logic/processvalues.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>

void Form5::loadCookbook()
{
    EnterProgramFolder();
    model_.loadCookbook();
    showCookbook();
}

// The eight menu entries with their titles, the current one ticked, and the
// window caption.
void Form5::showCookbook()
{
    for (int cookbook = 1; cookbook <= kCookbookCount; ++cookbook) {
        QAction* entry = commands_->action(Form5Command(int(Form5Command::Cookbook1) + cookbook - 1));
        entry->setText(CookbookMenuCaption(cookbook, model_.title(cookbook)));
        entry->setChecked(cookbook == model_.cookbook());
    }
    setWindowTitle(CookbookCaption(Process().FamilyName, model_.cookbook(), model_.title(model_.cookbook())));
}

// No save question here: what was typed and not saved is gone.
void Form5::selectCookbook(int cookbook)
{
    const bool calculatorOpen = model_.state().panel == RecipePanel::Calculator;
    if (const std::optional<Message> failed = model_.selectCookbook(cookbook)) {
        // The number was not written: the screen stays on its cookbook.
        tell(*failed);
        showCookbook();
        return;
    }
    reopenCookbook(calculatorOpen);
}

// The screen starts afresh on the current cookbook, as after choosing it.
void Form5::reopenCookbook(bool calculatorOpen)
{
    // Nothing is left under the calculator to rescale.
    if (calculatorOpen)
        calculator_->hide();
    clearScreen();
    showLists();
    // Hits of the old cookbook would open records of the new one.
    clearSearches();
    fields_->typeList()->setCurrentIndex(-1);
    loadCookbook();
    setMode(RecipeMode::Idle);
    fields_->showCurrentNames();
    screenStatusBar()->setActivity(windowTitle());
    QApplication::processEvents();
    focusCommandButton(Form5Command::View);
}

void Form5::openTitles()
{
    closeOpenPanel();
    setPanel(RecipePanel::Titles);
    titlesPanel_->open(model_.titles());
    titlesPanel_->centreInParent();
}

void Form5::saveTitles(const QStringList& titles)
{
    if (const std::optional<Message> failed = model_.saveTitles(titles)) {
        // The panel stays with what was typed.
        tell(*failed);
        return;
    }
    closeTitles();
    loadCookbook();
    screenStatusBar()->setActivity(windowTitle());
}

void Form5::closeTitles()
{
    setPanel(RecipePanel::None);
    focusCommandButton(Form5Command::Create);
    titlesPanel_->hide();
}

// Before "&Create", "&View", "S&earch" or a choice in the pick list does
// anything, an older recipe file found when the screen opened is converted,
// under a panel that holds every command and the close box. False when the
// conversion failed: the user is told, and the command goes no further.
bool Form5::convertPendingOldDatabase(Form5Command trigger)
{
    if (!model_.conversionPending() || !model_.conversionNeeded())
        return true;
    const RecipePanel under = model_.state().panel;
    conversionPanel_->start();
    setPanel(RecipePanel::Conversion);
    const std::optional<Message> failed = model_.convertOldDatabase(conversionPanel_->steps());
    setPanel(under);
    focusCommandButton(trigger);
    conversionPanel_->hide();
    if (failed) {
        tell(*failed);
        return false;
    }
    return true;
}

void Form5::setBackupOpener(BackupOpener opener)
{
    backupOpener_ = std::move(opener);
    commands_->setRoutine(Form5Command::Backup, [this] { backupCookbook(); });
    commands_->setRoutine(Form5Command::Restore, [this] { restoreCookbook(); });
    applyCommandStates();
}

void Form5::backupCookbook()
{
    backupOpener_(kBackupRecipesMode, cookbook());
}

// A restore replaces the cookbook's files: unsaved work is asked about
// first, and the screen opens the cookbook again afterwards.
void Form5::restoreCookbook()
{
    if (!saveQuestionAllowsAction())
        return;
    const bool calculatorOpen = model_.state().panel == RecipePanel::Calculator;
    if (backupOpener_(kRestoreRecipesMode, cookbook()))
        reopenCookbook(calculatorOpen);
}
