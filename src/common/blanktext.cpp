#include "common/blanktext.h"

namespace {

qsizetype FirstNonBlank(QStringView text)
{
    qsizetype at = 0;
    while (at < text.size() && text[at] == u' ')
        ++at;
    return at;
}

qsizetype EndOfNonBlank(QStringView text)
{
    qsizetype end = text.size();
    while (end > 0 && text[end - 1] == u' ')
        --end;
    return end;
}

} // namespace

QString LTrim(QStringView text)
{
    return text.mid(FirstNonBlank(text)).toString();
}

QString RTrim(QStringView text)
{
    return text.left(EndOfNonBlank(text)).toString();
}

QString Trim(QStringView text)
{
    const qsizetype start = FirstNonBlank(text);
    return text.mid(start, std::max<qsizetype>(0, EndOfNonBlank(text) - start)).toString();
}

bool IsBlank(QStringView text)
{
    return FirstNonBlank(text) == text.size();
}

QString FixedWidth(QStringView text, qsizetype width)
{
    return PaddedTo(text.left(width), width);
}

QString PaddedTo(QStringView text, qsizetype width)
{
    QString padded = text.toString();
    if (padded.size() < width)
        padded.append(QString(width - padded.size(), u' '));
    return padded;
}
