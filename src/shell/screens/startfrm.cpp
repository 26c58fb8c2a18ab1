#include "shell/screens/startfrm.h"

#include "common/dates.h"
#include "common/dialogs.h"
#include "common/writefailure.h"
#include "common/programfolder.h"
#include "common/widgets/qtcolors.h"
#include "common/widgets/twips.h"
#include "shell/logic/familyname.h"
#include "shell/logic/processvalues.h"
#include "shell/settings/settingsregistry.h"
#include "shell/logic/windowsettings.h"
#include "shell/screens/about1.h"
#include "shell/screens/backgroundselector.h"
#include "shell/kit/helpwindow.h"
#include "shell/kit/screenbusy.h"
#include "shell/screens/screenmetrics.h"
#include "shell/kit/screenstatusbar.h"
#include "shell/screens/splash1.h"
#include "shell/kit/accesskeys.h"
#include "shell/kit/activitywindow.h"
#include "shell/kit/programidentity.h"
#include "shell/kit/raisedpanel.h"

#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace {

constexpr int kPanelRaiseTwips = 400; // the command panel sits this far above the centre

constexpr MenuRow kMenus[] = {
    {"mOptions", "&Options"},
    {"mProgramDisplay", "&Program Display", "mOptions"},
    {"mBrindlepot", "Brindlepot"},
    {"mHelp", "&Help"},
};

// Where each button index stands in the 3 x 3 panel (row, column).
constexpr int kButtonCell[][2] = {{0, 0}, {0, 1}, {0, 2}, {1, 0}, {1, 1}, {2, 1}, {1, 2}, {2, 2}, {2, 0}};

QString ScreenTooSmallText()
{
    return QStringLiteral("Monitor Resolution Settings (Screen Area) and Program Size requirements are at "
                          "least 800 by 600 or Higher.\nIf you do not set your screen resolution to this "
                          "setting or higher this program will not function properly!");
}

QString FamilyNamePrompt()
{
    return QStringLiteral("Please Enter Family Name for use in the Various Program areas.\nTo Accept name,\n"
                          "click OK.\nTo Delete name,\nclick Cancel or press <Esc> key.");
}

} // namespace

Startfrm::Startfrm(Dialogs& dialogs, const ScreenMetrics& screen, QWidget* parent)
    : QMainWindow(parent), dialogs_(dialogs), screen_(screen)
{
    setObjectName(QStringLiteral("Startfrm"));
    setWindowIcon(ProgramIcon());
    central_ = new QWidget(this);
    central_->setObjectName(QStringLiteral("MainArea"));
    central_->setAutoFillBackground(true);
    central_->installEventFilter(this);
    setCentralWidget(central_);
    image1_ = new QLabel(central_);
    image1_->setObjectName(QStringLiteral("Image1"));
    image1_->setScaledContents(true);
    image1_->hide();

    statusBar_ = new ScreenStatusBar(this);
    statusBar_->setActivity(QStringLiteral("Main Menu"));
    setStatusBar(statusBar_);

    new AccessKeys(this);
    activities_ = new ActivityHost(this);
    connect(activities_, &ActivityHost::activityClosed, this, &Startfrm::focusGained);
    buildCommandPanel();

    backgroundSelector_ = new BackgroundSelector(dialogs_, central_);
    connect(backgroundSelector_, &BackgroundSelector::previewBackground, this, &Startfrm::showBackground);
    connect(backgroundSelector_, &BackgroundSelector::backgroundChosen, this, [this](const Background& chosen) {
        background_ = chosen;
        showBackground(background_);
    });
    connect(backgroundSelector_, &BackgroundSelector::activityChanged, statusBar_, &ScreenStatusBar::setActivity);

    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    // Escape closes the background selector first, then it is "E&xit".
    connect(escape, &QShortcut::activated, this, [this] {
        if (backgroundSelector_->isOpen())
            backgroundSelector_->cancel();
        else
            exitProgram();
    });
    auto* f1 = new QShortcut(QKeySequence(Qt::Key_F1), this);
    connect(f1, &QShortcut::activated, this, [this] {
        showHelp(backgroundSelector_->isOpen() ? BackgroundSelector::kHelpTopic : kOverviewTopic);
    });

    runStart();
}

