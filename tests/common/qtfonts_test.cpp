#include "common/widgets/qtfonts.h"

#include <QFontDatabase>
#include <gtest/gtest.h>

#include <utility>

TEST(QtFonts, EveryStyleGoesIntoTheQtFont)
{
    const QFont font = QFontOf(TextFont{QStringLiteral("Liberation Sans"), 13.5, true, true, true, true, 255});
    EXPECT_EQ(font.family(), QStringLiteral("Liberation Sans"));
    EXPECT_EQ(font.pointSizeF(), 13.5);
    EXPECT_TRUE(font.bold());
    EXPECT_TRUE(font.italic());
    EXPECT_TRUE(font.underline());
    EXPECT_TRUE(font.strikeOut());
    EXPECT_EQ(font.hintingPreference(), QFont::PreferNoHinting);
}

TEST(QtFonts, ASizeOfZeroOrLessReadsAsOnePoint)
{
    TextFont font;
    font.size = 0;
    EXPECT_EQ(QFontOf(font).pointSizeF(), 1);
    font.size = -4;
    EXPECT_EQ(QFontOf(font).pointSizeF(), 1);
}

TEST(QtFonts, TheWayBackKeepsEverythingAndTakesTheColour)
{
    const TextFont font{QStringLiteral("Liberation Serif"), 11, false, true, false, true, 0x800000};
    EXPECT_EQ(TextFontOf(QFontOf(font), 0x800000), font);
    EXPECT_EQ(TextFontOf(QFontOf(font), 0).color, 0);
}

TEST(FontStandIns, AClassicNameThatIsNotInstalledIsShownAsTheFaceOfItsMeasures)
{
    for (const auto& [classic, face] : {std::pair{"Times New Roman", "Liberation Serif"},
                                        std::pair{"Arial", "Liberation Sans"},
                                        std::pair{"Courier New", "Liberation Mono"}}) {
        const QString name = QString::fromLatin1(classic);
        if (QFontDatabase::hasFamily(name)) {
            EXPECT_EQ(InstalledFamilyOf(name), name);
            EXPECT_EQ(StoredFamilyOf(name), name);
        } else {
            ASSERT_TRUE(QFontDatabase::hasFamily(QString::fromLatin1(face))) << face;
            EXPECT_EQ(InstalledFamilyOf(name), QString::fromLatin1(face));
            EXPECT_EQ(StoredFamilyOf(QString::fromLatin1(face)), name);
        }
    }
}

TEST(FontStandIns, OtherNamesAreLeftAsTheyAre)
{
    EXPECT_EQ(InstalledFamilyOf(QStringLiteral("No Such Face")), QStringLiteral("No Such Face"));
    EXPECT_EQ(StoredFamilyOf(QStringLiteral("DejaVu Sans")), QStringLiteral("DejaVu Sans"));
}
