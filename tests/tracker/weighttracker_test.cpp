// The weight tracker screen: its three states, the file commands with their
// messages, the save prompt, the fields' rules, and how it is opened.
#include "tracker_fixture.h"
#include "weighttracker_fixture.h"

#include "common/writefailure.h"
#include "shell/logic/processvalues.h"
#include "shell/screens/screenmetrics.h"
#include "shell/screens/startfrm.h"
#include "tracker/screens/planpanel.h"
#include "tracker/screens/weightgraphpanel.h"
#include "command_doors.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSignalSpy>

namespace {

class LargeScreen final : public ScreenMetrics {
public:
    QSize sizeTwips() const override { return {28800, 16200}; }
};

QString Caption(WeightTracker& form)
{
    return form.findChild<QLabel*>(QStringLiteral("Label1"))->text();
}

} // namespace

// ---- Opening ------------------------------------------------------------------------------

TEST_F(WeightTrackerTest, TheMainScreensWeightTrackerButtonOpensTheWeightTracker)
{
    Process().SplashShown = true;
    LargeScreen screen;
    Startfrm main(dialogs, screen);
    main.registerActivity(MainCommand::WeightTracker, [this] {
        expectNoFiles();
        return new WeightTracker(dialogs);
    });
    QPushButton* button = nullptr;
    for (QPushButton* each : main.findChildren<QPushButton*>())
        if (each->text() == "&Weight Tracker")
            button = each;
    ASSERT_NE(button, nullptr);
    button->click();
    WeightTracker* form = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* found = qobject_cast<WeightTracker*>(window); found && found->isVisible())
            form = found;
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->windowTitle(), "Weight Tracker");
    QSignalSpy closed(form, &ActivityWindow::closed);
    form->close();
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(WeightTrackerTest, EveryCommandHasItsCaptionsAndDoors)
{
    storePat();
    auto form = open();
    ExpectDoors(*form, {
                           {"mView", "&View Existing File", "&View Existing File", true},
                           {"mCreate", "&Create New File", "&Create New File", true},
                           {"mSaveNew", "&Save New File", "&Save New File", false},
                           {"mSave", "&Save", "&Save", true},
                           {"mDelete", "&Delete Displayed File", "&Delete Displayed File", false},
                           {"mWeighIns", "View &Weight Tracker", "View &Weight Tracker", true},
                           {"mPlan", "View Exercise P&lan", "View Exercise P&lan", true},
                           {"mGraph", "&Graph Display", "&Graph Display", true},
                           {"mPrint", "&Print Options", "&Print Options", true},
                           {"mAddRow", "&Add Additional Row", "&Add Additional Row", false},
                           {"mDeleteRow", "Delete Selected Row", "Delete Selected Row", false},
                           {"mDateChecker", "Turn OFF Date Checker", "", false},
                           {"mTrend", "Turn Trend Display OFF", "Turn Trend Display OFF", false},
                       });
}

TEST_F(WeightTrackerTest, WithNoIndividualItOpensSayingNoFilesFound)
{
    auto form = open();
    EXPECT_EQ(dialogs.messages().size(), 1);
    EXPECT_TRUE(act(*form, "mCreate")->isEnabled());
    EXPECT_FALSE(act(*form, "mSave")->isEnabled());
    EXPECT_FALSE(act(*form, "mWeighIns")->isEnabled());
    EXPECT_EQ(form->model().state(), TrackerState::Nothing);
}

TEST_F(WeightTrackerTest, ItOpensOnTheListWithNoNameChosen)
{
    storePat();
    auto form = open();
    EXPECT_TRUE(dialogs.messages().isEmpty());
    EXPECT_EQ(Caption(*form), "Select Individual:");
    EXPECT_FALSE(form->nameList()->isHidden());
    EXPECT_TRUE(form->nameField()->isHidden());
    EXPECT_EQ(form->nameList()->count(), 1);
    EXPECT_EQ(form->nameList()->currentIndex(), -1);
    for (const char* name : {"mWeighIns", "mPlan", "mGraph", "mPrint", "mAddRow", "mDeleteRow", "mSaveNew"})
        EXPECT_FALSE(act(*form, name)->isEnabled()) << name;
    dialogs.expectMessage("Select Individual Name", "Please Select a Name First!");
    run(*form, "mSave");
    dialogs.expectMessage("Select Individual Name", "Please Select a Name First!");
    run(*form, "mDelete");
    EXPECT_TRUE(dialogs.scriptDone());
}

// ---- Create and Save New File ----------------------------------------------------------

