// The grid every screen builds on, driven offscreen: filling, the header
// sort and its hooks, bold cells, selection kinds, read-only and editable
// columns, colours and picture, and the row tip beside the scroll bar.
#include "shell/kit/screengrid.h"
#include "temp_program_folder.h"
#include "raw_slots.h"

#include <QApplication>
#include <QHeaderView>
#include <QImage>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>
#include <gtest/gtest.h>

namespace {

QStringList Column(const ScreenGrid& grid, int column)
{
    QStringList texts;
    for (int row = 0; row < grid.rowCount(); ++row)
        texts.append(grid.text(row, column));
    return texts;
}

// The editor open in the grid; nothing when no cell is being edited.
QLineEdit* Editor(const ScreenGrid& grid)
{
    for (QLineEdit* editor : grid.findChildren<QLineEdit*>()) {
        if (editor->isVisible())
            return editor;
    }
    return nullptr;
}

bool Editing(const ScreenGrid& grid)
{
    return Editor(grid) != nullptr;
}

// A grid on the screen with the shopping list's two columns.
class ShownGrid : public ::testing::Test {
protected:
    ShownGrid()
    {
        grid.setHeadings({"Grocery Item", "Amount"});
        grid.setRowTexts(0, {"rice", "2 lb."});
        grid.setRowTexts(1, {"Apples", "10"});
        grid.setRowTexts(2, {"", ""});
        grid.setRowTexts(3, {"beans", "9"});
        grid.resize(400, 300);
        grid.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&grid));
    }

    void clickHeading(int column)
    {
        QHeaderView* header = grid.horizontalHeader();
        const QPoint at(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                        header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, at);
    }

    QPoint cellCentre(int row, int column) const
    {
        return grid.visualRect(grid.model()->index(row, column)).center();
    }

    ScreenGrid grid{QStringLiteral("VSFlexGrid1"), nullptr};
};

} // namespace

// ---- Filling ----------------------------------------------------------------

