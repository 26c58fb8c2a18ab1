#include "planner/screens/menuprintoptions.h"

#include <QCheckBox>
#include <QVBoxLayout>

MenuPrintOptions::MenuPrintOptions(QWidget* parent) : QGroupBox(QStringLiteral("Menu Printout"), parent)
{
    setObjectName(QStringLiteral("MenuPrintOptions"));
    printDate_ = new QCheckBox(QStringLiteral("Print Date on each page"), this);
    printDate_->setObjectName(QStringLiteral("PrintDate"));
    gridLines_ = new QCheckBox(QStringLiteral("Print Grid Lines"), this);
    gridLines_->setObjectName(QStringLiteral("PrintGridLines"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(printDate_);
    column->addWidget(gridLines_);
    for (QCheckBox* box : {printDate_, gridLines_}) {
        box->setChecked(true);
        connect(box, &QCheckBox::toggled, this, &MenuPrintOptions::changed);
    }
}

bool MenuPrintOptions::printDate() const
{
    return printDate_->isChecked();
}

bool MenuPrintOptions::gridLines() const
{
    return gridLines_->isChecked();
}
