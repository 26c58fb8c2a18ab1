#include "common/quotedlinefile.h"

#include "file_size_limit.h"
#include "temp_program_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>
#include <random>

namespace {

struct ParseRow {
    const char* name;
    QByteArray bytes;
    QStringList values;
};

void PrintTo(const ParseRow& row, std::ostream* os) { *os << row.name; }

class QuotedParsing : public ::testing::TestWithParam<ParseRow> {};

TEST_P(QuotedParsing, ReadsValueAfterValue)
{
    EXPECT_EQ(ParseQuotedValues(GetParam().bytes), GetParam().values);
}

INSTANTIATE_TEST_SUITE_P(
    Quoted, QuotedParsing,
    ::testing::Values(
        ParseRow{"EmptyFile", "", {}},
        ParseRow{"OneLine", "\"John Smith\"\r\n", {"John Smith"}},
        ParseRow{"TwoLines", "\"51\"\r\n\"September 30, 2006\"\r\n", {"51", "September 30, 2006"}},
        ParseRow{"NoFinalLineEnd", "\"a\"\r\n\"b\"", {"a", "b"}},
        ParseRow{"EmptyValue", "\"\"\r\n", {""}},
        ParseRow{"EmptyValuesBetween", "\"a\"\r\n\"\"\r\n\"\"\r\n\"b\"\r\n", {"a", "", "", "b"}},
        ParseRow{"LineBreakInsideQuotes", "\"line one\r\nline two\"\r\n\"next\"\r\n", {"line one\r\nline two", "next"}},
        ParseRow{"UnclosedQuoteRunsToTheEnd", "\"a\"\r\n\"open\r\nstill open", {"a", "open\r\nstill open"}},
        ParseRow{"LoneQuote", "\"", {""}},
        ParseRow{"LoneLf", "\"a\"\n\"b\"\n", {"a", "b"}},
        ParseRow{"LoneCr", "\"a\"\r\"b\"\r", {"a", "b"}},
        ParseRow{"CommaBetweenQuoted", "\"a\",\"b\"\r\n", {"a", "b"}},
        ParseRow{"CommaAndBlanks", "\"a\" , \"b\"\r\n", {"a", "b"}},
        ParseRow{"TextAfterClosingQuoteSkipped", "\"a\"junk\r\n\"b\"\r\n", {"a", "b"}},
        ParseRow{"QuoteRightAfterQuoteSkipped", "\"a\"\"b\"\r\n\"c\"\r\n", {"a", "c"}},
        ParseRow{"LeadingBlanksSkipped", "   \"  kept  \"\r\n", {"  kept  "}},
        ParseRow{"UnquotedTrimmed", "  plain text  \r\n", {"plain text"}},
        ParseRow{"UnquotedEndsAtComma", "one,two\r\n", {"one", "two"}},
        ParseRow{"UnquotedKeepsQuoteInside", "ab\"c\r\n", {"ab\"c"}},
        ParseRow{"EmptyLineIsEmptyValue", "\"a\"\r\n\r\n\"b\"\r\n", {"a", "", "b"}},
        ParseRow{"BlankLineAtTheEnd", "\"a\"\r\n\r\n", {"a", ""}},
        ParseRow{"BlanksOnly", "   ", {""}},
        ParseRow{"TrailingCommaGivesEmptyValue", "\"a\",\r\n\"b\"\r\n", {"a", "", "b"}},
        ParseRow{"Tabs", "\t\"a\"\t\r\n", {"a"}},
        ParseRow{"HighBytesAreWindows1252", "\"caf\xe9 \x80\"\r\n", {QString::fromUtf8("caf\xc3\xa9 \xe2\x82\xac")}}),
    [](const ::testing::TestParamInfo<ParseRow>& info) { return std::string(info.param.name); });

TEST(QuotedEncoding, EveryValueOnItsOwnQuotedLine)
{
    EXPECT_EQ(EncodeQuotedLines({}), QByteArray());
    EXPECT_EQ(EncodeQuotedLines({"51", "", "  Milk"}), QByteArray("\"51\"\r\n\"\"\r\n\"  Milk\"\r\n"));
    EXPECT_EQ(EncodeQuotedLines({QString::fromUtf8("caf\xc3\xa9 \xe2\x82\xac")}), QByteArray("\"caf\xe9 \x80\"\r\n"));
    // Outside the code page a character becomes '?'.
    EXPECT_EQ(EncodeQuotedLines({QString::fromUtf8("\xe2\x98\x83")}), QByteArray("\"?\"\r\n"));
}

TEST(QuotedEncoding, QuoteInsideAValueIsNotEscaped)
{
    EXPECT_EQ(EncodeQuotedLines({"say \"hi\""}), QByteArray("\"say \"hi\"\"\r\n"));
    EXPECT_EQ(ParseQuotedValues(EncodeQuotedLines({"say \"hi\"", "next"})), QStringList({"say ", "next"}));
}

TEST(QuotedEncoding, RoundTrip)
{
    const QStringList values = {"50", "January 05, 2026", "", "180.5", "line one\r\nline two\r\n", "  two blanks",
                                "trailing  ", "a,b", QString::fromUtf8("\xc3\xa9t\xc3\xa9")};
    EXPECT_EQ(ParseQuotedValues(EncodeQuotedLines(values)), values);
}

// Random and cut-off bytes never crash and never give more values than bytes.
TEST(QuotedFuzz, RandomBytes)
{
    std::mt19937 generator(20060930u);
    const char alphabet[] = {'"', ',', '\r', '\n', ' ', '\t', 'a', 'Z', '0', '\x80', '\xff', '\0'};
    std::uniform_int_distribution<int> pick(0, int(sizeof(alphabet)) - 1);
    std::uniform_int_distribution<int> anyByte(0, 255);
    std::uniform_int_distribution<int> length(0, 64);
    for (int round = 0; round < 3000; ++round) {
        QByteArray bytes;
        const int n = length(generator);
        const bool fromAlphabet = round % 2 == 0;
        for (int i = 0; i < n; ++i)
            bytes.append(fromAlphabet ? alphabet[pick(generator)] : char(anyByte(generator)));
        const QStringList values = ParseQuotedValues(bytes);
        ASSERT_LE(values.size(), bytes.size() + 1) << bytes.toHex().toStdString();
        for (const QString& value : values)
            ASSERT_LE(value.size(), bytes.size());
    }
}

TEST(QuotedFuzz, EveryCutOfAGoodFile)
{
    const QByteArray whole = EncodeQuotedLines({"51", "September 30, 2006", "180", "line one\r\nline two", "", "x"});
    for (qsizetype cut = 0; cut <= whole.size(); ++cut) {
        const QByteArray part = whole.left(cut);
        const QStringList values = ParseQuotedValues(part);
        ASSERT_LE(values.size(), part.size() + 1) << cut;
        ASSERT_LE(values.size(), 6) << cut;
    }
    EXPECT_EQ(ParseQuotedValues(whole).size(), 6);
}

class QuotedFile : public ::testing::Test {
protected:
    TempProgramFolder folder;
};

TEST_F(QuotedFile, MissingFileGivesNoValues)
{
    EXPECT_TRUE(ReadQuotedLineFile("Nobody.Fil").isEmpty());
    EXPECT_FALSE(QFileInfo::exists("Nobody.Fil"));
}

TEST_F(QuotedFile, WritesExactBytes)
{
    ASSERT_TRUE(WriteQuotedLineFile("WeightTrker.Fil", {"John Smith", "Mary Jones"}));
    EXPECT_EQ(folder.bytesOf("WeightTrker.Fil"), QByteArray("\"John Smith\"\r\n\"Mary Jones\"\r\n"));
    EXPECT_EQ(ReadQuotedLineFile("WeightTrker.Fil"), QStringList({"John Smith", "Mary Jones"}));
}

TEST_F(QuotedFile, RewriteReplacesTheWholeFile)
{
    ASSERT_TRUE(WriteQuotedLineFile("Menu1.Fil", {"Eggs", "Toast", "Oatmeal"}));
    ASSERT_TRUE(WriteQuotedLineFile("Menu1.Fil", {"Pancakes"}));
    EXPECT_EQ(folder.bytesOf("Menu1.Fil"), QByteArray("\"Pancakes\"\r\n"));
    ASSERT_TRUE(WriteQuotedLineFile("Menu1.Fil", {}));
    EXPECT_EQ(folder.bytesOf("Menu1.Fil"), QByteArray());
    EXPECT_TRUE(ReadQuotedLineFile("Menu1.Fil").isEmpty());
}

TEST_F(QuotedFile, NamesAreCaseBlind)
{
    folder.writeBytes("MENU1.FIL", "\"Eggs\"\r\n");
    EXPECT_EQ(ReadQuotedLineFile("Menu1.Fil"), QStringList({"Eggs"}));
    ASSERT_TRUE(WriteQuotedLineFile("Menu1.fil", {"Waffles"}));
    EXPECT_EQ(folder.bytesOf("MENU1.FIL"), QByteArray("\"Waffles\"\r\n"));
    const QStringList files = QDir(".").entryList(QDir::Files);
    EXPECT_EQ(files, QStringList({"MENU1.FIL"}));
}

// A file size limit makes the writing of the new content fail part way.
TEST_F(QuotedFile, FailedWriteLeavesTheOldFile)
{
    folder.writeBytes("EmerE1.Fil", "\"old\"\r\n");
    bool saved = true;
    {
        const FileSizeLimit limit(16);
        ASSERT_TRUE(limit.active());
        saved = WriteQuotedLineFile("EmerE1.Fil", {QString(100, u'x'), QString(100, u'y')});
    }
    EXPECT_FALSE(saved);
    EXPECT_EQ(folder.bytesOf("EmerE1.Fil"), QByteArray("\"old\"\r\n"));
    EXPECT_EQ(QDir(".").entryList(QDir::Files), QStringList({"EmerE1.Fil"}));
}

TEST_F(QuotedFile, SaveIntoMissingFolderFails)
{
    EXPECT_FALSE(WriteQuotedLineFile("no such folder/List.Fil", {"x"}));
}

} // namespace
