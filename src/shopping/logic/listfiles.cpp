#include "shopping/logic/listfiles.h"

#include "common/blanktext.h"
#include "common/dates.h"
#include "common/numbertext.h"
#include "common/programfolder.h"
#include "common/quotedlinefile.h"
#include "shopping/logic/groceryentry.h"
#include "shopping/logic/shoppinglist.h"

#include <QDir>
#include <QFile>

std::optional<QDate> ProjectedDate(QStringView dateBox)
{
    return ParseDate(dateBox);
}

QString ListFileBase(QStringView dateBox)
{
    const std::optional<QDate> date = ProjectedDate(dateBox);
    return date ? FormatDate(*date, u"ddmmmyy") : QString();
}

QString ListFileName(QStringView base)
{
    return base.toString() + QStringLiteral(".Lst");
}

QString ReplaceListQuestion(QStringView base)
{
    return base.toString() + QStringLiteral(".lst\nThis file already already exists.\nDo you want to replace it?");
}

bool IsListFileName(QStringView name)
{
    return Val(name) > 0 && name.toString().toUpper().endsWith(QStringLiteral(".LST"));
}

QString DateBoxTextOfListName(QStringView name)
{
    const qsizetype dot = name.indexOf(u'.');
    const QStringView base = dot < 0 ? name : name.left(dot);
    const QString composed =
        base.mid(2, 3).toString() + u'/' + base.left(2).toString() + u'/' + base.right(2).toString();
    const std::optional<QDate> date = ParseDate(composed);
    return date ? ShortDate(*date) : composed;
}

QStringList EntriesOfListValues(const QStringList& values)
{
    QStringList entries;
    for (qsizetype at = 0; at < values.size(); at += 2) {
        const QString item = LTrim(values[at]).left(kItemNameLength);
        const QString amount = at + 1 < values.size() ? values[at + 1] : QString();
        if (item.isEmpty())
            continue;
        entries.append(MakeGroceryEntry(item, amount));
    }
    return entries;
}

ReadList ReadListFile(const QString& fileName)
{
    ReadList read;
    QFile file(ResolveFileName(fileName));
    if (!file.open(QIODevice::ReadOnly))
        return read;
    read.opened = true;
    read.entries = EntriesOfListValues(ParseQuotedValues(file.readAll()));
    if (read.entries.size() > ShoppingList::kMaxEntries) {
        read.entries.clear();
        read.tooLong = true;
    }
    return read;
}

bool WriteListFile(const QString& fileName, const QStringList& values)
{
    return WriteQuotedLineFile(fileName, values);
}

QStringList SavedListFiles()
{
    QStringList names;
    const QFileInfoList files = QDir::current().entryInfoList(QDir::Files, QDir::Name);
    for (const QFileInfo& file : files) {
        if (file.fileName().endsWith(QStringLiteral(".lst"), Qt::CaseInsensitive))
            names.append(file.fileName());
    }
    return names;
}
