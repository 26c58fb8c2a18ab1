#pragma once
// The remembered dishes of one meal: Menu1.Fil (breakfast), Menu2.Fil
// (lunch), Menu3.Fil (dinner), quoted-line files of one item a line. A list
// holds at most 1000 items and keeps them as its drop-down shows them:
// alphabetically, without regard to case, items that compare equal in the
// order they came. Every change rewrites the whole file in that order.
#include "planner/logic/menudayrecord.h"

#include <QString>
#include <QStringList>

inline constexpr int kMenuListCapacity = 1000;

QString MenuListFileName(Meal meal);

class MenuItemList {
public:
    MenuItemList() = default;
    // The first 1000 values, in drop-down order.
    explicit MenuItemList(const QStringList& values);

    // A missing file gives an empty list.
    static MenuItemList Load(Meal meal);
    // False when the file could not be written; the old file is then as it was.
    bool save(Meal meal) const;

    const QStringList& items() const { return items_; }
    int count() const { return int(items_.size()); }
    bool isFull() const { return count() >= kMenuListCapacity; }

    // The place of the first item that reads as `text` in upper case, or -1.
    int find(const QString& text) const;
    // Puts `text` at its alphabetical place; false, and nothing added, when
    // the list is full.
    bool insert(const QString& text);
    // Removes the first item that reads as `text` in upper case; false when
    // there is none.
    bool remove(const QString& text);

private:
    QStringList items_;
};

// What leaving a line does to its meal's list.
enum class LineOffer {
    TooShort,    // empty or a single character: kept in the day, never listed
    Listed,      // the list has it already, in any case: nothing happens
    ListFull,    // the list has its 1000 items: nothing happens, silently
    Added,       // a new item: the list is to be written
};
// Offers a line the user left to its meal's list and adds it when it is new.
// The line is compared right-trimmed and in upper case, and what is added is
// the right-trimmed line.
LineOffer OfferLine(MenuItemList& list, const QString& line);

// The list editor's texts for a meal's list: its heading ("Edit Breakfast
// List") and its instructions, seven lines with the meal's item word.
QString EditListHeading(Meal meal);
QString EditListInstructions(Meal meal);
