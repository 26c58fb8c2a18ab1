#include "common/colors.h"

#include <gtest/gtest.h>

namespace {

struct TableRow {
    int index;
    const char* name;
    qint32 colorref;
};

class ColorTable : public ::testing::TestWithParam<TableRow> {};

TEST_P(ColorTable, HoldsTheClassicValue)
{
    EXPECT_EQ(QBColor(GetParam().index), GetParam().colorref);
}

INSTANTIATE_TEST_SUITE_P(Colors, ColorTable,
                         ::testing::Values(TableRow{0, "Black", 0x000000},
                                           TableRow{1, "Blue", 0x800000},
                                           TableRow{2, "Green", 0x008000},
                                           TableRow{3, "Cyan", 0x808000},
                                           TableRow{4, "Red", 0x000080},
                                           TableRow{5, "Magenta", 0x800080},
                                           TableRow{6, "Yellow", 0x008080},
                                           TableRow{7, "White", 0xC0C0C0},
                                           TableRow{8, "Grey", 0x808080},
                                           TableRow{9, "LightBlue", 0xFF0000},
                                           TableRow{10, "LightGreen", 0x00FF00},
                                           TableRow{11, "LightCyan", 0xFFFF00},
                                           TableRow{12, "LightRed", 0x0000FF},
                                           TableRow{13, "LightMagenta", 0xFF00FF},
                                           TableRow{14, "LightYellow", 0x00FFFF},
                                           TableRow{15, "BrightWhite", 0xFFFFFF}),
                         [](const ::testing::TestParamInfo<TableRow>& info) {
                             return std::to_string(info.param.index) + info.param.name;
                         });

TEST(ColorTableEdges, OutsideTheTableIsTheInvalidColor)
{
    EXPECT_EQ(QBColor(-1), kInvalidColor);
    EXPECT_EQ(QBColor(16), kInvalidColor);
    EXPECT_EQ(QBColor(1000), kInvalidColor);
}

TEST(ColorFocus, IsLightYellow)
{
    EXPECT_EQ(kFocusColorIndex, 14);
    EXPECT_EQ(FocusColor(), 65535);
    EXPECT_EQ(RgbOfColorref(FocusColor()), (Rgb{255, 255, 0}));
}

TEST(ColorValues, BlueIsTheHighByte)
{
    // The stored default background.
    EXPECT_EQ(RgbOfColorref(16711680), (Rgb{0, 0, 255}));
    EXPECT_EQ(ColorrefOf(0, 0, 255), 16711680);
    EXPECT_EQ(ColorrefOf(255, 0, 0), 255);
    EXPECT_EQ(ColorrefOf(0, 128, 0), QBColor(2));
}

struct RgbRow {
    const char* name;
    qint32 colorref;
    Rgb rgb;
};

class ColorRgb : public ::testing::TestWithParam<RgbRow> {};

TEST_P(ColorRgb, SplitsAndJoins)
{
    EXPECT_EQ(RgbOfColorref(GetParam().colorref), GetParam().rgb);
    EXPECT_EQ(ColorrefOf(GetParam().rgb), GetParam().colorref);
}

INSTANTIATE_TEST_SUITE_P(Colors, ColorRgb,
                         ::testing::Values(RgbRow{"Black", 0, {0, 0, 0}},
                                           RgbRow{"White", 0xFFFFFF, {255, 255, 255}},
                                           RgbRow{"Mixed", 0x123456, {0x56, 0x34, 0x12}},
                                           RgbRow{"PanelGrey", 0xC8D0D4, {0xD4, 0xD0, 0xC8}},
                                           RgbRow{"Red", 0x0000FF, {255, 0, 0}},
                                           RgbRow{"Green", 0x00FF00, {0, 255, 0}}),
                         [](const ::testing::TestParamInfo<RgbRow>& info) { return std::string(info.param.name); });

TEST(ColorValues, PartsAreHeldToAByte)
{
    EXPECT_EQ(ColorrefOf(300, -5, 256), 0xFF00FF);
    EXPECT_EQ(ColorrefOf(Rgb{-1, 1000, 7}), 0x07FF00);
}

TEST(ColorValues, HighByteIsIgnored)
{
    // A system colour number (high bit set) still splits into its low bytes.
    EXPECT_EQ(RgbOfColorref(static_cast<qint32>(0x8000000F)), (Rgb{0x0F, 0, 0}));
    EXPECT_EQ(RgbOfColorref(-1), (Rgb{255, 255, 255}));
}

struct StoredRow {
    const char* name;
    const char* text;
    std::optional<qint32> color;
};

class ColorStored : public ::testing::TestWithParam<StoredRow> {};

TEST_P(ColorStored, ReadsTheSlotText)
{
    EXPECT_EQ(ParseStoredColor(QString::fromLatin1(GetParam().text)), GetParam().color);
}

INSTANTIATE_TEST_SUITE_P(
    Colors, ColorStored,
    ::testing::Values(StoredRow{"Default", "Default", std::nullopt},
                      StoredRow{"DefaultOtherCase", "DEFAULT", std::nullopt},
                      StoredRow{"DefaultWithBlanks", "  Default  ", std::nullopt},
                      StoredRow{"Empty", "", std::nullopt},
                      StoredRow{"Blanks", "    ", std::nullopt},
                      StoredRow{"Blue", "16711680", 16711680},
                      StoredRow{"Zero", "0", 0},
                      StoredRow{"LeadingBlank", " 255", 255},
                      StoredRow{"TrailingBlanks", "65535   ", 65535},
                      StoredRow{"Plus", "+12", 12},
                      StoredRow{"SystemColour", "-2147483633", -2147483633},
                      StoredRow{"Lowest", "-2147483648", std::numeric_limits<qint32>::min()},
                      StoredRow{"Highest", "2147483647", std::numeric_limits<qint32>::max()},
                      StoredRow{"TooHigh", "2147483648", std::nullopt},
                      StoredRow{"FarTooHigh", "99999999999999999999", std::nullopt},
                      StoredRow{"Picture", "WP3", std::nullopt},
                      StoredRow{"ShortDefault", "Def", std::nullopt},
                      StoredRow{"Decimal", "12.5", std::nullopt},
                      StoredRow{"SignOnly", "-", std::nullopt},
                      StoredRow{"TrailingText", "255x", std::nullopt},
                      StoredRow{"InnerBlank", "25 5", std::nullopt}),
    [](const ::testing::TestParamInfo<StoredRow>& info) { return std::string(info.param.name); });

TEST(ColorSlot, StoresDecimalOrDefault)
{
    EXPECT_EQ(ColorSlotText(std::nullopt), QStringLiteral("Default"));
    EXPECT_EQ(ColorSlotText(16711680), QStringLiteral("16711680"));
    EXPECT_EQ(ColorSlotText(0), QStringLiteral("0"));
    EXPECT_EQ(ColorSlotText(-2147483633), QStringLiteral("-2147483633"));
}

TEST(ColorSlot, RoundTrips)
{
    for (qint32 color : {0, 1, 255, 65535, 16711680, 0xFFFFFF, -2147483633}) {
        EXPECT_EQ(ParseStoredColor(ColorSlotText(color)), color);
    }
    EXPECT_EQ(ParseStoredColor(ColorSlotText(std::nullopt)), std::nullopt);
}

} // namespace
