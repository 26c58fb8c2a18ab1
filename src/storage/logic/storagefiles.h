#pragma once
// The files of food storage, all quoted-line text (one value a line in
// double quotes): a table file per kind of exactly 480 values, rows 1 to 60
// and within a row columns 0 to 7; the default titles (60 values) and the
// default amounts (one value per row that takes one) of each kind; and
// FdsB2.Fil, one value, the number in the family, shared by the kinds.
//
// A missing or short file reads as empty values; values past the ones a
// file should hold are ignored. Writes replace the whole file and say
// whether they held.
#include "storage/logic/storagetable.h"

StorageTable ReadTableFile(StorageKind kind);
bool WriteTableFile(StorageKind kind, const StorageTable& table);

// The family size as stored; empty when the file is missing.
QString ReadFamilyFile();
bool WriteFamilyFile(const QString& familySize);

// The default files of a kind, as many values as they hold.
QStringList ReadDefaultTitles(StorageKind kind);
QStringList ReadDefaultAmounts(StorageKind kind);
