#include "planner/logic/menudayrecord.h"

#include "common/cp1252.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr char kFullMark[] = "Full";

bool IsControlByte(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7f;
}

} // namespace

Meal MealOfLine(int line)
{
    return Meal(line / kLinesPerMeal + 1);
}

QString MenuDayRecord::line(int index) const
{
    std::array<char, kLineWidth> bytes = entries[size_t(index)];
    std::replace_if(bytes.begin(), bytes.end(), IsControlByte, ' ');
    auto end = bytes.end();
    while (end != bytes.begin() && *(end - 1) == ' ')
        --end;
    return FromCp1252(QByteArrayView(bytes.data(), end - bytes.begin()));
}

void MenuDayRecord::setLine(int index, QStringView text)
{
    const QByteArray encoded = ToCp1252(text.left(kLineWidth));
    std::array<char, kLineWidth>& bytes = entries[size_t(index)];
    bytes.fill(' ');
    std::copy(encoded.begin(), encoded.end(), bytes.begin());
}

bool MenuDayRecord::isFull() const
{
    auto end = mark.end();
    while (end != mark.begin() && *(end - 1) == ' ')
        --end;
    const auto length = size_t(end - mark.begin());
    return length == std::strlen(kFullMark) && std::equal(mark.begin(), end, kFullMark);
}

void MenuDayRecord::markFull()
{
    mark.fill(' ');
    std::copy_n(kFullMark, std::strlen(kFullMark), mark.begin());
}

MenuLines MenuDayRecord::shownLines() const
{
    MenuLines lines;
    if (isFull()) {
        for (int i = 0; i < kMenuLines; ++i)
            lines[size_t(i)] = line(i);
    }
    return lines;
}

MenuDayRecord MenuDayRecord::FromBytes(QByteArrayView bytes)
{
    MenuDayRecord record;
    std::memcpy(&record, bytes.data(), std::min<size_t>(size_t(bytes.size()), sizeof(record)));
    return record;
}

QByteArray MenuDayRecord::toBytes() const
{
    return QByteArray(reinterpret_cast<const char*>(this), kSize);
}

MenuDayRecord MenuDayRecord::Saved(const MenuLines& lines)
{
    MenuDayRecord record;
    for (int i = 0; i < kMenuLines; ++i)
        record.setLine(i, RightTrimmed(lines[size_t(i)]));
    record.markFull();
    return record;
}

bool AllLinesBlank(const MenuLines& lines)
{
    return std::all_of(lines.begin(), lines.end(), [](const QString& line) { return RightTrimmed(line).isEmpty(); });
}

QString RightTrimmed(const QString& text)
{
    qsizetype end = text.size();
    while (end > 0 && text.at(end - 1) == u' ')
        --end;
    return text.left(end);
}
