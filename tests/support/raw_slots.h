#pragma once
// Slots reached by file and number, as tests write and check them: the
// numbers here are the settings files' layout, stated independently of the
// program's registry, so a test that uses them checks the registry too.
#include "shell/settings/settingsslots.h"

inline SettingsSlot RawSlot(const SettingsSlotFile& file, int number, SlotForm form = SlotForm::Text)
{
    return {file, number, form, "test"};
}

inline QString ReadSlotText(const SettingsSlotFile& file, int number)
{
    return ReadSlotText(RawSlot(file, number));
}
inline qint16 ReadSlotInteger(const SettingsSlotFile& file, int number)
{
    return ReadSlotInteger(RawSlot(file, number, SlotForm::Integer));
}
inline TaggedValue ReadSlotTagged(const SettingsSlotFile& file, int number)
{
    return ReadSlotTagged(RawSlot(file, number, SlotForm::Tagged));
}
inline bool WriteSlotText(const SettingsSlotFile& file, int number, QStringView text)
{
    return WriteSlotText(RawSlot(file, number), text);
}
inline bool WriteSlotInteger(const SettingsSlotFile& file, int number, qint16 value)
{
    return WriteSlotInteger(RawSlot(file, number, SlotForm::Integer), value);
}
inline bool WriteSlotTagged(const SettingsSlotFile& file, int number, const TaggedValue& value)
{
    return WriteSlotTagged(RawSlot(file, number, SlotForm::Tagged), value);
}
