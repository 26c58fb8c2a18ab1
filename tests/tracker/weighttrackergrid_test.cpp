// The weigh-in grid on the screen: typing, the calendar and the date
// checker, the trend pictures and their switch, rows, and the sorts.
#include "weighttracker_fixture.h"

#include "raw_slots.h"
#include "shell/settings/settingsregistry.h"

#include <QFile>
#include <QLabel>
#include <QMenu>

namespace {

QString PictureOf(WeightTracker& form, int index)
{
    return form.trendPicture(index)->property("pictureFile").toString();
}

} // namespace

TEST_F(WeightTrackerTest, CellsShowOneDecimalAndKeepTheTypedText)
{
    auto form = openPat();
    typeWeight(*form, 2, QStringLiteral("207"));
    EXPECT_EQ(form->grid()->text(2, WeightTracker::kWeightColumn), "207");
    EXPECT_EQ(form->grid()->shownText(2, WeightTracker::kWeightColumn), "207.");
    EXPECT_EQ(form->grid()->shownText(0, WeightTracker::kDifferenceColumn), ".");
    EXPECT_EQ(form->grid()->shownText(0, WeightTracker::kChangeColumn), "N/A");
    EXPECT_EQ(form->grid()->shownText(2, WeightTracker::kDifferenceColumn), "-3.5");
    EXPECT_EQ(form->model().rows()[2].weight, "207");
}

TEST_F(WeightTrackerTest, ADoubleQuoteCannotBeTypedIntoAWeight)
{
    auto form = openPat();
    typeWeight(*form, 2, QStringLiteral("20\"7"));
    EXPECT_EQ(form->model().rows()[2].weight, "207");
    EXPECT_EQ(form->grid()->text(2, WeightTracker::kWeightColumn), "207");
}

TEST_F(WeightTrackerTest, OnlyTheWeightColumnIsTypedIntoAndTheComputedColumnsSendTheCursorBack)
{
    auto form = openPat();
    EXPECT_TRUE(form->grid()->isColumnEditable(WeightTracker::kWeightColumn));
    EXPECT_FALSE(form->grid()->isColumnEditable(WeightTracker::kDateColumn));
    EXPECT_FALSE(form->grid()->isColumnEditable(WeightTracker::kChangeColumn));
    form->grid()->setCurrentCell(1, WeightTracker::kChangeColumn);
    EXPECT_EQ(form->grid()->currentColumn(), WeightTracker::kWeightColumn);
    form->grid()->setCurrentCell(2, WeightTracker::kDifferenceColumn);
    EXPECT_EQ(form->grid()->currentColumn(), WeightTracker::kWeightColumn);
}

TEST_F(WeightTrackerTest, ATypedWeightWorksTheColumnsOutBoldWhenNegative)
{
    auto form = openPat();
    typeWeight(*form, 2, QStringLiteral("212"));
    EXPECT_EQ(form->grid()->text(2, WeightTracker::kDifferenceColumn), "1.5");
    EXPECT_FALSE(form->grid()->isBold(2, WeightTracker::kDifferenceColumn));
    typeWeight(*form, 2, QStringLiteral("200"));
    EXPECT_EQ(form->grid()->text(2, WeightTracker::kDifferenceColumn), "-10.5");
    EXPECT_TRUE(form->grid()->isBold(2, WeightTracker::kDifferenceColumn));
    EXPECT_TRUE(form->model().changed());
}

TEST_F(WeightTrackerTest, ACalendarDateIsWrittenAndTheCursorMovesToTheWeight)
{
    auto form = openPat();
    pickDate(*form, 1, QDate(2026, 3, 9));
    EXPECT_EQ(form->grid()->text(1, WeightTracker::kDateColumn), "March 09, 2026");
    EXPECT_EQ(form->grid()->currentColumn(), WeightTracker::kWeightColumn);
    EXPECT_FALSE(form->calendar()->isOpen());
    EXPECT_TRUE(form->model().changed());
}

TEST_F(WeightTrackerTest, TheCalendarOpensOnTheCellsDateElseToday)
{
    auto form = openPat();
    emit form->grid()->cellClicked(0, WeightTracker::kDateColumn);
    EXPECT_EQ(form->calendar()->calendar()->selectedDate(), QDate(2026, 3, 2));
    emit form->grid()->cellClicked(1, WeightTracker::kWeightColumn);
    EXPECT_FALSE(form->calendar()->isOpen()) << "any other click closes it";
    emit form->grid()->cellClicked(1, WeightTracker::kDateColumn);
    EXPECT_EQ(form->calendar()->calendar()->selectedDate(), clock.today());
}

TEST_F(WeightTrackerTest, TheDateCheckerRefusesADateAfterNowAndEmptiesTheCell)
{
    auto form = openPat();
    dialogs.expectMessage("Entry Error", "The Date entry Cannot Exceed the Current Date!");
    pickDate(*form, 0, QDate(2026, 4, 4));
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(form->grid()->text(0, WeightTracker::kDateColumn), "");
    pickDate(*form, 0, clock.today());
    EXPECT_EQ(form->grid()->text(0, WeightTracker::kDateColumn), "April 03, 2026") << "today always passes";
}

