// The settings files: slot forms byte for byte, defaults, files of any case.
#include "common/randomaccessfile.h"
#include "shell/logic/background.h"
#include "shell/settings/settingsslots.h"
#include "temp_program_folder.h"
#include "raw_slots.h"

#include <QFile>
#include <gtest/gtest.h>
#include <random>

namespace {

QByteArray Zeros(int count)
{
    return QByteArray(count, '\0');
}

// The bytes of a file whose only written slot is `slot`.
QByteArray FileWithSlot(int slotLength, int slot, const QByteArray& value)
{
    return Zeros((slot - 1) * slotLength) + value + Zeros(slotLength - int(value.size()));
}

struct FileRow {
    SettingsSlotFile file;
    const char* name;
    int slotLength;
};

} // namespace

TEST(SettingsFiles, NamesAndSlotLengthsAreThoseOfTheDataFolder)
{
    const FileRow rows[] = {
        {GColor1, "GColor1.Fil", 20}, {GColor2, "GColor2.Fil", 20}, {GColor3, "GColor3.Fil", 20},
        {GColor4, "GColor4.Fil", 40}, {GQORB1, "GQORB1.Fil", 10},  {QORBNAME, "QORBNAME.FIL", 40},
        {SWR2, "SWR2.fil", 20},
    };
    for (const FileRow& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_STREQ(row.file.name, row.name);
        EXPECT_EQ(row.file.slotLength, row.slotLength);
    }
}

TEST(SettingsFiles, TextSlotIsLengthThenCharacters)
{
    TempProgramFolder folder;
    ASSERT_TRUE(WriteSlotText(GColor3, 35, u"Yes"));
    EXPECT_EQ(folder.bytesOf("GColor3.Fil"), FileWithSlot(20, 35, QByteArray("\x03\x00Yes", 5)));
    EXPECT_EQ(ReadSlotText(GColor3, 35), "Yes");
}

TEST(SettingsFiles, IntegerSlotIsTwoBytesLittleEndian)
{
    TempProgramFolder folder;
    ASSERT_TRUE(WriteSlotInteger(GColor3, 36, 9000));
    EXPECT_EQ(folder.bytesOf("GColor3.Fil"), FileWithSlot(20, 36, QByteArray("\x28\x23", 2)));
    EXPECT_EQ(ReadSlotInteger(GColor3, 36), 9000);
    ASSERT_TRUE(WriteSlotInteger(SWR2, 10, -2));
    EXPECT_EQ(folder.bytesOf("SWR2.fil"), FileWithSlot(20, 10, QByteArray("\xFE\xFF", 2)));
    EXPECT_EQ(ReadSlotInteger(SWR2, 10), -2);
}

TEST(SettingsFiles, TaggedIntegerIsKindThreeThenFourBytes)
{
    TempProgramFolder folder;
    ASSERT_TRUE(WriteSlotTagged(GQORB1, 3, qint32(16711680)));
    EXPECT_EQ(folder.bytesOf("GQORB1.Fil"), FileWithSlot(10, 3, QByteArray("\x03\x00\x00\x00\xFF\x00", 6)));
    EXPECT_EQ(ReadSlotTagged(GQORB1, 3), TaggedValue(qint32(16711680)));
}

TEST(SettingsFiles, TaggedTextIsKindEightThenLengthAndCharacters)
{
    TempProgramFolder folder;
    ASSERT_TRUE(WriteSlotTagged(GQORB1, 3, QString("WP12")));
    EXPECT_EQ(folder.bytesOf("GQORB1.Fil"), FileWithSlot(10, 3, QByteArray("\x08\x00\x04\x00WP12", 8)));
    EXPECT_EQ(ReadSlotTagged(GQORB1, 3), TaggedValue(QString("WP12")));
}

TEST(SettingsFiles, TaggedTextHoldsAtMostSixCharactersInTenByteSlots)
{
    TempProgramFolder folder;
    EXPECT_TRUE(WriteSlotTagged(GQORB1, 3, QString("WP16ab")));
    EXPECT_FALSE(WriteSlotTagged(GQORB1, 3, QString("WP16abc")));
    EXPECT_EQ(ReadSlotTagged(GQORB1, 3), TaggedValue(QString("WP16ab")));
}

