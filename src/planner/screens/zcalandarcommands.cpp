// Zcalandar's commands: the one table of menu entries, screen buttons and
// toolbar buttons, and the order in which Escape closes what is open.
#include "planner/screens/zcalandar.h"

#include "planner/screens/calendaroptionspanel.h"
#include "planner/screens/editlistspanel.h"
#include "planner/screens/menuviewpanel.h"
#include "print/screens/printoptionspanel.h"

namespace {

// The toolbar's order: panel colour, text colour, lists, clear, copy,
// print, calendar options; help and exit close it.
enum ToolbarPlace { kPanelColor, kTextColor, kEditLists, kClearEntries, kCopy, kPrint, kCalendarOptions };

constexpr MenuRow kMenus[] = {
    {"mOptions", "&Options"},
    {"mEdit", "&Edit"},
    {"mUtilities", "&Utilities"},
    {"mHelpMenu", "&Help"},
};

} // namespace

void Zcalandar::buildCommands(QWidget* buttonPanel)
{
    commands_ = makeCommands<ZcalandarCommand>(kMenus, commandRows(), buttonPanel);
}

// Backup and restore have routines only once a backup opener is given.
std::vector<CommandRow<ZcalandarCommand>> Zcalandar::commandRows()
{
    using enum ZcalandarCommand;
    const auto rule = [this](bool PlannerCommandStates::*state) { return [this, state] { return on_.*state; }; };
    CommandSpec panelColor = panelColorCommand("mOptions");
    panelColor.toolbar = {Toolbar::Top, kPanelColor};
    panelColor.enabled = rule(&PlannerCommandStates::panelColor);
    CommandSpec exit = exitCommand("mOptions", {"E&xit", 4});
    exit.run = [this] { exitPlanner(); };
    return {
        {Save, {.name = "mSave", .menu = "mOptions", .caption = "&Save", .button = {"&Save", 0},
                .run = [this] { saveDay(); }, .enabled = rule(&PlannerCommandStates::save),
                .shortcut = QKeySequence::Save}},
        {ClearEntries, {.name = "mClearEntries", .menu = "mOptions", .caption = "&Clear Entries",
                        .button = {"&Clear Entries", 1}, .toolbar = {Toolbar::Top, kClearEntries},
                        .run = [this] { clearEntries(); }, .enabled = rule(&PlannerCommandStates::clearEntries)}},
        {EditLists, {.name = "mEditLists", .menu = "mOptions", .caption = "&Edit Lists",
                     .button = {"&Edit Lists", 2}, .toolbar = {Toolbar::Top, kEditLists},
                     .run = [this] { openEditLists(); }, .enabled = rule(&PlannerCommandStates::editLists)}},
        {PrintView, {.name = "mPrintView", .menu = "mOptions", .caption = "&Print/View",
                     .button = {"&Print/View", 3}, .run = [this] { openPrintView(); },
                     .enabled = rule(&PlannerCommandStates::printView), .shortcut = QKeySequence::Print}},
        {PanelColor, panelColor},
        {TextColor, {.name = "mTextColor", .menu = "mOptions", .caption = "&Text Color",
                     .toolbar = {Toolbar::Top, kTextColor}, .run = [this] { chooseTextColor(); },
                     .enabled = rule(&PlannerCommandStates::textColor)}},
        {CalendarOptions, {.name = "mCalendarOptions", .menu = "mOptions", .caption = "Calendar &Display Options",
                           .toolbar = {Toolbar::Top, kCalendarOptions}, .run = [this] { toggleCalendarOptions(); },
                           .enabled = rule(&PlannerCommandStates::calendarOptions)}},
        {Exit, exit},
        {Copy, {.name = "mCopy", .menu = "mEdit", .caption = "&Copy", .toolbar = {Toolbar::Top, kCopy},
                .run = [this] { copyDay(); }, .enabled = rule(&PlannerCommandStates::copy)}},
        // The toolbar's print button opens the view panel, and the print
        // options once the view panel is open.
        {ToolbarPrint, {.name = "mToolbarPrint", .caption = "Print", .toolbar = {Toolbar::Top, kPrint},
                        .run = [this] { toolbarPrint(); }, .enabled = rule(&PlannerCommandStates::toolbarPrint)}},
        {Backup, {.name = "mBackup", .menu = "mUtilities", .caption = "&Backup Selected Year File to Disk",
                  .enabled = rule(&PlannerCommandStates::backup)}},
        {Restore, {.name = "mRestore", .menu = "mUtilities", .caption = "&Restore Selected Year File from Disk",
                   .enabled = rule(&PlannerCommandStates::restore)}},
        {Help, helpCommand("mHelpMenu", QStringLiteral("Menu Planner &Help"))},
    };
}

void Zcalandar::setBackupOpener(BackupOpener opener)
{
    backupOpener_ = std::move(opener);
    commands_->setRoutine(ZcalandarCommand::Backup, [this] { backupYear(); });
    commands_->setRoutine(ZcalandarCommand::Restore, [this] { restoreYear(); });
}

// Escape closes what is in front first: the print options (their large
// view first), the view panel, the list editor, the calendar options; with
// none open it is "E&xit".
void Zcalandar::declareEscapeOrder()
{
    setEscapeOrder({
        {[this] { return state_.printOptionsOpen; }, [this] { printPanel_->pressEscape(); }},
        {[this] { return state_.panel == PlannerPanel::PrintView; }, [this] { closePrintView(); }},
        {[this] { return state_.panel == PlannerPanel::EditLists; }, [this] { closeEditLists(); }},
        {[this] { return state_.panel == PlannerPanel::CalendarOptions; }, [this] { closeCalendarOptions(); }},
        {[] { return true; }, [this] { exitPlanner(); }},
    });
}
