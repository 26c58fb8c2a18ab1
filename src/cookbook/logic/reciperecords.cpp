#include "cookbook/logic/reciperecords.h"

#include "common/slotvalues.h"

#include <cstring>

namespace {

template <typename Record>
Record RecordFromBytes(QByteArrayView bytes)
{
    Record record; // zero-filled, so a short input leaves zeros past its end
    const auto count = std::size_t(std::min<qsizetype>(bytes.size(), sizeof(Record)));
    if (count > 0)
        std::memcpy(static_cast<void*>(&record), bytes.data(), count);
    return record;
}

template <typename Record>
QByteArray RecordToBytes(const Record& record)
{
    return QByteArray(reinterpret_cast<const char*>(&record), sizeof(Record));
}

// Puts an encoded value at the head of a record, zeros after it; false when
// the value does not fit.
template <typename Record>
bool StoreValue(Record& record, const QByteArray& encoded)
{
    if (encoded.size() > qsizetype(sizeof(Record)))
        return false;
    record = RecordFromBytes<Record>(encoded);
    return true;
}

} // namespace

RecipeRecord RecipeRecord::Cleared()
{
    RecipeRecord record;
    for (auto& amount : record.amounts)
        amount.setText({});
    record.directions.setText({});
    record.ovenTemperature.setText({});
    for (auto& amountType : record.amountTypes)
        amountType.setText({});
    for (auto& ingredient : record.ingredients)
        ingredient.setText({});
    record.yieldAmount.setText({});
    record.cookingTime.setText({});
    record.yieldType.setText({});
    record.markDeleted();
    return record;
}

RecipeRecord RecipeRecord::FromBytes(QByteArrayView bytes)
{
    return RecordFromBytes<RecipeRecord>(bytes);
}

QByteArray RecipeRecord::toBytes() const
{
    return RecordToBytes(*this);
}

QString RecipeExtraRecord::picturePath() const
{
    const TaggedValue value = DecodeSlotTagged(QByteArrayView(reinterpret_cast<const char*>(this), kSize));
    // A number where a path belongs is no picture.
    if (const auto* text = std::get_if<QString>(&value))
        return *text;
    return {};
}

bool RecipeExtraRecord::setPicturePath(QStringView path)
{
    return StoreValue(*this, EncodeSlotTagged(path.toString()));
}

RecipeExtraRecord RecipeExtraRecord::FromBytes(QByteArrayView bytes)
{
    return RecordFromBytes<RecipeExtraRecord>(bytes);
}

QByteArray RecipeExtraRecord::toBytes() const
{
    return RecordToBytes(*this);
}

QString RecipeNameRecord::nameEntry() const
{
    return DecodeSlotText(QByteArrayView(reinterpret_cast<const char*>(this), kSize));
}

bool RecipeNameRecord::setNameEntry(QStringView entry)
{
    return StoreValue(*this, EncodeSlotText(entry));
}

RecipeNameRecord RecipeNameRecord::Cleared()
{
    RecipeNameRecord record;
    record.setNameEntry(u" ");
    return record;
}

RecipeNameRecord RecipeNameRecord::FromBytes(QByteArrayView bytes)
{
    return RecordFromBytes<RecipeNameRecord>(bytes);
}

QByteArray RecipeNameRecord::toBytes() const
{
    return RecordToBytes(*this);
}
