// Shoplist's list on the screen: the item box and the catalogue drop-down,
// the grid and its cells, the amount panel, and deleting rows and names.
#include "shopping/screens/shoplist.h"

#include "common/blanktext.h"
#include "common/colors.h"
#include "common/dialogs.h"
#include "common/widgets/qtcolors.h"
#include "common/writefailure.h"
#include "shell/kit/popupcalendar.h"
#include "shell/kit/screengrid.h"
#include "shopping/screens/amountpanel.h"
#include "shopping/screens/entrybox.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QStringListModel>

namespace {

const QString kItemGrid = QStringLiteral("Item Grid");
const QString kItemFirst = QStringLiteral("Please, enter an Item before any Amounts.");

enum LeftColumnPage { kEntryPanels = 0, kAmountPanel = 1 };

} // namespace

void Shoplist::connectEntry()
{
    connect(itemBox_->box(), &QLineEdit::textEdited, this, &Shoplist::itemBoxEdited);
    connect(itemBox_, &EntryBox::enterPressed, this, &Shoplist::itemBoxEnter);
    itemBox_->box()->installEventFilter(this);
    connect(addToGrid_, &QPushButton::clicked, this, &Shoplist::addTypedItem);
    connect(deleteFromFile_, &QPushButton::clicked, this, &Shoplist::deleteFromFile);
    connect(combo1_, &QComboBox::activated, this, &Shoplist::comboPicked);
    combo1_->lineEdit()->installEventFilter(this);
    connect(dateBox_->box(), &QLineEdit::textEdited, this, &Shoplist::dateBoxEdited);
    dateBox_->box()->installEventFilter(this);
    connect(calendar_, &PopupCalendar::datePicked, this, [this] {
        list_.setDirty(true);
        applyCommandStates();
        itemBox_->box()->setFocus(Qt::OtherFocusReason);
    });
    connect(grid_, &QTableWidget::cellClicked, this, [this](int row, int column) { cellClicked(row + 1, column); });
    connect(amountPanel_, &AmountPanel::enterRequested, this, &Shoplist::enterAmount);
    connect(amountPanel_, &AmountPanel::clearRequested, this, &Shoplist::clearAmount);
    connect(amountPanel_, &AmountPanel::boxClicked, this, &Shoplist::amountBoxClicked);
    for (EntryBox* box : {itemBox_, dateBox_, amountPanel_->entryBox()}) {
        connect(box, &EntryBox::entered, this, [this, box] { boxEntered(box); });
        connect(box, &EntryBox::deletePressed, this, [this] {
            if (on_.deleteItem)
                deleteItem();
        });
    }
    connect(asEntered_, &QRadioButton::clicked, this, [this] { sortChosen(SortMode::AsEntered); });
    connect(alphabetically_, &QRadioButton::clicked, this, [this] { sortChosen(SortMode::Alphabetically); });
}

bool Shoplist::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == itemBox_->box() && event->type() == QEvent::MouseButtonDblClick) {
        addTypedItem();
        return true;
    }
    if (watched == dateBox_->box() && event->type() == QEvent::MouseButtonPress)
        openCalendar();
    if (watched == combo1_->lineEdit() && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            comboEnter();
            return true;
        }
    }
    if ((watched == listArea_ || watched == centralWidget()) && event->type() == QEvent::Resize)
        placePanels();
    return ActivityWindow::eventFilter(watched, event);
}

// ---- The grid ---------------------------------------------------------------

// The grid shows the model: its header, its rows, and under each item cell
// the position of the row's entry, which moves with the row in a header sort.
void Shoplist::showList()
{
    const QList<GridRow>& rows = list_.rows();
    grid_->setUpdatesEnabled(false);
    grid_->setRowCount(int(rows.size()));
    grid_->horizontalHeaderItem(0)->setText(list_.header());
    for (int row = 0; row < rows.size(); ++row) {
        grid_->setText(row, 0, rows[row].item);
        grid_->setText(row, 1, rows[row].amount);
        grid_->setValue(row, 0, rows[row].position);
    }
    grid_->setUpdatesEnabled(true);
    applyCommandStates();
}

