#include "recipetools/logic/recipesearch.h"

#include "common/cp1252.h"
#include "common/programfolder.h"
#include "common/randomaccessfile.h"
#include "cookbook/logic/nameentry.h"
#include "cookbook/logic/reciperecords.h"

#include <QFile>

#include <algorithm>
#include <cstring>
#include <limits>
#include <string_view>
#include <vector>

// How the walk is made fast without changing a single result:
//
//  - Each name file is read in one piece and the recipe file is mapped (or
//    read) once; the record-by-record walk would open both recipe files for
//    every entry.
//  - Matching works on the code-page bytes with a 256-entry upper-case
//    table; the bytes and the characters they decode to are one to one.
//  - The sorted order of the lists compares bytes by rank: each byte's place
//    in the case-blind order of SortEntries, ties broken by slot order as a
//    stable sort keeps them. The name search sorts only its hits, which
//    gives the order that sorting everything and then filtering would.
//  - A recipe's verdict depends on its rows alone, so the ingredient search
//    judges each slot that an entry names once, in slot order, then walks
//    the sorted lists with those verdicts. Only an entry without a record
//    number needs the walk's order: it gets the verdict of the rows read
//    before it.

namespace {

constexpr int kIngredientsOffset = 1304;
constexpr int kIngredientWidth = 35;
constexpr int kIngredientBlock = kRecipeRows * kIngredientWidth;
static_assert(offsetof(RecipeRecord, ingredients) == kIngredientsOffset);
static_assert(sizeof(RecipeRecord::ingredients) == kIngredientBlock);

constexpr std::array<unsigned char, 256> MakeUpperTable()
{
    std::array<unsigned char, 256> table{};
    for (int b = 0; b < 256; ++b)
        table[std::size_t(b)] = static_cast<unsigned char>(b);
    for (int b = 'a'; b <= 'z'; ++b)
        table[std::size_t(b)] = static_cast<unsigned char>(b - 0x20);
    for (int b = 0xE0; b <= 0xFE; ++b) {
        if (b != 0xF7) // the division sign has no capital
            table[std::size_t(b)] = static_cast<unsigned char>(b - 0x20);
    }
    table[0x9A] = 0x8A; // š Š
    table[0x9C] = 0x8C; // œ Œ
    table[0x9E] = 0x8E; // ž Ž
    table[0xFF] = 0x9F; // ÿ Ÿ
    return table;
}

constexpr std::array<unsigned char, 256> kUpper = MakeUpperTable();

inline char UpperByte(char b)
{
    return static_cast<char>(kUpper[static_cast<unsigned char>(b)]);
}

// Where `needle` first stands in `haystack`; an empty needle stands at 0.
inline bool Contains(const char* haystack, std::size_t length, QByteArrayView needle)
{
#if defined(__GLIBC__)
    return memmem(haystack, length, needle.data(), std::size_t(needle.size())) != nullptr;
#else
    return std::string_view(haystack, length).find(std::string_view(needle.data(), std::size_t(needle.size())))
        != std::string_view::npos;
#endif
}

// FromCp1252, quicker for the usual text: the code page is Latin-1 but for
// 0x80 to 0x9F.
QString DecodeText(QByteArrayView bytes)
{
    const bool latin1 = std::none_of(bytes.begin(), bytes.end(), [](char c) {
        return static_cast<unsigned char>(c) >= 0x80 && static_cast<unsigned char>(c) < 0xA0;
    });
    return latin1 ? QString::fromLatin1(bytes) : FromCp1252(bytes);
}

bool IsAllBlanks(QByteArrayView text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return c == ' '; });
}

QByteArrayView LeftTrimmed(QByteArrayView text)
{
    qsizetype start = 0;
    while (start < text.size() && text[start] == ' ')
        ++start;
    return text.sliced(start);
}

// --- The order of the sorted lists -----------------------------------------

