#include "print/logic/pagebuilder.h"

#include "print/logic/textmeasurer.h"

#include <QRegularExpression>
#include <QStringList>

PageBuilder::PageBuilder(const TextMeasurer& measurer, const PageSetup& page) : measurer_(measurer), page_(page)
{
    startDoc();
}

void PageBuilder::setMargins(double left, double top, double right, double bottom)
{
    marginLeft_ = left;
    marginTop_ = top;
    marginRight_ = right;
    marginBottom_ = bottom;
}

void PageBuilder::startDoc()
{
    document_ = PageDocument{pageWidth(), pageHeight(), {}};
    newPage();
}

void PageBuilder::newPage()
{
    document_.pages.append(Page{});
    x_ = lineStartX();
    y_ = marginTop_;
}

double PageBuilder::textWidth(const QString& text) const
{
    return measurer_.textWidth(font_, text);
}

double PageBuilder::textHeight() const
{
    return measurer_.lineHeight(font_);
}

void PageBuilder::add(PageItem item)
{
    document_.pages.last().items.append(std::move(item));
}

void PageBuilder::writeAt(double x, const QString& text)
{
    if (!text.isEmpty())
        add(TextItem{x, y_, textWidth(text), textHeight(), text, font_});
    y_ += textHeight();
    x_ = lineStartX();
}

void PageBuilder::printLine(const QString& text)
{
    writeAt(x_, text);
}

QStringList PageBuilder::wrapped(const QString& line) const
{
    const double room = lineEndX() - lineStartX();
    QStringList lines;
    QString current;
    // Words keep the blanks in front of them, so a wrapped line reads as typed.
    static const QRegularExpression wordPattern(QStringLiteral("\\s*\\S+"));
    for (auto match = wordPattern.globalMatch(line); match.hasNext();) {
        QString word = match.next().captured();
        if (current.isEmpty())
            word = word.trimmed();
        if (textWidth(current + word) <= room || current.isEmpty()) {
            current += word;
        } else {
            lines.append(current);
            current = word.trimmed();
        }
        // A word wider than the whole line is cut where it reaches the edge.
        while (textWidth(current) > room && current.size() > 1) {
            int fits = 1;
            while (fits < current.size() && textWidth(current.left(fits + 1)) <= room)
                ++fits;
            lines.append(current.left(fits));
            current = current.mid(fits);
        }
    }
    lines.append(current);
    return lines;
}

void PageBuilder::printParagraph(const QString& text)
{
    static const QRegularExpression lineBreak(QStringLiteral("\r\n|\r|\n"));
    for (const QString& line : text.split(lineBreak)) {
        for (const QString& piece : wrapped(line))
            writeAt(lineStartX(), piece);
    }
}

void PageBuilder::drawLine(double x1, double y1, double x2, double y2)
{
    add(LineItem{x1, y1, x2, y2, font_.color});
}

void PageBuilder::drawRect(double left, double top, double width, double height)
{
    add(RectItem{left, top, width, height, font_.color});
}

void PageBuilder::drawPicture(const QString& file, double leftInches, double topInches, double widthInches,
                              double heightInches)
{
    add(PictureItem{leftInches * kTwipsPerInch, topInches * kTwipsPerInch, widthInches * kTwipsPerInch,
                    heightInches * kTwipsPerInch, file});
}
