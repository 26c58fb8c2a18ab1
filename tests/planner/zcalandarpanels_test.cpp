// The planner's panels: the list editor, the calendar options, the text
// colour, the panel colour, and backup and restore through the opener.
#include "zcalandar_fixture.h"
#include "test_bytes.h"

#include "planner/screens/calendaroptionspanel.h"
#include "planner/screens/editlistspanel.h"
#include "planner/screens/menuviewpanel.h"
#include "shell/kit/droplist.h"
#include "shell/kit/screengrid.h"

#include "common/colors.h"
#include "common/widgets/qtcolors.h"
#include "raw_slots.h"

#include <QComboBox>
#include <QDir>
#include <QRadioButton>
#include <QToolBar>

namespace {

QStringList ItemsOf(QComboBox* list)
{
    QStringList items;
    for (int i = 0; i < list->count(); ++i)
        items.append(list->itemText(i));
    return items;
}

void Pick(QComboBox* list, const QString& text)
{
    const int index = list->findText(text);
    ASSERT_GE(index, 0) << text.toStdString();
    list->setCurrentIndex(index);
    emit list->activated(index);
}

} // namespace

// ---- The list editor ---------------------------------------------------------------

TEST_F(ZcalandarTest, EditListsOpensOnTheBreakfastListAndLocksTheDay)
{
    folder.copyIn(TestDataFile(QStringLiteral("Menu1.Fil")));
    auto screen = openShown();
    button(*screen, 2)->click();
    EditListsPanel* panel = screen->editListsPanel();
    ASSERT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->captionLabel()->text(), QStringLiteral("Edit Lists"));
    EXPECT_EQ(status(*screen), QStringLiteral("Edit Lists"));
    EXPECT_EQ(panel->heading()->text(), QStringLiteral("Edit Breakfast List"));
    EXPECT_TRUE(panel->instructions()->text().startsWith(QStringLiteral("To Add a New Breakfast Item:")));
    const char* const captions[] = {"&Breakfast List", "&Lunch List", "&Dinner List", "&Delete", "&Close"};
    for (int index = 0; index < 5; ++index)
        EXPECT_EQ(panel->button(index)->text(), QString::fromLatin1(captions[index]));
    EXPECT_FALSE(panel->button(EditListsPanel::kBreakfastList)->isEnabled());
    EXPECT_TRUE(panel->button(EditListsPanel::kLunchList)->isEnabled());
    EXPECT_FALSE(panel->button(EditListsPanel::kDelete)->isEnabled());
    EXPECT_EQ(ItemsOf(panel->itemList()).size(), 7);
    EXPECT_TRUE(panel->newItemBox()->hasFocus());
    for (const char* name : {"mSave", "mClearEntries", "mEditLists", "mPrintView", "mCopy", "mCalendarOptions"})
        EXPECT_FALSE(act(*screen, name)->isEnabled()) << name;
    EXPECT_FALSE(line(*screen, 0)->isEnabled());
    EXPECT_TRUE(act(*screen, "mExit")->isEnabled());
}

TEST_F(ZcalandarTest, EachListButtonShowsItsListFreshFromItsFile)
{
    auto screen = openShown();
    button(*screen, 2)->click();
    folder.writeBytes(QStringLiteral("Menu3.Fil"), QuotedLineBytes({"Stew", "Curry"}));
    EditListsPanel* panel = screen->editListsPanel();
    panel->button(EditListsPanel::kDinnerList)->click();
    EXPECT_EQ(panel->heading()->text(), QStringLiteral("Edit Dinner List"));
    EXPECT_TRUE(panel->instructions()->text().contains(QStringLiteral("Type New Dinner Item and then")));
    EXPECT_EQ(ItemsOf(panel->itemList()), (QStringList{"Curry", "Stew"}));
    EXPECT_EQ(screen->linesPanel()->dropList(Meal::Dinner)->count(), 2) << "the meal's drop-down too";
    EXPECT_FALSE(panel->button(EditListsPanel::kDinnerList)->isEnabled());
    EXPECT_TRUE(panel->button(EditListsPanel::kBreakfastList)->isEnabled());
    panel->button(EditListsPanel::kLunchList)->click();
    EXPECT_EQ(panel->heading()->text(), QStringLiteral("Edit Lunch List"));
    EXPECT_EQ(panel->meal(), Meal::Lunch);
}

