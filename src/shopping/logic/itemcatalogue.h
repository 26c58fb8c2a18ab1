#pragma once
// The catalogue of item names the user has typed before, kept between runs
// in LISTNAME.Fil: one name a line, each in double quotes, CR LF after each,
// no header and no count. Names are trimmed on reading; a missing file is an
// empty catalogue. The drop-down "Combo1" shows the names alphabetically;
// the file keeps them in the order they were added.
//
// The catalogue has 9000 places. A file that holds more is read whole and
// written back whole, so nothing in it is lost; only adding stops at 9000.
//
// A catalogue of one empty place counts as empty: deleting the last name
// leaves that one blank place, written as "" on one line, and the next name
// added takes it.
#include <QString>
#include <QStringList>

inline constexpr int kCatalogueCapacity = 9000;
inline const char* const kCatalogueFileName = "LISTNAME.Fil";

class ItemCatalogue {
public:
    enum class Change {
        None,         // known already, or nothing to delete
        Changed,      // the catalogue and its file hold the change
        Full,         // 9000 names: nothing added
        WriteFailed,  // the file could not be written: the catalogue is as it was
    };

    // Reads LISTNAME.Fil from the program folder.
    void load();
    // Places 1 to count, in the file's order.
    const QStringList& names() const { return names_; }
    int count() const { return int(names_.size()); }
    bool isFull() const { return countForAdding() >= kCatalogueCapacity; }

    // True when a name equals the text, case and trailing blanks ignored.
    bool contains(QStringView text) const;
    // The catalogue check of a name put on the list: an unknown name is
    // added and the file rewritten.
    Change check(const QString& text);
    // Removes the first name that equals the text, case ignored, and
    // rewrites the file.
    Change remove(QStringView text);

    // The drop-down's entries: every place, sorted.
    QStringList dropDownEntries() const;

private:
    int countForAdding() const;
    bool write() const;

    QStringList names_;
};

// Type-ahead in the item box: the first drop-down entry from the second on
// whose beginning equals the typed text, left-trimmed, case ignored. Nothing
// for a blank text or when no entry matches.
QString TypeAheadMatch(const QStringList& dropDownEntries, QStringView typed);
