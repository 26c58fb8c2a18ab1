// The command table: menus, submenus and separators in the table's order,
// buttons by index, toolbar buttons by position, one routine behind every
// door, enabled states from the rules, and rows not built yet kept off.
#include "shell/kit/commandtable.h"
#include "command_doors.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <gtest/gtest.h>

namespace {

enum class Cmd { Open, Save, Later, Tick, ChoiceA, ChoiceB, Exit };

QStringList Entries(const QMenu* menu)
{
    QStringList texts;
    for (const QAction* action : menu->actions())
        texts << (action->isSeparator() ? QStringLiteral("-") : action->text());
    return texts;
}

QStringList ToolbarTexts(const QToolBar* toolbar)
{
    QStringList texts;
    for (const QAction* action : toolbar->actions())
        texts << (action->isSeparator() ? QStringLiteral("-") : action->objectName());
    return texts;
}

struct TableScreen : ::testing::Test {
    QMainWindow window;
    QToolBar* top = window.addToolBar(QStringLiteral("Top"));
    QToolBar* side = window.addToolBar(QStringLiteral("Side"));
    QWidget* buttons = new QWidget(&window);
    int opened = 0;
    int saved = 0;
    int exited = 0;
    bool saveAllowed = false;
    std::unique_ptr<CommandTable<Cmd>> table;

    static constexpr MenuRow kMenus[] = {
        {"mFile", "&File"},
        {"mChoices", "&Choices", "mFile", true},
        {"mHelpMenu", "&Help"},
    };

    TableScreen()
    {
        using enum Cmd;
        const CommandRow<Cmd> rows[] = {
            {Open, {.name = "mOpen", .menu = "mFile", .caption = "&Open File", .button = {"&Open", 1},
                    .toolbar = {Toolbar::Top, 2}, .run = [this] { ++opened; }}},
            {Save, {.name = "mSave", .menu = "mFile", .caption = "&Save", .button = {"&Save", 0},
                    .toolbar = {Toolbar::Top, 1}, .run = [this] { ++saved; }, .enabled = [this] { return saveAllowed; }}},
            {Later, {.name = "mLater", .menu = "mFile", .caption = "&Later", .separatorBefore = true,
                     .toolbar = {Toolbar::Side, 0}}},
            {ChoiceA, {.name = "mChoiceA", .menu = "mChoices", .caption = "Choice &A", .run = [] {}, .choiceGroup = 1}},
            {ChoiceB, {.name = "mChoiceB", .menu = "mChoices", .caption = "Choice &B", .run = [] {}, .choiceGroup = 1}},
            {Tick, {.name = "mTick", .menu = "mFile", .caption = "&Tick", .separatorBefore = true, .run = [] {},
                    .checkable = true}},
            {Exit, {.name = "mExit", .menu = "mFile", .caption = "E&xit", .separatorBefore = true,
                    .button = {"E&xit", 2}, .toolbar = {Toolbar::Top, 9, true}, .run = [this] { ++exited; },
                    .shortcut = QKeySequence(Qt::CTRL | Qt::Key_W)}},
        };
        table = std::make_unique<CommandTable<Cmd>>(&window, kMenus, rows, top, side, buttons);
    }
};

} // namespace

TEST_F(TableScreen, MenusTakeTheirEntriesInTableOrderWithSubmenusInPlace)
{
    ASSERT_EQ(window.menuBar()->actions().size(), 2);
    QMenu* file = window.findChild<QMenu*>("mFile");
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(file->title(), "&File");
    EXPECT_EQ(Entries(file), QStringList({"&Open File", "&Save", "-", "&Later", "-", "&Choices", "-", "&Tick", "-",
                                          "E&xit"}));
    EXPECT_EQ(Entries(window.findChild<QMenu*>("mChoices")), QStringList({"Choice &A", "Choice &B"}));
    EXPECT_EQ(table->menu("mChoices"), window.findChild<QMenu*>("mChoices"));
    EXPECT_EQ(table->menu("mNone"), nullptr);
}

TEST_F(TableScreen, ButtonsComeInIndexOrderAndToolbarsInPositionOrder)
{
    const QList<QPushButton*> ordered = table->buttons();
    ASSERT_EQ(ordered.size(), 3);
    EXPECT_EQ(ordered[0]->text(), "&Save");
    EXPECT_EQ(ordered[0]->objectName(), "Command1_0");
    EXPECT_EQ(ordered[1]->objectName(), "Command1_1");
    EXPECT_EQ(ordered[2]->text(), "E&xit");
    EXPECT_EQ(table->button(Cmd::Open), ordered[1]);
    EXPECT_EQ(table->button(Cmd::Tick), nullptr);
    EXPECT_EQ(ToolbarTexts(top), QStringList({"mSave", "mOpen", "-", "mExit"}));
    EXPECT_EQ(ToolbarTexts(side), QStringList({"mLater"}));
}

