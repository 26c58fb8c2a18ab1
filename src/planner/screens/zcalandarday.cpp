// Zcalandar's day: the opening, choosing a day, the lines and their lists,
// saving, clearing and leaving the screen.
#include "planner/screens/zcalandar.h"

#include "common/clock.h"
#include "common/dates.h"
#include "common/dialogs.h"
#include "planner/logic/calendaroptions.h"
#include "planner/screens/calendarstrip.h"
#include "planner/screens/daylinespanel.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

const QString kTitle = QStringLiteral("Menu Planner");

} // namespace

// What the screen does when it opens, and again after a restore: the
// calendar options, the meal lists, and today's day, loaded as it is.
void Zcalandar::runOpening()
{
    applyCalendarOptions(ReadCalendarOptions());
    loadLists();
    dirty_ = false;
    const QDate today = clock_.today();
    calendar_->select(today);
    loadDay(today);
}

void Zcalandar::daySelected(QDate date)
{
    // A failed save keeps the lines on screen with the day they belong to.
    if (dirty_ && !askToSaveBeforeNextAction()) {
        calendar_->select(loadedDate_);
        return;
    }
    loadDay(date);
}

// "Save changes/entries before next action?": Yes writes the lines to the
// day they came from. False only when that write failed.
bool Zcalandar::askToSaveBeforeNextAction()
{
    const Answer answer = dialogs().ask(
        {kTitle, QStringLiteral("Save changes/entries before next action?"), Buttons::YesNo, Icon::None, 1});
    if (answer == Answer::Yes && !saveLines(loaded_))
        return false;
    dirty_ = false;
    return true;
}

// Shows the day's record, or blank lines for a day never saved; without a
// day the lines stay blank and the day's commands off.
void Zcalandar::loadDay(QDate date)
{
    lines_->showLines({});
    lines_->hideDropDowns();
    entry_.reset();
    state_.daySelected = date.isValid();
    state_.dayFull = false;
    if (date.isValid()) {
        const MenuDayRecord record = ReadDay(date);
        lines_->showLines(record.shownLines());
        loaded_ = MenuPlaceOf(date);
        loadedDate_ = date;
        state_.dayFull = record.isFull();
        state_.linesRefused = false;
    }
    showLongDate();
    applyCommandStates();
}

bool Zcalandar::saveLines(const MenuPlace& place)
{
    return tellWriteFailed(SaveDay(place, lines_->lines()), MenuPlanFileName(place.year));
}

void Zcalandar::saveDay()
{
    if (AllLinesBlank(lines_->lines())) {
        const Answer answer = dialogs().ask({QStringLiteral("Save"),
                                             QStringLiteral("There are currently No Entries to Save!\nSave anyway?"),
                                             Buttons::YesNo, Icon::Information, 2});
        if (answer != Answer::Yes)
            return;
    }
    if (!saveLines(MenuPlaceOf(currentDate())))
        return;
    dirty_ = false;
    state_.dayFull = true;
    applyCommandStates();
}

// Blanks the lines; the record keeps the day until it is saved.
void Zcalandar::clearEntries()
{
    showActivity(QStringLiteral("Clear Entries"));
    lines_->hideDropDowns();
    if (AllLinesBlank(lines_->lines())) {
        tell(QStringLiteral("Clear Entries"), QStringLiteral("There are currently No Entries to Clear!"));
    } else {
        const Answer answer = dialogs().ask({QStringLiteral("Clear Entries"),
                                             QStringLiteral("Clear all Entries for ") + datePanel_->text() + u'?',
                                             Buttons::YesNoCancel, Icon::None, 1});
        if (answer == Answer::Yes) {
            lines_->showLines({});
            dirty_ = true;
        }
    }
    showActivity();
}

void Zcalandar::exitPlanner()
{
    exiting_ = true;
    close();
    exiting_ = false;
}

// "E&xit" (and Escape) asks with Cancel; closing the window by other means
// asks Yes or No. Yes saves to the current day; a failed save keeps the
// screen open.
bool Zcalandar::readyToClose()
{
    if (!dirty_)
        return true;
    const Message question =
        exiting_ ? Message{kTitle, QStringLiteral("Save changes/entries before next action or exiting?"),
                           Buttons::YesNoCancel, Icon::None, 1}
                 : Message{kTitle, QStringLiteral("Save changes/entries before exiting?"), Buttons::YesNo,
                           Icon::None, 1};
    return saveQuestionAllows(question, [this] {
        if (!saveLines(MenuPlaceOf(currentDate())))
            return false;
        dirty_ = false;
        return true;
    });
}

// ---- The lines ----------------------------------------------------------------

void Zcalandar::lineEntered(int index, Qt::FocusReason reason)
{
    // Coming back from a message box or another window is no new entry.
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
        return;
    if (!state_.daySelected) {
        tell(QStringLiteral("Data Entry"), QStringLiteral("Please select a Day before entering data!"));
        commands_->button(ZcalandarCommand::Exit)->setFocus(Qt::OtherFocusReason);
        state_.linesRefused = true;
        applyCommandStates();
        return;
    }
    const int offered =
        entry_.arrive(index, reason == Qt::MouseFocusReason ? LineEntry::Arrival::Mouse : LineEntry::Arrival::Other);
    if (offered >= 0)
        offerToList(offered);
    lines_->showDropDown(index);
}

// A line left by Enter or a click goes into its meal's list when the list
// does not have it yet; a list that cannot be written stays as it was.
void Zcalandar::offerToList(int index)
{
    const Meal meal = MealOfLine(index);
    MenuItemList& list = lists_[size_t(meal) - 1];
    const MenuItemList before = list;
    if (OfferLine(list, lines_->line(index)->text()) != LineOffer::Added)
        return;
    if (!saveList(meal)) {
        list = before;
        return;
    }
    lines_->setListItems(meal, list.items());
}

void Zcalandar::lineEdited()
{
    dirty_ = true;
}

void Zcalandar::enterPressed(int index)
{
    entry_.leaveByEnter();
    lines_->line(NextLine(index))->setFocus(Qt::OtherFocusReason);
}

void Zcalandar::itemPicked(int index, const QString& item)
{
    lines_->line(index)->setText(item);
    if (!item.isEmpty())
        dirty_ = true;
    lines_->line(NextLine(index))->setFocus(Qt::OtherFocusReason);
    applyCommandStates();
}
