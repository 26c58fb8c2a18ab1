#include "shopping/screens/amountpanel.h"

#include "shell/kit/raisedpanel.h"
#include "shopping/logic/amountentry.h"
#include "shopping/screens/entrybox.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kDigitColumns = 5;
constexpr int kUnitColumns = 3;

QPushButton* MakeButton(const QString& name, const QString& caption, QWidget* parent)
{
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

} // namespace

AmountPanel::AmountPanel(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("SSPanel3"));
    MakeRaised(this, 2);
    auto* layout = new QVBoxLayout(this);

    auto* caption = new QLabel(QStringLiteral("Amount Entry Panel"), this);
    caption->setObjectName(QStringLiteral("AmountEntryCaption"));
    QFont bold = caption->font();
    bold.setBold(true);
    caption->setFont(bold);
    layout->addWidget(caption);
    label_ = new QLabel(this);
    label_->setObjectName(QStringLiteral("Label2"));
    layout->addWidget(label_);
    auto* prompt = new QLabel(QStringLiteral("The Amount Desired: Enter Amount (i.e. 1 Dozen, 2 Packages, etc.):"), this);
    prompt->setObjectName(QStringLiteral("Label3"));
    prompt->setWordWrap(true);
    layout->addWidget(prompt);
    auto* amountBox = new QLineEdit(this);
    amountBox->setObjectName(QStringLiteral("Text1_1"));
    entry_ = new EntryBox(amountBox, kAmountBoxLength);
    amountBox->installEventFilter(this);
    layout->addWidget(amountBox);

    auto* digits = new QGridLayout;
    for (int digit = 0; digit <= 9; ++digit) {
        QPushButton* button = MakeButton(QStringLiteral("Command3_%1").arg(digit), QString::number(digit), this);
        connect(button, &QPushButton::clicked, this,
                [this, digit] { showAmount(AmountAfterDigit(box()->text(), digit)); });
        digits->addWidget(button, digit / kDigitColumns, digit % kDigitColumns);
        digits_.append(button);
    }
    layout->addLayout(digits);

    auto* units = new QGridLayout;
    for (int index = 0; index < kUnitButtonCount; ++index) {
        QPushButton* button = MakeButton(QStringLiteral("Command4_%1").arg(index),
                                         QString::fromLatin1(UnitButtons()[std::size_t(index)].caption), this);
        connect(button, &QPushButton::clicked, this,
                [this, index] { showAmount(AmountAfterUnit(box()->text(), index)); });
        units->addWidget(button, index / kUnitColumns, index % kUnitColumns);
        units_.append(button);
    }
    layout->addLayout(units);

    enter_ = MakeButton(QStringLiteral("Command5_0"), QStringLiteral("Enter Amount on Item Grid"), this);
    clear_ = MakeButton(QStringLiteral("Command5_1"), QStringLiteral("Clear The Amount"), this);
    layout->addWidget(enter_);
    layout->addWidget(clear_);
    layout->addStretch();
    connect(enter_, &QPushButton::clicked, this, &AmountPanel::enterRequested);
    connect(clear_, &QPushButton::clicked, this, &AmountPanel::clearRequested);
    connect(entry_, &EntryBox::enterPressed, this, [this] {
        if (!box()->text().isEmpty())
            emit enterRequested();
    });
}

QLineEdit* AmountPanel::box() const
{
    return entry_->box();
}

QPushButton* AmountPanel::digitButton(int digit) const
{
    return digits_.value(digit);
}

QPushButton* AmountPanel::unitButton(int index) const
{
    return units_.value(index);
}

void AmountPanel::start(const QString& itemName, const QString& amount)
{
    label_->setText(QStringLiteral("Amount of ") + itemName);
    entry_->setText(amount);
}

// The new amount, the cursor at its end and the keyboard in the box.
void AmountPanel::showAmount(const QString& amount)
{
    entry_->setText(amount);
    box()->setCursorPosition(int(amount.size()));
    box()->setFocus(Qt::OtherFocusReason);
}

bool AmountPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == box() && event->type() == QEvent::MouseButtonPress)
        emit boxClicked();
    return QFrame::eventFilter(watched, event);
}
