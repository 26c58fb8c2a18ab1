// Where a screen keeps its print font: the name and size read back from the
// screen's two slots, and slots never written leave the font as it was.
#include "print/logic/printfont.h"
#include "shell/settings/settingsregistry.h"
#include "temp_program_folder.h"

#include <gtest/gtest.h>

namespace {

const PrintFontSlots kSlots{Settings::WeightTrackerPrintFontName, Settings::WeightTrackerPrintFontSize};

} // namespace

TEST(StoredPrintFont, ReadsTheNameAndSizeFromTheScreensSlots)
{
    TempProgramFolder folder;
    ASSERT_TRUE(WriteSlotTagged(kSlots.name, QStringLiteral("Courier New")));
    ASSERT_TRUE(WriteSlotTagged(kSlots.size, qint32(9)));
    TextFont before;
    before.name = QStringLiteral("Arial");
    before.bold = true;
    const TextFont read = StoredPrintFont(kSlots, before);
    EXPECT_EQ(read.name, QStringLiteral("Courier New"));
    EXPECT_EQ(read.size, 9);
    EXPECT_TRUE(read.bold) << "what the slots do not hold stays";
}

TEST(StoredPrintFont, SlotsNeverWrittenLeaveTheFontAsItWas)
{
    TempProgramFolder folder;
    TextFont before;
    before.name = QStringLiteral("Arial");
    before.size = 12;
    const TextFont read = StoredPrintFont(kSlots, before);
    EXPECT_EQ(read.name, QStringLiteral("Arial"));
    EXPECT_EQ(read.size, 12);
}

TEST(StoredPrintFont, WhatStorePrintFontWroteIsReadBack)
{
    TempProgramFolder folder;
    TextFont font;
    font.name = QStringLiteral("Times New Roman");
    font.size = 14.6;
    ASSERT_TRUE(StorePrintFont(kSlots, font));
    const TextFont read = StoredPrintFont(kSlots, TextFont{});
    EXPECT_EQ(read.name, QStringLiteral("Times New Roman"));
    EXPECT_EQ(read.size, 14) << "the size is stored in whole points";
}
