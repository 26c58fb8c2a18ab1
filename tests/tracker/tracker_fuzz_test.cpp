// Bad bytes through the tracker's readers: random and cut files, an
// unclosed quote, an absurd row count. Nothing crashes and the grid never
// holds more rows than the largest count line 1 may give.
#include "common/quotedlinefile.h"
#include "tracker/logic/trackermodel.h"
#include "tracker_fixture.h"

#include <random>

namespace {

QByteArray RandomBytes(std::mt19937& random, int size)
{
    std::uniform_int_distribution<int> byte(0, 255);
    QByteArray bytes(size, '\0');
    for (char& c : bytes)
        c = char(byte(random));
    return bytes;
}

class TrackerFilesFuzz : public TrackerFolderTest {
protected:
    // Loads `bytes` as an individual's file and works everything out.
    TrackerModel loaded(const QByteArray& bytes)
    {
        folder.writeBytes(QStringLiteral("Fuzz.Fil"), bytes);
        TrackerModel model;
        model.load(QStringLiteral("Fuzz"));
        (void)model.trend();
        (void)model.graph();
        return model;
    }
};

} // namespace

TEST_F(TrackerFilesFuzz, RandomBytesNeverCrash)
{
    std::mt19937 random(1460);
    std::uniform_int_distribution<int> size(0, 600);
    for (int round = 0; round < 200; ++round) {
        const TrackerModel model = loaded(RandomBytes(random, size(random)));
        EXPECT_GE(model.rows().size(), 0);
        EXPECT_LE(model.rows().size(), kLargestRowCount - 1);
    }
}

TEST_F(TrackerFilesFuzz, EveryTruncationOfAGoodFileReads)
{
    const QByteArray good = TestDataBytes(QStringLiteral("Pat Doe.Fil"));
    const TrackerFile whole = ParseTrackerFile(ParseQuotedValues(good));
    for (int length = 0; length <= good.size(); ++length) {
        const TrackerModel model = loaded(good.left(length));
        EXPECT_TRUE(model.rows().size() == 3 || model.rows().size() == 49) << length;
    }
    EXPECT_EQ(loaded(good).rows()[2].weight, whole.rows[2].weight);
}

TEST_F(TrackerFilesFuzz, AnUnclosedQuoteRunsToTheEnd)
{
    const TrackerModel model = loaded(QByteArray("\"3\"\r\n\"May 01, 2026\r\n150\r\n"));
    EXPECT_EQ(model.fields().beginningDate, "May 01, 2026\r\n150\r\n");
    EXPECT_EQ(model.fields().beginningWeight, "");
    EXPECT_EQ(model.rows().size(), 2);
}

TEST_F(TrackerFilesFuzz, AnAbsurdRowCountGivesFiftyRows)
{
    for (const char* count : {"999999999", "-999999999", "1e308", "nan", "&HFFFFFFFF", "32768"})
        EXPECT_EQ(loaded(QuotedLines({count})).rows().size(), 49) << count;
}

TEST_F(TrackerFilesFuzz, RandomListFilesNeverCrash)
{
    std::mt19937 random(83);
    std::uniform_int_distribution<int> size(0, 300);
    for (int round = 0; round < 100; ++round) {
        folder.writeBytes(QString::fromLatin1(kIndividualListFile), RandomBytes(random, size(random)));
        const QStringList names = ReadIndividualList();
        if (!names.isEmpty()) {
            EXPECT_FALSE(names.first().isEmpty());
        }
    }
}
