#pragma once
// The splash picture, centred on the screen once at start. It closes itself
// after four seconds; the main window is usable meanwhile.
#include <QLabel>

class Splash1 final : public QLabel {
    Q_OBJECT
public:
    static constexpr int kShownMilliseconds = 4000;
    explicit Splash1(QWidget* parent = nullptr);
};