// The activities' rows have no routine until their screen is registered.
std::vector<CommandRow<MainCommand>> Startfrm::commandRows()
{
    using enum MainCommand;
    return {
        {Background, {.name = "mBackground", .menu = "mOptions", .caption = "&Background Selector",
                      .run = [this] { backgroundSelector_->toggle(background_); }}},
        {FullScreen, {.name = "mFullScreen", .menu = "mProgramDisplay", .caption = "&Full Screen Display",
                      .run = [this] { fullScreenDisplay(); }, .checkable = true}},
        {SmallerScreen, {.name = "mSmallerScreen", .menu = "mProgramDisplay", .caption = "&Smaller Screen Display",
                         .run = [this] { smallerScreenDisplay(); }, .checkable = true}},
        {DefaultSize, {.name = "mDefaultSize", .menu = "mProgramDisplay", .caption = "&Default Screen Size",
                       .separatorBefore = true, .run = [this] { defaultScreenSize(); }, .checkable = true}},
        {FamilyName, {.name = "mFamilyName", .menu = "mOptions", .caption = "&Family Name", .separatorBefore = true,
                      .run = [this] { askFamilyName(); }}},
        {Exit, {.name = "mExit", .menu = "mOptions", .caption = "E&xit", .separatorBefore = true,
                .button = {"E&xit", 7}, .run = [this] { exitProgram(); },
                .shortcut = QKeySequence(Qt::CTRL | Qt::Key_Q)}},
        {RecipeFiles, {.name = "mRecipeFiles", .menu = "mBrindlepot", .caption = "&Recipe Files",
                       .button = {"&Recipe File", 0}}},
        {FoodGuide, {.name = "mFoodGuide", .menu = "mBrindlepot", .caption = "&Food Guide",
                     .button = {"&Food Guide", 1}}},
        {MeasGuide, {.name = "mMeasGuide", .menu = "mBrindlepot", .caption = "Food &Measurement Guide",
                     .separatorBefore = true, .button = {"Food &Meas. Guide", 2}}},
        {MenuPlanner, {.name = "mMenuPlanner", .menu = "mBrindlepot", .caption = "Menu &Planner",
                       .separatorBefore = true, .button = {"Menu &Planner", 3}}},
        {ShoppingList, {.name = "mShoppingList", .menu = "mBrindlepot", .caption = "&Shopping List Maker",
                        .button = {"&Shopping List Maker", 4}}},
        {Emergency, {.name = "mEmergency", .menu = "mBrindlepot", .caption = "&Emergency Food Storage",
                     .separatorBefore = true, .button = {"&Emergency Storage", 8}}},
        {WeightTracker, {.name = "mWeightTracker", .menu = "mBrindlepot", .caption = "Weight Tracker",
                         .separatorBefore = true, .button = {"&Weight Tracker", 6}}},
        {Overview, {.name = "mOverview", .menu = "mHelp", .caption = "&Program Overview", .button = {"&Help", 5},
                    .run = [this] { showHelp(kOverviewTopic); }}},
        {BackupRestore, {.name = "mBackupRestore", .menu = "mHelp", .caption = "&Backup and Restore Option",
                         .separatorBefore = true, .run = [this] { showHelp(kBackupTopic); }}},
        {About, {.name = "mAbout", .menu = "mHelp", .caption = "&About Brindlepot", .separatorBefore = true,
                 .run = [this] { showAbout(); }}},
        {Web, {.name = "mWeb", .menu = "mHelp", .caption = "Tollenmark on the &Web", .separatorBefore = true,
               .run = [this] { openWebSite(); }}},
    };
}