TEST(ScreenGrid, KeepsItsNameAndStartsReadOnlyWithSingleCellSelection)
{
    ScreenGrid grid(QStringLiteral("Grid1"), nullptr);
    EXPECT_EQ(grid.objectName(), "Grid1");
    EXPECT_EQ(grid.editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_EQ(grid.selectionKind(), ScreenGrid::Selection::SingleCell);
    EXPECT_EQ(grid.selectionMode(), QAbstractItemView::SingleSelection);
    EXPECT_EQ(grid.selectionBehavior(), QAbstractItemView::SelectItems);
    EXPECT_FALSE(grid.headerSort());
}

TEST(ScreenGrid, HeadingsRowsAndHiddenValues)
{
    ScreenGrid grid(QStringLiteral("VSFlexGrid1"), nullptr);
    grid.setHeadings({"Type Recipe", "Recipe Name"});
    EXPECT_EQ(grid.columnCount(), 2);
    EXPECT_EQ(grid.headings(), (QStringList{"Type Recipe", "Recipe Name"}));
    EXPECT_EQ(grid.horizontalHeaderItem(1)->text(), "Recipe Name");

    grid.setRowTexts(2, {"Desserts", "Deviled eggs", "beyond the last column"});
    EXPECT_EQ(grid.rowCount(), 3) << "rows are added down to the one filled";
    EXPECT_EQ(grid.rowTexts(2), (QStringList{"Desserts", "Deviled eggs"}));
    EXPECT_EQ(grid.rowTexts(0), (QStringList{"", ""}));
    EXPECT_EQ(grid.item(0, 0), nullptr);
    EXPECT_EQ(grid.item(2, 1)->text(), "Deviled eggs");

    grid.setValue(2, 1, QStringLiteral("Deviled eggs  ...  3"));
    EXPECT_EQ(grid.value(2, 1).toString(), "Deviled eggs  ...  3");
    EXPECT_EQ(grid.item(2, 1)->data(Qt::UserRole).toString(), "Deviled eggs  ...  3");
    EXPECT_EQ(grid.text(2, 1), "Deviled eggs") << "the value stays out of sight";
    EXPECT_FALSE(grid.value(2, 0).isValid());

    grid.setText(7, 0, QStringLiteral("outside"));
    grid.setValue(0, 5, 1);
    EXPECT_EQ(grid.rowCount(), 3);
    EXPECT_EQ(grid.text(7, 0), "");
    EXPECT_FALSE(grid.value(0, 5).isValid());

    grid.clearRows();
    EXPECT_EQ(grid.rowCount(), 0);
    EXPECT_EQ(grid.headings(), (QStringList{"Type Recipe", "Recipe Name"}));
}

TEST(ScreenGrid, RowsAsTextStartWithTheHeadingsWhenTheHeaderIsShown)
{
    ScreenGrid grid(QStringLiteral("Grid1"), nullptr);
    grid.setHeadings({"Storage Item", "Amount"});
    grid.setRowTexts(0, {"Wheat", "25"});
    grid.setRowTexts(1, {"Rice"});
    EXPECT_EQ(grid.rowsAsText(), (QList<QStringList>{{"Storage Item", "Amount"}, {"Wheat", "25"}, {"Rice", ""}}));
    grid.horizontalHeader()->hide();
    EXPECT_EQ(grid.rowsAsText(), (QList<QStringList>{{"Wheat", "25"}, {"Rice", ""}}));
}

TEST(ScreenGrid, ColumnAlignmentIsGivenToTheCellsItMakes)
{
    ScreenGrid grid(QStringLiteral("Grid1"), nullptr);
    grid.setColumnCount(2);
    grid.setColumnAlignment(1, Qt::AlignCenter);
    grid.setRowTexts(0, {"1", "8"});
    EXPECT_EQ(grid.item(0, 1)->textAlignment(), int(Qt::AlignCenter));
    EXPECT_NE(grid.item(0, 0)->textAlignment(), int(Qt::AlignCenter));
}

// ---- Header sort ------------------------------------------------------------

TEST_F(ShownGrid, AHeadingClickSortsNothingUntilTheSortIsOn)
{
    clickHeading(0);
    EXPECT_EQ(Column(grid, 0), (QStringList{"rice", "Apples", "", "beans"}));
}

TEST_F(ShownGrid, AHeadingClickSortsBetweenTheHooksAscendingThenDescending)
{
    QStringList calls;
    grid.setHeaderSort(
        true,
        [&](int column, Qt::SortOrder order) {
            calls << QStringLiteral("before %1 %2 [%3]")
                         .arg(column)
                         .arg(order == Qt::AscendingOrder ? "up" : "down", Column(grid, 0).join(u','));
        },
        [&](int column, Qt::SortOrder order) {
            calls << QStringLiteral("after %1 %2 [%3]")
                         .arg(column)
                         .arg(order == Qt::AscendingOrder ? "up" : "down", Column(grid, 0).join(u','));
        });
    EXPECT_TRUE(grid.headerSort());

    clickHeading(0);
    EXPECT_EQ(calls, (QStringList{"before 0 up [rice,Apples,,beans]", "after 0 up [,Apples,beans,rice]"}));
    EXPECT_EQ(grid.horizontalHeader()->sortIndicatorSection(), 0);
    EXPECT_EQ(grid.horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);

    calls.clear();
    clickHeading(0);
    EXPECT_EQ(calls, (QStringList{"before 0 down [,Apples,beans,rice]", "after 0 down [rice,beans,Apples,]"}));

    calls.clear();
    clickHeading(1);
    EXPECT_EQ(calls.size(), 2);
    EXPECT_TRUE(calls[0].startsWith("before 1 up")) << calls[0].toStdString();
    EXPECT_EQ(Column(grid, 1), (QStringList{"", "9", "10", "2 lb."})) << "numbers by value, blank first";
}

TEST_F(ShownGrid, RowsMoveWholeWithTheirValuesAndBoldCells)
{
    grid.setValue(3, 0, 42);
    grid.setBold(3, 1, true);
    grid.setHeaderSort(true);
    grid.sortBy(0, Qt::AscendingOrder);
    EXPECT_EQ(grid.rowTexts(2), (QStringList{"beans", "9"}));
    EXPECT_EQ(grid.value(2, 0).toInt(), 42);
    EXPECT_TRUE(grid.isBold(2, 1));
    EXPECT_FALSE(grid.isBold(3, 1));
}

TEST_F(ShownGrid, SwitchingTheSortOffStopsIt)
{
    int hooks = 0;
    grid.setHeaderSort(true, [&](int, Qt::SortOrder) { ++hooks; });
    grid.setHeaderSort(false);
    clickHeading(0);
    EXPECT_EQ(hooks, 0);
    EXPECT_EQ(Column(grid, 0), (QStringList{"rice", "Apples", "", "beans"}));
}

// ---- Bold -------------------------------------------------------------------

TEST(ScreenGrid, BoldIsSetAndAskedPerCell)
{
    ScreenGrid grid(QStringLiteral("Grid1"), nullptr);
    grid.setColumnCount(4);
    grid.setRowCount(3);
    grid.setBold(1, 2, true);
    EXPECT_TRUE(grid.isBold(1, 2));
    EXPECT_FALSE(grid.isBold(1, 1));
    EXPECT_FALSE(grid.isBold(2, 2));
    EXPECT_EQ(grid.text(1, 2), "") << "an empty cell can be bold";
    grid.setText(1, 2, QStringLiteral("-2.5"));
    EXPECT_TRUE(grid.isBold(1, 2)) << "new text keeps the cell bold";
    grid.setBold(1, 2, false);
    EXPECT_FALSE(grid.isBold(1, 2));
    grid.setBold(5, 0, true);
    EXPECT_FALSE(grid.isBold(5, 0));
}

TEST_F(ShownGrid, ABoldCellIsDrawnInTheGridsFontMadeBold)
{
    grid.setBold(0, 1, true);
    const QModelIndex bold = grid.model()->index(0, 1);
    const QModelIndex plain = grid.model()->index(0, 0);
    // What the cell's text is drawn with is what the grid asks its delegate
    // for the size: a bold text is wider than the same text plain.
    grid.setText(0, 0, grid.text(0, 1));
    QStyleOptionViewItem option;
    option.initFrom(&grid);
    option.font = grid.font();
    const int boldWidth = grid.itemDelegate()->sizeHint(option, bold).width();
    const int plainWidth = grid.itemDelegate()->sizeHint(option, plain).width();
    EXPECT_GT(boldWidth, plainWidth);
}

TEST_F(ShownGrid, AColumnDisplayFormChangesWhatIsShownNotTheText)
{
    grid.setText(0, 1, QStringLiteral("9"));
    grid.setColumnDisplay(1, [](const QString& text) { return text + QStringLiteral(" lbs"); });
    EXPECT_EQ(grid.text(0, 1), "9");
    EXPECT_EQ(grid.shownText(0, 1), "9 lbs");
    EXPECT_EQ(grid.shownText(0, 0), grid.text(0, 0)) << "other columns show their text";
    // What the delegate draws: the shown form is wider than the text.
    QStyleOptionViewItem option;
    option.initFrom(&grid);
    option.font = grid.font();
    const int shownWidth = grid.itemDelegate()->sizeHint(option, grid.model()->index(0, 1)).width();
    grid.setColumnDisplay(1, [](const QString& text) { return text; });
    const int plainWidth = grid.itemDelegate()->sizeHint(option, grid.model()->index(0, 1)).width();
    EXPECT_GT(shownWidth, plainWidth);
}

// ---- Selection --------------------------------------------------------------

TEST_F(ShownGrid, SingleCellSelectionBringsADragBackToOneCell)
{
    grid.setSelectionKind(ScreenGrid::Selection::SingleCell);
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, cellCentre(0, 0));
    QTest::mouseMove(grid.viewport(), cellCentre(2, 1));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, cellCentre(2, 1));
    const QModelIndexList selected = grid.selectionModel()->selectedIndexes();
    ASSERT_EQ(selected.size(), 1);
    EXPECT_EQ(selected.first(), grid.currentIndex());
}

