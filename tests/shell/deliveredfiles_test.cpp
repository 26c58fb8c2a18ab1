// The first run: the delivered file set lands in a new program folder.
#include "common/programfolder.h"
#include "shell/logic/deliveredfiles.h"
#include "shell/settings/settingsslots.h"
#include "temp_program_folder.h"
#include "raw_slots.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <gtest/gtest.h>

namespace {
QStringList DeliveredNames()
{
    QStringList names;
    QDirIterator it(":/delivered", QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        names << it.next().mid(QStringLiteral(":/delivered/").size());
    return names;
}
} // namespace

TEST(DeliveredFiles, TheSetHoldsEverythingTheProgramReads)
{
    const QStringList names = DeliveredNames();
    for (int i = 1; i <= 16; ++i)
        EXPECT_TRUE(names.contains(QStringLiteral("WP%1.jpg").arg(i))) << i;
    for (const char* name : {"Splash.jpg", "About.jpg", "1.ico", "2.ico", "Sad1.ico", "Menu1.Fil", "Menu2.Fil", "Menu3.Fil"})
        EXPECT_TRUE(names.contains(QString::fromLatin1(name))) << name;
}

TEST(DeliveredFiles, PicturesAndIconsAreReadable)
{
    for (int i = 1; i <= 16; ++i)
        EXPECT_FALSE(QImage(QStringLiteral(":/delivered/WP%1.jpg").arg(i)).isNull()) << i;
    for (const char* name : {"Splash.jpg", "About.jpg", "1.ico", "2.ico", "Sad1.ico"})
        EXPECT_FALSE(QImage(QStringLiteral(":/delivered/") + QLatin1String(name)).isNull()) << name;
}

TEST(DeliveredFiles, FirstRunFillsAnEmptyFolder)
{
    TempProgramFolder folder;
    const QString target = folder.filePath("data");
    const int made = InstallDeliveredFiles(target);
    EXPECT_EQ(made, DeliveredNames().size() + 1) << "every delivered file and GColor4.Fil";
    for (const QString& name : DeliveredNames())
        EXPECT_TRUE(QFile::exists(QDir(target).filePath(name))) << name.toStdString();
    QFile gcolor4(QDir(target).filePath("GColor4.Fil"));
    ASSERT_TRUE(gcolor4.open(QIODevice::ReadOnly));
    EXPECT_EQ(gcolor4.readAll(), QByteArray("\x02\x00 1", 4) + QByteArray(36, '\0'));
    EXPECT_TRUE(QFileInfo(QDir(target).filePath("WP1.jpg")).isWritable());
}

TEST(DeliveredFiles, ExistingFilesAreNeverOverwritten)
{
    TempProgramFolder folder;
    folder.writeBytes("WP1.jpg", "the family's own picture");
    folder.writeBytes("GColor4.Fil", QByteArray("\x02\x00 4", 4));
    InstallDeliveredFiles(folder.path());
    EXPECT_EQ(folder.bytesOf("WP1.jpg"), "the family's own picture");
    EXPECT_EQ(folder.bytesOf("GColor4.Fil"), QByteArray("\x02\x00 4", 4));
    EXPECT_EQ(InstallDeliveredFiles(folder.path()), 0) << "a second run makes nothing";
}

TEST(DeliveredFiles, OldFilesInAnyCaseAreUsedAsTheyAre)
{
    TempProgramFolder folder;
    folder.writeBytes("gcolor4.fil", QByteArray("\x02\x00 7", 4));
    folder.writeBytes("MENU1.FIL", "\"Grandma's porridge\"\r\n");
    folder.writeBytes("wp2.JPG", "old picture");
    InstallDeliveredFiles(folder.path());
    EXPECT_FALSE(QFile::exists(folder.filePath("GColor4.Fil")));
    EXPECT_FALSE(QFile::exists(folder.filePath("Menu1.Fil")));
    EXPECT_FALSE(QFile::exists(folder.filePath("WP2.jpg")));
    EXPECT_EQ(folder.bytesOf("MENU1.FIL"), "\"Grandma's porridge\"\r\n");
    EXPECT_EQ(ReadSlotText(GColor4, 1), " 7");
}

TEST(ProgramFolder, AFolderWithOldDataFilesInAnyCaseIsAProgramFolder)
{
    TempProgramFolder folder;
    EXPECT_FALSE(FolderHoldsProgramData(folder.path()));
    folder.writeBytes("RECIPE2.DB1", "");
    EXPECT_TRUE(FolderHoldsProgramData(folder.path()));
}
