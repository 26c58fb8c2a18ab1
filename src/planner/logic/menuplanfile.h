#pragma once
// The year files of the menu planner. A date becomes a file and a slot by
// one rule, which every reader and writer uses:
//
//   months 1 to 9   the day's digits followed by the month's, read as a
//                   number: 15 March 153, 5 March 53, 31 August 318
//   October         320 + day      November  360 + day
//   December        400 + day
//
// The file is the year as the old runtime's Str writes it, with the blank of
// its sign place, and ".Mnu": " 2026.Mnu". Slots are 700 bytes and most slot
// numbers never occur, so a year's file has gaps that read as days never
// saved. Every operation opens the file, does its one slot and closes it;
// opening a year without a file creates it empty.
#include "planner/logic/menudayrecord.h"

#include <QDate>
#include <QString>
#include <functional>

// A day's place: its year file and its slot there.
struct MenuPlace {
    int year = 0;
    int slot = 0;

    bool isValid() const { return year > 0 && slot > 0; }
    bool operator==(const MenuPlace&) const = default;
};

int MenuSlotOf(QDate date);
MenuPlace MenuPlaceOf(QDate date);
QString MenuPlanFileName(int year);

// The record of a day; a slot never written, past the end of the file or
// in a file that cannot be read reads as a day never saved.
MenuDayRecord ReadDay(const MenuPlace& place);
MenuDayRecord ReadDay(QDate date);
// Writes the lines, right-trimmed, with the mark "Full" (even when every line
// is blank) into the first 682 bytes of the slot; the slot's last 18 bytes
// keep whatever they hold. False when the write failed.
bool SaveDay(const MenuPlace& place, const MenuLines& lines);

// How the views and printouts read a day: ReadDay, or a stand-in in tests
// and benchmarks.
using DayReader = std::function<MenuDayRecord(QDate)>;

// The size in bytes of a year's file; 0 when it is missing or empty.
qint64 YearFileLength(int year);
