// The individual's file and the list of individuals, byte for byte.
#include "tracker/logic/trackerfile.h"

#include "common/quotedlinefile.h"
#include "tracker/logic/trackerentry.h"
#include "tracker_fixture.h"

#include <QFile>

namespace {

const QString kStored = QStringLiteral("Pat Doe.Fil");

class TrackerFileTest : public TrackerFolderTest {};

TrackerFile StoredFile()
{
    return ParseTrackerFile(ParseQuotedValues(TestDataBytes(kStored)));
}

} // namespace

TEST_F(TrackerFileTest, EveryLineGoesToItsField)
{
    const TrackerFile file = StoredFile();
    EXPECT_EQ(file.rowCount(), 4);
    EXPECT_EQ(file.fields.beginningDate, "March 02, 2026");
    EXPECT_EQ(file.fields.beginningWeight, "210.5");
    EXPECT_EQ(file.fields.goalWeight, "180");
    EXPECT_EQ(file.fields.daysPerWeek, "3");
    EXPECT_EQ(file.fields.timePerPeriod, "45 minutes");
    EXPECT_EQ(file.fields.exerciseTypes, "Walking, swimming");
    EXPECT_EQ(file.fields.beginningPhotoDate, "Date Photo Taken");
    EXPECT_EQ(file.fields.currentPhotoDate, "March 30, 2026");
    EXPECT_EQ(file.fields.beginningPicture, "");
    EXPECT_EQ(file.fields.currentPicture, "/home/pictures/now.jpg");
    const QList<WeighIn> rows{{"March 02, 2026", "210.5"}, {"", ""}, {"March 16, 2026", "207"}};
    EXPECT_EQ(file.rows, rows);
}

TEST_F(TrackerFileTest, ACommentWithLineBreaksComesBackUnchanged)
{
    const TrackerFile file = StoredFile();
    EXPECT_EQ(file.fields.comments, "First line\r\nsecond line");
    ASSERT_TRUE(WriteTrackerFile(kStored, file, WithRows::Yes));
    EXPECT_EQ(ReadTrackerFile(kStored).fields.comments, "First line\r\nsecond line");
}

TEST_F(TrackerFileTest, ACommentCannotHoldADoubleQuote)
{
    EXPECT_EQ(FilterTextField(QStringLiteral("say \"")), "say ");
    EXPECT_EQ(FilterTextField(QStringLiteral("say ok")), "say ok");
}

TEST_F(TrackerFileTest, SaveWritesTheStoredFileBackByteForByteWithABlankRowAsTwoEmptyLines)
{
    ASSERT_TRUE(WriteTrackerFile(kStored, StoredFile(), WithRows::Yes));
    EXPECT_EQ(folder.bytesOf(kStored), TestDataBytes(kStored));
}

TEST_F(TrackerFileTest, DatesAndWeightsAreTrimmedOnWriteAndOnRead)
{
    TrackerFile file;
    file.rows = {{"  May 01, 2026 ", " 150 "}};
    const QStringList values = TrackerFileValues(file, WithRows::Yes);
    EXPECT_EQ(values.mid(12), QStringList({"May 01, 2026", "150"}));
    QStringList padded = values;
    padded[12] = QStringLiteral(" May 01, 2026  ");
    padded[13] = QStringLiteral("  150");
    padded[0] = QStringLiteral("2");
    EXPECT_EQ(ParseTrackerFile(padded).rows, QList<WeighIn>({{"May 01, 2026", "150"}}));
}

TEST_F(TrackerFileTest, SaveNewFileWritesLinesOneToTwelveWithTheGridsRowCountAndNoPairs)
{
    TrackerFile file;
    file.fields.beginningDate = QStringLiteral("May 01, 2026");
    file.fields.beginningWeight = QStringLiteral("190");
    file.fields.beginningPhotoDate = QString::fromLatin1(kPhotoDatePlaceholder);
    file.fields.currentPhotoDate = QString::fromLatin1(kPhotoDatePlaceholder);
    file.fields.currentPicture = QStringLiteral("/pictures/a.jpg");
    file.rows = QList<WeighIn>(kDefaultRowCount - 1);
    ASSERT_TRUE(WriteTrackerFile(QStringLiteral("Kim.Fil"), file, WithRows::No));
    EXPECT_EQ(folder.bytesOf(QStringLiteral("Kim.Fil")),
              QuotedLines({"50", "May 01, 2026", "190", "", "", "", "", "Date Photo Taken", "Date Photo Taken", "",
                           "", "/pictures/a.jpg"}));
}

