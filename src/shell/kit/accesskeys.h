#pragma once
// Access keys of a window as users expect them. Where a menu title and a
// screen button share a letter (the main screen's "&Help" menu and "&Help"
// button), Alt and the letter press the button, which is what the eye is on;
// the menu still opens with a click or F10, which opens the menu bar as on
// other desktops.
#include <QObject>

class QMainWindow;

class AccessKeys final : public QObject {
    Q_OBJECT
public:
    explicit AccessKeys(QMainWindow* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QMainWindow* window_;
};
