// Backup and restore of the sets copied file by file.
#include "backup/logic/backupmessages.h"
#include "backup_files.h"
#include "backup/logic/backuptexts.h"
#include "backup_fixture.h"
#include "common/quotedlinefile.h"
#include "test_bytes.h"

#include <QDirIterator>

namespace {

using layout::PatternRecord;

class FileCopySets : public BackupTest {
protected:
    void writeBasic(int size)
    {
        for (int i = 1; i <= 4; ++i)
            program.writeBytes(QStringLiteral("FdsB%1.Fil").arg(i), PatternRecord(i, size));
    }
    void expectBackupQuestion(const QString& word, const QString& folder, Answer answer = Answer::Yes)
    {
        dialogs.expectMessage("Delete Files", DeleteBeforeBackupQuestion(word, TargetPath(folder)).text, answer);
    }
};

TEST_F(FileCopySets, BasicStorageGoesToTheMediumByteForByte)
{
    writeBasic(300);
    const QString disk = medium("disk");
    expectBackupQuestion("Basic", disk);
    EXPECT_EQ(run(14, disk), RunEnd::Completed);
    for (int i = 1; i <= 4; ++i)
        EXPECT_EQ(mediumBytes(disk, QStringLiteral("FdsB%1.Fds").arg(i)), PatternRecord(i, 300));
    EXPECT_EQ(progress.statuses, (QStringList{"Deleting Old Files", "Backup Complete"}));
    EXPECT_FALSE(progress.barShown);
    EXPECT_EQ(dialogs.messages().first().defaultButton, 2);
}

TEST_F(FileCopySets, AnythingButYesDoesNothing)
{
    writeBasic(10);
    const QString disk = medium("disk");
    expectBackupQuestion("Basic", disk, Answer::No);
    EXPECT_EQ(run(14, disk), RunEnd::NotStarted);
    EXPECT_TRUE(QDir(disk).isEmpty());
    EXPECT_TRUE(progress.statuses.isEmpty());
}

TEST_F(FileCopySets, CancellingInTheMiddleLeavesPartOfTheSetAndSaysSo)
{
    writeBasic(1000);
    const QString disk = medium("disk");
    for (int i = 1; i <= 4; ++i)
        ASSERT_TRUE(WriteFileBytes(QDir(disk).filePath(QStringLiteral("FdsB%1.Fds").arg(i)), QByteArray(10, 'o')));
    expectBackupQuestion("Basic", disk);
    dialogs.expectMessage("Backup Disk", FullDiskQuestion().text, Answer::Cancel);
    dialogs.expectMessage("Backup Proceedure Cancelation", BackupCancelledMessage().text);
    EXPECT_EQ(run(14, disk, {}, Limited(2500)), RunEnd::Stopped);
    EXPECT_EQ(mediumBytes(disk, "FdsB1.Fds"), PatternRecord(1, 1000));
    EXPECT_EQ(mediumBytes(disk, "FdsB2.Fds"), PatternRecord(2, 1000));
    EXPECT_FALSE(QFile::exists(QDir(disk).filePath("FdsB3.Fds")));  // old copy deleted, partial copy gone
    EXPECT_EQ(mediumBytes(disk, "FdsB4.Fds"), QByteArray(10, 'o'));
    EXPECT_EQ(progress.statuses.last(), "Backup Terminated by User");
    EXPECT_TRUE(dialogs.scriptDone());
}

TEST_F(FileCopySets, OkAfterAFullDiskGoesOnWithTheNextFileOnTheNewMedium)
{
    writeBasic(1000);
    const QString first = medium("first");
    const QString second = medium("second");
    expectBackupQuestion("Basic", first);
    dialogs.expectMessage("Backup Disk", FullDiskQuestion().text, Answer::Ok);
    dialogs.expectFolder(second);
    EXPECT_EQ(run(14, first, {}, Limited(2500)), RunEnd::Completed);
    EXPECT_EQ(QDir(first).entryList(QDir::Files), (QStringList{"FdsB1.Fds", "FdsB2.Fds"}));
    EXPECT_EQ(QDir(second).entryList(QDir::Files), QStringList{"FdsB4.Fds"});  // the failed file is not retried
    EXPECT_EQ(mediumBytes(second, "FdsB4.Fds"), PatternRecord(4, 1000));
    EXPECT_EQ(dialogs.folderRequests().first().startFolder, first);
}

TEST_F(FileCopySets, CancelAtTheFolderOfTheNextMediumEndsTheBackup)
{
    writeBasic(1000);
    const QString disk = medium("disk");
    expectBackupQuestion("Basic", disk);
    dialogs.expectMessage("Backup Disk", FullDiskQuestion().text, Answer::Ok);
    dialogs.expectFolder(std::nullopt);
    EXPECT_EQ(run(14, disk, {}, Limited(2500)), RunEnd::Stopped);
    EXPECT_EQ(progress.statuses.last(), "Backup Terminated by User");
}

TEST_F(FileCopySets, AMissingSourceFileIsSkippedWithoutTheFullDiskQuestion)
{
    program.writeBytes("EmerE1.Fil", "one");
    program.writeBytes("EmerE4.Fil", "four");
    const QString disk = medium("disk");
    expectBackupQuestion("Emergency", disk);
    EXPECT_EQ(run(16, disk), RunEnd::Completed);
    EXPECT_EQ(QDir(disk).entryList(QDir::Files), (QStringList{"EmerE1.EmE", "EmerE4.EmE"}));
}

TEST_F(FileCopySets, TheProgramFolderIsRefusedBeforeAnythingIsDeleted)
{
    writeBasic(10);
    program.writeBytes("FdsB1.Fds", "kept");
    dialogs.expectMessage("Disk Error", ProgramFolderRefusedMessage().text);
    EXPECT_EQ(run(14, program.path()), RunEnd::NotStarted);
    EXPECT_EQ(program.bytesOf("FdsB1.Fds"), "kept");
    dialogs.expectMessage("Disk Error", ProgramFolderRefusedMessage().text);
    EXPECT_EQ(run(15, program.path()), RunEnd::NotStarted);
    EXPECT_EQ(program.bytesOf("FdsB1.Fil"), PatternRecord(1, 10));
}

TEST_F(FileCopySets, AdditionalStorageRoundTrips)
{
    const QString disk = medium("disk");
    for (const char* name : {"AddA1", "AddA3", "AddA4"})
        program.writeBytes(QString::fromLatin1(name) + ".Fil", QByteArray(name).repeated(50));
    expectBackupQuestion("Additional", disk);
    ASSERT_EQ(run(18, disk), RunEnd::Completed);
    for (const char* name : {"AddA1", "AddA3", "AddA4"})
        program.writeBytes(QString::fromLatin1(name) + ".Fil", "changed since");
    dialogs.expectMessage("Delete Files", DeleteBeforeRestoreQuestion("Addt'l.").text, Answer::Yes);
    EXPECT_EQ(run(19, disk), RunEnd::Completed);
    for (const char* name : {"AddA1", "AddA3", "AddA4"})
        EXPECT_EQ(program.bytesOf(QString::fromLatin1(name) + ".Fil"), QByteArray(name).repeated(50));
    EXPECT_EQ(progress.statuses.mid(2),
              (QStringList{"Restoring Additional Food Storage Files", "Restoration Completed"}));
}

TEST_F(FileCopySets, AFailedRestoreCopyEmptiesTheStatusAndAsksAgain)
{
    const QString disk = medium("disk");
    ASSERT_TRUE(WriteFileBytes(QDir(disk).filePath("FdsB1.Fds"), "one"));
    writeBasic(5);
    const QString question = DeleteBeforeRestoreQuestion("Basic").text;
    dialogs.expectMessage("Delete Files", question, Answer::Yes);
    dialogs.expectMessage("Disk Error", RestoreFileMissingMessage().text);
    dialogs.expectMessage("Delete Files", question, Answer::Cancel);
    EXPECT_EQ(run(15, disk), RunEnd::NotStarted);
    EXPECT_EQ(progress.statuses, (QStringList{"Restoring Basic Food Storage Files", ""}));
    EXPECT_TRUE(dialogs.scriptDone());
}

class WeightTrackerSet : public FileCopySets {};

TEST_F(WeightTrackerSet, TheListAndEveryListedIndividualRoundTrip)
{
    ASSERT_TRUE(layout::WriteWeightTracker(program.path(), {"Dad", "Mary Ann"}, 700));
    const QByteArray list = program.bytesOf("WeightTrker.Fil");
    const QString disk = medium("disk");
    expectBackupQuestion("Weight Tracker", disk);
    ASSERT_EQ(run(42, disk), RunEnd::Completed);
    EXPECT_EQ(QDir(disk).entryList(QDir::Files), (QStringList{"Dad.Wtp", "Mary Ann.Wtp", "WeightTrker.Wtp"}));
    program.writeBytes("Dad.Fil", "changed");
    program.writeBytes("WeightTrker.Fil", QuotedLineBytes({"Dad"}));
    dialogs.expectMessage("Delete Files", DeleteBeforeRestoreQuestion("Auto").text, Answer::Yes);
    EXPECT_EQ(run(43, disk), RunEnd::Completed);
    EXPECT_EQ(program.bytesOf("WeightTrker.Fil"), list);
    EXPECT_EQ(program.bytesOf("Dad.Fil"), PatternRecord(1, 700));
    EXPECT_EQ(program.bytesOf("Mary Ann.Fil"), PatternRecord(2, 700));
}

TEST_F(WeightTrackerSet, AnIndividualNotInTheBackupStaysUnlisted)
{
    ASSERT_TRUE(layout::WriteWeightTracker(program.path(), {"Dad"}, 50));
    const QString disk = medium("disk");
    expectBackupQuestion("Weight Tracker", disk);
    ASSERT_EQ(run(42, disk), RunEnd::Completed);
    ASSERT_TRUE(layout::WriteWeightTracker(program.path(), {"Dad", "Zed"}, 60));
    dialogs.expectMessage("Delete Files", DeleteBeforeRestoreQuestion("Auto").text, Answer::Yes);
    EXPECT_EQ(run(43, disk), RunEnd::Completed);
    EXPECT_EQ(program.bytesOf("WeightTrker.Fil"), QuotedLineBytes({"Dad"}));
    EXPECT_EQ(program.bytesOf("Zed.Fil"), PatternRecord(2, 60));
}

TEST_F(WeightTrackerSet, AMediumWithoutTheListTouchesNoIndividual)
{
    ASSERT_TRUE(layout::WriteWeightTracker(program.path(), {"Dad"}, 50));
    const QString disk = medium("disk");
    ASSERT_TRUE(WriteFileBytes(QDir(disk).filePath("Dad.Wtp"), "other"));
    dialogs.expectMessage("Delete Files", DeleteBeforeRestoreQuestion("Auto").text, Answer::Yes);
    dialogs.expectMessage("Disk Error", RestoreFileMissingMessage().text);
    dialogs.expectMessage("Delete Files", DeleteBeforeRestoreQuestion("Auto").text, Answer::No);
    run(43, disk);
    EXPECT_EQ(program.bytesOf("Dad.Fil"), PatternRecord(1, 50));
}

TEST_F(WeightTrackerSet, ListedNamesThatLeaveTheFolderAreSkipped)
{
    const QString disk = medium("media/disk");
    ASSERT_TRUE(WriteFileBytes(QDir(disk).filePath("WeightTrker.Wtp"), QuotedLineBytes({"../escape", "ok"})));
    ASSERT_TRUE(WriteFileBytes(QDir(disk).filePath("ok.Wtp"), "fine"));
    ASSERT_TRUE(WriteFileBytes(QDir(disk).filePath("../escape.Wtp"), "bad"));
    dialogs.expectMessage("Delete Files", DeleteBeforeRestoreQuestion("Auto").text, Answer::Yes);
    EXPECT_EQ(run(43, disk), RunEnd::Completed);
    EXPECT_EQ(program.bytesOf("ok.Fil"), "fine");
    EXPECT_FALSE(QFile::exists(QDir(program.path()).filePath("../escape.Fil")));
}

TEST(WeightTrackerListFuzz, RandomListsNeverWriteOutsideTheProgramFolder)
{
    std::mt19937 random(43);
    for (int round = 0; round < 40; ++round) {
        TempProgramFolder program;
        const QDir parent(QDir(program.path()).filePath(".."));
        const QStringList before = parent.entryList({"*.Fil"}, QDir::Files);
        QTemporaryDir disk;
        ScriptedDialogs dialogs;
        RecordingProgress progress;
        const QByteArray list = RandomBytes(random, random() % 300);
        ASSERT_TRUE(WriteFileBytes(disk.filePath("WeightTrker.Wtp"), list));
        const QStringList names = ParseQuotedValues(list);
        const bool anyName = std::any_of(names.begin(), names.end(), IsSafeIndividualName);
        dialogs.expectMessage("Delete Files", DeleteBeforeRestoreQuestion("Auto").text, Answer::Yes);
        if (anyName) {
            dialogs.expectMessage("Disk Error", RestoreFileMissingMessage().text);
            dialogs.expectMessage("Delete Files", DeleteBeforeRestoreQuestion("Auto").text, Answer::No);
        }
        BackupContext context{dialogs, progress, disk.path()};
        EXPECT_EQ(RunRestore(*BackupSetFor(43, {}), context), anyName ? RunEnd::NotStarted : RunEnd::Completed);
        EXPECT_EQ(program.bytesOf("WeightTrker.Fil"), list);
        EXPECT_EQ(parent.entryList({"*.Fil"}, QDir::Files), before);
    }
}

} // namespace