TEST_F(WeightTrackerTest, CreateNewFileShowsTheNameFieldTheNoteAndSaveNewFile)
{
    auto form = open();
    run(*form, "mCreate");
    EXPECT_EQ(Caption(*form), "Enter File Name:");
    EXPECT_FALSE(form->nameField()->isHidden());
    EXPECT_TRUE(form->nameList()->isHidden());
    const auto* note = form->findChild<QLabel*>(QStringLiteral("lblNote"));
    EXPECT_FALSE(note->isHidden());
    EXPECT_EQ(note->text(), "NOTE: To track weight by calendar year add year to end of Name (i.e. John Smith 2012)");
    EXPECT_TRUE(act(*form, "mSaveNew")->isEnabled());
    EXPECT_FALSE(act(*form, "mCreate")->isEnabled());
    EXPECT_FALSE(act(*form, "mWeighIns")->isEnabled());
    EXPECT_EQ(form->field(8)->text(), "Date Photo Taken");
    EXPECT_EQ(form->field(9)->text(), "Date Photo Taken");
}

TEST_F(WeightTrackerTest, ANameOf25CharactersIsTakenThe26thIsRefused)
{
    auto form = openShown(open());
    run(*form, "mCreate");
    type(form->nameField(), QString(26, u'a'));
    EXPECT_EQ(form->nameField()->text(), QString(25, u'a'));
}

TEST_F(WeightTrackerTest, SaveNewFileWithoutANameAsksForOne)
{
    auto form = open();
    run(*form, "mCreate");
    dialogs.expectMessage("No Files Found", "Please Enter Individual Name to save file.");
    run(*form, "mSaveNew");
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_FALSE(QFile::exists(folder.filePath(QString::fromLatin1(kIndividualListFile))));
}

TEST_F(WeightTrackerTest, SaveNewFileRefusesANameThatCannotBeAFile)
{
    auto form = open();
    run(*form, "mCreate");
    const QByteArray settings = folder.bytesOf(QStringLiteral("GColor1.Fil"));
    form->nameField()->setText(QStringLiteral("GColor1"));
    dialogs.expectMessage("Individual Name",
                          "A name cannot hold / or \\ or control characters, nor be the name of one of the program's "
                          "own files.\nPlease enter another name.");
    run(*form, "mSaveNew");
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(folder.bytesOf(QStringLiteral("GColor1.Fil")), settings);
    EXPECT_FALSE(QFile::exists(folder.filePath(QString::fromLatin1(kIndividualListFile))));
}

TEST_F(WeightTrackerTest, SaveNewFileWritesTwelveLinesAndTheList)
{
    auto form = openShown(open());
    run(*form, "mCreate");
    type(form->nameField(), QStringLiteral("Kim Lee "));
    type(form->field(3), QStringLiteral("190"));
    type(form->field(4), QStringLiteral("170"));
    dialogs.expectMessage("Save File", "File has been Saved.");
    run(*form, "mSaveNew");
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(folder.bytesOf(QStringLiteral("Kim Lee.Fil")),
              QuotedLines({"50", "", "190", "170", "", "", "", "Date Photo Taken", "Date Photo Taken", "", "", ""}));
    EXPECT_EQ(folder.bytesOf(QString::fromLatin1(kIndividualListFile)), QuotedLines({"Kim Lee"}));
    EXPECT_FALSE(form->model().changed());
    EXPECT_EQ(Caption(*form), "Enter File Name:") << "the form stays in the creating state";

    run(*form, "mView");
    pick(*form, QStringLiteral("Kim Lee"));
    EXPECT_EQ(form->grid()->rowCount(), 49);
    EXPECT_EQ(form->field(3)->text(), "190");
}

TEST_F(WeightTrackerTest, AFailedSaveNewFileSaysSoAndKeepsTheEntries)
{
    auto form = open();
    run(*form, "mCreate");
    form->nameField()->setText(QStringLiteral("Kim"));
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("Kim.Fil")));
    dialogs.expectMessage(WriteFailedMessage(QStringLiteral("Kim.Fil")).title,
                          WriteFailedMessage(QStringLiteral("Kim.Fil")).text);
    run(*form, "mSaveNew");
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_TRUE(form->model().changed());
    EXPECT_FALSE(QFile::exists(folder.filePath(QString::fromLatin1(kIndividualListFile))));
}

// ---- Load, Save and Delete ---------------------------------------------------------------------