void Shoplist::headerSorted()
{
    QList<GridRow> rows;
    for (int row = 0; row < grid_->rowCount(); ++row)
        rows.append(GridRow{grid_->text(row, 0), grid_->text(row, 1), grid_->value(row, 0).toInt()});
    list_.adoptHeaderSort(rows);
    showList();
    focusCommandButton(ShoplistCommand::Exit);
}

void Shoplist::selectRow(int row, int column)
{
    grid_->setCurrentCell(qMax(1, row) - 1, column);
}

void Shoplist::sortChosen(SortMode mode)
{
    list_.setSortMode(mode);
    itemCellSelected_ = false;
    showList();
}

void Shoplist::cellClicked(int row, int column)
{
    if (column == 1)
        itemBox_->setText(QString());
    else
        showItemEntry();
    const QString boxText = itemBox_->box()->text();
    const CellClickOutcome outcome = list_.clickCell(row, column, boxText);
    itemCellSelected_ = false;
    switch (outcome.kind) {
    case CellClickOutcome::Kind::StoredFromBox:
        checkCatalogue(boxText);
        itemBox_->setText(QString());
        showList();
        focusCommandButton(ShoplistCommand::Exit);
        break;
    case CellClickOutcome::Kind::AwaitingName:
        itemCellSelected_ = outcome.deleteItemAllowed;
        applyCommandStates();
        itemBox_->box()->setFocus(Qt::OtherFocusReason);
        break;
    case CellClickOutcome::Kind::ItemFirst:
        applyCommandStates();
        dialogs().tell(kItemGrid, kItemFirst, Icon::Information);
        if (outcome.firstEmptyRow > 0) {
            selectRow(outcome.firstEmptyRow, 0);
            grid_->setFocus(Qt::OtherFocusReason);
        }
        break;
    case CellClickOutcome::Kind::EnterAmount:
        applyCommandStates();
        amountPanel_->start(outcome.itemName, outcome.amount);
        leftColumn_->setCurrentIndex(kAmountPanel);
        amountPanel_->box()->setFocus(Qt::OtherFocusReason);
        break;
    }
}

// The item and date boxes come back in the amount panel's place.
void Shoplist::showItemEntry()
{
    if (leftColumn_->currentIndex() == kEntryPanels)
        return;
    if (leftColumn_->currentWidget()->isAncestorOf(QApplication::focusWidget()))
        grid_->setFocus(Qt::OtherFocusReason);
    leftColumn_->setCurrentIndex(kEntryPanels);
}

// ---- The item box and the catalogue -------------------------------------------

void Shoplist::showDropDown()
{
    dropDown_ = catalogue_.dropDownEntries();
    dropDownModel_->setStringList(dropDown_);
    combo1_->setCurrentIndex(-1);
    combo1_->setEditText(QString());
}

void Shoplist::itemBoxEdited()
{
    const QString match = TypeAheadMatch(dropDown_, itemBox_->box()->text());
    if (!match.isEmpty())
        combo1_->setEditText(match);
    applyCommandStates();
}

void Shoplist::itemBoxEnter()
{
    if (!list_.editInPlace()) {
        addTypedItem();
        return;
    }
    QApplication::beep();
    list_.storeIntoRow(list_.currentRow(), itemBox_->box()->text());
    list_.setDirty(true);
    list_.setEditInPlace(false);
    itemBox_->setText(QString());
    itemCellSelected_ = false;
    showList();
}

void Shoplist::addTypedItem()
{
    const QString text = itemBox_->box()->text();
    if (IsBlank(text))
        return;
    if (!list_.appendName(LTrim(text))) {
        tellListFull();
        return;
    }
    checkCatalogue(text);
    itemBox_->setText(QString());
    list_.setEditInPlace(false);
    list_.rebuild();
    list_.setDirty(true);
    itemCellSelected_ = false;
    showList();
    focusCommandButton(ShoplistCommand::Exit);
}