// Each byte's place in the case-blind order of SortEntries, from 1 (0 pads
// the short keys below). Built with the very comparison SortEntries uses,
// one character against another; the comparison goes character by character
// and then by length, so comparing ranks the same way gives its order.
const std::array<quint8, 256>& SortRanks()
{
    static const std::array<quint8, 256> ranks = [] {
        std::array<QString, 256> characters;
        std::array<int, 256> bytes{};
        for (int b = 0; b < 256; ++b) {
            const char c = static_cast<char>(b);
            characters[std::size_t(b)] = FromCp1252(QByteArrayView(&c, 1));
            bytes[std::size_t(b)] = b;
        }
        const auto compare = [&](int a, int b) {
            return QString::compare(characters[std::size_t(a)], characters[std::size_t(b)], Qt::CaseInsensitive);
        };
        std::stable_sort(bytes.begin(), bytes.end(), [&](int a, int b) { return compare(a, b) < 0; });
        std::array<quint8, 256> out{};
        int rank = 1;
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            if (i > 0 && compare(bytes[i - 1], bytes[i]) != 0)
                ++rank;
            out[std::size_t(bytes[i])] = quint8(rank);
        }
        return out;
    }();
    return ranks;
}

int CompareRanksFrom(QByteArrayView a, QByteArrayView b, qsizetype from)
{
    const auto& ranks = SortRanks();
    const qsizetype common = std::min(a.size(), b.size());
    for (qsizetype i = from; i < common; ++i) {
        const int ra = ranks[static_cast<unsigned char>(a[i])];
        const int rb = ranks[static_cast<unsigned char>(b[i])];
        if (ra != rb)
            return ra - rb;
    }
    return a.size() < b.size() ? -1 : (a.size() > b.size() ? 1 : 0);
}

// One entry of a type's list.
struct ListItem {
    QByteArrayView text;
    quint64 key = 0;       // the ranks of the first eight characters, 0 past the end
    qint32 slot = 0;       // slot order, which the stable sort keeps among equals
    RecordNumber record = 0;
};

quint64 SortKey(QByteArrayView text)
{
    const auto& ranks = SortRanks();
    quint64 key = 0;
    for (qsizetype i = 0; i < 8; ++i)
        key = (key << 8) | (i < text.size() ? ranks[static_cast<unsigned char>(text[i])] : 0);
    return key;
}

bool ItemBefore(const ListItem& a, const ListItem& b)
{
    if (a.key != b.key)
        return a.key < b.key;
    const int order = CompareRanksFrom(a.text, b.text, 8);
    if (order != 0)
        return order < 0;
    return a.slot < b.slot;
}

// --- Name files ------------------------------------------------------------

// A type's name file read in one piece. The texts follow the slot rule of
// the name records: a length that does not fit reads as the empty text.
class NameFileSlots {
public:
    NameFileSlots(int cookbook, RecipeType type)
    {
        // Opening creates a missing file, as every reader of a name file does.
        RandomAccessFile names(NameFileName(cookbook, type), RecipeNameRecord::kSize);
        count_ = names.recordCount();
        bytes_ = names.readRecords(1, count_);
    }

    qint64 count() const { return count_; }

    QByteArrayView text(qint64 index) const
    {
        const char* slot = bytes_.constData() + index * RecipeNameRecord::kSize;
        const auto length = qint16(quint16(static_cast<unsigned char>(slot[0]))
                                   | quint16(static_cast<unsigned char>(slot[1]) << 8));
        if (length <= 0 || length > RecipeNameRecord::kMaxTextLength)
            return {};
        return QByteArrayView(slot + 2, length);
    }

private:
    QByteArray bytes_;
    qint64 count_ = 0;
};

// RecordNumberOf for the usual tail of an entry (blanks, then digits to the
// end); anything else goes the long way round.
RecordNumber RecordNumberOfBytes(QByteArrayView text)
{
    if (text.size() < kNameEntryPadWidth)
        return 0;
    const QByteArrayView tail = text.sliced(kNameEntryPadWidth - 1);
    qsizetype i = 0;
    while (i < tail.size() && tail[i] == ' ')
        ++i;
    const qsizetype digitsFrom = i;
    qint32 value = 0;
    while (i < tail.size() && i - digitsFrom < 9 && tail[i] >= '0' && tail[i] <= '9')
        value = value * 10 + (tail[i++] - '0');
    if (i > digitsFrom && i == tail.size())
        return value <= std::numeric_limits<RecordNumber>::max() ? RecordNumber(value) : RecordNumber(0);
    return RecordNumberOf(FromCp1252(text));
}