TEST_F(ShownGrid, RowSelectionTakesTheWholeRow)
{
    grid.setSelectionKind(ScreenGrid::Selection::Rows);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cellCentre(1, 1));
    const QList<QTableWidgetSelectionRange> ranges = grid.selectedRanges();
    ASSERT_EQ(ranges.size(), 1);
    EXPECT_EQ(ranges.first().topRow(), 1);
    EXPECT_EQ(ranges.first().bottomRow(), 1);
    EXPECT_EQ(ranges.first().columnCount(), 2);
}

TEST_F(ShownGrid, NoSelectionSelectsNothing)
{
    grid.setSelectionKind(ScreenGrid::Selection::None);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cellCentre(1, 1));
    EXPECT_TRUE(grid.selectedRanges().isEmpty());
}

// ---- Read-only and editable columns ----------------------------------------

TEST_F(ShownGrid, ColumnsAreReadOnlyUntilOpened)
{
    for (int row = 0; row < grid.rowCount(); ++row)
        for (int column = 0; column < grid.columnCount(); ++column)
            EXPECT_FALSE(grid.item(row, column)->flags() & Qt::ItemIsEditable);
    grid.setCurrentCell(0, 1);
    QTest::keyClick(grid.viewport(), Qt::Key_F2);
    EXPECT_FALSE(Editing(grid));
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, cellCentre(0, 1));
    EXPECT_FALSE(Editing(grid));
    EXPECT_EQ(grid.text(0, 1), "2 lb.");
}

