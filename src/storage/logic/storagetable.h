#pragma once
// A food storage table in memory: 60 rows of 8 texts, the master copy that
// the grid shows a part of. The files hold the same 480 texts row by row.
#include "storage/logic/storagekinds.h"

#include <QStringList>
#include <array>

class StorageTable {
public:
    // Rows 1 to 60, columns 0 to 7; a cell outside reads as empty and takes
    // nothing.
    QString cell(int row, int column) const;
    void setCell(int row, int column, const QString& text);
    QStringList rowTexts(int row) const;

    // Rows 1 to 60, and within a row columns 0 to 7.
    QStringList values() const;
    // The first 480 values; a short list leaves the remaining cells empty.
    static StorageTable fromValues(const QStringList& values);

    bool operator==(const StorageTable&) const = default;

private:
    static bool inside(int row, int column);

    std::array<std::array<QString, kStorageColumns>, kStorageRows> cells_{};
};

// The item name of a row without the screen's indent.
QString ItemName(const StorageTable& table, int row);
// The text without the blanks in front (an indent, or blanks a file holds).
QString WithoutLeadingBlanks(const QString& text);
// True when the row's item name is empty or blank.
bool HasNoItemName(const StorageTable& table, int row);
