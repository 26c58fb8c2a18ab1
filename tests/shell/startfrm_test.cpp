// The main screen, driven offscreen with scripted dialogs.
#include "common/dates.h"
#include "shell/logic/processvalues.h"
#include "shell/settings/settingsslots.h"
#include "shell/screens/about1.h"
#include "shell/kit/activitywindow.h"
#include "shell/kit/helpwindow.h"
#include "shell/screens/screenmetrics.h"
#include "shell/screens/splash1.h"
#include "shell/screens/startfrm.h"
#include "common/widgets/twips.h"
#include "command_doors.h"
#include "scripted_dialogs.h"
#include "temp_program_folder.h"
#include "raw_slots.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QPointer>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include "common/writefailure.h"
#include <QFile>
#include <gtest/gtest.h>

namespace {

class FixedScreen final : public ScreenMetrics {
public:
    explicit FixedScreen(QSize twips) : twips_(twips) {}
    QSize sizeTwips() const override { return twips_; }

private:
    QSize twips_;
};

const QSize kLargeScreen(28800, 16200);   // 1920 by 1080 at 96 dpi
const QSize kTinyScreen(9600, 7200);      // 640 by 480

const char kExitTitle[] = "Exit";
const char kExitText[] = "Do you wish to Exit Brindlepot?";

class StartfrmTest : public ::testing::Test {
protected:
    StartfrmTest()
    {
        Process() = ProcessValues{};
        Process().SplashShown = true; // only the splash test wants to see it
        SetDateLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    }
    ~StartfrmTest() override { SetDateLocale(QLocale()); }

    QAction* action(Startfrm& form, const char* name) { return form.findChild<QAction*>(name); }
    QPushButton* button(Startfrm& form, int index)
    {
        return form.findChild<QPushButton*>(QStringLiteral("Command1_%1").arg(index));
    }

