#include "planner/screens/zcalandar.h"

#include "common/clock.h"
#include "common/dates.h"
#include "common/programfolder.h"
#include "common/writefailure.h"
#include "planner/logic/plannertextcolor.h"
#include "planner/screens/calendaroptionspanel.h"
#include "planner/screens/calendarstrip.h"
#include "planner/screens/daylinespanel.h"
#include "planner/screens/editlistspanel.h"
#include "planner/screens/menuviewpanel.h"
#include "print/screens/printoptionspanel.h"
#include "shell/kit/raisedpanel.h"
#include "shell/kit/screenstatusbar.h"
#include "shell/kit/screentoolbars.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

QLabel* MakeInfoPanel(const QString& objectName, QWidget* parent)
{
    auto* panel = new QLabel(parent);
    panel->setObjectName(objectName);
    panel->setAlignment(Qt::AlignCenter);
    MakeRaised(panel);
    panel->setMargin(4);
    QFont font = panel->font();
    font.setPointSize(font.pointSize() + 2);
    font.setBold(true);
    panel->setFont(font);
    return panel;
}

} // namespace

Zcalandar::Zcalandar(Dialogs& dialogs, QWidget* parent) : Zcalandar(dialogs, SystemTime(), parent) {}

Zcalandar::Zcalandar(Dialogs& dialogs, const Clock& clock, QWidget* parent)
    : ActivityWindow(dialogs, {"Zcalandar", Settings::ZcalandarPanelColor, kHelpTopic}, parent), clock_(clock)
{
    setWindowTitle(QStringLiteral("Menu Planner"));
    buildScreen();
    connectPanels();
    declareEscapeOrder();
    textColor_ = ReadPlannerTextColor();
    lines_->setTextColor(textColor_);
    view_->setTextColor(textColor_);
    runOpening();
    showActivity();
    showClock();
    clockTimer_ = new QTimer(this);
    connect(clockTimer_, &QTimer::timeout, this, &Zcalandar::showClock);
    clockTimer_->start(1000);
}

Zcalandar::~Zcalandar() = default;

void Zcalandar::buildScreen()
{
    auto* central = new QWidget(this);
    central->setObjectName(QStringLiteral("ZcalandarArea"));
    setCentralWidget(central);

    calendar_ = new CalendarStrip;
    MakeRaised(calendar_);
    calendarArea_ = new QScrollArea(central);
    calendarArea_->setObjectName(QStringLiteral("CalendarArea"));
    calendarArea_->setFrameShape(QFrame::NoFrame);
    calendarArea_->setWidgetResizable(true);
    calendarArea_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    calendarArea_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    calendarArea_->setWidget(calendar_);

    datePanel_ = MakeInfoPanel(QStringLiteral("DatePanel"), central);
    clockPanel_ = MakeInfoPanel(QStringLiteral("ClockPanel"), central);
    auto* info = new QHBoxLayout;
    info->addWidget(datePanel_, 1);
    info->addWidget(clockPanel_);

    lines_ = new DayLinesPanel(central);
    QFrame* buttons = MakeRaisedPanel(QStringLiteral("CommandPanel"), central);
    buildCommands(buttons);
    // Every button of the screen stands on the top toolbar; the side toolbar
    // would be an empty strip.
    toolbars()->side()->hide();
    auto* buttonRow = new QHBoxLayout(buttons);
    buttonRow->setContentsMargins(6, 4, 6, 4);
    for (QPushButton* button : commands_->buttons())
        buttonRow->addWidget(button);

    auto* layout = new QVBoxLayout(central);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    // A larger window gives the calendars the room; the lines keep their height.
    layout->addWidget(calendarArea_, 1);
    layout->addLayout(info);
    layout->addWidget(lines_);
    layout->addWidget(buttons);

    editLists_ = new EditListsPanel(central);
    options_ = new CalendarOptionsPanel(central);
    view_ = new MenuViewPanel(central);
    buildPrintPanel(central);

    addColouredPanels(QList<QWidget*>{calendar_, datePanel_, clockPanel_, buttons, editLists_, view_}
                      + lines_->colouredPanels() + options_->colouredPanels() + printPanel_->colouredPanels());
}

