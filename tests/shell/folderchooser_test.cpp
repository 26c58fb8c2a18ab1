// The drive, folder and file lists, offscreen, on a folder tree of their
// own: the home folder of every test is a temporary folder, so "C:" and the
// limit of ".." are known.
#include "shell/kit/folderchooser.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListView>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <functional>

namespace {

// The folder lists fill as the file system is read: wait for them.
bool WaitFor(const std::function<bool()>& done)
{
    for (int tries = 0; tries < 500 && !done(); ++tries)
        QTest::qWait(10);
    return done();
}

QStringList Entries(const QListView* list)
{
    QStringList names;
    const QAbstractItemModel* model = list->model();
    for (int row = 0; row < model->rowCount(list->rootIndex()); ++row)
        names.append(model->index(row, 0, list->rootIndex()).data().toString());
    return names;
}

QModelIndex EntryNamed(const QListView* list, const QString& name)
{
    const QAbstractItemModel* model = list->model();
    for (int row = 0; row < model->rowCount(list->rootIndex()); ++row) {
        const QModelIndex index = model->index(row, 0, list->rootIndex());
        if (index.data().toString() == name)
            return index;
    }
    ADD_FAILURE() << "no entry " << name.toStdString() << " in " << Entries(list).join(u',').toStdString();
    return {};
}

class FolderChooserTest : public ::testing::Test {
protected:
    FolderChooserTest() : savedHome_(qgetenv("HOME"))
    {
        EXPECT_TRUE(dir_.isValid());
        home = QDir::cleanPath(dir_.path());
        qputenv("HOME", home.toLocal8Bit());
        QDir tree(home);
        for (const char* folder : {"Recipes/Old", "Backups", ".hidden"})
            EXPECT_TRUE(tree.mkpath(QString::fromLatin1(folder)));
        for (const char* file : {"Recipes/A.RC1", "Recipes/b.rc1", "Recipes/c.txt", "notes.txt"}) {
            QFile made(tree.filePath(QString::fromLatin1(file)));
            EXPECT_TRUE(made.open(QIODevice::WriteOnly));
        }
    }
    ~FolderChooserTest() override { qputenv("HOME", savedHome_); }

    QString path(const char* inHome) const { return home + u'/' + QString::fromLatin1(inHome); }

    std::unique_ptr<FolderChooserPanel> open(FolderChooserPanel::Files files = FolderChooserPanel::Files::Shown)
    {
        auto panel = std::make_unique<FolderChooserPanel>(files);
        panel->resize(600, 400);
        panel->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(panel.get()));
        return panel;
    }
    static QListView* folders(FolderChooserPanel& panel) { return panel.findChild<QListView*>("Dir1"); }
    static QListView* files(FolderChooserPanel& panel) { return panel.findChild<QListView*>("File1"); }
    static QString pathShown(FolderChooserPanel& panel) { return panel.findChild<QLabel*>("lblPath")->text(); }

    // The folder list shows exactly `expected`, once it has been read.
    static void expectFolders(FolderChooserPanel& panel, const QStringList& expected)
    {
        WaitFor([&] { return Entries(folders(panel)) == expected; });
        EXPECT_EQ(Entries(folders(panel)), expected);
    }
    static void expectFiles(FolderChooserPanel& panel, const QStringList& expected)
    {
        WaitFor([&] { return Entries(files(panel)) == expected; });
        EXPECT_EQ(Entries(files(panel)), expected);
    }
    static void enter(FolderChooserPanel& panel, const QString& name)
    {
        QListView* list = folders(panel);
        ASSERT_TRUE(WaitFor([&] { return Entries(list).contains(name); })) << name.toStdString();
        list->setCurrentIndex(EntryNamed(list, name));
        QTest::keyClick(list, Qt::Key_Return);
    }

    QString home;

private:
    QByteArray savedHome_;
    QTemporaryDir dir_;
};

} // namespace