TEST_F(TrackerFileTest, ARowCountOfZeroGivesFiftyRowsAndTheNextSaveWrites50With49Pairs)
{
    folder.writeBytes(QStringLiteral("Zed.Fil"), QuotedLines({"0", "May 01, 2026"}));
    const TrackerFile file = ReadTrackerFile(QStringLiteral("Zed.Fil"));
    EXPECT_EQ(file.rowCount(), 50);
    ASSERT_TRUE(WriteTrackerFile(QStringLiteral("Zed.Fil"), file, WithRows::Yes));
    const QStringList values = ParseQuotedValues(folder.bytesOf(QStringLiteral("Zed.Fil")));
    EXPECT_EQ(values.value(0), "50");
    EXPECT_EQ(values.size(), 12 + 2 * 49);
}

TEST_F(TrackerFileTest, RowCountsFromLineOne)
{
    const struct {
        const char* line;
        int rows;
    } cases[] = {
        {"12", 12},        {"1", 1},          {"32767", 32767}, {"0", 50},       {"-4", 50},
        {"abc", 50},       {"", 50},          {"32768", 50},    {"999999999", 50}, {"12.4", 12},
        {"1e400", 50},     {" 7 rows", 7},
    };
    for (const auto& row : cases)
        EXPECT_EQ(RowCountFrom(QString::fromLatin1(row.line)), row.rows) << row.line;
}

TEST_F(TrackerFileTest, AMissingFileGivesBlankFieldsAndFiftyRows)
{
    const TrackerFile file = ReadTrackerFile(QStringLiteral("Nobody.Fil"));
    EXPECT_EQ(file.rowCount(), 50);
    EXPECT_EQ(file.fields, TrackerFields{});
}

TEST_F(TrackerFileTest, ATruncatedFileLeavesTheRestBlank)
{
    const QByteArray bytes = TestDataBytes(kStored);
    const TrackerFile file = ParseTrackerFile(ParseQuotedValues(bytes.left(bytes.indexOf("45 minutes") + 5)));
    EXPECT_EQ(file.fields.daysPerWeek, "3");
    EXPECT_EQ(file.fields.timePerPeriod, "45 mi");   // an unclosed quote runs to the end
    EXPECT_EQ(file.fields.exerciseTypes, "");
    EXPECT_EQ(file.rows, QList<WeighIn>(3));
}

TEST_F(TrackerFileTest, TheNameIsTheFileName)
{
    EXPECT_EQ(IndividualFileName(QStringLiteral("  John Smith 2012 ")), "John Smith 2012.Fil");
}

TEST_F(TrackerFileTest, TheListKeepsFileOrderAndDropsAFirstEmptyEntry)
{
    folder.writeBytes(QString::fromLatin1(kIndividualListFile), QuotedLines({"", " Zoe ", "Adam", ""}));
    EXPECT_EQ(ReadIndividualList(), QStringList({"Zoe", "Adam", ""}));
}

TEST_F(TrackerFileTest, AnEmptyListFileGivesNoIndividuals)
{
    folder.writeBytes(QString::fromLatin1(kIndividualListFile), {});
    EXPECT_EQ(ReadIndividualList(), QStringList());
    folder.writeBytes(QString::fromLatin1(kIndividualListFile), QuotedLines({""}));
    EXPECT_EQ(ReadIndividualList(), QStringList());
}

TEST_F(TrackerFileTest, TheListIsWrittenOneValueALineAndDeletedWithTheLastIndividual)
{
    ASSERT_TRUE(WriteIndividualList({"Zoe", "Adam"}));
    EXPECT_EQ(folder.bytesOf(QString::fromLatin1(kIndividualListFile)), QuotedLines({"Zoe", "Adam"}));
    ASSERT_TRUE(WriteIndividualList({"Zoe"}));
    EXPECT_EQ(folder.bytesOf(QString::fromLatin1(kIndividualListFile)), QuotedLines({"Zoe"}));
    ASSERT_TRUE(WriteIndividualList({}));
    EXPECT_FALSE(QFile::exists(folder.filePath(QString::fromLatin1(kIndividualListFile))));
}

TEST_F(TrackerFileTest, NamesThatCannotBecomeAFileOfTheirOwnAreRefused)
{
    for (const char* name : {"a/b", "a\\b", "tab\there", "WeightTrker", "weighttrker", "Temp", "GColor1", "gcolor14",
                             "GQORB1", "QORBNAME", "SWR2", "Menu1", "menu3", "LISTNAME", "FdsB2", "EmerE1", "adda4"})
        EXPECT_TRUE(IsRefusedIndividualName(QString::fromLatin1(name))) << name;
    for (const char* name : {"John Smith", "John Smith 2012", "Adda Smith", "Menu4", "Temperance", "Pat O'Neil"})
        EXPECT_FALSE(IsRefusedIndividualName(QString::fromLatin1(name))) << name;
}
