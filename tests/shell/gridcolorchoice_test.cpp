// A screen's grid colours: the text colour chosen is stored in the screen's
// slot and shown; one that cannot be stored is told and still shown for now;
// the background selector stores into the screen's background slot, not the
// main screen's.
#include "common/writefailure.h"
#include "shell/kit/screengrid.h"
#include "shell/screens/backgroundselector.h"
#include "shell/screens/gridcolorchoice.h"
#include "shell/settings/settingsregistry.h"
#include "scripted_dialogs.h"
#include "temp_program_folder.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class GridColorChoiceTest : public ::testing::Test {
protected:
    GridColorChoiceTest()
    {
        window.resize(1000, 800);
        grid = new ScreenGrid(QStringLiteral("Grid"), &window);
        choice = new GridColorChoice(dialogs, grid, &window, Settings::Form24GridBackground,
                                     Settings::Form24GridTextColor);
        window.show();
    }

    TempProgramFolder folder;
    ScriptedDialogs dialogs;
    QWidget window;
    ScreenGrid* grid = nullptr;
    GridColorChoice* choice = nullptr;
};

} // namespace

TEST_F(GridColorChoiceTest, TheChosenTextColourIsStoredInTheScreensSlotAndShown)
{
    dialogs.expectColor(0x0000FF);
    choice->chooseTextColor();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(ReadSlotText(Settings::Form24GridTextColor), QStringLiteral("255"));
    EXPECT_EQ(ReadSlotText(Settings::GridTextColor), QString()) << "the shared slot stays";
    EXPECT_EQ(grid->palette().color(QPalette::Text), QColor(255, 0, 0));
}

TEST_F(GridColorChoiceTest, ATextColourThatCannotBeStoredIsToldAndShownForNow)
{
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("GColor1.Fil")));
    dialogs.expectColor(0x00FF00);
    const Message failed = WriteFailedMessage(QStringLiteral("GColor1.Fil"));
    dialogs.expectMessage(failed.title, failed.text);
    choice->chooseTextColor();
    EXPECT_TRUE(dialogs.scriptDone());
}

TEST_F(GridColorChoiceTest, TheSelectorStoresIntoTheScreensBackgroundSlot)
{
    choice->chooseBackground();
    ASSERT_TRUE(choice->selector()->isOpen());
    QTest::mouseClick(choice->selector()->thumbnail(2), Qt::LeftButton);
    choice->selector()->findChild<QPushButton*>(QStringLiteral("Command2_2"))->click();
    EXPECT_FALSE(choice->selector()->isOpen());
    EXPECT_EQ(ReadSlotText(Settings::Form24GridBackground), QStringLiteral("WP3"));
    EXPECT_EQ(folder.bytesOf(QStringLiteral("GQORB1.Fil")), QByteArray()) << "the main background stays";
}
