// The recipe screen's backup and restore entries, through Backup1.
#include "backup/logic/backupmessages.h"
#include "backup/logic/backuptexts.h"
#include "backup/screens/backup1.h"
#include "../recipetools/form5_fixture.h"

#include <QApplication>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

namespace {

const QString kType = QStringLiteral("Appetizers and beverages");

class Form5Backup : public Form5Test {
protected:
    // Gives the screen a backup opener that works Backup1 as a user would:
    // the folder `disk`, the run button, then Exit.
    void connectBackup(Form5& form, const QString& disk)
    {
        form.setBackupOpener([this, &form, disk](int mode, int cookbook) {
            opened << mode;
            QTimer::singleShot(0, [disk] {
                auto* screen = qobject_cast<Backup1*>(QApplication::activeModalWidget());
                ASSERT_NE(screen, nullptr);
                screen->setFolder(disk);
                screen->findChild<QPushButton*>("Command1")->click();
                screen->findChild<QPushButton*>("Command2")->click();
            });
            return RunBackup1(&form, dialogs, mode, {cookbook, 0});
        });
    }
    QStringList pickEntries(Form5& form)
    {
        QStringList entries;
        for (int i = 0; i < fields(form)->pickList()->count(); ++i)
            entries << fields(form)->pickList()->itemText(i);
        return entries;
    }

    QTemporaryDir media;
    QList<int> opened;
};

TEST_F(Form5Backup, WithoutABackupScreenBothEntriesStayOff)
{
    auto form = open();
    EXPECT_FALSE(act(*form, "mBackup")->isEnabled());
    EXPECT_FALSE(act(*form, "mRestore")->isEnabled());
}

TEST_F(Form5Backup, BackUpLoseARecipeRestoreAndSeeItBack)
{
    auto form = open();
    connectBackup(*form, media.path());
    EXPECT_TRUE(act(*form, "mBackup")->isEnabled());
    saveQuickRecipe(*form, kType, "Lemonade");
    dialogs.expectMessage("Delete Files", DeleteBeforeBackupQuestion("Recipe", TargetPath(media.path())).text,
                          Answer::Yes);
    act(*form, "mBackup")->trigger();
    ASSERT_TRUE(QFile::exists(QDir(media.path()).filePath("Recipe2.bk1")));

    for (const QString& name : QDir(folder.path()).entryList({"*.db1"}, QDir::Files))
        QFile::remove(folder.filePath(name));
    Choose(fields(*form)->typeList(), kType);
    ASSERT_FALSE(pickEntries(*form).contains("Lemonade"));

    dialogs.expectMessage("Delete Files", DeleteBeforeRestoreQuestion("Recipe").text, Answer::Yes);
    act(*form, "mRestore")->trigger();
    EXPECT_EQ(opened, (QList<int>{0, 1}));
    Choose(fields(*form)->typeList(), kType);
    EXPECT_TRUE(pickEntries(*form).contains("Lemonade"));
    EXPECT_EQ(form->mode(), RecipeMode::Idle);
    EXPECT_TRUE(dialogs.scriptDone());
}

TEST_F(Form5Backup, RestoreAsksTheSaveQuestionFirstAndCancelOpensNothing)
{
    auto form = open();
    connectBackup(*form, media.path());
    startRecipe(*form, kType, "Half typed");
    dialogs.expectMessage("Recipe File", "Save Current Recipe before next action or exiting?", Answer::Cancel);
    act(*form, "mRestore")->trigger();
    EXPECT_TRUE(opened.isEmpty());
    EXPECT_EQ(form->mode(), RecipeMode::Create);
}

} // namespace