TEST_F(WeightTrackerTest, PickingANameLoadsTheIndividual)
{
    auto form = openPat();
    EXPECT_EQ(form->model().state(), TrackerState::Loaded);
    EXPECT_EQ(form->field(2)->text(), "March 02, 2026");
    EXPECT_EQ(form->field(3)->text(), "210.5");
    EXPECT_EQ(form->grid()->rowCount(), 3);
    EXPECT_EQ(form->grid()->horizontalHeaderItem(WeightTracker::kDateColumn)->text(), "Sort");
    EXPECT_EQ(form->grid()->text(0, WeightTracker::kChangeColumn), "N/A");
    EXPECT_EQ(form->grid()->text(2, WeightTracker::kWeightColumn), "207");
    EXPECT_TRUE(form->weighInsShown());
    EXPECT_FALSE(form->model().changed());
    for (const char* name : {"mWeighIns", "mPlan", "mGraph", "mPrint", "mAddRow", "mDeleteRow", "mSave", "mDelete"})
        EXPECT_TRUE(act(*form, name)->isEnabled()) << name;
    EXPECT_TRUE(form->graphPanel()->isHidden());
}

TEST_F(WeightTrackerTest, SavingWithNoChangeSaysSoAndDoesNotTouchTheFile)
{
    auto form = openPat();
    const QDateTime before = QFileInfo(folder.filePath(kPatFile)).lastModified();
    folder.writeBytes(kPatFile, folder.bytesOf(kPatFile) + "x");
    dialogs.expectMessage("Save Command", "There have been no entries/changes made to save!");
    run(*form, "mSave");
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_TRUE(folder.bytesOf(kPatFile).endsWith("x"));
    EXPECT_TRUE(before.isValid());
}

TEST_F(WeightTrackerTest, SaveWritesTheFileAndSaysSo)
{
    auto form = openPat();
    typeWeight(*form, 1, QStringLiteral("208"));
    EXPECT_TRUE(form->model().changed());
    dialogs.expectMessage("Save File Command", "File has been Saved.");
    run(*form, "mSave");
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(fileValues().mid(12), QStringList({"March 02, 2026", "210.5", "", "208", "March 16, 2026", "207"}));
    EXPECT_FALSE(form->model().changed());
}

TEST_F(WeightTrackerTest, AFailedSaveSaysSoAndKeepsTheChange)
{
    auto form = openPat();
    typeWeight(*form, 2, QStringLiteral("205"));
    QFile::remove(folder.filePath(kPatFile));
    ASSERT_TRUE(QDir(folder.path()).mkdir(kPatFile));
    const QByteArray list = folder.bytesOf(QString::fromLatin1(kIndividualListFile));
    dialogs.expectMessage(WriteFailedMessage(kPatFile).title, WriteFailedMessage(kPatFile).text);
    run(*form, "mSave");
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_TRUE(form->model().changed());
    EXPECT_EQ(form->grid()->text(2, WeightTracker::kWeightColumn), "205");
    EXPECT_EQ(folder.bytesOf(QString::fromLatin1(kIndividualListFile)), list);
}

TEST_F(WeightTrackerTest, DeleteAsksWithNoAsDefaultAndTheNameCutTo30)
{
    const QString longName = QStringLiteral("Alexandra Montgomery-Smithson 2026");
    folder.writeBytes(longName + ".Fil", QuotedLines({"3"}));
    folder.writeBytes(QString::fromLatin1(kIndividualListFile), QuotedLines({longName}));
    auto form = open();
    pick(*form, longName);
    dialogs.expectMessage("Delete Current File",
                          "Do You really want to delete\nAlexandra Montgomery-Smithson\nfile and all its contents?",
                          Answer::No);
    run(*form, "mDelete");
    ASSERT_EQ(dialogs.messages().size(), 1);
    EXPECT_EQ(dialogs.messages()[0].buttons, Buttons::YesNoCancel);
    EXPECT_EQ(dialogs.messages()[0].defaultButton, 2);
    EXPECT_TRUE(QFile::exists(folder.filePath(longName + ".Fil")));
}

TEST_F(WeightTrackerTest, DeletingTheLastIndividualLeavesNoListAndViewSaysNoFilesFound)
{
    auto form = openPat();
    dialogs.expectMessage("Delete Current File", "Do You really want to delete\nPat Doe\nfile and all its contents?",
                          Answer::Yes);
    run(*form, "mDelete");
    EXPECT_FALSE(QFile::exists(folder.filePath(kPatFile)));
    EXPECT_FALSE(QFile::exists(folder.filePath(QString::fromLatin1(kIndividualListFile))));
    EXPECT_EQ(form->field(3)->text(), "");
    expectNoFiles();
    run(*form, "mView");
    EXPECT_TRUE(dialogs.scriptDone());
}

// ---- The save prompt -------------------------------------------------------------------------

TEST_F(WeightTrackerTest, TheSavePromptYesSavesThenGoesOn)
{
    auto form = openPat();
    typeWeight(*form, 1, QStringLiteral("209"));
    expectSavePrompt(Answer::Yes);
    dialogs.expectMessage("Save File Command", "File has been Saved.");
    run(*form, "mCreate");
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(fileValues().value(15), "209");
    EXPECT_EQ(form->model().state(), TrackerState::Creating);
}

