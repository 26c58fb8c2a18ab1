// Form5's life of a recipe: the save question, choosing a type, create,
// view, loading, modify, save, delete and rename.
#include "recipetools/screens/form5.h"

#include "common/dialogs.h"
#include "cookbook/logic/nameentry.h"
#include "recipetools/logic/amountformat.h"
#include "recipetools/screens/calculatorpanel.h"
#include "recipetools/screens/ingredientsearchpanel.h"
#include "recipetools/screens/namesearchpanel.h"
#include "recipetools/screens/recipefieldspanel.h"
#include "recipetools/screens/renamepanel.h"
#include "shell/kit/screenbusy.h"
#include "shell/kit/screenstatusbar.h"

#include <QComboBox>
#include <QLineEdit>

namespace {

const QString kFirstType = QStringLiteral("Appetizers and beverages");
const Message kSaveQuestion{QStringLiteral("Recipe File"),
                            QStringLiteral("Save Current Recipe before next action or exiting?"),
                            Buttons::YesNoCancel, Icon::Question, 1};
const Message kExitSaveQuestion{QStringLiteral("Recipe File"), QStringLiteral("Save Current Recipe before exiting?"),
                                Buttons::YesNo, Icon::Question, 1};
const Message kDeleteQuestion{QStringLiteral("Delete Recipe"),
                              QStringLiteral("Do you Really want to delete this Recipe?"), Buttons::YesNoCancel,
                              Icon::Question, 2};

RecipeScreenModel::AmountList FormattedAmounts(const RecipeScreenModel::AmountList& decimals)
{
    RecipeScreenModel::AmountList shown;
    for (int row = 0; row < kRecipeRows; ++row)
        shown[row] = FormatAmount(decimals[row]);
    return shown;
}

} // namespace

// Before an action that would lose what was typed: Yes saves (the type list
// shows the type the recipe belongs to meanwhile), No drops the changes,
// Cancel goes back to the type of before. True when the action may go on.
bool Form5::saveQuestionAllowsAction(SaveRoad road)
{
    if (!model_.hasUnsavedWork())
        return true;
    const QString wanted = fields_->typeList()->currentText();
    bool answered = false;
    const bool goOn = saveQuestionAllows(
        kSaveQuestion,
        [&] {
            answered = true;
            showType(model_.currentTypeName());
            if (!save(road))
                return false;
            showType(wanted);
            return true;
        },
        [&] {
            answered = true;
            model_.dropChanges();
            applyCommandStates();
        });
    if (!answered) {
        showType(model_.currentTypeName());
        if (model_.state().mode == RecipeMode::Create || model_.state().mode == RecipeMode::Modify)
            fields_->amountBox(0)->setFocus(Qt::OtherFocusReason);
    }
    return goOn;
}

// Saves the recipe on the screen; false when the save was refused. After a
// new or changed recipe the screen is cleared and idle, and the type is
// chosen again to read its lists; the pick list drops down for the next
// choice unless the save came from the save question of another action.
bool Form5::save(SaveRoad road)
{
    const SaveOutcome outcome = model_.save(fields_->fields(), fields_->nameBox()->text(), road);
    switch (outcome.result) {
    case SaveOutcome::Result::Refused:
        tell(*outcome.notice);
        fields_->nameBox()->setFocus(Qt::OtherFocusReason);
        return false;
    case SaveOutcome::Result::Failed:
        // Nothing is cleared: what was typed stays, and so does the changed
        // flag, so the next action asks again.
        tell(*outcome.notice);
        applyCommandStates();
        return false;
    case SaveOutcome::Result::NothingWritten:
        return true;
    case SaveOutcome::Result::Saved:
        break;
    }
    if (road == SaveRoad::RecordOnly)
        return true;
    clearScreen();
    setMode(RecipeMode::Idle);
    // Idle, yet the title strip reads as after View: a recipe of the type is
    // what the user picks next.
    showTitleStrip(QString::fromLatin1(ModeCaption(RecipeMode::View)));
    fillTypeLists(road == SaveRoad::Command);
    return true;
}

void Form5::chooseType()
{
    const QString chosen = fields_->typeList()->currentText();
    model_.chooseType(chosen);
    if (!saveQuestionAllowsAction())
        return;
    model_.keepTypeAsCurrent();
    fillTypeLists(model_.state().mode != RecipeMode::Create);
}

// Fills the pick list and the current names from the chosen type's file.
void Form5::fillTypeLists(bool openPickList)
{
    const std::optional<RecipeType> type = model_.type();
    if (!type)
        return;
    fields_->nameBox()->clear();
    clearScreen();
    model_.readTypeLists();
    showLists();
    if (model_.state().mode == RecipeMode::View && model_.typeHasNoNameSlots()) {
        clearScreen();
        informUser(QStringLiteral("Recipe Files"),
                   QStringLiteral("No Recipes for %1 were found!").arg(RecipeTypeName(*type)));
        fields_->typeList()->setFocus(Qt::OtherFocusReason);
        return;
    }
    if (model_.state().mode == RecipeMode::Create) {
        fields_->showNameBox(true);
        fields_->nameBox()->setFocus(Qt::OtherFocusReason);
    } else if (openPickList && !model_.pickEntries().isEmpty()) {
        fields_->pickList()->showPopup();
    }
}