TEST_F(ZcalandarTest, EnterInTheBoxAddsTheItemInOrder)
{
    folder.copyIn(TestDataFile(QStringLiteral("Menu1.Fil")));
    auto screen = openShown();
    button(*screen, 2)->click();
    EditListsPanel* panel = screen->editListsPanel();
    QTest::keyClicks(panel->newItemBox(), QStringLiteral("Granola"));
    QTest::keyClick(panel->newItemBox(), Qt::Key_Return);
    EXPECT_EQ(bytesOf(QStringLiteral("Menu1.Fil")),
              QByteArray("\"bacon\"\r\n\"Bagel\"\r\n\"Caf\xe9 cr\xe8me\"\r\n\"eggs and toast\"\r\n\"Granola\"\r\n"
                         "\"Oatmeal\"\r\n\"Pancakes\"\r\n\"Waffles\"\r\n"));
    EXPECT_TRUE(ItemsOf(panel->itemList()).contains(QStringLiteral("Granola")));
    EXPECT_EQ(screen->linesPanel()->dropList(Meal::Breakfast)->count(), 8);
    EXPECT_EQ(panel->newItemBox()->text(), QString());
    EXPECT_FALSE(panel->button(EditListsPanel::kDelete)->isEnabled());
    EXPECT_TRUE(dialogs.messages().isEmpty());
}

TEST_F(ZcalandarTest, AnItemTheListHasInAnyCaseIsRefused)
{
    folder.copyIn(TestDataFile(QStringLiteral("Menu1.Fil")));
    const QByteArray before = bytesOf(QStringLiteral("Menu1.Fil"));
    auto screen = openShown();
    button(*screen, 2)->click();
    EditListsPanel* panel = screen->editListsPanel();
    dialogs.expectMessage(QStringLiteral("Edit Routine"), QStringLiteral("Entry already exists!"));
    QTest::keyClicks(panel->newItemBox(), QStringLiteral("WAFFLES"));
    QTest::keyClick(panel->newItemBox(), Qt::Key_Return);
    ASSERT_EQ(dialogs.messages().size(), 1);
    EXPECT_EQ(dialogs.messages()[0].icon, Icon::Information);
    EXPECT_EQ(bytesOf(QStringLiteral("Menu1.Fil")), before);
    EXPECT_EQ(panel->newItemBox()->text(), QString());
    QTest::keyClick(panel->newItemBox(), Qt::Key_Return);
    EXPECT_EQ(dialogs.messages().size(), 1) << "Enter in an empty box does nothing";
}

TEST_F(ZcalandarTest, TheBoxTakesThirtyTypedCharactersAndNoDoubleQuote)
{
    auto screen = openShown();
    button(*screen, 2)->click();
    QLineEdit* box = screen->editListsPanel()->newItemBox();
    QTest::keyClicks(box, QStringLiteral("\"Big\" ") + QString(40, u'b'));
    EXPECT_EQ(box->text(), QStringLiteral("Big ") + QString(26, u'b'));
}

TEST_F(ZcalandarTest, APickedItemIsDeletedWithItsButton)
{
    folder.copyIn(TestDataFile(QStringLiteral("Menu1.Fil")));
    auto screen = openShown();
    button(*screen, 2)->click();
    EditListsPanel* panel = screen->editListsPanel();
    Pick(panel->itemList(), QStringLiteral("Bagel"));
    EXPECT_EQ(panel->newItemBox()->text(), QStringLiteral("Bagel"));
    EXPECT_EQ(panel->newItemBox()->palette().color(QPalette::Base), ColorFromColorref(QBColor(kFocusColorIndex)));
    ASSERT_TRUE(panel->button(EditListsPanel::kDelete)->isEnabled());
    EXPECT_TRUE(panel->button(EditListsPanel::kDelete)->hasFocus());
    panel->button(EditListsPanel::kDelete)->click();
    EXPECT_EQ(bytesOf(QStringLiteral("Menu1.Fil")),
              QByteArray("\"bacon\"\r\n\"Caf\xe9 cr\xe8me\"\r\n\"eggs and toast\"\r\n\"Oatmeal\"\r\n\"Pancakes\"\r\n"
                         "\"Waffles\"\r\n"));
    EXPECT_FALSE(ItemsOf(panel->itemList()).contains(QStringLiteral("Bagel")));
    EXPECT_EQ(screen->linesPanel()->dropList(Meal::Breakfast)->count(), 6);
    EXPECT_EQ(panel->newItemBox()->text(), QString());
    EXPECT_FALSE(panel->button(EditListsPanel::kDelete)->isEnabled());
    EXPECT_TRUE(panel->button(EditListsPanel::kClose)->hasFocus());
}

