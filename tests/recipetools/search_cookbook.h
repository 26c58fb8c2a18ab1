#pragma once
// Cookbooks for the search tests, written byte for byte from the record
// layouts: recipe slots of 2045 bytes with ingredients at 1304 (20 x 35),
// name slots of 60 bytes holding a length and the entry text.
#include "common/cp1252.h"
#include "cookbook/logic/cookbooknames.h"

#include "../cookbook/layout_bytes.h"
#include "temp_program_folder.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <map>

namespace searchbook {

// Code-page bytes of a text.
inline QByteArray Cp(QStringView text)
{
    return ToCp1252(text);
}

// Name, blanks to 52, record number: the bytes of a name slot's entry.
inline QByteArray Entry(QStringView name, int number)
{
    return layout::Entry(Cp(name), number);
}

// The entry as the searches give it back.
inline QString EntryText(QStringView name, int number)
{
    return FromCp1252(Entry(name, number));
}

class Cookbook {
public:
    // A used recipe whose ingredient rows are `rows` from row 1 on (empty
    // texts leave a row blank).
    void recipe(int slot, const QList<QString>& rows, const QByteArray& mark = "Full1")
    {
        layout::Recipe recipe;
        for (int row = 0; row < rows.size() && row < 20; ++row)
            recipe.ingredients[row] = Cp(rows[row]).left(35);
        recipe.slotMark = mark;
        recipes_[slot] = layout::RecipeSlot(recipe);
    }
    // A deleted slot: every field blank, marked "****".
    void deleted(int slot) { recipe(slot, {}, "****"); }

    // The name file of `type`, slot by slot: each text goes into one slot
    // as it is (" " for a cleared slot, "" for a slot of length 0).
    void names(RecipeType type, const QList<QByteArray>& slotTexts)
    {
        QByteArray bytes;
        for (const QByteArray& text : slotTexts)
            bytes += layout::NameSlot(text);
        nameFiles_[type] = bytes;
    }
    // A name file of raw bytes (slots with odd lengths and the like).
    void nameBytes(RecipeType type, const QByteArray& bytes) { nameFiles_[type] = bytes; }

    // Writes the recipe file (slots between the given ones are zeros) and
    // the name files given; the other files are left missing.
    void write(const TempProgramFolder& folder, int cookbook = 1) const
    {
        if (!recipes_.empty()) {
            QByteArray bytes(recipes_.rbegin()->first * 2045, '\0');
            for (const auto& [slot, record] : recipes_)
                bytes.replace((slot - 1) * 2045, 2045, record);
            folder.writeBytes(RecipeFileName(cookbook), bytes);
        }
        for (const auto& [type, bytes] : nameFiles_)
            folder.writeBytes(NameFileName(cookbook, type), bytes);
    }

private:
    std::map<int, QByteArray> recipes_;
    std::map<RecipeType, QByteArray> nameFiles_;
};

} // namespace searchbook
