// The food guide screen driven offscreen: pages by button and by menu, the
// read-only grid, the column shares, the caption, the panel colour slot.
#include "guides/screens/foodg.h"
#include "shell/logic/processvalues.h"
#include "shell/settings/settingsslots.h"
#include "shell/screens/screenmetrics.h"
#include "shell/kit/screenstatusbar.h"
#include "shell/screens/startfrm.h"
#include "command_doors.h"
#include "foodguide_expected.h"
#include "scripted_dialogs.h"
#include "temp_program_folder.h"
#include "raw_slots.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QToolBar>
#include <gtest/gtest.h>
#include <memory>

namespace {

const char* const kPageActions[] = {"mFoodGuide", "mCommonMeasures", "mMenuIdeas", "mHelpfulHints",
                                    "mHealthySubstitutes"};

QString Q(const char* text)
{
    return QString::fromLatin1(text);
}

class FoodgTest : public ::testing::Test {
protected:
    FoodgTest() { Process() = ProcessValues{}; }

    std::unique_ptr<Foodg> open()
    {
        auto form = std::make_unique<Foodg>(dialogs);
        form->setAttribute(Qt::WA_DeleteOnClose, false);
        return form;
    }

    static QTableWidget* grid(Foodg& form) { return form.findChild<QTableWidget*>("VSGd1"); }
    static QString title(Foodg& form) { return form.findChild<QLabel*>("SSPanel1")->text(); }
    static QAction* act(Foodg& form, const char* name) { return form.findChild<QAction*>(name); }
    static QPushButton* button(Foodg& form, int index)
    {
        return form.findChild<QPushButton*>(QStringLiteral("Command1_%1").arg(index));
    }
    static QString cell(QTableWidget* grid, int row, int column)
    {
        const QTableWidgetItem* item = grid->item(row, column);
        return item ? item->text() : QString();
    }

    // The grid shows the expected page, heading by heading and cell by cell.
    static void expectShows(Foodg& form, int page)
    {
        const expected::GuidePage& want = expected::GuidePages()[std::size_t(page - 1)];
        QTableWidget* shown = grid(form);
        EXPECT_EQ(title(form), Q(want.title));
        ASSERT_EQ(shown->columnCount(), int(want.headings.size())) << page;
        for (int column = 0; column < shown->columnCount(); ++column)
            EXPECT_EQ(shown->horizontalHeaderItem(column)->text(), Q(want.headings[std::size_t(column)]));
        ASSERT_EQ(shown->rowCount(), int(want.rows.size())) << page;
        for (int row = 0; row < shown->rowCount(); ++row)
            for (int column = 0; column < shown->columnCount(); ++column)
                EXPECT_EQ(cell(shown, row, column), Q(want.rows[std::size_t(row)][std::size_t(column)]))
                    << "page " << page << " row " << row << " column " << column;
    }

    TempProgramFolder folder;
    ScriptedDialogs dialogs;
};

} // namespace

TEST_F(FoodgTest, OpensOnTheFirstPage)
{
    auto form = open();
    EXPECT_EQ(form->objectName(), "Foodg");
    EXPECT_EQ(form->currentPage(), FoodGuidePage::FoodGuide);
    expectShows(*form, 1);
}

TEST_F(FoodgTest, EveryButtonShowsItsPage)
{
    auto form = open();
    for (int page = 5; page >= 1; --page) {
        button(*form, page - 1)->click();
        EXPECT_EQ(int(form->currentPage()), page);
        expectShows(*form, page);
    }
}

TEST_F(FoodgTest, EveryOptionsMenuEntryShowsItsPage)
{
    auto form = open();
    auto* options = form->findChild<QMenu*>("mOptions");
    ASSERT_NE(options, nullptr);
    for (int page = 1; page <= kFoodGuidePageCount; ++page) {
        QAction* entry = act(*form, kPageActions[page - 1]);
        ASSERT_TRUE(options->actions().contains(entry)) << page;
        entry->trigger();
        expectShows(*form, page);
    }
}

TEST_F(FoodgTest, ButtonsAndMenuEntriesCarryTheCommandCaptions)
{
    auto form = open();
    const char* const captions[] = {"&Food Guide", "&Common Measures", "&Menu Ideas", "&Helpful Hints",
                                    "&Healthy Substitutes", "E&xit"};
    auto* options = form->findChild<QMenu*>("mOptions");
    QStringList entries;
    for (QAction* entry : options->actions())
        if (!entry->isSeparator())
            entries.append(entry->text());
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(button(*form, i)->text(), captions[i]);
        EXPECT_TRUE(entries.contains(Q(captions[i]))) << captions[i];
    }
    EXPECT_TRUE(entries.contains("Panel C&olor"));
    EXPECT_EQ(form->findChild<QPushButton*>("Command1_6"), nullptr);
}

