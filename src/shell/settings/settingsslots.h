#pragma once
// The settings files: small random-access files of numbered slots. Every
// reader and writer opens the file, does its one slot and closes it again;
// no settings object lives in memory. Defaults are applied by the readers of
// each setting, never written. Which slot holds what is listed once, in
// settingsregistry.h; callers name their slot from there.
#include "common/filewrites.h"
#include "common/slotvalues.h"

#include <QString>

struct SettingsSlotFile {
    const char* name;
    int slotLength;

    bool operator==(const SettingsSlotFile& other) const;
};

inline constexpr SettingsSlotFile GColor1{"GColor1.Fil", 20};
inline constexpr SettingsSlotFile GColor2{"GColor2.Fil", 20};
inline constexpr SettingsSlotFile GColor3{"GColor3.Fil", 20};
inline constexpr SettingsSlotFile GColor4{"GColor4.Fil", 40};
inline constexpr SettingsSlotFile GQORB1{"GQORB1.Fil", 10};
inline constexpr SettingsSlotFile QORBNAME{"QORBNAME.FIL", 40};
inline constexpr SettingsSlotFile SWR2{"SWR2.fil", 20};

// The form a slot's value has, fixed for that slot by the code that uses it.
enum class SlotForm { Text, Integer, Tagged };

// One slot of one settings file, and what it holds.
struct SettingsSlot {
    SettingsSlotFile file;
    int number;
    SlotForm form;
    const char* holds;
};

// An empty text, 0 or no value when the slot was never written or lies past
// the end of the file. A missing file is created empty, as opening it does.
QString ReadSlotText(const SettingsSlot& slot);
qint16 ReadSlotInteger(const SettingsSlot& slot);
TaggedValue ReadSlotTagged(const SettingsSlot& slot);

// False, and nothing written, when the value does not fit its slot or the
// write failed. Slots past the end extend the file; other slots stay as
// they are.
bool WriteSlotText(const SettingsSlot& slot, QStringView text);
bool WriteSlotInteger(const SettingsSlot& slot, qint16 value);
bool WriteSlotTagged(const SettingsSlot& slot, const TaggedValue& value);
// WriteSlotText as a command's outcome, naming the slot's file on failure.
WriteOutcome StoreSlotText(const SettingsSlot& slot, QStringView text);

// The same slot reached through another spelling of its file's name (the
// cookbook menus open "Gcolor4.fil"); the case-blind resolver lands both on
// one file.
SettingsSlot UnderFileName(const SettingsSlot& slot, const char* fileName);