TEST_F(FolderChooserTest, CaptionsAndNames)
{
    auto panel = open();
    QStringList captions;
    for (const char* name : {"lblDrives", "lblFolders", "lblFile", "lblPathCaption"}) {
        auto* label = panel->findChild<QLabel*>(QString::fromLatin1(name));
        ASSERT_NE(label, nullptr) << name;
        captions.append(label->text());
    }
    EXPECT_EQ(captions, (QStringList{"Drives:", "Folders:", "File:", "Path:"}));
    EXPECT_NE(panel->findChild<QComboBox*>("Drive1"), nullptr);
    EXPECT_NE(folders(*panel), nullptr);
    EXPECT_NE(files(*panel), nullptr);
    EXPECT_TRUE(files(*panel)->isVisible());
}

TEST_F(FolderChooserTest, TheDriveListStartsWithTheHomeFolderAsC)
{
    auto panel = open();
    auto* drives = panel->findChild<QComboBox*>("Drive1");
    ASSERT_GE(drives->count(), 1);
    EXPECT_EQ(drives->itemText(0), "C:");
    EXPECT_EQ(drives->itemData(0).toString(), home);
    EXPECT_EQ(drives->currentIndex(), 0);
    EXPECT_EQ(panel->folder(), home) << "it opens on C:";
    EXPECT_EQ(panel->driveRoot(), home);
}

TEST_F(FolderChooserTest, AFolderShowsItsSubfoldersAndItsPath)
{
    auto panel = open();
    panel->setFolder(home);
    expectFolders(*panel, {"Backups", "Recipes"});
    EXPECT_EQ(pathShown(*panel), QDir::toNativeSeparators(home));
}

TEST_F(FolderChooserTest, EnteringASubfolderChangesThePathAndTellsSo)
{
    auto panel = open();
    QSignalSpy changed(panel.get(), &FolderChooserPanel::folderChanged);
    enter(*panel, "Recipes");
    EXPECT_EQ(panel->folder(), path("Recipes"));
    EXPECT_EQ(pathShown(*panel), QDir::toNativeSeparators(path("Recipes")));
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed.at(0).at(0).toString(), path("Recipes"));
    expectFolders(*panel, {"..", "Old"});
}

TEST_F(FolderChooserTest, ADoubleClickEntersAFolderToo)
{
    auto panel = open();
    panel->setFolder(path("Recipes"));
    QListView* list = folders(*panel);
    ASSERT_TRUE(WaitFor([&] { return Entries(list).contains("Old"); }));
    const QPoint at = list->visualRect(EntryNamed(list, "Old")).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
    EXPECT_EQ(panel->folder(), path("Recipes/Old"));
}

TEST_F(FolderChooserTest, GoingUpStopsAtTheDrivesRoot)
{
    auto panel = open();
    panel->setFolder(path("Recipes/Old"));
    expectFolders(*panel, {".."});
    enter(*panel, "..");
    EXPECT_EQ(panel->folder(), path("Recipes"));
    enter(*panel, "..");
    EXPECT_EQ(panel->folder(), home);
    expectFolders(*panel, {"Backups", "Recipes"});
    EXPECT_FALSE(Entries(folders(*panel)).contains("..")) << "no way above C:";
}

TEST_F(FolderChooserTest, TheFileListFiltersByPatternWithCaseIgnored)
{
    auto panel = open();
    panel->setPattern("*.rc1");
    panel->setFolder(path("Recipes"));
    expectFiles(*panel, {"A.RC1", "b.rc1"});
    panel->setPattern("*.TXT");
    expectFiles(*panel, {"c.txt"});
    panel->setPattern("*.bmp;*.ico; *.Rc1 ;*.txt");
    EXPECT_EQ(panel->pattern(), "*.bmp;*.ico; *.Rc1 ;*.txt");
    expectFiles(*panel, {"A.RC1", "b.rc1", "c.txt"});
    panel->setPattern(QString());
    expectFiles(*panel, {"A.RC1", "b.rc1", "c.txt"});
    panel->setFolder(home);
    expectFiles(*panel, {"notes.txt"});
}