    TempProgramFolder folder;
    ScriptedDialogs dialogs;
    FixedScreen screen{kLargeScreen};
};

// Keyboard shortcuts reach only the active window.
void ShowActive(QWidget& window)
{
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

QStringList Captions(const QMenu* menu)
{
    QStringList captions;
    for (const QAction* entry : menu->actions())
        captions << (entry->isSeparator() ? QStringLiteral("-") : entry->text());
    return captions;
}

} // namespace

TEST_F(StartfrmTest, NineButtonsInIndexOrder)
{
    Startfrm form(dialogs, screen);
    const QStringList expected = {"&Recipe File",   "&Food Guide",          "Food &Meas. Guide",
                                  "Menu &Planner",  "&Shopping List Maker", "&Help",
                                  "&Weight Tracker", "E&xit",               "&Emergency Storage"};
    for (int i = 0; i < expected.size(); ++i) {
        ASSERT_NE(button(form, i), nullptr) << i;
        EXPECT_EQ(button(form, i)->text(), expected[i]);
    }
    EXPECT_EQ(button(form, 9), nullptr);
}

TEST_F(StartfrmTest, MenusAndTheirEntriesInOrder)
{
    Startfrm form(dialogs, screen);
    const QList<QAction*> top = form.menuBar()->actions();
    ASSERT_EQ(top.size(), 3);
    EXPECT_EQ(top[0]->text(), "&Options");
    EXPECT_EQ(top[1]->text(), "Brindlepot");
    EXPECT_EQ(top[2]->text(), "&Help");
    EXPECT_EQ(Captions(top[0]->menu()),
              QStringList({"&Background Selector", "&Program Display", "-", "&Family Name", "-", "E&xit"}));
    EXPECT_EQ(Captions(form.findChild<QMenu*>("mProgramDisplay")),
              QStringList({"&Full Screen Display", "&Smaller Screen Display", "-", "&Default Screen Size"}));
    EXPECT_EQ(Captions(top[1]->menu()),
              QStringList({"&Recipe Files", "&Food Guide", "-", "Food &Measurement Guide", "-", "Menu &Planner",
                           "&Shopping List Maker", "-", "&Emergency Food Storage", "-", "Weight Tracker"}));
    const QStringList help = Captions(top[2]->menu());
    ASSERT_EQ(help.size(), 7);
    EXPECT_EQ(help.mid(0, 6), QStringList({"&Program Overview", "-", "&Backup and Restore Option", "-",
                                           "&About Brindlepot", "-"}));
}

TEST_F(StartfrmTest, ActivitiesNotBuiltYetAreDisabledNotFaked)
{
    Startfrm form(dialogs, screen);
    for (int i : {0, 1, 2, 3, 4, 6, 8})
        EXPECT_FALSE(button(form, i)->isEnabled()) << i;
    for (const char* name : {"mRecipeFiles", "mFoodGuide", "mMeasGuide", "mMenuPlanner", "mShoppingList",
                             "mEmergency", "mWeightTracker"})
        EXPECT_FALSE(action(form, name)->isEnabled()) << name;
    EXPECT_TRUE(button(form, 5)->isEnabled());
    EXPECT_TRUE(button(form, 7)->isEnabled());
}

TEST_F(StartfrmTest, ExitAsksAndNoGoesBack)
{
    Startfrm form(dialogs, screen);
    QSignalSpy exits(&form, &Startfrm::exitConfirmed);
    dialogs.expectMessage(kExitTitle, kExitText, Answer::No);
    button(form, 7)->click();
    dialogs.expectMessage(kExitTitle, kExitText, Answer::Cancel);
    action(form, "mExit")->trigger();
    EXPECT_EQ(exits.count(), 0);
    ASSERT_EQ(dialogs.messages().size(), 2);
    const Message& asked = dialogs.messages().first();
    EXPECT_EQ(asked.buttons, Buttons::YesNoCancel);
    EXPECT_EQ(asked.icon, Icon::Question);
    EXPECT_EQ(asked.defaultButton, 1);
}

TEST_F(StartfrmTest, EscapeIsExitAndYesStoresTheWindow)
{
    WriteSlotText(GColor3, 35, u"Yes");
    Startfrm form(dialogs, screen);
    ShowActive(form);
    QSignalSpy exits(&form, &Startfrm::exitConfirmed);
    dialogs.expectMessage(kExitTitle, kExitText, Answer::Yes);
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_EQ(exits.count(), 1);
    EXPECT_EQ(ReadSlotText(GColor3, 35), "Yes");
    EXPECT_EQ(ReadSlotInteger(GColor3, 36), PixelsToTwips(form.height(), &form));
    EXPECT_EQ(ReadSlotInteger(GColor3, 37), PixelsToTwips(form.width(), &form));
}

TEST_F(StartfrmTest, FamilyNameOf20CharactersIsStoredAs15)
{
    Startfrm form(dialogs, screen);
    dialogs.expectInput("Family Name", "Abcdefghijklmnopqrst");
    action(form, "mFamilyName")->trigger();
    EXPECT_EQ(ReadSlotText(QORBNAME, 1), "Abcdefghijklmno");
    EXPECT_EQ(Process().FamilyName, "Abcdefghijklmno");
    EXPECT_EQ(form.windowTitle(), "Abcdefghijklmno Brindlepot");
    ASSERT_EQ(dialogs.inputs().size(), 1);
    EXPECT_EQ(dialogs.inputs()[0].prompt,
              "Please Enter Family Name for use in the Various Program areas.\nTo Accept name,\nclick OK.\n"
              "To Delete name,\nclick Cancel or press <Esc> key.");
    EXPECT_EQ(dialogs.inputs()[0].defaultText, "");
}

TEST_F(StartfrmTest, FamilyPromptOffersTheStoredName)
{
    WriteSlotText(QORBNAME, 1, u"Smith");
    Startfrm form(dialogs, screen);
    EXPECT_EQ(form.windowTitle(), "Smith Brindlepot");
    dialogs.expectInput("Family Name", "Jones");
    action(form, "mFamilyName")->trigger();
    EXPECT_EQ(dialogs.inputs()[0].defaultText, "Smith");
    EXPECT_EQ(ReadSlotText(QORBNAME, 1), "Jones");
    EXPECT_EQ(form.windowTitle(), "Jones Brindlepot");
}

TEST_F(StartfrmTest, CancelWithAStoredNameAsksAndNoKeepsIt)
{
    WriteSlotText(QORBNAME, 1, u"Smith");
    Startfrm form(dialogs, screen);
    dialogs.expectInput("Family Name", "");
    dialogs.expectMessage("Family Name", "Delete Family Name - Smith?", Answer::No);
    action(form, "mFamilyName")->trigger();
    ASSERT_EQ(dialogs.messages().size(), 1);
    EXPECT_EQ(dialogs.messages()[0].buttons, Buttons::YesNo);
    EXPECT_EQ(dialogs.messages()[0].icon, Icon::Question);
    EXPECT_EQ(dialogs.messages()[0].defaultButton, 2) << "No is the default";
    EXPECT_EQ(ReadSlotText(QORBNAME, 1), "Smith");
    EXPECT_EQ(form.windowTitle(), "Smith Brindlepot");
}

TEST_F(StartfrmTest, CancelWithAStoredNameAndYesDeletesIt)
{
    WriteSlotText(QORBNAME, 1, u"Smith");
    Startfrm form(dialogs, screen);
    dialogs.expectInput("Family Name", "");
    dialogs.expectMessage("Family Name", "Delete Family Name - Smith?", Answer::Yes);
    action(form, "mFamilyName")->trigger();
    EXPECT_EQ(ReadSlotText(QORBNAME, 1), "");
    EXPECT_EQ(form.windowTitle(), " Brindlepot");
}

TEST_F(StartfrmTest, CancelWithNoNameStoredAsksNothingAndWritesEmpty)
{
    Startfrm form(dialogs, screen);
    EXPECT_EQ(form.windowTitle(), " Brindlepot");
    dialogs.expectInput("Family Name", "");
    action(form, "mFamilyName")->trigger();
    EXPECT_TRUE(dialogs.messages().isEmpty());
    EXPECT_EQ(folder.bytesOf("QORBNAME.FIL"), QByteArray(40, '\0'));
}

TEST_F(StartfrmTest, SmallerScreenDisplayWritesYesAndTicksIt)
{
    Startfrm form(dialogs, screen);
    EXPECT_TRUE(action(form, "mFullScreen")->isChecked());
    action(form, "mSmallerScreen")->trigger();
    EXPECT_EQ(ReadSlotText(GColor3, 35), "Yes");
    EXPECT_EQ(Process().WindowedMode, 9);
    EXPECT_TRUE(action(form, "mSmallerScreen")->isChecked());
    EXPECT_FALSE(action(form, "mFullScreen")->isChecked());
    EXPECT_FALSE(form.isMaximized());
}

TEST_F(StartfrmTest, FullScreenDisplayWritesNoAndMaximises)
{
    WriteSlotText(GColor3, 35, u"Yes");
    Startfrm form(dialogs, screen);
    EXPECT_EQ(Process().WindowedMode, 9);
    action(form, "mFullScreen")->trigger();
    EXPECT_EQ(ReadSlotText(GColor3, 35), "No");
    EXPECT_EQ(Process().WindowedMode, 0);
    EXPECT_TRUE(form.isMaximized());
    EXPECT_TRUE(action(form, "mFullScreen")->isChecked());
    EXPECT_FALSE(action(form, "mSmallerScreen")->isChecked());
}

TEST_F(StartfrmTest, DefaultScreenSizeOnALargeScreen)
{
    Startfrm form(dialogs, screen);
    action(form, "mDefaultSize")->trigger();
    EXPECT_EQ(ReadSlotText(GColor3, 35), "Yes");
    EXPECT_EQ(ReadSlotInteger(GColor3, 36), 11200);
    EXPECT_EQ(ReadSlotInteger(GColor3, 37), 15100);
    EXPECT_EQ(form.width(), TwipsToPixels(15100, &form));
    EXPECT_EQ(form.height(), TwipsToPixels(11200, &form));
}

TEST_F(StartfrmTest, DefaultScreenSizeOnASmallerScreen)
{
    FixedScreen smaller(QSize(15000, 11000));
    Startfrm form(dialogs, smaller);
    action(form, "mDefaultSize")->trigger();
    EXPECT_EQ(ReadSlotInteger(GColor3, 36), 10800);
    EXPECT_EQ(ReadSlotInteger(GColor3, 37), 14800);
}

TEST_F(StartfrmTest, StoredSizeZeroOpensAt9000By12000)
{
    WriteSlotText(GColor3, 35, u"Yes");
    Startfrm form(dialogs, screen);
    EXPECT_EQ(Process().WindowHeight, 9000);
    EXPECT_EQ(Process().WindowWidth, 12000);
    EXPECT_EQ(form.width(), TwipsToPixels(12000, &form));
    EXPECT_EQ(form.height(), TwipsToPixels(9000, &form));
}

TEST_F(StartfrmTest, MaximisingTheWindowActsAsFullScreen)
{
    WriteSlotText(GColor3, 35, u"Yes");
    WriteSlotInteger(GColor3, 36, 10080);
    WriteSlotInteger(GColor3, 37, 14400);
    Startfrm form(dialogs, screen);
    form.show();
    form.setWindowState(Qt::WindowMaximized);
    EXPECT_EQ(ReadSlotText(GColor3, 35), "No");
    EXPECT_EQ(ReadSlotInteger(GColor3, 36), 10080);
    EXPECT_EQ(ReadSlotInteger(GColor3, 37), 14400);
    EXPECT_EQ(Process().WindowedMode, 0);
    EXPECT_TRUE(action(form, "mFullScreen")->isChecked());
}

TEST_F(StartfrmTest, LeavingTheMaximisedStateSwitchesToTheSmallerScreen)
{
    WriteSlotText(GColor3, 35, u"No");
    Startfrm form(dialogs, screen);
    form.show();
    ASSERT_TRUE(form.isMaximized());
    form.setWindowState(Qt::WindowNoState);
    EXPECT_EQ(ReadSlotText(GColor3, 35), "Yes");
    EXPECT_EQ(Process().WindowedMode, 9);
    EXPECT_TRUE(action(form, "mSmallerScreen")->isChecked());
    EXPECT_EQ(form.width(), TwipsToPixels(12000, &form));
    EXPECT_EQ(form.height(), TwipsToPixels(9000, &form));
}

TEST_F(StartfrmTest, LeavingTheMaximisedStateWithNoChoiceStoredOnlyRemembersTheSize)
{
    Startfrm form(dialogs, screen);
    form.show();
    form.setWindowState(Qt::WindowNoState);
    EXPECT_EQ(ReadSlotText(GColor3, 35), "") << "only a stored \"No\" switches the mode";
    EXPECT_EQ(Process().WindowedMode, 9);
}

TEST_F(StartfrmTest, ResizingByHandKeepsTheMinimumAndRemembersTheSize)
{
    WriteSlotText(GColor3, 35, u"Yes");
    Startfrm form(dialogs, screen);
    form.show();
    form.resize(TwipsToPixels(14400, &form), TwipsToPixels(10080, &form));
    EXPECT_EQ(Process().WindowWidth, 14400);
    EXPECT_EQ(Process().WindowHeight, 10080);
    form.resize(100, 100);
    EXPECT_EQ(form.width(), TwipsToPixels(12000, &form));
    EXPECT_EQ(form.height(), TwipsToPixels(9000, &form));
    EXPECT_EQ(Process().WindowWidth, 12000);
}

TEST_F(StartfrmTest, TheCommandPanelIsCentred400TwipsAboveTheMiddle)
{
    WriteSlotText(GColor3, 35, u"Yes");
    Startfrm form(dialogs, screen);
    form.show();
    const QWidget* area = form.centralWidget();
    const QWidget* panel = form.findChild<QWidget*>("SSPanel1");
    EXPECT_EQ(panel->x(), area->width() / 2 - panel->width() / 2);
    EXPECT_EQ(panel->y(), area->height() / 2 - panel->height() / 2 - TwipsToPixels(400, &form));
}

TEST_F(StartfrmTest, ScreenOf640By480WarnsAndRunsMaximised)
{
    WriteSlotText(GColor3, 35, u"Yes");
    FixedScreen tiny(kTinyScreen);
    dialogs.expectMessage("Program Display Option",
                          "Monitor Resolution Settings (Screen Area) and Program Size requirements are at least "
                          "800 by 600 or Higher.\nIf you do not set your screen resolution to this setting or "
                          "higher this program will not function properly!");
    Startfrm form(dialogs, tiny);
    EXPECT_EQ(dialogs.messages().size(), 1);
    EXPECT_TRUE(form.isMaximized());
    EXPECT_EQ(Process().WindowedMode, 0);
    EXPECT_EQ(ReadSlotText(GColor3, 35), "No");
    EXPECT_TRUE(action(form, "mFullScreen")->isChecked());
}

TEST_F(StartfrmTest, DayFirstShortDateGivesOther)
{
    SetDateLocale(QLocale(QLocale::English, QLocale::UnitedKingdom));
    Startfrm form(dialogs, screen);
    EXPECT_EQ(Process().DateFormatMode, "OTHER");
    SetDateLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    form.focusGained();
    EXPECT_EQ(Process().DateFormatMode, "USA") << "a changed system setting is picked up on focus";
}

TEST_F(StartfrmTest, FocusPutsTheProgramFolderBack)
{
    Startfrm form(dialogs, screen);
    WriteSlotText(QORBNAME, 1, u"Smith");
    QTemporaryDir elsewhere;
    ASSERT_TRUE(QDir::setCurrent(elsewhere.path())); // as another screen's file dialog might
    form.focusGained();
    EXPECT_EQ(QDir::current().canonicalPath(), QDir(folder.path()).canonicalPath());
    dialogs.expectInput("Family Name", "Smith");
    action(form, "mFamilyName")->trigger();
    EXPECT_EQ(dialogs.inputs()[0].defaultText, "Smith") << "the main menu still finds its files";
}

TEST_F(StartfrmTest, HelpOpensTheTopicPage)
{
    Startfrm form(dialogs, screen);
    ShowActive(form);
    button(form, 5)->click();
    HelpWindow* window = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* h = qobject_cast<HelpWindow*>(w))
            window = h;
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->topic(), 1000);
    action(form, "mBackupRestore")->trigger();
    EXPECT_EQ(window->topic(), 1005);
    ShowActive(form);
    QTest::keyClick(&form, Qt::Key_F1);
    EXPECT_EQ(window->topic(), 1000);
    window->close();
}

