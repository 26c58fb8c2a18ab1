#pragma once
// Whole cookbooks written byte for byte from the record layouts: recipe
// slots of 2045 bytes, name slots of 60 bytes holding a length and the entry
// text. The search tests and the benchmarks build their cookbooks with it.
#include "cookbook/logic/cookbooknames.h"

#include "layout_bytes.h"

#include <QAnyStringView>
#include <QByteArray>
#include <QList>
#include <QString>
#include <map>

namespace layout {

// Code-page bytes of a text.
QByteArray Cp(QStringView text);

// Name, blanks to 52, record number: the bytes of a name slot's entry.
QByteArray Entry(QStringView name, int number);

// The entry as the program reads it back.
QString EntryText(QAnyStringView name, int number);

class CookbookFiles {
public:
    // The slot's record as the layout gives it.
    void record(int slot, const Recipe& recipe);
    // A used recipe whose ingredient rows are `rows` from row 1 on (empty
    // texts leave a row blank).
    void recipe(int slot, const QList<QString>& rows, const QByteArray& mark = "Full1");
    // A deleted slot: every field blank, marked "****".
    void deleted(int slot) { recipe(slot, {}, "****"); }

    // The name file of `type`, slot by slot: each text goes into one slot
    // as it is (" " for a cleared slot, "" for a slot of length 0).
    void names(RecipeType type, const QList<QByteArray>& slotTexts) { nameFiles_[type] = NameFile(slotTexts); }
    // A name file of raw bytes (slots with odd lengths and the like).
    void nameBytes(RecipeType type, const QByteArray& bytes) { nameFiles_[type] = bytes; }

    // Writes the recipe file (slots between the given ones are zeros) and
    // the name files given into `folder`; the other files are left missing.
    // False when a file could not be written.
    bool write(const QString& folder, int cookbook = 1) const;

private:
    std::map<int, QByteArray> recipes_;
    std::map<RecipeType, QByteArray> nameFiles_;
};

} // namespace layout
