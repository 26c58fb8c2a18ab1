// The shopping list's printing from the screen: the print options panel with
// the checklist and the worksheet, its own options, Auto Size and a PDF.
#include "shoplist_fixture.h"

#include "pdf_text.h"
#include "raw_slots.h"

#include "common/widgets/qtfonts.h"
#include "print/logic/printfont.h"
#include "print/screens/fontmeasurer.h"
#include "print/screens/guidelineoptions.h"
#include "print/screens/pagepreview.h"
#include "print/screens/printoptionspanel.h"
#include "shopping/screens/listprintoptions.h"

#include <QCheckBox>
#include <QClipboard>
#include <QMenu>
#include <QDir>
#include <QRadioButton>
#include <QStatusBar>

class ShoplistPrintTest : public ShoplistTest {
protected:
    static PrintOptionsPanel* panel(Shoplist& form) { return form.printPanel(); }
    static const PageDocument& document(Shoplist& form) { return form.printPanel()->document(); }
    void fillList(Shoplist& form, int items)
    {
        for (int i = 1; i <= items; ++i)
            addItem(form, QStringLiteral("Item %1").arg(i));
    }
};

TEST_F(ShoplistPrintTest, NothingOnTheListTellsTheUserAndTheStatusComesBack)
{
    auto form = open();
    dialogs.expectMessage("Print", "There are currently No Entries to Print!");
    button(*form, "Command1_3")->click();
    EXPECT_EQ(dialogs.messages().last().icon, Icon::Information);
    EXPECT_FALSE(panel(*form)->isVisible());
    EXPECT_EQ(status(*form), "Shopping List Maker");
    EXPECT_EQ(form->openPanel(), ShoplistPanel::None);
}

TEST_F(ShoplistPrintTest, PrintOptionsShowTheChecklistOverTheScreenWithTheOptionsMenuHidden)
{
    WriteSlotText(GColor3, 50, u"1");
    auto form = open();
    addItem(*form, "Milk");
    enterAmount(*form, 1, "2 Gallons");
    act(*form, "mPrintOptions")->trigger();
    ASSERT_TRUE(panel(*form)->isVisible());
    EXPECT_EQ(status(*form), "Print");
    EXPECT_EQ(form->openPanel(), ShoplistPanel::Print);
    EXPECT_FALSE(form->findChild<QMenu*>("mOptions")->menuAction()->isVisible());
    EXPECT_EQ(panel(*form)->geometry(), form->centralWidget()->rect());
    ListPrintOptions* options = form->printOptions();
    EXPECT_TRUE(options->isEnabled());
    EXPECT_EQ(options->dividerBox()->text(), "Print Divider Lines (Every 5 Items)");
    EXPECT_EQ(options->dateBox()->text(), "Print Date on each page");
    EXPECT_TRUE(options->dividers());
    EXPECT_TRUE(options->printDate());
    EXPECT_TRUE(panel(*form)->guideLineOptions()->guideLinesOn()) << "GColor3.Fil slot 50";
    const QStringList texts = document(*form).allTexts();
    EXPECT_TRUE(texts.contains("Grocery Shopping List"));
    EXPECT_TRUE(texts.contains("Sunday, November 15, 2026"));
    EXPECT_TRUE(texts.contains(QStringLiteral("[   ]") + QString("Milk").leftJustified(28)));
    EXPECT_TRUE(texts.contains("2 Gallons"));
    for (const char* off : {"mSave", "mExit", "mNewList", "mRecipeSelect", "mCopy"})
        EXPECT_FALSE(act(*form, off)->isEnabled()) << off;
}

TEST_F(ShoplistPrintTest, TheListsOptionsComposeThePageAgainAtOnce)
{
    auto form = open();
    fillList(*form, 6);
    act(*form, "mPrintOptions")->trigger();
    EXPECT_EQ(document(*form).pages[0].lines().size(), 1);
    form->printOptions()->dividerBox()->click();
    EXPECT_TRUE(document(*form).pages[0].lines().isEmpty());
    form->printOptions()->dateBox()->click();
    EXPECT_FALSE(document(*form).allTexts().contains("Sunday, November 15, 2026"));
}

