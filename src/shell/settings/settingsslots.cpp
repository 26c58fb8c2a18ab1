#include "shell/settings/settingsslots.h"

#include "common/randomaccessfile.h"

#include <cstring>

namespace {

RandomAccessFile Open(const SettingsSlot& slot)
{
    return RandomAccessFile(QString::fromLatin1(slot.file.name), slot.file.slotLength);
}

QByteArray ReadSlot(const SettingsSlot& slot)
{
    return Open(slot).read(slot.number);
}

bool WriteSlot(const SettingsSlot& slot, const QByteArray& bytes)
{
    if (bytes.size() > slot.file.slotLength)
        return false;
    return Open(slot).write(slot.number, bytes);
}

} // namespace

bool SettingsSlotFile::operator==(const SettingsSlotFile& other) const
{
    return slotLength == other.slotLength && std::strcmp(name, other.name) == 0;
}

QString ReadSlotText(const SettingsSlot& slot)
{
    return DecodeSlotText(ReadSlot(slot));
}

qint16 ReadSlotInteger(const SettingsSlot& slot)
{
    return DecodeSlotInteger(ReadSlot(slot));
}

TaggedValue ReadSlotTagged(const SettingsSlot& slot)
{
    return DecodeSlotTagged(ReadSlot(slot));
}

bool WriteSlotText(const SettingsSlot& slot, QStringView text)
{
    return WriteSlot(slot, EncodeSlotText(text));
}

WriteOutcome StoreSlotText(const SettingsSlot& slot, QStringView text)
{
    return WriteSlotText(slot, text) ? WriteOutcome::Held() : WriteOutcome::FailedOn(slot.file.name);
}

bool WriteSlotInteger(const SettingsSlot& slot, qint16 value)
{
    return WriteSlot(slot, EncodeSlotInteger(value));
}

bool WriteSlotTagged(const SettingsSlot& slot, const TaggedValue& value)
{
    return WriteSlot(slot, EncodeSlotTagged(value));
}

SettingsSlot UnderFileName(const SettingsSlot& slot, const char* fileName)
{
    SettingsSlot other = slot;
    other.file.name = fileName;
    return other;
}
