#pragma once
// Panels that lie over a screen (the panels, the pop-up calendar) stay whole
// inside it: never larger than the screen under them, and taken along when
// the window is made smaller while they are up.
class QWidget;

// Shrinks `panel` to its parent's size where it is larger (never below its
// own minimum) and moves it so that it lies whole inside.
void KeepInsideParent(QWidget* panel);
// From now on, whenever the parent is resized while `panel` is shown,
// keeps it inside.
void FollowParentSize(QWidget* panel);
