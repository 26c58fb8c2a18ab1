#pragma once
// A composed printout: pages of drawing items in twips from the paper's top
// left corner. The preview paints it, the printer and PDF files get it, the
// clipboard gets one page of it as an image, and tests read it back.
#include "common/textfont.h"

#include <QList>
#include <QString>
#include <variant>

// One line of text; `y` is the top of the line, `height` its line height.
struct TextItem {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    QString text;
    TextFont font;
};

struct LineItem {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    qint32 color = 0;
};

struct RectItem {
    double left = 0, top = 0, width = 0, height = 0;
    qint32 color = 0;
};

// A picture file stretched into a rectangle.
struct PictureItem {
    double left = 0, top = 0, width = 0, height = 0;
    QString file;
};

using PageItem = std::variant<TextItem, LineItem, RectItem, PictureItem>;

struct Page {
    QList<PageItem> items;

    QList<TextItem> texts() const;
    // The lines drawn on the page, in the order drawn.
    QList<LineItem> lines() const;
    // The first text item that reads exactly `text`, or nothing.
    const TextItem* findText(const QString& text) const;
    // The text items on the line whose top is `y` (within a twip), left to right.
    QList<TextItem> textsAt(double y) const;
};

struct PageDocument {
    double pageWidth = 12240;
    double pageHeight = 15840;
    QList<Page> pages;

    int pageCount() const { return pages.size(); }
    // Every text of every page, in the order written: what a reader of the
    // printout finds in it.
    QStringList allTexts() const;
};
