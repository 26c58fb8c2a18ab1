#include "shopping/screens/listprintoptions.h"

#include <QCheckBox>
#include <QVBoxLayout>

ListPrintOptions::ListPrintOptions(QWidget* parent) : QGroupBox(QStringLiteral("List Options"), parent)
{
    setObjectName(QStringLiteral("Frame3"));
    dividers_ = new QCheckBox(QStringLiteral("Print Divider Lines (Every 5 Items)"), this);
    dividers_->setObjectName(QStringLiteral("Check3_0"));
    date_ = new QCheckBox(QStringLiteral("Print Date on each page"), this);
    date_->setObjectName(QStringLiteral("Check3_1"));
    auto* column = new QVBoxLayout(this);
    for (QCheckBox* box : {dividers_, date_}) {
        box->setChecked(true);
        column->addWidget(box);
        connect(box, &QCheckBox::toggled, this, &ListPrintOptions::changed);
    }
}

bool ListPrintOptions::dividers() const
{
    return dividers_->isChecked();
}

bool ListPrintOptions::printDate() const
{
    return date_->isChecked();
}
