// The view panel and its table, the print options over it, a printout to
// PDF, the order of Escape, and the day copied to the clipboard.
#include "zcalandar_fixture.h"

#include "planner/screens/menuprintoptions.h"
#include "planner/screens/menuviewpanel.h"
#include "print/logic/pagebuilder.h"
#include "print/logic/printfont.h"
#include "print/screens/pagepreview.h"
#include "print/screens/printoptionspanel.h"
#include "shell/kit/screengrid.h"

#include "pdf_text.h"
#include "raw_slots.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QHeaderView>
#include <QRadioButton>

namespace {

class ZcalandarViewTest : public ZcalandarTest {
protected:
    ZcalandarViewTest() { PrintFont() = TextFont{}; }
    ~ZcalandarViewTest() override { PrintFont() = TextFont{}; }

    // Today and the next days saved: breakfast on every day, a longer
    // dinner on the 4th.
    void saveWeek()
    {
        for (int i = 0; i < 7; ++i) {
            MenuLines lines;
            lines[0] = QStringLiteral("Breakfast of day %1").arg(i + 1);
            if (i == 1) {
                lines[14] = QStringLiteral("Roast");
                lines[15] = QStringLiteral("Potatoes");
                lines[16] = QStringLiteral("Gravy");
            }
            ASSERT_TRUE(SaveDay(MenuPlaceOf(kToday.addDays(i)), lines));
        }
    }

    static MenuViewPanel* view(Zcalandar& screen) { return screen.viewPanel(); }
    static ScreenGrid* table(Zcalandar& screen) { return screen.viewPanel()->table(); }
    static void choosePlus(Zcalandar& screen, int days)
    {
        view(screen)->currentDatePlusChoice()->click();
        view(screen)->dayList()->setCurrentIndex(days - 1);
    }
};

const Message kPrintViewQuestion{QStringLiteral("Menu Planner"),
                                 QStringLiteral("Save changes/entries before next action or exiting?"),
                                 Buttons::YesNoCancel, Icon::None, 1};

} // namespace

TEST_F(ZcalandarViewTest, PrintViewOpensItsPanelAndLocksTheDay)
{
    auto screen = openShown();
    button(*screen, 3)->click();
    MenuViewPanel* panel = view(*screen);
    ASSERT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->captionLabel()->text(), QStringLiteral("Select Menu to Print/View"));
    EXPECT_TRUE(panel->currentDateOnlyChoice()->isChecked());
    EXPECT_EQ(panel->currentDateOnlyChoice()->text(), QStringLiteral("Current Date Only"));
    EXPECT_EQ(panel->currentDatePlusChoice()->text(), QStringLiteral("Current Date plus the next"));
    EXPECT_FALSE(panel->dayList()->isEnabled());
    ASSERT_EQ(panel->dayList()->count(), 31);
    EXPECT_EQ(panel->dayList()->itemText(0), QStringLiteral("1"));
    EXPECT_EQ(panel->dayList()->itemText(30), QStringLiteral("31"));
    EXPECT_EQ(panel->dayList()->currentText(), QString()) << "an empty choice counts as one day";
    EXPECT_NE(panel->findChild<QLabel*>(), nullptr);
    QStringList labels;
    for (QLabel* label : panel->findChildren<QLabel*>())
        labels.append(label->text());
    EXPECT_TRUE(labels.contains(QStringLiteral("days")));
    EXPECT_EQ(panel->button(MenuViewPanel::kView)->text(), QStringLiteral("&View"));
    EXPECT_EQ(panel->button(MenuViewPanel::kPrintOptions)->text(), QStringLiteral("&Print Options"));
    EXPECT_EQ(panel->button(MenuViewPanel::kClose)->text(), QStringLiteral("&Close"));
    EXPECT_FALSE(table(*screen)->isVisible());
    for (const char* name : {"mSave", "mClearEntries", "mEditLists", "mPrintView", "mCopy", "mCalendarOptions"})
        EXPECT_FALSE(act(*screen, name)->isEnabled()) << name;
    EXPECT_TRUE(act(*screen, "mToolbarPrint")->isEnabled()) << "it opens the print options now";
    EXPECT_FALSE(line(*screen, 0)->isEnabled());
    panel->currentDatePlusChoice()->click();
    EXPECT_TRUE(panel->dayList()->isEnabled());
}