TEST_F(ZcalandarTest, DeleteWithAnEmptyBoxOrAnEmptyListDoesNothing)
{
    folder.copyIn(TestDataFile(QStringLiteral("Menu1.Fil")));
    const QByteArray before = bytesOf(QStringLiteral("Menu1.Fil"));
    auto screen = openShown();
    button(*screen, 2)->click();
    EditListsPanel* panel = screen->editListsPanel();
    emit panel->deleteRequested(QString());
    EXPECT_EQ(bytesOf(QStringLiteral("Menu1.Fil")), before);
    panel->button(EditListsPanel::kLunchList)->click();
    emit panel->deleteRequested(QStringLiteral("Soup"));
    EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("Menu2.Fil"))));
}

TEST_F(ZcalandarTest, AnItemThatCannotBeWrittenStaysInTheBox)
{
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("Menu1.Fil")));
    auto screen = openShown();
    button(*screen, 2)->click();
    EditListsPanel* panel = screen->editListsPanel();
    QTest::keyClicks(panel->newItemBox(), QStringLiteral("Granola"));
    expectWriteFailed(QStringLiteral("Menu1.Fil"));
    QTest::keyClick(panel->newItemBox(), Qt::Key_Return);
    ASSERT_EQ(dialogs.messages().size(), 1);
    EXPECT_EQ(panel->newItemBox()->text(), QStringLiteral("Granola"));
    EXPECT_EQ(screen->list(Meal::Breakfast).count(), 0);
    EXPECT_EQ(panel->itemList()->count(), 0);
}

// The list's file turned into a folder after the editor read it: the
// delete is told, and the list and the box keep the item.
TEST_F(ZcalandarTest, ADeleteThatCannotBeWrittenKeepsTheItem)
{
    folder.copyIn(TestDataFile(QStringLiteral("Menu1.Fil")));
    auto screen = openShown();
    button(*screen, 2)->click();
    EditListsPanel* panel = screen->editListsPanel();
    Pick(panel->itemList(), QStringLiteral("Bagel"));
    ASSERT_TRUE(QFile::remove(folder.filePath(QStringLiteral("Menu1.Fil"))));
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("Menu1.Fil")));
    expectWriteFailed(QStringLiteral("Menu1.Fil"));
    panel->button(EditListsPanel::kDelete)->click();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(screen->list(Meal::Breakfast).count(), 7);
    EXPECT_TRUE(ItemsOf(panel->itemList()).contains(QStringLiteral("Bagel")));
    EXPECT_EQ(screen->linesPanel()->dropList(Meal::Breakfast)->count(), 7);
    EXPECT_EQ(panel->newItemBox()->text(), QStringLiteral("Bagel"));
    EXPECT_TRUE(panel->button(EditListsPanel::kDelete)->isEnabled()) << "the delete may be tried again";
}

TEST_F(ZcalandarTest, CloseRestoresTheScreen)
{
    auto screen = openShown();
    button(*screen, 2)->click();
    screen->editListsPanel()->button(EditListsPanel::kClose)->click();
    EXPECT_FALSE(screen->editListsPanel()->isVisible());
    EXPECT_EQ(status(*screen), QStringLiteral("Menu Planner"));
    EXPECT_TRUE(line(*screen, 0)->isEnabled());
    for (const char* name : {"mSave", "mEditLists", "mPrintView", "mCopy", "mCalendarOptions"})
        EXPECT_TRUE(act(*screen, name)->isEnabled()) << name;
    EXPECT_TRUE(button(*screen, 2)->hasFocus());
    button(*screen, 2)->click();
    screen->pressEscape();
    EXPECT_FALSE(screen->editListsPanel()->isVisible()) << "Escape closes the list editor";
}

// ---- Calendar options --------------------------------------------------------------

