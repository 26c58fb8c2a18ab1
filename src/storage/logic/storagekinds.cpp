#include "storage/logic/storagekinds.h"

#include <algorithm>

namespace {

const StorageKindInfo kKinds[] = {
    {StorageKind::Basic, "Basic Food Storage", "FdsB1.Fil", "FdsB3.Fil", "FdsB4.Fil", 14,
     {{{"&All", {1, 60}},
       {"&Grains", {1, 12}},
       {"&Dairy", {13, 21}},
       {"S&ugar", {22, 33}},
       {"Sal&t", {34, 34}},
       {"&Fats", {35, 39}},
       {"&Legumes", {40, 53}},
       {"&Water", {54, 54}},
       {"&Misc.", {55, 60}}}}},
    // Button 8 has no caption of its own: it shows the last rows, the
    // "other" items.
    {StorageKind::Emergency, "Emergency Storage", "EmerE1.Fil", "EmerE3.Fil", "EmerE4.Fil", 16,
     {{{"&All", {1, 60}},
       {"&Food", {1, 10}},
       {"&Water", {11, 11}},
       {"&Equip.", {12, 24}},
       {"&Bedding", {25, 32}},
       {"&Clothing", {33, 38}},
       {"Fuel/&L.", {39, 45}},
       {"Pe&rs.", {46, 54}},
       {"Ot&her", {55, 60}}}}},
    {StorageKind::Additional, "Additional Storage [Could substitute for some sugar, fat, or lentils]", "AddA1.Fil",
     "AddA3.Fil", "AddA4.Fil", 18,
     {{{"&All", {1, 60}},
       {"&Meats", {1, 16}},
       {"&F/V", {17, 32}},
       {"&Misc.", {33, 41}},
       {"&Water", {42, 46}},
       {"&Equip.", {47, 54}},
       {"Othe&r", {55, 60}},
       {nullptr, {}},
       {nullptr, {}}}}},
};

template <typename Container>
bool Holds(const Container& rows, int row)
{
    return std::find(std::begin(rows), std::end(rows), row) != std::end(rows);
}

// Basic: group rows, and Salt, the one single item among the sub-items.
constexpr int kBasicGroupRows[] = {1, 13, 22, 35, 40};
constexpr int kBasicSalt = 34;
constexpr int kBasicLastSubItem = 53;
// Emergency: the heading rows of its categories.
constexpr int kEmergencyHeadings[] = {1, 12, 25, 33, 39, 46};
// Additional: group rows, heading rows, and the two groups with a total.
constexpr int kAdditionalGroupRows[] = {1, 17, 42};
constexpr int kAdditionalHeadings[] = {33, 47};
constexpr RowRange kAdditionalGroups[] = {{1, 16}, {17, 32}};

bool IsLastActionColumn(int column)
{
    return column >= kDateColumn && column <= kUsedColumn;
}

bool IsNeedColumn(int column)
{
    return column >= kFamilyColumn && column <= kNeededColumn;
}

bool IsBasicSubItem(int row)
{
    return row >= 1 && row <= kBasicLastSubItem && row != kBasicSalt && !Holds(kBasicGroupRows, row);
}

bool IsAdditionalSubItem(int row)
{
    return (row >= 2 && row <= 16) || (row >= 18 && row <= 32);
}

} // namespace

const StorageKindInfo& KindInfo(StorageKind kind)
{
    return kKinds[int(kind)];
}

RowRange CategoryRows(StorageKind kind, int category)
{
    if (category < 0 || category >= kCategoryButtons)
        return {};
    const CategoryButton& button = KindInfo(kind).categories[size_t(category)];
    return button.caption ? button.rows : RowRange{};
}

bool IsMarkerCell(StorageKind kind, int row, int column)
{
    switch (kind) {
    case StorageKind::Basic:
        if (Holds(kBasicGroupRows, row))
            return IsLastActionColumn(column);
        return IsBasicSubItem(row) && IsNeedColumn(column);
    case StorageKind::Emergency:
        return Holds(kEmergencyHeadings, row) && column >= kFamilyColumn;
    case StorageKind::Additional:
        if (Holds(kAdditionalGroupRows, row))
            return IsLastActionColumn(column);
        if (Holds(kAdditionalHeadings, row))
            return column >= kFamilyColumn;
        return IsAdditionalSubItem(row) && IsNeedColumn(column);
    }
    return false;
}

bool IsCalculatedRow(StorageKind kind, int row)
{
    if (row < 1 || row > kStorageRows)
        return false;
    switch (kind) {
    case StorageKind::Basic:
        return Holds(kBasicGroupRows, row) || row == kBasicSalt || row >= 54;
    case StorageKind::Emergency:
        return !Holds(kEmergencyHeadings, row);
    case StorageKind::Additional:
        return row == 1 || row == 17 || (row >= 34 && row <= 52) || row >= 55;
    }
    return false;
}

std::optional<StorageGroup> GroupOf(StorageKind kind, int row)
{
    switch (kind) {
    case StorageKind::Basic:
        // Each category from Grains to Legumes is a group headed by its
        // first row; Salt, Water and Misc. are single items.
        for (int category = 1; category < kCategoryButtons; ++category) {
            const RowRange rows = CategoryRows(kind, category);
            if (rows.contains(row) && rows.count() > 1 && rows.last <= kBasicLastSubItem)
                return StorageGroup{rows.first, rows.last};
        }
        return std::nullopt;
    case StorageKind::Additional:
        for (const RowRange& group : kAdditionalGroups) {
            if (group.contains(row))
                return StorageGroup{group.first, group.last};
        }
        return std::nullopt;
    case StorageKind::Emergency:
        return std::nullopt;
    }
    return std::nullopt;
}

bool RunsGroupTotal(StorageKind kind, int row)
{
    return kind == StorageKind::Basic || (kind == StorageKind::Additional && row < 33);
}

bool IndentsOnLoad(StorageKind kind, int row, const QString& familyCell)
{
    switch (kind) {
    case StorageKind::Basic:
        return familyCell == kNotApplicable;
    case StorageKind::Additional:
        if (row < 33)
            return familyCell == kNotApplicable;
        return row > 33 && row != 42 && row != 47;
    case StorageKind::Emergency:
        return false;
    }
    return false;
}

bool IndentsOnEntry(StorageKind kind, int row, const QString& familyCell, const QString& name)
{
    // A longer name would not fit the column once indented.
    constexpr int kLongestIndentedName = 17;
    if (name.size() > kLongestIndentedName)
        return false;
    switch (kind) {
    case StorageKind::Basic:
        return familyCell == kNotApplicable;
    case StorageKind::Additional:
        // Sub-items lie above the heading row 33, which stays as typed as on
        // load; below it every item row but the group row 42, the heading
        // row 47 and the last category is indented.
        if (row < 33)
            return familyCell == kNotApplicable;
        return row > 34 && row != 42 && row != 47 && row < 55;
    case StorageKind::Emergency:
        return false;
    }
    return false;
}

bool StripsStoredIndent(StorageKind kind)
{
    return kind != StorageKind::Emergency;
}

QList<int> DefaultAmountRows(StorageKind kind)
{
    if (kind == StorageKind::Basic)
        return {1, 13, 22, 34, 35, 40, 54, 55};
    QList<int> rows;
    for (int row = 1; row <= kStorageRows; ++row) {
        if (IsCalculatedRow(kind, row))
            rows.append(row);
    }
    return rows;
}
