#include "tracker/logic/trackerprint.h"

#include "common/dates.h"
#include "print/logic/pagebuilder.h"

namespace {

constexpr double kInch = PageBuilder::kTwipsPerInch;
// The page's edges: the right one is where right-aligned texts end.
constexpr double kLeftMargin = 360;
constexpr double kTopMargin = 360;
constexpr double kRightMarginPortrait = 320;
constexpr double kRightMarginLandscape = 240;
// Limits of the table's rows: on its first page, then on the others.
constexpr double kFirstPageReservePortrait = 1800;
constexpr double kFirstPageReserveLandscape = 2200;
constexpr double kOtherPagesReserve = 320;
// The table's four columns start at these shares of the page width.
constexpr double kColumnStarts[] = {0, 0.3, 0.5, 0.7};
constexpr const char* kTableHeadings[2][4] = {
    {"Date of", "Current", "Change from", "Beginning Weight"},
    {"Weigh In", "Weight", "Last Entry", "Difference"},
};

struct Layout {
    PageBuilder& page;
    const TrackerPrintout& printout;
    bool landscape;

    double rightEdge() const
    {
        return page.pageWidth() - (landscape ? kRightMarginLandscape : kRightMarginPortrait);
    }
    double columnX(int column) const
    {
        return kLeftMargin + kColumnStarts[column] * (rightEdge() - kLeftMargin);
    }

    // Texts on one line: each at its x, the position then on the next line.
    void line(std::initializer_list<std::pair<double, QString>> texts)
    {
        const double y = page.currentY();
        for (const auto& [x, text] : texts) {
            page.setCurrentY(y);
            page.setCurrentX(x);
            page.printLine(text);
        }
    }
    void centred(const QString& text) { line({{(page.pageWidth() - page.textWidth(text)) / 2, text}}); }
    double rightAligned(const QString& text) const { return rightEdge() - page.textWidth(text); }
    void bold(bool on) { page.setFontBold(on); }