TEST_F(StartfrmTest, AboutShowsVersionAndMaker)
{
    Startfrm form(dialogs, screen);
    QString version, maker;
    QTimer::singleShot(0, [&] {
        auto* about = qobject_cast<About1*>(QApplication::activeModalWidget());
        ASSERT_NE(about, nullptr);
        version = about->findChild<QLabel*>("lblVersion")->text();
        maker = about->findChild<QLabel*>("lblMaker")->text();
        QTest::mouseClick(about->findChild<QLabel*>("Image1"), Qt::LeftButton);
        about->accept();
    });
    action(form, "mAbout")->trigger();
    EXPECT_EQ(version, "Version 7.0");
    EXPECT_EQ(maker, "Tollenmark");
    ASSERT_EQ(dialogs.openedUrls().size(), 1) << "a click on the picture opens the web site";
    EXPECT_EQ(dialogs.openedUrls()[0], QUrl(kMakerWebAddress));
}

TEST_F(StartfrmTest, WebEntryOpensTheMakersSite)
{
    Startfrm form(dialogs, screen);
    action(form, "mWeb")->trigger();
    ASSERT_EQ(dialogs.openedUrls().size(), 1);
    EXPECT_EQ(dialogs.openedUrls()[0], QUrl(kMakerWebAddress));
}

