#include "print/logic/pagebuilder.h"
#include "print/logic/printfont.h"
#include "print/screens/fontmeasurer.h"

#include "fixed_measurer.h"

#include <gtest/gtest.h>

namespace {

const FixedMeasurer kFixed;

PageBuilder ZeroMarginBuilder(const PageSetup& setup = {})
{
    PageBuilder page(kFixed, setup);
    page.zeroMargins();
    page.startDoc();
    return page;
}

} // namespace

TEST(PageBuilder, DefaultPageIsLetterPortraitInTwips)
{
    PageBuilder page(kFixed);
    EXPECT_EQ(page.pageWidth(), 12240);
    EXPECT_EQ(page.pageHeight(), 15840);
    EXPECT_EQ(page.pageNumber(), 1);
    EXPECT_EQ(page.document().pageWidth, 12240);
}

TEST(PageBuilder, LandscapeTurnsThePaper)
{
    PageSetup setup;
    setup.orientation = PageOrientation::Landscape;
    PageBuilder page(kFixed, setup);
    EXPECT_EQ(page.pageWidth(), 15840);
    EXPECT_EQ(page.pageHeight(), 12240);
    EXPECT_EQ(page.document().pageHeight, 12240);
}

TEST(PageBuilder, StartDocBeginsAtTheMarginsCorner)
{
    PageBuilder page(kFixed);
    page.setMargins(720, 1000, 500, 500);
    page.setIndentLeft(300);
    page.startDoc();
    EXPECT_EQ(page.currentX(), 1020);
    EXPECT_EQ(page.currentY(), 1000);
}

TEST(PageBuilder, PrintLineWritesAtThePositionAndMovesDownALine)
{
    PageBuilder page = ZeroMarginBuilder();
    page.setFontSize(10);
    page.setCurrentX(500);
    page.setCurrentY(2000);
    page.printLine(QStringLiteral("Flour"));
    const TextItem* item = page.document().pages[0].findText(QStringLiteral("Flour"));
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->x, 500);
    EXPECT_EQ(item->y, 2000);
    EXPECT_EQ(item->width, 10 * 10 * 5);
    EXPECT_EQ(item->font.size, 10);
    EXPECT_EQ(page.currentY(), 2000 + 240);
    EXPECT_EQ(page.currentX(), 0);
}

TEST(PageBuilder, EmptyLineOnlyMovesDown)
{
    PageBuilder page = ZeroMarginBuilder();
    page.printLine(QString());
    EXPECT_TRUE(page.document().pages[0].items.isEmpty());
    EXPECT_EQ(page.currentY(), 20 * 12 + 40);
}

TEST(PageBuilder, TextMeasuresComeFromTheCurrentFont)
{
    PageBuilder page = ZeroMarginBuilder();
    page.setFontSize(14);
    EXPECT_EQ(page.textWidth(QStringLiteral("abc")), 420);
    EXPECT_EQ(page.textHeight(), 320);
}

TEST(PageBuilder, FontSettingsGoIntoTheItems)
{
    PageBuilder page = ZeroMarginBuilder();
    page.setFontName(QStringLiteral("Courier"));
    page.setFontBold(true);
    page.setFontItalic(true);
    page.setFontUnderline(true);
    page.setFontStrikethru(true);
    page.setTextColor(255);
    page.printLine(QStringLiteral("x"));
    const TextItem item = page.document().pages[0].texts().at(0);
    EXPECT_EQ(item.font, (TextFont{QStringLiteral("Courier"), 12, true, true, true, true, 255}));
}

TEST(PageBuilder, ParagraphWrapsBetweenTheIndents)
{
    PageBuilder page = ZeroMarginBuilder();
    page.setFontSize(10);  // 100 twips a character
    page.setIndentLeft(700);
    page.setIndentRight(700);
    // Room for 108 characters: 12240 - 1400 = 10840.
    const QString words = QString(QStringLiteral("word ")).repeated(30).trimmed();
    page.printParagraph(words);
    const QList<TextItem> lines = page.document().pages[0].texts();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0].x, 700);
    EXPECT_EQ(lines[1].x, 700);
    EXPECT_EQ(lines[1].y - lines[0].y, 240);
    EXPECT_LE(lines[0].width, 10840);
    EXPECT_EQ(lines[0].text, QString(QStringLiteral("word ")).repeated(21).trimmed());
    EXPECT_EQ(lines[0].text + QLatin1Char(' ') + lines[1].text, words);
}