void Shoplist::checkCatalogue(const QString& name)
{
    switch (catalogue_.check(name)) {
    case ItemCatalogue::Change::Changed:
        showDropDown();
        break;
    case ItemCatalogue::Change::Full:
        dialogs().tell(QStringLiteral("Grocery Item File"),
                       QStringLiteral("The file of grocery items is full: it holds %1 names.\n"
                                      "The item is on the list, but it was not added to the file. Delete names "
                                      "you no longer need with \"Delete Item fm File\" to make room.")
                           .arg(kCatalogueCapacity),
                       Icon::Exclamation);
        break;
    case ItemCatalogue::Change::WriteFailed:
        dialogs().ask(WriteFailedMessage(QString::fromLatin1(kCatalogueFileName)));
        break;
    case ItemCatalogue::Change::None:
        break;
    }
}

void Shoplist::comboPicked(int index)
{
    const QString name = combo1_->itemText(index);
    if (list_.editInPlace()) {
        list_.storeIntoRow(list_.currentRow(), name);
        list_.setDirty(true);
        list_.setEditInPlace(false);
        itemCellSelected_ = false;
        combo1_->setEditText(QString());
        showList();
        return;
    }
    itemBox_->setText(name);
    boxEntered(itemBox_);
    combo1_->setEditText(QString());
    applyCommandStates();
}

void Shoplist::comboEnter()
{
    const QString text = combo1_->currentText();
    itemBox_->setText(text);
    if (!IsBlank(text))
        checkCatalogue(text);
    applyCommandStates();
}

void Shoplist::deleteFromFile()
{
    const QString name = itemBox_->box()->text();
    if (catalogue_.remove(name) == ItemCatalogue::Change::WriteFailed) {
        dialogs().ask(WriteFailedMessage(QString::fromLatin1(kCatalogueFileName)));
        return;
    }
    itemBox_->setText(QString());
    showDropDown();
    applyCommandStates();
}

// The box with the keyboard is yellow; the one before it turns back.
void Shoplist::boxEntered(EntryBox* entered)
{
    for (EntryBox* box : {itemBox_, dateBox_, amountPanel_->entryBox()}) {
        QPalette palette = box->box()->palette();
        palette.setColor(QPalette::Base, box == entered ? ColorFromColorref(QBColor(kFocusColorIndex))
                                                        : QApplication::palette(box->box()).color(QPalette::Base));
        box->box()->setPalette(palette);
    }
}

// ---- Amounts and rows -----------------------------------------------------------

void Shoplist::enterAmount()
{
    list_.enterAmount(amountPanel_->box()->text());
    showList();
    amountPanel_->entryBox()->setText(QString());
    amountPanel_->box()->setFocus(Qt::OtherFocusReason);
    selectRow(list_.currentRow(), 0);
}

void Shoplist::clearAmount()
{
    amountPanel_->entryBox()->setText(QString());
    selectRow(list_.currentRow(), 0);
}

void Shoplist::amountBoxClicked()
{
    if (!IsBlank(list_.cell(list_.currentRow(), 0)))
        return;
    dialogs().tell(kItemGrid, kItemFirst, Icon::Information);
    showItemEntry();
    itemBox_->box()->setFocus(Qt::OtherFocusReason);
}

void Shoplist::deleteItem()
{
    const int row = list_.currentRow();
    selectRow(row, 0);
    const Answer answer = dialogs().ask(
        {QStringLiteral("Delete Row"), list_.deleteQuestion(row), Buttons::YesNoCancel, Icon::None, 2});
    if (answer != Answer::Yes)
        return;
    list_.deleteRow(row);
    list_.setEditInPlace(false);
    itemCellSelected_ = false;
    showItemEntry();
    showList();
}

void Shoplist::tellListFull()
{
    dialogs().tell(kItemGrid,
                   QStringLiteral("The list is full: a shopping list holds at most %1 items.\n"
                                  "Save it, and start a new list for the rest.")
                       .arg(ShoppingList::kMaxEntries),
                   Icon::Exclamation);
}