void Zcalandar::connectPanels()
{
    connect(calendar_, &CalendarStrip::daySelected, this, &Zcalandar::daySelected);
    connect(lines_, &DayLinesPanel::lineEntered, this, &Zcalandar::lineEntered);
    connect(lines_, &DayLinesPanel::lineEdited, this, &Zcalandar::lineEdited);
    connect(lines_, &DayLinesPanel::deletePressed, this, &Zcalandar::lineEdited);
    connect(lines_, &DayLinesPanel::enterPressed, this, &Zcalandar::enterPressed);
    connect(lines_, &DayLinesPanel::itemPicked, this, &Zcalandar::itemPicked);

    connect(editLists_, &EditListsPanel::listChosen, this, &Zcalandar::chooseEditList);
    connect(editLists_, &EditListsPanel::itemEntered, this, &Zcalandar::addListItem);
    connect(editLists_, &EditListsPanel::deleteRequested, this, &Zcalandar::deleteListItem);
    connect(editLists_, &EditListsPanel::closeRequested, this, &Zcalandar::closeEditLists);

    connect(options_, &CalendarOptionsPanel::optionsChanged, this, &Zcalandar::applyCalendarOptions);
    connect(options_, &CalendarOptionsPanel::closeRequested, this, &Zcalandar::closeCalendarOptions);

    connect(view_, &MenuViewPanel::viewRequested, this, &Zcalandar::showView);
    connect(view_, &MenuViewPanel::printOptionsRequested, this, &Zcalandar::openPrintOptions);
    connect(view_, &MenuViewPanel::closeRequested, this, &Zcalandar::closePrintView);
    connect(view_, &MenuViewPanel::choiceChanged, this, [this] {
        if (view_->tableShown())
            showView();
    });

    connect(commands_->menu("mUtilities"), &QMenu::aboutToShow, this, &Zcalandar::utilitiesOpening);
}

QDate Zcalandar::currentDate() const
{
    return calendar_->selectedDate();
}

// ---- Showing the state ---------------------------------------------------------

void Zcalandar::setPanel(PlannerPanel panel)
{
    state_.panel = panel;
    applyCommandStates();
}

void Zcalandar::applyCommandStates()
{
    on_ = CommandStatesFor(state_);
    commands_->refresh();
    commands_->menu("mOptions")->setEnabled(on_.optionsMenu);
    // The print options take the place of the screen's options.
    commands_->menu("mOptions")->menuAction()->setVisible(!state_.printOptionsOpen);
    commands_->menu("mEdit")->setEnabled(on_.editMenu);
    lines_->setLinesOpen(on_.linesOpen);
}

void Zcalandar::tell(const QString& title, const QString& text)
{
    dialogs().tell(title, text, Icon::Information);
}

// Tells the user when a write failed; the written flag passes through.
bool Zcalandar::tellWriteFailed(bool written, const QString& fileName)
{
    if (!written)
        dialogs().ask(WriteFailedMessage(ResolveFileName(fileName)));
    return written;
}

void Zcalandar::showActivity(const QString& text)
{
    screenStatusBar()->setActivity(text.isEmpty() ? windowTitle() : text);
}

void Zcalandar::showLongDate()
{
    const QDate date = currentDate();
    datePanel_->setText(date.isValid() ? LongDate(date) : QString());
}

void Zcalandar::showClock()
{
    clockPanel_->setText(FormatDateTime(clock_.now(), u"h:nn AM/PM"));
}

// The calendars never get less than their height; where the window is too
// narrow for them side by side they scroll across.
void Zcalandar::fitCalendarArea()
{
    const bool scrolls = calendar_->minimumSizeHint().width() > calendarArea_->viewport()->width();
    calendarArea_->setMinimumHeight(calendar_->sizeHint().height()
                                    + (scrolls ? calendarArea_->horizontalScrollBar()->sizeHint().height() : 0));
}

void Zcalandar::resizeEvent(QResizeEvent* event)
{
    ActivityWindow::resizeEvent(event);
    fitCalendarArea();
    // The print options cover the whole screen below the toolbar, and so
    // does the view panel while its table shows.
    placeViewPanel();
    printPanel_->setGeometry(centralWidget()->rect());
}
