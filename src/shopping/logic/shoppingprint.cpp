#include "shopping/logic/shoppingprint.h"

#include "common/blanktext.h"
#include "common/numberformat.h"
#include "print/logic/pagebuilder.h"
#include "shopping/logic/datebox.h"
#include "shopping/logic/groceryentry.h"

namespace {

// A column is full when the next line would come closer than this to the
// paper's bottom edge.
constexpr double kBottomRoom = 400;
// Every fifth item is followed by this much room, the divider line, and a
// little more.
constexpr int kItemsPerDivider = 5;
constexpr double kRoomBeforeDivider = 10;
constexpr double kRoomAfterDivider = 3;
// The worksheet's rules run this far in from the paper's edges.
constexpr double kRuleInset = 5;
// More ruled lines than any page could take: a measure that does not move
// down cannot rule for ever.
constexpr int kMostWorksheetLines = 2000;

const QString kTickBox = QStringLiteral("[   ]");
const QString kItemField = QStringLiteral("!") + QString(28, u'@');
constexpr int kLongestShownName = 27;

void WriteAt(PageBuilder& page, double x, const QString& text)
{
    page.setCurrentX(x);
    page.printLine(text);
}

void WriteCentredAt(PageBuilder& page, double centre, const QString& text)
{
    WriteAt(page, centre - page.textWidth(text) / 2, text);
}

void EmptyLine(PageBuilder& page)
{
    page.printLine(QString());
}

// The two halves of the checklist, at fractions of the page width.
struct Half {
    double headingCentre;  // "Grocery Items"
    double amountCentre;   // "Amount to Purchase" and the amounts
    double itemX;          // the tick boxes
};

Half LeftHalf(double w)
{
    return {w / 6, w / 2.5, w / 100};
}

Half RightHalf(double w)
{
    return {w / 1.38, w / 1.11, w / 1.97};
}

// PrintColumnState: the left half, passing to the right, in the right half.
enum class Column { Left = 0, PassingRight = 2, Right = 3 };

class ListComposer {
public:
    ListComposer(PageBuilder& page, const ShoppingPrintout& list, const TextFont& font)
        : page_(page), list_(list), font_(font)
    {
    }

    void compose()
    {
        page_.setFont(font_);
        page_.startDoc();
        head();
        itemsTop_ = page_.currentY();
        const int last = qMin<int>(list_.entryCount, int(list_.rows.size()));
        for (int row = 1; row <= last; ++row)
            printRow(list_.rows[row - 1]);
        page_.endDoc();
    }

private:
    double width() const { return page_.pageWidth(); }
    bool onLeft() const { return column_ == Column::Left; }
    Half half() const { return onLeft() ? LeftHalf(width()) : RightHalf(width()); }

    // The page's title and date over the left half; the headings of the
    // half being started.
    void head()
    {
        if (onLeft()) {
            page_.setFontSize(font_.size + 2);
            QString title = QStringLiteral("Grocery Shopping List");
            if (!list_.familyName.isEmpty())
                title.prepend(list_.familyName + u' ');
            WriteCentredAt(page_, width() / 2, title);
            if (list_.printDate)
                WriteCentredAt(page_, width() / 2, LongDateOfBox(list_.dateBox));
            else
                EmptyLine(page_);
            EmptyLine(page_);
            columnTop_ = page_.currentY();
            page_.setFontSize(font_.size);
        } else {
            page_.setCurrentY(columnTop_);
        }
        const double rowY = page_.currentY();
        WriteCentredAt(page_, half().headingCentre, QStringLiteral("Grocery Items"));
        page_.setCurrentY(rowY);
        WriteCentredAt(page_, half().amountCentre, QStringLiteral("Amount to Purchase"));
        page_.setCurrentY(page_.currentY() + page_.textHeight());
    }

