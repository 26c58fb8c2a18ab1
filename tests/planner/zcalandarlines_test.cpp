// The day's lines: the yellow line with its meal's drop-down, what typing
// takes, Enter, Tab and clicks, the lines offered to their lists, picks
// from the drop-down, and a list that cannot be written.
#include "zcalandar_fixture.h"
#include "test_bytes.h"

#include "common/colors.h"
#include "common/widgets/qtcolors.h"
#include "shell/kit/droplist.h"

#include <QDir>
#include <functional>

namespace {

const QColor kYellow = ColorFromColorref(QBColor(kFocusColorIndex));

} // namespace

TEST_F(ZcalandarTest, ALineWithTheKeyboardIsYellowAndCarriesItsMealsDropDown)
{
    auto screen = openShown();
    QTest::mouseClick(line(*screen, 9), Qt::LeftButton);
    EXPECT_EQ(line(*screen, 9)->palette().color(QPalette::Base), kYellow);
    EXPECT_NE(line(*screen, 8)->palette().color(QPalette::Base), kYellow);
    EXPECT_EQ(screen->linesPanel()->dropDownLine(Meal::Lunch), 9);
    EXPECT_TRUE(line(*screen, 9)->actions().contains(screen->linesPanel()->dropDownButton(Meal::Lunch)));
    EXPECT_EQ(screen->lineEntry().activeLine(), 9);
    QTest::mouseClick(line(*screen, 16), Qt::LeftButton);
    EXPECT_NE(line(*screen, 9)->palette().color(QPalette::Base), kYellow) << "the line left is plain again";
    EXPECT_EQ(screen->linesPanel()->dropDownLine(Meal::Dinner), 16);
    EXPECT_EQ(screen->linesPanel()->dropDownLine(Meal::Lunch), 9) << "a drop-down stays where it was";
}

TEST_F(ZcalandarTest, TextEditsSetDirtyCursorKeysDoNot)
{
    folder.copyIn(TestDataFile(QStringLiteral(" 2026.Mnu")));
    auto screen = openShown();
    QTest::mouseClick(line(*screen, 0), Qt::LeftButton);
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End})
        QTest::keyClick(line(*screen, 0), key);
    EXPECT_FALSE(screen->dirty());
    QTest::keyClick(line(*screen, 0), Qt::Key_Backspace);
    EXPECT_TRUE(screen->dirty());
    EXPECT_EQ(line(*screen, 0)->text(), QStringLiteral("Pancake"));
}

TEST_F(ZcalandarTest, TheDeleteKeySetsDirty)
{
    auto screen = openShown();
    QTest::mouseClick(line(*screen, 0), Qt::LeftButton);
    QTest::keyClick(line(*screen, 0), Qt::Key_Delete);
    EXPECT_TRUE(screen->dirty());
}

TEST_F(ZcalandarTest, ALineTakesThirtyTypedCharactersAndNoDoubleQuote)
{
    auto screen = openShown();
    typeInto(line(*screen, 2), QStringLiteral("Say \"cheese\" toast"));
    EXPECT_EQ(line(*screen, 2)->text(), QStringLiteral("Say cheese toast"));
    line(*screen, 3)->setFocus();
    QTest::keyClicks(line(*screen, 3), QString(35, u'x'));
    EXPECT_EQ(line(*screen, 3)->text(), QString(30, u'x'));
}

TEST_F(ZcalandarTest, AThirtyTwoCharacterEntrySurvives)
{
    folder.copyIn(TestDataFile(QStringLiteral(" 2026.Mnu")));
    clock.set(QDateTime(QDate(2026, 3, 15), QTime(8, 0)));
    const QByteArray before = bytesOf(QStringLiteral(" 2026.Mnu"));
    auto screen = openShown();
    EXPECT_EQ(line(*screen, 14)->text(), QStringLiteral("Roast chicken with potatoes, gra"));
    QTest::mouseClick(line(*screen, 14), Qt::LeftButton);
    QTest::keyClick(line(*screen, 14), Qt::Key_End);
    QTest::keyClick(line(*screen, 14), Qt::Key_V);
    EXPECT_EQ(line(*screen, 14)->text().size(), 32) << "typing does not lengthen it";
    act(*screen, "mSave")->trigger();
    EXPECT_EQ(bytesOf(QStringLiteral(" 2026.Mnu")), before) << "saved whole, byte for byte";
}

