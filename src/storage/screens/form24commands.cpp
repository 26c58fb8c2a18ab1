// Form24's commands: the one table of menu entries, screen buttons and
// toolbar buttons, and the order in which Escape closes what is open.
#include "storage/screens/form24.h"

#include "print/screens/printoptionspanel.h"
#include "shell/kit/popupcalendar.h"
#include "shell/screens/backgroundselector.h"
#include "storage/screens/percentpanel.h"
#include "storage/screens/storageexportpanel.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace {

// "&Rollup" is a command on the menu bar itself. Help has no menu of its
// own: F1 and the top toolbar open it, and no title takes a letter that the
// screen's buttons use.
constexpr MenuRow kMenus[] = {
    {"mOptions", "&Options"},
    {"mEdit", "&Edit"},
    {"mRollup", "&Rollup", nullptr, false, true},
    {"mUtilities", "&Utilities"},
    {"mKind", "Storage &Kind"},
};

// The kinds' entries carry their screen captions.
constexpr int kKindGroup = 1;

} // namespace

std::vector<CommandRow<Form24Command>> Form24::commandRows()
{
    using enum Form24Command;
    const auto rule = [this](bool StorageCommandStates::*state) { return [this, state] { return on_.*state; }; };
    CommandSpec panelColor = panelColorCommand("mOptions");
    panelColor.enabled = rule(&StorageCommandStates::colors);
    CommandSpec exit = exitCommand("mOptions", {"E&xit", 4});
    exit.enabled = rule(&StorageCommandStates::exit);
    const auto kind = [this](StorageKind shown) { return [this, shown] { switchKind(shown); }; };
    return {
        {GridBackground, {.name = "mGridBackground", .menu = "mOptions", .caption = "Grid &Background Selector",
                          .run = [this] { gridColors_->chooseBackground(); },
                          .enabled = rule(&StorageCommandStates::colors)}},
        {GridTextColor, {.name = "mGridTextColor", .menu = "mOptions", .caption = "Grid &Text  Color",
                         .toolbar = {Toolbar::Side, 1}, .run = [this] { gridColors_->chooseTextColor(); },
                         .enabled = rule(&StorageCommandStates::colors)}},
        {PanelColor, panelColor},
        {ApproxAmounts, {.name = "mApproxAmounts", .menu = "mOptions", .caption = "&Approximate Amounts",
                         .separatorBefore = true, .button = {"&Approx. Amts.", 2}, .toolbar = {Toolbar::Top, 2},
                         .run = [this] { defaultAmounts(); }, .enabled = rule(&StorageCommandStates::approxAmounts)}},
        {ClearLastActions, {.name = "mClearLastActions", .menu = "mOptions", .caption = "&Clear Last Action Columns",
                            .run = [this] { clearLastActions(); },
                            .enabled = rule(&StorageCommandStates::clearLastActions)}},
        {ItemDefaults, {.name = "mItemDefaults", .menu = "mOptions", .caption = "&Item Defaults",
                        .button = {"&Item Defaults", 1}, .toolbar = {Toolbar::Top, 1},
                        .run = [this] { defaultTitles(); }, .enabled = rule(&StorageCommandStates::itemDefaults)}},
        {Copy, {.name = "mCopy", .menu = "mOptions", .caption = "Cop&y", .separatorBefore = true,
                .toolbar = {Toolbar::Top, 4, true}, .run = [this] { copyTable(); },
                .enabled = rule(&StorageCommandStates::copy)}},
        {Print, {.name = "mPrint", .menu = "mOptions", .caption = "&Print Options", .button = {"&Print", 0},
                 .toolbar = {Toolbar::Top, 0}, .run = [this] { openPrintPanel(); },
                 .enabled = rule(&StorageCommandStates::print), .shortcut = QKeySequence(Qt::CTRL | Qt::Key_P)}},
        {Save, {.name = "mSave", .menu = "mOptions", .caption = "&Save", .separatorBefore = true,
                .button = {"&Save", 3}, .toolbar = {Toolbar::Top, 3}, .run = [this] { save(); },
                .enabled = rule(&StorageCommandStates::save), .shortcut = QKeySequence(Qt::CTRL | Qt::Key_S)}},
        {Exit, exit},
        {EditCopy, {.name = "mEditCopy", .menu = "mEdit", .caption = "&Copy", .run = [this] { copyTable(); },
                    .enabled = rule(&StorageCommandStates::copy)}},
        {Rollup, {.name = "mRollup", .menu = "mRollup", .caption = "&Rollup", .toolbar = {Toolbar::Top, 5},
                  .run = [this] { toggleRollup(); }, .enabled = rule(&StorageCommandStates::rollup)}},
        {Backup, {.name = "mBackup", .menu = "mUtilities", .caption = "&Backup Files to Disk",
                  .run = [this] { backup(); }, .enabled = rule(&StorageCommandStates::backup)}},
        {Restore, {.name = "mRestore", .menu = "mUtilities", .caption = "&Restore Files from Disk",
                   .run = [this] { restore(); }, .enabled = rule(&StorageCommandStates::backup)}},
        {Export, {.name = "mExport", .menu = "mUtilities", .caption = "Export File in Excel/Spreadsheet Format",
                  .separatorBefore = true, .run = [this] { openExport(); },
                  .enabled = rule(&StorageCommandStates::exportFile)}},
        {KindBasic, {.name = "mKindBasic", .menu = "mKind", .caption = "&Basic Food Storage",
                     .run = kind(StorageKind::Basic), .enabled = rule(&StorageCommandStates::kinds),
                     .choiceGroup = kKindGroup}},
        {KindEmergency, {.name = "mKindEmergency", .menu = "mKind", .caption = "&Emergency Storage",
                         .run = kind(StorageKind::Emergency), .enabled = rule(&StorageCommandStates::kinds),
                         .choiceGroup = kKindGroup}},
        {KindAdditional, {.name = "mKindAdditional", .menu = "mKind",
                          .caption = "&Additional Storage [Could substitute for some sugar, fat, or lentils]",
                          .run = kind(StorageKind::Additional), .enabled = rule(&StorageCommandStates::kinds),
                          .choiceGroup = kKindGroup}},
        {Help, helpCommand(nullptr, QStringLiteral("Food Storage Help"))},
    };
}

void Form24::buildCommands(QWidget* buttonPanel)
{
    commands_ = makeCommands<Form24Command>(kMenus, commandRows(), buttonPanel);
    auto* buttons = new QHBoxLayout(buttonPanel);
    for (QPushButton* button : commands_->buttons())
        buttons->addWidget(button);
}

// Escape closes what lies in front first: the calendar, the grid background
// selector, the export panel, the percent panel, the print panel (its large
// view first); with none open it is "E&xit".
void Form24::declareEscapeOrder()
{
    setEscapeOrder({
        {[this] { return calendar_->isOpen(); }, [this] { calendar_->hide(); }},
        {[this] { return gridColors_->selector()->isOpen(); }, [this] { gridColors_->chooseBackground(); }},
        {[this] { return panel_ == StoragePanel::Export; }, [this] { closeExport(); }},
        {[this] { return panel_ == StoragePanel::Rollup; }, [this] { closeRollup(); }},
        {[this] { return panel_ == StoragePanel::Print; }, [this] { printPanel_->pressEscape(); }},
    });
}