    void printRow(const GridRow& row)
    {
        if (column_ == Column::PassingRight) {
            column_ = Column::Right;
            page_.setCurrentY(itemsTop_);
        }
        if (IsBlank(row.item))
            return;
        const double rowY = page_.currentY();
        const double itemX = half().itemX;
        WriteAt(page_, itemX, kTickBox + PrintedItemText(row.item));
        if (!IsBlank(row.amount)) {
            page_.setCurrentY(rowY);
            WriteCentredAt(page_, half().amountCentre, row.amount);
        }
        const double lineHeight = page_.textHeight();
        if (page_.currentY() + lineHeight <= page_.pageHeight() - kBottomRoom) {
            countItem(itemX);
        } else if (onLeft()) {
            countItem(itemX);
            column_ = Column::PassingRight;
            head();
            count_ = 0;
        } else {
            page_.newPage();
            column_ = Column::Left;
            head();
            itemsTop_ = page_.currentY();
            count_ = 0;
        }
    }

    void countItem(double itemX)
    {
        if (++count_ < kItemsPerDivider)
            return;
        page_.setCurrentY(page_.currentY() + kRoomBeforeDivider);
        if (list_.dividers) {
            const double y = page_.currentY();
            if (onLeft())
                page_.drawLine(itemX, y, width() / 2, y);
            else
                page_.drawLine(width() / 2, y, width() - 2, y);
        }
        page_.setCurrentY(page_.currentY() + kRoomAfterDivider);
        count_ = 0;
    }

    PageBuilder& page_;
    const ShoppingPrintout& list_;
    TextFont font_;
    Column column_ = Column::Left;
    double columnTop_ = 0;  // where both halves' headings stand
    double itemsTop_ = 0;   // where both halves' items start
    int count_ = 0;
};

void RuleAcross(PageBuilder& page)
{
    page.drawLine(kRuleInset, page.currentY(), page.pageWidth() - kRuleInset, page.currentY());
}

} // namespace

void ComposeShoppingList(PageBuilder& page, const ShoppingPrintout& list, const TextFont& font)
{
    ListComposer(page, list, font).compose();
}

void ComposeShoppingWorksheet(PageBuilder& page, const TextFont& font)
{
    page.setFont(font);
    page.startDoc();
    const double w = page.pageWidth();
    const double top = page.currentY();
    RuleAcross(page);

    page.setFontSize(font.size + 2);
    WriteCentredAt(page, w / 2, QStringLiteral("Shopping List Worksheet"));
    page.setFontSize(font.size);
    RuleAcross(page);

    const double headingY = page.currentY();
    const std::pair<double, const char*> headings[] = {
        {w / 10, "Grocery Item"}, {w / 2.65, "Amount"}, {w / 1.65, "Grocery Item"}, {w / 1.128, "Amount"}};
    for (const auto& [x, text] : headings) {
        page.setCurrentY(headingY);
        WriteAt(page, x, QString::fromLatin1(text));
    }
    RuleAcross(page);

    for (int line = 0; line < kMostWorksheetLines && page.currentY() <= page.pageHeight() - kBottomRoom; ++line) {
        EmptyLine(page);
        RuleAcross(page);
    }
    const double bottom = page.currentY();
    for (const double x : {kRuleInset, w - kRuleInset, w / 3.1, w / 2, w / 1.99, w / 1.2})
        page.drawLine(x, top, x, bottom);
    page.endDoc();
}

bool HasPrintableRows(const QList<GridRow>& rows, int entryCount)
{
    const auto anyItem = [&rows](int last) {
        for (int row = 1; row <= qMin<int>(last, int(rows.size())); ++row) {
            if (!IsBlank(rows[row - 1].item))
                return true;
        }
        return false;
    };
    return anyItem(entryCount) && anyItem(int(rows.size()));
}

QString PrintedItemText(QStringView itemCell)
{
    const QString name = LTrim(itemCell);
    if (itemCell.size() >= kLongestShownName)
        return QStringLiteral("   ") + name.left(kGridNameLength);
    return FormatText(name, kItemField);
}

TextFont ListPrintFont(const TextFont& font, const std::function<bool(const QString& family)>& available)
{
    TextFont chosen = font;
    if (chosen.name == u"MS Sans Serif" || chosen.name == u"MS Serif") {
        chosen.name = QStringLiteral("Times New Roman");
        chosen.size = 12;
    }
    if (!available(chosen.name))
        chosen.name = available(QStringLiteral("Times New Roman")) ? QStringLiteral("Times New Roman")
                                                                   : QStringLiteral("Courier");
    return chosen;
}
