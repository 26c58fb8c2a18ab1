#include "recipetools/screens/renamepanel.h"

#include "recipetools/logic/recipelifecycle.h"
#include "shell/kit/overlaypanel.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

RenamePanel::RenamePanel(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("Recipe Name Change"));

    auto* title = MakeOverlayPanel(this, QStringLiteral("Recipe Name Change"));
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
    auto* save = new QPushButton(QStringLiteral("Save Changed Recipe Name"), this);
    save->setObjectName(QStringLiteral("Command11"));
    auto* cancel = new QPushButton(QStringLiteral("Cancel"), this);
    cancel->setObjectName(QStringLiteral("Command12"));
    connect(save, &QPushButton::clicked, this, [this] { emit saveRequested(newName_->text()); });
    connect(cancel, &QPushButton::clicked, this, &RenamePanel::cancelRequested);
    connect(newName_, &QLineEdit::returnPressed, save, &QPushButton::click);

    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Current Recipe Name:"), current_);
    form->addRow(QStringLiteral("Change Recipe Name To:"), newName_);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(save);
    buttons->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addLayout(form);
    layout->addLayout(buttons);
    hide();
}

void RenamePanel::open(const QString& currentName)
{
    current_->setText(currentName.left(kRecipeNameLength));
    newName_->clear();
    RaiseOverlayPanel(this);
    newName_->setFocus(Qt::OtherFocusReason);
}

QString RenamePanel::currentName() const
{
    return current_->text();
}
