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

    // The restore panels, shown while their toolbar is hidden.
    void showTopToolbarRestore(bool shown);
    void showSideToolbarsRestore(bool shown);
    bool topToolbarRestoreShown() const;
    bool sideToolbarsRestoreShown() const;

signals:
    void restoreTopToolbarClicked();
    void restoreSideToolbarsClicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLabel* activity_ = nullptr;
    QLabel* restoreTop_ = nullptr;
    QLabel* restoreSide_ = nullptr;
};
