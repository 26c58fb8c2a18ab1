// Form24's whole-table commands and its panels: the default titles and
// amounts, clearing the last actions, the grid's colours, copying, the
// print options panel, the percent panel, the export panel, and backup and
// restore through the backup screen.
#include "storage/screens/form24.h"

#include "common/clock.h"
#include "common/colors.h"
#include "common/programfolder.h"
#include "common/widgets/qtcolors.h"
#include "print/logic/printfont.h"
#include "print/screens/printoptionspanel.h"
#include "shell/kit/screengrid.h"
#include "shell/kit/screenstatusbar.h"
#include "shell/logic/gridcolors.h"
#include "shell/screens/backgroundselector.h"
#include "storage/logic/storageoutput.h"
#include "storage/logic/storageprint.h"
#include "storage/screens/percentpanel.h"
#include "storage/screens/storageexportpanel.h"
#include "storage/screens/storageprintoptions.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>

namespace {

// Auto Size fits 76 letters "n" across the page.
const QString kAutoSizeTestLine(76, QLatin1Char('n'));

const QString kDefaultSetting = QStringLiteral("Default Setting");

// Yes or No, No being the default.
Message NoByDefault(const QString& title, const QString& text, Buttons buttons = Buttons::YesNo)
{
    return {title, text, buttons, Icon::Question, 2};
}

} // namespace

// ---- Whole-table commands ------------------------------------------------------

void Form24::defaultTitles()
{
    if (dialogs().ask(NoByDefault(kDefaultSetting, QStringLiteral("Replace Item Titles with Default Titles?")))
        != Answer::Yes)
        return;
    model_.applyDefaultTitles();
    fillGrid();
}

void Form24::defaultAmounts()
{
    if (dialogs().ask(NoByDefault(kDefaultSetting, QStringLiteral("Replace Approximate Amount Per Person\n"
                                                                  "with Default Amounts?")))
        != Answer::Yes)
        return;
    model_.applyDefaultAmounts();
    fillGrid();
}

// The question offers Yes, No and Cancel with No the default, as the old
// program's message did; only Yes clears.
void Form24::clearLastActions()
{
    const Message question = NoByDefault(QStringLiteral("Delete Data"),
                                         QStringLiteral("Delete All Last Action Data,\n(Last 3 Columns of Data)?"),
                                         Buttons::YesNoCancel);
    if (dialogs().ask(question) != Answer::Yes)
        return;
    model_.clearLastActions();
    fillGrid();
}

void Form24::copyTable()
{
    QGuiApplication::clipboard()->setText(StorageClipboardText(model_.table()));
    dialogs().ask(kCopiedMessage);
}

// ---- Printing ------------------------------------------------------------------------

void Form24::buildPrintPanel(QWidget* area)
{
    printPanel_ = new PrintOptionsPanel(dialogs(), kAutoSizeTestLine, Settings::Form24GuideLines, area);
    printOptions_ = new StoragePrintOptions;
    printPanel_->addOptionGroup(printOptions_);
    printPanel_->setComposer([this](PageBuilder& page) { composePrintout(page); });
    connect(printOptions_, &StoragePrintOptions::changed, printPanel_, &PrintOptionsPanel::recompose);
    connect(printPanel_, &PrintOptionsPanel::exited, this, &Form24::leavePrintOptions);
}

void Form24::openPrintPanel()
{
    panel_ = StoragePanel::Print;
    applyCommandStates();
    menuBar()->setEnabled(false);
    screenStatusBar()->setActivity(QStringLiteral("Print Options"));
    printOptions_->preset(TableHasOnHandData(model_.table()));
    printPanel_->setDocumentName(model_.caption());
    printPanel_->setGeometry(centralWidget()->rect());
    printPanel_->open();
}

void Form24::leavePrintOptions()
{
    closePanel(commands_->button(Form24Command::Print));
}

void Form24::composePrintout(PageBuilder& page)
{
    StoragePrintSettings settings;
    settings.choice = printOptions_->choice();
    settings.asOfDate = printOptions_->asOfDate();
    settings.gridLines = printOptions_->gridLines();
    settings.font = PrintFont();
    ComposeStoragePages(page, windowTitle(), model_.table(), settings, clock_->today());
}

// Back from a panel: the commands come back first, then the keyboard goes
// to `focus`, before the panel hides.
void Form24::closePanel(QWidget* focus)
{
    panel_ = StoragePanel::None;
    menuBar()->setEnabled(true);
    applyCommandStates();
    screenStatusBar()->setActivity(model_.caption());
    if (focus && focus->isEnabled())
        focus->setFocus(Qt::OtherFocusReason);
}

// ---- The percent panel -------------------------------------------------------------------

void Form24::toggleRollup()
{
    if (panel_ == StoragePanel::Rollup) {
        closeRollup();
        return;
    }
    showCategory(kAllCategory);
    percent_->showLines(family_->text(), model_.percentList());
    panel_ = StoragePanel::Rollup;
    applyCommandStates();
    percent_->open(percent_->turnButton());
    percent_->centreInParent();
}

void Form24::closeRollup()
{
    closePanel(categoryButtons_[1]);
    percent_->hide();
}

// ---- Export ----------------------------------------------------------------------------

void Form24::openExport()
{
    panel_ = StoragePanel::Export;
    applyCommandStates();
    export_->openWith(ProgramFolder(), ProposedExportName(model_.caption()));
    export_->centreInParent();
}

void Form24::closeExport()
{
    closePanel(commands_->button(Form24Command::Save));
    export_->hide();
}

QList<QStringList> Form24::exportRows() const
{
    QList<QStringList> rows;
    for (int row = 0; row < grid_->rowCount(); ++row)
        rows.append(grid_->rowTexts(row));
    return ExportRows(grid_->headings(), rows);
}

// ---- Backup and restore --------------------------------------------------------------------

void Form24::backup()
{
    if (model_.dataChanged()) {
        const Message question{QStringLiteral("Food Storage"),
                               QStringLiteral("Save changes made to Food Storage data before making backup?"),
                               Buttons::YesNoCancel, Icon::Question, 1};
        if (!saveQuestionAllows(question, [this] { return save(); }))
            return;
    }
    backupOpener_(KindInfo(model_.kind()).backupMode);
}

// The restored files show at once.
void Form24::restore()
{
    backupOpener_(KindInfo(model_.kind()).backupMode + 1);
    model_.load();
    showKind();
}
