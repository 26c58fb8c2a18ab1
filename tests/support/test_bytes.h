#pragma once
// Bytes that tests build: random ones for the fuzz tests, and the quoted
// lines of the program's text files, written out by hand from the format
// (every value in double quotes on a line of its own, ended by CR LF).
#include <QByteArray>
#include <QStringList>

#include <random>

inline QByteArray RandomBytes(std::mt19937& random, qsizetype size)
{
    std::uniform_int_distribution<int> byte(0, 255);
    QByteArray bytes(size, '\0');
    for (char& b : bytes)
        b = char(byte(random));
    return bytes;
}

inline QByteArray QuotedLineBytes(const QStringList& values)
{
    QByteArray bytes;
    for (const QString& value : values)
        bytes += '"' + value.toLatin1() + "\"\r\n";
    return bytes;
}
