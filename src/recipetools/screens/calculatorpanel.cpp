#include "recipetools/screens/calculatorpanel.h"

#include "recipetools/logic/amountcalculator.h"
#include "recipetools/logic/recipelifecycle.h"

#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

const char kCaption[] = "Recipe Amount Calculator";
const char kNote[] =
    "Note: Unless you save the Recipe after making these changes the Amount and Yield Information will "
    "remain the same as originally displayed, the next time you view this Recipe.";

} // namespace

CalculatorPanel::CalculatorPanel(QWidget* parent)
    : OverlayPanel(QString::fromLatin1(kCaption), QString::fromLatin1(kCaption), parent)
{
    captionLabel()->setObjectName(QStringLiteral("CalculatorCaption"));
    auto* note = new QLabel(QString::fromLatin1(kNote), this);
    note->setObjectName(QStringLiteral("CalculatorNote"));
    note->setWordWrap(true);
    note->setMinimumWidth(360);

    label20_ = new QLabel(this);
    label20_->setObjectName(QStringLiteral("Label20"));
    label21_ = new QLabel(this);
    label21_->setObjectName(QStringLiteral("Label21"));
    text9_ = new QLineEdit(this);
    text9_->setObjectName(QStringLiteral("Text9"));
    // The new yield is written into the recipe's yield field as typed.
    text9_->setMaxLength(kYieldLength);
    text9_->setMaximumWidth(80);
    text9_->installEventFilter(this);
    label24_ = new QLabel(this);
    label24_->setObjectName(QStringLiteral("Label24"));

    command9_ = addButton(QStringLiteral("Command9"), QStringLiteral("Calculate New &Amounts"));
    command10_ = addButton(QStringLiteral("Command10"), QStringLiteral("&Close"));
    connect(command9_, &QPushButton::clicked, this, &CalculatorPanel::calculateRequested);
    connect(command10_, &QPushButton::clicked, this, &CalculatorPanel::closeRequested);

    auto* current = new QHBoxLayout;
    current->addWidget(label20_);
    current->addWidget(label21_);
    current->addStretch();
    auto* changeTo = new QHBoxLayout;
    changeTo->addWidget(text9_);
    changeTo->addWidget(label24_);
    changeTo->addStretch();
    body()->addWidget(note);
    form()->addRow(QStringLiteral("Current Yield Is:"), current);
    form()->addRow(QStringLiteral("Change Yield To:"), changeTo);
}

void CalculatorPanel::open(const QString& currentYield, const QString& yieldType)
{
    label20_->setText(currentYield);
    label21_->setText(yieldType);
    label24_->setText(label21_->text());
    text9_->clear();
    OverlayPanel::open(text9_);
}

QString CalculatorPanel::newYield() const
{
    return text9_->text();
}

QString CalculatorPanel::currentYield() const
{
    return label20_->text();
}

void CalculatorPanel::setCurrentYield(const QString& yield)
{
    label20_->setText(yield);
}

void CalculatorPanel::clearNewYield()
{
    text9_->clear();
}

void CalculatorPanel::clear()
{
    label20_->clear();
    label21_->clear();
    text9_->clear();
    label24_->clear();
}

QString CalculatorPanel::newYieldType() const
{
    return label24_->text();
}

bool CalculatorPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == text9_) {
        if (event->type() == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
                emit calculateRequested();
                return true;
            }
        } else if (event->type() == QEvent::KeyRelease) {
            const auto* key = static_cast<QKeyEvent*>(event);
            // A held key repeats its press but is released once.
            if (!key->isAutoRepeat() && key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter
                && key->key() != Qt::Key_Backspace)
                newYieldKeyReleased();
        }
    }
    return OverlayPanel::eventFilter(watched, event);
}

void CalculatorPanel::newYieldKeyReleased()
{
    const QString filtered = FilterYieldBox(text9_->text());
    if (filtered != text9_->text()) {
        text9_->setText(filtered);
        text9_->end(false);
    }
    const QString newType = YieldTypeForTyped(filtered, label24_->text());
    label24_->setText(newType);
    emit yieldTypeTyped(newType);
}
