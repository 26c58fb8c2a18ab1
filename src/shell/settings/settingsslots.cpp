#include "shell/settings/settingsslots.h"

#include "common/randomaccessfile.h"

namespace {

QByteArray ReadSlot(const SettingsSlotFile& file, int slot)
{
    return RandomAccessFile(QString::fromLatin1(file.name), file.slotLength).read(slot);
}

bool WriteSlot(const SettingsSlotFile& file, int slot, const QByteArray& bytes)
{
    if (bytes.size() > file.slotLength)
        return false;
    return RandomAccessFile(QString::fromLatin1(file.name), file.slotLength).write(slot, bytes);
}

} // namespace

QString ReadSlotText(const SettingsSlotFile& file, int slot)
{
    return DecodeSlotText(ReadSlot(file, slot));
}

qint16 ReadSlotInteger(const SettingsSlotFile& file, int slot)
{
    return DecodeSlotInteger(ReadSlot(file, slot));
}

TaggedValue ReadSlotTagged(const SettingsSlotFile& file, int slot)
{
    return DecodeSlotTagged(ReadSlot(file, slot));
}

bool WriteSlotText(const SettingsSlotFile& file, int slot, QStringView text)
{
    return WriteSlot(file, slot, EncodeSlotText(text));
}

bool WriteSlotInteger(const SettingsSlotFile& file, int slot, qint16 value)
{
    return WriteSlot(file, slot, EncodeSlotInteger(value));
}

bool WriteSlotTagged(const SettingsSlotFile& file, int slot, const TaggedValue& value)
{
    return WriteSlot(file, slot, EncodeSlotTagged(value));
}
