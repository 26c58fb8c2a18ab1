#include "shell/screens/screenmetrics.h"

#include <QGuiApplication>
#include <QScreen>
#include <cmath>

QSize SystemScreenMetrics::sizeTwips() const
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return {};
    const QSize pixels = screen->size();
    const double dpi = screen->logicalDotsPerInchX() > 0 ? screen->logicalDotsPerInchX() : 96.0;
    return {int(std::lround(pixels.width() * 1440.0 / dpi)), int(std::lround(pixels.height() * 1440.0 / dpi))};
}
