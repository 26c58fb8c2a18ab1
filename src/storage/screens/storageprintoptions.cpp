#include "storage/screens/storageprintoptions.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QRadioButton>
#include <QVBoxLayout>

StoragePrintOptions::StoragePrintOptions(QWidget* parent) : QGroupBox(QStringLiteral("Print Choices"), parent)
{
    setObjectName(QStringLiteral("StoragePrintOptions"));
    auto* column = new QVBoxLayout(this);
    choices_ = new QButtonGroup(this);
    const QStringList captions = StoragePrintChoiceCaptions();
    for (int index = 0; index < captions.size(); ++index) {
        auto* option = new QRadioButton(captions[index], this);
        option->setObjectName(QStringLiteral("PrintChoice_%1").arg(index));
        choices_->addButton(option, index);
        column->addWidget(option);
    }
    asOf_ = new QCheckBox(QStringLiteral("Print 'As of' date on each page"), this);
    asOf_->setObjectName(QStringLiteral("PrintAsOf"));
    gridLines_ = new QCheckBox(QStringLiteral("Print Grid Lines on each page"), this);
    gridLines_->setObjectName(QStringLiteral("PrintGridLines"));
    for (QCheckBox* check : {asOf_, gridLines_}) {
        check->setChecked(true);
        column->addWidget(check);
        connect(check, &QCheckBox::toggled, this, &StoragePrintOptions::changed);
    }
    choices_->button(int(StoragePrintChoice::AllColumns))->setChecked(true);
    connect(choices_, &QButtonGroup::idToggled, this, [this](int, bool checked) {
        if (checked)
            emit changed();
    });
}

void StoragePrintOptions::preset(bool tableHasOnHandData)
{
    const QSignalBlocker quiet(choices_);
    for (const StoragePrintChoice onHandOnly :
         {StoragePrintChoice::OnHandFiveColumns, StoragePrintChoice::OnHandAllColumns})
        choices_->button(int(onHandOnly))->setEnabled(tableHasOnHandData);
    const StoragePrintChoice preset =
        tableHasOnHandData ? StoragePrintChoice::FirstFiveColumns : StoragePrintChoice::AllColumns;
    choices_->button(int(preset))->setChecked(true);
}

StoragePrintChoice StoragePrintOptions::choice() const
{
    return StoragePrintChoice(choices_->checkedId());
}

bool StoragePrintOptions::asOfDate() const
{
    return asOf_->isChecked();
}

bool StoragePrintOptions::gridLines() const
{
    return gridLines_->isChecked();
}
