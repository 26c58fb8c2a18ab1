#pragma once
// The weight tracker's printout, composed on a PageBuilder: a heading block
// (the name, the goal line, the printed date, the beginning date and the
// two weights), then as checked the graph picture, the exercise plan with
// the comments and the photographs, and the table of weigh-ins.
//
// The table's heading reads "Weight Tracker Data" when the whole table
// stands on one page, else "Weight Tracker Data - Page " and the page
// number on each of its pages. On the table's first page a new page starts
// once a row ends past the page height less 1800 twips (2200 in landscape),
// on the following pages past the page height less 320.
#include "common/textfont.h"
#include "tracker/logic/weighins.h"

#include <QDate>

class PageBuilder;

// The printout's own checks on the print options panel.
struct TrackerPrintChecks {
    bool data = true;               // "Weight Tracker Data"
    bool plan = true;               // "Plan Information"
    bool beginningPicture = false;  // "Picture(Beginning)"
    bool currentPicture = false;    // "Picture(Current)"
    bool graph = false;             // "Print Graph"
    bool dividers = false;          // "Divider Lines"
    bool borders = false;           // "Print Border Lines"
};

struct TrackerPrintout {
    QString name;
    bool goalReached = false;
    QDate today;
    TrackerFields fields;
    QList<WeighInRow> rows;
    // The graph exported as a picture, drawn at the width of the page; its
    // height follows the picture's proportions.
    QString chartFile;
    double chartAspect = 0.5;       // height / width
    TrackerPrintChecks checks;
    TextFont font;
};

inline constexpr qint32 kGoalLineColor = 16711680;   // blue

void ComposeTrackerPrintout(PageBuilder& page, const TrackerPrintout& printout);
