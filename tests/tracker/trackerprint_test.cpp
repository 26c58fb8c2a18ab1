// The printout on the recorded page document, measured with round numbers:
// at size 12 a character is 120 twips wide and a line 280 twips high.
#include "tracker/logic/trackerprint.h"

#include "print/logic/pagebuilder.h"
#include "fixed_measurer.h"
#include "tracker_fixture.h"

namespace {

constexpr double kLine = 280;
const QDate kToday(2026, 4, 3);

class TrackerPrintTest : public TrackerFolderTest {
protected:
    TrackerPrintTest()
    {
        printout.name = QStringLiteral("Pat Doe");
        printout.today = kToday;
        printout.font.name = QStringLiteral("Arial");
        printout.font.size = 12;
        printout.fields.beginningDate = QStringLiteral("March 02, 2026");
        printout.fields.beginningWeight = QStringLiteral("210");
        printout.fields.goalWeight = QStringLiteral("180");
        printout.fields.daysPerWeek = QStringLiteral("3");
        printout.fields.timePerPeriod = QStringLiteral("45 minutes");
        printout.fields.exerciseTypes = QStringLiteral("Walking");
        printout.fields.beginningPhotoDate = QStringLiteral("March 02, 2026");
        printout.fields.currentPhotoDate = QString::fromLatin1(kPhotoDatePlaceholder);
        printout.fields.beginningPicture = QStringLiteral("/p/before.jpg");
        printout.fields.currentPicture = QStringLiteral("/p/now.jpg");
        printout.chartFile = QStringLiteral("Chartxxx.jpg");
        printout.rows = samples::DailyWeighIns(3);
        ComputeColumns(printout.rows, printout.fields.beginningWeight);
    }

    PageDocument compose(PageOrientation orientation = PageOrientation::Portrait)
    {
        PageSetup setup;
        setup.orientation = orientation;
        PageBuilder page(measurer, setup);
        ComposeTrackerPrintout(page, printout);
        return page.document();
    }

    static QList<PictureItem> Pictures(const Page& page)
    {
        QList<PictureItem> pictures;
        for (const PageItem& item : page.items) {
            if (const auto* picture = std::get_if<PictureItem>(&item))
                pictures.append(*picture);
        }
        return pictures;
    }
    static int Count(const Page& page, auto kind)
    {
        int count = 0;
        for (const PageItem& item : page.items)
            count += std::holds_alternative<decltype(kind)>(item);
        return count;
    }

    FixedMeasurer measurer;
    TrackerPrintout printout;
};

} // namespace

TEST_F(TrackerPrintTest, TheHeadingBlock)
{
    const PageDocument document = compose();
    const Page& page = document.pages[0];
    const TextItem* name = page.findText(QStringLiteral("Pat Doe"));
    ASSERT_NE(name, nullptr);
    EXPECT_TRUE(name->font.bold);
    EXPECT_DOUBLE_EQ(name->x, (12240 - 7 * 120) / 2.0);
    EXPECT_EQ(page.findText(QStringLiteral("GOAL WEIGHT ACHIEVED")), nullptr);
    const QString printed = QStringLiteral("Printed: ") + LongDate(kToday);
    const TextItem* date = page.findText(printed);
    ASSERT_NE(date, nullptr);
    EXPECT_DOUBLE_EQ(date->x + date->width, 12240 - 320);
    EXPECT_DOUBLE_EQ(date->y, name->y + kLine);
    EXPECT_FALSE(date->font.bold);
    const TextItem* title = page.findText(QStringLiteral("Weight Tracker Printout"));
    ASSERT_NE(title, nullptr);
    EXPECT_DOUBLE_EQ(title->y, date->y);
    const QList<TextItem> captions = page.textsAt(date->y + kLine);
    ASSERT_EQ(captions.size(), 3);
    EXPECT_EQ(captions[0].text, "Beginning Date: March 02, 2026");
    EXPECT_EQ(captions[1].text, "Beginning Weight:210");
    EXPECT_DOUBLE_EQ(captions[1].x + captions[1].width / 2, 12240 / 2.0);
    EXPECT_EQ(captions[2].text, "Goal Weight:180");
    EXPECT_DOUBLE_EQ(captions[2].x + captions[2].width, 12240 - 320);
}

