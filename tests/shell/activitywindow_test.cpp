// The activity screen frame: what a declared screen gets without building
// it: status bar, toolbars, the command table's menus, the Escape order, the
// save question, F1 help, the right-click Options menu, the colour question
// and the closed signal.
#include "shell/kit/activitywindow.h"
#include "shell/kit/helpwindow.h"
#include "shell/kit/panelcolors.h"
#include "shell/kit/screenstatusbar.h"
#include "shell/kit/screentoolbars.h"
#include "shell/logic/processvalues.h"
#include "raw_slots.h"
#include "scripted_dialogs.h"
#include "temp_program_folder.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QToolBar>
#include <gtest/gtest.h>

namespace {

enum class TestCommand { PanelColor, Exit, Help };

const Message kQuestion{QStringLiteral("Test Screen"), QStringLiteral("Save the work?"), Buttons::YesNoCancel,
                        Icon::Question, 1};

class TestScreen final : public ActivityWindow {
public:
    explicit TestScreen(Dialogs& dialogs) : ActivityWindow(dialogs, {"TestScreen", Settings::Form5PanelColor, 1010})
    {
        static constexpr MenuRow kMenus[] = {{"mOptions", "&Options"}, {"mHelpMenu", "&Help"}};
        using enum TestCommand;
        const CommandRow<TestCommand> rows[] = {
            {PanelColor, {.name = "mPanelColor", .menu = "mOptions", .caption = "Panel C&olor",
                          .toolbar = {Toolbar::Side, 0}, .run = [this] { choosePanelColor(); }}},
            {Exit, {.name = "mExit", .menu = "mOptions", .caption = "E&xit", .toolbar = {Toolbar::Top, 1},
                    .run = [this] { exitScreen(); }}},
            {Help, {.name = "mHelp", .menu = "mHelpMenu", .caption = "&Help", .toolbar = {Toolbar::Top, 0},
                    .run = [this] { showHelp(); }, .shortcut = QKeySequence(Qt::Key_F1)}},
        };
        commands = makeCommands<TestCommand>(kMenus, rows);
        box = new QLineEdit(this);
        setCentralWidget(box);
        panel = new QWidget(box);
        panel->hide();
        addColouredPanels({box});
        setEscapeOrder({{[this] { return panel->isVisible(); }, [this] {
                             panel->hide();
                             ++panelClosings;
                         }}});
        setAttribute(Qt::WA_DeleteOnClose, false);
    }

    bool askToSave()
    {
        return saveQuestionAllows(
            kQuestion, [this] { ++saves; return saveHolds; }, [this] { ++discards; });
    }

    std::unique_ptr<CommandTable<TestCommand>> commands;
    QLineEdit* box = nullptr;
    QWidget* panel = nullptr;
    int panelClosings = 0;
    int saves = 0;
    int discards = 0;
    bool saveHolds = true;
    bool mayClose = true;

protected:
    bool readyToClose() override { return mayClose; }
};

struct ActivityWindowTest : ::testing::Test {
    ActivityWindowTest() { Process() = ProcessValues{}; }
    TempProgramFolder folder;
    ScriptedDialogs dialogs;
};

} // namespace

TEST_F(ActivityWindowTest, TheFrameGivesNameStatusBarToolbarsAndMenus)
{
    TestScreen screen(dialogs);
    EXPECT_EQ(screen.objectName(), "TestScreen");
    EXPECT_TRUE(screen.testAttribute(Qt::WA_DeleteOnClose) == false);
    EXPECT_NE(screen.findChild<ScreenStatusBar*>(), nullptr);
    EXPECT_NE(screen.findChild<QToolBar*>("Toolbar1"), nullptr);
    EXPECT_NE(screen.findChild<QToolBar*>("Toolbar2"), nullptr);
    EXPECT_EQ(screen.findChild<QToolBar*>("Toolbar2")->actions().first()->objectName(), "mPanelColor");
    EXPECT_NE(screen.findChild<QMenu*>("mOptions"), nullptr);
    EXPECT_FALSE(screen.windowIcon().isNull());
}