TEST_F(ShoplistPrintTest, ExitPrintOptionsGivesTheScreenBackAndTheOptionsLastWhileItIsOpen)
{
    auto form = open();
    addItem(*form, "Milk");
    act(*form, "mPrintOptions")->trigger();
    form->printOptions()->dateBox()->click();
    panel(*form)->command(PrintOptionsPanel::kExitPrintOptions)->click();
    EXPECT_FALSE(panel(*form)->isVisible());
    EXPECT_EQ(status(*form), "Shopping List Maker");
    EXPECT_TRUE(form->findChild<QMenu*>("mOptions")->menuAction()->isVisible());
    EXPECT_TRUE(act(*form, "mSave")->isEnabled());
    EXPECT_TRUE(button(*form, "Command1_3")->hasFocus());
    act(*form, "mPrintOptions")->trigger();
    EXPECT_FALSE(form->printOptions()->printDate());
    EXPECT_TRUE(folder.bytesOf("GColor4.Fil").isEmpty()) << "neither the options nor the font are stored";
    auto another = open();
    EXPECT_TRUE(another->printOptions()->printDate()) << "on when the form opens";
}

TEST_F(ShoplistPrintTest, TheWorksheetPrintsWithAnEmptyListItsGroupResting)
{
    auto form = open();
    act(*form, "mWorksheet")->trigger();
    ASSERT_TRUE(panel(*form)->isVisible());
    EXPECT_EQ(status(*form), "Print worksheet");
    EXPECT_FALSE(form->printOptions()->isEnabled());
    EXPECT_TRUE(document(*form).allTexts().contains("Shopping List Worksheet"));
    EXPECT_FALSE(document(*form).allTexts().contains("Grocery Shopping List"));
    EXPECT_TRUE(dialogs.messages().isEmpty());
    // Every change composes what the status bar names: the worksheet.
    panel(*form)->autoSizeButton()->click();
    EXPECT_TRUE(document(*form).allTexts().contains("Shopping List Worksheet"));
    dialogs.expectPrint("");
    panel(*form)->command(PrintOptionsPanel::kPrint)->click();
    ASSERT_EQ(dialogs.printJobs().size(), 1);
    EXPECT_EQ(dialogs.printJobs()[0].title, "Print Worksheet");
}

TEST_F(ShoplistPrintTest, AutoSizeFitsNinetySixLettersNAcrossThePage)
{
    PrintFont().size = 20;
    auto form = open();
    addItem(*form, "Milk");
    act(*form, "mPrintOptions")->trigger();
    const int expected = AutoSizeFontSize(FontMeasurer(), PrintFont(), QString(96, u'n'), 12240);
    panel(*form)->autoSizeButton()->click();
    EXPECT_EQ(PrintFont().size, expected);
    const TextItem* milk = document(*form).pages[0].findText(QStringLiteral("[   ]") + QString("Milk").leftJustified(28));
    ASSERT_NE(milk, nullptr);
    EXPECT_EQ(milk->font.size, expected);
    EXPECT_LT(expected, 20);
}

TEST_F(ShoplistPrintTest, MsSansSerifPrintsInTimesNewRoman12)
{
    PrintFont().name = "MS Sans Serif";
    PrintFont().size = 8;
    auto form = open();
    addItem(*form, "Milk");
    act(*form, "mPrintOptions")->trigger();
    EXPECT_EQ(PrintFont().name, "Times New Roman");
    EXPECT_EQ(PrintFont().size, 12);
    EXPECT_EQ(document(*form).pages[0].findText("Grocery Items")->font.name, "Times New Roman");
}

TEST_F(ShoplistPrintTest, EscapeLeavesTheLargeViewFirstThenThePanel)
{
    auto form = open();
    addItem(*form, "Milk");
    act(*form, "mPrintOptions")->trigger();
    panel(*form)->enlargeButton()->click();
    ASSERT_TRUE(panel(*form)->preview()->large());
    form->pressEscape();
    EXPECT_FALSE(panel(*form)->preview()->large());
    EXPECT_TRUE(panel(*form)->isVisible());
    form->pressEscape();
    EXPECT_FALSE(panel(*form)->isVisible());
    EXPECT_TRUE(form->isVisible());
}

TEST_F(ShoplistPrintTest, PrintToAPdfGivesTheListOnPaper)
{
    auto form = open();
    addItem(*form, "Milk");
    addItem(*form, "Eggs");
    enterAmount(*form, 2, "1 Dozen");
    act(*form, "mPrintOptions")->trigger();
    const QString pdf = folder.filePath("list.pdf");
    dialogs.expectPrint(pdf);
    panel(*form)->command(PrintOptionsPanel::kPrint)->click();
    ASSERT_EQ(dialogs.printJobs().size(), 1);
    EXPECT_EQ(dialogs.printJobs()[0].title, "Grocery Shopping List");
    const QString text = PdfText(pdf);
    for (const char* part : {"Grocery Shopping List", "Sunday, November 15, 2026", "Grocery Items",
                             "Amount to Purchase", "Milk", "Eggs", "1 Dozen"})
        EXPECT_TRUE(text.contains(part)) << part << "\n" << text.toStdString();
    EXPECT_EQ(form->statusBar()->currentMessage(), "Printed to " + QDir::toNativeSeparators(pdf))
        << "the status bar says where the file went";
}

