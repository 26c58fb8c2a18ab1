#include "recipetools/screens/recipefieldspanel.h"

#include "common/colors.h"
#include "common/widgets/qtcolors.h"
#include "cookbook/logic/cookbooknames.h"
#include "cookbook/logic/nameentry.h"
#include "recipetools/logic/amountformat.h"
#include "recipetools/logic/recipewords.h"
#include "shell/kit/droplist.h"
#include "shell/kit/focuscolour.h"
#include "shell/kit/raisedpanel.h"

#include <QComboBox>
#include <QEvent>
#include <QFocusEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// An amount is typed as a decimal of the record's five characters; shown as
// a fraction ("12 2/3") it may be longer, so outside editing the box takes
// any length (QLineEdit's default).
constexpr int kShownAmountLength = 32767;
constexpr int kRowsPerBlock = kRecipeRows / 2;
constexpr qint32 kRedCounter = 255;
constexpr int kNamesPanelHeight = 260;

QLineEdit* MakeBox(const QString& name, int maxLength, QWidget* parent)
{
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    box->setMaxLength(maxLength);
    return box;
}

QLabel* Caption(const QString& text, QWidget* parent, bool bold = false)
{
    auto* label = new QLabel(text, parent);
    if (bold) {
        QFont font = label->font();
        font.setBold(true);
        label->setFont(font);
    }
    return label;
}

// The directions keep their line breaks as CR LF, as they are stored; the
// box itself works with plain line feeds.
QString StoredDirections(QString boxText)
{
    return boxText.replace(u'\n', QStringLiteral("\r\n"));
}

bool IsDigitOrPoint(QChar c)
{
    return (c >= u'0' && c <= u'9') || c == u'.';
}

} // namespace

RecipeFieldsPanel::RecipeFieldsPanel(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("RecipeFields"));
    buildLayout();

    amountDropList_ = new DropList(QStringLiteral("Combo3"), AmountPickTexts(), this);
    singularUnitList_ = new DropList(QStringLiteral("Combo5"), SingularUnits(), this);
    pluralUnitList_ = new DropList(QStringLiteral("Combo6"), PluralUnits(), this);
    for (DropList* list : {amountDropList_, singularUnitList_, pluralUnitList_}) {
        connect(list, &DropList::picked, this, &RecipeFieldsPanel::dropListPicked);
        connect(list, &DropList::givingFocusBack, this, [this](QLineEdit* box) { returningFrom_ = box; });
    }

    for (int row = 0; row < kRecipeRows; ++row) {
        connect(amountBoxes_[row], &QLineEdit::textEdited, this, [this, row] { filterAmount(row); });
        for (QLineEdit* box : {unitBoxes_[row], ingredientBoxes_[row]})
            connect(box, &QLineEdit::textEdited, this, [this, box] { refuseQuote(box); });
    }
    for (QLineEdit* box : {nameBox_, ovenTemperatureBox_, cookingTimeBox_, yieldAmountBox_})
        connect(box, &QLineEdit::textEdited, this, [this, box] { refuseQuote(box); });
    connect(yieldTypeList_, &QComboBox::editTextChanged, this, [this] {
        if (yieldTypeList_->hasFocus())
            emit recipeEdited();
    });
    connect(directionsBox_, &QPlainTextEdit::textChanged, this, &RecipeFieldsPanel::showDirectionsLength);
    connect(currentNamesList_, &QListWidget::itemClicked, this, &RecipeFieldsPanel::currentNamesClicked);
    setEditable(false);
    showNameBox(false);
}