TEST_F(ZcalandarViewTest, UnsavedLinesAreOfferedForSavingAndCancelLeavesThePanelClosed)
{
    auto screen = openShown();
    typeInto(line(*screen, 0), QStringLiteral("Omelette"));
    dialogs.expectMessage(kPrintViewQuestion.title, kPrintViewQuestion.text, Answer::Cancel);
    act(*screen, "mPrintView")->trigger();
    EXPECT_EQ(dialogs.messages().last(), kPrintViewQuestion);
    EXPECT_FALSE(view(*screen)->isVisible());
    EXPECT_TRUE(screen->dirty());
    dialogs.expectMessage(kPrintViewQuestion.title, kPrintViewQuestion.text, Answer::Yes);
    act(*screen, "mToolbarPrint")->trigger();
    EXPECT_TRUE(view(*screen)->isVisible());
    EXPECT_EQ(ReadDay(kToday).line(0), QStringLiteral("Omelette"));
    EXPECT_FALSE(screen->dirty());
}

TEST_F(ZcalandarViewTest, ASaveThatFailsAtTheQuestionLeavesThePanelClosed)
{
    ASSERT_TRUE(QDir().mkdir(QStringLiteral(" 2026.Mnu")));
    auto screen = openShown();
    typeInto(line(*screen, 0), QStringLiteral("Omelette"));
    dialogs.expectMessage(kPrintViewQuestion.title, kPrintViewQuestion.text, Answer::Yes);
    expectWriteFailed(QStringLiteral(" 2026.Mnu"));
    act(*screen, "mPrintView")->trigger();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_FALSE(view(*screen)->isVisible());
    EXPECT_EQ(screen->state().panel, PlannerPanel::None);
    EXPECT_TRUE(screen->dirty());
    EXPECT_EQ(line(*screen, 0)->text(), QStringLiteral("Omelette"));
}

TEST_F(ZcalandarViewTest, NoAtTheQuestionDropsTheLinesWhenThePanelCloses)
{
    auto screen = openShown();
    typeInto(line(*screen, 0), QStringLiteral("Omelette"));
    dialogs.expectMessage(kPrintViewQuestion.title, kPrintViewQuestion.text, Answer::No);
    act(*screen, "mPrintView")->trigger();
    EXPECT_FALSE(screen->dirty());
    view(*screen)->button(MenuViewPanel::kClose)->click();
    EXPECT_EQ(line(*screen, 0)->text(), QString()) << "the day is loaded again";
    EXPECT_FALSE(ReadDay(kToday).isFull());
}

TEST_F(ZcalandarViewTest, TheCurrentDateAloneFillsOneRow)
{
    saveWeek();
    auto screen = openShown();
    act(*screen, "mPrintView")->trigger();
    view(*screen)->button(MenuViewPanel::kView)->click();
    ScreenGrid* grid = table(*screen);
    ASSERT_TRUE(grid->isVisible());
    EXPECT_EQ(grid->headings(), (QStringList{"Day", "Breakfast", "Lunch", "Dinner"}));
    ASSERT_EQ(grid->rowCount(), 1);
    EXPECT_EQ(grid->rowTexts(0), (QStringList{"Fri - Apr 03, 2026", "Breakfast of day 1", "", ""}));
    EXPECT_EQ(grid->rowHeight(0), int(screen->height() * 0.032));
    const int width = grid->viewport()->width();
    EXPECT_EQ(grid->columnWidth(0), int(width * .18));
    for (int column = 1; column < 4; ++column)
        EXPECT_EQ(grid->columnWidth(column), int(width * .27)) << column;
    EXPECT_TRUE(dialogs.messages().isEmpty());
}

