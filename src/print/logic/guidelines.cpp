#include "print/logic/guidelines.h"

#include "common/numbertext.h"

int ReadGuideLineOption(const SettingsSlot& slot)
{
    return Val(ReadSlotText(slot)) == kGuideLinesOn ? kGuideLinesOn : kGuideLinesOff;
}

bool WriteGuideLineOption(const SettingsSlot& slot, int index)
{
    return WriteSlotText(slot, QString::number(index));
}