TEST_F(FoodgTest, MenuTitlesDoNotTakeAButtonsLetter)
{
    auto form = open();
    QString buttonLetters;
    for (QPushButton* each : form->findChildren<QPushButton*>()) {
        const QString text = each->text();
        const qsizetype amp = text.indexOf('&');
        if (amp >= 0 && amp + 1 < text.size())
            buttonLetters += text.at(amp + 1).toLower();
    }
    for (QAction* menu : form->menuBar()->actions()) {
        const QString text = menu->text();
        const qsizetype amp = text.indexOf('&');
        ASSERT_GE(amp, 0) << text.toStdString();
        EXPECT_FALSE(buttonLetters.contains(text.at(amp + 1).toLower())) << text.toStdString();
    }
}

TEST_F(FoodgTest, TheGridIsForReadingOnly)
{
    auto form = open();
    QTableWidget* shown = grid(*form);
    EXPECT_EQ(shown->editTriggers(), QAbstractItemView::NoEditTriggers);
    for (int page = 1; page <= kFoodGuidePageCount; ++page) {
        form->showPage(FoodGuidePage(page));
        for (int row = 0; row < shown->rowCount(); ++row)
            for (int column = 0; column < shown->columnCount(); ++column)
                EXPECT_FALSE(shown->item(row, column)->flags() & Qt::ItemIsEditable);
    }
    form->showPage(FoodGuidePage::FoodGuide);
    form->show();
    shown->setCurrentCell(0, 1);
    QTest::keyClick(shown->viewport(), Qt::Key_F2);
    QTest::keyClicks(shown->viewport(), "x");
    EXPECT_EQ(cell(shown, 0, 1), "Adults - 2 servings");
}

TEST_F(FoodgTest, ColumnsTakeTheirSharesOfTheGridOnEveryResize)
{
    auto form = open();
    form->show();
    for (const QSize size : {QSize(900, 600), QSize(1250, 800), QSize(640, 480)}) {
        form->resize(size);
        QApplication::processEvents();
        for (int page = 1; page <= kFoodGuidePageCount; ++page) {
            form->showPage(FoodGuidePage(page));
            QApplication::processEvents();
            QTableWidget* shown = grid(*form);
            const int width = shown->viewport()->width();
            const QList<GuideColumn>& columns = FoodGuidePageOf(page).columns;
            int total = 0;
            for (int column = 0; column < shown->columnCount(); ++column) {
                total += shown->columnWidth(column);
                if (column + 1 < shown->columnCount()) {
                    EXPECT_NEAR(shown->columnWidth(column), width * columns[column].share, 0.5)
                        << "page " << page << " column " << column;
                }
            }
            EXPECT_EQ(total, width) << "page " << page;
        }
    }
}

TEST_F(FoodgTest, CaptionWithoutAFamilyName)
{
    auto form = open();
    EXPECT_EQ(form->windowTitle(), " Food Guide");
}

TEST_F(FoodgTest, CaptionWithTheFamilyNameInFront)
{
    Process().FamilyName = "Smith";
    auto form = open();
    EXPECT_EQ(form->windowTitle(), "Smith Food Guide");
}

TEST_F(FoodgTest, PanelColourIsReadFromItsOwnSlot)
{
    WriteSlotText(GColor2, 9, u"255");
    WriteSlotText(GColor2, 25, u"65280");
    auto form = open();
    const QColor panel = form->findChild<QLabel*>("SSPanel1")->palette().color(QPalette::Window);
    EXPECT_EQ(panel, QColor(255, 0, 0));
    EXPECT_EQ(form->findChild<QFrame*>("SSPanel2")->palette().color(QPalette::Window), QColor(255, 0, 0));
}

TEST_F(FoodgTest, APanelColourChosenAndSavedGoesToItsSlot)
{
    auto form = open();
    dialogs.expectMessage("Panel Color",
                          "Select New Color or Use System Default Color?\n"
                          "Yes = Color Selection Panel will appear.\n"
                          "No = Current System Default Color will be selected.",
                          Answer::Yes);
    dialogs.expectColor(32768);
    act(*form, "mPanelColor")->trigger();
    dialogs.expectMessage("Color Changes", "Save changes made to Panel Color?", Answer::Yes);
    dialogs.expectMessage("Complete Program Panel Color Update Option",
                          "Save Panel Color Changes for ALL of the Program Functions?", Answer::No);
    form->close();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(ReadSlotText(GColor2, 9), "32768");
    EXPECT_EQ(ReadSlotText(GColor2, 25), "");
}

TEST_F(FoodgTest, PanelColourIsTheFirstSideToolbarButton)
{
    auto form = open();
    auto* side = form->findChild<QToolBar*>("Toolbar2");
    ASSERT_NE(side, nullptr);
    ASSERT_FALSE(side->actions().isEmpty());
    EXPECT_EQ(side->actions().first(), act(*form, "mPanelColor"));
}

