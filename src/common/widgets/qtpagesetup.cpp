#include "common/widgets/qtpagesetup.h"

#include <QPageSize>
#include <QSizeF>

namespace {
constexpr double kTwipsPerPoint = 20;
}

QPageLayout PageLayoutOf(const PageSetup& setup)
{
    const QPageSize paper(QSizeF(setup.paperWidth / kTwipsPerPoint, setup.paperHeight / kTwipsPerPoint),
                          QPageSize::Point, QString(), QPageSize::FuzzyOrientationMatch);
    return QPageLayout(paper,
                       setup.orientation == PageOrientation::Portrait ? QPageLayout::Portrait : QPageLayout::Landscape,
                       QMarginsF(0, 0, 0, 0));
}

PageSetup PageSetupOf(const QPageLayout& layout)
{
    const QSizeF points = layout.pageSize().size(QPageSize::Point);
    PageSetup setup;
    setup.paperWidth = qMin(points.width(), points.height()) * kTwipsPerPoint;
    setup.paperHeight = qMax(points.width(), points.height()) * kTwipsPerPoint;
    setup.orientation =
        layout.orientation() == QPageLayout::Portrait ? PageOrientation::Portrait : PageOrientation::Landscape;
    return setup;
}
