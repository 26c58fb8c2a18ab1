// The stored settings files of tests/shell/data, as a data folder in use
// holds them: a value in every slot the program reads or writes, in text,
// 16-bit integer and tagged forms, and values of other programs in slots it
// never uses. Read with the slot routines, written back and compared with
// the stored files byte for byte.
#include "shell/logic/background.h"
#include "shell/logic/familyname.h"
#include "shell/logic/windowsettings.h"
#include "shell/settings/settingsslots.h"

#include "temp_program_folder.h"
#include "test_data.h"
#include "raw_slots.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

namespace {

enum class Form { Text, Integer, TaggedText, TaggedInteger };

struct StoredSlot {
    SettingsSlotFile file;
    int slot;
    Form form;
    QString text;       // the text of a text or tagged text slot
    qint32 number = 0;  // the number of an integer or tagged integer slot
};

const SettingsSlotFile kFiles[] = {GColor1, GColor2, GColor3, GColor4, GQORB1, QORBNAME, SWR2};

void AddTexts(std::vector<StoredSlot>& listed, const SettingsSlotFile& file, std::initializer_list<int> numbers,
              const QString& text)
{
    for (int slot : numbers)
        listed.push_back({file, slot, Form::Text, text});
}

// Every slot of the stored files that the program reads or writes, with the
// value it holds there.
const std::vector<StoredSlot>& StoredSlots()
{
    static const std::vector<StoredSlot> listed = [] {
        const QString grey = QStringLiteral("12632256"); // given to every screen at once
        std::vector<StoredSlot> all;
        AddTexts(all, GColor1, {10, 11, 12, 13, 16, 17, 18, 22, 32, 36, 38, 40, 54, 56}, grey);
        AddTexts(all, GColor2, {5, 12, 16, 19, 20, 40}, grey);
        AddTexts(all, GColor3, {8, 17, 91, 92, 100, 101, 102, 103, 104, 105}, grey);
        const StoredSlot others[] = {
            {GColor1, 27, Form::Text, "8421504"},
            {GColor1, 28, Form::Text, "WP3"},
            {GColor1, 29, Form::Text, "0"},
            {GColor1, 49, Form::Text, "Default"},
            {GColor1, 55, Form::Text, "1"},
            {GColor1, 70, Form::Text, "65535"},
            {GColor1, 71, Form::Text, "Default"},
            {GColor1, 72, Form::Text, "16711680"},
            {GColor1, 80, Form::Text, "32768"},
            {GColor1, 81, Form::Text, "1"},
            {GColor1, 82, Form::Text, "16777215"},
            {GColor1, 83, Form::Text, "1"},
            {GColor2, 9, Form::Text, "8454143"},
            {GColor2, 22, Form::Text, "12648384"},
            {GColor2, 23, Form::Text, "16744576"},
            {GColor2, 25, Form::Text, "Default"},
            {GColor2, 26, Form::Text, "14737632"},
            {GColor3, 28, Form::Text, "1"},
            {GColor3, 35, Form::Text, "Yes"},
            {GColor3, 36, Form::Integer, {}, 9600},
            {GColor3, 37, Form::Integer, {}, 12800},
            {GColor3, 38, Form::Text, "1"},
            {GColor3, 42, Form::Text, "0"},
            {GColor3, 50, Form::Text, "1"},
            {GColor3, 80, Form::Text, "0"},
            {GColor4, 1, Form::Text, " 2"},
            {GColor4, 2, Form::Text, "Family Favorites"},
            {GColor4, 3, Form::Text, "Holidays"},
            {GColor4, 4, Form::Text, QString::fromUtf8("Crêpes & Cakes")},
            {GColor4, 5, Form::Text, "Grandma's Sunday Dinner Recipe"},
            {GColor4, 6, Form::Text, ""},
            {GColor4, 7, Form::Text, "Quick Meals"},
            {GColor4, 8, Form::Text, ""},
            {GColor4, 9, Form::Text, "Canning"},
            {GColor4, 11, Form::Text, " 3"},
            {GColor4, 26, Form::TaggedText, "Times New Roman"},
            {GColor4, 27, Form::TaggedInteger, {}, 12},
            {GColor4, 32, Form::TaggedText, "Arial"},
            {GColor4, 33, Form::TaggedInteger, {}, 10},
            {GColor4, 34, Form::Text, "1"},
            {GQORB1, 3, Form::TaggedText, "WP12"},
            {GQORB1, 10, Form::Integer, {}, 1},
            {QORBNAME, 1, Form::Text, QString::fromUtf8("Müller")},
            {SWR2, 2, Form::Integer, {}, 1},
            {SWR2, 3, Form::Text, "Start"},
            {SWR2, 4, Form::Text, "06/30/2006"},
            {SWR2, 10, Form::Integer, {}, 1},
            {SWR2, 11, Form::Integer, {}, 0},
            {SWR2, 12, Form::Integer, {}, 3},
            {SWR2, 13, Form::Integer, {}, -1},
        };
        all.insert(all.end(), std::begin(others), std::end(others));
        return all;
    }();
    return listed;
}

QString NameOf(const SettingsSlotFile& file)
{
    return QString::fromLatin1(file.name);
}

std::string Describe(const StoredSlot& stored)
{
    return NameOf(stored.file).toStdString() + " slot " + std::to_string(stored.slot);
}

void CopyStoredSettings(const TempProgramFolder& folder)
{
    for (const SettingsSlotFile& file : kFiles)
        folder.copyIn(TestDataFile(NameOf(file)));
}

void ExpectStoredValue(const StoredSlot& stored)
{
    SCOPED_TRACE(Describe(stored));
    switch (stored.form) {
    case Form::Text:
        EXPECT_EQ(ReadSlotText(stored.file, stored.slot), stored.text);
        break;
    case Form::Integer:
        EXPECT_EQ(ReadSlotInteger(stored.file, stored.slot), stored.number);
        break;
    case Form::TaggedText:
        EXPECT_EQ(ReadSlotTagged(stored.file, stored.slot), TaggedValue(stored.text));
        break;
    case Form::TaggedInteger:
        EXPECT_EQ(ReadSlotTagged(stored.file, stored.slot), TaggedValue(stored.number));
        break;
    }
}

bool WriteStoredValue(const StoredSlot& stored)
{
    switch (stored.form) {
    case Form::Text:
        return WriteSlotText(stored.file, stored.slot, stored.text);
    case Form::Integer:
        return WriteSlotInteger(stored.file, stored.slot, qint16(stored.number));
    case Form::TaggedText:
        return WriteSlotTagged(stored.file, stored.slot, stored.text);
    case Form::TaggedInteger:
        return WriteSlotTagged(stored.file, stored.slot, stored.number);
    }
    return false;
}

qsizetype OffsetOf(const StoredSlot& stored)
{
    return qsizetype(stored.slot - 1) * stored.file.slotLength;
}

// `bytes` with every listed slot of `file` set to zeros.
QByteArray WithListedSlotsZeroed(const SettingsSlotFile& file, QByteArray bytes)
{
    for (const StoredSlot& stored : StoredSlots()) {
        if (NameOf(stored.file) == NameOf(file))
            bytes.replace(OffsetOf(stored), file.slotLength, QByteArray(file.slotLength, '\0'));
    }
    return bytes;
}

TEST(StoredSettings, EveryListedSlotReadsItsValue)
{
    TempProgramFolder folder;
    CopyStoredSettings(folder);
    for (const StoredSlot& stored : StoredSlots())
        ExpectStoredValue(stored);
}

TEST(StoredSettings, TheProgramsReadersSeeTheStoredSettings)
{
    TempProgramFolder folder;
    CopyStoredSettings(folder);

    const Background background = ReadStoredBackground();
    EXPECT_EQ(background.kind, Background::Kind::Picture);
    EXPECT_EQ(background.pictureNumber(), 12);
    const StoredWindow window = ReadStoredWindow();
    EXPECT_TRUE(window.windowed);
    EXPECT_EQ(window.height, 9600);
    EXPECT_EQ(window.width, 12800);
    EXPECT_EQ(ReadFamilyName(), QString::fromUtf8("Müller"));
    EXPECT_EQ(ReadLastPanelColor(), "Default");
}

TEST(StoredSettings, WritingEveryValueBackGivesTheStoredFiles)
{
    TempProgramFolder folder;
    // The files of other programs' values only: every listed slot zeros.
    for (const SettingsSlotFile& file : kFiles)
        folder.writeBytes(NameOf(file), WithListedSlotsZeroed(file, TestDataBytes(NameOf(file))));
    for (const StoredSlot& stored : StoredSlots())
        ASSERT_TRUE(WriteStoredValue(stored)) << Describe(stored);

    for (const SettingsSlotFile& file : kFiles) {
        SCOPED_TRACE(file.name);
        const QByteArray stored = TestDataBytes(NameOf(file));
        ASSERT_FALSE(stored.isEmpty());
        EXPECT_EQ(folder.bytesOf(NameOf(file)), stored);
    }
}

TEST(StoredSettings, WritingOneSlotLeavesEveryOtherByte)
{
    struct Change {
        StoredSlot slot;
        QByteArray bytes; // the value as the slot holds it, before the zero filler
    };
    const Change changes[] = {
        {{GColor2, 25, Form::Text, "255"}, QByteArray("\x03\x00" "255", 5)},
        {{GColor3, 37, Form::Integer, {}, 15100}, QByteArray("\xFC\x3A", 2)},
        {{GColor4, 2, Form::Text, ""}, QByteArray("\x00\x00", 2)},
        {{GColor4, 27, Form::TaggedInteger, {}, 14}, QByteArray("\x03\x00\x0E\x00\x00\x00", 6)},
        {{GQORB1, 3, Form::TaggedText, "WP7"}, QByteArray("\x08\x00\x03\x00WP7", 7)},
        {{QORBNAME, 1, Form::Text, "Smith"}, QByteArray("\x05\x00Smith", 7)},
        {{SWR2, 13, Form::Integer, {}, 2}, QByteArray("\x02\x00", 2)},
    };
    for (const Change& change : changes) {
        SCOPED_TRACE(Describe(change.slot));
        TempProgramFolder folder;
        CopyStoredSettings(folder);
        ASSERT_TRUE(WriteStoredValue(change.slot));

        const int length = change.slot.file.slotLength;
        const QByteArray slotBytes = change.bytes + QByteArray(length - change.bytes.size(), '\0');
        const QByteArray expected =
            TestDataBytes(NameOf(change.slot.file)).replace(OffsetOf(change.slot), length, slotBytes);
        EXPECT_EQ(folder.bytesOf(NameOf(change.slot.file)), expected);
        for (const SettingsSlotFile& file : kFiles) {
            if (NameOf(file) != NameOf(change.slot.file)) {
                EXPECT_EQ(folder.bytesOf(NameOf(file)), TestDataBytes(NameOf(file))) << file.name;
            }
        }
    }
}

} // namespace
