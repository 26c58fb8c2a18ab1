#pragma once
// The raised panel every screen is made of: a frame in the screen's panel
// colour, with a raised edge of `lineWidth` pixels.
class QFrame;
class QString;
class QWidget;

QFrame* MakeRaisedPanel(const QString& objectName, QWidget* parent, int lineWidth = 1);
// Gives an existing frame (a label, a panel class) the same look.
void MakeRaised(QFrame* frame, int lineWidth = 1);
