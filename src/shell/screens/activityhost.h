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
class QWidget;

class ActivityHost final : public QObject {
    Q_OBJECT
public:
    using Factory = std::function<ActivityWindow*()>;

    explicit ActivityHost(QWidget* mainWindow);

    // Opens the activity, or brings it to the front when it is open.
    void open(const Factory& factory);
    // The activity open now, if any.
    ActivityWindow* current() const;

signals:
    void activityClosed();

private:

    QWidget* mainWindow_;
    QPointer<ActivityWindow> current_;
};