TEST(PageBuilder, ParagraphKeepsTheLineBreaksTyped)
{
    PageBuilder page = ZeroMarginBuilder();
    page.printParagraph(QStringLiteral("Mix.\r\n\r\nBake."));
    const QList<TextItem> lines = page.document().pages[0].texts();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0].text, QStringLiteral("Mix."));
    EXPECT_EQ(lines[1].text, QStringLiteral("Bake."));
    EXPECT_EQ(lines[1].y - lines[0].y, 2 * 280);
}

TEST(PageBuilder, AWordWiderThanTheLineIsCut)
{
    PageBuilder page = ZeroMarginBuilder();
    page.setFontSize(100);  // 1000 twips a character: 12 fit
    page.printParagraph(QString(30, QLatin1Char('m')));
    const QList<TextItem> lines = page.document().pages[0].texts();
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[0].text.size(), 12);
    EXPECT_EQ(lines[1].text.size(), 12);
    EXPECT_EQ(lines[2].text.size(), 6);
}

TEST(PageBuilder, LinesPastTheBottomStayOnTheirPage)
{
    PageBuilder page = ZeroMarginBuilder();
    page.setCurrentY(15800);
    page.printLine(QStringLiteral("below"));
    page.printParagraph(QStringLiteral("further below"));
    EXPECT_EQ(page.document().pageCount(), 1);
    EXPECT_GT(page.document().pages[0].findText(QStringLiteral("further below"))->y, 15840);
}

TEST(PageBuilder, NewPageStartsAtTheTopMargin)
{
    PageBuilder page(kFixed);
    page.setMargins(100, 200, 0, 0);
    page.startDoc();
    page.printLine(QStringLiteral("one"));
    page.newPage();
    EXPECT_EQ(page.pageNumber(), 2);
    EXPECT_EQ(page.currentY(), 200);
    page.printLine(QStringLiteral("two"));
    ASSERT_EQ(page.document().pageCount(), 2);
    EXPECT_EQ(page.document().pages[1].texts().at(0).text, QStringLiteral("two"));
    EXPECT_EQ(page.document().pages[1].texts().at(0).x, 100);
    EXPECT_EQ(page.document().allTexts(), (QStringList{QStringLiteral("one"), QStringLiteral("two")}));
}

TEST(PageBuilder, StartDocClearsTheDocument)
{
    PageBuilder page = ZeroMarginBuilder();
    page.printLine(QStringLiteral("old"));
    page.newPage();
    page.startDoc();
    EXPECT_EQ(page.document().pageCount(), 1);
    EXPECT_TRUE(page.document().allTexts().isEmpty());
}

TEST(PageBuilder, PictureRectangleIsGivenInInches)
{
    PageBuilder page = ZeroMarginBuilder();
    page.drawPicture(QStringLiteral("cake.jpg"), 2.125, 1, 4, 2);
    const auto* picture = std::get_if<PictureItem>(&page.document().pages[0].items.at(0));
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->left, 3060);
    EXPECT_EQ(picture->top, 1440);
    EXPECT_EQ(picture->width, 5760);
    EXPECT_EQ(picture->height, 2880);
    EXPECT_EQ(picture->file, QStringLiteral("cake.jpg"));
}

TEST(PageBuilder, LinesAndRectanglesTakeTheTextColour)
{
    PageBuilder page = ZeroMarginBuilder();
    page.setTextColor(0xFF0000);
    page.drawLine(1, 2, 3, 4);
    page.drawRect(10, 20, 30, 40);
    const auto& items = page.document().pages[0].items;
    ASSERT_EQ(items.size(), 2);
    const auto line = std::get<LineItem>(items[0]);
    EXPECT_EQ((std::array{line.x1, line.y1, line.x2, line.y2}), (std::array{1.0, 2.0, 3.0, 4.0}));
    EXPECT_EQ(line.color, 0xFF0000);
    const auto rect = std::get<RectItem>(items[1]);
    EXPECT_EQ((std::array{rect.left, rect.top, rect.width, rect.height}), (std::array{10.0, 20.0, 30.0, 40.0}));
}

