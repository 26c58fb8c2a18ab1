#include "print/logic/guidelines.h"

#include "common/numbertext.h"

int ReadGuideLineOption(const SettingsSlotFile& file, int slot)
{
    return Val(ReadSlotText(file, slot)) == kGuideLinesOn ? kGuideLinesOn : kGuideLinesOff;
}

void WriteGuideLineOption(const SettingsSlotFile& file, int slot, int index)
{
    WriteSlotText(file, slot, QString::number(index));
}
