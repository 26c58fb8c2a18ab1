#pragma once
// Whether a screen fits its window: every control that is shown lies whole
// inside the window and inside each of its parents (a scroll area's content
// may run past its view: that is what the scroll bars are for), is not
// squeezed below the size it needs, and no two controls overlap, except
// panels that open over the screen on purpose (overlay panels, drop lists,
// pop-up calendars) and what lies inside them.
#include <QStringList>

class QWidget;

// One line per problem, naming the controls; empty when the screen fits.
QStringList FitProblems(QWidget* window);
