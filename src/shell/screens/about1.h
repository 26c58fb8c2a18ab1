#pragma once
// The about box: name, version, maker and picture, with a link to the
// maker's web site.
#include <QDialog>

class Dialogs;

inline constexpr char kMakerWebAddress[] = "https://www.tollenmark.example/brindlepot";

class About1 final : public QDialog {
    Q_OBJECT
public:
    About1(Dialogs& dialogs, QWidget* parent);

private:
    void openWebSite();
    bool eventFilter(QObject* watched, QEvent* event) override;

    Dialogs& dialogs_;
};