TEST_F(ZcalandarViewTest, ARunShowsEveryDayAndMultiLineCells)
{
    saveWeek();
    auto screen = openShown();
    act(*screen, "mPrintView")->trigger();
    choosePlus(*screen, 9);
    view(*screen)->button(MenuViewPanel::kView)->click();
    ScreenGrid* grid = table(*screen);
    ASSERT_EQ(grid->rowCount(), 10) << "the day and nine more";
    EXPECT_EQ(grid->text(1, 3), QStringLiteral("Roast\nPotatoes\nGravy"));
    EXPECT_EQ(grid->rowHeight(1), int(screen->height() * 0.032 * 3));
    EXPECT_EQ(grid->rowTexts(9), (QStringList{"Sun - Apr 12, 2026", "No menu items were found", "", ""}));
    // A change of the list or of the option while the table shows redoes it.
    view(*screen)->dayList()->setCurrentIndex(2);
    EXPECT_EQ(grid->rowCount(), 4);
    view(*screen)->currentDateOnlyChoice()->click();
    EXPECT_EQ(grid->rowCount(), 1);
}

TEST_F(ZcalandarViewTest, ARunOverNewYearInDayFirstDates)
{
    const PinnedDates dayFirst(kBritain);
    clock.set(QDateTime(QDate(2026, 12, 25), QTime(10, 0)));
    MenuLines christmas;
    christmas[14] = QStringLiteral("Turkey");
    ASSERT_TRUE(SaveDay(MenuPlaceOf(QDate(2026, 12, 25)), christmas));
    MenuLines newYear;
    newYear[0] = QStringLiteral("Kedgeree");
    ASSERT_TRUE(SaveDay(MenuPlaceOf(QDate(2027, 1, 1)), newYear));
    auto screen = openShown();
    act(*screen, "mPrintView")->trigger();
    choosePlus(*screen, 10);
    view(*screen)->button(MenuViewPanel::kView)->click();
    ScreenGrid* grid = table(*screen);
    ASSERT_EQ(grid->rowCount(), 11);
    EXPECT_EQ(grid->rowTexts(0), (QStringList{"Fri - 25 Dec 2026", "", "", "Turkey"}));
    EXPECT_EQ(grid->rowTexts(7), (QStringList{"Fri - 01 Jan 2027", "Kedgeree", "", ""}));
    EXPECT_EQ(grid->text(10, 0), QStringLiteral("Mon - 04 Jan 2027"));
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral(" 2027.Mnu"))));
}

TEST_F(ZcalandarViewTest, BlankLinesHaveNoEntriesToView)
{
    auto screen = openShown();
    act(*screen, "mPrintView")->trigger();
    dialogs.expectMessage(QStringLiteral("Print"), QStringLiteral("There are no Entries to view."));
    view(*screen)->button(MenuViewPanel::kView)->click();
    ASSERT_EQ(dialogs.messages().size(), 1);
    EXPECT_EQ(dialogs.messages()[0].icon, Icon::Information);
    EXPECT_FALSE(table(*screen)->isVisible());
    EXPECT_TRUE(view(*screen)->isVisible()) << "the panel stays open";
}

TEST_F(ZcalandarViewTest, LinesOfADayNeverSavedHaveNoEnteriesToView)
{
    auto screen = openShown();
    typeInto(line(*screen, 0), QStringLiteral("Muesli"));
    dialogs.expectMessage(kPrintViewQuestion.title, kPrintViewQuestion.text, Answer::No);
    act(*screen, "mPrintView")->trigger();
    dialogs.expectMessage(QStringLiteral("View"), QStringLiteral("There are no enteries to view."));
    view(*screen)->button(MenuViewPanel::kView)->click();
    EXPECT_EQ(dialogs.messages().last().icon, Icon::Information);
    EXPECT_FALSE(table(*screen)->isVisible());
}

