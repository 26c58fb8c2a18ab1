#include "planner/logic/menucopy.h"

#include "common/dates.h"
#include "print/logic/textmeasurer.h"

#include <algorithm>
#include <array>

namespace {

const QString kLineEnd = QStringLiteral("\r\n");

// Blanks added until the text is as wide as `width` (none where a blank has
// no width to add).
QString PaddedTo(QString text, double width, const TextMeasurer& measurer, const TextFont& font)
{
    if (measurer.textWidth(font, QStringLiteral(" ")) <= 0)
        return text;
    while (measurer.textWidth(font, text) < width)
        text += u' ';
    return text;
}

} // namespace

QString MenuCopyText(QDate day, const MenuLines& lines, const TextMeasurer& measurer, const TextFont& font)
{
    const std::array<QString, 3> headings = {QStringLiteral("Breakfast"), QStringLiteral("Lunch"),
                                             QStringLiteral("Dinner")};
    MenuLines trimmed;
    std::transform(lines.begin(), lines.end(), trimmed.begin(), RightTrimmed);
    // The widest line of the breakfast and the lunch column, headings included.
    std::array<double, 2> widths = {};
    for (int meal = 0; meal < 2; ++meal) {
        widths[size_t(meal)] = measurer.textWidth(font, headings[size_t(meal)]);
        for (int row = 0; row < kLinesPerMeal; ++row)
            widths[size_t(meal)] = std::max(widths[size_t(meal)],
                                            measurer.textWidth(font, trimmed[size_t(meal * kLinesPerMeal + row)]));
    }
    auto joined = [&](const std::array<QString, 3>& cells) {
        return PaddedTo(cells[0], widths[0], measurer, font) + u'\t' + PaddedTo(cells[1], widths[1], measurer, font)
            + u'\t' + cells[2] + kLineEnd;
    };

    QString text = QStringLiteral("Menu Planner for  ") + LongDate(day) + u':' + kLineEnd + kLineEnd;
    text += joined(headings) + kLineEnd;
    for (int row = 0; row < kLinesPerMeal; ++row) {
        const std::array<QString, 3> cells = {trimmed[size_t(row)], trimmed[size_t(row + kLinesPerMeal)],
                                              trimmed[size_t(row + 2 * kLinesPerMeal)]};
        if (std::any_of(cells.begin(), cells.end(), [](const QString& cell) { return !cell.isEmpty(); }))
            text += joined(cells);
    }
    return text;
}