TEST(SettingsFiles, TextTooLongForItsSlotIsNotWritten)
{
    TempProgramFolder folder;
    ASSERT_TRUE(WriteSlotText(QORBNAME, 1, u"Smith"));
    EXPECT_FALSE(WriteSlotText(QORBNAME, 1, QString(39, u'x')));
    EXPECT_EQ(ReadSlotText(QORBNAME, 1), "Smith");
    EXPECT_TRUE(WriteSlotText(QORBNAME, 1, QString(38, u'y')));
    EXPECT_EQ(ReadSlotText(QORBNAME, 1), QString(38, u'y'));
}

TEST(SettingsFiles, AccentedTextIsWrittenAsWindows1252)
{
    TempProgramFolder folder;
    ASSERT_TRUE(WriteSlotText(QORBNAME, 1, u"Müller"));
    EXPECT_EQ(folder.bytesOf("QORBNAME.FIL").left(8), QByteArray("\x06\x00M\xFCller", 8));
    EXPECT_EQ(ReadSlotText(QORBNAME, 1), u"Müller");
}

TEST(SettingsFiles, EmptyGColor4ReadsCookbookSlotAsEmptyAndZero)
{
    TempProgramFolder folder;
    folder.writeBytes("GColor4.Fil", {});
    EXPECT_EQ(ReadSlotText(GColor4, 1), QString());
    EXPECT_EQ(ReadSlotInteger(GColor4, 1), 0);
}

TEST(SettingsFiles, DeletedGQORB1GivesTheBlueBackground)
{
    TempProgramFolder folder;
    WriteSlotTagged(GQORB1, 3, QString("WP3"));
    ASSERT_TRUE(QFile::remove(folder.filePath("GQORB1.Fil")));
    const Background background = ReadStoredBackground();
    EXPECT_EQ(background.kind, Background::Kind::Color);
    EXPECT_EQ(background.color, 16711680);
}

TEST(SettingsFiles, SlotsBeyondTheEndReadEmptyAndWritingExtendsTheFile)
{
    TempProgramFolder folder;
    ASSERT_TRUE(WriteSlotText(GColor1, 2, u"Default"));
    EXPECT_EQ(folder.bytesOf("GColor1.Fil").size(), 40);
    EXPECT_EQ(ReadSlotText(GColor1, 83), QString());
    EXPECT_EQ(ReadSlotInteger(GColor1, 90), 0);
    EXPECT_EQ(folder.bytesOf("GColor1.Fil").size(), 40) << "reading never lengthens a file";
    ASSERT_TRUE(WriteSlotText(GColor1, 83, u"1"));
    EXPECT_EQ(folder.bytesOf("GColor1.Fil").size(), 83 * 20);
    EXPECT_EQ(ReadSlotText(GColor1, 2), "Default");
    EXPECT_EQ(ReadSlotText(GColor1, 83), "1");
}

TEST(SettingsFiles, UnknownSlotsAreLeftAsTheyAre)
{
    TempProgramFolder folder;
    const QByteArray original(100 * 20, '\xAB');
    folder.writeBytes("GColor2.Fil", original);
    ASSERT_TRUE(WriteSlotText(GColor2, 25, u"255"));
    const QByteArray after = folder.bytesOf("GColor2.Fil");
    ASSERT_EQ(after.size(), original.size());
    EXPECT_EQ(after.left(24 * 20), original.left(24 * 20));
    EXPECT_EQ(after.mid(25 * 20), original.mid(25 * 20));
    EXPECT_EQ(ReadSlotText(GColor2, 25), "255");
}

TEST(SettingsFiles, MissingFileIsCreatedEmptyOnFirstOpening)
{
    TempProgramFolder folder;
    EXPECT_EQ(ReadSlotText(SWR2, 3), QString());
    EXPECT_TRUE(QFile::exists(folder.filePath("SWR2.fil")));
    EXPECT_EQ(folder.bytesOf("SWR2.fil").size(), 0);
}