// --- The recipe file -------------------------------------------------------

// The recipe file, mapped when it can be and read whole otherwise, giving
// the ingredient bytes of a slot as a slot read would: zeros past the end.
class RecipeFileView {
public:
    explicit RecipeFileView(int cookbook)
    {
        // The walk opens both recipe files for each entry, which creates
        // them when missing.
        {
            const RandomAccessFile recipeFile(RecipeFileName(cookbook), RecipeRecord::kSize);
            const RandomAccessFile extraFile(ExtraFileName(cookbook), RecipeExtraRecord::kSize);
        }
        file_.setFileName(ResolveFileName(RecipeFileName(cookbook)));
        if (!file_.open(QIODevice::ReadOnly))
            return;
        size_ = file_.size();
        if (size_ > 0)
            data_ = reinterpret_cast<const char*>(file_.map(0, size_));
        if (!data_) {
            copy_ = file_.readAll();
            data_ = copy_.constData();
            size_ = copy_.size();
        }
    }

    // The 700 ingredient bytes of slot `record` (1 or more).
    const char* ingredients(RecordNumber record, char* scratch) const
    {
        const qint64 from = (qint64(record) - 1) * RecipeRecord::kSize + kIngredientsOffset;
        if (from + kIngredientBlock <= size_)
            return data_ + from;
        std::memset(scratch, 0, kIngredientBlock);
        if (from < size_)
            std::memcpy(scratch, data_ + from, std::size_t(size_ - from));
        return scratch;
    }

private:
    QFile file_;
    QByteArray copy_;
    const char* data_ = nullptr;
    qint64 size_ = 0;
};

// The 20 rows of one recipe, each as blank + upper-cased row + blank, the
// row cut at its first zero byte and its trailing blanks dropped, with a
// zero byte after each so that no term can run from one row into the next.
class IngredientScan {
public:
    void load(const char* rows)
    {
        // A used slot holds no zero byte; only then must each row be cut.
        const bool zeros = std::memchr(rows, 0, kIngredientBlock) != nullptr;
        char* out = buffer_.data();
        for (int row = 0; row < kRecipeRows; ++row, rows += kIngredientWidth) {
            const void* zero = zeros ? std::memchr(rows, 0, kIngredientWidth) : nullptr;
            qsizetype end = zero ? static_cast<const char*>(zero) - rows : kIngredientWidth;
            while (end > 0 && rows[end - 1] == ' ')
                --end;
            *out++ = ' ';
            for (qsizetype i = 0; i < end; ++i)
                *out++ = UpperByte(rows[i]);
            *out++ = ' ';
            *out++ = '\0';
        }
        length_ = std::size_t(out - buffer_.data());
    }

    // A term holding a zero byte can match no row: the rows hold none.
    bool hit(QByteArrayView term) const
    {
        if (term.contains('\0'))
            return false;
        return Contains(buffer_.data(), length_, term);
    }

private:
    std::array<char, kRecipeRows * (kIngredientWidth + 3)> buffer_{};
    std::size_t length_ = 0;
};

// The decision of one recipe, term by term: `hit(box)` says whether the term
// of that box (1 to 3) is found in some row. True when the recipe is listed,
// given that its entry is not empty (an empty entry notes no candidate).
template <typename Hit>
bool RecipeAccepted(int matchMode, int termCount, Hit&& hit)
{
    int box = 1;
    int termIndex = 0;
    int termsMatched = 0;
    bool anyHit = false;
    bool lastHit = false;
    for (;;) {
        lastHit = hit(box);
        anyHit = anyHit || lastHit;
        ++termIndex;
        if (matchMode == 2) {
            if (lastHit)
                break;
            if (termCount == 2 && termIndex == 1) {
                box = 2;
                continue;
            }
            if (termCount == 3 && termIndex == 1) {
                box = 2;
                continue;
            }
            if (termCount == 3 && termIndex == 2) {
                box = 3;
                continue;
            }
        }
        if (matchMode != 1 || termIndex > termCount || !lastHit)
            break;
        box = termIndex == 1 ? 2 : 3;
        ++termsMatched;
        if (termIndex >= termCount)
            break;
    }
    if (!anyHit)
        return false;
    return matchMode == 1 ? termsMatched == termCount : lastHit;
}

