#pragma once
// The panels that open over the recipe screen (rename, titles, calculator,
// search) share one look: a raised panel in the screen's panel colour with a
// bold title at the top.
class QFrame;
class QLabel;
class QString;

// Gives `panel` that look and returns its title label, not yet laid out.
QLabel* MakeOverlayPanel(QFrame* panel, const QString& title);
// Sizes the panel to its contents and brings it up over the screen.
void RaiseOverlayPanel(QFrame* panel);
