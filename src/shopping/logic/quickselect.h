#pragma once
// The Quick Select panel's fixed catalogue: 90 common groceries under five
// headings, numbered as check boxes 0 to 89 in the order given.
#include <QStringList>
#include <vector>

inline constexpr int kQuickSelectCount = 90;

struct QuickSelectGroup {
    const char* heading;
    std::vector<const char*> items;
};

const std::vector<QuickSelectGroup>& QuickSelectGroups();
// All 90 captions in box order.
QStringList QuickSelectItems();
