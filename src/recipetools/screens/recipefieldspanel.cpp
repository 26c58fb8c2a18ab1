#include "recipetools/screens/recipefieldspanel.h"

#include "common/colors.h"
#include "common/widgets/qtcolors.h"
#include "cookbook/logic/cookbooknames.h"
#include "cookbook/logic/nameentry.h"
#include "recipetools/logic/amountformat.h"
#include "recipetools/logic/recipewords.h"
#include "shell/kit/droplist.h"

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

namespace {

// An amount is typed as a decimal of the record's five characters; shown as
// a fraction ("12 2/3") it may be longer, so outside editing the box takes
// any length (QLineEdit's default).
constexpr int kShownAmountLength = 32767;
constexpr int kRowsPerBlock = kRecipeRows / 2;
constexpr qint32 kRedCounter = 255;

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

QFrame* Block(const QString& name, QWidget* parent)
{
    auto* frame = new QFrame(parent);
    frame->setObjectName(name);
    frame->setFrameStyle(QFrame::Panel | QFrame::Raised);
    frame->setAutoFillBackground(true);
    return frame;
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

    combo3_ = new DropList(QStringLiteral("Combo3"), AmountPickTexts(), this);
    combo5_ = new DropList(QStringLiteral("Combo5"), SingularUnits(), this);
    combo6_ = new DropList(QStringLiteral("Combo6"), PluralUnits(), this);
    for (DropList* list : {combo3_, combo5_, combo6_}) {
        connect(list, &DropList::picked, this, &RecipeFieldsPanel::dropListPicked);
        connect(list, &DropList::givingFocusBack, this, [this](QLineEdit* box) { returningFrom_ = box; });
    }

    for (int row = 0; row < kRecipeRows; ++row) {
        connect(text1_[row], &QLineEdit::textEdited, this, [this, row] { filterAmount(row); });
        for (QLineEdit* box : {text4_[row], text5_[row]})
            connect(box, &QLineEdit::textEdited, this, [this, box] { refuseQuote(box); });
    }
    for (QLineEdit* box : {text8_, text3_, text7_, text6_})
        connect(box, &QLineEdit::textEdited, this, [this, box] { refuseQuote(box); });
    connect(combo4_, &QComboBox::editTextChanged, this, [this] {
        if (combo4_->hasFocus())
            emit recipeEdited();
    });
    connect(text2_, &QPlainTextEdit::textChanged, this, &RecipeFieldsPanel::showDirectionsLength);
    connect(list1_, &QListWidget::itemClicked, this, &RecipeFieldsPanel::currentNamesClicked);
    setEditable(false);
    showNameBox(false);
}

void RecipeFieldsPanel::buildLayout()
{
    auto* top = Block(QStringLiteral("Frame1"), this);
    combo1_ = new QComboBox(top);
    combo1_->setObjectName(QStringLiteral("Combo1"));
    combo1_->addItems(RecipeTypeNames());
    combo1_->setCurrentIndex(-1);
    combo1_->setMaxVisibleItems(22);
    combo2_ = new QComboBox;
    combo2_->setObjectName(QStringLiteral("Combo2"));
    combo2_->setMaxVisibleItems(20);
    text8_ = MakeBox(QStringLiteral("Text8"), kRecipeNameLength, nullptr);
    nameStack_ = new QStackedWidget(top);
    nameStack_->addWidget(combo2_);
    nameStack_->addWidget(text8_);
    nameStack_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* topRow = new QHBoxLayout(top);
    topRow->setContentsMargins(6, 4, 6, 4);
    topRow->addWidget(Caption(QStringLiteral("Type:"), top, true));
    topRow->addWidget(combo1_, 2);
    topRow->addSpacing(16);
    topRow->addWidget(Caption(QStringLiteral("Recipe:"), top, true));
    topRow->addWidget(nameStack_, 3);

    auto* rows = Block(QStringLiteral("Frame2"), this);
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
        text1_[row] = MakeBox(QStringLiteral("Text1_%1").arg(row), kShownAmountLength, rows);
        text4_[row] = MakeBox(QStringLiteral("Text4_%1").arg(row), kUnitLength, rows);
        text5_[row] = MakeBox(QStringLiteral("Text5_%1").arg(row), kIngredientLength, rows);
        text1_[row]->setFixedWidth(56);
        text4_[row]->setFixedWidth(72);
        text5_[row]->setMinimumWidth(120); // the screen still fits a window of 800 by 600
        grid->addWidget(text1_[row], line, column);
        grid->addWidget(text4_[row], line, column + 1);
        grid->addWidget(text5_[row], line, column + 2);
    }
    grid->setColumnStretch(2, 1);
    grid->setColumnStretch(6, 1);

