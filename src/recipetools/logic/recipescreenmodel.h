#pragma once
// What the recipe screen works on, apart from its widgets: the cookbook and
// its titles, the chosen type and its two lists, the recipe on the screen
// (its slot, its place in the pick list, its decimal amounts and picture),
// and the mode and flags that decide every command. The screen shows what
// this holds and hands it what the user typed; saving, deleting and
// renaming happen here and say what they did.
#include "common/dialogs.h"
#include "cookbook/logic/cookbooknames.h"
#include "cookbook/logic/olddatabase.h"
#include "recipetools/logic/recipelifecycle.h"
#include "recipetools/logic/recipemodes.h"

#include <QString>
#include <QStringList>
#include <array>
#include <optional>

// Where a save comes from, which decides what follows it.
enum class SaveRoad {
    Command,     // "&Save": the screen is cleared and the pick list drops down
    Question,    // Yes in the save question of another action: cleared, no drop
    RecordOnly,  // Yes in the rename's save question: the record alone, the screen stays
};

struct SaveOutcome {
    enum class Result {
        Saved,
        Refused,         // a new recipe without a name: `notice` says so
        NothingWritten,  // a new recipe without a type
        Failed,          // a write did not hold: `notice` names the file; the recipe stays changed
    };
    Result result = Result::NothingWritten;
    std::optional<Message> notice;
};

struct RenameOutcome {
    bool renamed = false;
    std::optional<Message> notice;  // an empty new name, or a name file that could not be written
};

class RecipeScreenModel {
public:
    using AmountList = std::array<QString, kRecipeRows>;

    // ---- The cookbook ----------------------------------------------------
    // Reads the current cookbook's number and the eight titles.
    void loadCookbook();
    int cookbook() const { return cookbook_; }
    const QStringList& titles() const { return titles_; }
    QString title(int cookbook) const { return titles_.value(cookbook - 1); }
    // Writes the new number, forgets everything of the old cookbook (no
    // save question: what was not saved is gone) and loads again. When the
    // number could not be written, the message; nothing changed.
    std::optional<Message> selectCookbook(int cookbook);
    // The titles written and read again; the message when a slot did not hold.
    std::optional<Message> saveTitles(const QStringList& titles);

    // ---- An older recipe file -------------------------------------------
    // Looks for an older recipe file in the current cookbook; the flag is
    // set when one waits to be converted. Switching cookbooks keeps it.
    void checkOldDatabase() { conversionPending_ = CheckOldDatabase(cookbook_); }
    bool conversionPending() const { return conversionPending_ == kConversionPending; }
    // Whether the pending conversion is to run now. Not when another
    // cookbook is current, nor over a recipe file of the current format:
    // then the flag is cleared and nothing is converted.
    bool conversionNeeded();
    // Converts the older recipe file, telling `steps` as it goes; the flag
    // is cleared when it held. When a write failed, the message: the older
    // file is as it was and the flag stays, so the next command tries again.
    std::optional<Message> convertOldDatabase(const OldConversionSteps& steps);

    // ---- The type and its lists -----------------------------------------
    // The text of the type list; a text that names no type chooses none.
    void chooseType(const QString& typeName);
    const QString& typeName() const { return typeName_; }
    std::optional<RecipeType> type() const;
    // The type chosen before the present action, to go back to on Cancel.
    const QString& currentTypeName() const { return currentTypeName_; }
    void keepTypeAsCurrent() { currentTypeName_ = typeName_; }
    // Reads the chosen type's name file into both lists, sorted.
    void readTypeLists();
    // True when the type's name file has no slot at all (a file of blank
    // slots is not empty: its recipes were deleted).
    bool typeHasNoNameSlots() const;
    void clearLists();
    const QStringList& pickEntries() const { return pickEntries_; }
    const QStringList& currentNames() const { return currentNames_; }
    // The first pick entry that holds `text`, or -1.
    int indexOfEntryHolding(const QString& text) const;

    // ---- The recipe on the screen ---------------------------------------
    // Reads the recipe of slot `recordNumber` listed at `listIndex`; its
    // amounts become the work list and the screen shows it in View.
    RecipeFields loadRecipe(RecordNumber recordNumber, int listIndex);
    RecordNumber recordNumber() const { return recordNumber_; }
    int listIndex() const { return listIndex_; }
    AmountList& amountWorkList() { return amountWorkList_; }
    const AmountList& amountWorkList() const { return amountWorkList_; }
    const QString& picturePath() const { return picturePath_; }
    void setPicturePath(const QString& path) { picturePath_ = path; }
    // Nothing on the screen any more: no amounts, nothing shown or changed.
    void forgetRecipe();

    // ---- Mode, panel and flags ------------------------------------------
    const RecipeScreenState& state() const { return state_; }
    RecipeCommandStates commandStates() const { return CommandStatesFor(state_); }
    void setMode(RecipeMode mode);
    void setPanel(RecipePanel panel) { state_.panel = panel; }
    bool hasUnsavedWork() const { return state_.recipeChanged || state_.amountsRecalculated; }
    void markChanged() { state_.recipeChanged = true; }
    // No answer or a new start: the typed changes and a calculation are dropped.
    void dropChanges();
    void setAmountsRecalculated(bool recalculated) { state_.amountsRecalculated = recalculated; }

    // ---- What the commands write ----------------------------------------
    // `typed` is the screen's fields; the amounts come from the work list.
    SaveOutcome save(const RecipeFields& typed, const QString& name, SaveRoad road);
    // Drops the entry from the pick list, rebuilds the name file and clears
    // the slot; afterwards nothing of the recipe is left. When a write does
    // not hold, the message naming its file; the lists show what the files
    // hold.
    std::optional<Message> deleteRecipe();
    RenameOutcome rename(const QString& newName);

private:
    int cookbook_ = 0;                 // CurrentCookbook
    QStringList titles_;               // CookbookTitles
    QString typeName_;                 // the type list's text
    QString currentTypeName_;          // CurrentTypeName
    QStringList pickEntries_;          // the recipe pick list, whole name entries
    QStringList currentNames_;         // the "Current Recipe Names" list
    RecordNumber recordNumber_ = 0;    // CurrentRecordNumber
    int listIndex_ = -1;               // CurrentListIndex
    AmountList amountWorkList_;        // AmountWorkList
    QString picturePath_;              // PicturePath
    RecipeScreenState state_;
    int conversionPending_ = 0;        // ConversionPending
};