TEST_F(ShoplistPrintTest, ACancelledPrintSaysNothingInTheStatusBar)
{
    auto form = open();
    addItem(*form, "Milk");
    act(*form, "mPrintOptions")->trigger();
    dialogs.expectPrint("");
    panel(*form)->command(PrintOptionsPanel::kPrint)->click();
    EXPECT_EQ(form->statusBar()->currentMessage(), QString());
}

TEST_F(ShoplistPrintTest, CopyCurrentPageTellsTheUser)
{
    auto form = open();
    addItem(*form, "Milk");
    act(*form, "mPrintOptions")->trigger();
    dialogs.expectMessage("Copy Option", "Current Page has been copied to the Windows Clipboard.");
    panel(*form)->command(PrintOptionsPanel::kCopyCurrentPage)->click();
    EXPECT_FALSE(QApplication::clipboard()->image().isNull());
}

TEST_F(ShoplistPrintTest, PrintingChangesNeitherTheListNorItsChangedFlag)
{
    auto form = open();
    addItem(*form, "Milk");
    act(*form, "mSave")->trigger();
    ASSERT_FALSE(form->list().dirty());
    act(*form, "mPrintOptions")->trigger();
    panel(*form)->autoSizeButton()->click();
    panel(*form)->command(PrintOptionsPanel::kExitPrintOptions)->click();
    act(*form, "mWorksheet")->trigger();
    panel(*form)->command(PrintOptionsPanel::kExitPrintOptions)->click();
    EXPECT_FALSE(form->list().dirty());
    EXPECT_EQ(form->list().entryList(), QStringList({"Milk"}));
}

// The head byte for byte; every row is its item cell as the grid shows it,
// filled out with blanks until the screen's font measures 2400 twips (and
// not one blank more), a TAB, the amount and a CR.
TEST_F(ShoplistPrintTest, CopyPutsTheListOnTheClipboardAsTextAndTellsTheUser)
{
    auto form = open();
    addItem(*form, "Milk");
    addItem(*form, "Eggs");
    enterAmount(*form, 2, "1 Dozen");
    act(*form, "mSave")->trigger();
    dialogs.expectMessage("Copy Option", "Data has been copied to the Windows Clipboard.");
    act(*form, "mCopy")->trigger();
    EXPECT_EQ(dialogs.messages().last().icon, Icon::Information);
    const QString text = QApplication::clipboard()->text();
    const QString head = "Shopping List\r\nSunday, November 15, 2026\r\n\r\n"
                         "          Grocery Items                Amount to Purchase\r\n";
    ASSERT_TRUE(text.startsWith(head)) << text.toStdString();
    const QStringList lines = text.mid(head.size()).split(u'\r');
    ASSERT_EQ(lines, QStringList({lines[0], lines[1], ""})) << "two rows, each ended by a CR alone";
    const TextFont screenFont = TextFontOf(form->font(), 0);
    const QString amounts[] = {"", "1 Dozen"};
    const QString cells[] = {"  Milk", "  Eggs"};
    for (int row = 0; row < 2; ++row) {
        SCOPED_TRACE(row);
        const QStringList parts = lines[row].split(u'\t');
        ASSERT_EQ(parts.size(), 2);
        EXPECT_EQ(parts[1], amounts[row]);
        const QString filled = parts[0];
        ASSERT_TRUE(filled.startsWith(cells[row]));
        EXPECT_EQ(filled.trimmed(), cells[row].trimmed()) << "blanks only behind the cell";
        EXPECT_GE(FontMeasurer().textWidth(screenFont, filled), 2400);
        EXPECT_LT(FontMeasurer().textWidth(screenFont, filled.chopped(1)), 2400);
    }
    EXPECT_FALSE(form->list().dirty()) << "copying changes nothing";
}

TEST_F(ShoplistPrintTest, CopyIsOfferedOnceTheGridHoldsAList)
{
    auto form = open();
    EXPECT_FALSE(act(*form, "mCopy")->isEnabled());
    addItem(*form, "Milk");
    EXPECT_TRUE(act(*form, "mCopy")->isEnabled());
}
