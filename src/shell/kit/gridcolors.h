#pragma once
// Grid background and text colour on the screen.
#include "shell/logic/gridcolors.h"

class QAbstractItemView;

// A picture fills the grid's background from the program folder; a missing
// picture leaves the grid as it is. "Default" changes nothing.
void ApplyGridColors(QAbstractItemView* grid, const GridColors& colors);
