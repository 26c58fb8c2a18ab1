#pragma once
// Whether the texts of a screen can be read: every shown label and button
// caption against what lies under it, whatever palette the desktop gives.
#include <QPalette>
#include <QStringList>

class QWidget;

// A desktop with a dark theme: light text on dark windows and boxes.
QPalette DarkDesktopPalette();

// One line per text whose colour is too close to its background (a
// contrast ratio under 3 to 1); empty when all can be read.
QStringList UnreadableTexts(QWidget* window);