QByteArray TermBytes(const QString& box)
{
    return UpperCaseCp1252(ToCp1252(box));
}

// Whether a recipe with these 700 ingredient bytes is listed for the query
// (its entry not being empty).
class RecipeJudge {
public:
    explicit RecipeJudge(const IngredientQuery& query)
        : termCount_(TermCount(query.box2, query.box3)),
          matchMode_(MatchMode(MultiIngredientFrameShown(query.box2, query.box3), query.allOfTerms)),
          terms_{TermBytes(query.box1), TermBytes(query.box2), TermBytes(query.box3)}
    {
    }

    bool accepts(const char* rows) const
    {
        scan_.load(rows);
        std::array<std::optional<bool>, 3> found;
        return RecipeAccepted(matchMode_, termCount_, [&](int box) {
            auto& known = found[std::size_t(box - 1)];
            if (!known)
                known = scan_.hit(terms_[std::size_t(box - 1)]);
            return *known;
        });
    }

private:
    int termCount_;
    int matchMode_;
    std::array<QByteArray, 3> terms_;
    mutable IngredientScan scan_;
};

struct TypeList {
    RecipeType type;
    NameFileSlots names;
    std::vector<ListItem> items;   // sorted; their texts point into `names`
};

constexpr char kNotNamed = 0;
constexpr char kNamed = 1;
constexpr char kListed = 2;
constexpr char kNotListed = 3;

} // namespace

QString NameSearchCountText(qsizetype hits)
{
    return kRecipeMatchesLabel + QString::number(hits);
}

QString IngredientSearchCountText(bool byType, qsizetype hits)
{
    return (byType ? kByTypeMatchesLabel : kAllRecipesMatchesLabel) + QString::number(hits);
}

QByteArray UpperCaseCp1252(QByteArrayView bytes)
{
    QByteArray out(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), out.begin(), UpperByte);
    return out;
}

bool SortsBeforeCp1252(QByteArrayView a, QByteArrayView b)
{
    return CompareRanksFrom(a, b, 0) < 0;
}

QList<SearchHit> SearchByName(int cookbook, const QString& searchText)
{
    QList<SearchHit> hits;
    if (searchText.isEmpty())
        return hits;
    const QByteArray needle = TermBytes(searchText);
    std::vector<ListItem> found;
    std::array<char, 1 + RecipeNameRecord::kMaxTextLength> text{};
    for (RecipeType type : AllRecipeTypes()) {
        const NameFileSlots names(cookbook, type);
        found.clear();
        for (qint64 i = 0; i < names.count(); ++i) {
            const QByteArrayView entry = names.text(i);
            if (IsAllBlanks(entry)) // cleared slots and empty texts are no entries
                continue;
            text[0] = ' ';
            std::transform(entry.begin(), entry.end(), text.begin() + 1, UpperByte);
            if (Contains(text.data(), std::size_t(entry.size() + 1), needle))
                found.push_back({entry, SortKey(entry), qint32(i), 0});
        }
        std::sort(found.begin(), found.end(), ItemBefore);
        const QString typeName = RecipeTypeName(type);
        for (const ListItem& item : found)
            hits.append({typeName, DecodeText(LeftTrimmed(item.text))});
    }
    return hits;
}

bool IsBlankBox(const QString& box)
{
    return std::all_of(box.begin(), box.end(), [](QChar c) { return c == u' '; });
}

