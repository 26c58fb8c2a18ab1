#include "planner/logic/menuprint.h"

#include "common/dates.h"
#include "common/numbertext.h"
#include "print/logic/pagebuilder.h"
#include "shell/settings/settingsregistry.h"

#include <array>

namespace {

// Room a day needs below it before the page breaks, in twips.
constexpr double kRoomForSavedDay = 1200;
constexpr double kRoomForEmptyDay = 700;
constexpr double kRoomAfterRow = 700;
// Where the page number stands above the bottom, and its largest size.
constexpr double kFootAboveBottom = 200;
constexpr double kLargestFootSize = 10;
// Grid lines keep this far from the paper's edges.
constexpr double kLineInset = 2;
// Column separators start no higher than this.
constexpr double kLowestSeparatorTop = 200;
constexpr int kRememberedBlocks = 100;
constexpr double kBreakfastX = 30;
constexpr double kRowGap = 10;

// One composition: the page, its request, and where the blocks of this
// document began.
class MenuComposer {
public:
    MenuComposer(PageBuilder& page, const MenuPrintRequest& request, const DayReader& read)
        : page_(page), request_(request), read_(read), width_(page.pageWidth()), height_(page.pageHeight())
    {
    }

    void compose()
    {
        page_.setFont(request_.font);
        page_.zeroMargins();
        page_.setIndentLeft(0);
        page_.setIndentRight(0);
        page_.startDoc();
        blockTops_.fill(0);
        blocks_ = 0;
        writeHead();
        for (int i = 0; i <= request_.following; ++i) {
            const QDate day = request_.start.addDays(i);
            const MenuDayRecord record = read_(day);
            if (record.isFull())
                writeSavedDay(day, record);
            else
                writeEmptyDay(day);
        }
        writeFoot();
        page_.endDoc();
    }

private:
    void writeAt(double x, const QString& text)
    {
        page_.setCurrentX(x);
        page_.printLine(text);
    }

    void writeCentredOn(double point, const QString& text) { writeAt(point - page_.textWidth(text) / 2, text); }

    void lineAcross()
    {
        if (request_.gridLines)
            page_.drawLine(kLineInset, page_.currentY(), width_ - kLineInset, page_.currentY());
    }

    void writeHead()
    {
        const double size = request_.font.size;
        page_.setFontSize(size + 2);
        writeCentredOn(width_ / 2, MenuPrintTitle(request_.familyName));
        page_.setFontSize(size - 2);
        if (request_.printDate)
            writeCentredOn(width_ / 2, QStringLiteral("Printed on ") + LongDate(request_.today));
        else
            page_.printLine(QString());
        page_.setFontSize(size);
    }

    void writeFoot()
    {
        if (page_.font().size > kLargestFootSize)
            page_.setFontSize(kLargestFootSize);
        page_.setCurrentY(height_ - kFootAboveBottom);
        writeCentredOn(width_ / 2, QStringLiteral("Page %1").arg(page_.pageNumber()));
        page_.setFontSize(request_.font.size);
    }

    void breakPage()
    {
        writeFoot();
        page_.newPage();
        writeHead();
        lineAcross();
        page_.setFontSize(request_.font.size);
    }

    void writeDayLine(QDate day, const QString& after = QString())
    {
        page_.setFontBold(true);
        writeAt(0, u' ' + LongDate(day) + after);
        page_.setFontBold(false);
    }

    // The day's line, the headings and their grid lines; the block's
    // columns are parted from under the day's line.
    void openBlock(QDate day, bool continued)
    {
        writeDayLine(day, continued ? QStringLiteral(" [Continued]") : QString());
        lineAcross();
        if (blocks_ < kRememberedBlocks)
            blockTops_[size_t(blocks_)] = page_.currentY();
        const double top = page_.currentY();
        const std::array<std::pair<double, QString>, 3> headings = {{
            {width_ / 6.5, QStringLiteral("Breakfast")},
            {width_ / 2.05, QStringLiteral("Lunch")},
            {width_ / 1.22, QStringLiteral("Dinner")},
        }};
        for (const auto& [point, heading] : headings) {
            page_.setCurrentY(top);
            writeCentredOn(point, heading);
        }
        lineAcross();
    }