// Edge case: a range of 31 days with only empty days ends in the "enteries"
// message and a hidden table.
TEST_F(ZcalandarViewTest, ThirtyOneEmptyDaysEndInTheEnteriesMessageAndAHiddenTable)
{
    MenuLines tomorrow;
    tomorrow[0] = QStringLiteral("Waffles");
    ASSERT_TRUE(SaveDay(MenuPlaceOf(kToday.addDays(1)), tomorrow));
    auto screen = openShown();
    act(*screen, "mPrintView")->trigger();
    choosePlus(*screen, 1);
    view(*screen)->button(MenuViewPanel::kView)->click();
    ASSERT_TRUE(table(*screen)->isVisible());
    ASSERT_EQ(table(*screen)->rowCount(), 2);
    // The plans go; a run of the day and 31 more finds nothing.
    folder.writeBytes(QStringLiteral(" 2026.Mnu"), QByteArray());
    dialogs.expectMessage(QStringLiteral("View"), QStringLiteral("There are no enteries to view."));
    view(*screen)->dayList()->setCurrentIndex(30);
    ASSERT_EQ(dialogs.messages().size(), 1);
    EXPECT_EQ(dialogs.messages()[0].icon, Icon::Information);
    EXPECT_FALSE(table(*screen)->isVisible());
    EXPECT_TRUE(view(*screen)->isVisible());
    EXPECT_EQ(view(*screen)->followingDays(), 31);
}

TEST_F(ZcalandarViewTest, CloseHidesTheTableAndUnlocks)
{
    saveWeek();
    auto screen = openShown();
    act(*screen, "mPrintView")->trigger();
    view(*screen)->button(MenuViewPanel::kView)->click();
    view(*screen)->button(MenuViewPanel::kClose)->click();
    EXPECT_FALSE(view(*screen)->isVisible());
    EXPECT_FALSE(table(*screen)->isVisible());
    EXPECT_TRUE(line(*screen, 0)->isEnabled());
    EXPECT_EQ(line(*screen, 0)->text(), QStringLiteral("Breakfast of day 1"));
    EXPECT_TRUE(act(*screen, "mCalendarOptions")->isEnabled());
    EXPECT_TRUE(button(*screen, 3)->hasFocus());
}

// ---- Printing ------------------------------------------------------------------------

TEST_F(ZcalandarViewTest, BlankLinesHaveNoEntriesToPrint)
{
    auto screen = openShown();
    act(*screen, "mPrintView")->trigger();
    dialogs.expectMessage(QStringLiteral("Print"), QStringLiteral("There are no Entries to print."));
    view(*screen)->button(MenuViewPanel::kPrintOptions)->click();
    EXPECT_EQ(dialogs.messages().last().icon, Icon::Information);
    EXPECT_FALSE(screen->printPanel()->isVisible());
}

TEST_F(ZcalandarViewTest, TheToolbarsPrintOpensThePrintOptionsOnTheViewPanel)
{
    saveWeek();
    folder.copyIn(TestDataFile(QStringLiteral("GColor4.Fil")));
    auto screen = openShown();
    act(*screen, "mToolbarPrint")->trigger();
    ASSERT_TRUE(view(*screen)->isVisible());
    act(*screen, "mToolbarPrint")->trigger();
    PrintOptionsPanel* panel = screen->printPanel();
    ASSERT_TRUE(panel->isVisible());
    EXPECT_EQ(status(*screen), QStringLiteral("Print"));
    EXPECT_FALSE(screen->findChild<QMenu*>("mOptions")->menuAction()->isVisible()) << "the options menu is hidden";
    EXPECT_EQ(PrintFont().name, QStringLiteral("Times New Roman")) << "MS Sans Serif prints in Times New Roman";
    EXPECT_EQ(PrintFont().size, 12);
    EXPECT_TRUE(screen->printOptions()->printDate());
    EXPECT_TRUE(screen->printOptions()->gridLines());
    EXPECT_EQ(screen->printOptions()->printDateBox()->text(), QStringLiteral("Print Date on each page"));
    EXPECT_EQ(screen->printOptions()->gridLinesBox()->text(), QStringLiteral("Print Grid Lines"));
    for (const Page& page : panel->document().pages) {
        for (const TextItem& text : page.texts())
            EXPECT_EQ(text.font.name, QStringLiteral("Times New Roman")) << text.text.toStdString();
    }
    const QStringList texts = panel->document().allTexts();
    EXPECT_TRUE(texts.contains(QStringLiteral(" Friday, April 3, 2026")));
    EXPECT_TRUE(texts.contains(QStringLiteral(" Breakfast of day 1")));
    EXPECT_TRUE(texts.contains(QStringLiteral("Printed on Friday, April 3, 2026")));
    EXPECT_FALSE(act(*screen, "mToolbarPrint")->isEnabled());
}