TEST_F(WeightTrackerTest, WithTheDateCheckerOffAFutureDateStands)
{
    auto form = openPat();
    EXPECT_EQ(act(*form, "mDateChecker")->text(), "Turn OFF Date Checker");
    run(*form, "mDateChecker");
    EXPECT_EQ(act(*form, "mDateChecker")->text(), "Turn ON Date Checker");
    EXPECT_EQ(ReadSlotText(GColor1, 83), "OFF");
    pickDate(*form, 1, QDate(2027, 1, 1));
    EXPECT_EQ(form->grid()->text(1, WeightTracker::kDateColumn), "January 01, 2027");
    dialogs.expectMessage("Save File Command", "File has been Saved.");
    emit form->grid()->horizontalHeader()->sectionClicked(WeightTracker::kDateColumn);
    EXPECT_EQ(form->grid()->text(2, WeightTracker::kDateColumn), "January 01, 2027") << "sorted as any date";
    EXPECT_EQ(form->model().graph().labels.value(2), "Jan-01-27");
    run(*form, "mDateChecker");
    EXPECT_EQ(ReadSlotText(GColor1, 83), "");
}

TEST_F(WeightTrackerTest, TheDateCheckerIsReadAtTheStart)
{
    ASSERT_TRUE(WriteSlotText(GColor1, 83, u"OFF"));
    auto form = openPat();
    EXPECT_EQ(act(*form, "mDateChecker")->text(), "Turn ON Date Checker");
    pickDate(*form, 1, QDate(2030, 1, 1));
    EXPECT_EQ(form->grid()->text(1, WeightTracker::kDateColumn), "January 01, 2030");
}

TEST_F(WeightTrackerTest, TheBeginningDateTakesItsDateFromTheCalendarWithTheCheck)
{
    auto form = openShown(openPat());
    QTest::mouseClick(form->field(2), Qt::LeftButton);
    ASSERT_TRUE(form->calendar()->isOpen());
    dialogs.expectMessage("Entry Error", "The Date entry Cannot Exceed the Current Date!");
    emit form->calendar()->calendar()->clicked(QDate(2026, 5, 1));
    EXPECT_EQ(form->field(2)->text(), "");
    EXPECT_TRUE(form->field(2)->hasFocus());
    QTest::mouseClick(form->field(2), Qt::LeftButton);
    emit form->calendar()->calendar()->clicked(QDate(2026, 1, 5));
    EXPECT_EQ(form->field(2)->text(), "January 05, 2026");
    EXPECT_EQ(form->model().fields().beginningDate, "January 05, 2026");
}

TEST_F(WeightTrackerTest, TheTrendPicturesAndTheGoal)
{
    auto form = openPat();
    EXPECT_EQ(PictureOf(*form, 0), "Sad1.ico") << "March 02 is the last entry above the blank row";
    EXPECT_FALSE(form->goalLabel(0)->isVisibleTo(form.get()));
    pickDate(*form, 1, QDate(2026, 3, 9));
    typeWeight(*form, 1, QStringLiteral("209"));
    EXPECT_EQ(PictureOf(*form, 0), "2.ico") << "207 after 209";
    EXPECT_EQ(PictureOf(*form, 1), "1.ico") << "3.5 under the beginning";
    typeWeight(*form, 2, QStringLiteral("209"));
    EXPECT_EQ(PictureOf(*form, 0), "Sad1.ico");
    typeWeight(*form, 2, QStringLiteral("180"));
    EXPECT_EQ(PictureOf(*form, 0), "2.ico");
    EXPECT_EQ(PictureOf(*form, 1), "2.ico");
    EXPECT_TRUE(form->goalLabel(0)->isVisibleTo(form.get()));
    EXPECT_EQ(form->goalLabel(0)->text(), "GOAL WEIGHT ACHIEVED!");
    EXPECT_EQ(form->goalLabel(1)->text(), "CONGRATULATIONS!");
    EXPECT_EQ(form->goalNote(), "GOAL");
}

TEST_F(WeightTrackerTest, TheTrendSwitchHidesThePicturesAndIsKept)
{
    auto form = openPat();
    QPushButton* trend = form->findChild<QPushButton*>(QStringLiteral("Command1_12"));
    ASSERT_NE(trend, nullptr);
    EXPECT_EQ(trend->text(), "Turn Trend Display OFF");
    trend->click();
    EXPECT_EQ(trend->text(), "Turn Trend Display ON");
    EXPECT_FALSE(form->trendPicture(0)->isVisibleTo(form.get()));
    EXPECT_EQ(ReadSlotText(GColor4, 34), "OFF");
    trend->click();
    EXPECT_TRUE(form->trendPicture(0)->isVisibleTo(form.get()));
    EXPECT_EQ(ReadSlotText(GColor4, 34), "ON");
}

