// One program per data folder: the first start holds the folder, a second
// asks it to come forward and ends, and a lock whose holder cannot be
// reached is said plainly.
#include "shell/screens/singleinstance.h"
#include "scratch_folder.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalServer>
#include <QLockFile>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

TEST(SingleInstance, TheFirstHoldsTheFolderAndASecondHandsOver)
{
    QTemporaryDir folder;
    SingleInstance first(folder.path());
    ASSERT_EQ(first.start(), SingleInstance::Start::First);
    EXPECT_TRUE(QFile::exists(QDir(folder.path()).filePath(QString::fromLatin1(SingleInstance::kLockFileName))));
    QSignalSpy raised(&first, &SingleInstance::raiseRequested);
    SingleInstance second(folder.path());
    EXPECT_EQ(second.start(), SingleInstance::Start::HandedOver);
    EXPECT_TRUE(raised.wait(3000));
    EXPECT_EQ(raised.count(), 1);
}

TEST(SingleInstance, ALockWhoseHolderCannotBeReachedIsAlreadyOpen)
{
    QTemporaryDir folder;
    // Held, but nobody listens: another copy that hangs, or runs elsewhere.
    QLockFile held(QDir(folder.path()).filePath(QString::fromLatin1(SingleInstance::kLockFileName)));
    ASSERT_TRUE(held.tryLock());
    SingleInstance second(folder.path());
    EXPECT_EQ(second.start(), SingleInstance::Start::AlreadyOpen);
    EXPECT_EQ(SingleInstance::alreadyOpenText(folder.path()),
              QStringLiteral("Brindlepot is already open with this folder:\n%1\n\n"
                             "Switch to the open window, or close it before starting Brindlepot again.")
                  .arg(QDir::toNativeSeparators(QFileInfo(folder.path()).canonicalFilePath())));
}

TEST(SingleInstance, ALockLeftByACrashedCopyIsTakenOver)
{
    QTemporaryDir folder;
    // A lock file naming a process that no longer runs.
    QFile stale(QDir(folder.path()).filePath(QString::fromLatin1(SingleInstance::kLockFileName)));
    ASSERT_TRUE(stale.open(QIODevice::WriteOnly));
    stale.write("999999\nbrindlepot\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    stale.close();
    SingleInstance start(folder.path());
    EXPECT_EQ(start.start(), SingleInstance::Start::First);
}

TEST(SingleInstance, TwoFoldersAreTwoPrograms)
{
    QTemporaryDir one;
    QTemporaryDir other;
    SingleInstance first(one.path());
    SingleInstance second(other.path());
    EXPECT_EQ(first.start(), SingleInstance::Start::First);
    EXPECT_EQ(second.start(), SingleInstance::Start::First);
    EXPECT_NE(SingleInstance::serverNameFor(one.path()), SingleInstance::serverNameFor(other.path()));
}

// The program itself, started twice on one data folder: the second start
// ends at once, and the first goes on.
TEST(SingleInstance, ASecondProgramOnTheSameFolderEndsAndTheFirstGoesOn)
{
    QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home.path());
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home.path() + QStringLiteral("/data"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    const QString dataFolder = home.path() + QStringLiteral("/data/Brindlepot");

    QProcess first;
    first.setProcessEnvironment(environment);
    first.start(QStringLiteral(BRINDLEPOT_EXECUTABLE), {});
    ASSERT_TRUE(first.waitForStarted());
    QElapsedTimer waited;
    waited.start();
    const QString lock = QDir(dataFolder).filePath(QString::fromLatin1(SingleInstance::kLockFileName));
    while (!QFile::exists(lock) && waited.elapsed() < 30000)
        QTest::qWait(50);
    ASSERT_TRUE(QFile::exists(lock)) << "the first program holds the folder";

    QProcess second;
    second.setProcessEnvironment(environment);
    second.start(QStringLiteral(BRINDLEPOT_EXECUTABLE), {});
    ASSERT_TRUE(second.waitForFinished(30000));
    EXPECT_EQ(second.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_EQ(first.state(), QProcess::Running);
    first.kill();
    first.waitForFinished();
}
