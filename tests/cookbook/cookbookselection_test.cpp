// The current cookbook and the eight titles in GColor4.Fil: slot 1 holds the
// number as text with its sign blank, slots 2 to 9 the titles. Expected bytes
// are built by hand: 40-byte slots of a 2-byte length, the text, and zeros.
#include "cookbook/logic/cookbookselection.h"
#include "cookbook/logic/cookbooknames.h"

#include "layout_bytes.h"
#include "temp_program_folder.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace {

using layout::U16;
using layout::Zeros;

constexpr int kSlot = 40;

QByteArray TextSlot(const QByteArray& text)
{
    return U16(int(text.size())) + text + Zeros(kSlot - 2 - int(text.size()));
}

// Slot 1 and the eight titles, as a file of nine slots.
QByteArray SettingsBytes(const QByteArray& current, const QList<QByteArray>& titles)
{
    QByteArray out = TextSlot(current);
    for (int i = 0; i < 8; ++i)
        out += TextSlot(titles.value(i));
    return out;
}

QStringList FilesIn(const TempProgramFolder& folder)
{
    return QDir(folder.path()).entryList(QDir::Files, QDir::Name);
}

struct CurrentRow {
    const char* label;
    QByteArray slotText;
    int cookbook;
};

TEST(ReadCurrentCookbook, TableOfSlotTexts)
{
    const CurrentRow rows[] = {
        {"as written, with the sign blank", " 2", 2},
        {"without the blank", "3", 3},
        {"blanks around", "  8  ", 8},
        {"the last cookbook", " 8", 8},
        {"text after the number is ignored", " 4x", 4},
        {"not a number", "x", 0},
        {"an empty text", "", 0},
        {"a decimal is rounded as an integer takes it", " 2.5", 2},
        {"rounded half to even", " 3.5", 4},
        {"too large for the integer", " 99999", 0},
    };
    for (const CurrentRow& row : rows) {
        SCOPED_TRACE(row.label);
        TempProgramFolder folder;
        folder.writeBytes("GColor4.Fil", TextSlot(row.slotText));
        EXPECT_EQ(ReadCurrentCookbook(), row.cookbook);
    }
}

TEST(ReadCurrentCookbook, EmptySlotGivesCookbookZero)
{
    TempProgramFolder folder;
    // Slot 1 was never written; the titles after it were.
    folder.writeBytes("GColor4.Fil", Zeros(kSlot) + TextSlot("Family"));
    EXPECT_EQ(ReadCurrentCookbook(), 0);
    EXPECT_EQ(CookbookSuffix(ReadCurrentCookbook()), ".db0");
}

TEST(ReadCurrentCookbook, MissingFileGivesCookbookZeroAndCreatesItEmpty)
{
    TempProgramFolder folder;
    EXPECT_EQ(ReadCurrentCookbook(), 0);
    EXPECT_EQ(FilesIn(folder), QStringList{"GColor4.Fil"});
    EXPECT_TRUE(folder.bytesOf("GColor4.Fil").isEmpty());
}

TEST(WriteCurrentCookbook, WritesTheNumberWithItsSignBlankIntoTheExistingFile)
{
    TempProgramFolder folder;
    const QByteArray before = SettingsBytes(" 1", {"Family", "Holidays"});
    folder.writeBytes("GColor4.Fil", before);

    WriteCurrentCookbook(2);

    // "Gcolor4.fil" lands on the existing GColor4.Fil; no second file appears.
    EXPECT_EQ(FilesIn(folder), QStringList{"GColor4.Fil"});
    const QByteArray bytes = folder.bytesOf("GColor4.Fil");
    EXPECT_EQ(bytes.left(kSlot), U16(2) + " 2" + Zeros(36));
    EXPECT_EQ(bytes.mid(kSlot), before.mid(kSlot));
    EXPECT_EQ(ReadCurrentCookbook(), 2);
}

TEST(WriteCurrentCookbook, WithNoFileCreatesItUnderTheMenuSpelling)
{
    TempProgramFolder folder;
    WriteCurrentCookbook(5);

    EXPECT_EQ(FilesIn(folder), QStringList{"Gcolor4.fil"});
    EXPECT_EQ(folder.bytesOf("Gcolor4.fil"), U16(2) + " 5" + Zeros(36));
    // The readers' spelling finds the same file.
    EXPECT_EQ(ReadCurrentCookbook(), 5);
    EXPECT_EQ(FilesIn(folder), QStringList{"Gcolor4.fil"});
}

