// The main window's stored mode and size, and the screen size rules.
#include "shell/logic/familyname.h"
#include "shell/settings/settingsslots.h"
#include "shell/logic/windowsettings.h"
#include "temp_program_folder.h"
#include "raw_slots.h"

#include <gtest/gtest.h>

TEST(WindowSettings, EmptyFileMeansFullScreenWithSizeZero)
{
    TempProgramFolder folder;
    const StoredWindow window = ReadStoredWindow();
    EXPECT_FALSE(window.windowed);
    EXPECT_EQ(window.height, 0);
    EXPECT_EQ(window.width, 0);
}

TEST(WindowSettings, StoredSizeZeroBecomes9000By12000InWindowedMode)
{
    TempProgramFolder folder;
    WriteSlotText(GColor3, 35, u"Yes");
    const StoredWindow window = ReadStoredWindow();
    EXPECT_TRUE(window.windowed);
    EXPECT_EQ(window.height, 9000);
    EXPECT_EQ(window.width, 12000);
}

TEST(WindowSettings, OnlyYesAtTheStartMeansWindowed)
{
    TempProgramFolder folder;
    const struct {
        const char16_t* slot;
        bool windowed;
    } rows[] = {{u"Yes", true}, {u"Yes please", true}, {u"No", false}, {u"yes", false}, {u" Yes", false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(QString::fromUtf16(row.slot).toStdString());
        WriteSlotText(GColor3, 35, row.slot);
        EXPECT_EQ(ReadStoredWindow().windowed, row.windowed);
    }
}

TEST(WindowSettings, StoringRaisesASmallWindowAndWritesSizeOnlyWhenWindowed)
{
    TempProgramFolder folder;
    StoreWindow(true, 5000, 20000);
    EXPECT_EQ(ReadSlotText(GColor3, 35), "Yes");
    EXPECT_EQ(ReadSlotInteger(GColor3, 36), 9000);
    EXPECT_EQ(ReadSlotInteger(GColor3, 37), 20000);
    StoreWindow(false, 15000, 15000);
    EXPECT_EQ(ReadSlotText(GColor3, 35), "No");
    EXPECT_EQ(ReadSlotInteger(GColor3, 36), 9000) << "full screen leaves the size alone";
    EXPECT_EQ(ReadSlotInteger(GColor3, 37), 20000);
}

TEST(WindowSettings, ScreenBelow800By600IsTooSmall)
{
    EXPECT_TRUE(ScreenTooSmall(9600, 7200)) << "640 by 480";
    EXPECT_FALSE(ScreenTooSmall(12000, 9000)) << "800 by 600";
    EXPECT_TRUE(ScreenTooSmall(9944, 9000));
    EXPECT_FALSE(ScreenTooSmall(9945, 7590));
    EXPECT_TRUE(ScreenTooSmall(12000, 7589));
}

TEST(WindowSettings, DefaultSizeFollowsTheScreen)
{
    const StoredWindow large = DefaultWindowFor(28800, 16200);
    EXPECT_EQ(large.height, 11200);
    EXPECT_EQ(large.width, 15100);
    const StoredWindow small = DefaultWindowFor(15000, 11000);
    EXPECT_EQ(small.height, 10800);
    EXPECT_EQ(small.width, 14800);
}

TEST(FamilyName, CutTo15Characters)
{
    TempProgramFolder folder;
    EXPECT_EQ(WriteFamilyName("Abcdefghijklmnopqrst"), "Abcdefghijklmno");
    EXPECT_EQ(ReadFamilyName(), "Abcdefghijklmno");
    EXPECT_EQ(folder.bytesOf("QORBNAME.FIL"), QByteArray("\x0F\x00", 2) + "Abcdefghijklmno" + QByteArray(23, '\0'));
}

TEST(FamilyName, CaptionHasTheNameInFront)
{
    EXPECT_EQ(MainCaption(""), " Brindlepot");
    EXPECT_EQ(MainCaption("Smith"), "Smith Brindlepot");
}
