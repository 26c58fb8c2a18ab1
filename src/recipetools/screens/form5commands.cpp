// Form5's commands: the one table of menu entries, screen buttons and toolbar
// buttons, the buttons' arrangement, and the order in which Escape closes
// what is open.
#include "recipetools/screens/form5.h"

#include "cookbook/logic/cookbooknames.h"
#include "print/screens/printoptionspanel.h"
#include "recipetools/screens/additionalrecipespanel.h"
#include "recipetools/screens/calculatorpanel.h"
#include "recipetools/screens/cookbooktitlespanel.h"
#include "recipetools/screens/renamepanel.h"

#include <QGridLayout>
#include <QPushButton>

namespace {

// No menu title takes a letter that a button of the screen or of its panels
// uses (Alt+E is "S&earch", Alt+R "Search by &Recipe").
constexpr MenuRow kMenus[] = {
    {"mRecipe", "&File"},
    {"mOptions", "&Options"},
    {"mSelectCookbook", "Select Cook&book", "mOptions"},
    {"mUtilities", "&Utilities"},
    {"mHelpMenu", "&Help"},
};

constexpr const char* kCookbookNames[kCookbookCount] = {"mCookbook1", "mCookbook2", "mCookbook3", "mCookbook4",
                                                        "mCookbook5", "mCookbook6", "mCookbook7", "mCookbook8"};

} // namespace

// Spelling, copy, export and import come with tools of their own; until
// then their rows have no routine and stay disabled.
std::vector<CommandRow<Form5Command>> Form5::commandRows()
{
    using enum Form5Command;
    const auto rule = [this](bool RecipeCommandStates::*state) { return [this, state] { return on_.*state; }; };
    CommandSpec exit = exitCommand("mRecipe", {"E&xit", 9});
    exit.enabled = rule(&RecipeCommandStates::exit); // off while the rename panel is open
    std::vector<CommandRow<Form5Command>> rows = {
        {Create, {.name = "mCreate", .menu = "mRecipe", .caption = "&Create Recipe", .button = {"&Create", 0},
                  .toolbar = {Toolbar::Top, 0}, .run = [this] { createRecipe(); },
                  .enabled = rule(&RecipeCommandStates::create), .shortcut = QKeySequence::New}},
        {View, {.name = "mView", .menu = "mRecipe", .caption = "&View Recipe", .button = {"&View", 1},
                .toolbar = {Toolbar::Top, 1}, .run = [this] { viewRecipes(); },
                .enabled = rule(&RecipeCommandStates::view)}},
        {Modify, {.name = "mModify", .menu = "mRecipe", .caption = "&Modify Recipe", .button = {"&Modify", 2},
                  .toolbar = {Toolbar::Top, 2}, .run = [this] { modifyRecipe(); },
                  .enabled = rule(&RecipeCommandStates::modify)}},
        {Save, {.name = "mSave", .menu = "mRecipe", .caption = "&Save", .button = {"&Save", 3},
                .toolbar = {Toolbar::Top, 3}, .run = [this] { save(SaveRoad::Command); },
                .enabled = rule(&RecipeCommandStates::save), .shortcut = QKeySequence::Save}},
        {Delete, {.name = "mDelete", .menu = "mRecipe", .caption = "&Delete Recipe", .button = {"&Delete", 6},
                  .toolbar = {Toolbar::Top, 4}, .run = [this] { deleteRecipe(); },
                  .enabled = rule(&RecipeCommandStates::deleteRecipe)}},
        {Rename, {.name = "mRename", .menu = "mRecipe", .caption = "Change Recipe &Name",
                  .run = [this] { openRename(); }, .enabled = rule(&RecipeCommandStates::rename)}},
        {Calculate, {.name = "mCalculate", .menu = "mRecipe", .caption = "C&alculate Amounts", .separatorBefore = true,
                     .button = {"C&alculate", 5}, .toolbar = {Toolbar::Top, 6}, .run = [this] { openCalculator(); },
                     .enabled = rule(&RecipeCommandStates::calculate)}},
        {Search, {.name = "mSearch", .menu = "mRecipe", .caption = "Searc&h", .button = {"S&earch", 7},
                  .toolbar = {Toolbar::Top, 7}, .run = [this] { openSearch(); },
                  .enabled = rule(&RecipeCommandStates::search), .shortcut = QKeySequence::Find}},
        {Spelling, {.name = "mSpelling", .menu = "mRecipe", .caption = "S&pelling Check",
                    .button = {"S&pelling Check", 8}, .toolbar = {Toolbar::Top, 8},
                    .enabled = rule(&RecipeCommandStates::spelling)}},
        {Copy, {.name = "mCopy", .menu = "mRecipe", .caption = "Cop&y", .separatorBefore = true,
                .toolbar = {Toolbar::Side, 3}, .enabled = rule(&RecipeCommandStates::copy)}},
        {Export, {.name = "mExport", .menu = "mRecipe", .caption = "&Export Recipe",
                  .enabled = rule(&RecipeCommandStates::exportRecipe)}},
        {Import, {.name = "mImport", .menu = "mRecipe", .caption = "&Import Recipe",
                  .enabled = rule(&RecipeCommandStates::importRecipe)}},
        {Print, {.name = "mPrint", .menu = "mRecipe", .caption = "&Print Options", .separatorBefore = true,
                 .button = {"&Print", 4}, .toolbar = {Toolbar::Top, 5}, .run = [this] { openPrintPanel(false); },
                 .enabled = rule(&RecipeCommandStates::print), .shortcut = QKeySequence::Print}},
        {Worksheet, {.name = "mWorksheet", .menu = "mRecipe", .caption = "Print &Worksheet",
                     .toolbar = {Toolbar::Side, 2}, .run = [this] { openPrintPanel(true); },
                     .enabled = rule(&RecipeCommandStates::worksheet)}},
        {Exit, exit},
    };
    // The entries' captions take the titles when the cookbook loads.
    for (int cookbook = 1; cookbook <= kCookbookCount; ++cookbook)
        rows.push_back({Form5Command(int(Cookbook1) + cookbook - 1),
                        {.name = kCookbookNames[cookbook - 1], .menu = "mSelectCookbook",
                         .caption = QStringLiteral("Cookbook #&%1").arg(cookbook),
                         .run = [this, cookbook] { selectCookbook(cookbook); },
                         .enabled = rule(&RecipeCommandStates::cookbookMenus), .checkable = true}});
    rows.insert(rows.end(), {
        {Titles, {.name = "mTitles", .menu = "mOptions", .caption = "Cookbook &Titles", .toolbar = {Toolbar::Side, 1},
                  .run = [this] { openTitles(); }, .enabled = rule(&RecipeCommandStates::cookbookMenus)}},
        {PanelColor, panelColorCommand("mOptions")},
        // Their routines come with the backup screen (setBackupOpener).
        {Backup, {.name = "mBackup", .menu = "mUtilities", .caption = "&Backup Recipes to Disk",
                  .enabled = rule(&RecipeCommandStates::cookbookMenus)}},
        {Restore, {.name = "mRestore", .menu = "mUtilities", .caption = "&Restore Recipes from Disk",
                   .enabled = rule(&RecipeCommandStates::cookbookMenus)}},
        {Help, helpCommand("mHelpMenu", QStringLiteral("Recipe File &Help"))},
    });
    return rows;
}