TEST_F(ShownGrid, AnEditableColumnIsTypedIntoAndTheOthersStayReadOnly)
{
    grid.setColumnEditable(1, true);
    EXPECT_TRUE(grid.isColumnEditable(1));
    EXPECT_FALSE(grid.isColumnEditable(0));
    EXPECT_TRUE(grid.item(0, 1)->flags() & Qt::ItemIsEditable);
    EXPECT_FALSE(grid.item(0, 0)->flags() & Qt::ItemIsEditable);

    grid.setCurrentCell(1, 1);
    QTest::keyClick(grid.viewport(), Qt::Key_F2);
    QLineEdit* editor = Editor(grid);
    ASSERT_NE(editor, nullptr);
    editor->selectAll();
    QTest::keyClicks(editor, "12");
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents(); // the editor hands its text over on the next turn
    EXPECT_EQ(grid.text(1, 1), "12");

    grid.setCurrentCell(1, 0);
    QTest::keyClick(grid.viewport(), Qt::Key_F2);
    EXPECT_FALSE(Editing(grid));
    QTest::keyClicks(grid.viewport(), "x");
    EXPECT_EQ(grid.text(1, 0), "Apples");
}

TEST_F(ShownGrid, AnEmptyCellOfAReadOnlyColumnIsNotEditedEither)
{
    grid.setColumnEditable(1, true);
    grid.setRowCount(6);
    ASSERT_EQ(grid.item(5, 0), nullptr);
    grid.setCurrentCell(5, 0);
    QTest::keyClick(grid.viewport(), Qt::Key_F2);
    EXPECT_FALSE(Editing(grid));
    grid.setCurrentCell(5, 1);
    QTest::keyClick(grid.viewport(), Qt::Key_F2);
    EXPECT_TRUE(Editing(grid));
}

