#pragma once
// The bytes of the shopping list's text files, built the way the files are
// written: every value in double quotes on a line of its own, ended by CR LF.
#include <QByteArray>
#include <QList>
#include <utility>

inline QByteArray Lines(const QList<QByteArray>& values)
{
    QByteArray bytes;
    for (const QByteArray& value : values)
        bytes += '"' + value + "\"\r\n";
    return bytes;
}

// A list file of `rows` grid rows holding the given item and amount cells.
inline QByteArray ListBytes(const QList<std::pair<QByteArray, QByteArray>>& filled, int rows = 15)
{
    QList<QByteArray> values;
    for (const auto& [item, amount] : filled)
        values << item << amount;
    for (int row = int(filled.size()); row < rows; ++row)
        values << "" << "";
    return Lines(values);
}
