#pragma once
// The Qt page layout of a PageSetup: its paper in the orientation chosen,
// with no margins, since compositions measure from the paper's corner.
#include "common/pagesetup.h"

#include <QPageLayout>

QPageLayout PageLayoutOf(const PageSetup& setup);
// The PageSetup of a Qt page layout, paper held upright.
PageSetup PageSetupOf(const QPageLayout& layout);