    auto* bottom = Block(QStringLiteral("Frame3"), this);
    text2_ = new QPlainTextEdit(bottom);
    text2_->setObjectName(QStringLiteral("Text2"));
    text2_->setTabChangesFocus(true);
    text2_->setMinimumSize(160, 48);
    label13_ = new QLabel(QStringLiteral("0"), bottom);
    label13_->setObjectName(QStringLiteral("Label13"));
    // The length counter stands under the box, where it takes no width
    // from the cooking and serving information.
    auto* counter = new QHBoxLayout;
    counter->addStretch();
    counter->addWidget(Caption(QStringLiteral("Length (Max. = 1000) :"), bottom));
    counter->addWidget(label13_);
    auto* directions = new QVBoxLayout;
    directions->setSpacing(2);
    directions->addWidget(Caption(QStringLiteral("   Directions:"), bottom, true));
    directions->addWidget(text2_);
    directions->addLayout(counter);

    text3_ = MakeBox(QStringLiteral("Text3"), kOvenTemperatureLength, bottom);
    text3_->setFixedWidth(56);
    text7_ = MakeBox(QStringLiteral("Text7"), kCookingTimeLength, bottom);
    text6_ = MakeBox(QStringLiteral("Text6"), kYieldLength, bottom);
    text6_->setFixedWidth(56);
    combo4_ = new QComboBox(bottom);
    combo4_->setObjectName(QStringLiteral("Combo4"));
    combo4_->setEditable(true);
    combo4_->setInsertPolicy(QComboBox::NoInsert);
    combo4_->addItems(YieldTypes()); // in this order, servings first, not sorted
    combo4_->setCurrentIndex(-1);
    combo4_->setEditText(QString());
    // Three rows, each block's heading beside its first field, so that the
    // whole screen still fits a window of 800 by 600.
    auto* info = new QGridLayout;
    info->setVerticalSpacing(4);
    info->addWidget(Caption(QStringLiteral("   Cooking Information:"), bottom, true), 0, 0);
    info->addWidget(Caption(QStringLiteral("Oven Temperature:"), bottom), 0, 1);
    auto* oven = new QHBoxLayout;
    oven->addWidget(text3_);
    oven->addWidget(Caption(QStringLiteral("Degrees"), bottom));
    oven->addStretch();
    info->addLayout(oven, 0, 2, 1, 2);
    info->addWidget(Caption(QStringLiteral("Cooking Time:"), bottom), 1, 1);
    info->addWidget(text7_, 1, 2, 1, 2);
    info->addWidget(Caption(QStringLiteral("  Serving Information:"), bottom, true), 2, 0);
    info->addWidget(Caption(QStringLiteral("Yields:"), bottom), 2, 1);
    info->addWidget(text6_, 2, 2);
    info->addWidget(combo4_, 2, 3);
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

    namesPanel_ = Block(QStringLiteral("Current Recipe Names"), this);
    list1_ = new QListWidget(namesPanel_);
    list1_->setObjectName(QStringLiteral("List1"));
    list1_->setSortingEnabled(false);
    auto* names = new QVBoxLayout(namesPanel_);
    names->addWidget(Caption(QStringLiteral("Current Recipe Names"), namesPanel_, true));
    names->addWidget(list1_);
    namesPanel_->resize(300, 260);
    namesPanel_->hide();
    frames_ << namesPanel_;

    QList<QWidget*> fields = {combo1_, combo2_, text8_};
    for (int row = 0; row < kRecipeRows; ++row)
        fields << text1_[row] << text4_[row] << text5_[row];
    fields << text2_ << text3_ << text7_ << text6_ << combo4_;
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
    namesPanel_->resize(std::min(name.width(), 420), namesPanel_->height());
    namesPanel_->move(name.right() - namesPanel_->width(), name.bottom() + 6);
    namesPanel_->show();
    namesPanel_->raise();
}

