#include "common/widgets/qtdialogs.h"

#include "common/widgets/qtcolors.h"

#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

namespace {

QMessageBox::Icon ToQtIcon(Icon icon)
{
    switch (icon) {
    case Icon::Stop: return QMessageBox::Critical;
    case Icon::Question: return QMessageBox::Question;
    case Icon::Exclamation: return QMessageBox::Warning;
    case Icon::Information: return QMessageBox::Information;
    case Icon::None: break;
    }
    return QMessageBox::NoIcon;
}

struct ButtonChoice {
    QMessageBox::StandardButton qt;
    Answer answer;
};

QList<ButtonChoice> ButtonsOf(Buttons buttons)
{
    switch (buttons) {
    case Buttons::Ok: return {{QMessageBox::Ok, Answer::Ok}};
    case Buttons::OkCancel: return {{QMessageBox::Ok, Answer::Ok}, {QMessageBox::Cancel, Answer::Cancel}};
    case Buttons::YesNoCancel:
        return {{QMessageBox::Yes, Answer::Yes}, {QMessageBox::No, Answer::No}, {QMessageBox::Cancel, Answer::Cancel}};
    case Buttons::YesNo: return {{QMessageBox::Yes, Answer::Yes}, {QMessageBox::No, Answer::No}};
    }
    return {{QMessageBox::Ok, Answer::Ok}};
}

} // namespace

Answer QtDialogs::ask(const Message& message)
{
    QMessageBox box(ToQtIcon(message.icon), message.title, message.text, QMessageBox::NoButton,
                    QApplication::activeWindow());
    const QList<ButtonChoice> choices = ButtonsOf(message.buttons);
    for (int i = 0; i < choices.size(); ++i) {
        QPushButton* button = box.addButton(choices[i].qt);
        if (i + 1 == message.defaultButton)
            box.setDefaultButton(button);
    }
    // Closing the box answers as its cancel button would, or as the only one.
    const bool hasCancel = message.buttons == Buttons::OkCancel || message.buttons == Buttons::YesNoCancel;
    box.setEscapeButton(box.button(hasCancel ? QMessageBox::Cancel : choices.last().qt));
    box.exec();
    const auto clicked = box.standardButton(box.clickedButton());
    for (const ButtonChoice& choice : choices) {
        if (choice.qt == clicked)
            return choice.answer;
    }
    return hasCancel ? Answer::Cancel : choices.last().answer;
}

QString QtDialogs::input(const InputRequest& request)
{
    bool ok = false;
    const QString text = QInputDialog::getText(QApplication::activeWindow(), request.title, request.prompt,
                                               QLineEdit::Normal, request.defaultText, &ok);
    return ok ? text : QString();
}

void QtDialogs::openUrl(const QUrl& url)
{
    QDesktopServices::openUrl(url);
}

std::optional<qint32> QtDialogs::chooseColor(qint32 initial)
{
    QColorDialog dialog(ColorFromColorref(initial), QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return ColorrefFromColor(dialog.selectedColor());
}
