#include "print/logic/pagedocument.h"

#include <QStringList>
#include <algorithm>
#include <cmath>

namespace {

template <class Item>
QList<Item> ItemsOfKind(const QList<PageItem>& items)
{
    QList<Item> result;
    for (const PageItem& item : items) {
        if (const auto* found = std::get_if<Item>(&item))
            result.append(*found);
    }
    return result;
}

} // namespace

QList<TextItem> Page::texts() const
{
    return ItemsOfKind<TextItem>(items);
}

QList<LineItem> Page::lines() const
{
    return ItemsOfKind<LineItem>(items);
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
