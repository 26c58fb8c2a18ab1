#include "tracker/screens/weighttracker.h"

#include "common/clock.h"
#include "print/screens/printoptionspanel.h"
#include "shell/kit/focuscolour.h"
#include "shell/kit/picturechooserpanel.h"
#include "shell/kit/popupcalendar.h"
#include "shell/kit/raisedpanel.h"
#include "shell/kit/screengrid.h"
#include "shell/kit/screenstatusbar.h"
#include "tracker/logic/trackerentry.h"
#include "tracker/logic/trackersettings.h"
#include "tracker/screens/enlargedpicturepanel.h"
#include "tracker/screens/planpanel.h"
#include "tracker/screens/weightgraphpanel.h"

#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

const QString kCaption = QStringLiteral("Weight Tracker");

// Lines 2, 3 and 4 of the file, on the main panel, with their limits.
struct MainField {
    const char* name;
    const char* caption;
    int limit;
    QString TrackerFields::*line;
    bool number;
};
const MainField kMainFields[] = {
    {"Text2", "Beginning Date: ", kBeginningDateLimit, &TrackerFields::beginningDate, false},
    {"Text3", "Beginning Weight:", kBeginningWeightLimit, &TrackerFields::beginningWeight, true},
    {"Text4", "Goal Weight:", kGoalWeightLimit, &TrackerFields::goalWeight, true},
};

bool IsEnter(const QKeyEvent* key)
{
    return key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
}

} // namespace

WeightTracker::WeightTracker(Dialogs& dialogs, QWidget* parent)
    : ActivityWindow(dialogs, {"WeightTracker", Settings::WeightTrackerPanelColor, kHelpTopic,
                               Settings::WeightTrackerToolbarFlag},
                     parent),
      clock_(&SystemTime())
{
    setWindowTitle(kCaption);
    auto* central = new QWidget(this);
    central->setObjectName(QStringLiteral("WeightTrackerArea"));
    setCentralWidget(central);

    captionStrip_ = new QLabel(kCaption, central);
    captionStrip_->setObjectName(QStringLiteral("SSPanel1"));
    captionStrip_->setAlignment(Qt::AlignCenter);
    MakeRaised(captionStrip_);
    QFont captionFont = captionStrip_->font();
    captionFont.setPointSize(captionFont.pointSize() + 3);
    captionFont.setBold(true);
    captionStrip_->setFont(captionFont);

    QWidget* main = buildMainPanel(central);
    pages_ = new QStackedWidget(central);
    pages_->addWidget(buildWeighInPanel(pages_));
    // The plan scrolls when the screen is too small to show it whole.
    planScroll_ = new QScrollArea(pages_);
    planScroll_->setObjectName(QStringLiteral("PlanScroll"));
    planScroll_->setWidgetResizable(true);
    planScroll_->setFrameShape(QFrame::NoFrame);
    plan_ = new PlanPanel(planScroll_);
    planScroll_->setWidget(plan_);
    pages_->addWidget(planScroll_);
    // Only the page shown asks for room: the weigh-ins' wide grid does not
    // widen the window while the plan is up.
    connect(pages_, &QStackedWidget::currentChanged, this, [this](int shown) {
        for (int index = 0; index < pages_->count(); ++index)
            pages_->widget(index)->setSizePolicy(index == shown ? QSizePolicy::Preferred : QSizePolicy::Ignored,
                                                 index == shown ? QSizePolicy::Preferred : QSizePolicy::Ignored);
    });
    planScroll_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    commandPanel_ = MakeRaisedPanel(QStringLiteral("SSPanel6"), central);
    buildCommands(commandPanel_);
    trendColumn_->insertWidget(trendColumn_->count() - 1, commands_->button(TrackerCommand::Trend));

    // The panels keep their own height; the weigh-ins or the plan take the
    // rest, and with neither up the rest stays empty below the commands.
    for (QWidget* panel : {static_cast<QWidget*>(captionStrip_), main, static_cast<QWidget*>(commandPanel_)})
        panel->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    auto* layout = new QVBoxLayout(central);
    layout->addWidget(captionStrip_);
    layout->addWidget(main);
    layout->addWidget(pages_, 1);
    layout->addWidget(commandPanel_);
    layout->addStretch(0);

    calendar_ = new PopupCalendar(QStringLiteral("MonthView1"), central);
    calendar_->setClock(*clock_);
    connect(calendar_, &PopupCalendar::datePicked, this, &WeightTracker::datePicked);
    graph_ = new WeightGraphPanel(central);
    connect(graph_, &OverlayPanel::closeRequested, this, [this] { closePanel(graph_); });
    chooser_ = new PictureChooserPanel(central);
    connect(chooser_, &PictureChooserPanel::pictureEntered, this, &WeightTracker::pictureEntered);
    connect(chooser_, &PictureChooserPanel::pictureDeleted, this, &WeightTracker::pictureDeleted);
    connect(chooser_, &PictureChooserPanel::left, this, &WeightTracker::closeChooser);
    connect(chooser_, &PictureChooserPanel::driveUnavailable, this, [&dialogs] { dialogs.ask(kDeviceUnavailable); });
    enlarged_ = new EnlargedPicturePanel(central);
    connect(enlarged_, &OverlayPanel::closeRequested, this, [this] { closePanel(enlarged_); });
    // The chooser's preview, clicked, at full size over the chooser.
    connect(chooser_, &PictureChooserPanel::previewClicked, this,
            [this](const QString& path) { enlarged_->showPicture(QStringLiteral("Picture Preview"), path, {}); });
    buildPlan();
    buildPrintPanel(central);
    buildFieldRules();

    QList<QWidget*> coloured{captionStrip_, mainPanel_, weighInPanel_, plan_, commandPanel_, graph_, chooser_,
                             enlarged_};
    coloured += printPanel_->colouredPanels();
    addColouredPanels(coloured);
    grid_->applyColors(GridColorsOf(ReadSlotText(Settings::WeightTrackerGridColor), u"Default"));
    declareEscapeOrder();

    dateCheckerOn_ = ReadDateCheckerOn();
    trendShown_ = ReadTrendDisplayOn();
    commands_->action(TrackerCommand::DateChecker)
        ->setText(dateCheckerOn_ ? QStringLiteral("Turn OFF Date Checker") : QStringLiteral("Turn ON Date Checker"));
    commands_->button(TrackerCommand::Trend)
        ->setText(trendShown_ ? QStringLiteral("Turn Trend Display OFF") : QStringLiteral("Turn Trend Display ON"));
    screenStatusBar()->setActivity(kCaption);
    showState();
    // The screen opens as "&View Existing File" does.
    viewExisting();
}

