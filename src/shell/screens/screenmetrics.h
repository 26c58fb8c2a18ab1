#pragma once
// The size of the screen the program runs on, in twips. A seam: tests give
// the main screen a 640 by 480 monitor without having one.
#include <QSize>

class ScreenMetrics {
public:
    virtual ~ScreenMetrics() = default;
    virtual QSize sizeTwips() const = 0;
};

// The primary screen's available area.
class SystemScreenMetrics final : public ScreenMetrics {
public:
    QSize sizeTwips() const override;
};
