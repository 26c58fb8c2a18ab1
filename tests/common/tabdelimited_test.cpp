// A table as tab-delimited Windows-1252 text, byte for byte.
#include "common/tabdelimited.h"

#include <gtest/gtest.h>

namespace {

QByteArray Bytes(std::initializer_list<unsigned char> bytes)
{
    QByteArray out;
    for (unsigned char byte : bytes)
        out.append(char(byte));
    return out;
}

} // namespace

TEST(TabDelimitedText, AnEmptyTableIsAnEmptyFile)
{
    EXPECT_EQ(TabDelimitedText({}), QByteArray());
}

TEST(TabDelimitedText, OneCellIsItsTextWithoutALineEnd)
{
    EXPECT_EQ(TabDelimitedText({{"Wheat"}}), QByteArray("Wheat"));
}

TEST(TabDelimitedText, TabsBetweenCellsAndCrLfBetweenRowsOnly)
{
    const QList<QStringList> rows = {{"Storage Item", "Amount"}, {"Wheat", "25"}, {"Rice", "*"}};
    EXPECT_EQ(TabDelimitedText(rows), QByteArray("Storage Item\tAmount\r\nWheat\t25\r\nRice\t*"));
}

TEST(TabDelimitedText, EmptyCellsAndEmptyRowsKeepTheirPlaces)
{
    const QList<QStringList> rows = {{"", "b", ""}, {}, {"", ""}};
    EXPECT_EQ(TabDelimitedText(rows), QByteArray("\tb\t\r\n\r\n\t"));
}

TEST(TabDelimitedText, CharactersOfTheCodePageBecomeTheirBytes)
{
    const QList<QStringList> rows = {{QStringLiteral("Caf\u00e9"), QStringLiteral("\u20ac5")}};
    EXPECT_EQ(TabDelimitedText(rows), Bytes({'C', 'a', 'f', 0xE9, '\t', 0x80, '5'}));
}

TEST(TabDelimitedText, ACharacterOutsideTheCodePageBecomesAQuestionMark)
{
    const QList<QStringList> rows = {{QStringLiteral("\u0141\u00f3d\u017a")}};
    EXPECT_EQ(TabDelimitedText(rows), Bytes({'?', 0xF3, 'd', '?'}));
}
