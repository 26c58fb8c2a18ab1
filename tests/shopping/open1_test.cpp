// Open1, the chooser of a saved shopping list: the list files of the program
// folder in any case, a typed name, the message for a missing file, and the
// word "Nothing" when there is no list.
#include "shopping/screens/open1.h"

#include "scripted_dialogs.h"
#include "temp_program_folder.h"

#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include <gtest/gtest.h>

namespace {

const QString kMissing = "This File cannot be found.\nMake sure that you have specified the correct filename.";

class Open1Test : public ::testing::Test {
protected:
    void lists(std::initializer_list<const char*> names)
    {
        for (const char* name : names)
            folder.writeBytes(name, "\"\"\r\n");
    }

    TempProgramFolder folder;
    ScriptedDialogs dialogs;
};

} // namespace

TEST_F(Open1Test, ItsCaptionSaysWhatTheChoiceIsFor)
{
    EXPECT_EQ(Open1(dialogs, ListChoice::Open).windowTitle(), "Open Shopping List File - (*.lst)");
    EXPECT_EQ(Open1(dialogs, ListChoice::Delete).windowTitle(), "Delete Shopping List File - (*.lst)");
    EXPECT_EQ(Open1(dialogs, ListChoice::Open).objectName(), "Open1");
}

TEST_F(Open1Test, ItListsTheLstFilesInAnyCase)
{
    lists({"15Nov26.Lst", "01JAN27.LST", "notes.txt", "03feb27.lst"});
    const Open1 chooser(dialogs, ListChoice::Open);
    QStringList shown;
    for (int row = 0; row < chooser.fileList()->count(); ++row)
        shown.append(chooser.fileList()->item(row)->text());
    EXPECT_EQ(shown, QStringList({"01JAN27.LST", "03feb27.lst", "15Nov26.Lst"}));
}

TEST_F(Open1Test, APickedFileAndOkChooseIt)
{
    lists({"15Nov26.Lst", "16Nov26.Lst"});
    Open1 chooser(dialogs, ListChoice::Delete);
    chooser.fileList()->setCurrentRow(1);
    EXPECT_EQ(chooser.nameBox()->text(), "16Nov26.Lst");
    chooser.okButton()->click();
    EXPECT_EQ(chooser.result(), QDialog::Accepted);
    EXPECT_EQ(chooser.chosen(), "16Nov26.Lst");
}

TEST_F(Open1Test, ATypedNameIsFoundInAnyCaseAndWithoutItsExtension)
{
    lists({"15Nov26.Lst"});
    Open1 chooser(dialogs, ListChoice::Open);
    chooser.nameBox()->setText("15NOV26");
    chooser.okButton()->click();
    EXPECT_EQ(chooser.chosen(), "15Nov26.Lst");
}

TEST_F(Open1Test, AMissingTypedNameTellsTheUserAndTheChooserStays)
{
    lists({"15Nov26.Lst"});
    Open1 chooser(dialogs, ListChoice::Open);
    chooser.nameBox()->setText("24Dec26.Lst");
    dialogs.expectMessage("Open Shopping List File - (*.lst)", kMissing);
    chooser.okButton()->click();
    EXPECT_EQ(dialogs.messages().last().icon, Icon::Exclamation);
    EXPECT_TRUE(chooser.chosen().isEmpty());
    EXPECT_NE(chooser.result(), QDialog::Accepted);
    ASSERT_TRUE(QDir().mkdir("25Dec26.Lst"));
    chooser.nameBox()->setText("25Dec26.Lst");
    dialogs.expectMessage("Open Shopping List File - (*.lst)", kMissing);
    chooser.okButton()->click();
}

TEST_F(Open1Test, CancelChoosesNothing)
{
    lists({"15Nov26.Lst"});
    Open1 chooser(dialogs, ListChoice::Open);
    chooser.fileList()->setCurrentRow(0);
    chooser.cancelButton()->click();
    EXPECT_EQ(chooser.result(), QDialog::Rejected);
    EXPECT_TRUE(chooser.chosen().isEmpty());
}

TEST_F(Open1Test, WithoutAnyListTheChooserAnswersNothingAndShowsNoWindow)
{
    lists({});
    folder.writeBytes("LISTNAME.Fil", "\"Tea\"\r\n");
    Open1Chooser chooser(dialogs, nullptr);
    EXPECT_EQ(chooser.chooseList(ListChoice::Open), "Nothing");
    EXPECT_EQ(chooser.chooseList(ListChoice::Delete), "Nothing");
}
