// Shoplist's output: the checklist and the worksheet on the print options
// panel, and the list as text on the clipboard.
#include "shopping/screens/shoplist.h"

#include "common/dialogs.h"
#include "common/widgets/qtfonts.h"
#include "print/logic/pagebuilder.h"
#include "print/logic/printfont.h"
#include "print/screens/fontmeasurer.h"
#include "print/screens/printoptionspanel.h"
#include "shell/kit/screenstatusbar.h"
#include "shell/logic/processvalues.h"
#include "shopping/logic/listclipboard.h"
#include "shopping/logic/shoppingprint.h"
#include "shopping/screens/entrybox.h"
#include "shopping/screens/listprintoptions.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>

namespace {

// Auto Size fits 96 letters "n" across the page.
const QString kAutoSizeTestLine(96, QLatin1Char('n'));
const QString kPrintStatus = QStringLiteral("Print");
const QString kWorksheetStatus = QStringLiteral("Print worksheet");

// Any family can be set: the system puts its nearest font in the place of
// one it does not have. Only a font without a name cannot.
bool FontCanBeSet(const QString& family)
{
    return !family.trimmed().isEmpty();
}

} // namespace

void Shoplist::buildPrintPanel(QWidget* area)
{
    printPanel_ = new PrintOptionsPanel(dialogs(), kAutoSizeTestLine, Settings::ShoplistGuideLines, area);
    printOptions_ = new ListPrintOptions;
    printPanel_->addOptionGroup(printOptions_);
    panels_ += printPanel_->colouredPanels();
    overScreen_.append(printPanel_);
    printPanel_->setComposer([this](PageBuilder& page) { composePrintout(page); });
    connect(printOptions_, &ListPrintOptions::changed, printPanel_, &PrintOptionsPanel::recompose);
    connect(printPanel_, &PrintOptionsPanel::exited, this, &Shoplist::leavePrintOptions);
}

void Shoplist::openPrintPanel(bool worksheet)
{
    screenStatusBar()->setActivity(worksheet ? kWorksheetStatus : kPrintStatus);
    if (!worksheet && !HasPrintableRows(list_.rows(), int(list_.entryList().size()))) {
        dialogs().tell(kPrintStatus, QStringLiteral("There are currently No Entries to Print!"), Icon::Information);
        screenStatusBar()->setActivity(windowTitle());
        return;
    }
    PrintFont() = ListPrintFont(PrintFont(), FontCanBeSet);
    printOptions_->setEnabled(!worksheet);
    printPanel_->setDocumentName(worksheet ? QStringLiteral("Print Worksheet")
                                           : QStringLiteral("Grocery Shopping List"));
    commands_->menu("mOptions")->menuAction()->setVisible(false);
    setPanel(ShoplistPanel::Print);
    placePanels();
    printPanel_->open();
}

void Shoplist::leavePrintOptions()
{
    commands_->menu("mOptions")->menuAction()->setVisible(true);
    setPanel(ShoplistPanel::None);
    screenStatusBar()->setActivity(windowTitle());
    focusCommandButton(ShoplistCommand::PrintOptions);
}

// Every change on the panel composes again what the status bar names.
void Shoplist::composePrintout(PageBuilder& page)
{
    if (screenStatusBar()->activity() == kWorksheetStatus) {
        ComposeShoppingWorksheet(page, PrintFont());
        return;
    }
    ShoppingPrintout printout;
    printout.familyName = Process().FamilyName;
    printout.dateBox = dateBox_->box()->text();
    printout.rows = list_.rows();
    printout.entryCount = int(list_.entryList().size());
    printout.dividers = printOptions_->dividers();
    printout.printDate = printOptions_->printDate();
    ComposeShoppingList(page, printout, PrintFont());
}

// The item column is filled out in the screen's own font, as it is seen.
void Shoplist::copyList()
{
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(
        ShoppingListClipboardText(list_.rows(), dateBox_->box()->text(), FontMeasurer(), TextFontOf(font(), 0)));
    dialogs().tell(QStringLiteral("Copy Option"), QStringLiteral("Data has been copied to the Windows Clipboard."),
                   Icon::Information);
}