TEST_F(TrackerPrintTest, TheGoalLineIsBoldBlueAndCentred)
{
    printout.goalReached = true;
    const PageDocument document = compose(PageOrientation::Landscape);
    const TextItem* goal = document.pages[0].findText(QStringLiteral("GOAL WEIGHT ACHIEVED"));
    ASSERT_NE(goal, nullptr);
    EXPECT_TRUE(goal->font.bold);
    EXPECT_EQ(goal->font.color, kGoalLineColor);
    EXPECT_DOUBLE_EQ(goal->x, (15840 - 20 * 120) / 2.0);
    const TextItem* printed = document.pages[0].findText(QStringLiteral("Printed: ") + LongDate(kToday));
    ASSERT_NE(printed, nullptr);
    EXPECT_EQ(printed->font.color, 0);
    EXPECT_DOUBLE_EQ(printed->x + printed->width, 15840 - 240);
}

TEST_F(TrackerPrintTest, TheGraphInPortraitStands700TwipsAboveTheLineAcrossThePage)
{
    printout.checks.graph = true;
    printout.checks.plan = false;
    const PageDocument document = compose();
    const QList<PictureItem> pictures = Pictures(document.pages[0]);
    ASSERT_EQ(pictures.size(), 1);
    EXPECT_EQ(pictures[0].file, "Chartxxx.jpg");
    EXPECT_DOUBLE_EQ(pictures[0].left, .07 * 1440);
    EXPECT_DOUBLE_EQ(pictures[0].width, 7.9 * 1440);
    EXPECT_DOUBLE_EQ(pictures[0].height, 7.9 * 1440 * printout.chartAspect);
    const TextItem* captions = document.pages[0].findText(QStringLiteral("Beginning Date: March 02, 2026"));
    // Three empty lines under the captions, then 700 twips up.
    EXPECT_DOUBLE_EQ(pictures[0].top, captions->y + 4 * kLine - 700);
    const TextItem* table = document.pages[0].findText(QStringLiteral("Weight Tracker Data"));
    ASSERT_NE(table, nullptr);
    EXPECT_GT(table->y, pictures[0].top + pictures[0].height);
}

TEST_F(TrackerPrintTest, TheGraphInLandscapeTakesANewPage300TwipsUp)
{
    printout.checks.graph = true;
    const PageDocument document = compose(PageOrientation::Landscape);
    ASSERT_GE(document.pageCount(), 2);
    EXPECT_TRUE(Pictures(document.pages[0]).isEmpty());
    const QList<PictureItem> pictures = Pictures(document.pages[1]);
    ASSERT_EQ(pictures.size(), 1);
    EXPECT_DOUBLE_EQ(pictures[0].left, .3 * 1440);
    EXPECT_DOUBLE_EQ(pictures[0].width, 9.9 * 1440);
    const QList<TextItem> texts = document.pages[1].texts();
    ASSERT_FALSE(texts.isEmpty());
    EXPECT_DOUBLE_EQ(pictures[0].top, 360 - 300) << "300 twips above the page's first line";
    EXPECT_GT(texts.first().y, pictures[0].top + pictures[0].height);
}

TEST_F(TrackerPrintTest, ThePlanLinesAndComments)
{
    printout.fields.comments = QStringLiteral("Knees first.");
    const QStringList texts = compose().allTexts();
    for (const char* text : {"Exercise Plan and Information", "Exercise Plan:", "Average Number of Days Per Week:   3",
                             "Average Time Per Exercise Period:   45 minutes", "Types of Exercise:   Walking",
                             "Additional Comments", "Knees first."})
        EXPECT_TRUE(texts.contains(QString::fromLatin1(text))) << text;
    printout.fields.comments.clear();
    EXPECT_FALSE(compose().allTexts().contains(QStringLiteral("Additional Comments")));
}

TEST_F(TrackerPrintTest, WithNeitherPictureCheckedThePhotoHeadingDoesNotPrint)
{
    const PageDocument document = compose();
    EXPECT_FALSE(document.allTexts().contains(QStringLiteral("Beginning and Current Photos")));
    EXPECT_TRUE(Pictures(document.pages[0]).isEmpty());
}