// The children are taken down after this part of the screen: a field that
// loses the keyboard on the way must not call back into it.
WeightTracker::~WeightTracker()
{
    for (QObject* child : findChildren<QObject*>())
        disconnect(child, nullptr, this, nullptr);
}

void WeightTracker::setClock(const Clock& clock)
{
    clock_ = &clock;
    calendar_->setClock(clock);
}

QWidget* WeightTracker::buildMainPanel(QWidget* area)
{
    mainPanel_ = MakeRaisedPanel(QStringLiteral("SSPanel2"), area);
    nameCaption_ = new QLabel(mainPanel_);
    nameCaption_->setObjectName(QStringLiteral("Label1"));
    nameList_ = new QComboBox(mainPanel_);
    nameList_->setObjectName(QStringLiteral("Combo1"));
    nameList_->setMinimumContentsLength(kNameLimit);
    nameField_ = new QLineEdit(mainPanel_);
    nameField_->setObjectName(QStringLiteral("Text1"));
    nameField_->setMaxLength(kNameLimit);
    note_ = new QLabel(
        QStringLiteral("NOTE: To track weight by calendar year add year to end of Name (i.e. John Smith 2012)"),
        mainPanel_);
    note_->setObjectName(QStringLiteral("lblNote"));
    note_->setWordWrap(true);
    connect(nameList_, &QComboBox::activated, this, &WeightTracker::individualPicked);

    auto* grid = new QGridLayout(mainPanel_);
    grid->addWidget(nameCaption_, 0, 0);
    grid->addWidget(nameList_, 1, 0);
    grid->addWidget(nameField_, 1, 0);
    grid->addWidget(note_, 2, 0, 1, 4);
    for (int index = 0; index < int(std::size(kMainFields)); ++index) {
        auto* caption = new QLabel(QString::fromLatin1(kMainFields[index].caption), mainPanel_);
        auto* field = new QLineEdit(mainPanel_);
        field->setObjectName(QString::fromLatin1(kMainFields[index].name));
        field->setMaxLength(kMainFields[index].limit);
        caption->setBuddy(field);
        grid->addWidget(caption, 0, index + 1);
        grid->addWidget(field, 1, index + 1);
        fields_.append(field);
    }
    grid->setColumnStretch(0, 2);
    for (int column = 1; column <= 3; ++column)
        grid->setColumnStretch(column, 1);
    return mainPanel_;
}