TEST(WriteCurrentCookbook, ExistingMenuSpellingIsReadAndWrittenAsTheOneFile)
{
    TempProgramFolder folder;
    folder.writeBytes("Gcolor4.fil", SettingsBytes(" 3", {"", "", "Canning"}));

    EXPECT_EQ(ReadCurrentCookbook(), 3);
    EXPECT_EQ(ReadCookbookTitles().value(2), "Canning");

    WriteCurrentCookbook(7);
    WriteCookbookTitles({"One", "Two", "Three", "Four", "Five", "Six", "Seven", "Eight"});

    EXPECT_EQ(FilesIn(folder), QStringList{"Gcolor4.fil"});
    EXPECT_EQ(folder.bytesOf("Gcolor4.fil"),
              SettingsBytes(" 7", {"One", "Two", "Three", "Four", "Five", "Six", "Seven", "Eight"}));
    EXPECT_EQ(ReadCurrentCookbook(), 7);
}

TEST(WriteCurrentCookbook, EveryCookbookNumberRoundTrips)
{
    TempProgramFolder folder;
    for (int cookbook = 1; cookbook <= 8; ++cookbook) {
        SCOPED_TRACE(cookbook);
        WriteCurrentCookbook(cookbook);
        EXPECT_EQ(ReadCurrentCookbook(), cookbook);
    }
}

TEST(WriteCurrentCookbook, SelectingTheCurrentCookbookWritesTheSameBytesAgain)
{
    TempProgramFolder folder;
    folder.writeBytes("GColor4.Fil", SettingsBytes(" 4", {"Family"}));
    const QByteArray before = folder.bytesOf("GColor4.Fil");
    WriteCurrentCookbook(4);
    EXPECT_EQ(folder.bytesOf("GColor4.Fil"), before);
}

TEST(ReadCookbookTitles, SlotsTwoToNineWithBlanksTrimmed)
{
    TempProgramFolder folder;
    folder.writeBytes("GColor4.Fil",
                      SettingsBytes(" 1", {"Family", "  Holidays  ", "", "Grandma's", " ", "Quick\tmeals ",
                                           "Caf\xe9", "Last"})
                          + TextSlot(" 9 not a title"));
    EXPECT_EQ(ReadCookbookTitles(),
              (QStringList{"Family", "Holidays", "", "Grandma's", "", "Quick\tmeals", QString::fromUtf8("Café"),
                           "Last"}));
}

TEST(ReadCookbookTitles, MissingTitlesAreEmpty)
{
    TempProgramFolder folder;
    folder.writeBytes("GColor4.Fil", SettingsBytes(" 2", {"Family"}).left(3 * kSlot));
    const QStringList titles = ReadCookbookTitles();
    ASSERT_EQ(titles.size(), 8);
    EXPECT_EQ(titles[0], "Family");
    EXPECT_EQ(titles[1], "");
    for (int i = 1; i < 8; ++i)
        EXPECT_TRUE(titles[i].isEmpty()) << i;
}

TEST(WriteCookbookTitles, WritesSlotsTwoToNineAndLeavesTheOthers)
{
    TempProgramFolder folder;
    // Slot 11 belongs to the shopping list and must survive.
    QByteArray before = SettingsBytes(" 6", {}) + TextSlot("") + TextSlot(" 3");
    folder.writeBytes("GColor4.Fil", before);

    WriteCookbookTitles({"A", "B", "C", "D", "E", "F", "G", "H"});

    const QByteArray bytes = folder.bytesOf("GColor4.Fil");
    EXPECT_EQ(bytes, SettingsBytes(" 6", {"A", "B", "C", "D", "E", "F", "G", "H"}) + TextSlot("") + TextSlot(" 3"));
}

TEST(WriteCookbookTitles, ThirtyCharacterTitleFitsItsSlotWithTheLength)
{
    TempProgramFolder folder;
    const QByteArray thirty = "Thirty characters of a title!!";
    ASSERT_EQ(thirty.size(), 30);
    WriteCookbookTitles({QString::fromLatin1(thirty)});

    const QByteArray bytes = folder.bytesOf("GColor4.Fil");
    ASSERT_EQ(bytes.size(), 9 * kSlot);
    EXPECT_EQ(bytes.mid(kSlot, kSlot), U16(30) + thirty + Zeros(8));
    EXPECT_EQ(ReadCookbookTitles().value(0), QString::fromLatin1(thirty));
}

