// The guide line option: its slots, and the "Display Options" frame.
#include "print/logic/guidelines.h"
#include "print/screens/guidelineoptions.h"
#include "shell/settings/settingsregistry.h"
#include "temp_program_folder.h"
#include "raw_slots.h"
#include "scripted_dialogs.h"

#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include "common/writefailure.h"
#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

TEST(GuideLineSlots, EachPrintingScreenHasItsSlotInGColor3)
{
    const std::pair<SettingsSlot, int> rows[] = {
        {Settings::Form24GuideLines, 28},    {Settings::Form5GuideLines, 38},
        {Settings::ZcalandarGuideLines, 42}, {Settings::ShoplistGuideLines, 50},
        {Settings::WeightTrackerGuideLines, 80},
    };
    for (const auto& [slot, number] : rows) {
        EXPECT_STREQ(slot.file.name, "GColor3.Fil");
        EXPECT_EQ(slot.number, number);
    }
}

TEST(GuideLineSlots, EmptyReadsAsNoGuideLines)
{
    TempProgramFolder folder;
    EXPECT_EQ(ReadGuideLineOption(RawSlot(GColor3, 38)), 0);
    WriteSlotText(GColor3, 38, u"1");
    EXPECT_EQ(ReadGuideLineOption(RawSlot(GColor3, 38)), 1);
    WriteSlotText(GColor3, 38, u"0");
    EXPECT_EQ(ReadGuideLineOption(RawSlot(GColor3, 38)), 0);
    WriteSlotText(GColor3, 38, u"7");
    EXPECT_EQ(ReadGuideLineOption(RawSlot(GColor3, 38)), 0) << "only option 1 shows guide lines";
}

TEST(GuideLineSlots, TheIndexIsWrittenAsText)
{
    TempProgramFolder folder;
    WriteGuideLineOption(RawSlot(GColor3, 42), 1);
    QByteArray expected(42 * 20, '\0');
    expected[41 * 20] = 1;
    expected[41 * 20 + 2] = '1';
    EXPECT_EQ(folder.bytesOf("GColor3.Fil"), expected);
}

TEST(GuideLineOptions, FrameAndCaptions)
{
    TempProgramFolder folder;
    ScriptedDialogs dialogs;
    GuideLineOptions options(dialogs, Settings::Form5GuideLines);
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
    ScriptedDialogs dialogs;
    GuideLineOptions options(dialogs, Settings::ShoplistGuideLines);
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
    ScriptedDialogs dialogs;
    GuideLineOptions options(dialogs, Settings::Form24GuideLines);
    options.load();
    EXPECT_TRUE(options.option(0)->isChecked());
    EXPECT_FALSE(options.guideLinesOn());
    EXPECT_EQ(folder.bytesOf("GColor3.Fil"), QByteArray()) << "the slot stays empty";
}

TEST(GuideLineOptions, AClickWritesTheIndexAndSwitchesTheGuideLines)
{
    TempProgramFolder folder;
    ScriptedDialogs dialogs;
    GuideLineOptions options(dialogs, Settings::WeightTrackerGuideLines);
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

TEST(GuideLineOptions, AChoiceThatCannotBeStoredIsSaidAndStillShown)
{
    TempProgramFolder folder;
    ScriptedDialogs dialogs;
    GuideLineOptions options(dialogs, Settings::Form5GuideLines);
    options.load();
    QFile::remove(QStringLiteral("GColor3.Fil"));
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("GColor3.Fil")));
    const Message failed = WriteFailedMessage(QStringLiteral("GColor3.Fil"));
    dialogs.expectMessage(failed.title, failed.text);
    QSignalSpy changed(&options, &GuideLineOptions::guideLinesChanged);
    options.option(1)->click();
    EXPECT_TRUE(dialogs.scriptDone());
    ASSERT_EQ(changed.count(), 1);
    EXPECT_TRUE(changed.first().first().toBool());
}
