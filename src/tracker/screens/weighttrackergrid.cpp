// WeightTracker's weigh-in grid: filling it from the model, typing weights,
// the calendar of the date column and of the other date fields, sorting by
// a heading click, adding and deleting rows, and the trend pictures.
#include "tracker/screens/weighttracker.h"

#include "common/clock.h"
#include "common/dates.h"
#include "common/programfolder.h"
#include "common/writefailure.h"
#include "shell/kit/popupcalendar.h"
#include "shell/kit/screengrid.h"
#include "tracker/logic/trackerentry.h"
#include "tracker/logic/trackersettings.h"
#include "tracker/logic/weighinsort.h"
#include "tracker/screens/planpanel.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>

namespace {

constexpr int kFixedColumnWidth = 14;
constexpr int kColumnWidth = 90;

} // namespace

void WeightTracker::buildGrid(QWidget* area)
{
    grid_ = new ScreenGrid(QStringLiteral("VSFlexGrid1"), area);
    grid_->setSelectionKind(ScreenGrid::Selection::SingleCell);
    grid_->setHeadings({QString(), QString::fromLatin1(kSortHeading), QString(), QString(), QString()});
    grid_->verticalHeader()->hide();
    grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grid_->horizontalHeader()->setHighlightSections(false);
    grid_->horizontalHeader()->setSectionsClickable(true);
    grid_->setColumnEditable(kWeightColumn, true);
    // Weights and differences show one decimal place ("150.", "."); the
    // cell keeps the text as typed, which is what the file stores.
    for (int column : {kWeightColumn, kChangeColumn, kDifferenceColumn})
        grid_->setColumnDisplay(column, ShownWeightText);
    grid_->setContextMenuPolicy(Qt::CustomContextMenu);
    grid_->viewport()->installEventFilter(this);
    grid_->setMinimumWidth(kFixedColumnWidth + 4 * kColumnWidth / 2);
    connect(grid_, &QTableWidget::itemChanged, this,
            [this](QTableWidgetItem* item) { cellEdited(item->row(), item->column()); });
    connect(grid_, &QTableWidget::currentCellChanged, this,
            [this](int row, int column) { cursorMoved(row, column); });
    connect(grid_, &QTableWidget::cellClicked, this, &WeightTracker::cellClicked);
    connect(grid_->horizontalHeader(), &QHeaderView::sectionClicked, this, &WeightTracker::headingClicked);
    connect(grid_, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        commands_->menu("mOptions")->popup(grid_->viewport()->mapToGlobal(at));
    });
}

void WeightTracker::fillGrid()
{
    const QSignalBlocker quiet(grid_);
    filling_ = true;
    grid_->setRowCount(int(model_.rows().size()));
    for (int row = 0; row < model_.rows().size(); ++row)
        fillRow(row);
    filling_ = false;
}

void WeightTracker::fillRow(int row)
{
    const WeighInRow& cells = model_.rows()[row];
    grid_->setText(row, kDateColumn, cells.date);
    grid_->setText(row, kWeightColumn, cells.weight);
    grid_->setText(row, kChangeColumn, cells.change);
    grid_->setText(row, kDifferenceColumn, cells.difference);
    grid_->setBold(row, kChangeColumn, cells.changeBold);
    grid_->setBold(row, kDifferenceColumn, cells.differenceBold);
}

void WeightTracker::fitColumns()
{
    // A pixel spare for the grid lines keeps the horizontal scroll bar away.
    const int width = grid_->viewport()->width() - kFixedColumnWidth - 1;
    const int column = qMax(kColumnWidth / 2, width / 4);
    grid_->setColumnWidth(0, kFixedColumnWidth);
    for (int index = kDateColumn; index <= kDifferenceColumn; ++index)
        grid_->setColumnWidth(index, column);
    // The headings above the grid stand over their columns.
    for (int index = 0; index < headings_.size(); ++index) {
        headings_[index]->setFixedWidth(column + (index == 0 ? kFixedColumnWidth : 0));
        headings_[index]->setIndent(index == 0 ? kFixedColumnWidth : 0);
    }
}

// A weight typed: the worked-out columns and the trend follow. A double
// quote would end the value in the file: it is refused.
void WeightTracker::cellEdited(int gridRow, int column)
{
    if (filling_ || column != kWeightColumn || gridRow >= model_.rows().size())
        return;
    model_.setWeight(gridRow + 1, grid_->text(gridRow, column).remove(u'"'));
    fillGrid();
    showTrend();
}

// Only the weight column is typed into: the worked-out columns send the
// cursor back to it.
void WeightTracker::cursorMoved(int gridRow, int column)
{
    if (filling_ || gridRow < 0)
        return;
    if (column == kChangeColumn || column == kDifferenceColumn)
        grid_->setCurrentCell(gridRow, kWeightColumn);
}

void WeightTracker::cellClicked(int gridRow, int column)
{
    if (column != kDateColumn) {
        calendar_->hide();
        return;
    }
    const QRect cell = grid_->visualRect(grid_->model()->index(gridRow, kDateColumn));
    openCalendar(nullptr, gridRow, grid_->text(gridRow, kDateColumn),
                 grid_->viewport()->mapTo(calendar_->parentWidget(), cell.bottomLeft()));
}

void WeightTracker::openCalendar(QLineEdit* dateField, int gridRow, const QString& current, const QPoint& at)
{
    calendarField_ = dateField;
    calendarRow_ = gridRow;
    calendar_->openAt(at, ParseDate(current.trimmed()).value_or(QDate()));
}