TEST_F(StartfrmTest, LabelsShowNameAndVersion)
{
    Startfrm form(dialogs, screen);
    EXPECT_EQ(form.findChild<QLabel*>("Label1")->text(), " Brindlepot");
    EXPECT_EQ(form.findChild<QLabel*>("Label2")->text(), " Version 6.2");
}

TEST_F(StartfrmTest, BackgroundIsBlueByDefault)
{
    Startfrm form(dialogs, screen);
    EXPECT_EQ(form.centralWidget()->palette().color(QPalette::Window), QColor(0, 0, 255));
    EXPECT_FALSE(form.findChild<QLabel*>("Image1")->isVisibleTo(&form));
}

TEST_F(StartfrmTest, StoredColourBackgroundIsShown)
{
    WriteSlotTagged(GQORB1, 3, qint32(0x0000FF)); // red in COLORREF order
    Startfrm form(dialogs, screen);
    EXPECT_EQ(form.centralWidget()->palette().color(QPalette::Window), QColor(255, 0, 0));
}

TEST_F(StartfrmTest, StoredPictureBackgroundIsShown)
{
    QImage picture(64, 48, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    ASSERT_TRUE(picture.save(folder.filePath("WP5.jpg")));
    WriteSlotTagged(GQORB1, 3, QString("WP5"));
    Startfrm form(dialogs, screen);
    const auto* image = form.findChild<QLabel*>("Image1");
    EXPECT_TRUE(image->isVisibleTo(&form));
    EXPECT_EQ(image->pixmap().size(), QSize(64, 48));
}

TEST_F(StartfrmTest, RightClickOpensTheOptionsMenu)
{
    Startfrm form(dialogs, screen);
    form.show();
    QContextMenuEvent click(QContextMenuEvent::Mouse, QPoint(5, 5), form.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(button(form, 5), &click);
    auto* options = form.findChild<QMenu*>("mOptions");
    EXPECT_TRUE(options->isVisible());
    options->close();
}

TEST_F(StartfrmTest, SplashIsShownOnceInTheLifeOfTheProcess)
{
    Process().SplashShown = false;
    const auto splashes = [] {
        int count = 0;
        for (QWidget* w : QApplication::topLevelWidgets())
            count += qobject_cast<Splash1*>(w) && w->isVisible() ? 1 : 0;
        return count;
    };
    const int before = splashes();
    Startfrm form(dialogs, screen);
    EXPECT_EQ(splashes(), before + 1);
    action(form, "mSmallerScreen")->trigger(); // runs the start again
    EXPECT_EQ(splashes(), before + 1);
    for (QWidget* w : QApplication::topLevelWidgets())
        if (qobject_cast<Splash1*>(w))
            w->close();
}

TEST_F(StartfrmTest, ClosingTheWindowStoresItWithoutAQuestion)
{
    Startfrm form(dialogs, screen);
    form.show();
    form.close();
    EXPECT_TRUE(dialogs.messages().isEmpty());
    EXPECT_EQ(ReadSlotText(GColor3, 35), "No");
}

// ---- Activity screens ----------------------------------------------------------------------

namespace {
class FakeActivity final : public ActivityWindow {
public:
    explicit FakeActivity(Dialogs& dialogs) : ActivityWindow(dialogs, {"FakeActivity", Settings::Form5PanelColor, 1})
    {
    }

protected:
    void closeEvent(QCloseEvent* event) override
    {
        event->accept();
        emit closed();
    }
};
} // namespace

TEST_F(StartfrmTest, ARegisteredActivityEnablesItsButtonAndMenuEntry)
{
    Startfrm form(dialogs, screen);
    EXPECT_FALSE(button(form, 1)->isEnabled());
    form.registerActivity(MainCommand::FoodGuide, [this] { return new FakeActivity(dialogs); });
    EXPECT_TRUE(button(form, 1)->isEnabled());
    EXPECT_TRUE(action(form, "mFoodGuide")->isEnabled());
}

TEST_F(StartfrmTest, InTheSmallerScreenAnActivityTakesTheMainWindowsPlace)
{
    WriteSlotText(GColor3, 35, u"Yes");
    Startfrm form(dialogs, screen);
    form.show();
    QPointer<FakeActivity> opened;
    form.registerActivity(MainCommand::FoodGuide, [this, &opened] { return opened = new FakeActivity(dialogs); });
    button(form, 1)->click();
    ASSERT_TRUE(opened);
    EXPECT_TRUE(opened->isVisible());
    EXPECT_EQ(opened->geometry(), form.geometry());
    button(form, 1)->click();
    const QWidgetList windows = QApplication::topLevelWidgets();
    EXPECT_EQ(std::count_if(windows.begin(), windows.end(),
                            [](QWidget* w) { return dynamic_cast<FakeActivity*>(w) && w->isVisible(); }),
              1)
        << "one window per activity";
    opened->move(opened->pos() + QPoint(40, 30));
    const QRect moved = opened->geometry();
    QTemporaryDir elsewhere;
    QDir::setCurrent(elsewhere.path());
    opened->close();
    EXPECT_EQ(form.geometry(), moved) << "the place is handed back";
    EXPECT_EQ(QDir::current().canonicalPath(), QDir(folder.path()).canonicalPath());
}

TEST_F(StartfrmTest, InFullScreenAnActivityOpensMaximised)
{
    Startfrm form(dialogs, screen);
    QPointer<FakeActivity> opened;
    form.registerActivity(MainCommand::FoodGuide, [this, &opened] { return opened = new FakeActivity(dialogs); });
    action(form, "mFoodGuide")->trigger();
    ASSERT_TRUE(opened);
    EXPECT_TRUE(opened->isMaximized());
    opened->close();
}

TEST_F(StartfrmTest, EveryCommandHasItsCaptionsAndDoors)
{
    Startfrm form(dialogs, screen);
    ExpectDoors(form, {
        {"mBackground", "&Background Selector", "", false},
        {"mFullScreen", "&Full Screen Display", "", false},
        {"mSmallerScreen", "&Smaller Screen Display", "", false},
        {"mDefaultSize", "&Default Screen Size", "", false},
        {"mFamilyName", "&Family Name", "", false},
        {"mExit", "E&xit", "E&xit", false},
        {"mRecipeFiles", "&Recipe Files", "&Recipe File", false},
        {"mFoodGuide", "&Food Guide", "&Food Guide", false},
        {"mMeasGuide", "Food &Measurement Guide", "Food &Meas. Guide", false},
        {"mMenuPlanner", "Menu &Planner", "Menu &Planner", false},
        {"mShoppingList", "&Shopping List Maker", "&Shopping List Maker", false},
        {"mEmergency", "&Emergency Food Storage", "&Emergency Storage", false},
        {"mWeightTracker", "Weight Tracker", "&Weight Tracker", false},
        {"mOverview", "&Program Overview", "&Help", false},
        {"mBackupRestore", "&Backup and Restore Option", "", false},
        {"mAbout", "&About Brindlepot", "", false},
        {"mWeb", "Tollenmark on the &Web", "", false},
    });
}

// A folder in the settings file's place: the write fails for any user.
TEST_F(StartfrmTest, AFamilyNameThatCannotBeStoredIsSaidAndTheOldNameStays)
{
    WriteSlotText(QORBNAME, 1, u"Smith");
    Startfrm form(dialogs, screen);
    QFile::remove(QStringLiteral("QORBNAME.FIL"));
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("QORBNAME.FIL")));
    dialogs.expectInput("Family Name", "Jones");
    const Message failed = WriteFailedMessage(QStringLiteral("QORBNAME.FIL"));
    dialogs.expectMessage(failed.title, failed.text);
    action(form, "mFamilyName")->trigger();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(Process().FamilyName, "Smith");
    EXPECT_EQ(form.windowTitle(), "Smith Brindlepot");
}