TEST_F(ZcalandarViewTest, ThePrintOptionsComposeTheRunAndFollowTheirChoices)
{
    saveWeek();
    Process().FamilyName = QStringLiteral("Miller");
    auto screen = openShown();
    act(*screen, "mPrintView")->trigger();
    choosePlus(*screen, 2);
    view(*screen)->button(MenuViewPanel::kPrintOptions)->click();
    PrintOptionsPanel* panel = screen->printPanel();
    QStringList texts = panel->document().allTexts();
    EXPECT_TRUE(texts.contains(QStringLiteral("Miller Menu Planner")));
    EXPECT_TRUE(texts.contains(QStringLiteral(" Sunday, April 5, 2026")));
    EXPECT_TRUE(texts.contains(QStringLiteral(" Roast")));
    EXPECT_EQ(PrintFont().size, 14) << "no stored size";
    screen->printOptions()->printDateBox()->click();
    texts = panel->document().allTexts();
    EXPECT_FALSE(texts.contains(QStringLiteral("Printed on Friday, April 3, 2026")));
    bool anyLine = false;
    screen->printOptions()->gridLinesBox()->click();
    for (const PageItem& item : panel->document().pages[0].items)
        anyLine = anyLine || std::holds_alternative<LineItem>(item);
    EXPECT_FALSE(anyLine);
}

TEST_F(ZcalandarViewTest, LeavingThePrintOptionsStoresTheFontInGColor4)
{
    saveWeek();
    folder.copyIn(TestDataFile(QStringLiteral("GColor4.Fil")));
    const QByteArray before = bytesOf(QStringLiteral("GColor4.Fil"));
    auto screen = openShown();
    act(*screen, "mPrintView")->trigger();
    view(*screen)->button(MenuViewPanel::kPrintOptions)->click();
    TextFont chosen = PrintFont();
    chosen.name = QStringLiteral("Liberation Serif");
    chosen.size = 16;
    dialogs.expectFont(chosen);
    screen->printPanel()->command(PrintOptionsPanel::kPrinterFont)->click();
    screen->printPanel()->command(PrintOptionsPanel::kExitPrintOptions)->click();
    EXPECT_FALSE(screen->printPanel()->isVisible());
    EXPECT_TRUE(view(*screen)->isVisible());
    EXPECT_EQ(status(*screen), QStringLiteral("Menu Planner"));
    EXPECT_TRUE(screen->findChild<QMenu*>("mOptions")->menuAction()->isVisible());
    QByteArray expected = before;
    const QByteArray name = QByteArray("\x08\x00\x10\x00", 4) + "Liberation Serif";
    expected.replace(25 * 40, 40, name.leftJustified(40, '\0'));
    expected.replace(26 * 40, 40, QByteArray("\x03\x00\x10\x00\x00\x00", 6).leftJustified(40, '\0'));
    EXPECT_EQ(bytesOf(QStringLiteral("GColor4.Fil")), expected);
}

TEST_F(ZcalandarViewTest, APrintoutToPdfHoldsTheMenus)
{
    saveWeek();
    auto screen = openShown();
    act(*screen, "mPrintView")->trigger();
    choosePlus(*screen, 1);
    view(*screen)->button(MenuViewPanel::kPrintOptions)->click();
    const QString pdf = folder.filePath(QStringLiteral("menus.pdf"));
    dialogs.expectPrint(pdf);
    screen->printPanel()->command(PrintOptionsPanel::kPrint)->click();
    ASSERT_EQ(dialogs.printJobs().size(), 1);
    EXPECT_EQ(dialogs.printJobs()[0].title, QStringLiteral("Menu Planner"));
    const QString text = PdfText(pdf);
    for (const char* part : {"Menu Planner", "Friday, April 3, 2026", "Saturday, April 4, 2026", "Breakfast of day 1",
                             "Roast", "Potatoes", "Gravy", "Lunch", "Dinner", "Page 1"})
        EXPECT_TRUE(text.contains(QString::fromLatin1(part))) << part << "\n" << text.toStdString();
}