void Startfrm::buildCommandPanel()
{
    commandPanel_ = MakeRaisedPanel(QStringLiteral("SSPanel1"), central_, 3);
    // The panel keeps the standard colour whatever the window's background is.
    QPalette standard = QApplication::palette(commandPanel_);
    standard.setColor(QPalette::Window, standard.color(QPalette::Window)); // pinned, not inherited
    commandPanel_->setPalette(standard);

    auto* title = new QLabel(QStringLiteral(" Brindlepot"), commandPanel_);
    title->setObjectName(QStringLiteral("Label1"));
    QFont titleFont(QStringLiteral("Liberation Serif"), 30, QFont::Bold, true);
    title->setFont(titleFont);
    title->setAlignment(Qt::AlignCenter);
    // The main screen says 6.2 while the about screen says 7.0: the two texts
    // have always differed, and both stay as the family knows them.
    auto* version = new QLabel(QStringLiteral(" Version 6.2"), commandPanel_);
    version->setObjectName(QStringLiteral("Label2"));
    version->setFont(QFont(QStringLiteral("Liberation Serif"), 12, QFont::Bold));
    version->setAlignment(Qt::AlignCenter);

    auto* grid = new QGridLayout;
    grid->setSpacing(10);
    QFont buttonFont(QStringLiteral("Liberation Sans"), 11, QFont::Bold);
    commands_ = std::make_unique<CommandTable<MainCommand>>(this, kMenus, commandRows(), nullptr, nullptr,
                                                            commandPanel_);
    QWidget* previous = nullptr;
    const QList<QPushButton*> buttons = commands_->buttons();
    for (int i = 0; i < buttons.size(); ++i) {
        QPushButton* button = buttons[i];
        button->setFont(buttonFont);
        button->setMinimumSize(210, 46);
        grid->addWidget(button, kButtonCell[i][0], kButtonCell[i][1]);
        if (previous)
            setTabOrder(previous, button); // tab order follows the index, not the grid
        previous = button;
    }

    auto* layout = new QVBoxLayout(commandPanel_);
    layout->setContentsMargins(24, 16, 24, 24);
    layout->addWidget(title);
    layout->addWidget(version);
    layout->addSpacing(14);
    layout->addLayout(grid);
    commandPanel_->adjustSize();
}

int Startfrm::twips(int pixelCount) const
{
    return PixelsToTwips(pixelCount, this);
}

int Startfrm::pixels(int twipCount) const
{
    return TwipsToPixels(twipCount, this);
}

// The start routine: at load and again after every change of the display mode.
void Startfrm::runStart()
{
    starting_ = true;
    ProcessValues& process = Process();
    process.DateFormatMode = DateFormatModeFor(DateLocale());
    EnterProgramFolder();
    const ScreenBusy busy;

    const StoredWindow stored = ReadStoredWindow();
    process.WindowedMode = stored.windowed ? kWindowedMode : kFullScreenMode;
    process.WindowHeight = stored.height;
    process.WindowWidth = stored.width;
    if (stored.windowed) {
        setMinimumSize(pixels(kMinWindowWidth), pixels(kMinWindowHeight));
        setWindowState(Qt::WindowNoState);
    } else {
        showMaximisedOnScreen();
    }
    checkScreen();

    loadBackground();
    process.FamilyName = ReadFamilyName();
    setWindowTitle(MainCaption(process.FamilyName));
    // Flags that earlier screens may have left.
    process.TopToolbarFlag = 0;
    process.SideToolbarsFlag = 0;

    if (!process.SplashShown) {
        process.SplashShown = true;
        (new Splash1)->show();
    }
    // The start values of SWR2.fil are read, as ever, though nothing uses
    // them; reading also makes the file on a first run.
    ReadSlotInteger(Settings::StartValue);
    ReadSlotText(Settings::StartText1);
    ReadSlotText(Settings::StartText2);

    updateDisplayTicks();
    centreCommandPanel();
    starting_ = false;
}

