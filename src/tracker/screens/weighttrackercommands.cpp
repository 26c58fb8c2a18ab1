// WeightTracker's commands: the one table of menu entries, screen buttons
// and toolbar buttons, and the order in which Escape closes what is open.
#include "tracker/screens/weighttracker.h"

#include "print/screens/printoptionspanel.h"
#include "shell/kit/picturechooserpanel.h"
#include "shell/kit/popupcalendar.h"
#include "tracker/screens/enlargedpicturepanel.h"
#include "tracker/screens/weightgraphpanel.h"

#include <QGridLayout>
#include <QPushButton>

namespace {

// The file commands under "&File"; what works on the displayed individual
// under "&Options", which a right click on the grid also opens.
constexpr MenuRow kMenus[] = {
    {"mFile", "&File"},
    {"mOptions", "&Options"},
};

// The screen's buttons stand in rows of this many.
constexpr int kButtonsPerRow = 4;

} // namespace

std::vector<CommandRow<TrackerCommand>> WeightTracker::commandRows()
{
    using enum TrackerCommand;
    const auto rule = [this](bool TrackerCommandStates::*state) { return [this, state] { return on_.*state; }; };
    CommandSpec panelColor = panelColorCommand("mOptions");
    panelColor.enabled = rule(&TrackerCommandStates::colors);
    CommandSpec exit = exitCommand("mFile", {"E&xit", 11});
    exit.enabled = rule(&TrackerCommandStates::exit);
    return {
        {View, {.name = "mView", .menu = "mFile", .caption = "&View Existing File", .button = {"&View Existing File", 0},
                .toolbar = {Toolbar::Top, 0}, .run = [this] { viewExisting(); },
                .enabled = rule(&TrackerCommandStates::view)}},
        {Create, {.name = "mCreate", .menu = "mFile", .caption = "&Create New File",
                  .button = {"&Create New File", 1}, .toolbar = {Toolbar::Top, 1}, .run = [this] { createNew(); },
                  .enabled = rule(&TrackerCommandStates::create), .shortcut = QKeySequence(Qt::CTRL | Qt::Key_N)}},
        {SaveNew, {.name = "mSaveNew", .menu = "mFile", .caption = "&Save New File", .button = {"&Save New File", 2},
                   .run = [this] { saveNewFile(); }, .enabled = rule(&TrackerCommandStates::saveNew)}},
        {Save, {.name = "mSave", .menu = "mFile", .caption = "&Save", .button = {"&Save", 3},
                .toolbar = {Toolbar::Top, 2}, .run = [this] { saveFile(false); },
                .enabled = rule(&TrackerCommandStates::save), .shortcut = QKeySequence(Qt::CTRL | Qt::Key_S)}},
        {Delete, {.name = "mDelete", .menu = "mFile", .caption = "&Delete Displayed File",
                  .button = {"&Delete Displayed File", 4}, .run = [this] { deleteFile(); },
                  .enabled = rule(&TrackerCommandStates::remove)}},
        {Print, {.name = "mPrint", .menu = "mFile", .caption = "&Print Options", .separatorBefore = true,
                 .button = {"&Print Options", 8}, .toolbar = {Toolbar::Top, 3, true},
                 .run = [this] { openPrintPanel(); }, .enabled = rule(&TrackerCommandStates::individual),
                 .shortcut = QKeySequence(Qt::CTRL | Qt::Key_P)}},
        {Exit, exit},
        {WeighIns, {.name = "mWeighIns", .menu = "mOptions", .caption = "View &Weight Tracker",
                    .button = {"View &Weight Tracker", 5}, .toolbar = {Toolbar::Side, 1},
                    .run = [this] { showWeighIns(); }, .enabled = rule(&TrackerCommandStates::individual)}},
        {Plan, {.name = "mPlan", .menu = "mOptions", .caption = "View Exercise P&lan", .button = {"View Exercise P&lan", 6},
                .toolbar = {Toolbar::Side, 2}, .run = [this] { showPlan(); },
                .enabled = rule(&TrackerCommandStates::individual)}},
        {Graph, {.name = "mGraph", .menu = "mOptions", .caption = "&Graph Display", .button = {"&Graph Display", 7},
                 .toolbar = {Toolbar::Side, 3}, .run = [this] { showGraph(); },
                 .enabled = rule(&TrackerCommandStates::individual)}},
        {AddRow, {.name = "mAddRow", .menu = "mOptions", .caption = "&Add Additional Row", .separatorBefore = true,
                  .button = {"&Add Additional Row", 9}, .run = [this] { addRow(); },
                  .enabled = rule(&TrackerCommandStates::individual)}},
        {DeleteRow, {.name = "mDeleteRow", .menu = "mOptions", .caption = "Delete Selected Row",
                     .button = {"Delete Selected Row", 10}, .run = [this] { deleteRow(); },
                     .enabled = rule(&TrackerCommandStates::individual)}},
        {DateChecker, {.name = "mDateChecker", .menu = "mOptions", .caption = "Turn OFF Date Checker",
                       .separatorBefore = true, .run = [this] { toggleDateChecker(); },
                       .enabled = rule(&TrackerCommandStates::colors)}},
        {Trend, {.name = "mTrend", .menu = "mOptions", .caption = "Turn Trend Display OFF",
                 .button = {"Turn Trend Display OFF", 12}, .run = [this] { toggleTrendDisplay(); },
                 .enabled = rule(&TrackerCommandStates::colors)}},
        {PanelColor, panelColor},
        {Help, helpCommand(nullptr, QStringLiteral("Weight Tracker Help"))},
    };
}

void WeightTracker::buildCommands(QWidget* buttonPanel)
{
    commands_ = makeCommands<TrackerCommand>(kMenus, commandRows(), buttonPanel);
    auto* buttons = new QGridLayout(buttonPanel);
    int place = 0;
    for (QPushButton* button : commands_->buttons()) {
        // The trend switch stands with the trend pictures.
        if (button == commands_->button(TrackerCommand::Trend))
            continue;
        buttons->addWidget(button, place / kButtonsPerRow, place % kButtonsPerRow);
        ++place;
    }
}

// Escape closes what lies in front first: the calendar, an enlarged
// picture, the picture chooser, the graph, the print panel; with none open
// it is "E&xit".
void WeightTracker::declareEscapeOrder()
{
    setEscapeOrder({
        {[this] { return calendar_->isOpen(); }, [this] { calendar_->hide(); }},
        {[this] { return enlarged_->isOpen(); }, [this] { closePanel(enlarged_); }},
        {[this] { return chooser_->isOpen(); }, [this] { closeChooser(); }},
        {[this] { return graph_->isOpen(); }, [this] { closePanel(graph_); }},
        {[this] { return panel_ == TrackerPanel::Print; }, [this] { printPanel_->pressEscape(); }},
    });
}
