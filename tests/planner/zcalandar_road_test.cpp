// A week planned across New Year, by the road a user takes through every
// command of the planner: calendar options, typing and picking dishes,
// saving, clearing, the lists, the colours, the view, a printout to PDF, a
// page and a day copied, backup and restore, a day out of sight, and the
// way out. Every message shown is checked, once, in order.
#include "zcalandar_fixture.h"
#include "test_bytes.h"

#include "planner/screens/calendaroptionspanel.h"
#include "planner/screens/editlistspanel.h"
#include "planner/screens/menuviewpanel.h"
#include "print/logic/printfont.h"
#include "print/screens/printoptionspanel.h"
#include "shell/kit/droplist.h"
#include "shell/kit/screengrid.h"

#include "pdf_text.h"

#include <QClipboard>
#include <QComboBox>
#include <QRadioButton>
#include <QSignalSpy>

namespace {

const QDate kMonday(2026, 12, 28);

} // namespace

TEST_F(ZcalandarTest, AWeekAcrossNewYearFromPlanToPrintout)
{
    PrintFont() = TextFont{};
    clock.set(QDateTime(kMonday, QTime(18, 30)));
    folder.writeBytes(QStringLiteral("Menu1.Fil"), QuotedLineBytes({"Porridge"}));
    folder.writeBytes(QStringLiteral("Menu3.Fil"), QuotedLineBytes({"Stew"}));
    auto screen = openShown();
    // A font whose characters are all alike wide, for the copied columns.
    screen->setFont(QFont(QStringLiteral("Liberation Mono"), 10));
    QList<Message> shown;
    const auto expect = [&](const Message& message, Answer answer) {
        dialogs.expectMessage(message.title, message.text, answer);
        shown.append(message);
    };
    const Message nextAction{QStringLiteral("Menu Planner"), QStringLiteral("Save changes/entries before next action?"),
                             Buttons::YesNo, Icon::None, 1};

    // Three months side by side.
    act(*screen, "mCalendarOptions")->trigger();
    screen->optionsPanel()->choice(CalendarOptionsPanel::kMonths, 2)->click();
    screen->optionsPanel()->closeButton()->click();
    ASSERT_EQ(screen->calendar()->monthCount(), 3);
    EXPECT_EQ(screen->calendar()->calendar(1)->yearShown(), 2027);

    // Monday: three meals typed, each line left by Enter or a click.
    typeInto(line(*screen, 0), QStringLiteral("Pancakes"));
    QTest::keyClick(line(*screen, 0), Qt::Key_Return);
    QTest::keyClicks(line(*screen, 1), QStringLiteral("Juice"));
    typeInto(line(*screen, 7), QStringLiteral("Tomato soup"));
    QTest::keyClick(line(*screen, 7), Qt::Key_Return);
    typeInto(line(*screen, 14), QStringLiteral("Roast"));
    QTest::keyClick(line(*screen, 14), Qt::Key_Return);
    button(*screen, 0)->click();
    EXPECT_EQ(bytesOf(QStringLiteral("Menu1.Fil")), QuotedLineBytes({"Juice", "Pancakes", "Porridge"}));
    EXPECT_EQ(bytesOf(QStringLiteral("Menu2.Fil")), QuotedLineBytes({"Tomato soup"}));
    EXPECT_EQ(bytesOf(QStringLiteral("Menu3.Fil")), QuotedLineBytes({"Roast", "Stew"}));

    // Tuesday, left unsaved for Wednesday: Yes writes it to Tuesday.
    pickDay(*screen, kMonday.addDays(1));
    typeInto(line(*screen, 0), QStringLiteral("Waffles"));
    expect(nextAction, Answer::Yes);
    pickDay(*screen, kMonday.addDays(2));

    // Wednesday: dinner picked from the dinner list.
    QTest::mouseClick(line(*screen, 14), Qt::LeftButton);
    QTest::keyClick(line(*screen, 14), Qt::Key_F4);
    DropList* dinners = screen->linesPanel()->dropList(Meal::Dinner);
    ASSERT_TRUE(dinners->isVisible());
    dinners->setCurrentRow(1);
    QTest::keyClick(dinners, Qt::Key_Return);
    EXPECT_EQ(line(*screen, 14)->text(), QStringLiteral("Stew"));
    act(*screen, "mSave")->trigger();

    // New Year's Eve saved with nothing planned.
    pickDay(*screen, QDate(2026, 12, 31));
    expect({QStringLiteral("Save"), QStringLiteral("There are currently No Entries to Save!\nSave anyway?"),
            Buttons::YesNo, Icon::Information, 2},
           Answer::Yes);
    act(*screen, "mSave")->trigger();

    // New Year's Day on the second calendar, then cleared and left with No.
    pickDay(*screen, QDate(2027, 1, 1));
    EXPECT_EQ(datePanel(*screen), QStringLiteral("Friday, January 1, 2027"));
    typeInto(line(*screen, 7), QStringLiteral("Brunch buffet"));
    act(*screen, "mSave")->trigger();
    expect({QStringLiteral("Clear Entries"), QStringLiteral("Clear all Entries for Friday, January 1, 2027?"),
            Buttons::YesNoCancel, Icon::None, 1},
           Answer::Yes);
    act(*screen, "mClearEntries")->trigger();
    expect(nextAction, Answer::No);
    pickDay(*screen, QDate(2027, 1, 2));
    typeInto(line(*screen, 14), QStringLiteral("Fish pie"));
    act(*screen, "mSave")->trigger();

    // The dinner list: one dish added, one refused, one deleted.
    act(*screen, "mEditLists")->trigger();
    EditListsPanel* editor = screen->editListsPanel();
    editor->button(EditListsPanel::kDinnerList)->click();
    QTest::keyClicks(editor->newItemBox(), QStringLiteral("Lasagne"));
    QTest::keyClick(editor->newItemBox(), Qt::Key_Return);
    expect({QStringLiteral("Edit Routine"), QStringLiteral("Entry already exists!"), Buttons::Ok, Icon::Information, 1},
           Answer::Ok);
    QTest::keyClicks(editor->newItemBox(), QStringLiteral("STEW"));
    QTest::keyClick(editor->newItemBox(), Qt::Key_Return);
    const int roast = editor->itemList()->findText(QStringLiteral("Roast"));
    editor->itemList()->setCurrentIndex(roast);
    emit editor->itemList()->activated(roast);
    editor->button(EditListsPanel::kDelete)->click();
    editor->button(EditListsPanel::kClose)->click();
    EXPECT_EQ(bytesOf(QStringLiteral("Menu3.Fil")), QuotedLineBytes({"Lasagne", "Stew"}));

    // Colours: the text colour taken, the panel colour question cancelled.
    dialogs.expectColor(8388608);
    act(*screen, "mTextColor")->trigger();
    expect({QStringLiteral("Panel Color"),
            QStringLiteral("Select New Color or Use System Default Color?\nYes = Color Selection Panel will appear.\n"
                           "No = Current System Default Color will be selected."),
            Buttons::YesNoCancel, Icon::Information, 1},
           Answer::Cancel);
    act(*screen, "mPanelColor")->trigger();

    // The week in the view, over New Year.
    pickDay(*screen, kMonday);
    act(*screen, "mPrintView")->trigger();
    MenuViewPanel* view = screen->viewPanel();
    view->currentDatePlusChoice()->click();
    view->dayList()->setCurrentIndex(5);
    view->button(MenuViewPanel::kView)->click();
    ScreenGrid* table = view->table();
    ASSERT_EQ(table->rowCount(), 7);
    EXPECT_EQ(table->rowTexts(0), (QStringList{"Mon - Dec 28, 2026", "Pancakes\nJuice", "Tomato soup", "Roast"}));
    EXPECT_EQ(table->rowTexts(1), (QStringList{"Tue - Dec 29, 2026", "Waffles", "", ""}));
    EXPECT_EQ(table->rowTexts(2), (QStringList{"Wed - Dec 30, 2026", "", "", "Stew"}));
    EXPECT_EQ(table->rowTexts(3), (QStringList{"Thu - Dec 31, 2026", "", "", ""}));
    EXPECT_EQ(table->rowTexts(4), (QStringList{"Fri - Jan 01, 2027", "", "Brunch buffet", ""}));
    EXPECT_EQ(table->rowTexts(5), (QStringList{"Sat - Jan 02, 2027", "", "", "Fish pie"}));
    EXPECT_EQ(table->rowTexts(6), (QStringList{"Sun - Jan 03, 2027", "No menu items were found", "", ""}));

    // Printed to PDF, a page copied, the print options left.
    act(*screen, "mToolbarPrint")->trigger();
    PrintOptionsPanel* print = screen->printPanel();
    ASSERT_TRUE(print->isVisible());
    const QString pdf = folder.filePath(QStringLiteral("week.pdf"));
    dialogs.expectPrint(pdf);
    print->command(PrintOptionsPanel::kPrint)->click();
    const QString printed = PdfText(pdf);
    for (const char* part : {"Menu Planner", "Printed on Monday, December 28, 2026", "Monday, December 28, 2026",
                             "Pancakes", "Thursday, December 31, 2026", "Friday, January 1, 2027", "Brunch buffet",
                             "Sunday, January 3, 2027", "No menu items were found for this date.", "Page 1"})
        EXPECT_TRUE(printed.contains(QString::fromLatin1(part))) << part << "\n" << printed.toStdString();
    expect({QStringLiteral("Copy Option"), QStringLiteral("Current Page has been copied to the Windows Clipboard."),
            Buttons::Ok, Icon::None, 1},
           Answer::Ok);
    print->command(PrintOptionsPanel::kCopyCurrentPage)->click();
    EXPECT_FALSE(QGuiApplication::clipboard()->image().isNull());
    print->command(PrintOptionsPanel::kExitPrintOptions)->click();
    view->button(MenuViewPanel::kClose)->click();

    // Monday on the clipboard.
    expect({QStringLiteral("Copy Option"), QStringLiteral("Data has been copied to the Windows Clipboard."), Buttons::Ok,
            Icon::Information, 1},
           Answer::Ok);
    act(*screen, "mCopy")->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              QStringLiteral("Menu Planner for  Monday, December 28, 2026:\r\n\r\n"
                             "Breakfast\tLunch      \tDinner\r\n\r\n"
                             "Pancakes \tTomato soup\tRoast\r\n"
                             "Juice    \t           \t\r\n"));

    // Backup and restore of 2026.
    QList<std::pair<int, int>> opened;
    screen->setBackupOpener([&opened](int mode, int year) { opened.append({mode, year}); });
    emit screen->findChild<QMenu*>("mUtilities")->aboutToShow();
    act(*screen, "mBackup")->trigger();
    act(*screen, "mRestore")->trigger();
    EXPECT_EQ(opened, (QList<std::pair<int, int>>{{34, 2026}, {35, 2026}}));
    EXPECT_EQ(screen->currentDate(), kMonday);

    // Paged past December: no day, and a line asks for one.
    screen->calendar()->calendar(0)->showNextMonth();
    EXPECT_FALSE(screen->state().daySelected);
    expect({QStringLiteral("Data Entry"), QStringLiteral("Please select a Day before entering data!"), Buttons::Ok,
            Icon::Information, 1},
           Answer::Ok);
    QTest::mouseClick(line(*screen, 0), Qt::LeftButton);

    // Sunday planned and saved on the way out.
    pickDay(*screen, QDate(2027, 1, 3));
    typeInto(line(*screen, 14), QStringLiteral("Lasagne"));
    expect({QStringLiteral("Menu Planner"), QStringLiteral("Save changes/entries before next action or exiting?"),
            Buttons::YesNoCancel, Icon::None, 1},
           Answer::Yes);
    QSignalSpy closed(screen.get(), &ActivityWindow::closed);
    act(*screen, "mExit")->trigger();
    EXPECT_EQ(closed.count(), 1);

    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_TRUE(dialogs.messages() == shown);
    ASSERT_EQ(dialogs.messages().size(), shown.size());
    for (int i = 0; i < shown.size(); ++i)
        EXPECT_EQ(dialogs.messages()[i].text, shown[i].text) << i;
    EXPECT_EQ(ReadDay(kMonday).shownLines(), LinesWith({{0, "Pancakes"}, {1, "Juice"}, {7, "Tomato soup"}, {14, "Roast"}}));
    EXPECT_EQ(ReadDay(QDate(2026, 12, 29)).line(0), QStringLiteral("Waffles"));
    EXPECT_EQ(ReadDay(QDate(2027, 1, 1)).line(7), QStringLiteral("Brunch buffet")) << "cleared, never saved";
    EXPECT_EQ(ReadDay(QDate(2027, 1, 3)).line(14), QStringLiteral("Lasagne"));
    EXPECT_EQ(ReadSlotText(Settings::ZcalandarTextColor), QStringLiteral("8388608"));
    PrintFont() = TextFont{};
}
