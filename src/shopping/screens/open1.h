#pragma once
// Open1, the chooser of a saved shopping list: the "*.lst" files of the
// program folder, names in any case, and a box to type a name. Its caption
// says what the choice is for. OK with a name that names no file tells the
// user and stays open.
#include "shopping/screens/listchooser.h"

#include <QDialog>

class Dialogs;
class QLineEdit;
class QListWidget;
class QPushButton;

class Open1 final : public QDialog {
    Q_OBJECT
public:
    Open1(Dialogs& dialogs, ListChoice choice, QWidget* parent = nullptr);

    static QString captionFor(ListChoice choice);

    // The file chosen once the dialog is accepted; empty otherwise.
    QString chosen() const { return chosen_; }
    QListWidget* fileList() const { return files_; }
    QLineEdit* nameBox() const { return name_; }
    QPushButton* okButton() const { return ok_; }
    QPushButton* cancelButton() const { return cancel_; }

public slots:
    void accept() override;

private:
    Dialogs& dialogs_;
    QListWidget* files_ = nullptr;  // File1
    QLineEdit* name_ = nullptr;     // Text1
    QPushButton* ok_ = nullptr;
    QPushButton* cancel_ = nullptr;
    QString chosen_;
};

// The chooser of the real program: "Nothing" without a word when there is
// no list file, else Open1 shown modally.
class Open1Chooser final : public ListChooser {
public:
    Open1Chooser(Dialogs& dialogs, QWidget* parent) : dialogs_(dialogs), parent_(parent) {}
    QString chooseList(ListChoice choice) override;

private:
    Dialogs& dialogs_;
    QWidget* parent_;
};
