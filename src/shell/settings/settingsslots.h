#pragma once
// The settings files: small random-access files of numbered slots. Every
// reader and writer opens the file, does its one slot and closes it again;
// no settings object lives in memory. Defaults are applied by the readers of
// each setting, never written.
#include "common/slotvalues.h"

#include <QString>

struct SettingsSlotFile {
    const char* name;
    int slotLength;
};

inline constexpr SettingsSlotFile GColor1{"GColor1.Fil", 20};
inline constexpr SettingsSlotFile GColor2{"GColor2.Fil", 20};
inline constexpr SettingsSlotFile GColor3{"GColor3.Fil", 20};
inline constexpr SettingsSlotFile GColor4{"GColor4.Fil", 40};
inline constexpr SettingsSlotFile GQORB1{"GQORB1.Fil", 10};
inline constexpr SettingsSlotFile QORBNAME{"QORBNAME.FIL", 40};
inline constexpr SettingsSlotFile SWR2{"SWR2.fil", 20};

// An empty text, 0 or no value when the slot was never written or lies past
// the end of the file. A missing file is created empty, as opening it does.
QString ReadSlotText(const SettingsSlotFile& file, int slot);
qint16 ReadSlotInteger(const SettingsSlotFile& file, int slot);
TaggedValue ReadSlotTagged(const SettingsSlotFile& file, int slot);

// False, and nothing written, when the value does not fit its slot or the
// write failed. Slots past the end extend the file; other slots stay as
// they are.
bool WriteSlotText(const SettingsSlotFile& file, int slot, QStringView text);
bool WriteSlotInteger(const SettingsSlotFile& file, int slot, qint16 value);
bool WriteSlotTagged(const SettingsSlotFile& file, int slot, const TaggedValue& value);
