#pragma once
// Blanks as the old runtime's text functions treat them: Trim, LTrim and
// RTrim remove spaces only (a tab or a line break stays), and a field of
// fixed width is filled with spaces or cut.
#include <QString>
#include <QStringView>

QString LTrim(QStringView text);
QString RTrim(QStringView text);
QString Trim(QStringView text);

// True when the text is empty or holds nothing but spaces.
bool IsBlank(QStringView text);

// The text cut to `width` characters, or filled with spaces up to it.
QString FixedWidth(QStringView text, qsizetype width);
// The text filled with spaces up to `width` characters; a longer text stays whole.
QString PaddedTo(QStringView text, qsizetype width);