TEST(SettingsFiles, LowerCaseSpellingOfGColor4IsTheSameFile)
{
    TempProgramFolder folder;
    folder.writeBytes("Gcolor4.fil", QByteArray("\x02\x00 3", 4));
    EXPECT_EQ(ReadSlotText(GColor4, 1), " 3");
    ASSERT_TRUE(WriteSlotText(GColor4, 1, u" 5"));
    EXPECT_FALSE(QFile::exists(folder.filePath("GColor4.Fil")));
    EXPECT_EQ(folder.bytesOf("Gcolor4.fil").left(4), QByteArray("\x02\x00 5", 4));
}

TEST(SettingsFiles, UpperCaseFilesCopiedFromWindowsAreFound)
{
    TempProgramFolder folder;
    folder.writeBytes("GCOLOR3.FIL", FileWithSlot(20, 35, QByteArray("\x03\x00Yes", 5)));
    EXPECT_EQ(ReadSlotText(GColor3, 35), "Yes");
}

TEST(SettingsFiles, LengthLargerThanTheSlotReadsEmpty)
{
    TempProgramFolder folder;
    folder.writeBytes("QORBNAME.FIL", QByteArray("\x27\x00", 2) + QByteArray(38, 'n'));
    EXPECT_EQ(ReadSlotText(QORBNAME, 1), QString()) << "39 characters cannot stand in a 40-byte slot";
    folder.writeBytes("QORBNAME.FIL", QByteArray("\xFF\xFF", 2) + QByteArray(38, 'n'));
    EXPECT_EQ(ReadSlotText(QORBNAME, 1), QString());
}

TEST(SettingsFilesFuzz, RandomAndTruncatedBytesNeverCrashAReader)
{
    TempProgramFolder folder;
    std::mt19937 random(20061);
    for (int round = 0; round < 300; ++round) {
        QByteArray bytes(int(random() % 200), '\0');
        for (char& b : bytes)
            b = char(random() & 0xFF);
        folder.writeBytes("GQORB1.Fil", bytes);
        for (int slot = 1; slot <= 22; ++slot) {
            const QString text = ReadSlotText(GQORB1, slot);
            EXPECT_LE(text.size(), 8);
            ReadSlotInteger(GQORB1, slot);
            const TaggedValue tagged = ReadSlotTagged(GQORB1, slot);
            if (const auto* t = std::get_if<QString>(&tagged)) {
                EXPECT_LE(t->size(), 6);
            }
        }
        ReadStoredBackground();
    }
}

TEST(Background, StoredForms)
{
    TempProgramFolder folder;
    struct Row {
        const char* name;
        TaggedValue stored;
        Background::Kind kind;
        qint32 color;
        int picture;
    };
    const Row rows[] = {
        {"colour number", qint32(255), Background::Kind::Color, 255, 0},
        {"Def", QString("Def"), Background::Kind::Standard, kDefaultBackgroundColor, 0},
        {"Def with trailing blanks", QString("Def   "), Background::Kind::Standard, kDefaultBackgroundColor, 0},
        {"picture", QString("WP7"), Background::Kind::Picture, kDefaultBackgroundColor, 7},
        {"picture in lower case", QString("wp16"), Background::Kind::Picture, kDefaultBackgroundColor, 16},
        {"colour number as text", QString("255"), Background::Kind::Color, 255, 0},
        {"text that is no colour", QString("1E30"), Background::Kind::Color, 0, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        ASSERT_TRUE(WriteSlotTagged(GQORB1, 3, row.stored));
        const Background background = ReadStoredBackground();
        EXPECT_EQ(background.kind, row.kind);
        EXPECT_EQ(background.color, row.color);
        EXPECT_EQ(background.pictureNumber(), row.picture);
    }
}

TEST(Background, PictureFileIsTheNamePlusJpg)
{
    TempProgramFolder folder;
    WriteSlotTagged(GQORB1, 3, QString("WP4"));
    EXPECT_EQ(ReadStoredBackground().pictureFile(), "WP4.jpg");
}

TEST(Background, LastPanelColorIsDefaultWhenEmpty)
{
    TempProgramFolder folder;
    EXPECT_EQ(ReadLastPanelColor(), "Default");
    WriteSlotText(GColor1, 49, u"65535");
    EXPECT_EQ(ReadLastPanelColor(), "65535");
}
