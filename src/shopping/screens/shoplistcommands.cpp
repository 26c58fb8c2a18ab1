// Shoplist's commands: the one table of menu entries, screen buttons and
// toolbar buttons, their enabled states, and the order in which Escape
// closes what is open.
#include "shopping/screens/shoplist.h"

#include "common/blanktext.h"
#include "cookbook/logic/cookbooknames.h"
#include "cookbook/logic/cookbookselection.h"
#include "print/screens/printoptionspanel.h"
#include "shell/kit/popupcalendar.h"
#include "shell/kit/screentoolbars.h"
#include "shell/screens/backgroundselector.h"
#include "shopping/screens/entrybox.h"

#include <QAction>
#include <QGridLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QToolBar>

namespace {

// The menu titles take letters no button of the screen uses.
constexpr MenuRow kMenus[] = {
    {"mOptions", "&Options"},
    {"mSelectCookbook", "Select Cook&book", "mOptions", true},
    {"mHelpMenu", "&Help"},
};

constexpr const char* kCookbookNames[kCookbookCount] = {"mCookbook1", "mCookbook2", "mCookbook3", "mCookbook4",
                                                        "mCookbook5", "mCookbook6", "mCookbook7", "mCookbook8"};

// The screen buttons stand in two rows of four and three.
constexpr int kButtonsPerRow = 4;

// The side toolbar's buttons are named short, so the toolbar stays narrow;
// their tips give the whole caption.
struct ToolbarName {
    ShoplistCommand command;
    const char* text;
};
constexpr ToolbarName kToolbarNames[] = {
    {ShoplistCommand::NewList, "New"},          {ShoplistCommand::OpenList, "Open"},
    {ShoplistCommand::DeleteList, "Delete"},    {ShoplistCommand::GridBackground, "Background"},
    {ShoplistCommand::GridTextColor, "Text Color"}, {ShoplistCommand::PanelColor, "Panel Color"},
    {ShoplistCommand::Copy, "Copy"},            {ShoplistCommand::Worksheet, "Worksheet"},
    {ShoplistCommand::PrintOptions, "Print"},   {ShoplistCommand::Help, "Help"},
    {ShoplistCommand::Exit, "Exit"},
};

} // namespace

std::vector<CommandRow<ShoplistCommand>> Shoplist::commandRows()
{
    using enum ShoplistCommand;
    const auto rule = [this](bool ShoplistCommandStates::*state) { return [this, state] { return on_.*state; }; };
    const auto side = [](int position) { return ToolbarPlace{Toolbar::Side, position}; };

    CommandSpec panelColor = panelColorCommand("mOptions");
    panelColor.caption = QStringLiteral("Panel &Color");
    panelColor.toolbar = side(5);
    panelColor.separatorBefore = false;
    panelColor.enabled = rule(&ShoplistCommandStates::panelColor);
    CommandSpec exit = exitCommand("mOptions", {"E&xit", 0});
    exit.separatorBefore = false;
    exit.run = [this] { leaveScreen(); };
    exit.enabled = rule(&ShoplistCommandStates::exit);

    // The options menu in the order of the screen's commands, then the
    // entries it adds.
    std::vector<CommandRow<ShoplistCommand>> rows = {
        {Exit, exit},
        {ClearGrid, {.name = "mClearGrid", .menu = "mOptions", .caption = "&Clear Grid", .separatorBefore = true,
                     .button = {"&Clear Grid", 1}, .run = [this] { clearGridCommand(); },
                     .enabled = rule(&ShoplistCommandStates::clearGrid)}},
        {Save, {.name = "mSave", .menu = "mOptions", .caption = "&Save", .button = {"&Save", 2},
                .run = [this] { save(); }, .enabled = rule(&ShoplistCommandStates::save),
                .shortcut = QKeySequence::Save}},
        {PrintOptions, {.name = "mPrintOptions", .menu = "mOptions", .caption = "&Print Options",
                        .button = {"&Print Options", 3}, .toolbar = side(8), .run = [this] { openPrintPanel(false); },
                        .enabled = rule(&ShoplistCommandStates::printOptions), .shortcut = QKeySequence::Print}},
        {DeleteItem, {.name = "mDeleteItem", .menu = "mOptions", .caption = "&Delete Item from Grid",
                      .button = {"&Delete Item from Grid", 4}, .run = [this] { deleteItem(); },
                      .enabled = rule(&ShoplistCommandStates::deleteItem)}},
        {RecipeSelect, {.name = "mRecipeSelect", .menu = "mOptions", .caption = "&Recipe Select",
                        .button = {"&Recipe Select", 5}, .run = [this] { toggleRecipeSelect(); },
                        .enabled = rule(&ShoplistCommandStates::recipeSelect), .checkable = true}},
        {QuickSelect, {.name = "mQuickSelect", .menu = "mOptions", .caption = "&Quick Select",
                       .button = {"&Quick Select", 6}, .run = [this] { toggleQuickSelect(); },
                       .enabled = rule(&ShoplistCommandStates::quickSelect), .checkable = true}},
        {NewList, {.name = "mNewList", .menu = "mOptions", .caption = "&New Shopping List", .separatorBefore = true,
                   .toolbar = side(0), .run = [this] { newList(); }, .enabled = rule(&ShoplistCommandStates::newList),
                   .shortcut = QKeySequence::New}},
        {OpenList, {.name = "mOpenList", .menu = "mOptions", .caption = "&Open an Existing List", .toolbar = side(1),
                    .run = [this] { openList(); }, .enabled = rule(&ShoplistCommandStates::openList),
                    .shortcut = QKeySequence::Open}},
        {DeleteList, {.name = "mDeleteList", .menu = "mOptions", .caption = "Delete an &Existing List",
                      .toolbar = side(2), .run = [this] { deleteList(); },
                      .enabled = rule(&ShoplistCommandStates::deleteList)}},
        {GridBackground, {.name = "mGridBackground", .menu = "mOptions", .caption = "Grid &Background Selector",
                          .separatorBefore = true, .toolbar = side(3), .run = [this] { gridColors_->chooseBackground(); },
                          .enabled = rule(&ShoplistCommandStates::gridBackground)}},
        {GridTextColor, {.name = "mGridTextColor", .menu = "mOptions", .caption = "Grid &Text  Color",
                         .toolbar = side(4), .run = [this] { gridColors_->chooseTextColor(); },
                         .enabled = rule(&ShoplistCommandStates::gridTextColor)}},
        {PanelColor, panelColor},
    };
    // The entries' captions take the titles when the screen loads.
    for (int cookbook = 1; cookbook <= kCookbookCount; ++cookbook)
        rows.push_back({ShoplistCommand(int(Cookbook1) + cookbook - 1),
                        {.name = kCookbookNames[cookbook - 1], .menu = "mSelectCookbook",
                         .caption = QStringLiteral("Cookbook #&%1").arg(cookbook),
                         .run = [this, cookbook] { selectCookbook(cookbook); },
                         .enabled = rule(&ShoplistCommandStates::selectCookbook), .choiceGroup = 1}});
    rows.insert(rows.end(), {
        {Worksheet, {.name = "mWorksheet", .menu = "mOptions", .caption = "Print &Worksheet", .separatorBefore = true,
                     .toolbar = side(7), .run = [this] { openPrintPanel(true); },
                     .enabled = rule(&ShoplistCommandStates::worksheet)}},
        {Copy, {.name = "mCopy", .menu = "mOptions", .caption = "Cop&y", .toolbar = side(6),
                .run = [this] { copyList(); }, .enabled = rule(&ShoplistCommandStates::copy)}},
        {Help, helpCommand("mHelpMenu", QStringLiteral("Shopping List &Help"))},
    });
    return rows;
}

