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

    currentYield_ = new QLabel(this);
    currentYield_->setObjectName(QStringLiteral("Label20"));
    currentYieldType_ = new QLabel(this);
    currentYieldType_->setObjectName(QStringLiteral("Label21"));
    newYieldBox_ = new QLineEdit(this);
    newYieldBox_->setObjectName(QStringLiteral("Text9"));
    // The new yield is written into the recipe's yield field as typed.
    newYieldBox_->setMaxLength(kYieldLength);
    newYieldBox_->setMaximumWidth(80);
    newYieldBox_->installEventFilter(this);
    newYieldType_ = new QLabel(this);
    newYieldType_->setObjectName(QStringLiteral("Label24"));

    calculateButton_ = addButton(QStringLiteral("Command9"), QStringLiteral("Calculate New &Amounts"));
    closeButton_ = addButton(QStringLiteral("Command10"), QStringLiteral("&Close"));
    connect(calculateButton_, &QPushButton::clicked, this, &CalculatorPanel::calculateRequested);
    connect(closeButton_, &QPushButton::clicked, this, &CalculatorPanel::closeRequested);

    auto* current = new QHBoxLayout;
    current->addWidget(currentYield_);
    current->addWidget(currentYieldType_);
    current->addStretch();
    auto* changeTo = new QHBoxLayout;
    changeTo->addWidget(newYieldBox_);
    changeTo->addWidget(newYieldType_);
    changeTo->addStretch();
    body()->addWidget(note);
    form()->addRow(QStringLiteral("Current Yield Is:"), current);
    form()->addRow(QStringLiteral("Change Yield To:"), changeTo);
}

void CalculatorPanel::open(const QString& currentYield, const QString& yieldType)
{
    currentYield_->setText(currentYield);
    currentYieldType_->setText(yieldType);
    newYieldType_->setText(currentYieldType_->text());
    newYieldBox_->clear();
    OverlayPanel::open(newYieldBox_);
}

QString CalculatorPanel::newYield() const
{
    return newYieldBox_->text();
}

QString CalculatorPanel::currentYield() const
{
    return currentYield_->text();
}

void CalculatorPanel::setCurrentYield(const QString& yield)
{
    currentYield_->setText(yield);
}

void CalculatorPanel::clearNewYield()
{
    newYieldBox_->clear();
}

void CalculatorPanel::clear()
{
    currentYield_->clear();
    currentYieldType_->clear();
    newYieldBox_->clear();
    newYieldType_->clear();
}

QString CalculatorPanel::newYieldType() const
{
    return newYieldType_->text();
}

bool CalculatorPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == newYieldBox_) {
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
    const QString filtered = FilterYieldBox(newYieldBox_->text());
    if (filtered != newYieldBox_->text()) {
        newYieldBox_->setText(filtered);
        newYieldBox_->end(false);
    }
    const QString newType = YieldTypeForTyped(filtered, newYieldType_->text());
    newYieldType_->setText(newType);
    emit yieldTypeTyped(newType);
}
