#pragma once
// The panel "Recipe Name Change": the current name and a box for the new one.
#include "shell/kit/overlaypanel.h"

class QLabel;
class QLineEdit;

class RenamePanel final : public OverlayPanel {
    Q_OBJECT
public:
    explicit RenamePanel(QWidget* parent);

    void open(const QString& currentName);
    QLineEdit* newNameBox() const { return newName_; }
    QString currentName() const;

signals:
    void saveRequested(const QString& newName);

private:
    QLabel* current_ = nullptr;
    QLineEdit* newName_ = nullptr;
};