void Shoplist::buildCommands(QWidget* buttonPanel)
{
    commands_ = makeCommands<ShoplistCommand>(kMenus, commandRows(), buttonPanel);
    auto* grid = new QGridLayout(buttonPanel);
    const QList<QPushButton*> buttons = commands_->buttons();
    for (int i = 0; i < buttons.size(); ++i)
        grid->addWidget(buttons[i], i / kButtonsPerRow, i % kButtonsPerRow);
    // Help and exit end the side toolbar as well as the top one: the same
    // actions, so every door runs the one routine.
    QToolBar* side = toolbars()->side();
    side->addSeparator();
    side->addAction(commands_->action(ShoplistCommand::Help));
    side->addAction(commands_->action(ShoplistCommand::Exit));
    for (const ToolbarName& name : kToolbarNames) {
        QAction* action = commands_->action(name.command);
        action->setToolTip(QString(action->text()).remove(u'&'));
        action->setIconText(QString::fromLatin1(name.text));
    }
}

void Shoplist::showCookbookMenu()
{
    for (int cookbook = 1; cookbook <= kCookbookCount; ++cookbook) {
        QAction* entry = commands_->action(ShoplistCommand(int(ShoplistCommand::Cookbook1) + cookbook - 1));
        entry->setText(CookbookMenuCaption(cookbook, titles_.value(cookbook - 1)));
        entry->setChecked(cookbook == cookbook_);
    }
}

// Escape closes the panel in front first: the large preview and the print
// panel, Quick Select, Recipe Select, the calendar, the grid's background
// selector; with none open it is "E&xit", question and all.
void Shoplist::declareEscapeOrder()
{
    setEscapeOrder({
        {[this] { return panel_ == ShoplistPanel::Print; }, [this] { printPanel_->pressEscape(); }},
        {[this] { return panel_ == ShoplistPanel::QuickSelect; }, [this] { closeQuickSelect(); }},
        {[this] { return panel_ == ShoplistPanel::RecipeSelect; }, [this] { closeRecipeSelect(); }},
        {[this] { return calendar_->isOpen(); }, [this] { calendar_->hide(); }},
        {[this] { return gridColors_->selector()->isOpen(); }, [this] { gridColors_->chooseBackground(); }},
        {[] { return true; }, [this] { leaveScreen(); }},
    });
}

void Shoplist::applyCommandStates()
{
    ShoplistScreenState state;
    state.panel = panel_;
    state.dirty = list_.dirty();
    state.hasEntries = !list_.entryList().isEmpty();
    state.itemCellSelected = itemCellSelected_ && list_.currentColumn() == 0
                          && !IsBlank(list_.cell(list_.currentRow(), 0));
    state.itemBoxHasText = !itemBox_->box()->text().isEmpty();
    state.listOpened = listOpened_;
    on_ = ShoplistCommandStatesFor(state);
    commands_->refresh();
    commands_->menu("mSelectCookbook")->setEnabled(on_.selectCookbook);
    commands_->action(ShoplistCommand::RecipeSelect)->setChecked(panel_ == ShoplistPanel::RecipeSelect);
    commands_->action(ShoplistCommand::QuickSelect)->setChecked(panel_ == ShoplistPanel::QuickSelect);
    addToGrid_->setEnabled(on_.addToGrid);
    deleteFromFile_->setEnabled(on_.deleteFromFile);
    listArea_->setEnabled(on_.listEntry);
}
