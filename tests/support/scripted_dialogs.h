#pragma once
// The test double of Dialogs: a script of expected prompts with their answers.
// A prompt that the script does not expect fails the test; every prompt shown
// is recorded so tests can assert exact titles, texts, buttons and defaults.
#include "common/dialogs.h"

#include <QList>
#include <deque>
#include <optional>
#include <variant>

class ScriptedDialogs final : public Dialogs {
public:
    ~ScriptedDialogs() override;

    // Expect a message box with this title and text; answer it with `answer`.
    void expectMessage(const QString& title, const QString& text, Answer answer = Answer::Ok);
    // Expect an input box with this title; type `reply` (empty = Cancel).
    void expectInput(const QString& title, const QString& reply);
    // Expect the colour dialog; pick `reply`, or cancel it with nothing.
    void expectColor(std::optional<qint32> reply);

    Answer ask(const Message& message) override;
    QString input(const InputRequest& request) override;
    void openUrl(const QUrl& url) override;
    std::optional<qint32> chooseColor(qint32 initial) override;

    const QList<Message>& messages() const { return messages_; }
    const QList<InputRequest>& inputs() const { return inputs_; }
    const QList<QUrl>& openedUrls() const { return urls_; }
    // The colour each colour dialog was opened on, in order.
    const QList<qint32>& colorRequests() const { return colorRequests_; }
    bool scriptDone() const { return script_.empty(); }

private:
    struct ExpectedMessage { QString title, text; Answer answer; };
    struct ExpectedInput { QString title, reply; };
    struct ExpectedColor { std::optional<qint32> reply; };
    std::deque<std::variant<ExpectedMessage, ExpectedInput, ExpectedColor>> script_;
    QList<Message> messages_;
    QList<InputRequest> inputs_;
    QList<QUrl> urls_;
    QList<qint32> colorRequests_;
};