void Startfrm::checkScreen()
{
    const QSize screen = screen_.sizeTwips();
    if (ScreenTooSmall(screen.width(), screen.height())) {
        dialogs_.tell(QStringLiteral("Program Display Option"), ScreenTooSmallText(), Icon::Exclamation);
        switchToFullScreen();
        return;
    }
    if (Process().WindowedMode == kWindowedMode) {
        resize(pixels(Process().WindowWidth), pixels(Process().WindowHeight));
        move(pixels(screen.width()) / 2 - width() / 2, pixels(screen.height()) / 2 - height() / 2);
    }
}

void Startfrm::loadBackground()
{
    background_ = ReadStoredBackground();
    Process().LastPanelColor = ReadLastPanelColor();
    showBackground(background_);
}

void Startfrm::showBackground(const Background& background)
{
    if (background.kind == Background::Kind::Picture) {
        // A missing picture leaves the image empty over the window's colour.
        image1_->setPixmap(QPixmap(ResolveFileName(background.pictureFile())));
        image1_->setGeometry(central_->rect());
        image1_->lower();
        image1_->show();
        return;
    }
    image1_->hide();
    QPalette palette = central_->palette();
    palette.setColor(QPalette::Window, background.kind == Background::Kind::Standard
                                           ? QApplication::palette("QLabel").color(QPalette::Window)
                                           : ColorFromColorref(background.color));
    central_->setPalette(palette);
}

void Startfrm::centreCommandPanel()
{
    const QSize area = central_->size();
    const QSize panel = commandPanel_->size();
    commandPanel_->move(area.width() / 2 - panel.width() / 2,
                        area.height() / 2 - panel.height() / 2 - pixels(kPanelRaiseTwips));
    image1_->setGeometry(central_->rect());
}

void Startfrm::updateDisplayTicks()
{
    const bool windowed = Process().WindowedMode == kWindowedMode;
    commands_->action(MainCommand::FullScreen)->setChecked(!windowed);
    commands_->action(MainCommand::SmallerScreen)->setChecked(windowed);
    commands_->action(MainCommand::DefaultSize)->setChecked(false);
}

void Startfrm::registerActivity(MainCommand command, ActivityHost::Factory factory)
{
    commands_->setRoutine(command, [this, factory = std::move(factory)] { activities_->open(factory); });
}

void Startfrm::bringForward()
{
    // An activity that has closed may linger a moment before it is deleted.
    ActivityWindow* activity = activities_->current();
    QWidget* window = activity && activity->isVisible() ? static_cast<QWidget*>(activity) : this;
    if (window->isMinimized())
        window->showNormal();
    window->show();
    window->raise();
    window->activateWindow();
}

void Startfrm::focusGained()
{
    Process().WindowedMode = windowState() == Qt::WindowNoState ? kWindowedMode : kFullScreenMode;
    updateDisplayTicks();
    Process().DateFormatMode = DateFormatModeFor(DateLocale());
    centreCommandPanel();
    // Another screen's file dialog may have moved the current folder.
    EnterProgramFolder();
}

void Startfrm::switchToFullScreen()
{
    Process().WindowedMode = kFullScreenMode;
    WriteWindowMode(false);
    updateDisplayTicks();
    showMaximisedOnScreen();
}

void Startfrm::showMaximisedOnScreen()
{
    // Sized to the screen first, so the window fills it even where no window
    // manager carries out the maximised state.
    setMinimumSize(0, 0);
    const QSize screen = screen_.sizeTwips();
    setGeometry(0, 0, pixels(screen.width()), pixels(screen.height()));
    setWindowState(Qt::WindowMaximized);
}

void Startfrm::fullScreenDisplay()
{
    if (Process().WindowedMode == kFullScreenMode && isMaximized()) {
        updateDisplayTicks(); // already ticked: nothing to do
        return;
    }
    WriteWindowMode(false);
    runStart();
}

void Startfrm::smallerScreenDisplay()
{
    if (Process().WindowedMode == kWindowedMode && !isMaximized()) {
        updateDisplayTicks();
        return;
    }
    WriteWindowMode(true);
    runStart();
}

void Startfrm::defaultScreenSize()
{
    const QSize screen = screen_.sizeTwips();
    const StoredWindow window = DefaultWindowFor(screen.width(), screen.height());
    setWindowState(Qt::WindowNoState);
    WriteWindowMode(true);
    WriteWindowSize(window.height, window.width);
    runStart();
}