    void closeBlock()
    {
        const double top = blocks_ < kRememberedBlocks ? blockTops_[size_t(blocks_)] : 0;
        ++blocks_;
        if (!request_.gridLines || top < kLowestSeparatorTop)
            return;
        const double bottom = page_.currentY();
        for (const double x : {width_ / 3.04, width_ / 1.52})
            page_.drawLine(x, top, x, bottom);
    }

    // One printed row: lines i, i + 7 and i + 14 side by side; a row of
    // three blank lines takes no room.
    void writeRow(const MenuDayRecord& record, int row)
    {
        const double top = page_.currentY();
        const double rowHeight = page_.textHeight() + kRowGap;
        const std::array<double, 3> columns = {kBreakfastX, width_ / 2.95, width_ / 1.5};
        bool written = false;
        for (int meal = 0; meal < 3; ++meal) {
            const QString line = record.line(row + meal * kLinesPerMeal);
            if (line.isEmpty())
                continue;
            page_.setCurrentY(top);
            writeAt(columns[size_t(meal)], u' ' + line);
            written = true;
        }
        page_.setCurrentY(written ? top + rowHeight : top);
    }

    void writeSavedDay(QDate day, const MenuDayRecord& record)
    {
        if (page_.currentY() > height_ - kRoomForSavedDay)
            breakPage();
        openBlock(day, false);
        for (int row = 0; row < kLinesPerMeal; ++row) {
            writeRow(record, row);
            if (page_.currentY() > height_ - kRoomAfterRow) {
                closeBlock();
                breakPage();
                if (row < kLinesPerMeal - 1)
                    openBlock(day, true);
                else
                    return;
            }
        }
        closeBlock();
    }

    void writeEmptyDay(QDate day)
    {
        if (page_.currentY() > height_ - kRoomForEmptyDay)
            breakPage();
        const double top = page_.currentY();
        writeDayLine(day);
        page_.setCurrentY(top);
        writeAt(width_ / 2.95, QStringLiteral("No menu items were found for this date."));
    }

    PageBuilder& page_;
    const MenuPrintRequest& request_;
    const DayReader& read_;
    const double width_;
    const double height_;
    // Where each block of the document began, for its column separators.
    std::array<double, kRememberedBlocks> blockTops_{};
    int blocks_ = 0;
};

QString TextOf(const TaggedValue& value)
{
    if (const auto* text = std::get_if<QString>(&value))
        return *text;
    if (const auto* number = std::get_if<qint32>(&value))
        return ShortestText(*number);
    return {};
}

} // namespace

QString MenuPrintTitle(const QString& familyName)
{
    const QString name = familyName.trimmed();
    return (name.isEmpty() ? QString() : name + u' ') + QStringLiteral("Menu Planner");
}

void ComposeMenuPages(PageBuilder& page, const MenuPrintRequest& request, const DayReader& read)
{
    MenuComposer(page, request, read).compose();
}

TextFont MenuPrintFontFrom(const TextFont& current, const TaggedValue& name, const TaggedValue& size)
{
    constexpr double kSmallest = 4;
    constexpr double kLargest = 30;
    constexpr double kOutOfRange = 14;
    TextFont font = current;
    if (const auto* stored = std::get_if<QString>(&name); stored && !stored->trimmed().isEmpty())
        font.name = stored->trimmed();
    if (font.name == QLatin1String("MS Sans Serif") || font.name == QLatin1String("MS Serif"))
        font.name = QStringLiteral("Times New Roman");
    const double points = Val(TextOf(size));
    font.size = points < kSmallest || points > kLargest ? kOutOfRange : points;
    return font;
}

TextFont ReadMenuPrintFont(const TextFont& current)
{
    return MenuPrintFontFrom(current, ReadSlotTagged(Settings::ZcalandarPrintFontName),
                             ReadSlotTagged(Settings::ZcalandarPrintFontSize));
}