TEST_F(StartfrmTest, ASecondStartBringsTheOpenActivityForward)
{
    Startfrm form(dialogs, screen);
    form.show();
    QPointer<FakeActivity> opened;
    form.registerActivity(MainCommand::FoodGuide, [this, &opened] { return opened = new FakeActivity(dialogs); });
    action(form, "mFoodGuide")->trigger();
    ASSERT_TRUE(opened);
    QApplication::setActiveWindow(&form);
    ASSERT_EQ(QApplication::activeWindow(), &form);
    form.bringForward();
    EXPECT_TRUE(QTest::qWaitForWindowActive(opened.data()));
    opened->close();
    form.bringForward();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
}

// The "&Help" menu and the "&Help" button share Alt+H: the button wins, and
// the menu bar opens with F10.
TEST_F(StartfrmTest, AltHPressesTheHelpButtonAndF10OpensTheMenus)
{
    Startfrm form(dialogs, screen);
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    QSignalSpy overview(action(form, "mOverview"), &QAction::triggered);
    QTest::keyClick(&form, Qt::Key_H, Qt::AltModifier);
    EXPECT_TRUE(overview.wait(1000));
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (qobject_cast<HelpWindow*>(window))
            window->close();
    }
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    QTest::keyClick(&form, Qt::Key_F10);
    ASSERT_NE(form.menuBar()->activeAction(), nullptr);
    EXPECT_EQ(form.menuBar()->activeAction()->text(), "&Options");
}

TEST_F(StartfrmTest, CtrlQAsksToExit)
{
    Startfrm form(dialogs, screen);
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    dialogs.expectMessage("Exit", "Do you wish to Exit Brindlepot?", Answer::No);
    QTest::keyClick(&form, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(dialogs.scriptDone());
}
