// One road through the weight tracker as a user takes it: a new individual
// is created and saved, viewed, weighed in on three days with the date
// checker in the way once, sorted, given a row and relieved of one, asked
// about unsaved changes with each answer, printed, and deleted.
#include "weighttracker_fixture.h"

#include "print/screens/printoptionspanel.h"
#include "tracker/screens/planpanel.h"

#include <QFile>
#include <QTemporaryDir>

TEST_F(WeightTrackerTest, TheWholeRoad)
{
    auto form = open();
    ASSERT_TRUE(dialogs.scriptDone());

    // Create and save a new individual.
    run(*form, "mCreate");
    form->nameField()->setText(QStringLiteral("Sam Roe"));
    emit form->nameField()->textEdited(QStringLiteral("Sam Roe"));
    for (const auto& [line, text] : {std::pair{3, "200"}, std::pair{4, "185"}}) {
        form->field(line)->setText(QString::fromLatin1(text));
        emit form->field(line)->textEdited(QString::fromLatin1(text));
    }
    dialogs.expectMessage("Save File", "File has been Saved.");
    run(*form, "mSaveNew");

    // View it and weigh in.
    run(*form, "mView");
    pick(*form, QStringLiteral("Sam Roe"));
    ASSERT_EQ(form->grid()->rowCount(), 49);
    pickDate(*form, 0, QDate(2026, 3, 1));
    typeWeight(*form, 0, QStringLiteral("200"));
    dialogs.expectMessage("Entry Error", "The Date entry Cannot Exceed the Current Date!");
    pickDate(*form, 1, QDate(2026, 5, 1));
    pickDate(*form, 1, QDate(2026, 3, 15));
    typeWeight(*form, 1, QStringLiteral("196.5"));
    pickDate(*form, 2, QDate(2026, 3, 8));
    typeWeight(*form, 2, QStringLiteral("198"));
    EXPECT_EQ(form->grid()->text(2, WeightTracker::kDifferenceColumn), "-2");

    // Sort by date: the 8th comes before the 15th, and the file is saved.
    dialogs.expectMessage("Save File Command", "File has been Saved.");
    emit form->grid()->horizontalHeader()->sectionClicked(WeightTracker::kDateColumn);
    EXPECT_EQ(fileValues(QStringLiteral("Sam Roe.Fil")).mid(12, 6),
              QStringList({"March 01, 2026", "200", "March 08, 2026", "198", "March 15, 2026", "196.5"}));
    EXPECT_EQ(form->grid()->text(2, WeightTracker::kChangeColumn), "-1.5");

    // A row more, then one less.
    dialogs.expectMessage("Add Row Command", "Row has been added to the end of the Grid and File Saved!");
    run(*form, "mAddRow");
    EXPECT_EQ(fileValues(QStringLiteral("Sam Roe.Fil")).value(0), "51");
    form->grid()->setCurrentCell(1, WeightTracker::kWeightColumn);
    dialogs.expectMessage("Delete Highlighted Entry", "Do you really want to delete the highlighted Entry?",
                          Answer::Yes);
    dialogs.expectMessage("Delete Row Command", "Row has been Deleted and File Saved");
    run(*form, "mDeleteRow");
    EXPECT_EQ(fileValues(QStringLiteral("Sam Roe.Fil")).value(0), "50");

    // Unsaved changes: Cancel stays, No drops them, Yes keeps them.
    typeWeight(*form, 1, QStringLiteral("190"));
    expectSavePrompt(Answer::Cancel);
    run(*form, "mCreate");
    EXPECT_EQ(form->model().state(), TrackerState::Loaded);
    expectSavePrompt(Answer::No);
    run(*form, "mView");
    EXPECT_EQ(fileValues(QStringLiteral("Sam Roe.Fil")).value(15), "196.5");
    pick(*form, QStringLiteral("Sam Roe"));
    typeWeight(*form, 1, QStringLiteral("184"));
    EXPECT_EQ(form->goalNote(), "GOAL");
    expectSavePrompt(Answer::Yes);
    dialogs.expectMessage("Save File Command", "File has been Saved.");
    run(*form, "mView");
    EXPECT_EQ(fileValues(QStringLiteral("Sam Roe.Fil")).value(15), "184");

    // Print it to a file.
    pick(*form, QStringLiteral("Sam Roe"));
    run(*form, "mPrint");
    QTemporaryDir pdfFolder;
    const QString pdf = pdfFolder.filePath(QStringLiteral("sam.pdf"));
    dialogs.expectPrint(pdf);
    form->printPanel()->command(PrintOptionsPanel::kPrint)->click();
    EXPECT_TRUE(QFile::exists(pdf));
    form->printPanel()->command(PrintOptionsPanel::kExitPrintOptions)->click();

    // And delete it: the list goes with it.
    dialogs.expectMessage("Delete Current File", "Do You really want to delete\nSam Roe\nfile and all its contents?",
                          Answer::Yes);
    run(*form, "mDelete");
    EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("Sam Roe.Fil"))));
    EXPECT_FALSE(QFile::exists(folder.filePath(QString::fromLatin1(kIndividualListFile))));
    EXPECT_TRUE(dialogs.scriptDone());
}
