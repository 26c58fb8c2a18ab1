#include "recipetools/screens/cookbooktitlespanel.h"

#include "cookbook/logic/cookbooknames.h"
#include "cookbook/logic/cookbookselection.h"

#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

CookbookTitlesPanel::CookbookTitlesPanel(QWidget* parent)
    : OverlayPanel(QStringLiteral("Cookbook Titles"), QStringLiteral("Cookbook Titles"), parent)
{
    for (int cookbook = 1; cookbook <= kCookbookCount; ++cookbook) {
        auto* box = new QLineEdit(this);
        box->setObjectName(QStringLiteral("Text11_%1").arg(cookbook - 1));
        box->setMaxLength(kCookbookTitleLength);
        box->setMinimumWidth(280);
        form()->addRow(QStringLiteral("Cookbook # %1 -").arg(cookbook), box);
        boxes_ << box;
    }
    QPushButton* save = addButton(QStringLiteral("cmdSaveTitles"), QStringLiteral("&Save Changes and Close"));
    QPushButton* close = addButton(QStringLiteral("cmdCloseTitles"), QStringLiteral("&Close"));
    connect(close, &QPushButton::clicked, this, &CookbookTitlesPanel::closeRequested);
    connect(save, &QPushButton::clicked, this, [this] { emit saveRequested(titles()); });
}

void CookbookTitlesPanel::open(const QStringList& titles)
{
    for (int i = 0; i < boxes_.size(); ++i)
        boxes_[i]->setText(titles.value(i));
    OverlayPanel::open(boxes_.first());
}

QStringList CookbookTitlesPanel::titles() const
{
    QStringList titles;
    for (const QLineEdit* box : boxes_)
        titles << box->text();
    return titles;
}