void Form5::buildCommands(QWidget* buttonPanel)
{
    commands_ = makeCommands<Form5Command>(kMenus, commandRows(), buttonPanel);
    commandGrid_ = new QGridLayout(buttonPanel);
    arrangeCommandButtons(int(commands_->buttons().size()) / 2); // one row once the window is wide enough
}

// One row of ten buttons where the window is wide enough, two rows of five
// on a smaller screen.
void Form5::arrangeCommandButtons(int perRow)
{
    if (perRow == buttonsPerRow_)
        return;
    buttonsPerRow_ = perRow;
    const QList<QPushButton*> buttons = commands_->buttons();
    for (QPushButton* button : buttons)
        commandGrid_->removeWidget(button);
    for (int i = 0; i < buttons.size(); ++i)
        commandGrid_->addWidget(buttons[i], i / perRow, i % perRow);
}

void Form5::resizeEvent(QResizeEvent* event)
{
    ActivityWindow::resizeEvent(event);
    const QList<QPushButton*> buttons = commands_->buttons();
    int oneRow = 0;
    for (const QPushButton* button : buttons)
        oneRow += button->sizeHint().width() + commandGrid_->horizontalSpacing();
    const int available = centralWidget()->width() - 40;
    arrangeCommandButtons(available >= oneRow ? int(buttons.size()) : int(buttons.size()) / 2);
    // The print options panel covers the whole screen below the toolbar.
    printPanel_->setGeometry(centralWidget()->rect());
}

// Escape closes the panel in front first: the additional recipes over the
// print panel, the print panel (its large view first), a search, the
// calculator, the rename and the titles panel; with none open it is "E&xit".
void Form5::declareEscapeOrder()
{
    setEscapeOrder({
        {[this] { return additionalRecipes_->isVisible(); }, [this] { additionalRecipes_->cancel(); }},
        {[this] { return model_.state().panel == RecipePanel::Print; }, [this] { printPanel_->pressEscape(); }},
        {[this] { return model_.state().panel == RecipePanel::Search; }, [this] { closeSearch(); }},
        {[this] { return model_.state().panel == RecipePanel::Calculator; }, [this] { closeCalculator(); }},
        {[this] { return model_.state().panel == RecipePanel::Rename; }, [this] { closeRename(); }},
        {[this] { return model_.state().panel == RecipePanel::Titles; }, [this] { closeTitles(); }},
    });
}
