// The shopping list screen's settings: the colours of its grid and panels,
// the grid's background and text colour selectors, and the cookbook the
// Recipe Select panel reads.
#include "shoplist_fixture.h"

#include "raw_slots.h"

#include "shell/screens/backgroundselector.h"

#include <QFrame>
#include <QLabel>

TEST_F(ShoplistTest, TheGridTakesTheSharedGridColoursAndThePanelsTheirSlot)
{
    WriteSlotText(GColor1, 28, u"255");
    WriteSlotText(GColor1, 29, u"16711680");
    WriteSlotText(GColor1, 27, u"65280");
    auto form = open();
    EXPECT_EQ(grid(*form)->palette().color(QPalette::Base), QColor(255, 0, 0));
    EXPECT_EQ(grid(*form)->palette().color(QPalette::Text), QColor(0, 0, 255));
    EXPECT_EQ(form->findChild<QFrame*>("SSPanel1")->palette().color(QPalette::Window), QColor(0, 255, 0));
    EXPECT_EQ(form->findChild<QFrame*>("SSPanel3")->palette().color(QPalette::Window), QColor(0, 255, 0));
}

TEST_F(ShoplistTest, TheCookbookComesFromSlot11AndTheTitlesFromSlots2To9)
{
    WriteSlotText(GColor4, 11, u" 3");
    WriteSlotText(GColor4, 4, u"Holidays");
    auto form = open();
    EXPECT_EQ(form->cookbook(), 3);
    EXPECT_EQ(act(*form, "mCookbook3")->text(), "Cookbook #3 - Holidays");
    EXPECT_TRUE(act(*form, "mCookbook3")->isChecked());
    EXPECT_EQ(act(*form, "mCookbook1")->text(), "Cookbook #1 - ");
}

TEST_F(ShoplistTest, TheGridBackgroundSelectorStoresThePictureNameInSlot28)
{
    auto form = open();
    act(*form, "mGridBackground")->trigger();
    BackgroundSelector* selector = form->gridBackgroundSelector();
    ASSERT_TRUE(selector->isOpen());
    QTest::mouseClick(selector->thumbnail(2), Qt::LeftButton);
    selector->findChild<QPushButton*>("Command2_2")->click();
    EXPECT_EQ(ReadSlotText(GColor1, 28), "WP3");
    EXPECT_FALSE(selector->isOpen());
    EXPECT_EQ(status(*form), "Shopping List Maker");
    act(*form, "mGridBackground")->trigger();
    dialogs.expectColor(0x00FFFF);
    selector->findChild<QPushButton*>("Command2_0")->click();
    EXPECT_EQ(ReadSlotText(GColor1, 28), "65535");
    EXPECT_EQ(grid(*form)->palette().color(QPalette::Base), QColor(255, 255, 0));
    act(*form, "mGridBackground")->trigger();
    selector->findChild<QPushButton*>("Command2_1")->click();
    EXPECT_EQ(ReadSlotText(GColor1, 28), "Default");
    EXPECT_TRUE(folder.bytesOf("GQORB1.Fil").isEmpty()) << "the main background stays as it is";
}

TEST_F(ShoplistTest, TheGridTextColourIsChosenInTheColourDialogAndStoredInSlot29)
{
    auto form = open();
    dialogs.expectColor(255);
    act(*form, "mGridTextColor")->trigger();
    EXPECT_EQ(ReadSlotText(GColor1, 29), "255");
    EXPECT_EQ(grid(*form)->palette().color(QPalette::Text), QColor(255, 0, 0));
    dialogs.expectColor(std::nullopt);
    act(*form, "mGridTextColor")->trigger();
    EXPECT_EQ(ReadSlotText(GColor1, 29), "255");
}
