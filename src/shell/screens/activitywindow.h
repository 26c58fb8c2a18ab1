#pragma once
// An activity screen opened from the main screen (the recipe file, the food
// guide and the others). It tells the main screen when it has closed, so the
// main screen can take the focus back.
#include <QMainWindow>

class ActivityWindow : public QMainWindow {
    Q_OBJECT
public:
    using QMainWindow::QMainWindow;

signals:
    // The screen has closed for good (its exit checks have passed).
    void closed();
};
