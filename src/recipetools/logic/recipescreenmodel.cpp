#include "recipetools/logic/recipescreenmodel.h"

#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/cookbookselection.h"

void RecipeScreenModel::loadCookbook()
{
    cookbook_ = ReadCurrentCookbook();
    titles_ = ReadCookbookTitles();
}

void RecipeScreenModel::selectCookbook(int cookbook)
{
    state_ = RecipeScreenState{};
    forgetRecipe();
    WriteCurrentCookbook(cookbook);
    clearLists();
    typeName_.clear();
    currentTypeName_.clear();
    loadCookbook();
}

void RecipeScreenModel::saveTitles(const QStringList& titles)
{
    WriteCookbookTitles(titles);
    loadCookbook();
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
    // A changed or recalculated recipe goes back to its own slot; the name
    // file is not touched.
    if (state_.mode == RecipeMode::Modify || state_.amountsRecalculated || road == SaveRoad::RecordOnly) {
        SaveExistingRecipe(cookbook_, recordNumber_, recipe, picturePath_);
    } else {
        const std::optional<RecipeType> chosen = type();
        if (name.isEmpty() || !chosen)
            return outcome;
        const SavedNewRecipe saved = SaveNewRecipe(cookbook_, *chosen, name, recipe, picturePath_, currentNames_);
        currentNames_.append(saved.entry);
    }
    if (road != SaveRoad::RecordOnly)
        state_.amountsRecalculated = false;
    outcome.result = SaveOutcome::Result::Saved;
    return outcome;
}

void RecipeScreenModel::deleteRecipe()
{
    if (const std::optional<RecipeType> chosen = type())
        pickEntries_ = DeleteRecipe(cookbook_, *chosen, recordNumber_, pickEntries_, listIndex_);
    state_ = RecipeScreenState{};
    forgetRecipe();
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
    pickEntries_ = RenameRecipe(cookbook_, *chosen, recordNumber_, pickEntries_, listIndex_, newName);
    currentNames_ = pickEntries_;
    outcome.renamed = true;
    return outcome;
}
