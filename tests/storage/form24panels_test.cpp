// The storage screen's panels: the percent panel of "&Rollup" with its list
// and bar chart, and the export panel with its folder lists, name and
// messages.
#include "shell/kit/folderchooser.h"
#include "storage/screens/percentpanel.h"
#include "storage/screens/storageexportpanel.h"
#include "form24_fixture.h"

#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QDir>
#include <QFileInfo>
#include <QHorizontalBarSeries>
#include <QLabel>
#include <QListView>

namespace {

QStringList ListRow(PercentPanel* panel, int row)
{
    return panel->list()->rowTexts(row);
}

} // namespace

// ---- Rollup -------------------------------------------------------------------------------------

TEST_F(Form24Test, RollupShowsThePercentListAndItsBarsAndTurnsTheCommandsOff)
{
    auto form = openShown(StorageKind::Basic);
    form->categoryButton(2)->click();
    act(*form, "mRollup")->trigger();
    PercentPanel* panel = form->percentPanel();
    ASSERT_TRUE(panel->isVisible());
    EXPECT_EQ(form->model().category(), kAllCategory) << "the All view comes back";
    EXPECT_EQ(panel->captionLabel()->text(), "Percent of Basic Food Storage You Have For 4");
    EXPECT_EQ(panel->list()->headings(), QStringList({"Item", "Need", "On Hand", "% of Need"}));
    ASSERT_EQ(panel->list()->rowCount(), 7);
    EXPECT_EQ(ListRow(panel, 0), QStringList({"Grains", "1200 lbs", "151", "13%"}));
    EXPECT_EQ(ListRow(panel, 1), QStringList({"Dairy", "64 lbs", "0", "0%"}));
    EXPECT_EQ(ListRow(panel, 3), QStringList({"Salt", "32 lbs", "5", "16%"}));
    EXPECT_EQ(ListRow(panel, 6), QStringList({"Water", "56 gals", "0", "0%"}));

    auto* bars = qobject_cast<QBarSeries*>(panel->series());
    ASSERT_NE(bars, nullptr) << "upright bars first";
    ASSERT_EQ(bars->barSets().size(), 1);
    const QBarSet* set = bars->barSets().first();
    ASSERT_EQ(set->count(), 7);
    EXPECT_NEAR(set->at(0), 12.54, 0.01);
    EXPECT_NEAR(set->at(3), 15.625, 0.01);
    EXPECT_EQ(set->at(1), 0);

    for (const char* command : {"mSave", "mPrint", "mCopy", "mExport", "mExit", "mKindEmergency", "mPanelColor"})
        EXPECT_FALSE(act(*form, command)->isEnabled()) << command;
    for (int index = 0; index < kCategoryButtons; ++index)
        EXPECT_FALSE(form->categoryButton(index)->isEnabled()) << index;
    EXPECT_TRUE(act(*form, "mRollup")->isEnabled());

    act(*form, "mRollup")->trigger();
    EXPECT_FALSE(panel->isVisible()) << "a toggle";
    EXPECT_TRUE(act(*form, "mSave")->isEnabled());
    EXPECT_TRUE(form->categoryButton(1)->isEnabled());
}

TEST_F(Form24Test, TheBarsTurnAndTheButtonsCaptionAlternates)
{
    auto form = openShown(StorageKind::Basic);
    act(*form, "mRollup")->trigger();
    PercentPanel* panel = form->percentPanel();
    QPushButton* turn = panel->findChild<QPushButton*>("Command3_0");
    EXPECT_EQ(turn->text(), "Hori&zontal");
    turn->click();
    EXPECT_EQ(turn->text(), "&Vertical");
    EXPECT_NE(qobject_cast<QHorizontalBarSeries*>(panel->series()), nullptr);
    EXPECT_EQ(panel->series()->barSets().first()->count(), 7);
    turn->click();
    EXPECT_EQ(turn->text(), "Hori&zontal");
    EXPECT_NE(qobject_cast<QBarSeries*>(panel->series()), nullptr);
    EXPECT_EQ(panel->chart()->series().size(), 1);
}