TEST(WriteCookbookTitles, LongerTitlesAreCutToThirty)
{
    TempProgramFolder folder;
    const QString longTitle = "Recipes from the old farmhouse kitchen";
    WriteCookbookTitles({{}, longTitle});
    EXPECT_EQ(folder.bytesOf("GColor4.Fil").mid(2 * kSlot, kSlot), TextSlot(longTitle.left(30).toLatin1()));
    EXPECT_EQ(ReadCookbookTitles().value(1), longTitle.left(30));
}

TEST(WriteCookbookTitles, BlankTitleSavedGivesAnEmptyTextSlot)
{
    TempProgramFolder folder;
    folder.writeBytes("GColor4.Fil", SettingsBytes(" 1", {"Family", "Holidays"}));

    QStringList titles = ReadCookbookTitles();
    titles[1].clear();
    WriteCookbookTitles(titles);

    const QByteArray bytes = folder.bytesOf("GColor4.Fil");
    EXPECT_EQ(bytes.mid(2 * kSlot, kSlot), U16(0) + Zeros(38));
    EXPECT_EQ(bytes, SettingsBytes(" 1", {"Family"}));
    EXPECT_EQ(ReadCookbookTitles().value(1), "");
}

TEST(WriteCookbookTitles, AccentedLettersAreOneByteEach)
{
    TempProgramFolder folder;
    WriteCookbookTitles({QString::fromUtf8("Crème brûlée")});
    EXPECT_EQ(folder.bytesOf("GColor4.Fil").mid(kSlot, kSlot), TextSlot("Cr\xe8me br\xfbl\xe9" "e"));
    EXPECT_EQ(ReadCookbookTitles().value(0), QString::fromUtf8("Crème brûlée"));
}

TEST(CookbookMenuCaption, NumberWithoutBlankThenTheTitle)
{
    EXPECT_EQ(CookbookMenuCaption(1, "Family"), "Cookbook #1 - Family");
    EXPECT_EQ(CookbookMenuCaption(8, "Holidays"), "Cookbook #8 - Holidays");
    EXPECT_EQ(CookbookMenuCaption(3, ""), "Cookbook #3 - ");
}

TEST(CookbookCaption, FamilyNameThenTheNumberWithItsSignBlank)
{
    EXPECT_EQ(CookbookCaption("Smith", 2, "Holidays"), "Smith Recipe File - Cookbook # 2 - Holidays");
    EXPECT_EQ(CookbookCaption("", 1, "Family"), " Recipe File - Cookbook # 1 - Family");
    EXPECT_EQ(CookbookCaption("Smith", 0, ""), "Smith Recipe File - Cookbook # 0 - ");
}

TEST(CookbookCaption, AllTitlesEmpty)
{
    TempProgramFolder folder;
    folder.writeBytes("GColor4.Fil", SettingsBytes(" 3", {}));
    const QStringList titles = ReadCookbookTitles();
    ASSERT_EQ(titles.size(), 8);
    for (int cookbook = 1; cookbook <= 8; ++cookbook)
        EXPECT_EQ(CookbookMenuCaption(cookbook, titles[cookbook - 1]), QString("Cookbook #%1 - ").arg(cookbook));

    const int current = ReadCurrentCookbook();
    EXPECT_EQ(CookbookMenuCaption(current, titles[current - 1]), "Cookbook #3 - ");
    const QString caption = CookbookCaption("Smith", current, titles[current - 1]);
    EXPECT_EQ(caption, "Smith Recipe File - Cookbook # 3 - ");
    EXPECT_TRUE(caption.endsWith(" - "));
}

TEST(CookbookCaption, FromTheSettingsFile)
{
    TempProgramFolder folder;
    folder.writeBytes("GColor4.Fil", SettingsBytes(" 2", {"Family", "  Holidays "}));
    const int current = ReadCurrentCookbook();
    EXPECT_EQ(CookbookCaption("Smith", current, ReadCookbookTitles().value(current - 1)),
              "Smith Recipe File - Cookbook # 2 - Holidays");
}

} // namespace
