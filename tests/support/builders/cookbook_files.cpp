#include "cookbook_files.h"

#include "common/cp1252.h"
#include "scratch_folder.h"

#include <QDir>

namespace layout {

namespace {

constexpr int kRecipeSlot = 2045;
constexpr int kRows = 20;
constexpr int kIngredientWidth = 35;

} // namespace

QByteArray Cp(QStringView text)
{
    return ToCp1252(text);
}

QByteArray Entry(QStringView name, int number)
{
    return Entry(Cp(name), number);
}

QString EntryText(QAnyStringView name, int number)
{
    return FromCp1252(Entry(name.toString(), number));
}

void CookbookFiles::record(int slot, const Recipe& recipe)
{
    recipes_[slot] = RecipeSlot(recipe);
}

void CookbookFiles::recipe(int slot, const QList<QString>& rows, const QByteArray& mark)
{
    Recipe recipe;
    for (int row = 0; row < rows.size() && row < kRows; ++row)
        recipe.ingredients[row] = Cp(rows[row]).left(kIngredientWidth);
    recipe.slotMark = mark;
    record(slot, recipe);
}

bool CookbookFiles::write(const QString& folder, int cookbook) const
{
    const QDir dir(folder);
    bool written = true;
    if (!recipes_.empty()) {
        QByteArray bytes(qsizetype(recipes_.rbegin()->first) * kRecipeSlot, '\0');
        for (const auto& [slot, record] : recipes_)
            bytes.replace(qsizetype(slot - 1) * kRecipeSlot, kRecipeSlot, record);
        written = WriteFileBytes(dir.filePath(RecipeFileName(cookbook)), bytes);
    }
    for (const auto& [type, bytes] : nameFiles_)
        written = WriteFileBytes(dir.filePath(NameFileName(cookbook, type)), bytes) && written;
    return written;
}

} // namespace layout
