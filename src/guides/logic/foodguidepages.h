#pragma once
// The food guide: five fixed reference pages, each a title, a list of columns
// (heading and width as a share of the grid) and a table of text cells. The
// texts are kept exactly as the guide has always printed them, misspellings
// included ("Teenages", "yogart"): users know them that way.
#include <QList>
#include <QString>
#include <QStringList>

inline constexpr int kFoodGuidePageCount = 5;

// Pages by number, 1 to 5, in the order of the screen's buttons.
enum class FoodGuidePage {
    FoodGuide = 1,
    CommonMeasures,
    MenuIdeas,
    HelpfulHints,
    HealthySubstitutes,
};

struct GuideColumn {
    QString heading;
    double share = 0;   // of the grid's width; a page's shares add up to 1
};

struct GuidePage {
    QString title;              // shown above the grid
    QList<GuideColumn> columns;
    QList<QStringList> rows;    // every row has one cell per column; "" is an empty cell
};

// The page of that number; an out-of-range number gives the first page.
const GuidePage& FoodGuidePageOf(FoodGuidePage page);
const GuidePage& FoodGuidePageOf(int page);

// The window caption: the family name, when one is set, then " Food Guide".
QString FoodGuideCaption(const QString& familyName);

// Pixel widths of the page's columns on a grid `gridWidth` pixels wide, by
// their shares. The last column takes what rounding leaves, so the widths
// always fill the grid exactly.
QList<int> ColumnWidthsByShare(const GuidePage& page, int gridWidth);
