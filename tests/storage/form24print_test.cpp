// Printing from the storage screen: the shared print options panel with the
// screen's choices and checks, what the page holds, leaving the panel, and a
// table printed to a PDF file.
#include "print/logic/guidelines.h"
#include "print/logic/printfont.h"
#include "print/screens/guidelineoptions.h"
#include "print/screens/printoptionspanel.h"
#include "shell/kit/screenstatusbar.h"
#include "form24_fixture.h"
#include "pdf_text.h"
#include "raw_slots.h"

#include <QCheckBox>
#include <QMenuBar>
#include <QRadioButton>
#include <QTemporaryDir>

namespace {

class Form24PrintTest : public Form24Test {
protected:
    Form24PrintTest() { PrintFont() = TextFont{}; }
    ~Form24PrintTest() override { PrintFont() = TextFont{}; }

    static QRadioButton* choice(Form24& form, int index)
    {
        return form.findChild<QRadioButton*>(QStringLiteral("PrintChoice_%1").arg(index));
    }
    static QStringList texts(Form24& form) { return form.printPanel()->document().allTexts(); }
};

} // namespace

TEST_F(Form24PrintTest, PrintOpensThePanelOverTheScreenWithTheFourChoicesAndTwoChecks)
{
    auto form = openShown();
    button(*form, 0)->click();
    PrintOptionsPanel* panel = form->printPanel();
    ASSERT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->geometry(), form->centralWidget()->rect());
    EXPECT_FALSE(form->menuBar()->isEnabled());
    EXPECT_EQ(form->screenStatusBar()->activity(), "Print Options");
    const QStringList captions{"Complete Form (First 5 Columns)", "Complete Form (All 8 Columns)",
                               "Only Lines w/OnHand Data(5 Cols.)", "Only Lines w/OnHand Data(All Cols.)"};
    for (int index = 0; index < 4; ++index)
        EXPECT_EQ(choice(*form, index)->text(), captions[index]);
    EXPECT_EQ(form->findChild<QCheckBox*>("PrintAsOf")->text(), "Print 'As of' date on each page");
    EXPECT_EQ(form->findChild<QCheckBox*>("PrintGridLines")->text(), "Print Grid Lines on each page");
    for (const char* command : {"mSave", "mCopy", "mPrint", "mExit"})
        EXPECT_FALSE(act(*form, command)->isEnabled()) << command;
    EXPECT_EQ(act(*form, "mPrint")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_P));
}

TEST_F(Form24PrintTest, WithOnHandDataTheFirstChoiceIsPreset)
{
    auto form = openShown();
    act(*form, "mPrint")->trigger();
    EXPECT_TRUE(choice(*form, 0)->isChecked());
    for (int index = 0; index < 4; ++index)
        EXPECT_TRUE(choice(*form, index)->isEnabled()) << index;
    const QStringList printed = texts(*form);
    EXPECT_TRUE(printed.contains("Basic Food Storage"));
    EXPECT_TRUE(printed.contains("As of  " + LongDate(clock.today())));
    EXPECT_TRUE(printed.contains("1200 lbs"));
    EXPECT_FALSE(printed.contains("4/3/26")) << "five columns";
}

TEST_F(Form24PrintTest, WithoutOnHandDataTheOnlyLinesChoicesAreOffAndAllEightIsPreset)
{
    auto form = openShown(StorageKind::Emergency);
    enterAt(*form, 1, 7, "5");
    enterAt(*form, 10, 7, "10");
    ASSERT_FALSE(TableHasOnHandData(form->model().table()));
    act(*form, "mPrint")->trigger();
    EXPECT_TRUE(choice(*form, 1)->isChecked());
    EXPECT_FALSE(choice(*form, 2)->isEnabled());
    EXPECT_FALSE(choice(*form, 3)->isEnabled());
    EXPECT_TRUE(choice(*form, 0)->isEnabled());
}

TEST_F(Form24PrintTest, EveryChoiceAndCheckComposesThePageAgain)
{
    auto form = openShown();
    act(*form, "mPrint")->trigger();
    choice(*form, 1)->click();
    EXPECT_TRUE(texts(*form).contains("4/3/26"));
    EXPECT_TRUE(texts(*form).contains("    Stored item 4"));
    choice(*form, 2)->click();
    EXPECT_FALSE(texts(*form).contains("    Stored item 4")) << "only lines with on-hand data";
    EXPECT_TRUE(texts(*form).contains("    Wheat"));
    EXPECT_FALSE(texts(*form).contains("4/3/26"));
    choice(*form, 3)->click();
    EXPECT_TRUE(texts(*form).contains("4/3/26"));
    form->findChild<QCheckBox*>("PrintAsOf")->click();
    EXPECT_FALSE(texts(*form).contains("As of  " + LongDate(clock.today())));
    form->findChild<QCheckBox*>("PrintGridLines")->click();
    for (const Page& page : form->printPanel()->document().pages)
        for (const PageItem& item : page.items)
            EXPECT_FALSE(std::holds_alternative<LineItem>(item));
}

TEST_F(Form24PrintTest, TheGuideLineOptionIsGColor3Slot28AndAutoSizeFits76Letters)
{
    WriteSlotText(GColor3, 28, u"1");
    auto form = openShown();
    act(*form, "mPrint")->trigger();
    EXPECT_TRUE(form->printPanel()->guideLineOptions()->guideLinesOn());
    form->printPanel()->guideLineOptions()->option(0)->click();
    EXPECT_EQ(ReadSlotText(GColor3, 28), "0");
    form->printPanel()->autoSizeButton()->click();
    EXPECT_GT(PrintFont().size, 12) << "76 letters n fill the page at a larger size";
}

TEST_F(Form24PrintTest, ExitPrintOptionsGivesTheScreenBack)
{
    auto form = openShown();
    act(*form, "mPrint")->trigger();
    form->printPanel()->command(PrintOptionsPanel::kExitPrintOptions)->click();
    EXPECT_FALSE(form->printPanel()->isVisible());
    EXPECT_TRUE(form->menuBar()->isEnabled());
    EXPECT_TRUE(act(*form, "mSave")->isEnabled());
    EXPECT_EQ(form->screenStatusBar()->activity(), "Basic Food Storage");
    EXPECT_TRUE(button(*form, 0)->hasFocus());
    act(*form, "mPrint")->trigger();
    form->pressEscape();
    EXPECT_FALSE(form->printPanel()->isVisible());
    EXPECT_TRUE(form->isVisible());
}

TEST_F(Form24PrintTest, TheTablePrintsToAPdf)
{
    auto form = openShown(StorageKind::Emergency);
    act(*form, "mPrint")->trigger();
    choice(*form, 1)->click();
    QTemporaryDir pdfFolder;
    const QString pdf = pdfFolder.filePath("storage.pdf");
    dialogs.expectPrint(pdf);
    form->printPanel()->command(PrintOptionsPanel::kPrint)->click();
    ASSERT_EQ(dialogs.printJobs().size(), 1);
    EXPECT_EQ(dialogs.printJobs()[0].title, "Emergency Storage");
    EXPECT_EQ(dialogs.printJobs()[0].pageCount, form->printPanel()->document().pageCount());
    const QString text = PdfText(pdf);
    for (const char* part : {"Emergency Storage", "Storage", "Family", "Canned Meat", "12 cans", "5 cans", "4/3/26",
                             "Drinking Water", "Games and Books"})
        EXPECT_TRUE(text.contains(QString::fromLatin1(part))) << part << "\n" << text.toStdString();
    EXPECT_TRUE(text.contains("As of  " + LongDate(clock.today())) || text.contains("As of " + LongDate(clock.today())));
}
