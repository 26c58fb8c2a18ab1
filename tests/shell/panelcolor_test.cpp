// Panel colour slots, the conflict rule, storing and the all-screens update.
#include "common/colors.h"
#include "shell/logic/panelcolor.h"
#include "temp_program_folder.h"
#include "raw_slots.h"

#include <QSet>
#include <gtest/gtest.h>

namespace {

// The bytes of slot `slot` in a file of 20-byte slots.
QByteArray SlotBytes(const QByteArray& file, int slot, int slotLength = 20)
{
    return file.mid((slot - 1) * slotLength, slotLength).leftJustified(slotLength, '\0');
}

QByteArray TextSlot(const QByteArray& text, int slotLength = 20)
{
    QByteArray bytes;
    bytes.append(char(text.size()));
    bytes.append('\0');
    bytes.append(text);
    return bytes.leftJustified(slotLength, '\0');
}

struct ScreenSlotRow {
    const char* screen;
    SettingsSlot slot;
    const char* file;
    int number;
};

} // namespace

TEST(PanelColorSlots, EachScreenHasItsSlot)
{
    const ScreenSlotRow rows[] = {
        {"Startfrm", Settings::MainPanelColor, "GColor1.Fil", 49},
        {"Convform", Settings::MainPanelColor, "GColor1.Fil", 49},
        {"Form5", Settings::Form5PanelColor, "GColor2.Fil", 25},
        {"Foodg", Settings::FoodgPanelColor, "GColor2.Fil", 9},
        {"Zcalandar", Settings::ZcalandarPanelColor, "GColor2.Fil", 22},
        {"Shoplist", Settings::ShoplistPanelColor, "GColor1.Fil", 27},
        {"Form24", Settings::Form24PanelColor, "GColor1.Fil", 70},
        {"WeightTracker", Settings::WeightTrackerPanelColor, "GColor1.Fil", 80},
    };
    for (const ScreenSlotRow& row : rows) {
        SCOPED_TRACE(row.screen);
        EXPECT_STREQ(row.slot.file.name, row.file);
        EXPECT_EQ(row.slot.file.slotLength, 20);
        EXPECT_EQ(row.slot.number, row.number);
    }
}

TEST(PanelColorSlots, DefaultAndEmptyMeanTheSystemColour)
{
    TempProgramFolder folder;
    EXPECT_EQ(ReadPanelColor(Settings::Form5PanelColor), std::nullopt) << "a missing file";
    WriteSlotText(GColor2, 25, u"Default");
    EXPECT_EQ(ReadPanelColor(Settings::Form5PanelColor), std::nullopt);
    WriteSlotText(GColor2, 25, u"");
    EXPECT_EQ(ReadPanelColor(Settings::Form5PanelColor), std::nullopt);
    WriteSlotText(GColor2, 25, u"12632256");
    EXPECT_EQ(ReadPanelColor(Settings::Form5PanelColor), 12632256);
    WriteSlotText(GColor2, 25, u" 255 ");
    EXPECT_EQ(ReadPanelColor(Settings::Form5PanelColor), 255);
}

TEST(PanelColorConflict, TheTextColourAndBothBluesAndRedsConflict)
{
    const qint32 text = 0x000000;
    EXPECT_TRUE(ColorConflicts(text, text)) << "the panels' own text colour";
    EXPECT_TRUE(ColorConflicts(0x123456, 0x123456));
    for (int index : {1, 9, 4, 12})
        EXPECT_TRUE(ColorConflicts(QBColor(index), text)) << "palette colour " << index;
    for (int index : {2, 3, 5, 6, 7, 8, 10, 11, 13, 14, 15})
        EXPECT_FALSE(ColorConflicts(QBColor(index), text)) << "palette colour " << index;
    EXPECT_FALSE(ColorConflicts(0x00C0C0C0, text));
}

TEST(StorePanelColor, WritesTheNumberOrTheWordDefault)
{
    TempProgramFolder folder;
    EXPECT_EQ(StorePanelColor(Settings::ShoplistPanelColor, false, 12632256), "12632256");
    EXPECT_EQ(SlotBytes(folder.bytesOf("GColor1.Fil"), 27), TextSlot("12632256"));
    EXPECT_EQ(folder.bytesOf("GColor1.Fil").size(), 27 * 20);
    EXPECT_EQ(StorePanelColor(Settings::ShoplistPanelColor, true, 12632256), "Default");
    EXPECT_EQ(SlotBytes(folder.bytesOf("GColor1.Fil"), 27), TextSlot("Default"));
}

