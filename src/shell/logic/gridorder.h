#pragma once
// The order in which a grid's header sort puts its cells, after the old
// grid's generic sort: numbers by value, dates by date (a weigh-in of
// "March 05, 2006" before one of "November 12, 2006"), other text with case
// ignored. Empty cells come first, so an ascending sort brings the blank rows
// to the top, which the screens that sort count on; then numbers, dates and
// text, each kind apart, so that any mix of cells still has one order.
#include <QStringView>

bool GridCellLess(QStringView left, QStringView right);
