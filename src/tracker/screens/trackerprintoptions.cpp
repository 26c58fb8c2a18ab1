#include "tracker/screens/trackerprintoptions.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace {

// In the order of TrackerPrintChecks.
constexpr const char* kCaptions[] = {"Weight Tracker Data", "Plan Information", "Picture(Beginning)",
                                     "Picture(Current)",    "Print Graph",      "Divider Lines",
                                     "Print Border Lines"};

} // namespace

TrackerPrintOptions::TrackerPrintOptions(QWidget* parent) : QGroupBox(QStringLiteral("Print"), parent)
{
    setObjectName(QStringLiteral("SSFramePrint"));
    auto* column = new QVBoxLayout(this);
    for (int index = 0; index < int(std::size(kCaptions)); ++index) {
        auto* check = new QCheckBox(QString::fromLatin1(kCaptions[index]), this);
        check->setObjectName(QStringLiteral("Check1_%1").arg(index));
        connect(check, &QCheckBox::toggled, this, &TrackerPrintOptions::changed);
        checks_.append(check);
        column->addWidget(check);
    }
}

void TrackerPrintOptions::preset(bool beginningPictureThere, bool currentPictureThere)
{
    const QSignalBlocker quiet(this);
    const bool on[] = {true, true, beginningPictureThere, currentPictureThere, false, false, false};
    for (int index = 0; index < checks_.size(); ++index) {
        const QSignalBlocker still(checks_[index]);
        checks_[index]->setChecked(on[index]);
    }
    checks_[2]->setEnabled(beginningPictureThere);
    checks_[3]->setEnabled(currentPictureThere);
}

TrackerPrintChecks TrackerPrintOptions::checks() const
{
    TrackerPrintChecks checks;
    bool TrackerPrintChecks::*order[] = {&TrackerPrintChecks::data,    &TrackerPrintChecks::plan,
                                         &TrackerPrintChecks::beginningPicture,
                                         &TrackerPrintChecks::currentPicture,
                                         &TrackerPrintChecks::graph,   &TrackerPrintChecks::dividers,
                                         &TrackerPrintChecks::borders};
    for (int index = 0; index < checks_.size(); ++index)
        checks.*order[index] = checks_[index]->isChecked();
    return checks;
}
