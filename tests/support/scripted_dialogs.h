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

    // Expect the font dialog; pick `reply`, or cancel it with nothing.
    void expectFont(std::optional<TextFont> reply);
    // Expect the folder chooser; choose `reply`, or cancel it with nothing.
    void expectFolder(std::optional<QString> reply);
    // Expect the page setup dialog; accept `reply`, or cancel it with nothing.
    void expectPageSetup(std::optional<PageSetup> reply);
    // Expect the print dialog; "print to file" into the PDF `pdfPath`, or
    // cancel it with the empty text.
    void expectPrint(const QString& pdfPath);

    Answer ask(const Message& message) override;
    QString input(const InputRequest& request) override;
    void openUrl(const QUrl& url) override;
    std::optional<qint32> chooseColor(qint32 initial) override;
    std::optional<TextFont> chooseFont(const TextFont& initial) override;
    std::optional<QString> chooseFolder(const FolderRequest& request) override;
    std::optional<PageSetup> pageSetup(const PageSetup& current) override;
    Printed print(const PrintJob& job) override;

    const QList<Message>& messages() const { return messages_; }
    const QList<InputRequest>& inputs() const { return inputs_; }
    const QList<QUrl>& openedUrls() const { return urls_; }
    // The colour each colour dialog was opened on, in order.
    const QList<qint32>& colorRequests() const { return colorRequests_; }
    const QList<TextFont>& fontRequests() const { return fontRequests_; }
    // Title and starting folder of each folder chooser, in order.
    const QList<FolderRequest>& folderRequests() const { return folderRequests_; }
    const QList<PageSetup>& pageSetupRequests() const { return pageSetupRequests_; }
    // Title, page setup and page count of each print dialog, in order.
    const QList<PrintJob>& printJobs() const { return printJobs_; }
    bool scriptDone() const { return script_.empty(); }

private:
    struct ExpectedMessage { QString title, text; Answer answer; };
    struct ExpectedInput { QString title, reply; };
    struct ExpectedColor { std::optional<qint32> reply; };
    struct ExpectedFont { std::optional<TextFont> reply; };
    struct ExpectedFolder { std::optional<QString> reply; };
    struct ExpectedPageSetup { std::optional<PageSetup> reply; };
    struct ExpectedPrint { QString pdfPath; };
    using Expected = std::variant<ExpectedMessage, ExpectedInput, ExpectedColor, ExpectedFont, ExpectedFolder,
                                  ExpectedPageSetup, ExpectedPrint>;
    // The next scripted step when it is a `T`; else the test fails with `what`.
    template <typename T> std::optional<T> next(const std::string& what);
    std::deque<Expected> script_;
    QList<Message> messages_;
    QList<InputRequest> inputs_;
    QList<QUrl> urls_;
    QList<qint32> colorRequests_;
    QList<TextFont> fontRequests_;
    QList<FolderRequest> folderRequests_;
    QList<PageSetup> pageSetupRequests_;
    QList<PrintJob> printJobs_;
};
