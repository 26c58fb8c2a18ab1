#pragma once
// The "Display Options" frame of a printing screen: guide lines on the
// preview or not, remembered in the screen's slot.
#include "shell/settings/settingsslots.h"

#include <QGroupBox>

class Dialogs;
class QRadioButton;

class GuideLineOptions final : public QGroupBox {
    Q_OBJECT
public:
    GuideLineOptions(Dialogs& dialogs, const SettingsSlot& slot, QWidget* parent = nullptr);

    // Selects the stored option without writing it back, and tells it.
    void load();

    bool guideLinesOn() const;
    // 0 "Do Not Display Guide Lines", 1 "Display Guide Lines".
    QRadioButton* option(int index) const;

signals:
    // On load and on every choice of the user.
    void guideLinesChanged(bool on);

private:
    void chosen(int index);

    Dialogs& dialogs_;
    SettingsSlot slot_;
    QRadioButton* options_[2] = {};
    bool loading_ = false;  // set while load() selects: the choice is not written
};
