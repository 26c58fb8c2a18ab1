// WeightTracker's file commands: viewing the list and picking an
// individual, creating a new one, the two saves, deleting, and the save
// prompt before anything that would lose edits.
#include "tracker/screens/weighttracker.h"

#include "common/writefailure.h"
#include "print/screens/printoptionspanel.h"
#include "shell/kit/picturechooserpanel.h"
#include "shell/kit/popupcalendar.h"
#include "shell/kit/screengrid.h"
#include "tracker/screens/enlargedpicturepanel.h"
#include "tracker/screens/planpanel.h"
#include "tracker/screens/weightgraphpanel.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScrollArea>
#include <QStackedWidget>

namespace {

const QString kNoFiles = QStringLiteral("No Files Found");
// How much of the name the delete question shows.
constexpr int kDeleteNameLength = 30;

void Tell(Dialogs& dialogs, const QString& title, const QString& text)
{
    dialogs.tell(title, text, Icon::Information);
}

} // namespace

bool WeightTracker::savePromptAllows()
{
    const Message question{QStringLiteral("Weight Tracker Information"),
                           QStringLiteral("Save changes made to Weight Tracker before next action or exiting?"),
                           Buttons::YesNoCancel, Icon::Question, 1};
    // Yes saves as the commands do, messages and all: while a new
    // individual is open ("&Create New File" off) as a new file.
    const auto save = [this] {
        return commands_->action(TrackerCommand::Create)->isEnabled() ? saveFile(false) : saveNewFile();
    };
    return saveQuestionAllows(question, save, [this] { model_.setChanged(false); });
}

bool WeightTracker::promptIfChanged(bool worthAsking)
{
    return !model_.changed() || !worthAsking || savePromptAllows();
}

void WeightTracker::closeCalendarAndPanels()
{
    calendar_->hide();
    for (OverlayPanel* panel : {static_cast<OverlayPanel*>(graph_), static_cast<OverlayPanel*>(enlarged_)})
        panel->hide();
    panel_ = TrackerPanel::None;
}

void WeightTracker::viewExisting()
{
    const bool named = model_.state() == TrackerState::Creating ? !nameField_->text().trimmed().isEmpty()
                                                                 : !model_.name().isEmpty();
    if (!promptIfChanged(named))
        return;
    closeCalendarAndPanels();
    if (!model_.readList()) {
        dialogs().tell(kNoFiles,
                       QStringLiteral("Currently there are no Individual Files to view,\n"
                                      "please use the Create New File Button\n"
                                      "to enter Individual information!"),
                       Icon::Information);
        model_.reset();
        nameField_->clear();
        showFields();
        fillGrid();
        showState();
        return;
    }
    model_.startChoosing();
    {
        const QSignalBlocker quiet(nameList_);
        nameList_->clear();
        nameList_->addItems(model_.individuals());
        nameList_->setCurrentIndex(-1);
    }
    nameField_->clear();
    showFields();
    fillGrid();
    showState();
    nameList_->setFocus(Qt::OtherFocusReason);
}

void WeightTracker::createNew()
{
    if (!promptIfChanged(model_.holdsEntries(nameField_->text())))
        return;
    closeCalendarAndPanels();
    model_.startCreating();
    nameField_->clear();
    showFields();
    fillGrid();
    pages_->setCurrentWidget(planScroll_);
    showState();
    nameField_->setFocus(Qt::OtherFocusReason);
}

bool WeightTracker::saveNewFile()
{
    const QString name = nameField_->text().trimmed();
    if (name.isEmpty()) {
        Tell(dialogs(), kNoFiles, QStringLiteral("Please Enter Individual Name to save file."));
        nameField_->setFocus(Qt::OtherFocusReason);
        return false;
    }
    if (IsRefusedIndividualName(name)) {
        dialogs().tell(QStringLiteral("Individual Name"),
                       QStringLiteral("A name cannot hold / or \\ or control characters, nor be the name of one of "
                                      "the program's own files.\nPlease enter another name."),
                       Icon::Exclamation);
        nameField_->setFocus(Qt::OtherFocusReason);
        return false;
    }
    const WriteOutcome outcome = model_.saveNew(name);
    if (!outcome) {
        model_.setChanged(true);
        dialogs().ask(WriteFailedMessage(outcome.failedFile));
        return false;
    }
    Tell(dialogs(), QStringLiteral("Save File"), QStringLiteral("File has been Saved."));
    return true;
}

bool WeightTracker::individualChosen()
{
    if (model_.state() == TrackerState::Loaded)
        return true;
    Tell(dialogs(), QStringLiteral("Select Individual Name"), QStringLiteral("Please Select a Name First!"));
    return false;
}

bool WeightTracker::saveFile(bool silent)
{
    if (!individualChosen())
        return false;
    if (!silent && !model_.changed()) {
        Tell(dialogs(), QStringLiteral("Save Command"),
             QStringLiteral("There have been no entries/changes made to save!"));
        return false;
    }
    const WriteOutcome outcome = model_.save();
    if (!outcome) {
        dialogs().ask(WriteFailedMessage(outcome.failedFile));
        return false;
    }
    if (!silent)
        Tell(dialogs(), QStringLiteral("Save File Command"), QStringLiteral("File has been Saved."));
    rebuildGraph();
    return true;
}

void WeightTracker::deleteFile()
{
    closeCalendarAndPanels();
    if (!individualChosen())
        return;
    const QString entry = nameList_->currentText();
    const QString shown = entry.left(kDeleteNameLength).trimmed();
    const Message question{QStringLiteral("Delete Current File"),
                           QStringLiteral("Do You really want to delete\n") + shown
                               + QStringLiteral("\nfile and all its contents?"),
                           Buttons::YesNoCancel, Icon::Question, 2};
    if (dialogs().ask(question) != Answer::Yes) {
        model_.setChanged(false);
        return;
    }
    const WriteOutcome outcome = model_.deleteIndividual(entry);
    if (!outcome) {
        dialogs().ask(WriteFailedMessage(outcome.failedFile));
        return;
    }
    {
        const QSignalBlocker quiet(nameList_);
        nameList_->removeItem(nameList_->currentIndex());
        nameList_->setCurrentIndex(-1);
    }
    showFields();
    fillGrid();
    showState();
}

void WeightTracker::individualPicked(int index)
{
    if (index < 0)
        return;
    const QString entry = nameList_->itemText(index);
    if (!promptIfChanged(true)) {
        const QSignalBlocker quiet(nameList_);
        nameList_->setCurrentIndex(nameList_->findText(model_.name()));
        return;
    }
    closeCalendarAndPanels();
    model_.load(entry);
    showLoaded();
}

// After a load: the fields, the grid with its worked-out columns, the
// trend, the graph made ready but not shown, and the weigh-ins up.
void WeightTracker::showLoaded()
{
    showFields();
    fillGrid();
    rebuildGraph();
    pages_->setCurrentWidget(weighInPanel_);
    showState();
    showTrend();
}
