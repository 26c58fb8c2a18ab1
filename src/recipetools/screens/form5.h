#pragma once
// Form5, the recipe screen: one recipe of the current cookbook at a time,
// in four modes (Idle, Create, View, Modify). What the screen works on
// lives in RecipeScreenModel; the screen holds the widgets, shows the model
// and hands it what the user typed. The fields are RecipeFieldsPanel; the
// rename, titles, calculator, search and print panels are classes of their
// own. The commands are one table (form5commands.cpp), and
// CommandStatesFor decides every enabled state.
#include "recipetools/logic/recipescreenmodel.h"
#include "recipetools/logic/recipesearch.h"

#include "shell/kit/activitywindow.h"

#include <functional>
#include <optional>

class AdditionalRecipesPanel;
class CalculatorPanel;
class Clock;
class ConversionPanel;
class CookbookTitlesPanel;
class IngredientSearchPanel;
class NameSearchPanel;
class PageBuilder;
class PrintOptionsPanel;
class QGridLayout;
class QLabel;
class QPushButton;
class RecipeFieldsPanel;
class RecipePrintOptions;
class RenamePanel;
class SearchOptionsPanel;
struct PrintedRecipe;

enum class Form5Command {
    Create, View, Modify, Save, Delete, Rename, Calculate, Search, Spelling, Copy, Export, Import, Print,
    Worksheet, Exit, Cookbook1, Cookbook2, Cookbook3, Cookbook4, Cookbook5, Cookbook6, Cookbook7, Cookbook8,
    Titles, PanelColor, Backup, Restore, Help,
};

class Form5 final : public ActivityWindow {
    Q_OBJECT
public:
    static constexpr int kHelpTopic = 1010;
    // The backup screen's modes for the recipes of a cookbook.
    static constexpr int kBackupRecipesMode = 0;
    static constexpr int kRestoreRecipesMode = 1;
    // Opens the backup screen modally in a mode for a cookbook; true when a
    // restore completed and the cookbook's files were replaced.
    using BackupOpener = std::function<bool(int mode, int cookbook)>;

    explicit Form5(Dialogs& dialogs, QWidget* parent = nullptr);
    ~Form5() override;

    // For callers that know a record number (search): shows the recipe of
    // that slot without the save question; the pick list position is that of
    // the first entry holding `entryText`.
    void showRecipeAt(RecordNumber recordNumber, const QString& entryText);

    RecipeMode mode() const { return model_.state().mode; }
    RecipePanel openPanel() const { return model_.state().panel; }
    int cookbook() const { return model_.cookbook(); }
    RecordNumber currentRecordNumber() const { return model_.recordNumber(); }
    const RecipeScreenModel::AmountList& amountWorkList() const { return model_.amountWorkList(); }
    bool recipeChanged() const { return model_.state().recipeChanged; }
    RecipeFieldsPanel* fieldsPanel() const { return fields_; }
    PrintOptionsPanel* printPanel() const { return printPanel_; }
    AdditionalRecipesPanel* additionalRecipesPanel() const { return additionalRecipes_; }
    ConversionPanel* conversionPanel() const { return conversionPanel_; }
    bool conversionPending() const { return model_.conversionPending(); }
    // Backup and restore of the cookbook go through `opener`; without one
    // both entries stay off.
    void setBackupOpener(BackupOpener opener);
    // Where the printout's date comes from; the system clock unless a test says.
    void setClock(const Clock& clock) { clock_ = &clock; }

protected:
    bool readyToClose() override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // Building (form5commands.cpp).
    std::vector<CommandRow<Form5Command>> commandRows();
    void buildCommands(QWidget* buttonPanel);
    void arrangeCommandButtons(int perRow);
    void declareEscapeOrder();

    // The cookbook (form5cookbook.cpp).
    void loadCookbook();
    void showCookbook();
    void selectCookbook(int cookbook);
    void reopenCookbook(bool calculatorOpen);
    void backupCookbook();
    void restoreCookbook();
    void openTitles();
    void saveTitles(const QStringList& titles);
    void closeTitles();
    bool convertPendingOldDatabase(Form5Command trigger);

    // The life of a recipe (form5recipe.cpp).
    bool saveQuestionAllowsAction(SaveRoad road = SaveRoad::Question);
    bool save(SaveRoad road);
    void chooseType();
    void fillTypeLists(bool openPickList);
    bool beginCreateOrView();
    void createRecipe();
    void viewRecipes();
    void loadChosenRecipe(int index);
    void loadRecipe(RecordNumber recordNumber, int listIndex);
    void modifyRecipe();
    void deleteRecipe();
    void openRename();
    void saveRename(const QString& newName);
    void closeRename();
    void clearScreen();

    // The fields (form5fields.cpp).
    void connectFields();
    bool fieldEntryAllowed(QWidget* field, Qt::FocusReason reason);
    void nameEnterPressed();
    void recipeEdited();
    void keepAmount(int row, const QString& text);
    void informUser(const QString& title, const QString& text);
    void tell(const Message& message);

    // The amount calculator (form5calculator.cpp).
    void openCalculator();
    void calculateAmounts();
    void closeCalculator();

    // Search (form5search.cpp).
    void buildSearchPanels(QWidget* area);
    void openSearch();
    void openSearchPanel(QWidget* panel);
    void searchIngredients();
    void closeSearch();
    void clearSearches();
    void viewFoundRecipe(const std::optional<SearchHit>& hit);

    // Printing (form5print.cpp).
    void buildPrintPanel(QWidget* area);
    QList<QWidget*> printPanels() const;
    void openPrintPanel(bool worksheet);
    void leavePrintOptions();
    void openAdditionalRecipes();
    PrintedRecipe printedRecipe() const;
    void composePrintout(PageBuilder& page);

    // Showing the model.
    void setMode(RecipeMode mode);
    void setPanel(RecipePanel panel);
    void closeOpenPanel();
    void showTitleStrip(const QString& caption, bool alarm = false);
    void showModeCaption();
    void showType(const QString& typeName);
    void showLists();
    void applyCommandStates();
    void focusCommandButton(Form5Command command);

    RecipeScreenModel model_;
    RecipeCommandStates on_;                 // the enabled states the rules read
    std::unique_ptr<CommandTable<Form5Command>> commands_;
    RecipeFieldsPanel* fields_ = nullptr;
    RenamePanel* renamePanel_ = nullptr;
    CalculatorPanel* calculator_ = nullptr;
    SearchOptionsPanel* searchOptions_ = nullptr;
    NameSearchPanel* nameSearch_ = nullptr;
    IngredientSearchPanel* ingredientSearch_ = nullptr;
    CookbookTitlesPanel* titlesPanel_ = nullptr;
    ConversionPanel* conversionPanel_ = nullptr;
    PrintOptionsPanel* printPanel_ = nullptr;
    RecipePrintOptions* printOptions_ = nullptr;
    AdditionalRecipesPanel* additionalRecipes_ = nullptr;
    const Clock* clock_ = nullptr;
    BackupOpener backupOpener_;
    QLabel* titleStrip_ = nullptr;           // SSPanel4
    QGridLayout* commandGrid_ = nullptr;
    int buttonsPerRow_ = 0;
    bool worksheet_ = false;                 // the print panel composes the blank worksheet
    bool additionalActive_ = false;          // AdditionalRecipesActive
};
