#include "common/cp1252.h"

#include <array>

namespace {

// 0x80..0x9F differ from Latin-1; the five holes map to the C1 controls of
// the same value, which is what Windows itself does when converting.
constexpr std::array<char16_t, 32> kHighTable = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char EncodeOne(char16_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return static_cast<char>(c);
    for (std::size_t i = 0; i < kHighTable.size(); ++i) {
        if (kHighTable[i] == c)
            return static_cast<char>(0x80 + i);
    }
    return '?';
}

} // namespace

QByteArray ToCp1252(QStringView text)
{
    QByteArray out;
    out.reserve(text.size());
    for (QChar c : text)
        out.append(EncodeOne(c.unicode()));
    return out;
}

QString FromCp1252(QByteArrayView bytes)
{
    QString out;
    out.reserve(bytes.size());
    for (char b : bytes) {
        const auto u = static_cast<unsigned char>(b);
        out.append(QChar(u >= 0x80 && u < 0xA0 ? kHighTable[u - 0x80] : char16_t(u)));
    }
    return out;
}
