#pragma once
// The panel colour of one screen: applying the stored colour when the screen
// loads, the "Panel C&olor" command, and the question on closing. Every
// screen names its slot and the widgets that take the colour.
#include "shell/logic/panelcolor.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QPointer>

class Dialogs;
class QWidget;
class ScreenStatusBar;

class PanelColors final : public QObject {
    Q_OBJECT
public:
    PanelColors(Dialogs& dialogs, const SettingsSlot& slot, ScreenStatusBar* statusBar, QObject* parent);

    // A panel, frame or option group that takes the colour.
    void addPanel(QWidget* panel);

    // Reads the slot and colours the panels; clears the changed flags.
    void applyStored();
    // "Panel C&olor": the question, the colour dialog, the conflict test.
    void choosePanelColor();
    // On closing the screen: asks "Save changes made to Panel Color?" when
    // the colour was changed, stores it on Yes and offers it to all screens.
    void offerToStoreOnClose();

    bool changed() const { return changed_; }
    bool isDefault() const { return isDefault_; }
    QColor color() const { return color_; }

    // The system's standard panel colour: what a hidden standard label shows.
    static QColor systemColor();
    // The colour of the panels' own text, which the panels may not take.
    QColor textColor() const;

private:
    void paint(const QColor& color);

    Dialogs& dialogs_;
    SettingsSlot slot_;
    QPointer<ScreenStatusBar> statusBar_;
    QList<QPointer<QWidget>> panels_;
    QColor color_;
    bool changed_ = false;    // PanelColorChanged
    bool isDefault_ = false;  // PanelColorIsDefault
};
