#include "recipetools/logic/recipescreenmodel.h"

#include "cookbook/logic/cookbookfiles.h"
#include "common/writefailure.h"
#include "cookbook/logic/cookbookselection.h"

namespace {

Message NoSlotMessage()
{
    return {QStringLiteral("Save"),
            QStringLiteral("The changes to this recipe could not be saved: its name points at no place in the "
                           "cookbook file.\nTo keep the recipe, start it anew with Create and save it there."),
            Buttons::Ok, Icon::Exclamation, 1};
}

Message OldFileNotConvertedMessage()
{
    return {QStringLiteral("Recipe File"),
            QStringLiteral("The older recipe file could not be converted. Your recipes have not been changed."),
            Buttons::Ok, Icon::Exclamation, 1};
}

} // namespace

void RecipeScreenModel::loadCookbook()
{
    cookbook_ = ReadCurrentCookbook();
    titles_ = ReadCookbookTitles();
}

std::optional<Message> RecipeScreenModel::selectCookbook(int cookbook)
{
    if (const WriteOutcome written = WriteCurrentCookbook(cookbook); !written.held())
        return WriteFailedMessage(written.failedFile);
    state_ = RecipeScreenState{};
    forgetRecipe();
    clearLists();
    typeName_.clear();
    currentTypeName_.clear();
    loadCookbook();
    return std::nullopt;
}

std::optional<Message> RecipeScreenModel::saveTitles(const QStringList& titles)
{
    const WriteOutcome written = WriteCookbookTitles(titles);
    loadCookbook();
    if (!written.held())
        return WriteFailedMessage(written.failedFile);
    return std::nullopt;
}

bool RecipeScreenModel::conversionNeeded()
{
    if (cookbook_ >= 2 || RecipeFileIsCurrent())
        conversionPending_ = 0;
    return conversionPending();
}

std::optional<Message> RecipeScreenModel::convertOldDatabase(const OldConversionSteps& steps)
{
    if (!ConvertOldRecipeFile(steps).held())
        return OldFileNotConvertedMessage();
    conversionPending_ = 0;
    return std::nullopt;
}

void RecipeScreenModel::chooseType(const QString& typeName)
{
    typeName_ = typeName;
}

std::optional<RecipeType> RecipeScreenModel::type() const
{
    return RecipeTypeFromName(typeName_);
}

void RecipeScreenModel::readTypeLists()
{
    clearLists();
    if (const std::optional<RecipeType> chosen = type()) {
        pickEntries_ = ReadNameList(cookbook_, *chosen);
        SortEntries(pickEntries_);
        currentNames_ = pickEntries_;
    }
}

bool RecipeScreenModel::typeHasNoNameSlots() const
{
    const std::optional<RecipeType> chosen = type();
    return chosen && ReadNameSlot(cookbook_, *chosen, 1).isEmpty();
}

void RecipeScreenModel::clearLists()
{
    pickEntries_.clear();
    currentNames_.clear();
}

int RecipeScreenModel::indexOfEntryHolding(const QString& text) const
{
    for (int i = 0; i < pickEntries_.size(); ++i) {
        if (pickEntries_[i].contains(text))
            return i;
    }
    return -1;
}

RecipeFields RecipeScreenModel::loadRecipe(RecordNumber recordNumber, int listIndex)
{
    dropChanges();
    recordNumber_ = recordNumber;
    listIndex_ = listIndex;
    const StoredRecipe stored = ReadRecipe(cookbook_, recordNumber);
    picturePath_ = stored.picturePath;
    const RecipeFields shown = FieldsOfRecord(stored.record);
    amountWorkList_ = shown.amounts;
    state_.recipeShown = true;
    state_.mode = RecipeMode::View;
    return shown;
}

void RecipeScreenModel::forgetRecipe()
{
    amountWorkList_ = {};
    state_.recipeShown = false;
    state_.recipeChanged = false;
}

void RecipeScreenModel::setMode(RecipeMode mode)
{
    state_.mode = mode;
    if (mode == RecipeMode::Create)
        state_.cookbookHasRecipes = CookbookHasRecipes(cookbook_);
}

void RecipeScreenModel::dropChanges()
{
    state_.recipeChanged = false;
    state_.amountsRecalculated = false;
}

SaveOutcome RecipeScreenModel::save(const RecipeFields& typed, const QString& name, SaveRoad road)
{
    SaveOutcome outcome;
    if (state_.mode == RecipeMode::Create && name.isEmpty() && !state_.amountsRecalculated) {
        outcome.result = SaveOutcome::Result::Refused;
        outcome.notice = Message{QStringLiteral("Save"), QStringLiteral("Please enter Recipe Name in order to save!"),
                                 Buttons::Ok, Icon::Information, 1};
        return outcome;
    }
    state_.recipeChanged = false;
    RecipeFields recipe = typed;
    recipe.amounts = amountWorkList_;
    WriteOutcome written;
    // A changed or recalculated recipe goes back to its own slot; the name
    // file is not touched.
    if (state_.mode == RecipeMode::Modify || state_.amountsRecalculated || road == SaveRoad::RecordOnly) {
        if (recordNumber_ < 1) {
            // The name entry points at no slot: the recipe shown is blank and
            // has nowhere to go back to.
            state_.recipeChanged = true;
            outcome.result = SaveOutcome::Result::Failed;
            outcome.notice = NoSlotMessage();
            return outcome;
        }
        written = SaveExistingRecipe(cookbook_, recordNumber_, recipe, picturePath_);
    } else {
        const std::optional<RecipeType> chosen = type();
        if (name.isEmpty() || !chosen)
            return outcome;
        const SavedNewRecipe saved = SaveNewRecipe(cookbook_, *chosen, name, recipe, picturePath_, currentNames_);
        written = saved.outcome;
        if (written.held())
            currentNames_.append(saved.entry);
    }
    if (!written.held()) {
        state_.recipeChanged = true;
        outcome.result = SaveOutcome::Result::Failed;
        outcome.notice = WriteFailedMessage(written.failedFile);
        return outcome;
    }
    if (road != SaveRoad::RecordOnly)
        state_.amountsRecalculated = false;
    outcome.result = SaveOutcome::Result::Saved;
    return outcome;
}

std::optional<Message> RecipeScreenModel::deleteRecipe()
{
    const std::optional<RecipeType> chosen = type();
    if (!chosen)
        return std::nullopt;
    const ChangedNames changed = DeleteRecipe(cookbook_, *chosen, recordNumber_, pickEntries_, listIndex_);
    pickEntries_ = changed.pickList;
    if (!changed.outcome.held())
        return WriteFailedMessage(changed.outcome.failedFile);
    state_ = RecipeScreenState{};
    forgetRecipe();
    return std::nullopt;
}

RenameOutcome RecipeScreenModel::rename(const QString& newName)
{
    RenameOutcome outcome;
    const std::optional<RecipeType> chosen = type();
    if (newName.isEmpty() || !chosen) {
        outcome.notice = Message{QStringLiteral("Recipe Name Change"),
                                 QStringLiteral("No Change Recipe Name has been entered!"), Buttons::Ok,
                                 Icon::Information, 1};
        return outcome;
    }
    const ChangedNames changed = RenameRecipe(cookbook_, *chosen, recordNumber_, pickEntries_, listIndex_, newName);
    if (!changed.outcome.held()) {
        outcome.notice = WriteFailedMessage(changed.outcome.failedFile);
        return outcome;
    }
    pickEntries_ = changed.pickList;
    currentNames_ = pickEntries_;
    outcome.renamed = true;
    return outcome;
}
