#pragma once
// The field with the keyboard has the light yellow background of colour 14
// of the classic table, on every screen. Its text is then dark whatever the
// desktop's colours, so that a dark theme's light text does not vanish on
// the yellow.
class QWidget;

void ShowFocusColour(QWidget* field);
// Back to the desktop's own colours.
void ClearFocusColour(QWidget* field);
// Shows the focus colour on `field` whenever it has the keyboard, for
// fields that need nothing else done when they gain or lose it.
void ShowFocusColourWhileFocused(QWidget* field);
