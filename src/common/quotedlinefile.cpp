#include "common/quotedlinefile.h"

#include "common/cp1252.h"
#include "common/programfolder.h"
#include "common/wholefile.h"

#include <QFile>

namespace {

bool IsBlank(char c)
{
    return c == ' ' || c == '\t';
}

bool IsLineEnd(char c)
{
    return c == '\r' || c == '\n';
}

// Steps over one line end at `pos` (CR LF counts as one).
qsizetype PastLineEnd(QByteArrayView bytes, qsizetype pos)
{
    if (bytes[pos] == '\r' && pos + 1 < bytes.size() && bytes[pos + 1] == '\n')
        return pos + 2;
    return pos + 1;
}

// Steps over everything up to and including the next comma or line end.
qsizetype PastDelimiter(QByteArrayView bytes, qsizetype pos)
{
    while (pos < bytes.size()) {
        const char c = bytes[pos];
        if (c == ',')
            return pos + 1;
        if (IsLineEnd(c))
            return PastLineEnd(bytes, pos);
        ++pos;
    }
    return pos;
}

} // namespace

QStringList ParseQuotedValues(QByteArrayView bytes)
{
    QStringList values;
    qsizetype pos = 0;
    const qsizetype size = bytes.size();
    while (pos < size) {
        while (pos < size && IsBlank(bytes[pos]))
            ++pos;
        if (pos < size && bytes[pos] == '"') {
            const qsizetype start = pos + 1;
            qsizetype end = start;
            while (end < size && bytes[end] != '"')
                ++end;
            values.append(FromCp1252(bytes.sliced(start, end - start)));
            pos = end < size ? PastDelimiter(bytes, end + 1) : size;
            continue;
        }
        const qsizetype start = pos;
        while (pos < size && bytes[pos] != ',' && !IsLineEnd(bytes[pos]))
            ++pos;
        qsizetype end = pos;
        while (end > start && IsBlank(bytes[end - 1]))
            --end;
        values.append(FromCp1252(bytes.sliced(start, end - start)));
        if (pos < size)
            pos = bytes[pos] == ',' ? pos + 1 : PastLineEnd(bytes, pos);
    }
    return values;
}

QByteArray EncodeQuotedLines(const QStringList& values)
{
    QByteArray out;
    for (const QString& value : values) {
        out.append('"');
        out.append(ToCp1252(value));
        out.append("\"\r\n");
    }
    return out;
}

QStringList ReadQuotedLineFile(const QString& name)
{
    QFile file(ResolveFileName(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return ParseQuotedValues(file.readAll());
}

bool WriteQuotedLineFile(const QString& name, const QStringList& values)
{
    return WriteWholeFile(ResolveFileName(name), EncodeQuotedLines(values));
}