TEST_F(Form24Test, CloseAndEscapeCloseThePercentPanel)
{
    auto form = openShown(StorageKind::Basic);
    act(*form, "mRollup")->trigger();
    QPushButton* close = form->percentPanel()->findChild<QPushButton*>("Command3_1");
    EXPECT_EQ(close->text(), "&Close");
    close->click();
    EXPECT_FALSE(form->percentPanel()->isVisible());
    EXPECT_TRUE(form->categoryButton(1)->hasFocus());
    act(*form, "mRollup")->trigger();
    form->pressEscape();
    EXPECT_FALSE(form->percentPanel()->isVisible());
    EXPECT_TRUE(form->isVisible());
}

// ---- Export ---------------------------------------------------------------------------------------

TEST_F(Form24Test, TheExportPanelShowsTheProgramFolderAndTheProposedName)
{
    auto form = openShown(StorageKind::Emergency);
    act(*form, "mExport")->trigger();
    StorageExportPanel* panel = form->exportPanel();
    ASSERT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->nameBox()->text(), "EmergencyStorage.xls");
    EXPECT_EQ(panel->chooser()->folder(), QDir::cleanPath(folder.path()));
    EXPECT_EQ(panel->chooser()->pattern(), "*.xls");
    EXPECT_EQ(panel->folderShown(), QDir::toNativeSeparators(panel->chooser()->folder()));
    QStringList texts;
    for (const QLabel* label : panel->findChildren<QLabel*>())
        texts << label->text();
    for (const char* text :
         {"A non-formatted Spreadsheet File (tab-delimited text file) will be saved in the program folder:  ",
          "With the following name:", "Note: If File already exists it will be replaced with this file!",
          "Drives:", "Folders:", "File:"})
        EXPECT_TRUE(texts.contains(QString::fromLatin1(text))) << text;
    EXPECT_EQ(panel->findChild<QPushButton*>("Command4_0")->text(), "Export File to Selected Folder");
    EXPECT_EQ(panel->findChild<QPushButton*>("Command4_1")->text(), "Close");
    EXPECT_FALSE(act(*form, "mSave")->isEnabled()) << "the screen rests while the panel is open";
}

TEST_F(Form24Test, ExportWritesTheGridAsShownAndSaysSo)
{
    auto form = openShown(StorageKind::Basic);
    form->categoryButton(4)->click();
    act(*form, "mExport")->trigger();
    dialogs.expectMessage("Export Function", "Export Completed to selected location!");
    form->exportPanel()->findChild<QPushButton*>("Command4_0")->click();
    EXPECT_TRUE(dialogs.scriptDone());
    const QByteArray expected =
        "Storage Item\tNumber In Family\tApprox. Amount Per Person\tTotal Amount Needed\tAmount On Hand\t"
        "Last Action Date (mm/dd/yy)\tLast Action Amount Added\tLast Action Amount Used\r\n"
        "Salt\t4\t8 lbs\t32 lbs\t5\t2/29/28\t5\t";
    EXPECT_EQ(folder.bytesOf("BasicStorage.xls"), expected);
}

TEST_F(Form24Test, ExportOfTheAllViewHas61LinesWithTheMarkersAsTheyAre)
{
    auto form = openShown(StorageKind::Additional);
    act(*form, "mExport")->trigger();
    dialogs.expectMessage("Export Function", "Export Completed to selected location!");
    form->exportPanel()->exportFile();
    const QList<QByteArray> lines = folder.bytesOf("AdditionalStorage.xls").split('\n');
    ASSERT_EQ(lines.size(), 61);
    EXPECT_EQ(lines[33], "Miscellaneous\t*\t*\t*\t*\t*\t*\t*\r");
    EXPECT_EQ(lines[34], "    Pi\xf1on Nuts\t4\t2 lbs\t8 lbs\t1\t\t1\t\r") << "Windows-1252";
}

