// The guide line option: its slots, and the "Display Options" frame.
#include "print/logic/guidelines.h"
#include "print/screens/guidelineoptions.h"
#include "temp_program_folder.h"

#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

TEST(GuideLineSlots, EachPrintingScreenHasItsSlotInGColor3)
{
    EXPECT_STREQ(kGuideLineFile.name, "GColor3.Fil");
    EXPECT_EQ(kForm24GuideLineSlot, 28);
    EXPECT_EQ(kForm5GuideLineSlot, 38);
    EXPECT_EQ(kZcalandarGuideLineSlot, 42);
    EXPECT_EQ(kShoplistGuideLineSlot, 50);
    EXPECT_EQ(kWeightTrackerGuideLineSlot, 80);
}

TEST(GuideLineSlots, EmptyReadsAsNoGuideLines)
{
    TempProgramFolder folder;
    EXPECT_EQ(ReadGuideLineOption(GColor3, 38), 0);
    WriteSlotText(GColor3, 38, u"1");
    EXPECT_EQ(ReadGuideLineOption(GColor3, 38), 1);
    WriteSlotText(GColor3, 38, u"0");
    EXPECT_EQ(ReadGuideLineOption(GColor3, 38), 0);
    WriteSlotText(GColor3, 38, u"7");
    EXPECT_EQ(ReadGuideLineOption(GColor3, 38), 0) << "only option 1 shows guide lines";
}

TEST(GuideLineSlots, TheIndexIsWrittenAsText)
{
    TempProgramFolder folder;
    WriteGuideLineOption(GColor3, 42, 1);
    QByteArray expected(42 * 20, '\0');
    expected[41 * 20] = 1;
    expected[41 * 20 + 2] = '1';
    EXPECT_EQ(folder.bytesOf("GColor3.Fil"), expected);
}

TEST(GuideLineOptions, FrameAndCaptions)
{
    TempProgramFolder folder;
    GuideLineOptions options(GColor3, kForm5GuideLineSlot);
    EXPECT_EQ(options.title(), "Display Options");
    EXPECT_EQ(options.option(0)->text(), "Do Not Display Guide Lines");
    EXPECT_EQ(options.option(1)->text(), "Display Guide Lines");
    EXPECT_EQ(options.option(2), nullptr);
    EXPECT_EQ(options.findChild<QRadioButton*>("GuideLineOption_1"), options.option(1));
}

TEST(GuideLineOptions, LoadSelectsTheStoredOptionWithoutWritingIt)
{
    TempProgramFolder folder;
    WriteSlotText(GColor3, 50, u"1");
    const QByteArray before = folder.bytesOf("GColor3.Fil");
    GuideLineOptions options(GColor3, kShoplistGuideLineSlot);
    QSignalSpy changes(&options, &GuideLineOptions::guideLinesChanged);
    options.load();
    EXPECT_TRUE(options.option(1)->isChecked());
    EXPECT_TRUE(options.guideLinesOn());
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes[0][0].toBool(), true);
    EXPECT_EQ(folder.bytesOf("GColor3.Fil"), before);
}

TEST(GuideLineOptions, LoadOfAnEmptySlotSelectsNoGuideLinesAndWritesNothing)
{
    TempProgramFolder folder;
    GuideLineOptions options(GColor3, kForm24GuideLineSlot);
    options.load();
    EXPECT_TRUE(options.option(0)->isChecked());
    EXPECT_FALSE(options.guideLinesOn());
    EXPECT_EQ(folder.bytesOf("GColor3.Fil"), QByteArray()) << "the slot stays empty";
}

TEST(GuideLineOptions, AClickWritesTheIndexAndSwitchesTheGuideLines)
{
    TempProgramFolder folder;
    GuideLineOptions options(GColor3, kWeightTrackerGuideLineSlot);
    options.load();
    options.show();
    QSignalSpy changes(&options, &GuideLineOptions::guideLinesChanged);
    QTest::mouseClick(options.option(1), Qt::LeftButton);
    EXPECT_EQ(ReadSlotText(GColor3, 80), "1");
    ASSERT_EQ(changes.count(), 1);
    EXPECT_TRUE(changes[0][0].toBool());
    QTest::mouseClick(options.option(0), Qt::LeftButton);
    EXPECT_EQ(ReadSlotText(GColor3, 80), "0");
    ASSERT_EQ(changes.count(), 2);
    EXPECT_FALSE(changes[1][0].toBool());
}