TEST_F(FolderChooserTest, PickingAFileReportsItsPath)
{
    auto panel = open();
    panel->setPattern("*.rc1");
    panel->setFolder(path("Recipes"));
    expectFiles(*panel, {"A.RC1", "b.rc1"});
    EXPECT_EQ(panel->selectedFile(), "");
    QSignalSpy selected(panel.get(), &FolderChooserPanel::fileSelected);
    QSignalSpy activated(panel.get(), &FolderChooserPanel::fileActivated);
    QListView* list = files(*panel);
    const QPoint at = list->visualRect(EntryNamed(list, "b.rc1")).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
    EXPECT_EQ(panel->selectedFile(), path("Recipes/b.rc1"));
    ASSERT_EQ(selected.count(), 1);
    EXPECT_EQ(selected.at(0).at(0).toString(), path("Recipes/b.rc1"));
    EXPECT_EQ(activated.count(), 0);
    QTest::keyClick(list, Qt::Key_Return);
    ASSERT_EQ(activated.count(), 1);
    EXPECT_EQ(activated.at(0).at(0).toString(), path("Recipes/b.rc1"));

    panel->setFolder(home);
    EXPECT_EQ(panel->selectedFile(), "") << "a new folder has no file picked";
}

TEST_F(FolderChooserTest, AMissingFolderFallsBackToHome)
{
    auto panel = open();
    panel->setFolder(path("Recipes"));
    QSignalSpy changed(panel.get(), &FolderChooserPanel::folderChanged);
    panel->setFolder(path("Recipes/Gone"));
    EXPECT_EQ(panel->folder(), home);
    EXPECT_EQ(pathShown(*panel), QDir::toNativeSeparators(home));
    EXPECT_EQ(changed.count(), 1);
    panel->setFolder(path("Recipes/c.txt"));
    EXPECT_EQ(panel->folder(), home) << "a file is no folder";
    panel->setFolder(QString());
    EXPECT_EQ(panel->folder(), home);
    EXPECT_EQ(changed.count(), 1) << "staying on the same folder tells nothing";
}

TEST_F(FolderChooserTest, WithoutFilesTheFileListIsHidden)
{
    auto panel = open(FolderChooserPanel::Files::Hidden);
    EXPECT_FALSE(files(*panel)->isVisible());
    EXPECT_FALSE(panel->findChild<QLabel*>("lblFile")->isVisible());
    EXPECT_TRUE(folders(*panel)->isVisible());
    EXPECT_TRUE(panel->findChild<QLabel*>("lblPath")->isVisible());
}

TEST_F(FolderChooserTest, ADriveThatCannotBeReadIsToldAndTheListsGoBackToC)
{
    auto panel = open();
    panel->setFolder(path("Recipes"));
    panel->setDrives({{QStringLiteral("C:"), home}, {QStringLiteral("/media/gone [GONE]"), path("gone")}});
    QSignalSpy unavailable(panel.get(), &FolderChooserPanel::driveUnavailable);
    auto* drives = panel->findChild<QComboBox*>("Drive1");
    drives->setCurrentIndex(1);
    emit drives->activated(1);
    EXPECT_EQ(unavailable.count(), 1);
    EXPECT_EQ(panel->folder(), home);
    EXPECT_EQ(drives->currentIndex(), 0);
    EXPECT_EQ(drives->currentText(), QStringLiteral("C:"));
}

TEST_F(FolderChooserTest, AReadableDriveIsEnteredWithoutAWord)
{
    auto panel = open();
    panel->setDrives({{QStringLiteral("C:"), home}, {QStringLiteral("Backups"), path("Backups")}});
    QSignalSpy unavailable(panel.get(), &FolderChooserPanel::driveUnavailable);
    auto* drives = panel->findChild<QComboBox*>("Drive1");
    drives->setCurrentIndex(1);
    emit drives->activated(1);
    EXPECT_EQ(unavailable.count(), 0);
    EXPECT_EQ(panel->folder(), path("Backups"));
}

TEST_F(FolderChooserTest, AFileGivenIsPickedInItsFolderOnceItIsRead)
{
    auto panel = open();
    panel->setPattern(QStringLiteral("*.rc1"));
    panel->selectFile(path("Recipes/b.rc1"));
    EXPECT_EQ(panel->folder(), path("Recipes"));
    ASSERT_TRUE(WaitFor([&] { return !panel->selectedFile().isEmpty(); }));
    EXPECT_EQ(panel->selectedFile(), path("Recipes/b.rc1"));
}
