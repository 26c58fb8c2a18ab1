// Grid background and text colour: the slot texts and how a grid shows them.
#include "shell/logic/gridcolors.h"
#include "shell/kit/gridcolors.h"
#include "temp_program_folder.h"
#include "raw_slots.h"

#include <QImage>
#include <QTableWidget>
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

TEST(ApplyGridColors, AColourBecomesTheCellBackground)
{
    QTableWidget grid(3, 2);
    ApplyGridColors(&grid, GridColorsOf(u"255", u"16711680"));
    EXPECT_EQ(grid.palette().color(QPalette::Base), QColor(255, 0, 0));
    EXPECT_EQ(grid.palette().color(QPalette::Text), QColor(0, 0, 255));
}

TEST(ApplyGridColors, APictureFillsTheBackgroundFoundInAnyCase)
{
    TempProgramFolder folder;
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(QColor(10, 200, 30));
    ASSERT_TRUE(picture.save(folder.filePath("WP3.jpg")));
    QTableWidget grid(3, 2);
    ApplyGridColors(&grid, GridColorsOf(u"wp3", u"Default"));
    const QBrush brush = grid.palette().brush(QPalette::Base);
    ASSERT_FALSE(brush.texture().isNull());
    EXPECT_EQ(brush.texture().size(), QSize(40, 30));
}

TEST(ApplyGridColors, DefaultEmptyAndAMissingPictureLeaveTheGridAsItIs)
{
    TempProgramFolder folder;
    QTableWidget grid(3, 2);
    QPalette own = grid.palette();
    own.setColor(QPalette::Base, QColor(1, 2, 3));
    grid.setPalette(own);
    for (const char* background : {"Default", "", "WP9"}) {
        ApplyGridColors(&grid, GridColorsOf(QString::fromLatin1(background), u""));
        EXPECT_EQ(grid.palette().color(QPalette::Base), QColor(1, 2, 3)) << background;
        EXPECT_TRUE(grid.palette().brush(QPalette::Base).texture().isNull()) << background;
    }
}