TEST(PageDocument, LinesAreTheLinesDrawnInTheirOrderAndNothingElse)
{
    PageBuilder page = ZeroMarginBuilder();
    page.drawLine(1, 2, 3, 4);
    page.printLine(QStringLiteral("text"));
    page.drawRect(10, 20, 30, 40);
    page.drawLine(5, 6, 7, 8);
    const QList<LineItem> lines = page.document().pages[0].lines();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ((std::array{lines[0].x1, lines[0].y1, lines[0].x2, lines[0].y2}), (std::array{1.0, 2.0, 3.0, 4.0}));
    EXPECT_EQ((std::array{lines[1].x1, lines[1].y1, lines[1].x2, lines[1].y2}), (std::array{5.0, 6.0, 7.0, 8.0}));
}

TEST(PageDocument, TextsAtALineReadLeftToRight)
{
    PageBuilder page = ZeroMarginBuilder();
    page.setCurrentX(5000);
    page.printLine(QStringLiteral("right"));
    page.setCurrentY(0);
    page.setCurrentX(100);
    page.printLine(QStringLiteral("left"));
    const QList<TextItem> line = page.document().pages[0].textsAt(0);
    ASSERT_EQ(line.size(), 2);
    EXPECT_EQ(line[0].text, QStringLiteral("left"));
    EXPECT_EQ(line[1].text, QStringLiteral("right"));
}

TEST(FontMeasurer, MeasuresInTwipsAlikeEveryTime)
{
    const FontMeasurer measurer;
    const TextFont font;
    const double width = measurer.textWidth(font, QStringLiteral("Recipe Yields: 4 Serving(s)"));
    EXPECT_GT(width, 0);
    EXPECT_EQ(measurer.textWidth(font, QStringLiteral("Recipe Yields: 4 Serving(s)")), width);
    // A 12-point line is somewhat more than 240 twips high.
    EXPECT_GT(measurer.lineHeight(font), 240);
    EXPECT_LT(measurer.lineHeight(font), 400);
    TextFont twice = font;
    twice.size = 24;
    EXPECT_NEAR(measurer.textWidth(twice, QStringLiteral("nnnn")), 2 * measurer.textWidth(font, QStringLiteral("nnnn")),
                0.05 * measurer.textWidth(twice, QStringLiteral("nnnn")));
}

TEST(AutoSize, GrowsWhileTheLineIsNarrowerThanThePage)
{
    TextFont font;
    font.size = 8;
    // 96 letters at 10 twips a point: 960 twips a point; 12240 / 960 = 12.75.
    EXPECT_EQ(AutoSizeFontSize(kFixed, font, QString(96, QLatin1Char('n')), 12240), 12);
}

TEST(AutoSize, ShrinksWhileTheLineIsWiderThanThePage)
{
    TextFont font;
    font.size = 30;
    EXPECT_EQ(AutoSizeFontSize(kFixed, font, QString(96, QLatin1Char('n')), 12240), 12);
    // Landscape: 15840 / 960 = 16.5.
    EXPECT_EQ(AutoSizeFontSize(kFixed, font, QString(96, QLatin1Char('n')), 15840), 16);
}

TEST(AutoSize, AFractionalSizeIsCutToAWholeNumber)
{
    TextFont font;
    font.size = 10.5;
    // 10.5 grows to 12.5 (12000 twips), which still fits; 13.5 would not.
    EXPECT_EQ(AutoSizeFontSize(kFixed, font, QString(96, QLatin1Char('n')), 12240), 12);
}

TEST(AutoSize, ALineThatFitsExactlyKeepsItsSize)
{
    TextFont font;
    font.size = 10;
    EXPECT_EQ(AutoSizeFontSize(kFixed, font, QString(96, QLatin1Char('n')), 9600), 10);
}

TEST(AutoSize, AnEmptyLineCannotStepForEver)
{
    TextFont font;
    EXPECT_GT(AutoSizeFontSize(kFixed, font, QString(), 12240), 12);
}

TEST(AutoSize, SamePageAndFontGiveTheSameSizeEveryRun)
{
    const FontMeasurer measurer;
    TextFont font;
    const int first = AutoSizeFontSize(measurer, font, QString(96, QLatin1Char('n')), 12240);
    for (int run = 0; run < 5; ++run)
        EXPECT_EQ(AutoSizeFontSize(measurer, font, QString(96, QLatin1Char('n')), 12240), first);
    EXPECT_GT(first, 4);
    EXPECT_LT(first, 30);
    TextFont check = font;
    check.size = first;
    EXPECT_LE(measurer.textWidth(check, QString(96, QLatin1Char('n'))), 12240);
    check.size = first + 1;
    EXPECT_GT(measurer.textWidth(check, QString(96, QLatin1Char('n'))), 12240);
}
