// The category buttons of the storage screen: the rows they show, the
// commands they turn off, the question after changes, and the pie of Basic
// storage.
#include "storage/logic/storagefiles.h"
#include "storage/screens/piepanel.h"
#include "form24_fixture.h"

#include <QLabel>
#include <QPieSeries>
#include <QPieSlice>

namespace {

const char* const kReviewQuestion = "These button are for review only!\n"
                                    "Save changes made to Food Storage data before this action?";
const char* const kEntryCommands[] = {"mClearLastActions", "mPrint", "mItemDefaults", "mApproxAmounts"};

} // namespace

TEST_F(Form24Test, ACategoryShowsItsRowsAndTurnsTheEntryCommandsOff)
{
    auto form = open(StorageKind::Basic);
    form->categoryButton(6)->click();
    ASSERT_EQ(form->grid()->rowCount(), 14);
    EXPECT_EQ(cell(*form, 0, 0), "Legumes");
    EXPECT_EQ(cell(*form, 13, 0), "    Stored item 53");
    EXPECT_FALSE(form->categoryButton(6)->isEnabled());
    for (int index = 0; index < kCategoryButtons; ++index) {
        if (index != 6) {
            EXPECT_TRUE(form->categoryButton(index)->isEnabled()) << index;
        }
    }
    EXPECT_FALSE(form->inputBox()->isEnabled());
    EXPECT_FALSE(form->familyField()->isEnabled());
    for (const char* command : kEntryCommands)
        EXPECT_FALSE(act(*form, command)->isEnabled()) << command;
    EXPECT_TRUE(act(*form, "mSave")->isEnabled());
    EXPECT_EQ(form->grid()->currentRow(), 0);
    EXPECT_EQ(form->grid()->currentColumn(), 0);

    form->categoryButton(0)->click();
    EXPECT_EQ(form->grid()->rowCount(), 60);
    EXPECT_FALSE(form->categoryButton(0)->isEnabled());
    EXPECT_TRUE(form->inputBox()->isEnabled());
    for (const char* command : kEntryCommands)
        EXPECT_TRUE(act(*form, command)->isEnabled()) << command;
    EXPECT_TRUE(dialogs.messages().isEmpty());
}

TEST_F(Form24Test, EveryCategoryOfEveryKindShowsItsRows)
{
    for (const StorageKind kind : kStorageKinds) {
        auto form = open(kind);
        for (int button = 1; button < kCategoryButtons; ++button) {
            const RowRange rows = CategoryRows(kind, button);
            if (rows.count() == 0)
                continue;
            form->categoryButton(button)->click();
            ASSERT_EQ(form->grid()->rowCount(), rows.count()) << int(kind) << " " << button;
            for (int gridRow = 0; gridRow < rows.count(); ++gridRow)
                EXPECT_EQ(form->grid()->rowTexts(gridRow), form->model().table().rowTexts(rows.first + gridRow));
        }
    }
}

TEST_F(Form24Test, InACategoryColumns1To3AnswerThatEntriesNeedTheAllView)
{
    auto form = openShown(StorageKind::Basic);
    form->categoryButton(4)->click();
    for (int column = 1; column <= 3; ++column) {
        dialogs.expectMessage("Grid Entry", "These entries can only be entered or changed when All data is selected!");
        moveTo(*form, 0, column);
    }
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(form->entryRow(), 0);
}

TEST_F(Form24Test, ChangedDataAsksBeforeACategoryAndYesSaves)
{
    auto form = openShown(StorageKind::Basic);
    enterAt(*form, 59, 0, "Cider Vinegar");
    dialogs.expectMessage("Food Storage", kReviewQuestion, Answer::Yes);
    form->categoryButton(8)->click();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(dialogs.messages().last().buttons, Buttons::YesNoCancel);
    EXPECT_EQ(ReadTableFile(StorageKind::Basic).cell(60, 0), "Cider Vinegar");
    EXPECT_EQ(form->model().category(), 8);
    EXPECT_EQ(cell(*form, 5, 0), "Cider Vinegar");
    EXPECT_FALSE(form->model().dataChanged());
}

