#pragma once
// The paper a document is composed for: its size in twips, held upright,
// and the orientation it is turned to.
#include <QtGlobal>

enum class PageOrientation { Portrait, Landscape };

struct PageSetup {
    // Letter paper, 8.5 by 11 inches.
    double paperWidth = 12240;
    double paperHeight = 15840;
    PageOrientation orientation = PageOrientation::Portrait;

    double pageWidth() const { return orientation == PageOrientation::Portrait ? paperWidth : paperHeight; }
    double pageHeight() const { return orientation == PageOrientation::Portrait ? paperHeight : paperWidth; }

    bool operator==(const PageSetup&) const = default;
};
