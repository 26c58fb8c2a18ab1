#pragma once
// The panel over the recipe screen while an older recipe file is converted:
// what is going on, and a bar that counts the slots passed.
#include "cookbook/logic/olddatabase.h"
#include "shell/kit/overlaypanel.h"

class QProgressBar;

class ConversionPanel final : public OverlayPanel {
    Q_OBJECT
public:
    explicit ConversionPanel(QWidget* parent);

    // Shows the panel with its first text and the bar at the start, and
    // gives it the keyboard: the commands under it are about to be held.
    void start();
    // What the conversion tells as it goes: the bar follows the slots, the
    // end is shown a second, and "Conversion Complete" two more.
    OldConversionSteps steps();

    QProgressBar* progressBar() const { return bar_; }

private:
    QProgressBar* bar_ = nullptr;
};