// Edge case: pressing Enter on line 20 goes to line 0 and offers line 20 to
// the dinner list.
TEST_F(ZcalandarTest, EnterOnTheLastLineGoesToTheFirstAndOffersItToTheDinnerList)
{
    auto screen = openShown();
    typeInto(line(*screen, 20), QStringLiteral("Apple crumble"));
    QTest::keyClick(line(*screen, 20), Qt::Key_Return);
    EXPECT_TRUE(line(*screen, 0)->hasFocus());
    EXPECT_EQ(screen->lineEntry().activeLine(), 0);
    EXPECT_EQ(screen->list(Meal::Dinner).items(), QStringList{"Apple crumble"});
    EXPECT_EQ(bytesOf(QStringLiteral("Menu3.Fil")), QuotedLineBytes({"Apple crumble"}));
    EXPECT_EQ(screen->linesPanel()->dropList(Meal::Dinner)->count(), 1);
    EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("Menu1.Fil"))));
}

TEST_F(ZcalandarTest, EnterOffersTheLineToItsMealsListInOrder)
{
    folder.copyIn(TestDataFile(QStringLiteral("Menu1.Fil")));
    auto screen = openShown();
    typeInto(line(*screen, 0), QStringLiteral("Crepes"));
    QTest::keyClick(line(*screen, 0), Qt::Key_Return);
    EXPECT_TRUE(line(*screen, 1)->hasFocus());
    EXPECT_EQ(bytesOf(QStringLiteral("Menu1.Fil")),
              QByteArray("\"bacon\"\r\n\"Bagel\"\r\n\"Caf\xe9 cr\xe8me\"\r\n\"Crepes\"\r\n\"eggs and toast\"\r\n"
                         "\"Oatmeal\"\r\n\"Pancakes\"\r\n\"Waffles\"\r\n"));
    EXPECT_TRUE(screen->dirty());
    EXPECT_FALSE(ReadDay(kToday).isFull()) << "the day itself is saved only by Save";
}

TEST_F(ZcalandarTest, TabDoesNotOfferTheLine)
{
    auto screen = openShown();
    typeInto(line(*screen, 7), QStringLiteral("Club sandwich"));
    QTest::keyClick(line(*screen, 7), Qt::Key_Tab);
    EXPECT_FALSE(line(*screen, 7)->hasFocus());
    EXPECT_EQ(screen->list(Meal::Lunch).count(), 0);
    EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("Menu2.Fil"))));
    EXPECT_EQ(line(*screen, 7)->text(), QStringLiteral("Club sandwich")) << "kept in the day";
}

TEST_F(ZcalandarTest, AClickIntoAnotherLineOffersTheLineLeft)
{
    auto screen = openShown();
    typeInto(line(*screen, 8), QStringLiteral("Minestrone"));
    QTest::mouseClick(line(*screen, 15), Qt::LeftButton);
    EXPECT_EQ(screen->list(Meal::Lunch).items(), QStringList{"Minestrone"});
    EXPECT_EQ(bytesOf(QStringLiteral("Menu2.Fil")), QuotedLineBytes({"Minestrone"}));
}

TEST_F(ZcalandarTest, AOneCharacterLineStaysInTheDayOnly)
{
    auto screen = openShown();
    typeInto(line(*screen, 0), QStringLiteral("X"));
    QTest::keyClick(line(*screen, 0), Qt::Key_Return);
    EXPECT_EQ(screen->list(Meal::Breakfast).count(), 0);
    act(*screen, "mSave")->trigger();
    EXPECT_EQ(ReadDay(kToday).line(0), QStringLiteral("X"));
}

TEST_F(ZcalandarTest, ALineInAnotherCaseThanItsListEntryIsNotAddedAgain)
{
    folder.copyIn(TestDataFile(QStringLiteral("Menu1.Fil")));
    const QByteArray before = bytesOf(QStringLiteral("Menu1.Fil"));
    auto screen = openShown();
    typeInto(line(*screen, 0), QStringLiteral("OATMEAL"));
    QTest::keyClick(line(*screen, 0), Qt::Key_Return);
    EXPECT_EQ(bytesOf(QStringLiteral("Menu1.Fil")), before);
    EXPECT_TRUE(dialogs.messages().isEmpty());
}