TEST_F(WeightTrackerTest, TheTrendDisplayIsReadAtTheStart)
{
    ASSERT_TRUE(WriteSlotText(GColor4, 34, u"OFF"));
    auto form = openPat();
    EXPECT_EQ(form->findChild<QPushButton*>(QStringLiteral("Command1_12"))->text(), "Turn Trend Display ON");
    EXPECT_FALSE(form->trendPicture(1)->isVisibleTo(form.get()));
}

TEST_F(WeightTrackerTest, AddRowSavesSilentlyThenSaysSo)
{
    auto form = openPat();
    dialogs.expectMessage("Add Row Command", "Row has been added to the end of the Grid and File Saved!");
    run(*form, "mAddRow");
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(form->grid()->rowCount(), 4);
    EXPECT_EQ(fileValues().value(0), "5");
    EXPECT_EQ(fileValues().size(), 12 + 8);
}

TEST_F(WeightTrackerTest, DeleteRowAsksAboutTheHighlightedEntryWithNoAsDefault)
{
    auto form = openPat();
    form->grid()->setCurrentCell(2, WeightTracker::kWeightColumn);
    dialogs.expectMessage("Delete Highlighted Entry", "Do you really want to delete the highlighted Entry?",
                          Answer::No);
    run(*form, "mDeleteRow");
    EXPECT_EQ(dialogs.messages().value(0).buttons, Buttons::YesNo);
    EXPECT_EQ(dialogs.messages().value(0).defaultButton, 2);
    EXPECT_EQ(form->grid()->rowCount(), 3);
    EXPECT_EQ(form->grid()->item(2, 1)->background(), QBrush()) << "the highlight is gone";
    EXPECT_EQ(form->grid()->currentRow(), 2);

    dialogs.expectMessage("Delete Highlighted Entry", "Do you really want to delete the highlighted Entry?",
                          Answer::Yes);
    dialogs.expectMessage("Delete Row Command", "Row has been Deleted and File Saved");
    run(*form, "mDeleteRow");
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(form->grid()->rowCount(), 2);
    EXPECT_EQ(fileValues().value(0), "3");
    EXPECT_EQ(fileValues().mid(12), QStringList({"March 02, 2026", "210.5", "", ""}));
}

TEST_F(WeightTrackerTest, SortingByDateSavesWithItsMessage)
{
    auto form = openPat();
    pickDate(*form, 1, QDate(2026, 2, 1));
    typeWeight(*form, 1, QStringLiteral("212"));
    dialogs.expectMessage("Save File Command", "File has been Saved.");
    emit form->grid()->horizontalHeader()->sectionClicked(WeightTracker::kDateColumn);
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(fileValues().mid(12, 2), QStringList({"February 01, 2026", "212"}));
    EXPECT_EQ(form->grid()->text(0, WeightTracker::kChangeColumn), "N/A");
    dialogs.expectMessage("Save File Command", "File has been Saved.");
    emit form->grid()->horizontalHeader()->sectionClicked(WeightTracker::kDateColumn);
    EXPECT_EQ(form->grid()->text(0, WeightTracker::kDateColumn), "March 16, 2026") << "descending the second time";
}

TEST_F(WeightTrackerTest, SortingByTheWeightColumnChangesNothingAndLeavesTheFileSaved)
{
    auto form = openPat();
    const QByteArray before = folder.bytesOf(kPatFile);
    const QStringList dates{form->grid()->text(0, 1), form->grid()->text(1, 1), form->grid()->text(2, 1)};
    dialogs.expectMessage("Save Command", "There have been no entries/changes made to save!");
    emit form->grid()->horizontalHeader()->sectionClicked(WeightTracker::kWeightColumn);
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(QStringList({form->grid()->text(0, 1), form->grid()->text(1, 1), form->grid()->text(2, 1)}), dates);
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral("Temp.Fil"))));
    EXPECT_EQ(folder.bytesOf(kPatFile), before);
}

TEST_F(WeightTrackerTest, ARightClickOnTheGridOpensTheOptionsMenu)
{
    auto form = openShown(openPat());
    emit form->grid()->customContextMenuRequested(QPoint(10, 10));
    QMenu* options = form->findChild<QMenu*>(QStringLiteral("mOptions"));
    ASSERT_NE(options, nullptr);
    EXPECT_TRUE(options->isVisible());
    options->hide();
}

TEST_F(WeightTrackerTest, ARowCountOfZeroLoadsFiftyRowsAndSaveWritesThemAll)
{
    folder.writeBytes(QStringLiteral("Zed.Fil"), QuotedLines({"0", "May 01, 2026"}));
    folder.writeBytes(QString::fromLatin1(kIndividualListFile), QuotedLines({"Zed"}));
    auto form = open();
    pick(*form, QStringLiteral("Zed"));
    EXPECT_EQ(form->grid()->rowCount(), 49);
    typeWeight(*form, 0, QStringLiteral("150"));
    dialogs.expectMessage("Save File Command", "File has been Saved.");
    run(*form, "mSave");
    EXPECT_EQ(fileValues(QStringLiteral("Zed.Fil")).value(0), "50");
    EXPECT_EQ(fileValues(QStringLiteral("Zed.Fil")).size(), 12 + 98);
}
