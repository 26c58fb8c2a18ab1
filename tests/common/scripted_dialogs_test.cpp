// The scripted dialogs that screen tests run on: the folder chooser.
#include "scripted_dialogs.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

TEST(ScriptedDialogs, AnExpectedFolderChooserGivesItsReplyAndIsRecorded)
{
    ScriptedDialogs dialogs;
    dialogs.expectFolder(QStringLiteral("/media/stick/Recipes"));
    dialogs.expectFolder(std::nullopt);
    EXPECT_EQ(dialogs.chooseFolder({"Backup Recipes to Disk", "/home/anna"}), "/media/stick/Recipes");
    EXPECT_EQ(dialogs.chooseFolder({"Restore Recipes", "/media/stick"}), std::nullopt);
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(dialogs.folderRequests(), (QList<FolderRequest>{{"Backup Recipes to Disk", "/home/anna"},
                                                              {"Restore Recipes", "/media/stick"}}));
}

TEST(ScriptedDialogs, AFolderChooserOutOfTurnFailsTheTest)
{
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedDialogs dialogs;
            EXPECT_EQ(dialogs.chooseFolder({"Export", "/home/anna"}), std::nullopt);
        },
        "unexpected folder chooser \"Export\"");
}
