#include "storage/logic/storageprint.h"

#include "common/dates.h"
#include "print/logic/pagebuilder.h"
#include "storage/logic/storagecalc.h"

#include <span>

namespace {

constexpr double kFiveColumnDivisors[] = {2.4, 1.75, 1.35, 1.1};
constexpr double kAllColumnDivisors[] = {3.0, 2.33, 1.86, 1.53, 1.31, 1.16, 1.05};
// The item column stands a fortieth of the page in; the heading starts half
// an inch down.
constexpr double kItemDivisor = 40;
constexpr double kTopOfPage = 720;

const char* const kPrintHeadings[kStorageColumns][3] = {
    {"Storage", "Item"},          {"Number", "In", "Family"},  {"Amount", "Per", "Person"},
    {"Total", "Amount", "Needed"}, {"Amount", "On", "Hand"},   {"Last", "Action", "Date"},
    {"Last", "Action", "Added"},  {"Last", "Action", "Used"},
};
constexpr int kHeadingLines = 3;

bool AllColumns(StoragePrintChoice choice)
{
    return choice == StoragePrintChoice::AllColumns || choice == StoragePrintChoice::OnHandAllColumns;
}

bool OnlyOnHand(StoragePrintChoice choice)
{
    return choice == StoragePrintChoice::OnHandFiveColumns || choice == StoragePrintChoice::OnHandAllColumns;
}

// Writes one line of the form: the item at its place, the other columns
// centred on theirs; the position moves down one line.
class FormWriter {
public:
    FormWriter(PageBuilder& page, const StoragePrintSettings& settings) : page_(page), settings_(settings)
    {
        const double width = page_.pageWidth();
        const std::span<const double> divisors = AllColumns(settings.choice)
                                                     ? std::span<const double>(kAllColumnDivisors)
                                                     : std::span<const double>(kFiveColumnDivisors);
        for (const double divisor : divisors)
            centres_.append(width / divisor);
    }

    int columns() const { return int(centres_.size()) + 1; }

    void writeLine(const QStringList& cells)
    {
        const double y = page_.currentY();
        for (int column = 0; column < columns(); ++column) {
            const QString text = cells.value(column) == kNotApplicable ? QString() : cells.value(column);
            if (text.isEmpty())
                continue;
            const double x = column == kItemColumn ? itemX()
                                                   : centres_[column - 1] - page_.textWidth(text) / 2;
            page_.setCurrentY(y);
            page_.setCurrentX(x);
            page_.printLine(text);
        }
        page_.setCurrentY(y + page_.textHeight());
    }

    void rule()
    {
        if (!settings_.gridLines)
            return;
        const double y = page_.currentY();
        page_.drawLine(itemX(), y, page_.pageWidth() - itemX(), y);
    }

    void writePageHeading(const QString& caption, QDate today)
    {
        page_.setCurrentY(kTopOfPage);
        page_.setFont(settings_.font);
        page_.setFontBold(true);
        page_.setFontSize(settings_.font.size + 2);
        writeCentred(caption);
        page_.setFont(settings_.font);
        if (settings_.asOfDate)
            writeCentred(QStringLiteral("As of  ") + LongDate(today));
        page_.printLine(QString());
        page_.setFontBold(true);
        for (int line = 0; line < kHeadingLines; ++line) {
            QStringList words;
            for (int column = 0; column < columns(); ++column) {
                const char* word = kPrintHeadings[column][line];
                words.append(word ? QString::fromLatin1(word) : QString());
            }
            writeLine(words);
        }
        page_.setFontBold(false);
        rule();
    }

private:
    double itemX() const { return page_.pageWidth() / kItemDivisor; }

    void writeCentred(const QString& text)
    {
        page_.setCurrentX(page_.pageWidth() / 2 - page_.textWidth(text) / 2);
        page_.printLine(text);
    }

    PageBuilder& page_;
    const StoragePrintSettings& settings_;
    QList<double> centres_;
};

} // namespace

QStringList StoragePrintChoiceCaptions()
{
    return {QStringLiteral("Complete Form (First 5 Columns)"), QStringLiteral("Complete Form (All 8 Columns)"),
            QStringLiteral("Only Lines w/OnHand Data(5 Cols.)"), QStringLiteral("Only Lines w/OnHand Data(All Cols.)")};
}

void ComposeStoragePages(PageBuilder& page, const QString& caption, const StorageTable& table,
                         const StoragePrintSettings& settings, QDate today)
{
    page.setFont(settings.font);
    page.zeroMargins();
    page.setIndentLeft(0);
    page.setIndentRight(0);
    page.startDoc();
    FormWriter form(page, settings);
    const QString heading = caption.trimmed();
    form.writePageHeading(heading, today);
    bool pageHasRows = false;
    for (int row = 1; row <= kStorageRows; ++row) {
        if (OnlyOnHand(settings.choice) && !HasOnHandData(table, row))
            continue;
        if (pageHasRows && page.currentY() >= page.pageHeight() - kStorageBottomReserve) {
            page.newPage();
            form.writePageHeading(heading, today);
        }
        form.writeLine(table.rowTexts(row));
        form.rule();
        pageHasRows = true;
    }
    page.endDoc();
}
