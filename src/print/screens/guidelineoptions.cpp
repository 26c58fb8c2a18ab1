#include "print/screens/guidelineoptions.h"

#include "common/dialogs.h"
#include "common/writefailure.h"
#include "print/logic/guidelines.h"

#include <QRadioButton>
#include <QVBoxLayout>

GuideLineOptions::GuideLineOptions(Dialogs& dialogs, const SettingsSlot& slot, QWidget* parent)
    : QGroupBox(QStringLiteral("Display Options"), parent), dialogs_(dialogs), slot_(slot)
{
    setObjectName(QStringLiteral("DisplayOptions"));
    auto* layout = new QVBoxLayout(this);
    const QString captions[] = {QStringLiteral("Do Not Display Guide Lines"), QStringLiteral("Display Guide Lines")};
    for (int index = 0; index < 2; ++index) {
        options_[index] = new QRadioButton(captions[index], this);
        options_[index]->setObjectName(QStringLiteral("GuideLineOption_%1").arg(index));
        layout->addWidget(options_[index]);
        connect(options_[index], &QRadioButton::toggled, this, [this, index](bool checked) {
            if (checked)
                chosen(index);
        });
    }
}

void GuideLineOptions::load()
{
    const int index = ReadGuideLineOption(slot_);
    loading_ = true;
    options_[index]->setChecked(true);
    loading_ = false;
    emit guideLinesChanged(index == kGuideLinesOn);
}

bool GuideLineOptions::guideLinesOn() const
{
    return options_[kGuideLinesOn]->isChecked();
}

QRadioButton* GuideLineOptions::option(int index) const
{
    return index == 0 || index == 1 ? options_[index] : nullptr;
}

void GuideLineOptions::chosen(int index)
{
    if (loading_)
        return;
    // The guide lines follow the choice for the session even when it could
    // not be stored.
    if (!WriteGuideLineOption(slot_, index))
        dialogs_.ask(WriteFailedMessage(slot_.file.name));
    emit guideLinesChanged(index == kGuideLinesOn);
}
