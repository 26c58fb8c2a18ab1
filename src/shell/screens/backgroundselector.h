#pragma once
// The main screen's background selector: a panel over the main window with
// the sixteen delivered pictures as thumbnails and four commands. A click
// on a thumbnail shows the picture at once; only "Use &Above Background"
// keeps it. The panel has no background of its own to show: it asks the
// main screen to show one (previewBackground) or to take one
// (backgroundChosen, already stored).
#include "shell/logic/background.h"

#include <QFrame>
#include <functional>

class Dialogs;
class QLabel;
class QPushButton;

class BackgroundSelector final : public QFrame {
    Q_OBJECT
public:
    // The help topic while the panel is open.
    static constexpr int kHelpTopic = 1001;
    static constexpr int kThumbnailCount = kBackgroundPictureCount;

    // The panel lies over `area`, centred on it.
    BackgroundSelector(Dialogs& dialogs, QWidget* area);

    // Where a chosen background is kept: the main background's slot, unless
    // a screen keeps its choice elsewhere (the shopping list's grid).
    using Store = std::function<void(const Background& chosen)>;
    void setStore(Store store) { store_ = std::move(store); }

    // "&Background Selector": opens the panel on the current background, or
    // closes it when it is open.
    void toggle(const Background& current);
    bool isOpen() const { return !isHidden(); }

    QLabel* thumbnail(int index) const;
    // The frame that marks the chosen picture.
    QFrame* marker() const { return marker_; }
    // "WP" and a number once a thumbnail was clicked, else empty.
    QString choice() const { return choice_; }

signals:
    void previewBackground(const Background& background);
    void backgroundChosen(const Background& background);
    // The status bar's activity text.
    void activityChanged(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildPanel();
    void open();
    void closePanel();
    void loadThumbnails();
    void freeThumbnails();
    void mark(int index);
    void unmark();
    void thumbnailClicked(int index);
    void centre();
    bool pictureInUse() const;
    qint32 currentColor() const;

    void selectColorBackground();
    void useDefaultBackground();
    void useAboveBackground();
    void cancel();

    Dialogs& dialogs_;
    QWidget* area_;
    Background current_;
    QString choice_;
    Store store_ = StoreBackground;
    QLabel* thumbnails_[kThumbnailCount] = {};
    QFrame* marker_ = nullptr;
    QPushButton* useAbove_ = nullptr;
};