// A date picked: checked against the present moment when the checker is
// on, then written in the calendar's form.
void WeightTracker::datePicked(QDate date)
{
    const bool refused = DateCheckRefuses(date, clock_->now(), dateCheckerOn_);
    if (refused)
        dialogs().tell(QStringLiteral("Entry Error"), QStringLiteral("The Date entry Cannot Exceed the Current Date!"),
                       Icon::Exclamation);
    const QString text = refused ? QString() : TrackerDateText(date);
    if (calendarField_) {
        calendarField_->setText(text);
        QString* line = calendarField_ == fields_[0]           ? &model_.fields().beginningDate
                        : calendarField_ == plan_->slot(0).date ? &model_.fields().beginningPhotoDate
                                                                : &model_.fields().currentPhotoDate;
        *line = text;
        model_.setChanged(true);
        if (refused)
            calendarField_->setFocus(Qt::OtherFocusReason);
        return;
    }
    if (calendarRow_ < 0 || calendarRow_ >= model_.rows().size())
        return;
    model_.setDate(calendarRow_ + 1, text);
    {
        const QSignalBlocker quiet(grid_);
        fillRow(calendarRow_);
    }
    grid_->setFocus(Qt::OtherFocusReason);
    grid_->setCurrentCell(calendarRow_, refused ? kDateColumn : kWeightColumn);
    showTrend();
}

// The date heading sorts by date, ascending and descending in turn; the
// other headings leave the order as it is. Either way the file is saved as
// "&Save" saves it, messages and all.
void WeightTracker::headingClicked(int column)
{
    if (column < kDateColumn || model_.state() != TrackerState::Loaded)
        return;
    calendar_->hide();
    if (column == kDateColumn) {
        model_.sortByDate();
        fillGrid();
        showTrend();
    } else {
        if (!WriteGridScratch(model_.rows())) {
            dialogs().ask(WriteFailedMessage(QString::fromLatin1(kGridScratchFile)));
            return;
        }
        ReadGridScratch(model_.rows());
        fillGrid();
    }
    saveFile(false);
}

void WeightTracker::addRow()
{
    model_.addRow();
    fillGrid();
    if (saveFile(true))
        dialogs().tell(QStringLiteral("Add Row Command"),
                       QStringLiteral("Row has been added to the end of the Grid and File Saved!"), Icon::Information);
}

void WeightTracker::deleteRow()
{
    calendar_->hide();
    if (model_.rows().isEmpty())
        return;
    const int gridRow = qMax(grid_->currentRow(), 0);
    const int column = grid_->currentColumn();
    const auto highlight = [this, gridRow](bool on) {
        const QSignalBlocker quiet(grid_);
        for (int index = 0; index <= kDifferenceColumn; ++index) {
            if (!grid_->item(gridRow, index))
                grid_->setText(gridRow, index, QString());
            grid_->item(gridRow, index)->setBackground(on ? palette().highlight() : QBrush());
            grid_->item(gridRow, index)->setForeground(on ? palette().highlightedText() : QBrush());
        }
    };
    highlight(true);
    const Message question{QStringLiteral("Delete Highlighted Entry"),
                           QStringLiteral("Do you really want to delete the highlighted Entry?"), Buttons::YesNo,
                           Icon::Question, 2};
    if (dialogs().ask(question) != Answer::Yes) {
        highlight(false);
        grid_->setCurrentCell(gridRow, qMax(column, kDateColumn));
        return;
    }
    model_.deleteRow(gridRow + 1);
    fillGrid();
    if (saveFile(true))
        dialogs().tell(QStringLiteral("Delete Row Command"), QStringLiteral("Row has been Deleted and File Saved"),
                       Icon::Information);
}

void WeightTracker::showTrend()
{
    const Trend trend = model_.trend();
    const TrendPicture pictures[] = {trend.lastEntry, trend.beginning};
    for (int index = 0; index < 2; ++index) {
        const QString file = TrendPictureFile(pictures[index]);
        trendPictures_[index]->setPixmap(file.isEmpty() ? QPixmap() : QPixmap(ResolveFileName(file)));
        trendPictures_[index]->setProperty("pictureFile", file);
        trendPictures_[index]->setVisible(trendShown_);
        trendCaptions_[index]->setVisible(trendShown_);
    }
    for (QLabel* goal : goalLabels_)
        goal->setVisible(trend.goalReached);
    goalNote_ = trend.goalReached ? QStringLiteral("GOAL") : QString();
}

void WeightTracker::toggleTrendDisplay()
{
    trendShown_ = !trendShown_;
    commands_->button(TrackerCommand::Trend)
        ->setText(trendShown_ ? QStringLiteral("Turn Trend Display OFF") : QStringLiteral("Turn Trend Display ON"));
    showTrend();
    if (const WriteOutcome outcome = StoreTrendDisplayOn(trendShown_); !outcome)
        dialogs().ask(WriteFailedMessage(outcome.failedFile));
}

void WeightTracker::toggleDateChecker()
{
    dateCheckerOn_ = !dateCheckerOn_;
    commands_->action(TrackerCommand::DateChecker)
        ->setText(dateCheckerOn_ ? QStringLiteral("Turn OFF Date Checker") : QStringLiteral("Turn ON Date Checker"));
    if (const WriteOutcome outcome = StoreDateCheckerOn(dateCheckerOn_); !outcome)
        dialogs().ask(WriteFailedMessage(outcome.failedFile));
}

void WeightTracker::showWeighIns()
{
    closeCalendarAndPanels();
    pages_->setCurrentWidget(weighInPanel_);
    pages_->show();
    showTrend();
}
