#include "common/slotvalues.h"

#include "common/cp1252.h"

namespace {

void AppendU16(QByteArray& out, quint16 v)
{
    out.append(char(v & 0xFF));
    out.append(char(v >> 8));
}

quint16 U16At(QByteArrayView bytes, qsizetype at)
{
    if (at + 2 > bytes.size())
        return 0;
    return quint16(quint8(bytes[at])) | quint16(quint8(bytes[at + 1]) << 8);
}

// Text with a 2-byte length starting at `at`; empty when the length does not fit.
QString LengthPrefixedAt(QByteArrayView slot, qsizetype at)
{
    const qint16 length = qint16(U16At(slot, at));
    if (length <= 0 || at + 2 + length > slot.size())
        return {};
    return FromCp1252(slot.sliced(at + 2, length));
}

} // namespace

QByteArray EncodeSlotText(QStringView text)
{
    const QByteArray bytes = ToCp1252(text);
    QByteArray out;
    AppendU16(out, quint16(bytes.size()));
    out.append(bytes);
    return out;
}

QString DecodeSlotText(QByteArrayView slot)
{
    return LengthPrefixedAt(slot, 0);
}

QByteArray EncodeSlotInteger(qint16 value)
{
    QByteArray out;
    AppendU16(out, quint16(value));
    return out;
}

qint16 DecodeSlotInteger(QByteArrayView slot)
{
    return qint16(U16At(slot, 0));
}

QByteArray EncodeSlotTagged(const TaggedValue& value)
{
    QByteArray out;
    if (const auto* number = std::get_if<qint32>(&value)) {
        AppendU16(out, kTaggedInteger);
        const auto u = quint32(*number);
        AppendU16(out, quint16(u & 0xFFFF));
        AppendU16(out, quint16(u >> 16));
    } else if (const auto* text = std::get_if<QString>(&value)) {
        AppendU16(out, kTaggedText);
        out.append(EncodeSlotText(*text));
    } else {
        AppendU16(out, 0);
    }
    return out;
}

TaggedValue DecodeSlotTagged(QByteArrayView slot)
{
    switch (U16At(slot, 0)) {
    case kTaggedInteger:
        if (slot.size() < 6)
            return {};
        return qint32(quint32(U16At(slot, 2)) | (quint32(U16At(slot, 4)) << 16));
    case kTaggedText:
        return LengthPrefixedAt(slot, 2);
    default:
        return {};
    }
}
