// Form24's entry: what the cursor does in each cell, the input box and its
// character rules, committing a value, the family field, the calendar of
// the date column, and the row a right click names.
#include "storage/screens/form24.h"

#include "common/dates.h"
#include "shell/kit/popupcalendar.h"
#include "shell/kit/screengrid.h"
#include "shell/kit/screenstatusbar.h"
#include "shell/logic/processvalues.h"
#include "storage/screens/piepanel.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

namespace {

bool IsEnter(const QKeyEvent* key)
{
    return key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
}

// A key that types a character (not a control key, not a shortcut).
std::optional<QChar> TypedCharacter(const QKeyEvent* key)
{
    if (key->text().size() != 1 || (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
        return std::nullopt;
    const QChar typed = key->text().front();
    if (!typed.isPrint())
        return std::nullopt;
    return typed;
}

} // namespace

// While a panel lies over the screen the grid is only looked at.
void Form24::cursorMoved(int gridRow, int column)
{
    if (filling_ || panel_ != StoragePanel::None || gridRow < 0 || column < 0)
        return;
    applyCursorRule(gridRow, column);
}

void Form24::applyCursorRule(int gridRow, int column)
{
    const int row = model_.tableRow(gridRow);
    if (row == 0)
        return;
    const CursorOutcome outcome = model_.cursorRule(row, column);
    if (outcome.closeCalendar)
        calendar_->hide();
    if (outcome.notice)
        dialogs().ask(*outcome.notice);
    forgetEntryCell();
    switch (outcome.then) {
    case CursorOutcome::Then::Nothing:
        break;
    case CursorOutcome::Then::ToItemColumn:
        moveCursor(gridRow, kItemColumn);
        applyCursorRule(gridRow, kItemColumn);
        break;
    case CursorOutcome::Then::FocusFamily:
        family_->setFocus(Qt::OtherFocusReason);
        family_->selectAll();
        break;
    case CursorOutcome::Then::LoadInput:
    case CursorOutcome::Then::OpenCalendar:
        entryRow_ = row;
        entryColumn_ = outcome.entryColumn;
        moveCursor(gridRow, outcome.entryColumn);
        input_->setText(outcome.inputText);
        if (outcome.then == CursorOutcome::Then::OpenCalendar) {
            const QRect cell = grid_->visualRect(grid_->model()->index(gridRow, kDateColumn));
            const QPoint under = grid_->viewport()->mapTo(calendar_->parentWidget(), cell.bottomLeft());
            calendar_->openAt(under, outcome.calendarDate);
        } else if (input_->isEnabled()) {
            input_->setFocus(Qt::OtherFocusReason);
            input_->selectAll();
        }
        break;
    }
}

// Moves the grid's cursor without running the rules again.
void Form24::moveCursor(int gridRow, int column)
{
    if (grid_->currentRow() == gridRow && grid_->currentColumn() == column)
        return;
    const QSignalBlocker quiet(grid_);
    grid_->setCurrentCell(gridRow, column);
}

void Form24::forgetEntryCell()
{
    entryRow_ = 0;
    entryColumn_ = -1;
}

bool Form24::inputKeyPressed(QKeyEvent* key)
{
    const std::optional<QChar> typed = TypedCharacter(key);
    if (!IsEnter(key) && !typed)
        return false;
    if (entryRow_ == 0) {
        dialogs().tell(QStringLiteral("Grid Entry Routine"), QStringLiteral("Please first select Grid location for input."),
                       Icon::Exclamation);
        return true;
    }
    if (IsEnter(key)) {
        commitInput();
        return true;
    }
    return !InputAccepts(entryColumn_, *typed);
}

bool Form24::familyKeyPressed(QKeyEvent* key)
{
    if (IsEnter(key)) {
        familyEntered();
        return true;
    }
    const std::optional<QChar> typed = TypedCharacter(key);
    return typed && !FamilyAccepts(*typed);
}

void Form24::commitInput()
{
    commit(input_->text());
}

// A value goes to the remembered cell and the grid shows the table again;
// the keyboard goes on to "&Save", or to the first category button when
// saving is off.
void Form24::commit(const QString& text)
{
    const CommitOutcome outcome = model_.commit(entryRow_, entryColumn_, text);
    if (outcome.refused) {
        input_->setFocus(Qt::OtherFocusReason);
        return;
    }
    calendar_->hide();
    fillGrid();
    if (outcome.stockChanged)
        showPie();
    input_->clear();
    QPushButton* save = commands_->button(Form24Command::Save);
    QWidget* next = save->isEnabled() ? save : categoryButtons_.first();
    next->setFocus(Qt::OtherFocusReason);
}

// Leaving the family field, or Enter in it: the size is kept and, in the
// "&All" view, every need is worked out again.
void Form24::familyEntered()
{
    if (family_->text() == model_.familySize())
        return;
    model_.setFamilySize(family_->text());
    fillGrid();
}

// A picked date goes into the date cell in the date form of the program.
void Form24::datePicked(QDate date)
{
    if (entryRow_ == 0 || entryColumn_ != kDateColumn)
        return;
    const QString form = Process().DateFormatMode == u"OTHER" ? QStringLiteral("d/m/yy") : QStringLiteral("m/d/yy");
    input_->setText(FormatDate(date, form));
    commit(input_->text());
}

// A right click tells the row's number and item in the status bar.
void Form24::rowClicked(const QPoint& at)
{
    const int row = model_.tableRow(grid_->rowAt(at.y()));
    if (row == 0)
        return;
    screenStatusBar()->setActivity(QStringLiteral(" Row %1:  %2").arg(row).arg(ItemName(model_.table(), row)));
}