// The start of "&Create" and "&View": the first type when none is chosen,
// the save question, the flags cleared. False when the user cancelled.
bool Form5::beginCreateOrView()
{
    if (!model_.type())
        showType(kFirstType);
    if (!saveQuestionAllowsAction())
        return false;
    model_.dropChanges();
    return true;
}

void Form5::createRecipe()
{
    if (!convertPendingOldDatabase(Form5Command::Create))
        return;
    if (!beginCreateOrView())
        return;
    model_.setPicturePath(QString());
    clearScreen();
    setMode(RecipeMode::Create);
    model_.keepTypeAsCurrent();
    fillTypeLists(false);
}

void Form5::viewRecipes()
{
    if (!convertPendingOldDatabase(Form5Command::View))
        return;
    if (!beginCreateOrView())
        return;
    setMode(RecipeMode::View);
    clearScreen();
    model_.keepTypeAsCurrent();
    fillTypeLists(true);
}

void Form5::loadChosenRecipe(int index)
{
    if (!convertPendingOldDatabase(Form5Command::View))
        return;
    if (!saveQuestionAllowsAction())
        return;
    loadRecipe(RecordNumberOf(model_.pickEntries().value(index)), index);
}

void Form5::loadRecipe(RecordNumber recordNumber, int listIndex)
{
    const RecipeFields shown = model_.loadRecipe(recordNumber, listIndex);
    setMode(RecipeMode::View); // first: the amount boxes then take the longer fraction texts
    fields_->showFields(shown, FormattedAmounts(model_.amountWorkList()));
    fields_->pickList()->setCurrentIndex(listIndex);
    focusCommandButton(Form5Command::Modify);
}

// The search knows the record: no save question, and the pick list position
// is found by the entry's text.
void Form5::showRecipeAt(RecordNumber recordNumber, const QString& entryText)
{
    loadRecipe(recordNumber, model_.indexOfEntryHolding(entryText));
}

void Form5::modifyRecipe()
{
    model_.dropChanges();
    setMode(RecipeMode::Modify);
    fields_->showAmounts(model_.amountWorkList()); // editing is always in decimals
    fields_->amountBox(0)->setFocus(Qt::OtherFocusReason);
}

void Form5::deleteRecipe()
{
    screenStatusBar()->setActivity(QStringLiteral("Delete Recipe"));
    showTitleStrip(QStringLiteral("Delete Recipe"), true);
    const Answer answer = dialogs().ask(kDeleteQuestion);
    screenStatusBar()->setActivity(windowTitle());
    if (answer != Answer::Yes || !model_.type()) {
        showModeCaption();
        return;
    }
    if (const std::optional<Message> failed = model_.deleteRecipe()) {
        tell(*failed);
        showLists();
        showModeCaption();
        return;
    }
    // Nothing of the deleted recipe stays in the calculator or in a search.
    calculator_->clear();
    clearSearches();
    clearScreen();
    setMode(RecipeMode::Idle);
    fillTypeLists(true);
}

void Form5::openRename()
{
    if (!saveQuestionAllowsAction(SaveRoad::RecordOnly))
        return;
    closeOpenPanel();
    setPanel(RecipePanel::Rename);
    fields_->setEnabled(false);
    showTitleStrip(QStringLiteral("Name Change"));
    renamePanel_->open(RecipeNameOf(model_.pickEntries().value(model_.listIndex())));
    renamePanel_->centreInParent(1.0 / 3);
}

void Form5::saveRename(const QString& newName)
{
    RenameOutcome outcome;
    {
        const ScreenBusy busy;
        outcome = model_.rename(newName);
    }
    if (!outcome.renamed) {
        // An empty name, or a name file that could not be written: the panel
        // stays with what was typed.
        tell(*outcome.notice);
        renamePanel_->newNameBox()->setFocus(Qt::OtherFocusReason);
        return;
    }
    clearScreen();
    closeRename();
    model_.dropChanges();
    model_.clearLists();
    showLists();
    viewRecipes();
}

void Form5::closeRename()
{
    renamePanel_->newNameBox()->clear();
    fields_->setEnabled(true);
    setPanel(RecipePanel::None);
    showModeCaption();
    focusCommandButton(Form5Command::Create);
    renamePanel_->hide();
}

void Form5::clearScreen()
{
    fields_->clearFields();
    // Search, rename and a new cookbook reach the screen under the
    // calculator and end in an emptied screen: nothing is left to rescale.
    if (model_.state().panel == RecipePanel::Calculator) {
        calculator_->hide();
        model_.setPanel(RecipePanel::None);
    }
    model_.forgetRecipe();
    applyCommandStates();
}

// Leaving the screen with changes asks the short save question; a refused
// save keeps the screen open. Nothing closes it while an older recipe file
// is being converted.
bool Form5::readyToClose()
{
    if (model_.state().panel == RecipePanel::Conversion)
        return false;
    if (!model_.hasUnsavedWork())
        return true;
    return dialogs().ask(kExitSaveQuestion) != Answer::Yes || save(SaveRoad::Question);
}
