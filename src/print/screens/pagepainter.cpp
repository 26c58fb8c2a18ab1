#include "print/screens/pagepainter.h"

#include "common/widgets/qtcolors.h"
#include "common/widgets/qtfonts.h"
#include "print/logic/pagebuilder.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

namespace {

// Most printers cannot print the outer quarter inch of the paper.
constexpr double kUnprintableBorder = PageBuilder::kTwipsPerInch / 4;

struct ItemPainter {
    QPainter& painter;
    double scale;

    QPointF at(double x, double y) const { return {x * scale, y * scale}; }
    QRectF rect(double left, double top, double width, double height) const
    {
        return {left * scale, top * scale, width * scale, height * scale};
    }

    void operator()(const TextItem& item) const
    {
        // The font is sized for the device: a point is 20 twips.
        QFont font = QFontOf(item.font);
        font.setPixelSize(qMax(1, qRound(item.font.size * 20 * scale)));
        painter.setFont(font);
        painter.setPen(ColorFromColorref(item.font.color));
        const QFontMetricsF metrics(font, painter.device());
        // The text is stretched to its measured width so that every device
        // shows the positions the composition computed.
        const double naturalWidth = metrics.horizontalAdvance(item.text);
        const double wantedWidth = item.width * scale;
        painter.save();
        painter.translate(item.x * scale, item.y * scale + metrics.ascent());
        if (naturalWidth > 0 && wantedWidth > 0)
            painter.scale(wantedWidth / naturalWidth, 1);
        painter.drawText(QPointF(0, 0), item.text);
        painter.restore();
    }
    void operator()(const LineItem& item) const
    {
        painter.setPen(QPen(ColorFromColorref(item.color), qMax(1.0, 15 * scale)));
        painter.drawLine(at(item.x1, item.y1), at(item.x2, item.y2));
    }
    void operator()(const RectItem& item) const
    {
        painter.setPen(QPen(ColorFromColorref(item.color), qMax(1.0, 15 * scale)));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect(item.left, item.top, item.width, item.height));
    }
    void operator()(const PictureItem& item) const
    {
        const QImage picture(item.file);
        if (!picture.isNull())
            painter.drawImage(rect(item.left, item.top, item.width, item.height), picture);
    }
};

void PaintGuideLines(QPainter& painter, const PageDocument& document, double scale)
{
    painter.setPen(QPen(QColor(0, 160, 255), 0, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    const double w = document.pageWidth;
    const double h = document.pageHeight;
    painter.drawRect(QRectF(kUnprintableBorder * scale, kUnprintableBorder * scale,
                            (w - 2 * kUnprintableBorder) * scale, (h - 2 * kUnprintableBorder) * scale));
    painter.drawLine(QPointF(0, h / 2 * scale), QPointF(w * scale, h / 2 * scale));
    painter.drawLine(QPointF(w / 2 * scale, 0), QPointF(w / 2 * scale, h * scale));
}

} // namespace

void PaintPage(QPainter& painter, const PageDocument& document, int index, double unitsPerTwip, bool guideLines)
{
    if (index < 0 || index >= document.pages.size())
        return;
    painter.save();
    painter.setClipRect(QRectF(0, 0, document.pageWidth * unitsPerTwip, document.pageHeight * unitsPerTwip));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const ItemPainter itemPainter{painter, unitsPerTwip};
    for (const PageItem& item : document.pages[index].items)
        std::visit(itemPainter, item);
    if (guideLines)
        PaintGuideLines(painter, document, unitsPerTwip);
    painter.restore();
}

QImage PageImage(const PageDocument& document, int index, double dotsPerInch)
{
    const double scale = dotsPerInch / PageBuilder::kTwipsPerInch;
    QImage image(qMax(1, qRound(document.pageWidth * scale)), qMax(1, qRound(document.pageHeight * scale)),
                 QImage::Format_RGB32);
    image.fill(Qt::white);
    const int dotsPerMeter = qRound(dotsPerInch / 0.0254);
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
    QPainter painter(&image);
    PaintPage(painter, document, index, scale);
    return image;
}

bool RenderPages(QPagedPaintDevice& device, const PageDocument& document, int first, int last)
{
    first = qMax(1, first);
    last = qMin(last, document.pageCount());
    if (first > last)
        return false;
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const double unitsPerTwip = device.logicalDpiX() / PageBuilder::kTwipsPerInch;
    for (int page = first; page <= last; ++page) {
        if (page > first && !device.newPage())
            return false;
        PaintPage(painter, document, page - 1, unitsPerTwip);
    }
    return painter.end();
}