void CompactBoxes(QString& box1, QString& box2, QString& box3)
{
    if (IsBlankBox(box2) && !IsBlankBox(box3)) {
        box2 = box3;
        box3.clear();
    }
    if (IsBlankBox(box1) && !IsBlankBox(box2)) {
        box1 = box2;
        box2.clear();
    }
}

bool MultiIngredientFrameShown(const QString& box2, const QString& box3)
{
    return !IsBlankBox(box2) || !IsBlankBox(box3);
}

int TermCount(const QString& box2, const QString& box3)
{
    if (IsBlankBox(box2))
        return 1;
    return IsBlankBox(box3) ? 2 : 3;
}

int MatchMode(bool frameShown, bool allOfTerms)
{
    if (!frameShown)
        return 0;
    return allOfTerms ? 1 : 2;
}

QStringList IngredientSearchRefusals(const IngredientQuery& query, bool byType)
{
    QStringList messages;
    if (byType && !query.onlyType)
        messages << kSelectTypeMessage;
    if (query.box1.isEmpty())
        messages << kEnterIngredientMessage;
    return messages;
}

QList<SearchHit> SearchByIngredient(int cookbook, const IngredientQuery& query,
                                    const std::array<QString, kRecipeRows>& bufferIngredients)
{
    // Each type's list, sorted, for the types the search looks at.
    std::vector<TypeList> lists;
    lists.reserve(kRecipeTypeCount);
    for (RecipeType type : AllRecipeTypes()) {
        if (query.onlyType && *query.onlyType != type)
            continue;
        TypeList list{type, NameFileSlots(cookbook, type), {}};
        // An empty first slot: the type has no recipes, whatever follows.
        if (list.names.count() == 0 || list.names.text(0).isEmpty())
            continue;
        list.items.reserve(std::size_t(list.names.count()));
        for (qint64 i = 0; i < list.names.count(); ++i) {
            const QByteArrayView entry = list.names.text(i);
            list.items.push_back({entry, SortKey(entry), qint32(i), RecordNumberOfBytes(entry)});
        }
        std::sort(list.items.begin(), list.items.end(), ItemBefore);
        lists.push_back(std::move(list));
    }
    QList<SearchHit> hits;
    if (lists.empty())
        return hits;

    // A recipe's verdict depends on its rows alone, so every slot that an
    // entry names is judged once, in slot order: the recipe file is then
    // read front to back instead of in the order of the names.
    const RecipeJudge judge(query);
    const RecipeFileView recipes(cookbook);
    std::vector<char> verdicts(std::size_t(std::numeric_limits<RecordNumber>::max()) + 1, kNotNamed);
    for (const TypeList& list : lists) {
        for (const ListItem& item : list.items) {
            if (item.record != 0)
                verdicts[std::size_t(item.record)] = kNamed;
        }
    }
    std::array<char, kIngredientBlock> scratch{};
    for (std::size_t record = 1; record < verdicts.size(); ++record) {
        if (verdicts[record] != kNamed)
            continue;
        const char* rows = recipes.ingredients(RecordNumber(record), scratch.data());
        verdicts[record] = judge.accepts(rows) ? kListed : kNotListed;
    }
    // The rows of the screen's record buffer, as the record holds them.
    RecipeRecord buffer = RecipeRecord::Cleared();
    for (int row = 0; row < kRecipeRows; ++row)
        buffer.ingredients[std::size_t(row)].setText(bufferIngredients[std::size_t(row)]);
    const bool bufferListed = judge.accepts(reinterpret_cast<const char*>(&buffer) + kIngredientsOffset);

    // The walk: an entry without a record number reads nothing, so it gets
    // the verdict of the rows read before it, the buffer's at first.
    RecordNumber source = 0;
    for (const TypeList& list : lists) {
        const QString typeName = RecipeTypeName(list.type);
        for (const ListItem& item : list.items) {
            if (item.record != 0)
                source = item.record;
            // An empty entry notes no candidate, so it is never listed.
            if (item.text.isEmpty())
                continue;
            if (source == 0 ? bufferListed : verdicts[std::size_t(source)] == kListed)
                hits.append({typeName, DecodeText(item.text)});
        }
    }
    return hits;
}