TEST_F(ZcalandarTest, CalendarOptionsShowTheStoredChoicesAndTurnTheToolbarOff)
{
    folder.copyIn(TestDataFile(QStringLiteral("SWR2.fil")));
    auto screen = openShown();
    act(*screen, "mCalendarOptions")->trigger();
    CalendarOptionsPanel* panel = screen->optionsPanel();
    ASSERT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->captionLabel()->text(), QStringLiteral("Calendar Display Options"));
    EXPECT_TRUE(panel->choice(CalendarOptionsPanel::kMonths, 2)->isChecked());
    EXPECT_TRUE(panel->choice(CalendarOptionsPanel::kWeekNumbers, 1)->isChecked());
    EXPECT_TRUE(panel->choice(CalendarOptionsPanel::kFirstWeekday, 2)->isChecked());
    EXPECT_TRUE(panel->choice(CalendarOptionsPanel::kShowToday, 1)->isChecked());
    EXPECT_TRUE(panel->closeButton()->hasFocus());
    EXPECT_EQ(panel->closeButton()->text(), QStringLiteral("&Close"));
    for (const char* name : {"mPanelColor", "mTextColor", "mEditLists", "mClearEntries", "mCopy", "mToolbarPrint"})
        EXPECT_FALSE(act(*screen, name)->isEnabled()) << name;
    EXPECT_FALSE(screen->findChild<QMenu*>("mOptions")->isEnabled());
    EXPECT_FALSE(screen->findChild<QMenu*>("mEdit")->isEnabled());
    EXPECT_TRUE(act(*screen, "mCalendarOptions")->isEnabled()) << "a second press closes the panel";
    EXPECT_TRUE(act(*screen, "mHelp")->isEnabled());
    EXPECT_FALSE(line(*screen, 0)->isEnabled());
}

// Edge case: changing the first weekday in the options shows at once and
// survives only after "&Close".
TEST_F(ZcalandarTest, ChangingTheFirstWeekdayShowsAtOnceAndIsKeptOnlyOnClose)
{
    auto screen = openShown();
    act(*screen, "mCalendarOptions")->trigger();
    CalendarOptionsPanel* panel = screen->optionsPanel();
    panel->choice(CalendarOptionsPanel::kFirstWeekday, 4)->click();
    EXPECT_EQ(screen->calendar()->calendar(0)->firstDayOfWeek(), Qt::Wednesday);
    EXPECT_EQ(bytesOf(QStringLiteral("SWR2.fil")), QByteArray()) << "nothing written yet";
    panel->closeButton()->click();
    EXPECT_FALSE(panel->isVisible());
    QByteArray expected(13 * 20, '\0');
    expected[11 * 20] = 4;
    EXPECT_EQ(bytesOf(QStringLiteral("SWR2.fil")), expected);
    auto again = open();
    EXPECT_EQ(again->calendar()->calendar(0)->firstDayOfWeek(), Qt::Wednesday);
}

TEST_F(ZcalandarTest, EveryOptionShowsAtOnce)
{
    auto screen = openShown();
    act(*screen, "mCalendarOptions")->trigger();
    CalendarOptionsPanel* panel = screen->optionsPanel();
    CalendarStrip* strip = screen->calendar();
    panel->choice(CalendarOptionsPanel::kMonths, 1)->click();
    EXPECT_EQ(strip->monthCount(), 2);
    EXPECT_FALSE(strip->calendar(1)->isHidden());
    EXPECT_EQ(strip->calendar(1)->monthShown(), 5);
    panel->choice(CalendarOptionsPanel::kWeekNumbers, 1)->click();
    EXPECT_EQ(strip->calendar(0)->verticalHeaderFormat(), QCalendarWidget::NoVerticalHeader);
    panel->choice(CalendarOptionsPanel::kShowToday, 1)->click();
    EXPECT_FALSE(strip->todayLine()->isHidden());
    EXPECT_EQ(strip->todayLine()->text(), QStringLiteral("Today: 4/3/26"));
    panel->choice(CalendarOptionsPanel::kShowToday, 0)->click();
    EXPECT_TRUE(strip->todayLine()->isHidden());
    panel->choice(CalendarOptionsPanel::kFirstWeekday, 7)->click();
    EXPECT_EQ(strip->calendar(1)->firstDayOfWeek(), Qt::Saturday);
    // The toolbar button closes the panel and keeps the choices.
    act(*screen, "mCalendarOptions")->trigger();
    EXPECT_FALSE(panel->isVisible());
    EXPECT_EQ(ReadCalendarOptions(), (CalendarOptions{1, 1, 7, 0}));
    EXPECT_TRUE(act(*screen, "mTextColor")->isEnabled());
    EXPECT_TRUE(screen->findChild<QMenu*>("mOptions")->isEnabled());
}

