// Bad bytes through the storage readers and bad texts through the sums:
// random and cut files, absurd values; nothing crashes, a table never has
// more than 480 cells, and no sum ever reads "inf" or "nan".
#include "common/numbertext.h"
#include "test_bytes.h"
#include "common/quotedlinefile.h"
#include "storage/logic/storagefiles.h"

#include "storage_fixture.h"

#include <cmath>
#include <random>

namespace {

// Texts as a user or a damaged file may leave them in a cell.
QString RandomCell(std::mt19937& random)
{
    static const QStringList pieces{"", " ", "0", "-", ".", "1", "9", "e", "E", "d", "+", "99", "1e38", "3e38",
                                    "-3e38", "1e-45", "lbs", "gals", "*", "&H", "FFFF", "1e400", "/", "  ",
                                    "0.0001", "123456789012345678901234567890"};
    std::uniform_int_distribution<int> count(0, 4);
    std::uniform_int_distribution<int> pick(0, int(pieces.size()) - 1);
    QString text;
    for (int i = count(random); i > 0; --i)
        text += pieces[pick(random)];
    return text;
}

bool HasNoInfinity(const QString& text)
{
    return !text.contains(QLatin1String("inf"), Qt::CaseInsensitive)
        && !text.contains(QLatin1String("nan"), Qt::CaseInsensitive);
}

void ExpectNoInfinity(const StorageTable& table)
{
    for (const QString& cell : table.values())
        ASSERT_TRUE(HasNoInfinity(cell)) << cell.toStdString();
}

class StorageFilesFuzz : public StorageFolderTest {};
class StorageCalcFuzz : public ::testing::Test {};

} // namespace

TEST_F(StorageFilesFuzz, RandomBytesNeverCrashTheReaders)
{
    std::mt19937 random(20260403);
    for (int round = 0; round < 200; ++round) {
        const QByteArray bytes = RandomBytes(random, round * 37);
        folder.writeBytes("FdsB1.Fil", bytes);
        folder.writeBytes("FdsB2.Fil", bytes.left(round));
        folder.writeBytes("EmerE3.Fil", bytes);
        folder.writeBytes("AddA4.Fil", bytes);
        StorageModel model(StorageKind::Basic);
        model.load();
        EXPECT_EQ(model.table().values().size(), 480);
        EXPECT_LE(ReadDefaultTitles(StorageKind::Emergency).size(), 60);
        EXPECT_LE(ReadDefaultAmounts(StorageKind::Additional).size(), 27);
    }
}

TEST_F(StorageFilesFuzz, EveryTruncationOfAStoredTableReads)
{
    const QByteArray stored = TestDataBytes("AddA1.Fil");
    ASSERT_FALSE(stored.isEmpty());
    const QStringList whole = StorageTable::fromValues(ParseQuotedValues(stored)).values();
    for (qsizetype length = 0; length <= stored.size(); ++length) {
        folder.writeBytes("AddA1.Fil", stored.left(length));
        const QStringList values = ReadTableFile(StorageKind::Additional).values();
        // Every whole line read is the stored one.
        const qsizetype wholeLines = stored.left(length).count('\n');
        for (qsizetype i = 0; i < wholeLines; ++i)
            ASSERT_EQ(values[i], whole[i]) << length;
    }
}

TEST_F(StorageFilesFuzz, AnUnclosedQuoteAndAbsurdLinesReadAsOneValue)
{
    folder.writeBytes("EmerE1.Fil", "\"never closed " + QByteArray(100000, 'x'));
    const StorageTable table = ReadTableFile(StorageKind::Emergency);
    EXPECT_EQ(table.cell(1, 0).size(), 100013);
    EXPECT_EQ(table.cell(1, 1), "");
    QByteArray lines;
    for (int i = 0; i < 200000; ++i)
        lines += "\r\n";
    folder.writeBytes("EmerE1.Fil", lines);
    EXPECT_EQ(ReadTableFile(StorageKind::Emergency), StorageTable()) << "empty lines are empty values";
}

TEST_F(StorageFilesFuzz, ATenMegabyteFileReadsItsFirst480Values)
{
    QByteArray big;
    big.reserve(10 * 1024 * 1024 + 64);
    while (big.size() < 10 * 1024 * 1024)
        big += "\"25 lbs\"\r\n";
    folder.writeBytes("FdsB1.Fil", big);
    const StorageTable table = ReadTableFile(StorageKind::Basic);
    EXPECT_EQ(table.cell(60, 7), "25 lbs");
}

TEST_F(StorageCalcFuzz, RandomCellTextsThroughEverySumNeverGiveInfinity)
{
    std::mt19937 random(7);
    std::uniform_int_distribution<int> row(1, kStorageRows);
    std::uniform_int_distribution<int> category(0, kCategoryButtons - 1);
    for (int round = 0; round < 300; ++round) {
        for (const StorageKind kind : kStorageKinds) {
            StorageTable table;
            for (int r = 1; r <= kStorageRows; ++r)
                for (int column = 0; column < kStorageColumns; ++column)
                    table.setCell(r, column, RandomCell(random));
            RecalculateAll(table, kind, RandomCell(random));
            for (int step = 0; step < 5; ++step) {
                const int at = row(random);
                RunGroupTotal(table, kind, at);
                AddToStock(table, kind, at, ToSingle(Val(RandomCell(random))));
                UseFromStock(table, kind, row(random), ToSingle(Val(RandomCell(random))));
                CommitValue(table, kind, row(random), step, RandomCell(random), RandomCell(random), true);
            }
            ExpectNoInfinity(table);
            for (const PercentLine& line : PercentOfNeed(table)) {
                ASSERT_TRUE(HasNoInfinity(line.percent) && HasNoInfinity(line.onHand)) << line.percent.toStdString();
                ASSERT_TRUE(std::isfinite(line.bar));
            }
            if (const std::optional<PieSlices> pie = CategoryPie(table, kind, category(random))) {
                ASSERT_TRUE(HasNoInfinity(pie->onHandLabel) && HasNoInfinity(pie->missingLabel));
                ASSERT_TRUE(std::isfinite(pie->onHand) && std::isfinite(pie->missing));
                ASSERT_GE(pie->missing, 0);
            }
        }
    }
}
