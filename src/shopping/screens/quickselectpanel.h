#pragma once
// The "Quick Select Screen" over the shopping list: 90 common groceries as
// check boxes under five headings. Checks left when the panel closes without
// adding stay for its next opening.
#include "shell/kit/overlaypanel.h"

#include <QList>

class QCheckBox;
class QGroupBox;

class QuickSelectPanel final : public OverlayPanel {
    Q_OBJECT
public:
    enum CommandIndex { kAddAll = 0, kLeave };

    explicit QuickSelectPanel(QWidget* parent);

    // Shows the panel, the keyboard on the leave command.
    void open();
    // The captions of the checked boxes, left-trimmed, in box order; the
    // boxes are unchecked.
    QStringList takeChecked();

    QCheckBox* choice(int index) const { return choices_.value(index); }
    QPushButton* command(int index) const { return commands_.value(index); }
    QList<QWidget*> colouredPanels() const;

signals:
    void addRequested();
    void leaveRequested();

private:
    void refreshAdd();

    QList<QGroupBox*> groups_;       // Frame2(0..4)
    QList<QCheckBox*> choices_;      // Check2(0..89)
    QList<QPushButton*> commands_;   // Command7(0..1)
};
