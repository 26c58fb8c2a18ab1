#pragma once
// The status bar of an activity screen. Panel 1 tells the activity in
// progress ("Panel Color", "Delete Recipe", "Loading"); two more panels,
// hidden unless a toolbar is hidden, restore the toolbars when clicked.
#include <QStatusBar>

class QLabel;

class ScreenStatusBar final : public QStatusBar {
    Q_OBJECT
public:
    explicit ScreenStatusBar(QWidget* parent = nullptr);

    void setActivity(const QString& text);
    QString activity() const;

signals:
    void restoreTopToolbarClicked();
    void restoreSideToolbarsClicked();

private:
    QLabel* activity_ = nullptr;
};
