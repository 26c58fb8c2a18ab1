#pragma once
// Opens the activity screens for the main screen. Each activity is one
// window at a time, placed as the display mode says: in the smaller screen
// mode it takes the main window's place and size, in full screen it opens
// maximised. When it closes, a window that was not maximised hands its
// place back to the main window, and the main screen takes the focus back.
#include <QObject>
#include <QPointer>
#include <functional>

class ActivityWindow;
class QAction;
class QWidget;

class ActivityHost final : public QObject {
    Q_OBJECT
public:
    using Factory = std::function<ActivityWindow*()>;

    explicit ActivityHost(QWidget* mainWindow);

    // Makes `command` open the activity; a command without one stays disabled.
    void add(QAction* command, Factory factory);

signals:
    void activityClosed();

private:
    void open(const Factory& factory);

    QWidget* mainWindow_;
    QPointer<ActivityWindow> current_;
};
