// Random-access record files, slot value forms, Windows-1252 and the
// case-blind name resolver.
#include "common/cp1252.h"
#include "common/programfolder.h"
#include "common/randomaccessfile.h"
#include "common/slotvalues.h"
#include "temp_program_folder.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>
#include <random>

TEST(RandomAccessFile, OpeningAMissingFileCreatesItEmpty)
{
    TempProgramFolder folder;
    RandomAccessFile file("New.db1", 60);
    EXPECT_TRUE(file.isOpen());
    EXPECT_TRUE(QFile::exists(folder.filePath("New.db1")));
    EXPECT_EQ(file.recordCount(), 0);
}

TEST(RandomAccessFile, ReadingPastTheEndGivesZeroBytes)
{
    TempProgramFolder folder;
    folder.writeBytes("Short.fil", "abcdefg");
    RandomAccessFile file("Short.fil", 5);
    EXPECT_EQ(file.recordCount(), 2);
    EXPECT_EQ(file.read(1), "abcde");
    EXPECT_EQ(file.read(2), QByteArray("fg\0\0\0", 5));
    EXPECT_EQ(file.read(3), QByteArray(5, '\0'));
    EXPECT_EQ(file.read(0), QByteArray(5, '\0'));
    EXPECT_EQ(file.read(-4), QByteArray(5, '\0'));
    EXPECT_EQ(folder.bytesOf("Short.fil"), "abcdefg") << "reading changes nothing";
}

TEST(RandomAccessFile, ReadRecordsInOneBlock)
{
    TempProgramFolder folder;
    folder.writeBytes("Block.fil", "aabbcc");
    RandomAccessFile file("Block.fil", 2);
    EXPECT_EQ(file.readRecords(2, 4), QByteArray("bbcc\0\0\0\0", 8));
}

TEST(RandomAccessFile, WritingPastTheEndExtendsWithZeros)
{
    TempProgramFolder folder;
    {
        RandomAccessFile file("Grow.fil", 4);
        ASSERT_TRUE(file.write(3, "xy"));
    }
    EXPECT_EQ(folder.bytesOf("Grow.fil"), QByteArray(8, '\0') + QByteArray("xy\0\0", 4));
}

TEST(RandomAccessFile, WritingNeverShrinksAndTouchesOnlyItsRecord)
{
    TempProgramFolder folder;
    folder.writeBytes("Keep.fil", "111122223333");
    {
        RandomAccessFile file("Keep.fil", 4);
        ASSERT_TRUE(file.write(2, "ab"));
        EXPECT_FALSE(file.write(0, "zz"));
    }
    EXPECT_EQ(folder.bytesOf("Keep.fil"), QByteArray("1111ab\0\0" "3333", 12));
}

TEST(RandomAccessFile, APartWriteLeavesTheRestOfItsRecord)
{
    TempProgramFolder folder;
    folder.writeBytes("Part.fil", "111122223333");
    {
        RandomAccessFile file("Part.fil", 4);
        ASSERT_TRUE(file.writePart(2, "ab"));
        EXPECT_FALSE(file.writePart(0, "zz"));
    }
    EXPECT_EQ(folder.bytesOf("Part.fil"), "1111ab223333");
}

TEST(RandomAccessFile, APartWritePastTheEndEndsTheFileAtItsLastByte)
{
    TempProgramFolder folder;
    {
        RandomAccessFile file("Tail.fil", 5);
        ASSERT_TRUE(file.writePart(3, "xyz"));
        ASSERT_TRUE(file.writePart(1, "abcdefgh")) << "cut to one record";
    }
    EXPECT_EQ(folder.bytesOf("Tail.fil"), QByteArray("abcde\0\0\0\0\0xyz", 13));
}

TEST(RandomAccessFile, APartWriteIntoAFolderFails)
{
    TempProgramFolder folder;
    ASSERT_TRUE(QDir().mkdir("Dir.fil"));
    RandomAccessFile file("Dir.fil", 5);
    EXPECT_FALSE(file.writePart(1, "abc"));
}

TEST(RandomAccessFile, ARecordTooLongIsCutToTheRecordLength)
{
    TempProgramFolder folder;
    {
        RandomAccessFile file("Cut.fil", 3);
        ASSERT_TRUE(file.write(1, "abcdef"));
    }
    EXPECT_EQ(folder.bytesOf("Cut.fil"), "abc");
}

