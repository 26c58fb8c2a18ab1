// Grid background and text colour: the slot texts.
#include "shell/logic/gridcolors.h"
#include "temp_program_folder.h"
#include "raw_slots.h"

#include <gtest/gtest.h>

namespace {

struct GridRow {
    const char* name;
    const char* background;
    GridColors::Kind kind;
    qint32 color;
    const char* pictureFile;
};

class GridBackground : public ::testing::TestWithParam<GridRow> {};

} // namespace

TEST_P(GridBackground, IsReadAsItsKind)
{
    const GridRow& row = GetParam();
    const GridColors colors = GridColorsOf(QString::fromLatin1(row.background), u"");
    EXPECT_EQ(colors.kind, row.kind);
    EXPECT_EQ(colors.color, row.color);
    EXPECT_EQ(colors.pictureFile, QString::fromLatin1(row.pictureFile));
    EXPECT_EQ(colors.textColor, std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    GridColors, GridBackground,
    ::testing::Values(GridRow{"PictureWP3", "WP3", GridColors::Kind::Picture, 0, "WP3.jpg"},
                      GridRow{"PictureInLowerCase", "wp3", GridColors::Kind::Picture, 0, "wp3.jpg"},
                      GridRow{"PictureInMixedCase", "Wp12", GridColors::Kind::Picture, 0, "Wp12.jpg"},
                      GridRow{"Default", "Default", GridColors::Kind::Unchanged, 0, ""},
                      GridRow{"Empty", "", GridColors::Kind::Unchanged, 0, ""},
                      GridRow{"Number", "12632256", GridColors::Kind::Color, 12632256, ""},
                      GridRow{"Zero", "0", GridColors::Kind::Color, 0, ""},
                      GridRow{"NotANumber", "blue", GridColors::Kind::Unchanged, 0, ""}),
    [](const ::testing::TestParamInfo<GridRow>& info) { return std::string(info.param.name); });

TEST(GridColors, TextColourIsANumberOrNothing)
{
    EXPECT_EQ(GridColorsOf(u"Default", u"255").textColor, 255);
    EXPECT_EQ(GridColorsOf(u"Default", u"Default").textColor, std::nullopt);
    EXPECT_EQ(GridColorsOf(u"Default", u"").textColor, std::nullopt);
}

TEST(GridColors, TheSharedPairIsGColor1Slots28And29)
{
    TempProgramFolder folder;
    WriteSlotText(GColor1, 28, u"WP5");
    WriteSlotText(GColor1, 29, u"65535");
    const GridColors colors = ReadSharedGridColors();
    EXPECT_EQ(colors.kind, GridColors::Kind::Picture);
    EXPECT_EQ(colors.pictureFile, "WP5.jpg");
    EXPECT_EQ(colors.textColor, 65535);
    EXPECT_EQ(ReadGridColors(RawSlot(GColor1, 71), RawSlot(GColor1, 72)), GridColors{}) << "a screen's own empty pair";
}

TEST(GridColors, TheSelectorsChoiceIsStoredAsTheSlotReadsIt)
{
    EXPECT_EQ(GridBackgroundText(Background::pictureOf(7)), "WP7");
    EXPECT_EQ(GridBackgroundText(Background::colorOf(65280)), "65280");
    EXPECT_EQ(GridBackgroundText(Background::standard()), "Default");
    EXPECT_EQ(GridBackgroundOf(u"WP7"), Background::pictureOf(7));
    EXPECT_EQ(GridBackgroundOf(u"65280"), Background::colorOf(65280));
    EXPECT_EQ(GridBackgroundOf(u"Default"), Background::standard());
    EXPECT_EQ(GridBackgroundOf(u""), Background::standard());
    for (const Background& chosen : {Background::pictureOf(16), Background::colorOf(0), Background::standard()})
        EXPECT_EQ(GridBackgroundOf(GridBackgroundText(chosen)), chosen);
}
