#include "planner/logic/plannertextcolor.h"

#include "shell/logic/panelcolor.h"
#include "shell/settings/settingsregistry.h"

std::optional<qint32> ReadPlannerTextColor()
{
    return ReadPanelColor(Settings::ZcalandarTextColor);
}

bool StorePlannerTextColor(qint32 color)
{
    return WriteSlotText(Settings::ZcalandarTextColor, QString::number(color));
}