TEST_F(ZcalandarTest, APickFromTheDropDownFillsTheLineAndMovesOn)
{
    folder.copyIn(TestDataFile(QStringLiteral("Menu1.Fil")));
    auto screen = openShown();
    QTest::mouseClick(line(*screen, 6), Qt::LeftButton);
    QTest::keyClick(line(*screen, 6), Qt::Key_Down, Qt::AltModifier);
    DropList* list = screen->linesPanel()->dropList(Meal::Breakfast);
    ASSERT_TRUE(list->isVisible());
    EXPECT_EQ(list->count(), 7);
    EXPECT_EQ(list->item(0)->text(), QStringLiteral("bacon"));
    list->setCurrentRow(4);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(line(*screen, 6)->text(), QStringLiteral("Oatmeal"));
    EXPECT_TRUE(screen->dirty());
    EXPECT_TRUE(line(*screen, 7)->hasFocus());
    EXPECT_EQ(screen->lineEntry().activeLine(), 7);
    EXPECT_FALSE(list->isVisible());
}

TEST_F(ZcalandarTest, TheDropDownButtonOpensTheListOverItsLine)
{
    folder.writeBytes(QStringLiteral("Menu3.Fil"), QuotedLineBytes({"Lasagne", "Chili"}));
    auto screen = openShown();
    QTest::mouseClick(line(*screen, 20), Qt::LeftButton);
    screen->linesPanel()->dropDownButton(Meal::Dinner)->trigger();
    DropList* list = screen->linesPanel()->dropList(Meal::Dinner);
    ASSERT_TRUE(list->isVisible());
    EXPECT_EQ(list->geometry().topLeft(), line(*screen, 20)->geometry().topLeft());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
    EXPECT_EQ(line(*screen, 20)->text(), QStringLiteral("Chili"));
    EXPECT_TRUE(line(*screen, 0)->hasFocus()) << "from the last line to the first";
}

TEST_F(ZcalandarTest, AListThatCannotBeWrittenIsToldAndStaysAsItWas)
{
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("Menu2.Fil")));
    auto screen = openShown();
    typeInto(line(*screen, 10), QStringLiteral("Gazpacho"));
    expectWriteFailed(QStringLiteral("Menu2.Fil"));
    QTest::keyClick(line(*screen, 10), Qt::Key_Return);
    ASSERT_EQ(dialogs.messages().size(), 1);
    EXPECT_EQ(screen->list(Meal::Lunch).count(), 0);
    EXPECT_EQ(line(*screen, 10)->text(), QStringLiteral("Gazpacho"));
    EXPECT_TRUE(screen->dirty());
    EXPECT_EQ(bytesOf(QStringLiteral(" 2026.Mnu")), QByteArray()) << "no other file is touched";
}

// A panel that locks the lines while one of them has the keyboard: the
// keyboard does not wander down the lines as they are turned off one by one,
// so no drop-down is left standing on a locked line and the line typed in
// stays the active one.
TEST_F(ZcalandarTest, LockingTheLinesLeavesNoDropDownOnThem)
{
    auto screen = openShown();
    const std::pair<const char*, std::function<void()>> panels[] = {
        {"mCalendarOptions", [&] { act(*screen, "mCalendarOptions")->trigger(); }},
        {"mEditLists", [&] { act(*screen, "mEditLists")->trigger(); }},
        {"mPrintView", [&] { act(*screen, "mPrintView")->trigger(); }},
    };
    for (const auto& [name, openPanel] : panels) {
        QTest::mouseClick(line(*screen, 1), Qt::LeftButton);
        ASSERT_EQ(screen->linesPanel()->dropDownLine(Meal::Breakfast), 1) << name;
        openPanel();
        for (const Meal meal : {Meal::Breakfast, Meal::Lunch, Meal::Dinner})
            EXPECT_EQ(screen->linesPanel()->dropDownLine(meal), -1) << name << " meal " << int(meal);
        EXPECT_EQ(screen->lineEntry().activeLine(), 1) << name;
        for (int index = 0; index < kMenuLines; ++index)
            EXPECT_FALSE(line(*screen, index)->hasFocus()) << name << " line " << index;
        ASSERT_NE(QApplication::focusWidget(), nullptr) << name;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        ASSERT_TRUE(line(*screen, 1)->isEnabled()) << name;
    }
}