TEST_F(FoodgTest, TheTopToolbarCarriesThePagesHelpAndExit)
{
    auto form = open();
    auto* top = form->findChild<QToolBar*>("Toolbar1");
    ASSERT_NE(top, nullptr);
    for (const char* name : kPageActions)
        EXPECT_TRUE(top->actions().contains(act(*form, name))) << name;
    EXPECT_TRUE(top->actions().contains(act(*form, "mHelp")));
    EXPECT_TRUE(top->actions().contains(act(*form, "mExit")));
}

TEST_F(FoodgTest, HelpIsF1)
{
    auto form = open();
    EXPECT_EQ(act(*form, "mHelp")->shortcut(), QKeySequence(Qt::Key_F1));
    EXPECT_EQ(Foodg::kHelpTopic, 1020);
}

TEST_F(FoodgTest, ARightClickOnAPanelOpensTheOptionsMenu)
{
    auto form = open();
    form->show();
    auto* strip = form->findChild<QLabel*>("SSPanel1");
    QContextMenuEvent click(QContextMenuEvent::Mouse, QPoint(4, 4), strip->mapToGlobal(QPoint(4, 4)));
    QApplication::sendEvent(strip, &click);
    auto* options = form->findChild<QMenu*>("mOptions");
    EXPECT_TRUE(options->isVisible());
    options->close();
}

TEST_F(FoodgTest, ExitClosesTheScreenAndTellsTheMainScreen)
{
    auto form = open();
    form->show();
    QSignalSpy closed(form.get(), &ActivityWindow::closed);
    button(*form, 5)->click();
    EXPECT_EQ(closed.count(), 1);
    EXPECT_FALSE(form->isVisible());
}

TEST_F(FoodgTest, StatusBarTellsTheScreen)
{
    auto form = open();
    auto* bar = qobject_cast<ScreenStatusBar*>(form->statusBar());
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(bar->activity(), " Food Guide");
    EXPECT_FALSE(bar->topToolbarRestoreShown());
}

// ---- Edge cases -----------------------------------------------------------------------------

TEST_F(FoodgTest, SelectingThePageAlreadyShownRebuildsItWithTheSameText)
{
    auto form = open();
    button(*form, 1)->click();
    QTableWidget* shown = grid(*form);
    shown->item(0, 0)->setText("scribbled");
    shown->setRowCount(3);
    button(*form, 1)->click();
    expectShows(*form, 2);
    act(*form, "mCommonMeasures")->trigger();
    expectShows(*form, 2);
}

TEST_F(FoodgTest, AnEmptyCellStaysEmptyNotZero)
{
    auto form = open();
    act(*form, "mCommonMeasures")->trigger();
    QTableWidget* shown = grid(*form);
    ASSERT_EQ(cell(shown, 11, 0), "1 lb. green pepper");
    EXPECT_EQ(cell(shown, 11, 2), "");
    EXPECT_EQ(cell(shown, 12, 1), "");
    EXPECT_EQ(cell(shown, 25, 2), "");
    EXPECT_EQ(shown->model()->data(shown->model()->index(11, 2)).toString(), "");
}

// ---- From the main screen --------------------------------------------------------------------

namespace {
class LargeScreen final : public ScreenMetrics {
public:
    QSize sizeTwips() const override { return {28800, 16200}; }
};
} // namespace

TEST_F(FoodgTest, TheMainScreensFoodGuideButtonOpensTheFoodGuide)
{
    Process().SplashShown = true;
    LargeScreen screen;
    Startfrm main(dialogs, screen);
    main.registerActivity(MainCommand::FoodGuide, [this] { return new Foodg(dialogs); });
    QPushButton* guideButton = nullptr;
    for (QPushButton* each : main.findChildren<QPushButton*>())
        if (each->text() == "&Food Guide")
            guideButton = each;
    ASSERT_NE(guideButton, nullptr);
    ASSERT_TRUE(guideButton->isEnabled());
    guideButton->click();
    Foodg* form = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* found = qobject_cast<Foodg*>(window); found && found->isVisible())
            form = found;
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->windowTitle(), " Food Guide");
    QSignalSpy closed(form, &ActivityWindow::closed);
    form->close();
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(FoodgTest, EveryCommandHasItsCaptionsAndDoors)
{
    auto form = open();
    ExpectDoors(*form, {
        {"mFoodGuide", "&Food Guide", "&Food Guide", true},
        {"mCommonMeasures", "&Common Measures", "&Common Measures", true},
        {"mMenuIdeas", "&Menu Ideas", "&Menu Ideas", true},
        {"mHelpfulHints", "&Helpful Hints", "&Helpful Hints", true},
        {"mHealthySubstitutes", "&Healthy Substitutes", "&Healthy Substitutes", true},
        {"mPanelColor", "Panel C&olor", "", true},
        {"mExit", "E&xit", "E&xit", true},
        {"mHelp", "Food Guide &Help", "", true},
    });
}

TEST_F(FoodgTest, EscapeLeavesTheScreen)
{
    auto form = open();
    form->show();
    QSignalSpy closed(form.get(), &ActivityWindow::closed);
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_EQ(closed.count(), 1);
}
