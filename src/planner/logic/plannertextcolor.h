#pragma once
// The planner's second colour (GColor2.Fil slot 23): the text colour of the
// day's lines and of the view table, a colour number as text. An empty slot
// leaves the text in the desktop's colour.
#include <QtGlobal>
#include <optional>

std::optional<qint32> ReadPlannerTextColor();
// False when the write failed.
bool StorePlannerTextColor(qint32 color);
