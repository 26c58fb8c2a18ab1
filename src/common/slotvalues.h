#pragma once
// The three ways a value sits in a record slot of a random-access file:
//
//   text     2-byte little-endian length L, then L Windows-1252 characters
//   integer  2-byte little-endian signed integer
//   tagged   2-byte little-endian kind, then the value: kind 3 a 32-bit
//            integer, kind 8 a text with its own 2-byte length
//
// The bytes after the value have no meaning. Decoders never trust a length:
// one that does not fit the slot reads as the empty value.
#include <QByteArray>
#include <QString>
#include <variant>

// A tagged value: nothing stored (kind 0 or unknown), an integer, or a text.
using TaggedValue = std::variant<std::monostate, qint32, QString>;

inline constexpr quint16 kTaggedInteger = 3;
inline constexpr quint16 kTaggedText = 8;

QByteArray EncodeSlotText(QStringView text);
QString DecodeSlotText(QByteArrayView slot);

QByteArray EncodeSlotInteger(qint16 value);
qint16 DecodeSlotInteger(QByteArrayView slot);

QByteArray EncodeSlotTagged(const TaggedValue& value);
TaggedValue DecodeSlotTagged(QByteArrayView slot);
