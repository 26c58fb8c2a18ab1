#pragma once
#include "common/dialogs.h"

class QWidget;

// The real dialogs: QMessageBox and QInputDialog with the exact title, text,
// icon, buttons and default button asked for; QColorDialog for colours.
class QtDialogs final : public Dialogs {
public:
    Answer ask(const Message& message) override;
    QString input(const InputRequest& request) override;
    void openUrl(const QUrl& url) override;
    std::optional<qint32> chooseColor(qint32 initial) override;
};
