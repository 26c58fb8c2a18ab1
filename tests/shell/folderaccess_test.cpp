// The data folder that takes no writes is said once at start.
#include "shell/logic/folderaccess.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

TEST(FolderAccess, AFolderThatTakesWritesIsQuiet)
{
    QTemporaryDir folder;
    EXPECT_TRUE(FolderTakesWrites(folder.path()));
    EXPECT_FALSE(ReadOnlyFolderWarning(folder.path()));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList()) << "the probe is gone";
}

// A file where the folder should be takes no files, whoever the user is.
TEST(FolderAccess, AFolderThatTakesNoWritesIsSaid)
{
    QTemporaryDir parent;
    const QString notAFolder = QDir(parent.path()).filePath(QStringLiteral("Brindlepot"));
    QFile file(notAFolder);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    EXPECT_FALSE(FolderTakesWrites(notAFolder));
    const std::optional<Message> warning = ReadOnlyFolderWarning(notAFolder);
    ASSERT_TRUE(warning);
    EXPECT_EQ(warning->title, "Brindlepot");
    EXPECT_EQ(warning->text,
              QStringLiteral("The data folder\n%1\ncannot be written to.\n\nBrindlepot opens so that you can read your "
                             "recipes and lists, but nothing you change can be saved until the folder can be written "
                             "to again.")
                  .arg(QDir::toNativeSeparators(notAFolder)));
    EXPECT_EQ(warning->icon, Icon::Exclamation);
}
