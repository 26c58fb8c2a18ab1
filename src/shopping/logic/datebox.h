#pragma once
// The date box of the shopping list takes digits and the date separator
// only: "/" always, and the separator of the system's short date form (a
// "." or "-" in many countries) as well.
#include <QChar>
#include <QString>

// The typed text with every other character dropped.
QString DateBoxText(QStringView typed, QChar localeSeparator);
// The separator of the locale's short date form; "/" when it has none.
QChar ShortDateSeparator();
// The projected date in the long date form, as the list prints and copies
// it; the box's text as it stands when it holds no date.
QString LongDateOfBox(QStringView dateBox);
