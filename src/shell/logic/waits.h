#pragma once
// The waits of one and two seconds that every screen may use. A wait keeps
// the window painting and timers running but serves no keys or clicks: they
// stay queued until it is over. Tests hang an instant wait on the seam so
// that nothing sleeps.
#include <functional>

void WaitSeconds(int seconds);

namespace WaitSeam {
// Called instead of waiting, with the seconds asked for.
using Wait = std::function<void(int seconds)>;
void set(Wait wait);
void clear();
} // namespace WaitSeam
