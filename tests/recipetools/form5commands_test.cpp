// The recipe screen's command table: every command's menu entry, screen
// button and toolbar button with their captions, each door bound to the one
// action; commands not built yet stay off; Escape closes the open panel
// first.
#include "command_doors.h"
#include "cookbook/logic/cookbookfiles.h"
#include "form5_fixture.h"
#include "print/screens/printoptionspanel.h"

#include <QMenu>
#include <QPushButton>

TEST_F(Form5Test, EveryCommandHasItsCaptionsAndDoors)
{
    auto form = open();
    ExpectDoors(*form, {
        {"mCreate", "&Create Recipe", "&Create", true},
        {"mView", "&View Recipe", "&View", true},
        {"mModify", "&Modify Recipe", "&Modify", true},
        {"mSave", "&Save", "&Save", true},
        {"mDelete", "&Delete Recipe", "&Delete", true},
        {"mRename", "Change Recipe &Name", "", false},
        {"mCalculate", "C&alculate Amounts", "C&alculate", true},
        {"mSearch", "Searc&h", "S&earch", true},
        {"mSpelling", "S&pelling Check", "S&pelling Check", true},
        {"mCopy", "Cop&y", "", true},
        {"mExport", "&Export Recipe", "", false},
        {"mImport", "&Import Recipe", "", false},
        {"mPrint", "&Print Options", "&Print", true},
        {"mWorksheet", "Print &Worksheet", "", true},
        {"mExit", "E&xit", "E&xit", true},
        {"mTitles", "Cookbook &Titles", "", true},
        {"mPanelColor", "Panel C&olor", "", true},
        {"mBackup", "&Backup Recipes to Disk", "", false},
        {"mRestore", "&Restore Recipes from Disk", "", false},
        {"mHelp", "Recipe File &Help", "", true},
    });
}

TEST_F(Form5Test, TheButtonsStandInTheirIndexOrder)
{
    auto form = open();
    const char* captions[] = {"&Create", "&View", "&Modify", "&Save", "&Print",
                              "C&alculate", "&Delete", "S&earch", "S&pelling Check", "E&xit"};
    for (int index = 0; index < 10; ++index) {
        auto* button = form->findChild<QPushButton*>(QStringLiteral("Command1_%1").arg(index));
        ASSERT_NE(button, nullptr) << index;
        EXPECT_EQ(button->text(), captions[index]);
    }
}

TEST_F(Form5Test, TheMenusHoldTheirEntriesInOrder)
{
    auto form = open();
    const auto entries = [&](const char* name) {
        QStringList texts;
        for (const QAction* action : form->findChild<QMenu*>(name)->actions())
            texts << (action->isSeparator() ? QStringLiteral("-") : action->text());
        return texts;
    };
    EXPECT_EQ(entries("mRecipe"),
              QStringList({"&Create Recipe", "&View Recipe", "&Modify Recipe", "&Save", "&Delete Recipe",
                           "Change Recipe &Name", "-", "C&alculate Amounts", "Searc&h", "S&pelling Check", "-",
                           "Cop&y", "&Export Recipe", "&Import Recipe", "-", "&Print Options", "Print &Worksheet",
                           "-", "E&xit"}));
    EXPECT_EQ(entries("mOptions"), QStringList({"Select Cook&book", "Cookbook &Titles", "-", "Panel C&olor"}));
    EXPECT_EQ(entries("mUtilities"), QStringList({"&Backup Recipes to Disk", "&Restore Recipes from Disk"}));
    EXPECT_EQ(entries("mSelectCookbook").size(), 8);
}

TEST_F(Form5Test, CommandsOfLaterToolsStayOffInEveryMode)
{
    auto form = open();
    saveQuickRecipe(*form, "Stews", "Beef Stew");
    pick(*form, "Beef Stew");
    act(*form, "mModify")->trigger();
    QTest::keyClicks(fields(*form)->ingredientBox(1), "salt");
    for (const char* later : {"mSpelling", "mCopy", "mExport", "mImport", "mBackup", "mRestore"})
        EXPECT_FALSE(act(*form, later)->isEnabled()) << later;
    EXPECT_TRUE(act(*form, "mSave")->isEnabled());
}

TEST_F(Form5Test, EscapeClosesTheOpenPanelBeforeItLeavesTheScreen)
{
    auto form = open();
    ShowActive(*form);
    startRecipe(*form, "Stews", "Beef Stew");
    typeRow(*form, 0, "2", "cups", "beef");
    QTest::keyClicks(fields(*form)->yieldAmountBox(), "4");
    act(*form, "mSave")->trigger();
    pick(*form, "Beef Stew");
    // The key goes where the keyboard is and travels up to the screen; it
    // is let go wherever the keyboard is then.
    const auto target = [&] {
        QWidget* focus = QApplication::focusWidget();
        return focus && form->isAncestorOf(focus) ? focus : static_cast<QWidget*>(form.get());
    };
    const auto escape = [&] {
        QTest::keyPress(target(), Qt::Key_Escape);
        QTest::keyRelease(target(), Qt::Key_Escape);
    };

    act(*form, "mSearch")->trigger();
    EXPECT_EQ(form->openPanel(), RecipePanel::Search);
    escape();
    EXPECT_EQ(form->openPanel(), RecipePanel::None);

    act(*form, "mCalculate")->trigger();
    EXPECT_EQ(form->openPanel(), RecipePanel::Calculator);
    escape();
    EXPECT_EQ(form->openPanel(), RecipePanel::None);

    act(*form, "mRename")->trigger();
    escape();
    EXPECT_EQ(form->openPanel(), RecipePanel::None);

    act(*form, "mTitles")->trigger();
    escape();
    EXPECT_EQ(form->openPanel(), RecipePanel::None);

    act(*form, "mPrint")->trigger();
    form->printPanel()->toggleLarge();
    escape();
    EXPECT_EQ(form->openPanel(), RecipePanel::Print) << "the large view goes first";
    escape();
    EXPECT_EQ(form->openPanel(), RecipePanel::None);
    EXPECT_TRUE(form->isVisible());

    escape();
    EXPECT_FALSE(form->isVisible()) << "with nothing open Escape is E\u0026xit";
}

TEST_F(Form5Test, TheUsualShortcutsReachTheirCommands)
{
    auto form = open();
    ShowActive(*form);
    EXPECT_EQ(act(*form, "mCreate")->shortcut(), QKeySequence(QKeySequence::New));
    EXPECT_EQ(act(*form, "mSave")->shortcut(), QKeySequence(QKeySequence::Save));
    EXPECT_EQ(act(*form, "mSearch")->shortcut(), QKeySequence(QKeySequence::Find));
    EXPECT_EQ(act(*form, "mPrint")->shortcut(), QKeySequence(QKeySequence::Print));
    EXPECT_EQ(act(*form, "mExit")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_W));
    EXPECT_EQ(act(*form, "mHelp")->shortcut(), QKeySequence(Qt::Key_F1));

    QTest::keyClick(form.get(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(form->mode(), RecipeMode::Create);
    QTest::keyClicks(fields(*form)->nameBox(), "Beef Stew");
    QTest::keyClick(form.get(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(ReadNameList(1, RecipeType::AppetizersAndBeverages).size(), 1) << "saved by Ctrl+S";
    fields(*form)->pickList()->hidePopup();
    QTest::keyClick(form.get(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(form->openPanel(), RecipePanel::Search);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QTest::keyClick(form.get(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(form->isVisible());
}