TEST_F(ActivityWindowTest, EscapeClosesWhatIsOpenFirstThenLeavesTheScreen)
{
    TestScreen screen(dialogs);
    QSignalSpy closed(&screen, &ActivityWindow::closed);
    screen.show();
    screen.panel->show();
    QTest::keyClick(screen.box, Qt::Key_Escape);
    EXPECT_EQ(screen.panelClosings, 1);
    EXPECT_EQ(closed.count(), 0);
    QTest::keyClick(screen.box, Qt::Key_Escape);
    EXPECT_EQ(screen.panelClosings, 1);
    EXPECT_EQ(closed.count(), 1) << "nothing open: Escape is E&xit";
}

TEST_F(ActivityWindowTest, SaveQuestionYesSavesNoDiscardsCancelStays)
{
    TestScreen screen(dialogs);
    dialogs.expectMessage(kQuestion.title, kQuestion.text, Answer::Yes);
    EXPECT_TRUE(screen.askToSave());
    EXPECT_EQ(screen.saves, 1);
    screen.saveHolds = false;
    dialogs.expectMessage(kQuestion.title, kQuestion.text, Answer::Yes);
    EXPECT_FALSE(screen.askToSave()) << "a save that did not hold stops the command";
    dialogs.expectMessage(kQuestion.title, kQuestion.text, Answer::No);
    EXPECT_TRUE(screen.askToSave());
    EXPECT_EQ(screen.discards, 1);
    dialogs.expectMessage(kQuestion.title, kQuestion.text, Answer::Cancel);
    EXPECT_FALSE(screen.askToSave());
    EXPECT_EQ(screen.saves, 2);
    EXPECT_EQ(screen.discards, 1);
    ASSERT_EQ(dialogs.messages().size(), 4);
    EXPECT_EQ(dialogs.messages().first(), kQuestion);
}

TEST_F(ActivityWindowTest, F1OpensTheScreensHelpTopic)
{
    TestScreen screen(dialogs);
    screen.show();
    screen.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    QTest::keyClick(&screen, Qt::Key_F1);
    HelpWindow* help = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* found = qobject_cast<HelpWindow*>(window); found && found->isVisible())
            help = found;
    }
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(help->topic(), 1010);
    help->close();
}

TEST_F(ActivityWindowTest, ARightClickOpensTheOptionsMenu)
{
    TestScreen screen(dialogs);
    screen.show();
    QContextMenuEvent click(QContextMenuEvent::Mouse, QPoint(5, 5), screen.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&screen, &click);
    QMenu* options = screen.findChild<QMenu*>("mOptions");
    EXPECT_TRUE(options->isVisible());
    options->hide();
}

TEST_F(ActivityWindowTest, ClosingAsksTheScreenThenOffersTheChangedColour)
{
    TestScreen screen(dialogs);
    QSignalSpy closed(&screen, &ActivityWindow::closed);
    screen.show();
    screen.mayClose = false;
    screen.close();
    EXPECT_TRUE(screen.isVisible());
    EXPECT_EQ(closed.count(), 0);

    screen.mayClose = true;
    dialogs.expectMessage(QStringLiteral("Panel Color"), QStringLiteral("Select New Color or Use System Default Color?\n"
                                                                        "Yes = Color Selection Panel will appear.\n"
                                                                        "No = Current System Default Color will be selected."),
                          Answer::Yes);
    dialogs.expectColor(12632256);
    screen.commands->action(TestCommand::PanelColor)->trigger();
    dialogs.expectMessage(QStringLiteral("Color Changes"), QStringLiteral("Save changes made to Panel Color?"),
                          Answer::No);
    screen.close();
    EXPECT_FALSE(screen.isVisible());
    EXPECT_EQ(closed.count(), 1);
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(ReadSlotText(GColor2, 25), "") << "No leaves the slot as it was";
}
