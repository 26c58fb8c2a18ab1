#include "common/widgets/twips.h"

#include <QWidget>
#include <cmath>

namespace {
constexpr double kTwipsPerInch = 1440.0;

double DpiOf(const QWidget* widget)
{
    const int dpi = widget ? widget->logicalDpiX() : 96;
    return dpi > 0 ? dpi : 96;
}
} // namespace

int TwipsToPixels(int twips, const QWidget* widget)
{
    return int(std::lround(twips * DpiOf(widget) / kTwipsPerInch));
}

int PixelsToTwips(int pixels, const QWidget* widget)
{
    return int(std::lround(pixels * kTwipsPerInch / DpiOf(widget)));
}