TEST_F(TrackerPrintTest, PhotoPlacesByCountAndOrientation)
{
    const struct {
        const char* name;
        bool beginning, current;
        PageOrientation orientation;
        double x, width, height;
    } cases[] = {
        {"beginning, portrait", true, false, PageOrientation::Portrait, 2.125, 4, 2},
        {"current, portrait", false, true, PageOrientation::Portrait, 2.125, 4, 2},
        {"beginning, landscape", true, false, PageOrientation::Landscape, 3.6, 3.3, 2.3},
        {"current, landscape", false, true, PageOrientation::Landscape, 3.6, 3.3, 2.35},
        {"both, portrait", true, true, PageOrientation::Portrait, .125, 4, 2},
        {"both, landscape", true, true, PageOrientation::Landscape, 1.15, 3.3, 2.3},
    };
    for (const auto& row : cases) {
        printout.checks.beginningPicture = row.beginning;
        printout.checks.currentPicture = row.current;
        const PageDocument document = compose(row.orientation);
        EXPECT_TRUE(document.allTexts().contains(QStringLiteral("Beginning and Current Photos"))) << row.name;
        const QList<PictureItem> pictures = Pictures(document.pages[0]);
        ASSERT_EQ(pictures.size(), row.beginning + row.current) << row.name;
        EXPECT_DOUBLE_EQ(pictures[0].left, row.x * 1440) << row.name;
        EXPECT_DOUBLE_EQ(pictures[0].width, row.width * 1440) << row.name;
        EXPECT_DOUBLE_EQ(pictures[0].height, row.height * 1440) << row.name;
    }
    EXPECT_DOUBLE_EQ(Pictures(compose(PageOrientation::Landscape).pages[0])[1].left, 5.8 * 1440);
    EXPECT_DOUBLE_EQ(Pictures(compose().pages[0])[1].left, 3.9 * 1440);
}

TEST_F(TrackerPrintTest, PhotoCaptionsLeaveThePlaceholderOutAndBordersAreOptional)
{
    printout.checks.beginningPicture = true;
    printout.checks.currentPicture = true;
    PageDocument document = compose();
    EXPECT_TRUE(document.allTexts().contains(QStringLiteral("Beginning Photo: March 02, 2026")));
    EXPECT_TRUE(document.allTexts().contains(QStringLiteral("Current Photo: ")));
    EXPECT_EQ(Count(document.pages[0], RectItem{}), 0);
    printout.checks.borders = true;
    document = compose();
    EXPECT_EQ(Count(document.pages[0], RectItem{}), 2);
}

TEST_F(TrackerPrintTest, TheTableSkipsBlankRowsAndShowsOneDecimal)
{
    printout.rows.insert(1, WeighInRow{});
    printout.checks.dividers = true;
    const PageDocument document = compose();
    const Page& page = document.pages[0];
    const TextItem* heading = page.findText(QStringLiteral("Weight Tracker Data"));
    ASSERT_NE(heading, nullptr);
    EXPECT_TRUE(heading->font.bold);
    const QList<TextItem> line1 = page.textsAt(heading->y + kLine);
    ASSERT_EQ(line1.size(), 4);
    EXPECT_EQ(line1[3].text, "Beginning Weight");
    const QList<TextItem> line2 = page.textsAt(heading->y + 2 * kLine);
    ASSERT_EQ(line2.size(), 4);
    EXPECT_EQ(line2[2].text, "Last Entry");
    const QList<TextItem> first = page.textsAt(heading->y + 3 * kLine);
    ASSERT_EQ(first.size(), 4);
    EXPECT_EQ(first[1].text, "200.");
    EXPECT_EQ(first[2].text, "N/A");
    const QList<TextItem> second = page.textsAt(heading->y + 4 * kLine);
    ASSERT_EQ(second.size(), 4);
    EXPECT_EQ(second[0].text, printout.rows[2].date);
    EXPECT_EQ(second[2].text, "-.1");
    EXPECT_EQ(Count(page, LineItem{}), 3);
}

TEST_F(TrackerPrintTest, ALongTableBreaksPagesAndNumbersItsHeadings)
{
    printout.rows = samples::DailyWeighIns(200);
    for (const PageOrientation orientation : {PageOrientation::Portrait, PageOrientation::Landscape}) {
        const PageDocument document = compose(orientation);
        ASSERT_GT(document.pageCount(), 2);
        const double height = document.pageHeight;
        const double firstLimit = orientation == PageOrientation::Portrait ? 1800 : 2200;
        for (int p = 0; p < document.pageCount(); ++p) {
            const QString heading = QStringLiteral("Weight Tracker Data - Page %1").arg(p + 1);
            EXPECT_NE(document.pages[p].findText(heading), nullptr) << heading.toStdString();
            EXPECT_NE(document.pages[p].findText(QStringLiteral("Date of")), nullptr);
            double lowest = 0;
            for (const TextItem& text : document.pages[p].texts())
                lowest = qMax(lowest, text.y);
            // A row starts only while the line is within the limit.
            EXPECT_LE(lowest, height - (p == 0 ? firstLimit : 320) + 1) << p;
        }
        EXPECT_FALSE(document.allTexts().contains(QStringLiteral("Weight Tracker Data")));
    }
}
