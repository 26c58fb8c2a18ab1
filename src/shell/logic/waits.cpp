#include "shell/logic/waits.h"

#include <QEventLoop>
#include <QTimer>

namespace {

WaitSeam::Wait& TheSeam()
{
    static WaitSeam::Wait seam;
    return seam;
}

} // namespace

// An event loop rather than a loop polling the clock: the processor stays
// idle and the window still paints, while input waits its turn.
void WaitSeconds(int seconds)
{
    if (TheSeam()) {
        TheSeam()(seconds);
        return;
    }
    QEventLoop loop;
    QTimer::singleShot(seconds * 1000, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

namespace WaitSeam {

void set(Wait wait)
{
    TheSeam() = std::move(wait);
}

void clear()
{
    TheSeam() = {};
}

} // namespace WaitSeam
