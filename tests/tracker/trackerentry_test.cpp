// Typing rules, the date check, settings and the thumbnail fit.
#include "tracker/logic/trackerentry.h"

#include "common/quotedlinefile.h"
#include "raw_slots.h"
#include "shell/settings/settingsregistry.h"
#include "tracker/logic/trackersettings.h"
#include "tracker_fixture.h"

namespace {
class TrackerEntryTest : public TrackerFolderTest {};
}

TEST(TrackerEntry, NumberFieldsTakeDigitsCommaPointSlashAndAFirstPlus)
{
    const struct {
        const char* typed;
        const char* kept;
    } cases[] = {
        {"1", "1"},   {"15", "15"},     {"15.", "15."},   {"1,5", "1,5"},  {"1/2", "1/2"}, {"+", "+"},
        {"1+", "1"},  {"-", ""},        {"15-", "15"},    {"15a", "15"},   {"15 ", "15"},  {"\"", ""},
        {"", ""},     {"a5", "a5"},
    };
    for (const auto& row : cases)
        EXPECT_EQ(FilterNumberField(QString::fromLatin1(row.typed)), row.kept) << row.typed;
}

TEST(TrackerEntry, OtherFieldsRefuseOnlyTheDoubleQuote)
{
    EXPECT_EQ(FilterTextField(QStringLiteral("Swim -2 laps")), "Swim -2 laps");
    EXPECT_EQ(FilterTextField(QStringLiteral("Swim\"")), "Swim");
}

TEST(TrackerEntry, NameFieldLimit)
{
    EXPECT_EQ(kNameLimit, 25);
    EXPECT_EQ(kCommentsLimit, 1000);
}

TEST(TrackerEntry, TheDateCheckRefusesOnlyDatesAfterNowWhenOn)
{
    const QDateTime now(QDate(2026, 4, 3), QTime(9, 30));
    EXPECT_FALSE(DateCheckRefuses(QDate(2026, 4, 3), now, true));
    EXPECT_TRUE(DateCheckRefuses(QDate(2026, 4, 4), now, true));
    EXPECT_FALSE(DateCheckRefuses(QDate(2026, 4, 4), now, false));
}

TEST_F(TrackerEntryTest, CalendarDatesReadMonthDayYear)
{
    EXPECT_EQ(TrackerDateText(QDate(2026, 3, 2)), "March 02, 2026");
}

TEST(TrackerEntry, AVeryLargePictureIsScaledTheFactorReachingDownToOneThousandthAtMost)
{
    EXPECT_EQ(ThumbnailFactor({100, 50}, {1000, 800}), 1.0);
    EXPECT_DOUBLE_EQ(ThumbnailFactor({400, 100}, {1000, 800}), 0.5);
    EXPECT_DOUBLE_EQ(ThumbnailFactor({100, 400}, {1000, 800}), 0.36);
    EXPECT_DOUBLE_EQ(ThumbnailFactor({10000000, 10000000}, {1000, 800}), 0.001);
}

TEST_F(TrackerEntryTest, TheDateCheckerIsOnUnlessSlot83ReadsOff)
{
    EXPECT_TRUE(ReadDateCheckerOn());
    ASSERT_TRUE(StoreDateCheckerOn(false));
    EXPECT_EQ(ReadSlotText(Settings::WeightTrackerDateChecker), "OFF");
    EXPECT_FALSE(ReadDateCheckerOn());
    ASSERT_TRUE(StoreDateCheckerOn(true));
    EXPECT_EQ(ReadSlotText(Settings::WeightTrackerDateChecker), "");
    EXPECT_EQ(ReadSlotText(GColor1, 83), "");
    EXPECT_EQ(folder.bytesOf(QStringLiteral("GColor1.Fil")).mid(82 * 20, 2), QByteArray("\0\0", 2));
}

TEST_F(TrackerEntryTest, TheTrendIsShownUnlessSlot34ReadsOff)
{
    EXPECT_TRUE(ReadTrendDisplayOn());
    ASSERT_TRUE(StoreTrendDisplayOn(false));
    EXPECT_EQ(folder.bytesOf(QStringLiteral("GColor4.Fil")).mid(33 * 40, 5), QByteArray("\3\0OFF", 5));
    EXPECT_FALSE(ReadTrendDisplayOn());
    ASSERT_TRUE(StoreTrendDisplayOn(true));
    EXPECT_EQ(folder.bytesOf(QStringLiteral("GColor4.Fil")).mid(33 * 40, 4), QByteArray("\2\0ON", 4));
}

TEST_F(TrackerEntryTest, ThePictureFolderIsOneQuotedValue)
{
    EXPECT_EQ(ReadPictureFolder(), "");
    ASSERT_TRUE(StorePictureFolder(QStringLiteral("/home/pat/Pictures")));
    EXPECT_EQ(folder.bytesOf(QStringLiteral("GColor14.Fil")), QuotedLines({"/home/pat/Pictures"}));
    EXPECT_EQ(ReadPictureFolder(), "/home/pat/Pictures");
}