TEST_F(Form24Test, AnExistingExportIsReplacedWithoutAQuestion)
{
    folder.writeBytes("EmergencyStorage.xls", QByteArray(20000, 'x'));
    auto form = openShown(StorageKind::Emergency);
    act(*form, "mExport")->trigger();
    dialogs.expectMessage("Export Function", "Export Completed to selected location!");
    form->exportPanel()->exportFile();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_TRUE(folder.bytesOf("EmergencyStorage.xls").startsWith("Storage Item\t"));
    EXPECT_LT(folder.bytesOf("EmergencyStorage.xls").size(), 20000);
}

TEST_F(Form24Test, AWrongFileNameIsRefused)
{
    auto form = openShown(StorageKind::Emergency);
    act(*form, "mExport")->trigger();
    for (const char* name : {"", "   ", "Storage.txt", "Storage.xlsx", "sub/Storage.xls", "a\\b.xls"}) {
        form->exportPanel()->nameBox()->setText(QString::fromLatin1(name));
        dialogs.expectMessage("Export Error", "File Name is Missing or Incorrect");
        form->exportPanel()->findChild<QPushButton*>("Command4_0")->click();
    }
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(QDir(folder.path()).entryList({"*.xls", "*.txt", "*.xlsx"}, QDir::Files), QStringList());
    form->exportPanel()->nameBox()->setText(" Ours.XLS ");
    dialogs.expectMessage("Export Function", "Export Completed to selected location!");
    form->exportPanel()->exportFile();
    EXPECT_TRUE(QFile::exists(folder.filePath("Ours.XLS"))) << "any case, trimmed";
}

TEST_F(Form24Test, AFileThatCannotBeCreatedIsDenied)
{
    ASSERT_TRUE(QDir().mkdir(folder.filePath("BasicStorage.xls")));
    auto form = openShown(StorageKind::Basic);
    act(*form, "mExport")->trigger();
    dialogs.expectMessage("Export Error", "Permission to create file Denied!\nFile may be in use by another program!\n"
                                          "Close other program and try exporting again");
    form->exportPanel()->exportFile();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_TRUE(QFileInfo(folder.filePath("BasicStorage.xls")).isDir());
}

TEST_F(Form24Test, ExportGoesToTheChosenFolderAndAPickedFileGivesItsName)
{
    ASSERT_TRUE(QDir().mkdir(folder.filePath("Sheets")));
    folder.writeBytes("Sheets/Old.xls", "old");
    auto form = openShown(StorageKind::Emergency);
    act(*form, "mExport")->trigger();
    StorageExportPanel* panel = form->exportPanel();
    panel->chooser()->setFolder(folder.filePath("Sheets"));
    EXPECT_EQ(panel->folderShown(), QDir::toNativeSeparators(QDir(folder.filePath("Sheets")).absolutePath()));
    emit panel->chooser()->fileSelected(folder.filePath("Sheets/Old.xls"));
    EXPECT_EQ(panel->nameBox()->text(), "Old.xls");
    dialogs.expectMessage("Export Function", "Export Completed to selected location!");
    panel->exportFile();
    EXPECT_TRUE(folder.bytesOf("Sheets/Old.xls").startsWith("Storage Item\t"));
}

TEST_F(Form24Test, WhileAPanelIsOpenTheGridTakesNoEntry)
{
    auto form = openShown(StorageKind::Basic);
    act(*form, "mExport")->trigger();
    moveTo(*form, 55, 2);
    EXPECT_EQ(form->entryRow(), 0);
    moveTo(*form, 54, 7);
    EXPECT_TRUE(dialogs.messages().isEmpty()) << "no rule runs";
    form->pressEscape();
    act(*form, "mRollup")->trigger();
    moveTo(*form, 54, 5);
    EXPECT_FALSE(form->calendar()->isOpen());
}

TEST_F(Form24Test, CloseAndEscapeCloseTheExportPanel)
{
    auto form = openShown(StorageKind::Emergency);
    act(*form, "mExport")->trigger();
    form->exportPanel()->findChild<QPushButton*>("Command4_1")->click();
    EXPECT_FALSE(form->exportPanel()->isVisible());
    EXPECT_TRUE(act(*form, "mSave")->isEnabled());
    act(*form, "mExport")->trigger();
    form->pressEscape();
    EXPECT_FALSE(form->exportPanel()->isVisible());
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(dialogs.messages().isEmpty());
}
