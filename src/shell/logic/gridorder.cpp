#include "shell/logic/gridorder.h"

#include "common/dates.h"

#include <QLocale>
#include <cmath>
#include <optional>

namespace {

enum class Kind { Empty, Number, Date, Text };

struct SortKey {
    Kind kind = Kind::Empty;
    double number = 0;
    QDate date;
};

// A number as the user's locale writes it ("1,250.5" in the USA) or with a
// plain point; "nan" and "inf" stay text, or they would break the order.
std::optional<double> NumberOf(QStringView text)
{
    bool ok = false;
    double value = QLocale().toDouble(text, &ok);
    if (!ok)
        value = QLocale::c().toDouble(text, &ok);
    return ok && std::isfinite(value) ? std::optional<double>(value) : std::nullopt;
}

SortKey KeyOf(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return {};
    if (const std::optional<double> number = NumberOf(trimmed))
        return {Kind::Number, *number, {}};
    if (const std::optional<QDate> date = ParseDate(trimmed))
        return {Kind::Date, 0, *date};
    return {Kind::Text, 0, {}};
}

} // namespace

bool GridCellLess(QStringView left, QStringView right)
{
    const SortKey leftKey = KeyOf(left);
    const SortKey rightKey = KeyOf(right);
    if (leftKey.kind != rightKey.kind)
        return leftKey.kind < rightKey.kind;
    switch (leftKey.kind) {
    case Kind::Empty: return false;
    case Kind::Number: return leftKey.number < rightKey.number;
    case Kind::Date: return leftKey.date < rightKey.date;
    case Kind::Text: break;
    }
    return left.compare(right, Qt::CaseInsensitive) < 0;
}
