#include "common/listorder.h"

#include <algorithm>

bool ListTextLess(QStringView left, QStringView right)
{
    return left.compare(right, Qt::CaseInsensitive) < 0;
}

void SortListTexts(QStringList& texts)
{
    std::stable_sort(texts.begin(), texts.end(),
                     [](const QString& left, const QString& right) { return ListTextLess(left, right); });
}