void Startfrm::askFamilyName()
{
    const QString shown = Process().FamilyName;
    const QString stored = ReadFamilyName();
    Process().FamilyName = stored;
    QString result = dialogs_.input({QStringLiteral("Family Name"), FamilyNamePrompt(), stored});
    if (result.isEmpty() && !stored.isEmpty()) {
        const Answer answer = dialogs_.ask({QStringLiteral("Family Name"),
                                            QStringLiteral("Delete Family Name - %1?").arg(stored), Buttons::YesNo,
                                            Icon::Question, 2});
        if (answer != Answer::Yes)
            result = stored;
    }
    const std::optional<QString> written = WriteFamilyName(result);
    if (!written) {
        // The name shown before stays the family's name.
        Process().FamilyName = shown;
        dialogs_.ask(WriteFailedMessage(Settings::FamilyName.file.name));
        return;
    }
    Process().FamilyName = *written;
    setWindowTitle(MainCaption(Process().FamilyName));
}

void Startfrm::exitProgram()
{
    const Answer answer = dialogs_.ask({QStringLiteral("Exit"), QStringLiteral("Do you wish to Exit Brindlepot?"),
                                        Buttons::YesNoCancel, Icon::Question, 1});
    if (answer != Answer::Yes)
        return;
    storeWindow();
    emit exitConfirmed();
}

void Startfrm::storeWindow()
{
    ProcessValues& process = Process();
    const bool windowed = windowState() == Qt::WindowNoState;
    process.WindowedMode = windowed ? kWindowedMode : kFullScreenMode;
    if (windowed) {
        process.WindowHeight = qint16(std::max(twips(height()), kMinWindowHeight));
        process.WindowWidth = qint16(std::max(twips(width()), kMinWindowWidth));
    }
    StoreWindow(windowed, process.WindowHeight, process.WindowWidth);
}

void Startfrm::showHelp(int topic)
{
    HelpWindow::showTopic(topic);
}

void Startfrm::showAbout()
{
    About1 about(dialogs_, this);
    about.exec();
}

void Startfrm::openWebSite()
{
    dialogs_.openUrl(QUrl(QString::fromLatin1(kMakerWebAddress)));
}

void Startfrm::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        focusGained();
    else if (event->type() == QEvent::WindowStateChange)
        applyResizeRules(static_cast<QWindowStateChangeEvent*>(event)->oldState());
}

void Startfrm::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    applyResizeRules(windowState());
}

// What a change of the window's size or state means for the display mode.
// The start routine sets size and state itself, so it is left alone then.
void Startfrm::applyResizeRules(Qt::WindowStates previous)
{
    if (starting_)
        return;
    ProcessValues& process = Process();
    if (isMaximized()) {
        if (process.WindowedMode != kFullScreenMode) {
            WriteWindowSize(process.WindowHeight, process.WindowWidth);
            fullScreenDisplay();
        }
    } else if ((previous & Qt::WindowMaximized) && ReadSlotText(Settings::WindowMode) == QLatin1String("No")) {
        WriteWindowMode(true);
        process.WindowedMode = kWindowedMode;
        runStart();
    } else if (windowState() == Qt::WindowNoState) {
        // The user is sizing the window; the minimum size keeps it at least
        // 9000 by 12000 twips.
        process.WindowHeight = qint16(twips(height()));
        process.WindowWidth = qint16(twips(width()));
        process.WindowedMode = kWindowedMode;
        updateDisplayTicks();
    }
}

bool Startfrm::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == central_ && event->type() == QEvent::Resize)
        centreCommandPanel();
    return QMainWindow::eventFilter(watched, event);
}

void Startfrm::closeEvent(QCloseEvent* event)
{
    storeWindow();
    event->accept();
}

void Startfrm::contextMenuEvent(QContextMenuEvent* event)
{
    commands_->menu("mOptions")->popup(event->globalPos());
}
