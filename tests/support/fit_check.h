#pragma once
// Whether a screen fits its window: every control that is shown lies whole
// inside the window and inside each of its parents (a scroll area's content
// may run past its view: that is what the scroll bars are for), is not
// squeezed below the size it needs, and no two controls overlap, except
// panels that open over the screen on purpose (overlay panels, drop lists,
// pop-up calendars) and what lies inside them.
#include <QSize>
#include <QStringList>

#include <string>

class QWidget;

// One line per problem, naming the controls; empty when the screen fits.
QStringList FitProblems(QWidget* window);

// The two windows every screen must fit: 800 by 600, and the 960 by 540
// that a 1920 by 1080 screen at 200 % scale leaves.
struct FitSize {
    const char* name;
    QSize size;
};
inline constexpr FitSize kFitSizes[] = {{"800x600", {800, 600}}, {"960x540 (200 %)", {960, 540}}};

// The window resized to `size`: its problems, with a window that cannot
// shrink that far named first; empty when it fits.
std::string FitProblemsAt(QWidget* window, QSize size);
// FitProblemsAt for each of the two windows, each line led by its size;
// the window is left at the last size.
std::string FitProblemsAtBothSizes(QWidget* window);