TEST_F(ZcalandarTest, EscapeClosesTheCalendarOptionsAndKeepsTheChoices)
{
    auto screen = openShown();
    act(*screen, "mCalendarOptions")->trigger();
    screen->optionsPanel()->choice(CalendarOptionsPanel::kMonths, 1)->click();
    screen->pressEscape();
    EXPECT_FALSE(screen->optionsPanel()->isVisible());
    EXPECT_EQ(ReadCalendarOptions().months, 1);
    EXPECT_TRUE(screen->isVisible());
}

TEST_F(ZcalandarTest, OptionsThatCannotBeWrittenKeepThePanelOpen)
{
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("SWR2.fil")));
    auto screen = openShown();
    act(*screen, "mCalendarOptions")->trigger();
    screen->optionsPanel()->choice(CalendarOptionsPanel::kMonths, 2)->click();
    expectWriteFailed(QStringLiteral("SWR2.fil"));
    screen->optionsPanel()->closeButton()->click();
    ASSERT_EQ(dialogs.messages().size(), 1);
    EXPECT_TRUE(screen->optionsPanel()->isVisible());
    EXPECT_EQ(screen->calendar()->monthCount(), 3);
}

// ---- Colours -------------------------------------------------------------------------

TEST_F(ZcalandarTest, TheTextColourColoursTheLinesAndTheViewAndIsStored)
{
    auto screen = openShown();
    dialogs.expectColor(255);
    act(*screen, "mTextColor")->trigger();
    EXPECT_EQ(line(*screen, 3)->palette().color(QPalette::Text), QColor(255, 0, 0));
    EXPECT_EQ(screen->viewPanel()->table()->palette().color(QPalette::Text), QColor(255, 0, 0));
    EXPECT_EQ(ReadSlotText(GColor2, 23), QStringLiteral("255"));
    QByteArray expected(23 * 20, '\0');
    expected[22 * 20] = 3;
    expected.replace(22 * 20 + 2, 3, "255");
    EXPECT_EQ(bytesOf(QStringLiteral("GColor2.Fil")), expected);
    auto again = open();
    EXPECT_EQ(again->linesPanel()->line(0)->palette().color(QPalette::Text), QColor(255, 0, 0));
}

TEST_F(ZcalandarTest, ATextColourThatCannotBeStoredIsTold)
{
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("GColor2.Fil")));
    folder.copyIn(TestDataFile(QStringLiteral("SWR2.fil")));
    const QByteArray options = bytesOf(QStringLiteral("SWR2.fil"));
    auto screen = openShown();
    dialogs.expectColor(255);
    expectWriteFailed(QStringLiteral("GColor2.Fil"));
    act(*screen, "mTextColor")->trigger();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(line(*screen, 3)->palette().color(QPalette::Text), QColor(255, 0, 0)) << "kept while the screen is open";
    EXPECT_EQ(bytesOf(QStringLiteral("SWR2.fil")), options) << "no other file is touched";
}

TEST_F(ZcalandarTest, TheViewTableTakesTheSharedGridBackgroundButNotItsTextColour)
{
    WriteSlotText(GColor1, 28, u"65535");
    WriteSlotText(GColor1, 29, u"255");
    auto screen = open();
    ScreenGrid* table = screen->viewPanel()->table();
    EXPECT_EQ(table->palette().color(QPalette::Base), QColor(255, 255, 0));
    EXPECT_NE(table->palette().color(QPalette::Text), QColor(255, 0, 0));
}

TEST_F(ZcalandarTest, ACancelledTextColourChangesNothing)
{
    auto screen = openShown();
    const QColor before = line(*screen, 0)->palette().color(QPalette::Text);
    dialogs.expectColor(std::nullopt);
    act(*screen, "mTextColor")->trigger();
    EXPECT_EQ(line(*screen, 0)->palette().color(QPalette::Text), before);
    EXPECT_EQ(bytesOf(QStringLiteral("GColor2.Fil")), QByteArray()) << "read, never written";
}

TEST_F(ZcalandarTest, TheScreenKeepsItsPanelColourInGColor2Slot22)
{
    WriteSlotText(GColor2, 22, u"65535");
    auto screen = open();
    EXPECT_EQ(screen->findChild<QWidget*>("DatePanel")->palette().color(QPalette::Window), QColor(255, 255, 0));
    EXPECT_EQ(screen->editListsPanel()->palette().color(QPalette::Window), QColor(255, 255, 0));
}

