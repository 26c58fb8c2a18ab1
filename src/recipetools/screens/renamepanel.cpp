#include "recipetools/screens/renamepanel.h"

#include "recipetools/logic/recipelifecycle.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

RenamePanel::RenamePanel(QWidget* parent)
    : OverlayPanel(QStringLiteral("Recipe Name Change"), QStringLiteral("Recipe Name Change"), parent)
{
    current_ = new QLabel(this);
    current_->setObjectName(QStringLiteral("Label27"));
    current_->setMinimumWidth(320);
    newName_ = new QLineEdit(this);
    newName_->setObjectName(QStringLiteral("Text10"));
    newName_->setMaxLength(kRecipeNameLength);
    connect(newName_, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (text.endsWith(u'"')) {
            newName_->setText(text.chopped(1));
            newName_->end(false);
        }
    });
    form()->addRow(QStringLiteral("Current Recipe Name:"), current_);
    form()->addRow(QStringLiteral("Change Recipe Name To:"), newName_);
    QPushButton* save = addButton(QStringLiteral("Command11"), QStringLiteral("Save Changed Recipe Name"));
    QPushButton* cancel = addButton(QStringLiteral("Command12"), QStringLiteral("Cancel"));
    connect(save, &QPushButton::clicked, this, [this] { emit saveRequested(newName_->text()); });
    connect(cancel, &QPushButton::clicked, this, &RenamePanel::closeRequested);
    connect(newName_, &QLineEdit::returnPressed, save, &QPushButton::click);
}

void RenamePanel::open(const QString& currentName)
{
    current_->setText(currentName.left(kRecipeNameLength));
    newName_->clear();
    OverlayPanel::open(newName_);
}

QString RenamePanel::currentName() const
{
    return current_->text();
}
