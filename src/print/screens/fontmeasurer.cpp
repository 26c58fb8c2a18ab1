#include "print/screens/fontmeasurer.h"

#include "common/widgets/qtfonts.h"
#include "print/logic/pagebuilder.h"

#include <QFontMetricsF>
#include <QImage>

namespace {

// A one-pixel image that reports 1440 dots per inch: one pixel is a twip.
const QImage& TwipDevice()
{
    static const QImage device = [] {
        QImage image(1, 1, QImage::Format_RGB32);
        const int dotsPerMeter = qRound(PageBuilder::kTwipsPerInch / 0.0254);
        image.setDotsPerMeterX(dotsPerMeter);
        image.setDotsPerMeterY(dotsPerMeter);
        return image;
    }();
    return device;
}

QFontMetricsF MetricsOf(const TextFont& font)
{
    return QFontMetricsF(QFontOf(font), &TwipDevice());
}

} // namespace

double FontMeasurer::textWidth(const TextFont& font, const QString& text) const
{
    return MetricsOf(font).horizontalAdvance(text);
}

double FontMeasurer::lineHeight(const TextFont& font) const
{
    return MetricsOf(font).lineSpacing();
}