// Every field: the focus colour, the rule of its last character, the
// changed flag, and Enter moving on within its panel.
void WeightTracker::buildFieldRules()
{
    for (int index = 0; index < int(std::size(kMainFields)); ++index) {
        QLineEdit* field = fields_[index];
        const MainField& rule = kMainFields[index];
        connect(field, &QLineEdit::textEdited, this, [this, field, rule] { fieldEdited(field, rule.line, rule.number); });
    }
    connect(plan_->daysPerWeek(), &QLineEdit::textEdited, this,
            [this] { fieldEdited(plan_->daysPerWeek(), &TrackerFields::daysPerWeek, true); });
    connect(plan_->timePerPeriod(), &QLineEdit::textEdited, this,
            [this] { fieldEdited(plan_->timePerPeriod(), &TrackerFields::timePerPeriod, false); });
    connect(plan_->exerciseTypes(), &QLineEdit::textEdited, this,
            [this] { fieldEdited(plan_->exerciseTypes(), &TrackerFields::exerciseTypes, false); });
    connect(nameField_, &QLineEdit::textEdited, this, [this](const QString& text) {
        const QString kept = FilterTextField(text);
        if (kept != text)
            nameField_->setText(kept);
        model_.setChanged(true);
    });
    QList<QWidget*> all{nameField_, nameList_, plan_->daysPerWeek(), plan_->timePerPeriod(), plan_->exerciseTypes(),
                        plan_->comments(), plan_->slot(0).date, plan_->slot(1).date};
    for (QLineEdit* field : fields_)
        all.append(field);
    for (QWidget* field : all) {
        ShowFocusColourWhileFocused(field);
        field->installEventFilter(this);
    }
}

void WeightTracker::fieldEdited(QLineEdit* field, QString TrackerFields::*line, bool number)
{
    const QString text = field->text();
    const QString kept = number ? FilterNumberField(text) : FilterTextField(text);
    if (kept != text) {
        field->setText(kept);
        field->setCursorPosition(int(kept.size()));
    }
    model_.fields().*line = kept;
    model_.setChanged(true);
}

QWidget* WeightTracker::buildWeighInPanel(QWidget* area)
{
    weighInPanel_ = MakeRaisedPanel(QStringLiteral("SSPanel3"), area);
    buildGrid(weighInPanel_);
    auto* headings = new QHBoxLayout;
    headings->setSpacing(0);
    for (const char* text : {"Date of Weigh In", "Current Weight ", "Change from last Entry  ",
                             "Beginning Weight Difference"}) {
        auto* heading = new QLabel(QString::fromLatin1(text), weighInPanel_);
        heading->setObjectName(QStringLiteral("lblHeading_%1").arg(headings_.size() + 1));
        heading->setWordWrap(true);
        headings_.append(heading);
        headings->addWidget(heading);
    }
    headings->addStretch();

    auto* trend = new QVBoxLayout;
    trendColumn_ = trend;
    const char* captions[] = {"Last  Entry Trend ", "Beginning Weight  Trend   "};
    for (int index = 0; index < 2; ++index) {
        auto* caption = new QLabel(QString::fromLatin1(captions[index]), weighInPanel_);
        caption->setObjectName(QStringLiteral("lblTrend_%1").arg(index));
        auto* picture = new QLabel(weighInPanel_);
        picture->setObjectName(QStringLiteral("Image%1").arg(index + 1));
        picture->setFixedSize(48, 48);
        picture->setScaledContents(true);
        trendCaptions_.append(caption);
        trendPictures_.append(picture);
        trend->addWidget(caption);
        trend->addWidget(picture);
    }
    for (const char* text : {"GOAL WEIGHT ACHIEVED!", "CONGRATULATIONS!"}) {
        auto* goal = new QLabel(QString::fromLatin1(text), weighInPanel_);
        goal->setObjectName(QStringLiteral("lblGoal_%1").arg(goalLabels_.size()));
        QFont bold = goal->font();
        bold.setBold(true);
        goal->setFont(bold);
        goal->hide();
        goalLabels_.append(goal);
        trend->addWidget(goal);
    }
    trend->addStretch();

    auto* left = new QVBoxLayout;
    left->addLayout(headings);
    left->addWidget(grid_, 1);
    auto* row = new QHBoxLayout(weighInPanel_);
    row->addLayout(left, 1);
    row->addLayout(trend);
    return weighInPanel_;
}

