#include "guides/screens/foodg.h"

#include "shell/kit/commandbutton.h"
#include "shell/logic/processvalues.h"
#include "shell/kit/helpwindow.h"
#include "shell/kit/panelcolors.h"
#include "shell/kit/screengrid.h"
#include "shell/kit/screenstatusbar.h"
#include "shell/kit/screentoolbars.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

// Breathing room above and below a row's text, in pixels.
constexpr int kRowPadding = 8;

// The page commands in the order of the screen's buttons.
struct PageCommand {
    const char* action;
    FoodGuidePage page;
};
constexpr PageCommand kPageCommands[] = {
    {"mFoodGuide", FoodGuidePage::FoodGuide},
    {"mCommonMeasures", FoodGuidePage::CommonMeasures},
    {"mMenuIdeas", FoodGuidePage::MenuIdeas},
    {"mHelpfulHints", FoodGuidePage::HelpfulHints},
    {"mHealthySubstitutes", FoodGuidePage::HealthySubstitutes},
};

QFrame* RaisedPanel(const char* objectName, QWidget* parent)
{
    auto* panel = new QFrame(parent);
    panel->setObjectName(QString::fromLatin1(objectName));
    panel->setFrameStyle(QFrame::Panel | QFrame::Raised);
    panel->setAutoFillBackground(true);
    return panel;
}

} // namespace

Foodg::Foodg(Dialogs& dialogs, QWidget* parent) : ActivityWindow(parent), dialogs_(dialogs)
{
    setObjectName(QStringLiteral("Foodg"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(FoodGuideCaption(Process().FamilyName));
    statusBar_ = new ScreenStatusBar(this);
    setStatusBar(statusBar_);
    buildMenus();
    buildToolbars();

    auto* central = new QWidget(this);
    central->setObjectName(QStringLiteral("FoodgArea"));
    setCentralWidget(central);

    title_ = new QLabel(central);
    title_->setObjectName(QStringLiteral("SSPanel1"));
    title_->setAlignment(Qt::AlignCenter);
    title_->setFrameStyle(QFrame::Panel | QFrame::Raised);
    title_->setAutoFillBackground(true);
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

    auto* commands = RaisedPanel("SSPanel2", central);
    auto* buttons = new QHBoxLayout(commands);
    buildCommandButtons(buttons, commands);

    auto* layout = new QVBoxLayout(central);
    layout->addWidget(title_);
    layout->addWidget(grid_, 1);
    layout->addWidget(commands);

    panelColors_ = new PanelColors(dialogs_, kFoodgPanelColor, statusBar_, this);
    setPanelColors(panelColors_);
    panelColors_->addPanel(title_);
    panelColors_->addPanel(commands);
    panelColors_->applyStored();
    connect(findChild<QAction*>(QStringLiteral("mPanelColor")), &QAction::triggered, panelColors_,
            &PanelColors::choosePanelColor);

    showPage(FoodGuidePage::FoodGuide);
    statusBar_->setActivity(windowTitle());
}

// No menu title takes a letter that a screen button uses (F, C, M, H, X).
void Foodg::buildMenus()
{
    QMenu* options = menuBar()->addMenu(QStringLiteral("&Options"));
    options->setObjectName(QStringLiteral("mOptions"));
    for (const PageCommand& command : kPageCommands) {
        const FoodGuidePage page = command.page;
        connect(AddCommand(options, command.action, FoodGuidePageOf(page).command), &QAction::triggered, this,
                [this, page] { showPage(page); });
    }
    options->addSeparator();
    AddCommand(options, "mPanelColor", QStringLiteral("Panel C&olor"));
    options->addSeparator();
    connect(AddCommand(options, "mExit", QStringLiteral("E&xit")), &QAction::triggered, this, &Foodg::close);

    QMenu* help = menuBar()->addMenu(QStringLiteral("Hel&p"));
    help->setObjectName(QStringLiteral("mHelpMenu"));
    QAction* helpEntry = AddCommand(help, "mHelp", QStringLiteral("Food Guide &Help"));
    helpEntry->setShortcut(QKeySequence(Qt::Key_F1));
    connect(helpEntry, &QAction::triggered, this, [] { HelpWindow::showTopic(kHelpTopic); });
}

void Foodg::buildToolbars()
{
    auto* toolbars = new ScreenToolbars(this, statusBar_);
    const auto put = [this](QToolBar* bar, std::initializer_list<const char*> names) {
        for (const char* name : names)
            bar->addAction(findChild<QAction*>(QString::fromLatin1(name)));
    };
    put(toolbars->top(), {"mFoodGuide", "mCommonMeasures", "mMenuIdeas", "mHelpfulHints", "mHealthySubstitutes"});
    toolbars->top()->addSeparator();
    put(toolbars->top(), {"mHelp", "mExit"});
    put(toolbars->side(), {"mPanelColor"});
    toolbars->applyFlags();
}

void Foodg::buildCommandButtons(QBoxLayout* layout, QWidget* parent)
{
    QStringList actions;
    for (const PageCommand& command : kPageCommands)
        actions.append(QString::fromLatin1(command.action));
    actions.append(QStringLiteral("mExit"));
    for (int i = 0; i < actions.size(); ++i) {
        QAction* action = findChild<QAction*>(actions[i]);
        auto* button = new QPushButton(action->text(), parent);
        button->setObjectName(QStringLiteral("Command1_%1").arg(i));
        button->setAutoDefault(false);
        BindButtonToAction(button, action);
        layout->addWidget(button);
    }
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
