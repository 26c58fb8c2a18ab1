#include "guides/screens/foodg.h"

#include "shell/logic/processvalues.h"
#include "shell/kit/raisedpanel.h"
#include "shell/kit/screengrid.h"
#include "shell/kit/screenstatusbar.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// Breathing room above and below a row's text, in pixels.
constexpr int kRowPadding = 8;

// No menu title takes a letter that a screen button uses (F, C, M, H, X).
constexpr MenuRow kMenus[] = {
    {"mOptions", "&Options"},
    {"mHelpMenu", "Hel&p"},
};

} // namespace

std::vector<CommandRow<FoodgCommand>> Foodg::commandRows()
{
    using enum FoodgCommand;
    const auto page = [this](FoodGuidePage shown) { return [this, shown] { showPage(shown); }; };
    return {
        {FoodGuide, {.name = "mFoodGuide", .menu = "mOptions", .caption = "&Food Guide",
                     .button = {"&Food Guide", 0}, .toolbar = {Toolbar::Top, 0},
                     .run = page(FoodGuidePage::FoodGuide)}},
        {CommonMeasures, {.name = "mCommonMeasures", .menu = "mOptions", .caption = "&Common Measures",
                          .button = {"&Common Measures", 1}, .toolbar = {Toolbar::Top, 1},
                          .run = page(FoodGuidePage::CommonMeasures)}},
        {MenuIdeas, {.name = "mMenuIdeas", .menu = "mOptions", .caption = "&Menu Ideas",
                     .button = {"&Menu Ideas", 2}, .toolbar = {Toolbar::Top, 2},
                     .run = page(FoodGuidePage::MenuIdeas)}},
        {HelpfulHints, {.name = "mHelpfulHints", .menu = "mOptions", .caption = "&Helpful Hints",
                        .button = {"&Helpful Hints", 3}, .toolbar = {Toolbar::Top, 3},
                        .run = page(FoodGuidePage::HelpfulHints)}},
        {HealthySubstitutes, {.name = "mHealthySubstitutes", .menu = "mOptions", .caption = "&Healthy Substitutes",
                              .button = {"&Healthy Substitutes", 4}, .toolbar = {Toolbar::Top, 4},
                              .run = page(FoodGuidePage::HealthySubstitutes)}},
        {PanelColor, panelColorCommand("mOptions")},
        {Exit, exitCommand("mOptions", {"E&xit", 5})},
        {Help, helpCommand("mHelpMenu", QStringLiteral("Food Guide &Help"))},
    };
}

Foodg::Foodg(Dialogs& dialogs, QWidget* parent)
    : ActivityWindow(dialogs, {"Foodg", Settings::FoodgPanelColor, kHelpTopic}, parent)
{
    setWindowTitle(FoodGuideCaption(Process().FamilyName));

    auto* central = new QWidget(this);
    central->setObjectName(QStringLiteral("FoodgArea"));
    setCentralWidget(central);

    title_ = new QLabel(central);
    title_->setObjectName(QStringLiteral("SSPanel1"));
    title_->setAlignment(Qt::AlignCenter);
    MakeRaised(title_);
    title_->setMargin(4);
    QFont titleFont = title_->font();
    titleFont.setPointSize(titleFont.pointSize() + 4);
    titleFont.setBold(true);
    title_->setFont(titleFont);

    grid_ = new ScreenGrid(QStringLiteral("VSGd1"), central);
    grid_->setSelectionKind(ScreenGrid::Selection::None);
    grid_->setFocusPolicy(Qt::NoFocus);
    grid_->setWordWrap(true);
    grid_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    grid_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    grid_->verticalHeader()->hide();
    QFont cellFont = grid_->font();
    cellFont.setPointSizeF(cellFont.pointSizeF() + 1);
    grid_->setFont(cellFont);
    grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grid_->horizontalHeader()->setHighlightSections(false);
    QFont headingFont = grid_->horizontalHeader()->font();
    headingFont.setBold(true);
    grid_->horizontalHeader()->setFont(headingFont);
    grid_->viewport()->installEventFilter(this);
    grid_->applySharedColors();

    QFrame* commands = MakeRaisedPanel(QStringLiteral("SSPanel2"), central);
    commands_ = makeCommands<FoodgCommand>(kMenus, commandRows(), commands);
    auto* buttons = new QHBoxLayout(commands);
    for (QPushButton* button : commands_->buttons())
        buttons->addWidget(button);

    auto* layout = new QVBoxLayout(central);
    layout->addWidget(title_);
    layout->addWidget(grid_, 1);
    layout->addWidget(commands);

    addColouredPanels({title_, commands});
    showPage(FoodGuidePage::FoodGuide);
    screenStatusBar()->setActivity(windowTitle());
}

void Foodg::showPage(FoodGuidePage page)
{
    page_ = page;
    const GuidePage& shown = FoodGuidePageOf(page);
    title_->setText(shown.title);
    grid_->clearRows();
    QStringList headings;
    for (const GuideColumn& column : shown.columns)
        headings.append(column.heading);
    grid_->setHeadings(headings);
    for (int row = 0; row < int(shown.rows.size()); ++row)
        grid_->setRowTexts(row, shown.rows[row]);
    grid_->scrollToTop();
    fitColumns();
}

void Foodg::fitColumns()
{
    const QList<int> widths = ColumnWidthsByShare(FoodGuidePageOf(page_), grid_->viewport()->width());
    for (int column = 0; column < widths.size() && column < grid_->columnCount(); ++column)
        grid_->setColumnWidth(column, widths[column]);
    grid_->resizeRowsToContents();
    for (int row = 0; row < grid_->rowCount(); ++row)
        grid_->setRowHeight(row, grid_->rowHeight(row) + kRowPadding);
}

bool Foodg::eventFilter(QObject* watched, QEvent* event)
{
    if (grid_ && watched == grid_->viewport() && event->type() == QEvent::Resize)
        fitColumns();
    return ActivityWindow::eventFilter(watched, event);
}
