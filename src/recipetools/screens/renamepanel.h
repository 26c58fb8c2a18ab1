#pragma once
// The panel "Recipe Name Change": the current name and a box for the new one.
#include <QFrame>

class QLabel;
class QLineEdit;
class QPushButton;

class RenamePanel final : public QFrame {
    Q_OBJECT
public:
    explicit RenamePanel(QWidget* parent);

    void open(const QString& currentName);
    QLineEdit* newNameBox() const { return newName_; }
    QString currentName() const;

signals:
    void saveRequested(const QString& newName);
    void cancelRequested();

private:
    QLabel* current_ = nullptr;
    QLineEdit* newName_ = nullptr;
};
