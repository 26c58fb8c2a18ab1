#include "print/logic/pagedocument.h"

#include <QStringList>
#include <algorithm>
#include <cmath>

QList<TextItem> Page::texts() const
{
    QList<TextItem> result;
    for (const PageItem& item : items) {
        if (const auto* text = std::get_if<TextItem>(&item))
            result.append(*text);
    }
    return result;
}

const TextItem* Page::findText(const QString& text) const
{
    for (const PageItem& item : items) {
        const auto* found = std::get_if<TextItem>(&item);
        if (found && found->text == text)
            return found;
    }
    return nullptr;
}

QList<TextItem> Page::textsAt(double y) const
{
    QList<TextItem> result;
    for (const TextItem& text : texts()) {
        if (std::abs(text.y - y) < 1)
            result.append(text);
    }
    std::stable_sort(result.begin(), result.end(), [](const TextItem& a, const TextItem& b) { return a.x < b.x; });
    return result;
}

QStringList PageDocument::allTexts() const
{
    QStringList result;
    for (const Page& page : pages) {
        for (const TextItem& text : page.texts())
            result.append(text.text);
    }
    return result;
}