TEST_F(TableScreen, EveryDoorReachesTheOneRoutine)
{
    table->action(Cmd::Open)->trigger();
    table->button(Cmd::Open)->click();
    qobject_cast<QToolButton*>(top->widgetForAction(table->action(Cmd::Open)))->click();
    EXPECT_EQ(opened, 3);
    const CommandDoors doors = DoorsOf(window, QStringLiteral("mOpen"));
    EXPECT_EQ(doors.menuCaption, "&Open File");
    EXPECT_EQ(doors.buttonCaption, "&Open");
    EXPECT_TRUE(doors.onToolbar);
    EXPECT_EQ(saved, 0) << "no other routine ran";
}

TEST_F(TableScreen, RulesSetTheEnabledStateOfEveryDoor)
{
    EXPECT_FALSE(table->action(Cmd::Save)->isEnabled());
    EXPECT_FALSE(table->button(Cmd::Save)->isEnabled());
    saveAllowed = true;
    table->refresh();
    EXPECT_TRUE(table->action(Cmd::Save)->isEnabled());
    EXPECT_TRUE(table->button(Cmd::Save)->isEnabled());
    EXPECT_TRUE(top->widgetForAction(table->action(Cmd::Save))->isEnabled());
}

TEST_F(TableScreen, ARowNotBuiltYetStaysDisabledUntilItGetsItsRoutine)
{
    table->refresh();
    EXPECT_FALSE(table->action(Cmd::Later)->isEnabled());
    int later = 0;
    table->setRoutine(Cmd::Later, [&later] { ++later; });
    EXPECT_TRUE(table->action(Cmd::Later)->isEnabled());
    table->action(Cmd::Later)->trigger();
    EXPECT_EQ(later, 1);
}

TEST_F(TableScreen, ChoiceGroupsTickOneEntryAndCheckableRowsTickThemselves)
{
    QAction* a = table->action(Cmd::ChoiceA);
    QAction* b = table->action(Cmd::ChoiceB);
    a->trigger();
    EXPECT_TRUE(a->isChecked());
    b->trigger();
    EXPECT_TRUE(b->isChecked());
    EXPECT_FALSE(a->isChecked());
    QAction* tick = table->action(Cmd::Tick);
    EXPECT_TRUE(tick->isCheckable());
    EXPECT_FALSE(table->action(Cmd::Open)->isCheckable());
}

TEST_F(TableScreen, ShortcutsServeTheCommand)
{
    EXPECT_EQ(table->action(Cmd::Exit)->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_W));
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(exited, 1);
}

TEST(CommandTableMenuBar, ATitleThatIsACommandStandsOnTheBarInItsPlace)
{
    enum class Bar { Copy, Rollup, About };
    static constexpr MenuRow kMenus[] = {
        {"mEdit", "&Edit"},
        {"mRollup", "&Rollup", nullptr, false, true},
        {"mHelpMenu", "&Help"},
    };
    int rolledUp = 0;
    const CommandRow<Bar> rows[] = {
        {Bar::Copy, {.name = "mCopy", .menu = "mEdit", .caption = "&Copy", .run = [] {}}},
        {Bar::About, {.name = "mAbout", .menu = "mHelpMenu", .caption = "&About", .run = [] {}}},
        {Bar::Rollup, {.name = "mRollup", .menu = "mRollup", .caption = "&Rollup", .run = [&rolledUp] { ++rolledUp; }}},
    };
    QMainWindow window;
    CommandTable<Bar> table(&window, kMenus, rows, nullptr, nullptr);
    QStringList titles;
    for (const QAction* action : window.menuBar()->actions())
        titles << action->text();
    EXPECT_EQ(titles, QStringList({"&Edit", "&Rollup", "&Help"}));
    QAction* rollup = table.action(Bar::Rollup);
    EXPECT_EQ(window.menuBar()->actions().at(1), rollup);
    EXPECT_EQ(rollup->menu(), nullptr) << "a command, not a menu";
    EXPECT_EQ(table.menu("mRollup"), nullptr);
    rollup->trigger();
    EXPECT_EQ(rolledUp, 1);
}
