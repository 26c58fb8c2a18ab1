#pragma once
// A field with the keyboard has the light yellow of the colour table (colour
// 14) behind its text, and its own background again once it loses it.
class QWidget;

void HighlightOnFocus(QWidget* field);
