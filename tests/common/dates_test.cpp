#include "common/dates.h"

#include <QDateTime>
#include <QLocale>
#include <gtest/gtest.h>
#include <random>

namespace {

const QDate kSep30(2006, 9, 30);

// Every test pins its own locale and puts the process default back after.
class DateTest : public ::testing::Test {
protected:
    void TearDown() override { SetDateLocale(QLocale::system()); }
    static void Use(const char* name) { SetDateLocale(QLocale(QString::fromLatin1(name))); }
};

struct PatternRow {
    const char* name;
    const char* locale;
    QDate date;
    const char* pattern;
    const char* expected;
};

void PrintTo(const PatternRow& row, std::ostream* os) { *os << row.name; }

class DatePatterns : public DateTest, public ::testing::WithParamInterface<PatternRow> {};

TEST_P(DatePatterns, FormatsAsTheOldRuntime)
{
    const PatternRow& row = GetParam();
    Use(row.locale);
    EXPECT_EQ(FormatDate(row.date, QString::fromUtf8(row.pattern)), QString::fromUtf8(row.expected));
}

INSTANTIATE_TEST_SUITE_P(
    Dates, DatePatterns,
    ::testing::Values(
        // Month first.
        PatternRow{"ListFileNameUs", "en_US", kSep30, "ddmmmyy", "30Sep06"},
        PatternRow{"ListFileNameSingleDigitDay", "en_US", QDate(2026, 1, 5), "ddmmmyy", "05Jan26"},
        PatternRow{"NovemberList", "en_US", QDate(2026, 11, 15), "ddmmmyy", "15Nov26"},
        PatternRow{"TrackerDate", "en_US", kSep30, "mmmm dd, yyyy", "September 30, 2006"},
        PatternRow{"TrackerDatePadsDay", "en_US", QDate(2024, 2, 3), "mmmm dd, yyyy", "February 03, 2024"},
        PatternRow{"StorageDateUs", "en_US", kSep30, "m/d/yy", "9/30/06"},
        PatternRow{"StorageDateNoPadding", "en_US", QDate(2026, 1, 5), "m/d/yy", "1/5/26"},
        PatternRow{"StorageDateDayFirstPattern", "en_US", kSep30, "d/m/yy", "30/9/06"},
        PatternRow{"PlannerOpenUs", "en_US", QDate(2026, 1, 5), "mm/dd/yy", "01/05/26"},
        PatternRow{"PlannerOpenOther", "en_US", QDate(2026, 1, 5), "dd/mm/yy", "05/01/26"},
        PatternRow{"PlannerFullYear", "en_US", QDate(2026, 1, 5), "mm/dd/yyyy", "01/05/2026"},
        PatternRow{"DayCellUs", "en_US", kSep30, "ddd - mmm dd, yyyy", "Sat - Sep 30, 2006"},
        PatternRow{"DayCellOther", "en_US", kSep30, "ddd - dd mmm yyyy", "Sat - 30 Sep 2006"},
        PatternRow{"GraphLabel", "en_US", kSep30, "mmm-dd-yy", "Sep-30-06"},
        PatternRow{"MonthAlone", "en_US", kSep30, "m", "9"},
        PatternRow{"DayAlone", "en_US", QDate(2006, 9, 3), "d", "3"},
        PatternRow{"UpperCaseYear", "en_US", kSep30, "YYYY", "2006"},
        PatternRow{"UpperCaseMonthName", "en_US", kSep30, "MMMM", "September"},
        PatternRow{"FullDayName", "en_US", kSep30, "dddd", "Saturday"},
        PatternRow{"ShortDateNamed", "en_US", kSep30, "Short Date", "9/30/06"},
        PatternRow{"LongDateNamed", "en_US", kSep30, "Long Date", "Saturday, September 30, 2006"},
        PatternRow{"MediumDateNamed", "en_US", kSep30, "Medium Date", "30-Sep-06"},
        PatternRow{"ShortDateToken", "en_US", kSep30, "ddddd", "9/30/06"},
        PatternRow{"LongDateToken", "en_US", kSep30, "dddddd", "Saturday, September 30, 2006"},
        PatternRow{"DayOfYear", "en_US", kSep30, "y", "273"},
        PatternRow{"WeekdaySundayIsOne", "en_US", kSep30, "w", "7"},
        PatternRow{"WeekOfYear", "en_US", kSep30, "ww", "39"},
        PatternRow{"Quarter", "en_US", kSep30, "q", "3"},
        PatternRow{"QuotedLiteral", "en_US", kSep30, "\"Day \"d", "Day 30"},
        PatternRow{"EscapedLiteral", "en_US", kSep30, "\\d d", "d 30"},
        PatternRow{"YearBeforeTwoThousandTen", "en_US", QDate(2009, 3, 1), "yy", "09"},
        // Day first: names and separators from the locale.
        PatternRow{"ListFileNameGb", "en_GB", kSep30, "ddmmmyy", "30Sep06"},
        PatternRow{"StorageDateGb", "en_GB", kSep30, "d/m/yy", "30/9/06"},
        PatternRow{"ShortDateGb", "en_GB", kSep30, "Short Date", "30/09/2006"},
        PatternRow{"LongDateGb", "en_GB", kSep30, "Long Date", "Saturday, 30 September 2006"},
        PatternRow{"ListFileNameDe", "de_DE", kSep30, "ddmmmyy", "30Sep06"},
        PatternRow{"MarchDe", "de_DE", QDate(2006, 3, 5), "ddmmmyy", "05Mär06"},
        PatternRow{"StorageDateDeUsesDot", "de_DE", kSep30, "d/m/yy", "30.9.06"},
        PatternRow{"MonthFirstPatternDe", "de_DE", kSep30, "m/d/yy", "9.30.06"},
        PatternRow{"TrackerDateDe", "de_DE", QDate(2006, 3, 5), "mmmm dd, yyyy", "März 05, 2006"},
        PatternRow{"DayCellDe", "de_DE", kSep30, "ddd - dd mmm yyyy", "Sa - 30 Sep 2006"},
        PatternRow{"ShortDateDe", "de_DE", kSep30, "Short Date", "30.09.06"},
        PatternRow{"LongDateDe", "de_DE", kSep30, "Long Date", "Samstag, 30. September 2006"},
        PatternRow{"JuneFr", "fr_FR", QDate(2006, 6, 30), "ddmmmyy", "30juin06"},
        PatternRow{"JulyFrKeepsWholeName", "fr_FR", QDate(2006, 7, 30), "ddmmmyy", "30juil06"},
        PatternRow{"SeptemberFr", "fr_FR", kSep30, "ddmmmyy", "30sept06"},
        PatternRow{"DashSeparatorNl", "nl_NL", kSep30, "d/m/yy", "30-9-06"}),
    [](const ::testing::TestParamInfo<PatternRow>& info) { return std::string(info.param.name); });

struct ModeRow {
    const char* locale;
    const char* expected;
};

class DateFormatModes : public ::testing::TestWithParam<ModeRow> {};

TEST_P(DateFormatModes, ReadsTheLeadingNumber)
{
    EXPECT_EQ(DateFormatModeFor(QLocale(QString::fromLatin1(GetParam().locale))),
              QString::fromLatin1(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(Dates, DateFormatModes,
                         ::testing::Values(ModeRow{"en_US", "USA"},    // 9/30/06
                                           ModeRow{"en_GB", "OTHER"},  // 30/09/2006
                                           ModeRow{"de_DE", "OTHER"},  // 30.09.06
                                           ModeRow{"fr_FR", "OTHER"},  // 30/09/2006
                                           ModeRow{"ja_JP", "OTHER"},  // 2006/09/30
                                           ModeRow{"en_CA", "OTHER"},  // 2006-09-30
                                           ModeRow{"ar_EG", "OTHER"},  // day first, in its own digits
                                           ModeRow{"C", "OTHER"}),     // 30 Sep 2006
                         [](const ::testing::TestParamInfo<ModeRow>& info) {
                             return std::string(info.param.locale);
                         });

TEST_F(DateTest, DateLocaleIsWhatWasPinned)
{
    Use("de_DE");
    EXPECT_EQ(DateLocale().name(), QStringLiteral("de_DE"));
    Use("en_US");
    EXPECT_EQ(DateLocale().name(), QStringLiteral("en_US"));
}

TEST_F(DateTest, ShortAndLongDateFollowThePinnedLocale)
{
    Use("en_US");
    EXPECT_EQ(ShortDate(kSep30), QStringLiteral("9/30/06"));
    EXPECT_EQ(LongDate(kSep30), QStringLiteral("Saturday, September 30, 2006"));
    Use("en_GB");
    EXPECT_EQ(ShortDate(kSep30), QStringLiteral("30/09/2006"));
    EXPECT_EQ(LongDate(kSep30), QStringLiteral("Saturday, 30 September 2006"));
}

TEST_F(DateTest, DigitsAreAlwaysAscii)
{
    Use("ar_EG");
    for (QChar c : ShortDate(kSep30))
        EXPECT_TRUE(!c.isDigit() || (c >= u'0' && c <= u'9')) << ShortDate(kSep30).toStdString();
    EXPECT_TRUE(ShortDate(kSep30).contains(QStringLiteral("2006")));
    EXPECT_EQ(FormatDate(kSep30, u"dd mm yyyy"), QStringLiteral("30 09 2006"));
}

TEST_F(DateTest, ShortMonthNamesStayDistinct)
{
    for (const char* name : {"en_US", "en_GB", "de_DE", "fr_FR", "es_ES", "nl_NL", "sv_SE", "ru_RU", "pt_BR",
                             "fi_FI", "it_IT", "pl_PL", "ja_JP"}) {
        Use(name);
        QStringList months;
        for (int m = 1; m <= 12; ++m) {
            const QString month = ShortMonthName(m);
            EXPECT_FALSE(month.isEmpty()) << name;
            EXPECT_FALSE(month.endsWith(u'.')) << name;
            EXPECT_FALSE(months.contains(month, Qt::CaseInsensitive)) << name << " " << m;
            months.append(month);
        }
    }
    Use("en_US");
    EXPECT_TRUE(ShortMonthName(0).isEmpty());
    EXPECT_TRUE(ShortMonthName(13).isEmpty());
}

TEST_F(DateTest, ClockTimes)
{
    Use("en_US");
    const QDateTime afternoon(kSep30, QTime(14, 5, 9));
    const QDateTime afterMidnight(kSep30, QTime(0, 30));
    const QDateTime noon(kSep30, QTime(12, 0));
    EXPECT_EQ(FormatDateTime(afternoon, u"h:nn AM/PM"), QStringLiteral("2:05 PM"));
    EXPECT_EQ(FormatDateTime(afterMidnight, u"h:nn AM/PM"), QStringLiteral("12:30 AM"));
    EXPECT_EQ(FormatDateTime(noon, u"h:nn AM/PM"), QStringLiteral("12:00 PM"));
    EXPECT_EQ(FormatDateTime(afternoon, u"h:nn am/pm"), QStringLiteral("2:05 pm"));
    EXPECT_EQ(FormatDateTime(afternoon, u"h:nn a/p"), QStringLiteral("2:05 p"));
    EXPECT_EQ(FormatDateTime(afternoon, u"hh:nn:ss"), QStringLiteral("14:05:09"));
    // "mm" right after an hour is minutes, elsewhere the month.
    EXPECT_EQ(FormatDateTime(afternoon, u"hh:mm mm/dd"), QStringLiteral("14:05 09/30"));
    EXPECT_EQ(FormatDateTime(afternoon, u"Short Time"), QStringLiteral("14:05"));
    EXPECT_EQ(FormatDateTime(afternoon, u"Medium Time"), QStringLiteral("02:05 PM"));
    EXPECT_EQ(FormatDateTime(afternoon, u"Long Time"), QStringLiteral("2:05:09 PM"));
    EXPECT_EQ(FormatDateTime(afternoon, u"General Date"), QStringLiteral("9/30/06 2:05:09 PM"));
    EXPECT_EQ(FormatDate(kSep30, u"General Date"), QStringLiteral("9/30/06"));
}

TEST_F(DateTest, TimeSeparatorFollowsTheLocale)
{
    Use("fi_FI");
    EXPECT_EQ(FormatDateTime(QDateTime(kSep30, QTime(14, 5)), u"hh:nn"), QStringLiteral("14.05"));
    Use("de_DE");
    EXPECT_EQ(FormatDateTime(QDateTime(kSep30, QTime(14, 5)), u"Long Time"), QStringLiteral("14:05:00"));
}

TEST_F(DateTest, InvalidDateGivesNoDateParts)
{
    Use("en_US");
    EXPECT_EQ(FormatDate(QDate(), u"ddmmmyy"), QString());
}

// ---- reading -------------------------------------------------------------

struct ParseRow {
    const char* name;
    const char* locale;
    const char* text;
    QDate expected;  // invalid: no date
};

void PrintTo(const ParseRow& row, std::ostream* os) { *os << row.name; }

class DateParsing : public DateTest, public ::testing::WithParamInterface<ParseRow> {};

TEST_P(DateParsing, ReadsAsTheOldRuntime)
{
    const ParseRow& row = GetParam();
    Use(row.locale);
    const std::optional<QDate> date = ParseDate(QString::fromUtf8(row.text));
    if (row.expected.isValid()) {
        ASSERT_TRUE(date.has_value()) << row.text;
        EXPECT_EQ(*date, row.expected) << row.text;
    } else {
        EXPECT_FALSE(date.has_value()) << row.text << " gave " << date->toString(Qt::ISODate).toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Dates, DateParsing,
    ::testing::Values(
        ParseRow{"UsShort", "en_US", "9/30/06", kSep30},
        ParseRow{"UsPadded", "en_US", "09/30/2006", kSep30},
        ParseRow{"UsAmbiguousIsMonthFirst", "en_US", "1/2/06", QDate(2006, 1, 2)},
        ParseRow{"UsDayFirstWhenMonthFirstFails", "en_US", "30/9/06", kSep30},
        ParseRow{"UsTrackerDate", "en_US", "September 30, 2006", kSep30},
        ParseRow{"UsListName", "en_US", "Sep/30/06", kSep30},
        ParseRow{"UsListStem", "en_US", "30Sep06", kSep30},
        ParseRow{"UsLongDate", "en_US", "Saturday, September 30, 2006", kSep30},
        ParseRow{"UsDayCell", "en_US", "Sat - Sep 30, 2006", kSep30},
        ParseRow{"UsGraphLabel", "en_US", "Sep-30-06", kSep30},
        ParseRow{"UsLowerCaseMonth", "en_US", "september 30, 2006", kSep30},
        ParseRow{"UsAbbreviationTypedByHand", "en_US", "Sept 30 2006", kSep30},
        ParseRow{"UsIsoForm", "en_US", "2006-09-30", kSep30},
        ParseRow{"UsMonthAndYear", "en_US", "9/2006", QDate(2006, 9, 1)},
        ParseRow{"UsMonthNameAndYear", "en_US", "September 2006", QDate(2006, 9, 1)},
        ParseRow{"UsBlanksAround", "en_US", "  9/30/06  ", kSep30},
        ParseRow{"YearTwentyNine", "en_US", "1/5/29", QDate(2029, 1, 5)},
        ParseRow{"YearThirty", "en_US", "1/5/30", QDate(1930, 1, 5)},
        ParseRow{"LeapDay", "en_US", "2/29/08", QDate(2008, 2, 29)},
        ParseRow{"NoLeapDay", "en_US", "2/29/07", QDate()},
        ParseRow{"NoThirteenthMonth", "en_US", "13/13/06", QDate()},
        ParseRow{"NoYearGivenIsNoDate", "en_US", "9/30", QDate()},
        ParseRow{"Empty", "en_US", "", QDate()},
        ParseRow{"Blank", "en_US", "   ", QDate()},
        ParseRow{"Placeholder", "en_US", "Date Photo Taken", QDate()},
        ParseRow{"Weight", "en_US", "150.5", QDate()},
        ParseRow{"SmallWeight", "en_US", "95.5", QDate()},
        ParseRow{"ThreeDigitNumber", "en_US", "9/30/206", QDate()},
        ParseRow{"FourNumbers", "en_US", "9/30/06/1", QDate()},
        ParseRow{"LongNumber", "en_US", "20060930", QDate()},
        ParseRow{"TwoMonthNames", "en_US", "September October 30 2006", QDate()},
        ParseRow{"UnknownWord", "en_US", "30 Sep 06 x", QDate()},
        ParseRow{"GbShort", "en_GB", "30/09/2006", kSep30},
        ParseRow{"GbAmbiguousIsDayFirst", "en_GB", "1/2/06", QDate(2006, 2, 1)},
        ParseRow{"GbMonthFirstWhenDayFirstFails", "en_GB", "9/30/06", kSep30},
        ParseRow{"GbLongDate", "en_GB", "Saturday, 30 September 2006", kSep30},
        ParseRow{"GbTrackerDate", "en_GB", "September 30, 2006", kSep30},
        ParseRow{"GbSeptAbbreviation", "en_GB", "30 Sept 2006", kSep30},
        ParseRow{"DeShort", "de_DE", "30.09.06", kSep30},
        ParseRow{"DeAmbiguousIsDayFirst", "de_DE", "1.2.06", QDate(2006, 2, 1)},
        ParseRow{"DeMonthName", "de_DE", "März 05, 2006", QDate(2006, 3, 5)},
        ParseRow{"DeShortMonth", "de_DE", "05Mär06", QDate(2006, 3, 5)},
        ParseRow{"DeEnglishName", "de_DE", "Sep/30/06", kSep30},
        ParseRow{"DeLongDate", "de_DE", "Samstag, 30. September 2006", kSep30},
        ParseRow{"FrJuly", "fr_FR", "30juil06", QDate(2006, 7, 30)},
        ParseRow{"FrJune", "fr_FR", "30juin06", QDate(2006, 6, 30)},
        ParseRow{"EsMarchIsNotTuesday", "es_ES", "05 mar 2006", QDate(2006, 3, 5)},
        ParseRow{"EsTuesdayInMarch", "es_ES", "mar - 07 mar 2006", QDate(2006, 3, 7)},
        ParseRow{"SvIso", "sv_SE", "2006-09-30", kSep30},
        ParseRow{"SvDayFirstTwoDigitYear", "sv_SE", "30-9-06", kSep30},
        ParseRow{"JaShort", "ja_JP", "2006/09/30", kSep30},
        ParseRow{"JaLong", "ja_JP", "2006年9月30日", kSep30}),
    [](const ::testing::TestParamInfo<ParseRow>& info) { return std::string(info.param.name); });

TEST_F(DateTest, YearWhenMissing)
{
    Use("en_US");
    EXPECT_EQ(ParseDate(u"9/30", 2006), kSep30);
    EXPECT_EQ(ParseDate(u"30/9", 2006), kSep30);
    EXPECT_EQ(ParseDate(u"Sep 30", 2006), kSep30);
    Use("en_GB");
    EXPECT_EQ(ParseDate(u"1/2", 2006), QDate(2006, 2, 1));
}

// Each date the program writes in the locale's form comes back as the same
// date, month-first and day-first alike.
TEST_F(DateTest, WrittenFormsReadBack)
{
    for (const char* name : {"en_US", "en_GB", "de_DE", "fr_FR", "es_ES", "nl_NL", "sv_SE", "it_IT", "pl_PL"}) {
        Use(name);
        const bool usa = DateFormatModeFor(DateLocale()) == QStringLiteral("USA");
        QStringList patterns = {QStringLiteral("Short Date"), QStringLiteral("mmmm dd, yyyy"),
                                QStringLiteral("ddmmmyy"), QStringLiteral("mmm-dd-yy")};
        if (usa)
            patterns << QStringLiteral("m/d/yy") << QStringLiteral("mm/dd/yy") << QStringLiteral("ddd - mmm dd, yyyy");
        else
            patterns << QStringLiteral("d/m/yy") << QStringLiteral("dd/mm/yy") << QStringLiteral("ddd - dd mmm yyyy");
        for (QDate date(1995, 1, 1); date <= QDate(2028, 12, 31); date = date.addDays(13)) {
            for (const QString& pattern : patterns) {
                const QString text = FormatDate(date, pattern);
                const std::optional<QDate> back = ParseDate(text);
                ASSERT_TRUE(back.has_value()) << name << " " << pattern.toStdString() << " " << text.toStdString();
                ASSERT_EQ(*back, date) << name << " " << pattern.toStdString() << " " << text.toStdString();
            }
        }
    }
}

} // namespace

namespace {

// Arbitrary patterns and texts never crash; a date that is read is valid.
TEST_F(DateTest, ArbitraryTextNeverBreaks)
{
    std::mt19937 generator(930u);
    const QString alphabet = QStringLiteral("dmyhnswqcDMYAPap/:-., \"\\0123456789SepMärz年Saturday");
    std::uniform_int_distribution<int> pick(0, int(alphabet.size()) - 1);
    std::uniform_int_distribution<int> length(0, 24);
    for (const char* name : {"en_US", "de_DE", "ja_JP"}) {
        Use(name);
        for (int round = 0; round < 2000; ++round) {
            QString text;
            const int n = length(generator);
            for (int i = 0; i < n; ++i)
                text.append(alphabet[pick(generator)]);
            const QString formatted = FormatDateTime(QDateTime(kSep30, QTime(14, 5, 9)), text);
            EXPECT_LE(formatted.size(), 64 * (text.size() + 1));
            if (const std::optional<QDate> date = ParseDate(text, 2006)) {
                EXPECT_TRUE(date->isValid()) << text.toStdString();
            }
        }
    }
}

} // namespace