// ---- Backup and restore ---------------------------------------------------------------

TEST_F(ZcalandarTest, WithoutBackupTheUtilitiesStayOff)
{
    auto screen = open();
    emit screen->findChild<QMenu*>("mUtilities")->aboutToShow();
    EXPECT_FALSE(act(*screen, "mBackup")->isEnabled());
    EXPECT_FALSE(act(*screen, "mRestore")->isEnabled());
}

TEST_F(ZcalandarTest, BackupIsOnlyOfferedForAYearWithAFile)
{
    auto screen = openShown();
    QList<std::pair<int, int>> opened;
    screen->setBackupOpener([&opened](int mode, int year) { opened.append({mode, year}); });
    emit screen->findChild<QMenu*>("mUtilities")->aboutToShow();
    EXPECT_FALSE(act(*screen, "mBackup")->isEnabled()) << " 2026.Mnu is empty";
    EXPECT_TRUE(act(*screen, "mRestore")->isEnabled());
    typeInto(line(*screen, 0), QStringLiteral("Eggs"));
    act(*screen, "mSave")->trigger();
    emit screen->findChild<QMenu*>("mUtilities")->aboutToShow();
    ASSERT_TRUE(act(*screen, "mBackup")->isEnabled());
    act(*screen, "mBackup")->trigger();
    EXPECT_EQ(opened, (QList<std::pair<int, int>>{{34, 2026}}));
}

TEST_F(ZcalandarTest, BackupAsksAboutUnsavedLinesFirst)
{
    ASSERT_TRUE(SaveDay(MenuPlaceOf(QDate(2026, 1, 1)), LinesWith({{0, QStringLiteral("Hangover cure")}})));
    auto screen = openShown();
    QList<std::pair<int, int>> opened;
    screen->setBackupOpener([&opened](int mode, int year) { opened.append({mode, year}); });
    emit screen->findChild<QMenu*>("mUtilities")->aboutToShow();
    typeInto(line(*screen, 0), QStringLiteral("Kippers"));
    dialogs.expectMessage(QStringLiteral("Menu Planner"), QStringLiteral("Save changes/entries before next action?"),
                          Answer::Yes);
    act(*screen, "mBackup")->trigger();
    EXPECT_EQ(ReadDay(kToday).line(0), QStringLiteral("Kippers")) << "saved before the backup";
    EXPECT_EQ(opened, (QList<std::pair<int, int>>{{34, 2026}}));
    EXPECT_FALSE(screen->dirty());
}

TEST_F(ZcalandarTest, ABackupWhoseSaveFailedDoesNotOpen)
{
    ASSERT_TRUE(QDir().mkdir(QStringLiteral(" 2026.Mnu")));
    auto screen = openShown();
    int opened = 0;
    screen->setBackupOpener([&opened](int, int) { ++opened; });
    typeInto(line(*screen, 0), QStringLiteral("Kippers"));
    dialogs.expectMessage(QStringLiteral("Menu Planner"), QStringLiteral("Save changes/entries before next action?"),
                          Answer::Yes);
    expectWriteFailed(QStringLiteral(" 2026.Mnu"));
    act(*screen, "mRestore")->trigger();
    EXPECT_EQ(opened, 0);
    EXPECT_TRUE(screen->dirty());
}

TEST_F(ZcalandarTest, ARestoreRunsTheOpeningAgain)
{
    auto screen = openShown();
    screen->setBackupOpener([this](int mode, int year) {
        EXPECT_EQ(mode, 35);
        EXPECT_EQ(year, 2026);
        // What a restore does: the year's file comes back from the medium.
        folder.copyIn(TestDataFile(QStringLiteral(" 2026.Mnu")));
        folder.copyIn(TestDataFile(QStringLiteral("SWR2.fil")));
    });
    pickDay(*screen, QDate(2026, 4, 20));
    act(*screen, "mRestore")->trigger();
    EXPECT_EQ(screen->currentDate(), kToday);
    EXPECT_EQ(line(*screen, 0)->text(), QStringLiteral("Pancakes"));
    EXPECT_EQ(screen->calendar()->monthCount(), 3);
    EXPECT_FALSE(screen->dirty());
}