void RecipeFieldsPanel::buildLayout()
{
    auto* top = MakeRaisedPanel(QStringLiteral("Frame1"), this);
    typeList_ = new QComboBox(top);
    typeList_->setObjectName(QStringLiteral("Combo1"));
    typeList_->addItems(RecipeTypeNames());
    typeList_->setCurrentIndex(-1);
    typeList_->setMaxVisibleItems(22);
    pickList_ = new QComboBox;
    pickList_->setObjectName(QStringLiteral("Combo2"));
    pickList_->setMaxVisibleItems(20);
    nameBox_ = MakeBox(QStringLiteral("Text8"), kRecipeNameLength, nullptr);
    nameStack_ = new QStackedWidget(top);
    nameStack_->addWidget(pickList_);
    nameStack_->addWidget(nameBox_);
    nameStack_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* topRow = new QHBoxLayout(top);
    topRow->setContentsMargins(6, 4, 6, 4);
    topRow->addWidget(Caption(QStringLiteral("Type:"), top, true));
    topRow->addWidget(typeList_, 2);
    topRow->addSpacing(16);
    topRow->addWidget(Caption(QStringLiteral("Recipe:"), top, true));
    topRow->addWidget(nameStack_, 3);

    auto* rows = MakeRaisedPanel(QStringLiteral("Frame2"), this);
    auto* grid = new QGridLayout(rows);
    grid->setContentsMargins(6, 4, 6, 4);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(1);
    grid->addWidget(Caption(QStringLiteral("    Ingredients:"), rows, true), 0, 0, 1, 7);
    for (int block = 0; block < 2; ++block) {
        const int column = block * 4;
        grid->addWidget(Caption(QStringLiteral("Amount"), rows, true), 1, column);
        grid->addWidget(Caption(QStringLiteral("Type"), rows, true), 1, column + 1);
        grid->addWidget(Caption(QStringLiteral("Ingredient"), rows, true), 1, column + 2);
    }
    grid->setColumnMinimumWidth(3, 12);
    for (int row = 0; row < kRecipeRows; ++row) {
        const int column = row < kRowsPerBlock ? 0 : 4;
        const int line = 2 + row % kRowsPerBlock;
        amountBoxes_[row] = MakeBox(QStringLiteral("Text1_%1").arg(row), kShownAmountLength, rows);
        unitBoxes_[row] = MakeBox(QStringLiteral("Text4_%1").arg(row), kUnitLength, rows);
        ingredientBoxes_[row] = MakeBox(QStringLiteral("Text5_%1").arg(row), kIngredientLength, rows);
        amountBoxes_[row]->setFixedWidth(56);
        unitBoxes_[row]->setFixedWidth(72);
        ingredientBoxes_[row]->setMinimumWidth(120); // the screen still fits a window of 800 by 600
        grid->addWidget(amountBoxes_[row], line, column);
        grid->addWidget(unitBoxes_[row], line, column + 1);
        grid->addWidget(ingredientBoxes_[row], line, column + 2);
    }
    grid->setColumnStretch(2, 1);
    grid->setColumnStretch(6, 1);

    auto* bottom = MakeRaisedPanel(QStringLiteral("Frame3"), this);
    directionsBox_ = new QPlainTextEdit(bottom);
    directionsBox_->setObjectName(QStringLiteral("Text2"));
    directionsBox_->setTabChangesFocus(true);
    directionsBox_->setMinimumSize(160, 48);
    directionsLength_ = new QLabel(QStringLiteral("0"), bottom);
    directionsLength_->setObjectName(QStringLiteral("Label13"));
    // The length counter stands under the box, where it takes no width
    // from the cooking and serving information.
    auto* counter = new QHBoxLayout;
    counter->addStretch();
    counter->addWidget(Caption(QStringLiteral("Length (Max. = 1000) :"), bottom));
    counter->addWidget(directionsLength_);
    auto* directions = new QVBoxLayout;
    directions->setSpacing(2);
    directions->addWidget(Caption(QStringLiteral("   Directions:"), bottom, true));
    directions->addWidget(directionsBox_);
    directions->addLayout(counter);

    ovenTemperatureBox_ = MakeBox(QStringLiteral("Text3"), kOvenTemperatureLength, bottom);
    ovenTemperatureBox_->setFixedWidth(56);
    cookingTimeBox_ = MakeBox(QStringLiteral("Text7"), kCookingTimeLength, bottom);
    yieldAmountBox_ = MakeBox(QStringLiteral("Text6"), kYieldLength, bottom);
    yieldAmountBox_->setFixedWidth(56);
    yieldTypeList_ = new QComboBox(bottom);
    yieldTypeList_->setObjectName(QStringLiteral("Combo4"));
    yieldTypeList_->setEditable(true);
    yieldTypeList_->setInsertPolicy(QComboBox::NoInsert);
    yieldTypeList_->addItems(YieldTypes()); // in this order, servings first, not sorted
    yieldTypeList_->setCurrentIndex(-1);
    yieldTypeList_->setEditText(QString());
    // Three rows, each block's heading beside its first field, so that the
    // whole screen still fits a window of 800 by 600.
    auto* info = new QGridLayout;
    info->setVerticalSpacing(4);
    info->addWidget(Caption(QStringLiteral("   Cooking Information:"), bottom, true), 0, 0);
    info->addWidget(Caption(QStringLiteral("Oven Temperature:"), bottom), 0, 1);
    auto* oven = new QHBoxLayout;
    oven->addWidget(ovenTemperatureBox_);
    oven->addWidget(Caption(QStringLiteral("Degrees"), bottom));
    oven->addStretch();
    info->addLayout(oven, 0, 2, 1, 2);
    info->addWidget(Caption(QStringLiteral("Cooking Time:"), bottom), 1, 1);
    info->addWidget(cookingTimeBox_, 1, 2, 1, 2);
    info->addWidget(Caption(QStringLiteral("  Serving Information:"), bottom, true), 2, 0);
    info->addWidget(Caption(QStringLiteral("Yields:"), bottom), 2, 1);
    info->addWidget(yieldAmountBox_, 2, 2);
    info->addWidget(yieldTypeList_, 2, 3);
    info->setRowStretch(3, 1);
    auto* bottomRow = new QHBoxLayout(bottom);
    bottomRow->setContentsMargins(6, 4, 6, 4);
    bottomRow->addLayout(directions, 3);
    bottomRow->addSpacing(12);
    bottomRow->addLayout(info, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(top);
    layout->addWidget(rows);
    layout->addWidget(bottom, 1);
    frames_ = {top, rows, bottom};

    namesPanel_ = MakeRaisedPanel(QStringLiteral("Current Recipe Names"), this);
    currentNamesList_ = new QListWidget(namesPanel_);
    currentNamesList_->setObjectName(QStringLiteral("List1"));
    currentNamesList_->setSortingEnabled(false);
    auto* names = new QVBoxLayout(namesPanel_);
    names->addWidget(Caption(QStringLiteral("Current Recipe Names"), namesPanel_, true));
    names->addWidget(currentNamesList_);
    namesPanel_->setProperty("overlay", true);
    namesPanel_->resize(300, kNamesPanelHeight);
    namesPanel_->hide();
    frames_ << namesPanel_;

    QList<QWidget*> fields = {typeList_, pickList_, nameBox_};
    for (int row = 0; row < kRecipeRows; ++row)
        fields << amountBoxes_[row] << unitBoxes_[row] << ingredientBoxes_[row];
    fields << directionsBox_ << ovenTemperatureBox_ << cookingTimeBox_ << yieldAmountBox_ << yieldTypeList_;
    for (QWidget* field : fields)
        watch(field);
    // Tab follows the rows: amount, unit, ingredient, then the next row.
    for (int i = 1; i < fields.size(); ++i)
        setTabOrder(fields[i - 1], fields[i]);
}

void RecipeFieldsPanel::watch(QWidget* field)
{
    field->installEventFilter(this);
    if (auto* combo = qobject_cast<QComboBox*>(field); combo && combo->lineEdit())
        combo->lineEdit()->installEventFilter(this);
}

QList<QWidget*> RecipeFieldsPanel::colouredPanels() const
{
    return frames_;
}

void RecipeFieldsPanel::showCurrentNames()
{
    const QRect name(nameStack_->mapTo(this, QPoint(0, 0)), nameStack_->size());
    // Below the name box, as tall as the panel leaves room for.
    const int top = name.bottom() + 6;
    namesPanel_->resize(std::min(name.width(), 420), std::clamp(height() - top - 4, 120, kNamesPanelHeight));
    namesPanel_->move(name.right() - namesPanel_->width(), top);
    namesPanel_->show();
    namesPanel_->raise();
}

void RecipeFieldsPanel::showPickEntries(const QStringList& entries)
{
    pickList_->clear();
    for (const QString& entry : entries)
        pickList_->addItem(RecipeNameOf(entry), entry);
    pickList_->setCurrentIndex(-1);
}

void RecipeFieldsPanel::showCurrentNameEntries(const QStringList& entries)
{
    currentNamesList_->clear();
    for (const QString& entry : entries) {
        auto* item = new QListWidgetItem(RecipeNameOf(entry), currentNamesList_);
        item->setData(Qt::UserRole, entry);
    }
}

void RecipeFieldsPanel::setEntryCheck(std::function<bool(QWidget*, Qt::FocusReason)> check)
{
    entryCheck_ = std::move(check);
}

void RecipeFieldsPanel::setEditable(bool editable)
{
    editable_ = editable;
    nameBox_->setReadOnly(!editable);
    for (int row = 0; row < kRecipeRows; ++row) {
        // A shorter limit cuts the text in the box: the amounts to show in
        // the new mode are set after this.
        amountBoxes_[row]->setMaxLength(editable ? kAmountLength : kShownAmountLength);
        amountBoxes_[row]->setReadOnly(!editable);
        unitBoxes_[row]->setReadOnly(!editable);
        ingredientBoxes_[row]->setReadOnly(!editable);
    }
    directionsBox_->setReadOnly(!editable);
    ovenTemperatureBox_->setReadOnly(!editable);
    cookingTimeBox_->setReadOnly(!editable);
    yieldAmountBox_->setReadOnly(!editable);
    yieldTypeList_->lineEdit()->setReadOnly(!editable);
    if (!editable)
        closeDropLists();
}

void RecipeFieldsPanel::setListsEnabled(bool enabled)
{
    // A list turned off with the keyboard in it hands the keyboard to the
    // panel: Qt would pass it on to the next field as if the user had tabbed.
    if (!enabled && (typeList_->hasFocus() || pickList_->hasFocus()))
        setFocus(Qt::OtherFocusReason);
    typeList_->setEnabled(enabled);
    pickList_->setEnabled(enabled);
}

void RecipeFieldsPanel::showNameBox(bool nameInFront)
{
    // The name box going behind the list with the keyboard in it hands the
    // keyboard to the list: Qt would pass it on as if the user had tabbed.
    if (!nameInFront && nameBox_->hasFocus())
        pickList_->setFocus(Qt::OtherFocusReason);
    nameStack_->setCurrentWidget(nameInFront ? static_cast<QWidget*>(nameBox_) : pickList_);
}

RecipeFields RecipeFieldsPanel::fields() const
{
    RecipeFields fields;
    for (int row = 0; row < kRecipeRows; ++row) {
        fields.amounts[row] = amountBoxes_[row]->text();
        fields.units[row] = unitBoxes_[row]->text();
        fields.ingredients[row] = ingredientBoxes_[row]->text();
    }
    fields.directions = StoredDirections(directionsBox_->toPlainText());
    fields.ovenTemperature = ovenTemperatureBox_->text();
    fields.cookingTime = cookingTimeBox_->text();
    fields.yieldAmount = yieldAmountBox_->text();
    fields.yieldType = yieldTypeList_->currentText();
    return fields;
}

void RecipeFieldsPanel::showFields(const RecipeFields& fields, const std::array<QString, kRecipeRows>& amountTexts)
{
    for (int row = 0; row < kRecipeRows; ++row) {
        unitBoxes_[row]->setText(fields.units[row]);
        ingredientBoxes_[row]->setText(fields.ingredients[row]);
    }
    showAmounts(amountTexts);
    // Line breaks are stored as CR LF; the box keeps plain line feeds.
    directionsBox_->setPlainText(QString(fields.directions).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    ovenTemperatureBox_->setText(fields.ovenTemperature);
    cookingTimeBox_->setText(fields.cookingTime);
    yieldAmountBox_->setText(fields.yieldAmount);
    yieldTypeList_->setEditText(fields.yieldType);
}

void RecipeFieldsPanel::showAmounts(const std::array<QString, kRecipeRows>& amountTexts)
{
    for (int row = 0; row < kRecipeRows; ++row)
        amountBoxes_[row]->setText(amountTexts[row]);
}

void RecipeFieldsPanel::clearFields()
{
    closeDropLists();
    nameBox_->clear();
    for (int row = 0; row < kRecipeRows; ++row) {
        amountBoxes_[row]->clear();
        unitBoxes_[row]->clear();
        ingredientBoxes_[row]->clear();
    }
    directionsBox_->clear();
    ovenTemperatureBox_->clear();
    cookingTimeBox_->clear();
    yieldAmountBox_->clear();
    yieldTypeList_->setCurrentIndex(-1);
    yieldTypeList_->setEditText(QString());
}

void RecipeFieldsPanel::closeDropLists()
{
    for (DropList* list : {amountDropList_, singularUnitList_, pluralUnitList_})
        list->hide();
}

bool RecipeFieldsPanel::eventFilter(QObject* watched, QEvent* event)
{
    auto* field = qobject_cast<QWidget*>(watched);
    if (field && field == yieldTypeList_->lineEdit())
        field = yieldTypeList_;
    switch (event->type()) {
    case QEvent::FocusIn: {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (field == yieldTypeList_ && watched != yieldTypeList_->lineEdit())
            break; // the combo passes its focus on to its line edit
        ShowFocusColour(field);
        // Coming back from another window or from a drop list is no new entry.
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && field != returningFrom_)
            fieldEntered(field, reason);
        returningFrom_ = nullptr;
        break;
    }
    case QEvent::FocusOut:
        if (field == yieldTypeList_ && watched != yieldTypeList_->lineEdit())
            break;
        ClearFocusColour(field);
        break;
    case QEvent::KeyPress: {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            if (field != directionsBox_ && field != typeList_ && field != pickList_) {
                enterPressed(field);
                return true;
            }
        } else if (editable_ && (key->text() == u"/" || key->text() == u"\\")) {
            for (QLineEdit* amount : amountBoxes_) {
                if (watched == amount)
                    emit amountInstructionsWanted();
            }
        }
        if (!editable_ && field == yieldTypeList_ && key->key() != Qt::Key_Tab && key->key() != Qt::Key_Backtab)
            return true; // the yield list does not change outside editing
        break;
    }
    case QEvent::MouseButtonPress:
        if (!editable_ && field == yieldTypeList_ && watched == yieldTypeList_)
            return true;
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void RecipeFieldsPanel::fieldEntered(QWidget* field, Qt::FocusReason reason)
{
    if (entryCheck_ && !entryCheck_(field, reason))
        return;
    if (!editable_)
        return;
    if (field != nameBox_)
        namesPanel_->hide();
    const int amountRow = rowOf(qobject_cast<QLineEdit*>(field), amountBoxes_);
    if (amountRow >= 0) {
        amountDropList_->openOver(amountBoxes_[amountRow]);
        return;
    }
    const int unitRow = rowOf(qobject_cast<QLineEdit*>(field), unitBoxes_);
    if (unitRow >= 0) {
        const QString amount = amountBoxes_[unitRow]->text();
        (TakesPluralUnits(amount) ? pluralUnitList_ : singularUnitList_)->openOver(unitBoxes_[unitRow]);
    }
}

void RecipeFieldsPanel::enterPressed(QWidget* field)
{
    if (field == nameBox_) {
        emit nameEnterPressed();
        return;
    }
    auto* box = qobject_cast<QLineEdit*>(field);
    if (const int row = rowOf(box, amountBoxes_); row >= 0) {
        unitBoxes_[row]->setFocus(Qt::TabFocusReason);
    } else if (const int unitRow = rowOf(box, unitBoxes_); unitRow >= 0) {
        ingredientBoxes_[unitRow]->setFocus(Qt::TabFocusReason);
    } else if (const int ingredientRow = rowOf(box, ingredientBoxes_); ingredientRow >= 0) {
        if (ingredientRow + 1 < kRecipeRows)
            amountBoxes_[ingredientRow + 1]->setFocus(Qt::TabFocusReason);
        else
            directionsBox_->setFocus(Qt::TabFocusReason);
    } else {
        focusNextChild();
    }
}

void RecipeFieldsPanel::filterAmount(int row)
{
    QLineEdit* box = amountBoxes_[row];
    const QString text = box->text();
    if (!text.isEmpty() && !IsDigitOrPoint(text.back())) {
        box->setText(text.size() == 1 ? QString() : text.chopped(1));
        box->end(false);
    }
    emit amountEdited(row, box->text());
    emit recipeEdited();
}

void RecipeFieldsPanel::refuseQuote(QLineEdit* box)
{
    // Only the last character is looked at: a quote pasted into the middle stays.
    if (box->text().endsWith(u'"')) {
        box->setText(box->text().chopped(1));
        box->end(false);
    }
    emit recipeEdited();
}

void RecipeFieldsPanel::showDirectionsLength()
{
    QString text = directionsBox_->toPlainText();
    qsizetype length = StoredDirections(text).size();
    if (length > kDirectionsLength) {
        // The box takes no more than the record holds, line breaks counting two.
        while (StoredDirections(text).size() > kDirectionsLength)
            text.chop(1);
        const QSignalBlocker block(directionsBox_);
        directionsBox_->setPlainText(text);
        directionsBox_->moveCursor(QTextCursor::End);
        length = StoredDirections(text).size();
    }
    directionsLength_->setText(QString::number(length));
    QPalette palette = directionsLength_->palette();
    palette.setColor(QPalette::WindowText,
                     length > kDirectionsRedAbove ? ColorFromColorref(kRedCounter)
                                                  : QPalette().color(QPalette::WindowText));
    directionsLength_->setPalette(palette);
    if (directionsBox_->hasFocus() && editable_)
        emit recipeEdited();
}

void RecipeFieldsPanel::dropListPicked(QLineEdit* box, int index, const QString& text)
{
    if (const int row = rowOf(box, amountBoxes_); row >= 0) {
        const QString decimal = QString::fromLatin1(AmountPicks()[size_t(index)].decimal);
        box->setText(decimal);
        emit amountPicked(row, decimal);
        emit recipeEdited();
        unitBoxes_[row]->setFocus(Qt::TabFocusReason);
    } else if (const int unitRow = rowOf(box, unitBoxes_); unitRow >= 0) {
        box->setText(text);
        emit recipeEdited();
        ingredientBoxes_[unitRow]->setFocus(Qt::TabFocusReason);
    }
}

int RecipeFieldsPanel::rowOf(const QLineEdit* box, const std::array<QLineEdit*, kRecipeRows>& column) const
{
    if (!box)
        return -1;
    for (int row = 0; row < kRecipeRows; ++row) {
        if (column[row] == box)
            return row;
    }
    return -1;
}
