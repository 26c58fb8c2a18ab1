#pragma once
// One planned day as it sits in its year file: 21 lines of 32 characters
// (breakfast 1 to 7, lunch 8 to 14, dinner 15 to 21) and a mark, 682 bytes,
// in a slot of 700 whose last 18 bytes the program never writes. Every byte
// is a Windows-1252 character, lines padded with blanks.
#include <QString>

#include <array>
#include <cstddef>
#include <type_traits>

inline constexpr int kMenuLines = 21;
inline constexpr int kLinesPerMeal = 7;
// The screen's lines take 30 characters as typed; a record holds 32, and a
// longer line from a file is shown and saved whole.
inline constexpr int kTypedLineLength = 30;

// The 21 lines of a day in record order, 0-based: the screen's Text1(0) to
// Text1(20).
using MenuLines = std::array<QString, kMenuLines>;

enum class Meal { Breakfast = 1, Lunch = 2, Dinner = 3 };
// The meal of a 0-based line: 0 to 6 breakfast, 7 to 13 lunch, 14 to 20 dinner.
Meal MealOfLine(int line);

struct MenuDayRecord {
    static constexpr int kLineWidth = 32;
    static constexpr int kMarkWidth = 10;
    static constexpr int kSize = 682;
    static constexpr int kSlotLength = 700;

    std::array<std::array<char, kLineWidth>, kMenuLines> entries{};  //   0  21 x 32
    std::array<char, kMarkWidth> mark{};                              // 672  "Full" and blanks

    // The line right-trimmed; NULs and other control bytes read as blanks,
    // so a damaged or never-written line shows as blank text.
    QString line(int index) const;
    // Cut to 32 characters and padded with blanks.
    void setLine(int index, QStringView text);

    // A day was saved when the mark, less its trailing blanks, is exactly
    // "Full"; zeros, "FULL" or anything else is a day never saved.
    bool isFull() const;
    void markFull();

    // The lines as the screen shows them: blank for a day never saved.
    MenuLines shownLines() const;

    // Short input reads as zeros past its end.
    static MenuDayRecord FromBytes(QByteArrayView bytes);
    // The 682 bytes the program writes into a slot.
    QByteArray toBytes() const;
    // The lines right-trimmed and marked "Full": what saving a day writes.
    static MenuDayRecord Saved(const MenuLines& lines);
};

static_assert(std::is_standard_layout_v<MenuDayRecord> && std::is_trivially_copyable_v<MenuDayRecord>);
static_assert(sizeof(MenuDayRecord) == MenuDayRecord::kSize);
static_assert(offsetof(MenuDayRecord, entries) == 0);
static_assert(offsetof(MenuDayRecord, mark) == 672);

// True when every line is empty after right-trimming.
bool AllLinesBlank(const MenuLines& lines);
// The text with its trailing blanks removed, as the old runtime's RTrim.
QString RightTrimmed(const QString& text);