void RecipeFieldsPanel::showPickEntries(const QStringList& entries)
{
    combo2_->clear();
    for (const QString& entry : entries)
        combo2_->addItem(RecipeNameOf(entry), entry);
    combo2_->setCurrentIndex(-1);
}

void RecipeFieldsPanel::showCurrentNameEntries(const QStringList& entries)
{
    list1_->clear();
    for (const QString& entry : entries) {
        auto* item = new QListWidgetItem(RecipeNameOf(entry), list1_);
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
    text8_->setReadOnly(!editable);
    for (int row = 0; row < kRecipeRows; ++row) {
        // A shorter limit cuts the text in the box: the amounts to show in
        // the new mode are set after this.
        text1_[row]->setMaxLength(editable ? kAmountLength : kShownAmountLength);
        text1_[row]->setReadOnly(!editable);
        text4_[row]->setReadOnly(!editable);
        text5_[row]->setReadOnly(!editable);
    }
    text2_->setReadOnly(!editable);
    text3_->setReadOnly(!editable);
    text7_->setReadOnly(!editable);
    text6_->setReadOnly(!editable);
    combo4_->lineEdit()->setReadOnly(!editable);
    if (!editable)
        closeDropLists();
}

void RecipeFieldsPanel::showNameBox(bool nameInFront)
{
    nameStack_->setCurrentWidget(nameInFront ? static_cast<QWidget*>(text8_) : combo2_);
}

RecipeFields RecipeFieldsPanel::fields() const
{
    RecipeFields fields;
    for (int row = 0; row < kRecipeRows; ++row) {
        fields.amounts[row] = text1_[row]->text();
        fields.units[row] = text4_[row]->text();
        fields.ingredients[row] = text5_[row]->text();
    }
    fields.directions = StoredDirections(text2_->toPlainText());
    fields.ovenTemperature = text3_->text();
    fields.cookingTime = text7_->text();
    fields.yieldAmount = text6_->text();
    fields.yieldType = combo4_->currentText();
    return fields;
}

void RecipeFieldsPanel::showFields(const RecipeFields& fields, const std::array<QString, kRecipeRows>& amountTexts)
{
    for (int row = 0; row < kRecipeRows; ++row) {
        text4_[row]->setText(fields.units[row]);
        text5_[row]->setText(fields.ingredients[row]);
    }
    showAmounts(amountTexts);
    // Line breaks are stored as CR LF; the box keeps plain line feeds.
    text2_->setPlainText(QString(fields.directions).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    text3_->setText(fields.ovenTemperature);
    text7_->setText(fields.cookingTime);
    text6_->setText(fields.yieldAmount);
    combo4_->setEditText(fields.yieldType);
}

void RecipeFieldsPanel::showAmounts(const std::array<QString, kRecipeRows>& amountTexts)
{
    for (int row = 0; row < kRecipeRows; ++row)
        text1_[row]->setText(amountTexts[row]);
}

void RecipeFieldsPanel::clearFields()
{
    closeDropLists();
    text8_->clear();
    for (int row = 0; row < kRecipeRows; ++row) {
        text1_[row]->clear();
        text4_[row]->clear();
        text5_[row]->clear();
    }
    text2_->clear();
    text3_->clear();
    text7_->clear();
    text6_->clear();
    combo4_->setCurrentIndex(-1);
    combo4_->setEditText(QString());
}

void RecipeFieldsPanel::closeDropLists()
{
    for (DropList* list : {combo3_, combo5_, combo6_})
        list->hide();
}

bool RecipeFieldsPanel::isRecipeField(const QWidget* widget) const
{
    if (widget == text8_ || widget == text2_ || widget == text3_ || widget == text7_ || widget == text6_
        || widget == combo4_ || (combo4_->lineEdit() && widget == combo4_->lineEdit()))
        return true;
    for (int row = 0; row < kRecipeRows; ++row) {
        if (widget == text1_[row] || widget == text4_[row] || widget == text5_[row])
            return true;
    }
    return false;
}

bool RecipeFieldsPanel::eventFilter(QObject* watched, QEvent* event)
{
    auto* field = qobject_cast<QWidget*>(watched);
    if (field && field == combo4_->lineEdit())
        field = combo4_;
    switch (event->type()) {
    case QEvent::FocusIn: {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (field == combo4_ && watched != combo4_->lineEdit())
            break; // the combo passes its focus on to its line edit
        QPalette palette = field->palette();
        palette.setColor(QPalette::Base, ColorFromColorref(QBColor(kFocusColorIndex)));
        field->setPalette(palette);
        // Coming back from another window or from a drop list is no new entry.
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && field != returningFrom_)
            fieldEntered(field, reason);
        returningFrom_ = nullptr;
        break;
    }
    case QEvent::FocusOut:
        if (field == combo4_ && watched != combo4_->lineEdit())
            break;
        field->setPalette(QPalette());
        break;
    case QEvent::KeyPress: {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            if (field != text2_ && field != combo1_ && field != combo2_) {
                enterPressed(field);
                return true;
            }
        } else if (editable_ && (key->text() == u"/" || key->text() == u"\\")) {
            for (QLineEdit* amount : text1_) {
                if (watched == amount)
                    emit amountInstructionsWanted();
            }
        }
        if (!editable_ && field == combo4_ && key->key() != Qt::Key_Tab && key->key() != Qt::Key_Backtab)
            return true; // the yield list does not change outside editing
        break;
    }
    case QEvent::MouseButtonPress:
        if (!editable_ && field == combo4_ && watched == combo4_)
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
    if (field != text8_)
        namesPanel_->hide();
    const int amountRow = rowOf(qobject_cast<QLineEdit*>(field), text1_);
    if (amountRow >= 0) {
        combo3_->openOver(text1_[amountRow]);
        return;
    }
    const int unitRow = rowOf(qobject_cast<QLineEdit*>(field), text4_);
    if (unitRow >= 0) {
        const QString amount = text1_[unitRow]->text();
        (TakesPluralUnits(amount) ? combo6_ : combo5_)->openOver(text4_[unitRow]);
    }
}

void RecipeFieldsPanel::enterPressed(QWidget* field)
{
    if (field == text8_) {
        emit nameEnterPressed();
        return;
    }
    auto* box = qobject_cast<QLineEdit*>(field);
    if (const int row = rowOf(box, text1_); row >= 0) {
        text4_[row]->setFocus(Qt::TabFocusReason);
    } else if (const int unitRow = rowOf(box, text4_); unitRow >= 0) {
        text5_[unitRow]->setFocus(Qt::TabFocusReason);
    } else if (const int ingredientRow = rowOf(box, text5_); ingredientRow >= 0) {
        if (ingredientRow + 1 < kRecipeRows)
            text1_[ingredientRow + 1]->setFocus(Qt::TabFocusReason);
        else
            text2_->setFocus(Qt::TabFocusReason);
    } else {
        focusNextChild();
    }
}

void RecipeFieldsPanel::filterAmount(int row)
{
    QLineEdit* box = text1_[row];
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
    QString text = text2_->toPlainText();
    qsizetype length = StoredDirections(text).size();
    if (length > kDirectionsLength) {
        // The box takes no more than the record holds, line breaks counting two.
        while (StoredDirections(text).size() > kDirectionsLength)
            text.chop(1);
        const QSignalBlocker block(text2_);
        text2_->setPlainText(text);
        text2_->moveCursor(QTextCursor::End);
        length = StoredDirections(text).size();
    }
    label13_->setText(QString::number(length));
    QPalette palette = label13_->palette();
    palette.setColor(QPalette::WindowText,
                     length > kDirectionsRedAbove ? ColorFromColorref(kRedCounter) : QColor(Qt::black));
    label13_->setPalette(palette);
    if (text2_->hasFocus() && editable_)
        emit recipeEdited();
}

void RecipeFieldsPanel::dropListPicked(QLineEdit* box, int index, const QString& text)
{
    if (const int row = rowOf(box, text1_); row >= 0) {
        const QString decimal = QString::fromLatin1(AmountPicks()[size_t(index)].decimal);
        box->setText(decimal);
        emit amountPicked(row, decimal);
        emit recipeEdited();
        text4_[row]->setFocus(Qt::TabFocusReason);
    } else if (const int unitRow = rowOf(box, text4_); unitRow >= 0) {
        box->setText(text);
        emit recipeEdited();
        text5_[unitRow]->setFocus(Qt::TabFocusReason);
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
