#pragma once
// Form5, the recipe screen: one recipe of the current cookbook at a time,
// in four modes (Idle, Create, View, Modify). The fields live in
// RecipeFieldsPanel; the rename and titles panels have classes of their own.
// Each command is one QAction shared by its menu entry, toolbar button and
// screen button, and CommandStatesFor decides which are enabled.
#include "cookbook/logic/cookbooknames.h"
#include "recipetools/logic/recipelifecycle.h"
#include "recipetools/logic/recipemodes.h"
#include "recipetools/logic/recipesearch.h"

#include "shell/kit/activitywindow.h"

#include <array>
#include <optional>

class AdditionalRecipesPanel;
class CalculatorPanel;
class Clock;
class PageBuilder;
class PrintOptionsPanel;
class RecipePrintOptions;
struct PrintedRecipe;
class IngredientSearchPanel;
class NameSearchPanel;
class SearchOptionsPanel;
class CookbookTitlesPanel;
class Dialogs;
class PanelColors;
class QAction;
class QGridLayout;
class QLabel;
class QMenu;
class QPushButton;
class RecipeFieldsPanel;
class RenamePanel;
class ScreenStatusBar;

class Form5 final : public ActivityWindow {
    Q_OBJECT
public:
    static constexpr int kHelpTopic = 1010;
    // The screen's buttons, Command1(0) to Command1(9), by index.
    enum CommandButtonIndex {
        kCreateButton = 0, kViewButton, kModifyButton, kSaveButton, kPrintButton,
        kCalculateButton, kDeleteButton, kSearchButton, kSpellingButton, kExitButton,
    };

    explicit Form5(Dialogs& dialogs, QWidget* parent = nullptr);

    // For callers that know a record number (search): shows the recipe of
    // that slot without the save question; the pick list position is that of
    // the first entry holding `entryText`.
    void showRecipeAt(RecordNumber recordNumber, const QString& entryText);

    RecipeMode mode() const { return state_.mode; }
    int cookbook() const { return cookbook_; }
    RecordNumber currentRecordNumber() const { return currentRecordNumber_; }
    const std::array<QString, kRecipeRows>& amountWorkList() const { return amountWorkList_; }
    bool recipeChanged() const { return state_.recipeChanged; }
    RecipeFieldsPanel* fieldsPanel() const { return fields_; }
    PrintOptionsPanel* printPanel() const { return printPanel_; }
    RecipePrintOptions* printOptions() const { return printOptions_; }
    AdditionalRecipesPanel* additionalRecipesPanel() const { return additionalRecipes_; }
    // Where the printout's date comes from; the system clock unless a test says.
    void setClock(const Clock& clock) { clock_ = &clock; }

protected:
    bool readyToClose() override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // Building (form5layout.cpp).
    void buildMenus();
    void buildToolbars();
    void buildCommandButtons(QWidget* parent);
    void arrangeCommandButtons(int perRow);
    void buildCookbookMenu(QMenu* options);

    // The cookbook.
    void loadCookbook();
    void selectCookbook(int cookbook);
    void openTitles();
    void saveTitles(const QStringList& titles);

    // The life of a recipe.
    bool saveQuestionAllowsAction();
    void chooseType();
    void fillTypeLists(bool openPickList);
    bool beginCreateOrView();
    void createRecipe();
    void viewRecipes();
    void loadChosenRecipe(int index);
    void loadRecipe(RecordNumber recordNumber, int listIndex);
    void modifyRecipe();
    void saveRecipe();
    void save(bool openPickList);
    void deleteRecipe();
    void openRename();
    void saveRename(const QString& newName);
    void closeRename();
    void clearScreen();
    void exitScreen();

    // The amount calculator (form5calculator.cpp).
    void openCalculator();
    void calculateAmounts();
    void closeCalculator();

    // Search (form5search.cpp).
    void buildSearchPanels(QWidget* area);
    void openSearch();
    void openSearchPanel(QWidget* panel);
    void closeSearch();
    void viewFoundRecipe(const std::optional<SearchHit>& hit);

    // Printing (form5print.cpp).
    void buildPrintPanel(QWidget* area);
    QList<QWidget*> printPanels() const;
    void openPrintPanel(bool worksheet);
    void leavePrintOptions();
    void openAdditionalRecipes();
    PrintedRecipe printedRecipe() const;
    void composePrintout(PageBuilder& page);

    // Fields.
    bool fieldEntryAllowed(QWidget* field, Qt::FocusReason reason);
    void nameEnterPressed();
    void showAmountInstructions();
    void recipeEdited();
    void informUser(const QString& title, const QString& text);

    void setMode(RecipeMode mode);
    void focusCommandButton(int index);
    void setTitleStrip(const QString& caption, bool alarm = false);
    void applyCommandStates();
    std::optional<RecipeType> chosenType() const;
    void setPickEntries(const QStringList& entries);
    void setCurrentNames(const QStringList& entries);
    QStringList pickEntries() const;
    QStringList currentNames() const;

    Dialogs& dialogs_;
    RecipeFieldsPanel* fields_ = nullptr;
    RenamePanel* renamePanel_ = nullptr;
    CalculatorPanel* calculator_ = nullptr;
    SearchOptionsPanel* searchOptions_ = nullptr;
    NameSearchPanel* nameSearch_ = nullptr;
    IngredientSearchPanel* ingredientSearch_ = nullptr;
    CookbookTitlesPanel* titlesPanel_ = nullptr;
    PrintOptionsPanel* printPanel_ = nullptr;
    RecipePrintOptions* printOptions_ = nullptr;
    AdditionalRecipesPanel* additionalRecipes_ = nullptr;
    const Clock* clock_ = nullptr;
    ScreenStatusBar* statusBar_ = nullptr;
    PanelColors* panelColors_ = nullptr;
    QLabel* titleStrip_ = nullptr;           // SSPanel4
    QGridLayout* commandGrid_ = nullptr;
    QList<QPushButton*> commandButtons_;       // Command1(0) to Command1(9)
    int buttonsPerRow_ = 0;
    QMenu* cookbookMenu_ = nullptr;
    std::array<QAction*, kCookbookCount> cookbookEntries_{};

    int cookbook_ = 0;                       // CurrentCookbook
    QStringList titles_;                     // CookbookTitles
    RecipeScreenState state_;
    RecordNumber currentRecordNumber_ = 0;   // CurrentRecordNumber
    int currentListIndex_ = -1;              // CurrentListIndex
    QString picturePath_;                    // PicturePath
    std::array<QString, kRecipeRows> amountWorkList_; // AmountWorkList
    QString currentTypeName_;                // CurrentTypeName
    bool saveRefused_ = false;               // a save was refused: the action stops
    bool savingRecordOnly_ = false;          // the rename's save question saves the record alone
    bool skipSaveQuestion_ = false;          // a caller that knows the record number (SaveAnswer -333)
    bool worksheet_ = false;                 // the print panel composes the blank worksheet
    bool additionalActive_ = false;          // AdditionalRecipesActive
};
