#pragma once
// Sizes in the settings and in page layouts are twips, 1440 to the inch; the
// screen maps them to pixels by its logical resolution.
class QWidget;

int TwipsToPixels(int twips, const QWidget* widget);
int PixelsToTwips(int pixels, const QWidget* widget);
