// Shoplist's lists in their files: save, open, delete, new and clear, the
// questions before work is lost, and the date box that names the file.
#include "shopping/screens/shoplist.h"

#include "common/clock.h"
#include "common/dates.h"
#include "common/dialogs.h"
#include "common/programfolder.h"
#include "common/writefailure.h"
#include "shell/kit/popupcalendar.h"
#include "shell/kit/screengrid.h"
#include "shopping/logic/datebox.h"
#include "shopping/logic/listfiles.h"
#include "shopping/screens/entrybox.h"
#include "shopping/screens/listchooser.h"

#include <QFile>
#include <QFileInfo>
#include <QLineEdit>

namespace {

const QString kGroceryList = QStringLiteral("Grocery List");
const QString kSaveListTitle = QStringLiteral("Save .lst File");

} // namespace

// Yes saves first, and the command goes on only when the list is saved;
// No goes on; Cancel stays.
bool Shoplist::saveQuestionAllowsAction()
{
    if (!list_.dirty())
        return true;
    return saveQuestionAllows({kGroceryList, QStringLiteral("Save changes made to Grocery Item Grid before this action?"),
                               Buttons::YesNoCancel, Icon::None, 1},
                              [this] { return save(); });
}

// True when the list is in its file. A date box that is no date names no
// file; "No" to replacing a list keeps the old file and the list unsaved.
bool Shoplist::save()
{
    const QString base = ListFileBase(dateBox_->box()->text());
    if (base.isEmpty()) {
        dialogs().tell(kSaveListTitle,
                       QStringLiteral("The Projected Date is not a date, so the list has no file name.\n"
                                      "Please select the date of this shopping trip, then save again."),
                       Icon::Exclamation);
        dateBox_->box()->setFocus(Qt::OtherFocusReason);
        return false;
    }
    const QString fileName = ListFileName(base);
    if (QFileInfo(ResolveFileName(fileName)).isFile()) {
        const Answer answer = dialogs().ask(
            {kSaveListTitle, ReplaceListQuestion(base), Buttons::YesNo, Icon::Exclamation, 2});
        if (answer != Answer::Yes)
            return false;
    }
    if (!WriteListFile(fileName, list_.fileValues())) {
        dialogs().ask(WriteFailedMessage(fileName));
        return false;
    }
    list_.setDirty(false);
    applyCommandStates();
    return true;
}

void Shoplist::newList()
{
    if (!saveQuestionAllowsAction())
        return;
    dateBox_->setText(ShortDate(clock_->today()));
    clearGrid();
    focusCommandButton(ShoplistCommand::Exit);
}

// The list picked on Open1; empty when the user cancelled or there was
// none to pick, which is said.
QString Shoplist::chooseSavedList(ListChoice choice)
{
    const QString chosen = chooser_->chooseList(choice);
    if (chosen != QLatin1String(kNoSavedLists))
        return chosen;
    dialogs().tell(QStringLiteral("Open/Delete List Action"), QStringLiteral("Currently, there are No Saved Lists"),
                   Icon::Information);
    return {};
}

void Shoplist::openList()
{
    if (!saveQuestionAllowsAction())
        return;
    const QString chosen = chooseSavedList(ListChoice::Open);
    if (chosen.isEmpty())
        return;
    clearGrid();
    if (!IsListFileName(chosen)) {
        dialogs().tell(QStringLiteral("File Error"), QStringLiteral("An Invalid File has been Selected!"), Icon::Stop);
        return;
    }
    dateBox_->setText(DateBoxTextOfListName(chosen));
    const ReadList read = ReadListFile(chosen);
    if (!read.opened)
        return;
    if (read.tooLong) {
        dialogs().tell(QStringLiteral("Open Shopping List"),
                       chosen + QStringLiteral("\nThis list holds more than %1 items, more than the grid can show. "
                                               "It has not been opened, and the file is unchanged.")
                                    .arg(ShoppingList::kMaxEntries),
                       Icon::Exclamation);
        return;
    }
    list_.load(read.entries);
    listOpened_ = true;
    showList();
}

void Shoplist::deleteList()
{
    const QString chosen = chooseSavedList(ListChoice::Delete);
    if (chosen.isEmpty())
        return;
    const Answer answer = dialogs().ask({QStringLiteral("Delete File"),
                                         QStringLiteral("Do you Really want to Delete - \n") + chosen + u'?',
                                         Buttons::YesNoCancel, Icon::None, 2});
    if (answer != Answer::Yes)
        return;
    if (!QFile::remove(ResolveFileName(chosen)))
        dialogs().tell(QStringLiteral("Delete File"),
                       QStringLiteral("The file \"%1\" could not be deleted; it is still there.").arg(chosen),
                       Icon::Exclamation);
}

void Shoplist::clearGridCommand()
{
    if (!saveQuestionAllowsAction())
        return;
    const Answer answer = dialogs().ask({QStringLiteral("Clear Grid"), QStringLiteral("Do you really want To Clear the Grid?"),
                                         Buttons::YesNoCancel, Icon::None, 2});
    if (answer == Answer::Yes)
        clearGrid();
}

void Shoplist::clearGrid()
{
    list_.clear();
    listOpened_ = false;
    itemCellSelected_ = false;
    showItemEntry();
    grid_->setCurrentCell(-1, -1);
    showList();
}

// "E&xit" and Escape ask with Cancel; closing the window any other way asks
// Yes or No (readyToClose).
void Shoplist::leaveScreen()
{
    if (list_.dirty()) {
        const Answer answer = dialogs().ask({kGroceryList,
                                             QStringLiteral("Save changes made to Grocery Item Grid before exiting?"),
                                             Buttons::YesNoCancel, Icon::None, 1});
        if (answer == Answer::Cancel || (answer == Answer::Yes && !save()))
            return;
    }
    exitAsked_ = true;
    if (!close())
        exitAsked_ = false;
}

bool Shoplist::readyToClose()
{
    if (exitAsked_ || !list_.dirty())
        return true;
    const Answer answer = dialogs().ask({kGroceryList,
                                         QStringLiteral("Save changes made to Grocery Item Grid before exiting?"),
                                         Buttons::YesNo, Icon::None, 1});
    return answer != Answer::Yes || save();
}

void Shoplist::dateBoxEdited(const QString& text)
{
    const QString kept = DateBoxText(text, ShortDateSeparator());
    if (kept != text)
        dateBox_->setText(kept);
}

// The calendar opens on the date the box holds: the text behind its first
// "-", or all of it.
void Shoplist::openCalendar()
{
    const QString text = dateBox_->box()->text();
    const qsizetype dash = text.indexOf(u'-');
    const std::optional<QDate> shown = ProjectedDate(dash < 0 ? QStringView(text) : QStringView(text).mid(dash + 1));
    calendar_->openUnder(dateBox_->box(), shown.value_or(QDate()));
}