TEST(StorePanelColor, AllScreensOfferOnlyForANewNonBlankColour)
{
    struct Row {
        const char* pending;
        const char* last;
        bool offered;
    };
    const Row rows[] = {
        {"255", "Default", true},
        {"Default", "255", true},
        {"255", "255", false},
        {"Default", "Default", false},
        {"", "Default", false},
        {"   ", "Default", false},
        {"255", "", true},
    };
    for (const Row& row : rows)
        EXPECT_EQ(ShouldOfferToAllScreens(row.pending, row.last), row.offered)
            << '"' << row.pending << "\" after \"" << row.last << '"';
}

// Every slot of the all-screens update, one row each.
struct AllScreensRow {
    const char* file;
    int slot;
};

class AllScreensSlot : public ::testing::TestWithParam<AllScreensRow> {};

const AllScreensRow kAllScreensRows[] = {
    {"GColor1", 10},  {"GColor1", 11}, {"GColor1", 12}, {"GColor1", 13}, {"GColor1", 16},  {"GColor1", 17},
    {"GColor1", 18},  {"GColor1", 22}, {"GColor1", 27}, {"GColor1", 32}, {"GColor1", 36},  {"GColor1", 38},
    {"GColor1", 40},  {"GColor1", 49}, {"GColor1", 54}, {"GColor1", 56}, {"GColor1", 70},  {"GColor1", 80},
    {"GColor2", 5},   {"GColor2", 9},  {"GColor2", 12}, {"GColor2", 16}, {"GColor2", 19},  {"GColor2", 20},
    {"GColor2", 22},  {"GColor2", 25}, {"GColor2", 40}, {"GColor3", 8},  {"GColor3", 17},  {"GColor3", 91},
    {"GColor3", 92},  {"GColor3", 100}, {"GColor3", 101}, {"GColor3", 102}, {"GColor3", 103}, {"GColor3", 104},
    {"GColor3", 105},
};

TEST_P(AllScreensSlot, IsWrittenWithTheColour)
{
    TempProgramFolder folder;
    WriteColorToAllScreens(QStringLiteral("8421376"));
    const QByteArray file = folder.bytesOf(QString::fromLatin1(GetParam().file) + ".Fil");
    EXPECT_EQ(SlotBytes(file, GetParam().slot), TextSlot("8421376"));
}

INSTANTIATE_TEST_SUITE_P(PanelColor, AllScreensSlot, ::testing::ValuesIn(kAllScreensRows),
                         [](const ::testing::TestParamInfo<AllScreensRow>& info) {
                             return std::string(info.param.file) + "_" + std::to_string(info.param.slot);
                         });

TEST(AllScreensUpdate, WritesNoOtherSlot)
{
    TempProgramFolder folder;
    // Values of other slots, which the update must leave alone.
    WriteSlotText(GColor1, 28, u"WP3");
    WriteSlotText(GColor1, 55, u"99");
    WriteSlotText(GColor2, 26, u"65280");
    WriteSlotText(GColor3, 35, u"Yes");
    WriteSlotText(GColor3, 110, u"keep");
    WriteColorToAllScreens(QStringLiteral("Default"));

    QSet<QString> listed;
    for (const AllScreensRow& row : kAllScreensRows)
        listed.insert(QStringLiteral("%1/%2").arg(row.file).arg(row.slot));
    const QMap<QString, QByteArray> kept = {
        {"GColor1/28", TextSlot("WP3")}, {"GColor1/55", TextSlot("99")},
        {"GColor2/26", TextSlot("65280")}, {"GColor3/35", TextSlot("Yes")}, {"GColor3/110", TextSlot("keep")},
    };
    int written = 0;
    for (const char* name : {"GColor1", "GColor2", "GColor3"}) {
        const QByteArray file = folder.bytesOf(QString::fromLatin1(name) + ".Fil");
        for (int slot = 1; slot <= 120; ++slot) {
            const QString key = QStringLiteral("%1/%2").arg(name).arg(slot);
            SCOPED_TRACE(key.toStdString());
            if (listed.contains(key)) {
                EXPECT_EQ(SlotBytes(file, slot), TextSlot("Default"));
                ++written;
            } else {
                EXPECT_EQ(SlotBytes(file, slot), kept.value(key, QByteArray(20, '\0')));
            }
        }
    }
    EXPECT_EQ(written, 37);
    EXPECT_FALSE(folder.bytesOf("GColor4.Fil").size() > 0);
}
