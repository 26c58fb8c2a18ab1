#pragma once
// The print surface that compositions write on. It keeps a current font, four
// margins, a left and right indent and a current position in twips, and
// records what is written into a PageDocument:
//
//   printLine writes one line at the current position, then moves the
//   position to the start of the next line (left margin plus left indent);
//   printParagraph wraps a block of text between the indents. The surface
//   never breaks a page by itself: compositions start new pages where they
//   want them, and lines placed past the bottom are recorded there and fall
//   off the paper.
#include "common/pagesetup.h"
#include "common/textfont.h"
#include "print/logic/pagedocument.h"

class TextMeasurer;

class PageBuilder {
public:
    static constexpr double kTwipsPerInch = 1440;

    explicit PageBuilder(const TextMeasurer& measurer, const PageSetup& page = {});

    double pageWidth() const { return page_.pageWidth(); }
    double pageHeight() const { return page_.pageHeight(); }

    const TextFont& font() const { return font_; }
    void setFont(const TextFont& font) { font_ = font; }
    void setFontName(const QString& name) { font_.name = name; }
    void setFontSize(double size) { font_.size = size; }
    void setFontBold(bool on) { font_.bold = on; }
    void setFontItalic(bool on) { font_.italic = on; }
    void setFontUnderline(bool on) { font_.underline = on; }
    void setFontStrikethru(bool on) { font_.strikethru = on; }
    void setTextColor(qint32 color) { font_.color = color; }

    void setMargins(double left, double top, double right, double bottom);
    void zeroMargins() { setMargins(0, 0, 0, 0); }
    void setIndentLeft(double twips) { indentLeft_ = twips; }
    void setIndentRight(double twips) { indentRight_ = twips; }

    // A fresh document of one empty page, the position at its top left.
    void startDoc();
    void newPage();
    void endDoc() {}
    // 1-based number of the page being written.
    int pageNumber() const { return int(document_.pages.size()); }

    double currentX() const { return x_; }
    double currentY() const { return y_; }
    void setCurrentX(double x) { x_ = x; }
    void setCurrentY(double y) { y_ = y; }

    double textWidth(const QString& text) const;
    double textHeight() const;

    // An empty text only moves the position down a line.
    void printLine(const QString& text);
    void printParagraph(const QString& text);

    void drawLine(double x1, double y1, double x2, double y2);
    void drawRect(double left, double top, double width, double height);
    // A picture file stretched into a rectangle measured in inches.
    void drawPicture(const QString& file, double leftInches, double topInches, double widthInches,
                     double heightInches);

    const PageDocument& document() const { return document_; }

private:
    double lineStartX() const { return marginLeft_ + indentLeft_; }
    double lineEndX() const { return pageWidth() - marginRight_ - indentRight_; }
    void add(PageItem item);
    void writeAt(double x, const QString& text);
    QStringList wrapped(const QString& line) const;

    const TextMeasurer& measurer_;
    PageSetup page_;
    TextFont font_;
    double marginLeft_ = kTwipsPerInch, marginTop_ = kTwipsPerInch;
    double marginRight_ = kTwipsPerInch, marginBottom_ = kTwipsPerInch;
    double indentLeft_ = 0, indentRight_ = 0;
    double x_ = 0, y_ = 0;
    PageDocument document_;
};