    void heading();
    void graph();
    void plan();
    void photos();
    // True when the table took more than one page. A trial stops at the
    // first page break: it only asks whether there is one.
    enum class Run { Trial, Whole };
    bool table(bool pagedHeading, Run run);
    void tableHeading(bool pagedHeading);
};

void Layout::heading()
{
    bold(true);
    centred(printout.name);
    if (printout.goalReached) {
        page.setTextColor(kGoalLineColor);
        centred(QStringLiteral("GOAL WEIGHT ACHIEVED"));
        page.setTextColor(printout.font.color);
    }
    bold(false);
    const QString printed = QStringLiteral("Printed: ") + LongDate(printout.today);
    line({{kLeftMargin, QStringLiteral("Weight Tracker Printout")}, {rightAligned(printed), printed}});
    const TrackerFields& f = printout.fields;
    const QString begun = QStringLiteral("Beginning Date: ") + f.beginningDate;
    const QString weight = QStringLiteral("Beginning Weight:") + f.beginningWeight;
    const QString goal = QStringLiteral("Goal Weight:") + f.goalWeight;
    line({{kLeftMargin, begun}, {(page.pageWidth() - page.textWidth(weight)) / 2, weight}, {rightAligned(goal), goal}});
}

void Layout::graph()
{
    // The picture starts above the current line, by 700 twips in portrait;
    // in landscape it takes a page of its own, 300 twips up.
    double left = .07, width = 7.9, rise = 700;
    if (landscape) {
        page.newPage();
        left = .3;
        width = 9.9;
        rise = 300;
    } else {
        page.printLine(QString());
        page.printLine(QString());
        page.printLine(QString());
    }
    const double top = qMax(0.0, page.currentY() - rise);
    const double height = width * printout.chartAspect;
    page.drawPicture(printout.chartFile, left, top / kInch, width, height);
    page.setCurrentY(top + height * kInch);
    page.setCurrentX(kLeftMargin);
    page.printLine(QString());
}

void Layout::plan()
{
    const TrackerFields& f = printout.fields;
    page.printLine(QString());
    bold(true);
    line({{kLeftMargin, QStringLiteral("Exercise Plan and Information")}});
    line({{kLeftMargin, QStringLiteral("Exercise Plan:")}});
    bold(false);
    const std::pair<const char*, QString> planLines[] = {
        {"Average Number of Days Per Week:", f.daysPerWeek},
        {"Average Time Per Exercise Period:", f.timePerPeriod},
        {"Types of Exercise:", f.exerciseTypes},
    };
    for (const auto& [caption, value] : planLines)
        line({{kLeftMargin, QString::fromLatin1(caption) + QStringLiteral("   ") + value}});
    if (!f.comments.trimmed().isEmpty()) {
        page.printLine(QString());
        bold(true);
        line({{kLeftMargin, QStringLiteral("Additional Comments")}});
        bold(false);
        page.setCurrentX(kLeftMargin);
        page.printParagraph(f.comments);
    }
    if (printout.checks.beginningPicture || printout.checks.currentPicture)
        photos();
}

// Where the photographs stand, by how many are checked and the orientation
// (inches): x of the beginning photo, x of the current one, width, height.
struct PhotoPlace {
    double beginningX, currentX, width, height;
};

void Layout::photos()
{
    const TrackerPrintChecks& c = printout.checks;
    const bool both = c.beginningPicture && c.currentPicture;
    PhotoPlace place{2.125, 2.125, 4, 2};
    if (both)
        place = landscape ? PhotoPlace{1.15, 5.8, 3.3, 2.3} : PhotoPlace{.125, 3.9, 4, 2};
    else if (landscape)
        place = {3.6, 3.6, 3.3, c.currentPicture ? 2.35 : 2.3};
    page.printLine(QString());
    bold(true);
    line({{kLeftMargin, QStringLiteral("Beginning and Current Photos")}});
    bold(false);
    const double top = page.currentY();
    double bottom = top;
    const auto photo = [&](const QString& file, double x, const QString& caption, const QString& date) {
        const double heightTwips = place.height * kInch;
        page.drawPicture(file, x, top / kInch, place.width, place.height);
        if (c.borders)
            page.drawRect(x * kInch, top, place.width * kInch, heightTwips);
        const QString text = date == QLatin1String(kPhotoDatePlaceholder) ? caption : caption + date;
        page.setCurrentY(top + heightTwips);
        line({{x * kInch, text}});
        bottom = qMax(bottom, page.currentY());
    };
    const TrackerFields& f = printout.fields;
    if (c.beginningPicture)
        photo(f.beginningPicture, place.beginningX, QStringLiteral("Beginning Photo: "), f.beginningPhotoDate);
    if (c.currentPicture)
        photo(f.currentPicture, place.currentX, QStringLiteral("Current Photo: "), f.currentPhotoDate);
    page.setCurrentY(bottom);
    page.setCurrentX(kLeftMargin);
}

void Layout::tableHeading(bool pagedHeading)
{
    bold(true);
    const QString title = pagedHeading
                              ? QStringLiteral("Weight Tracker Data - Page ") + QString::number(page.pageNumber())
                              : QStringLiteral("Weight Tracker Data");
    line({{kLeftMargin, title}});
    for (const auto& headings : kTableHeadings) {
        line({{columnX(0), QString::fromLatin1(headings[0])},
              {columnX(1), QString::fromLatin1(headings[1])},
              {columnX(2), QString::fromLatin1(headings[2])},
              {columnX(3), QString::fromLatin1(headings[3])}});
    }
    bold(false);
}

bool Layout::table(bool pagedHeading, Run run)
{
    const int firstPage = page.pageNumber();
    page.printLine(QString());
    tableHeading(pagedHeading);
    for (const WeighInRow& row : printout.rows) {
        if (row.date.trimmed().isEmpty() && row.weight.trimmed().isEmpty())
            continue;
        const double reserve = page.pageNumber() != firstPage ? kOtherPagesReserve
                               : landscape                   ? kFirstPageReserveLandscape
                                                             : kFirstPageReservePortrait;
        if (page.currentY() > page.pageHeight() - reserve) {
            if (run == Run::Trial)
                return true;
            page.newPage();
            tableHeading(pagedHeading);
        }
        line({{columnX(0), row.date},
              {columnX(1), ShownWeightText(row.weight)},
              {columnX(2), ShownWeightText(row.change)},
              {columnX(3), ShownWeightText(row.difference)}});
        if (printout.checks.dividers)
            page.drawLine(kLeftMargin, page.currentY(), rightEdge(), page.currentY());
    }
    return page.pageNumber() != firstPage;
}

} // namespace

void ComposeTrackerPrintout(PageBuilder& page, const TrackerPrintout& printout)
{
    const bool landscape = page.pageWidth() > page.pageHeight();
    page.setFont(printout.font);
    page.setMargins(kLeftMargin, kTopMargin, landscape ? kRightMarginLandscape : kRightMarginPortrait,
                    kOtherPagesReserve);
    page.startDoc();
    Layout layout{page, printout, landscape};
    layout.heading();
    if (printout.checks.graph)
        layout.graph();
    if (printout.checks.plan)
        layout.plan();
    if (printout.checks.data) {
        PageBuilder trial(page);
        Layout tried{trial, printout, landscape};
        layout.table(tried.table(false, Layout::Run::Trial), Layout::Run::Whole);
    }
    page.endDoc();
}
