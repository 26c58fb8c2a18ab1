#include "shopping/logic/itemcatalogue.h"

#include "common/blanktext.h"
#include "common/listorder.h"
#include "common/quotedlinefile.h"

namespace {

// The name without its trailing blanks, as a view: the check compares 9000
// names for every item put on the list, so it copies none of them.
QStringView WithoutTrailingBlanks(QStringView name)
{
    qsizetype end = name.size();
    while (end > 0 && name[end - 1] == u' ')
        --end;
    return name.left(end);
}

} // namespace

void ItemCatalogue::load()
{
    names_.clear();
    for (const QString& name : ReadQuotedLineFile(QString::fromLatin1(kCatalogueFileName)))
        names_.append(Trim(name));
}

bool ItemCatalogue::contains(QStringView text) const
{
    const QStringView wanted = WithoutTrailingBlanks(text);
    for (const QString& name : names_) {
        if (WithoutTrailingBlanks(name).compare(wanted, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

int ItemCatalogue::countForAdding() const
{
    return names_.size() == 1 && names_.first().isEmpty() ? 0 : int(names_.size());
}

ItemCatalogue::Change ItemCatalogue::check(const QString& text)
{
    if (contains(text))
        return Change::None;
    if (isFull())
        return Change::Full;
    const QStringList before = names_;
    names_ = names_.mid(0, countForAdding());
    names_.append(text);
    if (!write()) {
        names_ = before;
        return Change::WriteFailed;
    }
    return Change::Changed;
}

ItemCatalogue::Change ItemCatalogue::remove(QStringView text)
{
    const QString wanted = text.toString().toUpper();
    for (int place = 0; place < names_.size(); ++place) {
        if (names_[place].toUpper() != wanted)
            continue;
        const QStringList before = names_;
        names_.removeAt(place);
        // The count stays 1 at the least: the last name leaves a blank place.
        if (names_.isEmpty())
            names_.append(QString());
        if (!write()) {
            names_ = before;
            return Change::WriteFailed;
        }
        return Change::Changed;
    }
    return Change::None;
}

QStringList ItemCatalogue::dropDownEntries() const
{
    QStringList entries = names_;
    SortListTexts(entries);
    return entries;
}

bool ItemCatalogue::write() const
{
    return WriteQuotedLineFile(QString::fromLatin1(kCatalogueFileName), names_);
}

QString TypeAheadMatch(const QStringList& dropDownEntries, QStringView typed)
{
    const QString wanted = LTrim(typed);
    if (IsBlank(wanted))
        return {};
    for (int index = 1; index < dropDownEntries.size(); ++index) {
        if (dropDownEntries[index].startsWith(wanted, Qt::CaseInsensitive))
            return dropDownEntries[index];
    }
    return {};
}
