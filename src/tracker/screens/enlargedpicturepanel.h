#pragma once
// A photograph at its natural size, fitted to the screen it opens over, with
// its heading, the line "Date Taken: " and the date when one was given, and
// "&Close".
#include "shell/kit/overlaypanel.h"

class QLabel;
class QPushButton;

class EnlargedPicturePanel final : public OverlayPanel {
    Q_OBJECT
public:
    explicit EnlargedPicturePanel(QWidget* parent);

    // `date` is left out while it is the placeholder.
    void showPicture(const QString& heading, const QString& path, const QString& date);
    QLabel* picture() const { return picture_; }
    QLabel* dateLine() const { return date_; }
    QPushButton* closeButton() const { return close_; }

private:
    QLabel* picture_ = nullptr;
    QLabel* date_ = nullptr;
    QPushButton* close_ = nullptr;
};