TEST_F(ShownGrid, ClosingTheLastEditableColumnMakesTheGridReadOnlyAgain)
{
    grid.setColumnEditable(0, true);
    EXPECT_NE(grid.editTriggers(), QAbstractItemView::NoEditTriggers);
    grid.setColumnEditable(0, false);
    EXPECT_EQ(grid.editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_FALSE(grid.item(0, 0)->flags() & Qt::ItemIsEditable);
}

// ---- Colours and picture ----------------------------------------------------

TEST(ScreenGrid, AColourBecomesTheCellBackground)
{
    ScreenGrid grid(QStringLiteral("Grid1"), nullptr);
    grid.applyColors(GridColorsOf(u"255", u"16711680"));
    EXPECT_EQ(grid.palette().color(QPalette::Base), QColor(255, 0, 0));
    EXPECT_EQ(grid.palette().color(QPalette::Text), QColor(0, 0, 255));
}

TEST(ScreenGrid, APictureFillsTheBackgroundFoundInAnyCase)
{
    TempProgramFolder folder;
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(QColor(10, 200, 30));
    ASSERT_TRUE(picture.save(folder.filePath("WP3.jpg")));
    ScreenGrid grid(QStringLiteral("Grid1"), nullptr);
    grid.applyColors(GridColorsOf(u"wp3", u"Default"));
    const QBrush brush = grid.palette().brush(QPalette::Base);
    ASSERT_FALSE(brush.texture().isNull());
    EXPECT_EQ(brush.texture().size(), QSize(40, 30));
}

TEST(ScreenGrid, DefaultEmptyAndAMissingPictureLeaveTheGridAsItIs)
{
    TempProgramFolder folder;
    ScreenGrid grid(QStringLiteral("Grid1"), nullptr);
    QPalette own = grid.palette();
    own.setColor(QPalette::Base, QColor(1, 2, 3));
    grid.setPalette(own);
    for (const char* background : {"Default", "", "WP9"}) {
        grid.applyColors(GridColorsOf(QString::fromLatin1(background), u""));
        EXPECT_EQ(grid.palette().color(QPalette::Base), QColor(1, 2, 3)) << background;
        EXPECT_TRUE(grid.palette().brush(QPalette::Base).texture().isNull()) << background;
    }
}

TEST(ScreenGrid, TheSharedColoursComeFromTheirSlots)
{
    TempProgramFolder folder;
    WriteSlotText(GColor1, 28, u"65280");
    WriteSlotText(GColor1, 29, u"255");
    ScreenGrid grid(QStringLiteral("Grid1"), nullptr);
    grid.applySharedColors();
    EXPECT_EQ(grid.palette().color(QPalette::Base), QColor(0, 255, 0));
    EXPECT_EQ(grid.palette().color(QPalette::Text), QColor(255, 0, 0));
}

// ---- Row tip ----------------------------------------------------------------

class RowTipGrid : public ::testing::Test {
protected:
    RowTipGrid()
    {
        grid.setHeadings({"Grocery Item", "Amount"});
        for (int row = 0; row < 100; ++row)
            grid.setRowTexts(row, {QStringLiteral("item %1").arg(row), QString()});
        grid.resize(300, 200);
        grid.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&grid));
    }
    ~RowTipGrid() override { QToolTip::hideText(); }

    ScreenGrid grid{QStringLiteral("VSFlexGrid1"), nullptr};
};

TEST_F(RowTipGrid, DraggingTheScrollBarShowsTheTopRowsTip)
{
    grid.setRowTip([this](int row) { return QStringLiteral(" Row %1: %2 ").arg(row + 1).arg(grid.text(row, 0)); });
    QScrollBar* bar = grid.verticalScrollBar();
    ASSERT_GT(bar->maximum(), 40);
    bar->setSliderDown(true);
    bar->setValue(40);
    EXPECT_EQ(grid.rowAt(0), 40);
    EXPECT_TRUE(QToolTip::isVisible());
    EXPECT_EQ(QToolTip::text(), " Row 41: item 40 ");
    bar->setValue(7);
    EXPECT_EQ(QToolTip::text(), " Row 8: item 7 ");
    bar->setSliderDown(false);
}

TEST_F(RowTipGrid, ScrollingWithoutDraggingOrWithoutATipShowsNone)
{
    QScrollBar* bar = grid.verticalScrollBar();
    bar->setSliderDown(true);
    bar->setValue(30);
    EXPECT_FALSE(QToolTip::isVisible()) << "no tip given";
    bar->setSliderDown(false);

    grid.setRowTip([](int row) { return QString::number(row); });
    bar->setValue(50);
    EXPECT_FALSE(QToolTip::isVisible()) << "the wheel or a key scrolls without a tip";
}