TEST_F(ZcalandarViewTest, EscapeLeavesTheLargeViewThePrintOptionsTheViewThenTheScreen)
{
    saveWeek();
    auto screen = openShown();
    act(*screen, "mPrintView")->trigger();
    view(*screen)->button(MenuViewPanel::kPrintOptions)->click();
    PrintOptionsPanel* panel = screen->printPanel();
    panel->enlargeButton()->click();
    ASSERT_TRUE(panel->preview()->large());
    screen->pressEscape();
    EXPECT_FALSE(panel->preview()->large());
    EXPECT_TRUE(panel->isVisible());
    screen->pressEscape();
    EXPECT_FALSE(panel->isVisible());
    EXPECT_TRUE(view(*screen)->isVisible());
    screen->pressEscape();
    EXPECT_FALSE(view(*screen)->isVisible());
    EXPECT_TRUE(screen->isVisible());
    screen->pressEscape();
    EXPECT_FALSE(screen->isVisible()) << "nothing open: Escape is E&xit";
}

TEST_F(ZcalandarViewTest, ThePrintoutsDatesAreDayFirstUnderOther)
{
    const PinnedDates dayFirst(kBritain);
    saveWeek();
    auto screen = openShown();
    act(*screen, "mPrintView")->trigger();
    view(*screen)->button(MenuViewPanel::kPrintOptions)->click();
    const QStringList texts = screen->printPanel()->document().allTexts();
    EXPECT_TRUE(texts.contains(QStringLiteral("Printed on Friday, 3 April 2026")));
    EXPECT_TRUE(texts.contains(QStringLiteral(" Friday, 3 April 2026")));
}

TEST_F(ZcalandarViewTest, TheGuideLineChoiceIsKeptInGColor3Slot42)
{
    saveWeek();
    auto screen = openShown();
    act(*screen, "mPrintView")->trigger();
    view(*screen)->button(MenuViewPanel::kPrintOptions)->click();
    screen->printPanel()->findChild<QRadioButton*>(QStringLiteral("GuideLineOption_1"))->click();
    EXPECT_TRUE(screen->printPanel()->preview()->guideLines());
    EXPECT_EQ(ReadSlotText(GColor3, 42), QStringLiteral("1"));
}

// ---- Copying -------------------------------------------------------------------------

TEST_F(ZcalandarViewTest, BlankLinesHaveNoEntriesToCopy)
{
    auto screen = openShown();
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    dialogs.expectMessage(QStringLiteral("Copy"), QStringLiteral("There are currently No Entries to Copy!"));
    act(*screen, "mCopy")->trigger();
    EXPECT_EQ(dialogs.messages().last().icon, Icon::Information);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
}

TEST_F(ZcalandarViewTest, CopyPutsTheDayOnTheClipboardInColumns)
{
    auto screen = openShown();
    // A font whose every character is as wide as every other, so the padding
    // counts in characters.
    screen->setFont(QFont(QStringLiteral("Liberation Mono"), 10));
    typeInto(line(*screen, 0), QStringLiteral("Eggs"));
    typeInto(line(*screen, 2), QStringLiteral("Toast and marmalade"));
    typeInto(line(*screen, 7), QStringLiteral("Soup"));
    typeInto(line(*screen, 16), QStringLiteral("Pie"));
    dialogs.expectMessage(QStringLiteral("Copy Option"), QStringLiteral("Data has been copied to the Windows Clipboard."));
    act(*screen, "mCopy")->trigger();
    EXPECT_EQ(dialogs.messages().last().icon, Icon::Information);
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              QStringLiteral("Menu Planner for  Friday, April 3, 2026:\r\n"
                             "\r\n"
                             "Breakfast          \tLunch\tDinner\r\n"
                             "\r\n"
                             "Eggs               \tSoup \t\r\n"
                             "Toast and marmalade\t     \tPie\r\n"));
}
