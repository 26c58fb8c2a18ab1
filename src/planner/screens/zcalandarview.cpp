// Zcalandar's views, printing and copying: the view panel and its table,
// the print options over it, and the day on the clipboard.
#include "planner/screens/zcalandar.h"

#include "common/clock.h"
#include "common/dialogs.h"
#include "common/widgets/qtfonts.h"
#include "planner/logic/menucopy.h"
#include "planner/logic/menuprint.h"
#include "planner/logic/menuview.h"
#include "planner/screens/calendarstrip.h"
#include "planner/screens/daylinespanel.h"
#include "planner/screens/menuprintoptions.h"
#include "planner/screens/menuviewpanel.h"
#include "print/logic/pagebuilder.h"
#include "print/logic/printfont.h"
#include "print/screens/fontmeasurer.h"
#include "print/screens/printoptionspanel.h"
#include "shell/logic/processvalues.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>

namespace {

// Auto Size fits 76 letters "n" across the page.
const QString kAutoSizeTestLine(76, QLatin1Char('n'));
// A view row is this share of the window's height for each of its lines.
constexpr double kRowShareOfHeight = .032;

} // namespace

void Zcalandar::buildPrintPanel(QWidget* area)
{
    printPanel_ = new PrintOptionsPanel(dialogs(), kAutoSizeTestLine, Settings::ZcalandarGuideLines, area);
    printOptions_ = new MenuPrintOptions;
    printPanel_->addOptionGroup(printOptions_);
    printPanel_->setFontSlots({Settings::ZcalandarPrintFontName, Settings::ZcalandarPrintFontSize});
    printPanel_->setDocumentName(QStringLiteral("Menu Planner"));
    printPanel_->setComposer([this](PageBuilder& page) { composePrintout(page); });
    connect(printOptions_, &MenuPrintOptions::changed, printPanel_, &PrintOptionsPanel::recompose);
    connect(printPanel_, &PrintOptionsPanel::exited, this, &Zcalandar::leavePrintOptions);
}

// "&Print/View": unsaved lines are offered for saving first; Cancel leaves
// the panel closed.
void Zcalandar::openPrintView()
{
    const Message question{QStringLiteral("Menu Planner"),
                           QStringLiteral("Save changes/entries before next action or exiting?"),
                           Buttons::YesNoCancel, Icon::None, 1};
    const auto save = [this] {
        if (!saveLines(MenuPlaceOf(currentDate())))
            return false;
        dirty_ = false;
        return true;
    };
    if (dirty_ && !saveQuestionAllows(question, save, [this] { dirty_ = false; }))
        return;
    lines_->hideDropDowns();
    setPanel(PlannerPanel::PrintView);
    view_->open(view_->button(MenuViewPanel::kView));
    placeViewPanel();
}

// The panel stands in the middle of the screen, and covers it while its
// table shows.
void Zcalandar::placeViewPanel()
{
    if (view_->tableShown()) {
        view_->setGeometry(centralWidget()->rect());
        return;
    }
    view_->adjustSize();
    view_->centreInParent();
}

void Zcalandar::toolbarPrint()
{
    if (state_.panel == PlannerPanel::PrintView)
        openPrintOptions();
    else
        openPrintView();
}

void Zcalandar::showView()
{
    if (view_->currentDateOnly() && AllLinesBlank(lines_->lines())) {
        view_->hideTable();
        placeViewPanel();
        tell(QStringLiteral("Print"), QStringLiteral("There are no Entries to view."));
        return;
    }
    const MenuView view = BuildMenuView(currentDate(), view_->followingDays(), Process().DateFormatMode);
    if (!view.found()) {
        view_->hideTable();
        placeViewPanel();
        tell(QStringLiteral("View"), QStringLiteral("There are no enteries to view."));
        return;
    }
    view_->showView(view, height() * kRowShareOfHeight);
    placeViewPanel();
}

// "&Close" reloads the day, so lines left unsaved at the question go.
void Zcalandar::closePrintView()
{
    view_->hideTable();
    setPanel(PlannerPanel::None);
    commands_->button(ZcalandarCommand::PrintView)->setFocus(Qt::OtherFocusReason);
    view_->hide();
    loadDay(currentDate());
}

void Zcalandar::openPrintOptions()
{
    if (view_->currentDateOnly()
        && (AllLinesBlank(lines_->lines()) || !ReadDay(currentDate()).isFull())) {
        tell(QStringLiteral("Print"), QStringLiteral("There are no Entries to print."));
        return;
    }
    state_.printOptionsOpen = true;
    applyCommandStates();
    showActivity(QStringLiteral("Print"));
    PrintFont() = ReadMenuPrintFont(PrintFont());
    printPanel_->setGeometry(centralWidget()->rect());
    printPanel_->open();
}

void Zcalandar::leavePrintOptions()
{
    state_.printOptionsOpen = false;
    applyCommandStates();
    showActivity();
    view_->button(MenuViewPanel::kPrintOptions)->setFocus(Qt::OtherFocusReason);
}

void Zcalandar::composePrintout(PageBuilder& page)
{
    MenuPrintRequest request;
    request.start = currentDate();
    request.following = view_->followingDays();
    request.font = PrintFont();
    request.printDate = printOptions_->printDate();
    request.gridLines = printOptions_->gridLines();
    request.familyName = Process().FamilyName;
    request.today = clock_.today();
    ComposeMenuPages(page, request);
}

// The day's lines as text on the clipboard, padded by the screen's font.
void Zcalandar::copyDay()
{
    const MenuLines lines = lines_->lines();
    if (AllLinesBlank(lines)) {
        tell(QStringLiteral("Copy"), QStringLiteral("There are currently No Entries to Copy!"));
        return;
    }
    static const FontMeasurer measurer;
    QGuiApplication::clipboard()->setText(MenuCopyText(currentDate(), lines, measurer, TextFontOf(font(), 0)));
    tell(QStringLiteral("Copy Option"), QStringLiteral("Data has been copied to the Windows Clipboard."));
}
