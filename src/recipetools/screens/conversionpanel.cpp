#include "recipetools/screens/conversionpanel.h"

#include "shell/logic/waits.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace {

const QString kConvertingText = QStringLiteral(
    "Recipe function has found an older recipe data base Converion to New Database is in Progress");
const QString kCompleteText = QStringLiteral("Conversion Complete\n");

// The window paints and timers run; keys and clicks wait until the
// conversion is over.
void LetWindowPaint()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

ConversionPanel::ConversionPanel(QWidget* parent)
    : OverlayPanel(QStringLiteral("ConversionPanel"), kConvertingText, parent)
{
    captionLabel()->setWordWrap(true);
    captionLabel()->setAlignment(Qt::AlignCenter);
    captionLabel()->setMinimumWidth(360);
    bar_ = new QProgressBar(this);
    bar_->setObjectName(QStringLiteral("ProgressBar1"));
    bar_->setRange(0, kOldSlotsConverted);
    body()->addWidget(bar_);
}

void ConversionPanel::start()
{
    captionLabel()->setText(kConvertingText);
    bar_->setValue(0);
    open(this);
    centreInParent();
    LetWindowPaint();
}

OldConversionSteps ConversionPanel::steps()
{
    return {
        .slotPassed =
            [this](int slot) {
                bar_->setValue(slot);
                LetWindowPaint();
            },
        .copied =
            [this] {
                bar_->setValue(bar_->maximum());
                WaitSeconds(1);
                LetWindowPaint();
                captionLabel()->setText(kCompleteText);
            },
        .replaced =
            [] {
                LetWindowPaint();
                WaitSeconds(2);
            },
    };
}