TEST_F(Form24Test, ChangedDataAsksBeforeACategoryAndNoReloadsTheFile)
{
    auto form = openShown(StorageKind::Basic);
    enterAt(*form, 59, 0, "Cider Vinegar");
    dialogs.expectMessage("Food Storage", kReviewQuestion, Answer::No);
    form->categoryButton(8)->click();
    EXPECT_EQ(cell(*form, 5, 0), "Stored item 60");
    EXPECT_FALSE(form->model().dataChanged());
    form->categoryButton(0)->click();
    form->familyField()->setFocus();
    form->familyField()->selectAll();
    QTest::keyClicks(form->familyField(), "6");
    QTest::keyClick(form->familyField(), Qt::Key_Return);
    ASSERT_TRUE(form->model().dataChanged());
    dialogs.expectMessage("Food Storage", kReviewQuestion, Answer::No);
    form->categoryButton(1)->click();
    EXPECT_EQ(form->familyField()->text(), "4") << "the family size of the file again";
    EXPECT_EQ(folder.bytesOf("FdsB1.Fil"), TestDataBytes("FdsB1.Fil"));
}

TEST_F(Form24Test, ChangedDataAsksBeforeACategoryAndCancelStays)
{
    auto form = openShown(StorageKind::Basic);
    enterAt(*form, 59, 0, "Cider Vinegar");
    dialogs.expectMessage("Food Storage", kReviewQuestion, Answer::Cancel);
    form->categoryButton(8)->click();
    EXPECT_EQ(form->model().category(), kAllCategory);
    EXPECT_EQ(cell(*form, 59, 0), "Cider Vinegar");
    EXPECT_TRUE(form->model().dataChanged());
}

TEST_F(Form24Test, TheCalendarChangesADateWhileACategoryIsShownAndTheNextButtonAsks)
{
    auto form = openShown(StorageKind::Basic);
    form->categoryButton(4)->click();
    moveTo(*form, 0, 5);
    ASSERT_TRUE(form->calendar()->isOpen());
    emit form->calendar()->datePicked(QDate(2026, 5, 1));
    EXPECT_EQ(cell(*form, 0, 5), "5/1/26");
    EXPECT_TRUE(form->model().dataChanged());
    dialogs.expectMessage("Food Storage", kReviewQuestion, Answer::Yes);
    form->categoryButton(0)->click();
    EXPECT_EQ(ReadTableFile(StorageKind::Basic).cell(34, kDateColumn), "5/1/26");
}

TEST_F(Form24Test, BasicCategories1To7ShowThePieOfTheirGroup)
{
    auto form = open(StorageKind::Basic);
    EXPECT_FALSE(form->pie()->isVisibleTo(form.get()));
    form->categoryButton(1)->click();
    ASSERT_TRUE(form->pie()->isVisibleTo(form.get()));
    EXPECT_EQ(form->pie()->title(), "Grains");
    const QList<QPieSlice*> slices = form->pie()->series()->slices();
    ASSERT_EQ(slices.size(), 2);
    EXPECT_EQ(slices[0]->label(), "On Hand (12.5%)");
    EXPECT_DOUBLE_EQ(slices[0]->value(), 150.5);
    EXPECT_EQ(slices[1]->label(), "Need (87.5%)");
    EXPECT_DOUBLE_EQ(slices[1]->value(), 1049.5);
    EXPECT_TRUE(form->findChild<QLabel*>("PieLegend_0")->text().endsWith("On Hand (12.5%)"));
    EXPECT_TRUE(form->findChild<QLabel*>("PieLegend_1")->text().endsWith("Need (87.5%)"));
    for (int button = 2; button <= 7; ++button) {
        form->categoryButton(button)->click();
        EXPECT_TRUE(form->pie()->isVisibleTo(form.get())) << button;
    }
    form->categoryButton(8)->click();
    EXPECT_FALSE(form->pie()->isVisibleTo(form.get()));
    form->categoryButton(0)->click();
    EXPECT_FALSE(form->pie()->isVisibleTo(form.get()));
}

TEST_F(Form24Test, OtherKindsShowNoPie)
{
    for (const StorageKind kind : {StorageKind::Emergency, StorageKind::Additional}) {
        auto form = open(kind);
        for (int button = 1; button <= 6; ++button) {
            form->categoryButton(button)->click();
            EXPECT_FALSE(form->pie()->isVisibleTo(form.get())) << int(kind) << " " << button;
        }
    }
}

TEST_F(Form24Test, SavingFromACategoryReturnsToAll)
{
    auto form = open(StorageKind::Emergency);
    form->categoryButton(3)->click();
    act(*form, "mSave")->trigger();
    EXPECT_EQ(form->model().category(), kAllCategory);
    EXPECT_EQ(form->grid()->rowCount(), 60);
    EXPECT_FALSE(form->categoryButton(0)->isEnabled());
}
