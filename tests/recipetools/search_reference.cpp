#include "search_reference.h"

#include "common/cp1252.h"
#include "common/randomaccessfile.h"
#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/nameentry.h"
#include "recipetools/logic/recipelifecycle.h"

namespace reference {

namespace {

bool IsBlank(const QString& text)
{
    for (QChar c : text) {
        if (c != u' ')
            return false;
    }
    return true;
}

QString LTrim(const QString& text)
{
    qsizetype start = 0;
    while (start < text.size() && text[start] == u' ')
        ++start;
    return text.mid(start);
}

QString RTrim(const QString& text)
{
    qsizetype end = text.size();
    while (end > 0 && text[end - 1] == u' ')
        --end;
    return text.left(end);
}

// What a search box can hold: characters of the code page.
QString AsTyped(const QString& text)
{
    return FromCp1252(ToCp1252(text));
}

// InStr: 1-based position, 0 when not found; an empty term is found at 1.
int InStr(const QString& text, const QString& term)
{
    return int(text.indexOf(term, 0, Qt::CaseSensitive)) + 1;
}

qint64 SlotCount(int cookbook, RecipeType type)
{
    RandomAccessFile names(NameFileName(cookbook, type), RecipeNameRecord::kSize);
    return names.recordCount();
}

} // namespace

QString UpperCase(QStringView text)
{
    QString out;
    for (QChar c : text) {
        const char16_t u = c.unicode();
        if (u >= u'a' && u <= u'z')
            out += QChar(u - 32);
        else if (u >= 0xE0 && u <= 0xFE && u != 0xF7)
            out += QChar(u - 32);
        else if (u == u'š')
            out += u'Š';
        else if (u == u'œ')
            out += u'Œ';
        else if (u == u'ž')
            out += u'Ž';
        else if (u == u'ÿ')
            out += u'Ÿ';
        else
            out += c;
    }
    return out;
}

QList<SearchHit> SearchByName(int cookbook, const QString& searchText)
{
    QList<SearchHit> grid;
    // 1. An empty box: nothing happens.
    if (searchText.isEmpty())
        return grid;
    // 2. The search text in upper case.
    const QString word = UpperCase(AsTyped(searchText));
    // 3. Type by type.
    for (RecipeType type : AllRecipeTypes()) {
        // 3.1 Slot 1, 2, 3 ... to the end; each whose trimmed text is not
        // empty goes into the sorted scratch list.
        QStringList scratch;
        const qint64 slotCount = SlotCount(cookbook, type);
        for (qint64 slot = 1; slot <= slotCount; ++slot) {
            const QString text = ReadNameSlot(cookbook, type, int(slot));
            if (!IsBlank(text))
                scratch.append(text);
        }
        SortEntries(scratch);
        // 3.2, 3.3 Blank + entry, upper case, the word anywhere in it.
        for (const QString& entry : scratch) {
            if (InStr(UpperCase(QStringLiteral(" ") + entry), word) > 0)
                grid.append({RecipeTypeName(type), LTrim(entry)});
        }
    }
    return grid;
}

QList<SearchHit> SearchByIngredient(int cookbook, const IngredientQuery& query,
                                    const std::array<QString, kRecipeRows>& bufferIngredients)
{
    // The screen's record buffer, as it stands before the search.
    RecipeRecord recipeBuffer = RecipeRecord::Cleared();
    for (int row = 0; row < kRecipeRows; ++row)
        recipeBuffer.ingredients[row].setText(bufferIngredients[row]);

    // 4, 5.
    const QString box1 = AsTyped(query.box1);
    const QString box2 = AsTyped(query.box2);
    const QString box3 = AsTyped(query.box3);
    const bool frameShown = !IsBlank(box2) || !IsBlank(box3);
    int termCount = 1;
    if (!IsBlank(box2) && !IsBlank(box3))
        termCount = 3;
    else if (!IsBlank(box2))
        termCount = 2;
    int matchMode = 0;
    if (frameShown)
        matchMode = query.allOfTerms ? 1 : 2;

    QList<SearchHit> grid;
    // 6.
    for (RecipeType type : AllRecipeTypes()) {
        if (query.onlyType && *query.onlyType != type)
            continue;
        // 6.1 An empty slot 1 means no recipes; otherwise every slot is an
        // entry of the sorted scratch list.
        QStringList scratch;
        const qint64 slotCount = SlotCount(cookbook, type);
        for (qint64 slot = 1; slot <= slotCount; ++slot) {
            const QString text = ReadNameSlot(cookbook, type, int(slot));
            if (slot == 1 && text.isEmpty()) {
                scratch.clear();
                break;
            }
            scratch.append(text);
        }
        SortEntries(scratch);
        // 6.2
        if (scratch.isEmpty())
            continue;
        // 6.3
        for (const QString& entry : scratch) {
            const RecordNumber recordNumber = RecordNumberOf(entry);
            if (recordNumber != 0) // slot 0 is no record: the buffer keeps what it held
                recipeBuffer = ReadRecipe(cookbook, recordNumber).record;
            std::array<QString, kRecipeRows> ingredientScan;
            for (int row = 0; row < kRecipeRows; ++row)
                ingredientScan[row] = recipeBuffer.ingredients[row].text();

            // 6.4
            QString term = UpperCase(box1);
            int termIndex = 0;
            int termsMatched = 0;
            QString candidate;
            int result = 0;
            for (;;) {
                // 6.5 The term pass.
                result = 0;
                for (int row = 0; row < kRecipeRows; ++row) {
                    const QString text =
                        QStringLiteral(" ") + UpperCase(RTrim(ingredientScan[row])) + QStringLiteral(" ");
                    result = InStr(text, term);
                    if (result > 0) {
                        candidate = entry;
                        break;
                    }
                }
                // 6.6
                ++termIndex;
                if (matchMode == 2 && result > 0)
                    break;
                if (matchMode == 2 && result == 0 && termCount == 2 && termIndex == 1) {
                    term = UpperCase(box2);
                    continue;
                }
                if (matchMode == 2 && result == 0 && termCount == 3 && termIndex == 1) {
                    term = UpperCase(box2);
                    continue;
                }
                if (matchMode == 2 && result == 0 && termCount == 3 && termIndex == 2) {
                    term = UpperCase(box3);
                    continue;
                }
                if (matchMode != 1 || termIndex > termCount || result == 0)
                    break;
                term = UpperCase(termIndex == 1 ? box2 : box3);
                ++termsMatched;
                if (termIndex == termCount)
                    break;
            }
            // 6.7, 6.8
            bool listed = false;
            if (!candidate.isEmpty()) {
                if (matchMode == 1)
                    listed = termsMatched == termCount;
                else
                    listed = result > 0;
            }
            if (listed)
                grid.append({RecipeTypeName(type), candidate});
        }
    }
    return grid;
}

} // namespace reference
