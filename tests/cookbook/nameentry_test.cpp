#include "cookbook/logic/nameentry.h"

#include <gtest/gtest.h>

namespace {

QString Blanks(int count)
{
    return QString(count, u' ');
}

struct EntryRow {
    const char* label;
    QString name;
    RecordNumber number;
    QString entry;
};

TEST(MakeNameEntry, TableOfEntries)
{
    const QString forty = QString(40, u'a');
    const QString fortyOne = QString(41, u'b');
    const EntryRow rows[] = {
        {"name padded to 52, then the number", "Apple Pie", 17, "Apple Pie" + Blanks(43) + "17"},
        {"40 characters leave 12 blanks", forty, 3, forty + Blanks(12) + "3"},
        {"41 characters are kept whole", fortyOne, 3, fortyOne + Blanks(11) + "3"},
        {"longer names are cut to 41", fortyOne + "cdefg", 3, fortyOne + Blanks(11) + "3"},
        {"trailing blanks go", "Stew   ", 9, "Stew" + Blanks(48) + "9"},
        {"leading blanks stay", "  Stew", 9, "  Stew" + Blanks(46) + "9"},
        {"blanks after the cut go", QString(40, u'c') + "   x", 2, QString(40, u'c') + Blanks(12) + "2"},
        {"five digits make the longest entry", fortyOne, 30001, fortyOne + Blanks(11) + "30001"},
        {"the largest record number", "Pie", 32767, "Pie" + Blanks(49) + "32767"},
        {"empty name", "", 1, Blanks(52) + "1"},
        {"accented letters count as one", QString::fromUtf8("Crème brûlée"), 12,
         QString::fromUtf8("Crème brûlée") + Blanks(40) + "12"},
    };
    for (const EntryRow& row : rows) {
        SCOPED_TRACE(row.label);
        const QString entry = MakeNameEntry(row.name, row.number);
        EXPECT_EQ(entry, row.entry);
        EXPECT_EQ(entry.size(), 52 + QString::number(row.number).size());
    }
}

struct NumberRow {
    const char* label;
    QString entry;
    RecordNumber number;
};

TEST(RecordNumberOf, TableOfEntries)
{
    const QString pad = "Pie" + Blanks(48); // 51 characters: the number reading starts after them
    const NumberRow rows[] = {
        {"an entry as written", "Apple Pie" + Blanks(43) + "17", 17},
        {"reading starts on the last pad blank", pad + " 42", 42},
        {"a digit at character 52 is read", pad + "7", 7},
        {"a digit before character 52 is not read", "Pie" + Blanks(47) + "9 5", 5},
        {"blanks before the number are skipped", pad + "     8", 8},
        {"a blank inside the number ends it", pad + " 1 2", 1},
        {"stops at the first non-digit", pad + " 17abc", 17},
        {"a text that is no number", pad + " abc", 0},
        {"a sign is no digit", pad + " -5", 0},
        {"nothing after the pad", pad, 0},
        {"shorter than the pad", "Apple Pie 17", 0},
        {"empty", "", 0},
        {"leading zeros", pad + " 0030", 30},
        {"the largest record number", pad + " 32767", 32767},
        {"too large for a record number", pad + " 32768", 0},
        {"far too large", pad + " 99999999999999999999", 0},
        {"a name of digits is not the number", QString(41, u'7') + Blanks(11) + "3", 3},
    };
    for (const NumberRow& row : rows) {
        SCOPED_TRACE(row.label);
        EXPECT_EQ(RecordNumberOf(row.entry), row.number);
    }
}

TEST(RecipeNameOf, IsTheFirstFortyCharactersWithoutTrailingBlanks)
{
    const QString fortyOne = QString(40, u'n') + "Z";
    EXPECT_EQ(RecipeNameOf(MakeNameEntry(u"Apple Pie", 17)), "Apple Pie");
    EXPECT_EQ(RecipeNameOf(MakeNameEntry(fortyOne, 17)), QString(40, u'n'));
    EXPECT_EQ(RecipeNameOf(u"  Stew  "), "  Stew");
    EXPECT_EQ(RecipeNameOf(u""), "");
}

TEST(NameEntry, NameAndNumberComeBackForEveryRecordNumber)
{
    for (int number : {1, 9, 10, 99, 100, 9999, 10000, 30000, 30001, 32767}) {
        SCOPED_TRACE(number);
        const QString entry = MakeNameEntry(u"Grandma's Bread", RecordNumber(number));
        EXPECT_EQ(RecordNumberOf(entry), number);
        EXPECT_EQ(RecipeNameOf(entry), "Grandma's Bread");
    }
}

TEST(NameEntry, BlankTextIsNoEntry)
{
    EXPECT_TRUE(IsBlankText(u""));
    EXPECT_TRUE(IsBlankText(u" "));
    EXPECT_TRUE(IsBlankText(Blanks(57)));
    EXPECT_FALSE(IsBlankText(u" x "));
    EXPECT_FALSE(IsBlankText(Blanks(52) + "1"));
}

} // namespace