TEST_F(WeightTrackerTest, TheSavePromptNoDropsTheChangesAndGoesOn)
{
    auto form = openPat();
    typeWeight(*form, 1, QStringLiteral("209"));
    expectSavePrompt(Answer::No);
    run(*form, "mCreate");
    EXPECT_EQ(fileValues().value(15), "");
    EXPECT_EQ(form->model().state(), TrackerState::Creating);
}

TEST_F(WeightTrackerTest, TheSavePromptCancelStays)
{
    auto form = openPat();
    typeWeight(*form, 1, QStringLiteral("209"));
    expectSavePrompt(Answer::Cancel);
    run(*form, "mView");
    EXPECT_EQ(form->model().state(), TrackerState::Loaded);
    EXPECT_TRUE(form->model().changed());
    expectSavePrompt(Answer::Cancel);
    EXPECT_FALSE(form->close());
}

TEST_F(WeightTrackerTest, TheSavePromptYesWhileCreatingSavesAsANewFile)
{
    auto form = open();
    run(*form, "mCreate");
    form->nameField()->setText(QStringLiteral("Kim"));
    form->field(3)->setText(QStringLiteral("190"));
    emit form->field(3)->textEdited(QStringLiteral("190"));
    expectSavePrompt(Answer::Yes);
    dialogs.expectMessage("Save File", "File has been Saved.");
    run(*form, "mView");
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(fileValues(QStringLiteral("Kim.Fil")).value(2), "190");
    EXPECT_EQ(Caption(*form), "Select Individual:");
}

TEST_F(WeightTrackerTest, NoPromptWithoutChangesOrWithAnEmptyForm)
{
    auto form = open();
    run(*form, "mCreate");
    form->nameField()->setText(QString());
    emit form->nameField()->textEdited(QString());
    EXPECT_TRUE(form->model().changed());
    expectNoFiles();
    run(*form, "mView");
    EXPECT_TRUE(dialogs.scriptDone());
}

// ---- Fields ---------------------------------------------------------------------------------

TEST_F(WeightTrackerTest, WeightAndDaysFieldsTakeOnlyTheirCharactersOtherFieldsRefuseTheQuote)
{
    auto form = openShown(openPat());
    form->field(3)->clear();
    type(form->field(3), QStringLiteral("+1-5a,/."));
    EXPECT_EQ(form->field(3)->text(), "+15,/.");
    EXPECT_EQ(form->model().fields().beginningWeight, "+15,/.");
    form->field(4)->clear();
    type(form->field(4), QStringLiteral("1+2"));
    EXPECT_EQ(form->field(4)->text(), "12");
    form->field(2)->clear();
    type(form->field(2), QStringLiteral("May \"1\""));
    EXPECT_EQ(form->field(2)->text(), "May 1");
    EXPECT_TRUE(form->model().changed());
    run(*form, "mPlan");
    form->field(5)->clear();
    type(form->field(5), QStringLiteral("3x"));
    EXPECT_EQ(form->field(5)->text(), "3");
    form->field(7)->clear();
    type(form->field(7), QStringLiteral("Swim -2 \""));
    EXPECT_EQ(form->field(7)->text(), "Swim -2 ");
}

TEST_F(WeightTrackerTest, EnterMovesWithinThePanelAndIsSwallowed)
{
    auto form = openShown(openPat());
    form->field(2)->setFocus();
    QTest::keyClick(form->field(2), Qt::Key_Return);
    EXPECT_TRUE(form->field(3)->hasFocus());
    QTest::keyClick(form->field(3), Qt::Key_Return);
    EXPECT_TRUE(form->field(4)->hasFocus());
    QTest::keyClick(form->field(4), Qt::Key_Return);
    EXPECT_TRUE(form->grid()->hasFocus()) << "the weigh-ins are up";
    run(*form, "mPlan");
    form->field(5)->setFocus();
    QTest::keyClick(form->field(5), Qt::Key_Return);
    EXPECT_TRUE(form->field(6)->hasFocus());
    EXPECT_EQ(form->field(5)->text(), "3");
}

TEST_F(WeightTrackerTest, EnterOnTheGoalWeightStaysThereWhileCreating)
{
    auto form = openShown(open());
    run(*form, "mCreate");
    form->field(4)->setFocus();
    QTest::keyClick(form->field(4), Qt::Key_Return);
    EXPECT_TRUE(form->field(4)->hasFocus());
}

TEST_F(WeightTrackerTest, HelpIsTopic1060)
{
    EXPECT_EQ(WeightTracker::kHelpTopic, 1060);
    QFile page(":/help/1060.html");
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    EXPECT_TRUE(page.readAll().contains("Weight Tracker"));
}