TEST(Cp1252, EveryByteRoundTrips)
{
    QByteArray all;
    for (int b = 0; b < 256; ++b)
        all.append(char(b));
    EXPECT_EQ(ToCp1252(FromCp1252(all)), all);
}

TEST(Cp1252, TheCharactersThatDifferFromLatin1)
{
    const struct {
        char16_t unicode;
        unsigned char byte;
    } rows[] = {{0x20AC, 0x80}, {0x2026, 0x85}, {0x2019, 0x92}, {0x201C, 0x93}, {0x2014, 0x97},
                {0x0153, 0x9C}, {0x00E9, 0xE9}, {0x00FC, 0xFC}, {0x00BD, 0xBD}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.byte);
        EXPECT_EQ(ToCp1252(QString(QChar(row.unicode))), QByteArray(1, char(row.byte)));
        EXPECT_EQ(FromCp1252(QByteArray(1, char(row.byte))), QString(QChar(row.unicode)));
    }
}

TEST(Cp1252, CharactersOutsideTheCodePageBecomeQuestionMarks)
{
    EXPECT_EQ(ToCp1252(u"Crème 日本"), QByteArray("Cr\xE8me ??"));
}

TEST(SlotValues, TextLengthIsCheckedAgainstTheSlot)
{
    EXPECT_EQ(DecodeSlotText(QByteArray("\x03\x00" "abc", 5)), "abc");
    EXPECT_EQ(DecodeSlotText(QByteArray("\x04\x00" "abc", 5)), "") << "a length past the slot";
    EXPECT_EQ(DecodeSlotText(QByteArray("\x00\x80" "abc", 5)), "") << "a negative length";
    EXPECT_EQ(DecodeSlotText(QByteArray("\x01", 1)), "");
    EXPECT_EQ(DecodeSlotText({}), "");
}

TEST(SlotValues, TaggedKindsOtherThanThreeAndEightAreEmpty)
{
    EXPECT_EQ(DecodeSlotTagged(QByteArray("\x02\x00\x05\x00", 4)), TaggedValue{});
    EXPECT_EQ(DecodeSlotTagged(QByteArray("\x03\x00\x05\x00", 4)), TaggedValue{}) << "integer cut short";
    EXPECT_EQ(DecodeSlotTagged(QByteArray("\x03\x00\xFF\xFF\xFF\xFF", 6)), TaggedValue(qint32(-1)));
    EXPECT_EQ(DecodeSlotTagged(QByteArray("\x08\x00\x09\x00" "abc", 7)), TaggedValue(QString()))
        << "a text longer than its slot reads as the empty text";
    EXPECT_EQ(EncodeSlotTagged(TaggedValue{}), QByteArray("\x00\x00", 2));
}

TEST(SlotValuesFuzz, RandomBytesNeverCrashTheDecoders)
{
    std::mt19937 random(1252);
    for (int round = 0; round < 2000; ++round) {
        QByteArray bytes(int(random() % 24), '\0');
        for (char& b : bytes)
            b = char(random() & 0xFF);
        EXPECT_LE(DecodeSlotText(bytes).size(), qMax<qsizetype>(0, bytes.size() - 2));
        DecodeSlotInteger(bytes);
        const TaggedValue tagged = DecodeSlotTagged(bytes);
        if (const auto* text = std::get_if<QString>(&tagged)) {
            EXPECT_LE(text->size(), qMax<qsizetype>(0, bytes.size() - 4));
        }
    }
}

TEST(ResolveFileName, AnExistingFileInAnyCaseIsUsed)
{
    TempProgramFolder folder;
    folder.writeBytes("GCOLOR1.FIL", "x");
    EXPECT_EQ(ResolveFileName("GColor1.Fil"), "GCOLOR1.FIL");
    EXPECT_EQ(ResolveFileName("Missing.Fil"), "Missing.Fil") << "a new file gets the name as given";
    folder.writeBytes("GColor1.Fil", "y");
    EXPECT_EQ(ResolveFileName("GColor1.Fil"), "GColor1.Fil") << "an exact match wins";
}