QLineEdit* WeightTracker::field(int line) const
{
    switch (line) {
    case 2:
    case 3:
    case 4:
        return fields_[line - 2];
    case 5:
        return plan_->daysPerWeek();
    case 6:
        return plan_->timePerPeriod();
    case 7:
        return plan_->exerciseTypes();
    case 8:
    case 9:
        return plan_->slot(line - 8).date;
    default:
        return nullptr;
    }
}

QLabel* WeightTracker::trendPicture(int index) const
{
    return trendPictures_.value(index);
}

QLabel* WeightTracker::goalLabel(int index) const
{
    return goalLabels_.value(index);
}

bool WeightTracker::weighInsShown() const
{
    return !pages_->isHidden() && pages_->currentWidget() == weighInPanel_;
}

bool WeightTracker::planShown() const
{
    return !pages_->isHidden() && pages_->currentWidget() == planScroll_;
}

// The name as a free field while creating, the list otherwise; the note
// and "&Save New File" only while creating; the panels only with an
// individual loaded, or the plan while a new one is entered, so that its
// plan and pictures go into its first save.
void WeightTracker::showState()
{
    const bool creating = model_.state() == TrackerState::Creating;
    nameCaption_->setText(creating ? QStringLiteral("Enter File Name:") : QStringLiteral("Select Individual:"));
    nameField_->setVisible(creating);
    nameList_->setVisible(!creating);
    note_->setVisible(creating);
    commands_->button(TrackerCommand::SaveNew)->setVisible(creating);
    commands_->action(TrackerCommand::SaveNew)->setVisible(creating);
    pages_->setVisible(model_.state() == TrackerState::Loaded || creating);
    applyCommandStates();
}

void WeightTracker::showFields()
{
    const TrackerFields& f = model_.fields();
    const QString* lines[] = {&f.beginningDate, &f.beginningWeight, &f.goalWeight, &f.daysPerWeek,
                              &f.timePerPeriod, &f.exerciseTypes,   &f.beginningPhotoDate, &f.currentPhotoDate};
    for (int line = 2; line <= 9; ++line)
        field(line)->setText(*lines[line - 2]);
    {
        const QSignalBlocker quiet(plan_->comments());
        plan_->comments()->setPlainText(QString(f.comments).replace(QLatin1String("\r\n"), QLatin1String("\n")));
    }
    plan_->showCommentLength(int(f.comments.size()));
    showPictures();
}

void WeightTracker::applyCommandStates()
{
    on_ = CommandStatesFor(model_.state(), panel_);
    commands_->refresh();
}

bool WeightTracker::readyToClose()
{
    return promptIfChanged(model_.holdsEntries(nameField_->text()));
}

bool WeightTracker::enterPressed(QObject* watched)
{
    // Enter moves on within the panel: the main panel ends at the goal
    // weight, which hands on to the grid when the weigh-ins are up; the
    // plan's fields end in the comments.
    const QList<QWidget*> mainOrder{model_.state() == TrackerState::Creating ? static_cast<QWidget*>(nameField_)
                                                                             : nameList_,
                                    fields_[0], fields_[1], fields_[2]};
    const QList<QWidget*> planOrder{plan_->daysPerWeek(), plan_->timePerPeriod(), plan_->exerciseTypes(),
                                    plan_->comments()};
    for (const QList<QWidget*>* order : {&mainOrder, &planOrder}) {
        const int at = order->indexOf(static_cast<QWidget*>(watched));
        if (at < 0)
            continue;
        if (at + 1 < order->size())
            order->at(at + 1)->setFocus(Qt::TabFocusReason);
        else if (order == &mainOrder && weighInsShown())
            grid_->setFocus(Qt::TabFocusReason);
        return true;
    }
    return false;
}

bool WeightTracker::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && IsEnter(static_cast<QKeyEvent*>(event)) && watched != plan_->comments()
        && enterPressed(watched))
        return true;
    if (event->type() == QEvent::MouseButtonPress) {
        // The beginning date and the photograph dates take a date from the
        // calendar.
        for (QLineEdit* dateField : {fields_[0], plan_->slot(0).date, plan_->slot(1).date}) {
            if (watched == dateField && dateField->isEnabled())
                openCalendar(dateField, -1, dateField->text(),
                             dateField->mapTo(calendar_->parentWidget(), dateField->rect().bottomLeft()));
        }
    }
    if (grid_ && watched == grid_->viewport() && event->type() == QEvent::Resize)
        fitColumns();
    return ActivityWindow::eventFilter(watched, event);
}

void WeightTracker::resizeEvent(QResizeEvent* event)
{
    ActivityWindow::resizeEvent(event);
    // The print options panel covers the whole screen below the toolbar.
    printPanel_->setGeometry(centralWidget()->rect());
}
