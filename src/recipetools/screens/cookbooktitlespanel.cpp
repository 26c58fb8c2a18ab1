#include "recipetools/screens/cookbooktitlespanel.h"

#include "cookbook/logic/cookbooknames.h"
#include "cookbook/logic/cookbookselection.h"
#include "shell/kit/overlaypanel.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

CookbookTitlesPanel::CookbookTitlesPanel(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("Cookbook Titles"));

    auto* title = MakeOverlayPanel(this, QStringLiteral("Cookbook Titles"));
    auto* form = new QFormLayout;
    for (int cookbook = 1; cookbook <= kCookbookCount; ++cookbook) {
        auto* box = new QLineEdit(this);
        box->setObjectName(QStringLiteral("Text11_%1").arg(cookbook - 1));
        box->setMaxLength(kCookbookTitleLength);
        box->setMinimumWidth(280);
        form->addRow(QStringLiteral("Cookbook # %1 -").arg(cookbook), box);
        boxes_ << box;
    }
    auto* close = new QPushButton(QStringLiteral("&Close"), this);
    close->setObjectName(QStringLiteral("cmdCloseTitles"));
    auto* save = new QPushButton(QStringLiteral("&Save Changes and Close"), this);
    save->setObjectName(QStringLiteral("cmdSaveTitles"));
    connect(close, &QPushButton::clicked, this, &CookbookTitlesPanel::closeRequested);
    connect(save, &QPushButton::clicked, this, [this] { emit saveRequested(titles()); });
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(save);
    buttons->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addLayout(form);
    layout->addLayout(buttons);
    hide();
}

void CookbookTitlesPanel::open(const QStringList& titles)
{
    for (int i = 0; i < boxes_.size(); ++i)
        boxes_[i]->setText(titles.value(i));
    RaiseOverlayPanel(this);
    boxes_.first()->setFocus(Qt::OtherFocusReason);
}

QStringList CookbookTitlesPanel::titles() const
{
    QStringList titles;
    for (const QLineEdit* box : boxes_)
        titles << box->text();
    return titles;
}
