#include "scripted_dialogs.h"

#include "common/widgets/qtpagesetup.h"

#include <QPdfWriter>
#include <gtest/gtest.h>

ScriptedDialogs::~ScriptedDialogs()
{
    EXPECT_TRUE(script_.empty()) << script_.size() << " scripted prompt(s) never appeared";
}

void ScriptedDialogs::expectMessage(const QString& title, const QString& text, Answer answer)
{
    script_.push_back(ExpectedMessage{title, text, answer});
}

void ScriptedDialogs::expectInput(const QString& title, const QString& reply)
{
    script_.push_back(ExpectedInput{title, reply});
}

void ScriptedDialogs::expectColor(std::optional<qint32> reply)
{
    script_.push_back(ExpectedColor{reply});
}

void ScriptedDialogs::expectFont(std::optional<TextFont> reply)
{
    script_.push_back(ExpectedFont{std::move(reply)});
}

void ScriptedDialogs::expectFolder(std::optional<QString> reply)
{
    script_.push_back(ExpectedFolder{std::move(reply)});
}

void ScriptedDialogs::expectPageSetup(std::optional<PageSetup> reply)
{
    script_.push_back(ExpectedPageSetup{reply});
}

void ScriptedDialogs::expectPrint(const QString& pdfPath)
{
    script_.push_back(ExpectedPrint{pdfPath});
}

template <typename T> std::optional<T> ScriptedDialogs::next(const std::string& what)
{
    if (script_.empty() || !std::holds_alternative<T>(script_.front())) {
        ADD_FAILURE() << "unexpected " << what;
        return std::nullopt;
    }
    T expected = std::get<T>(script_.front());
    script_.pop_front();
    return expected;
}

Answer ScriptedDialogs::ask(const Message& message)
{
    messages_.append(message);
    if (script_.empty() || !std::holds_alternative<ExpectedMessage>(script_.front())) {
        ADD_FAILURE() << "unexpected message \"" << message.title.toStdString() << "\": "
                      << message.text.toStdString();
        return Answer::Cancel;
    }
    const ExpectedMessage expected = std::get<ExpectedMessage>(script_.front());
    script_.pop_front();
    EXPECT_EQ(message.title.toStdString(), expected.title.toStdString());
    EXPECT_EQ(message.text.toStdString(), expected.text.toStdString());
    return expected.answer;
}

QString ScriptedDialogs::input(const InputRequest& request)
{
    inputs_.append(request);
    if (script_.empty() || !std::holds_alternative<ExpectedInput>(script_.front())) {
        ADD_FAILURE() << "unexpected input box \"" << request.title.toStdString() << "\"";
        return {};
    }
    const ExpectedInput expected = std::get<ExpectedInput>(script_.front());
    script_.pop_front();
    EXPECT_EQ(request.title.toStdString(), expected.title.toStdString());
    return expected.reply;
}

void ScriptedDialogs::openUrl(const QUrl& url)
{
    urls_.append(url);
}

std::optional<qint32> ScriptedDialogs::chooseColor(qint32 initial)
{
    colorRequests_.append(initial);
    if (script_.empty() || !std::holds_alternative<ExpectedColor>(script_.front())) {
        ADD_FAILURE() << "unexpected colour dialog on colour " << initial;
        return std::nullopt;
    }
    const ExpectedColor expected = std::get<ExpectedColor>(script_.front());
    script_.pop_front();
    return expected.reply;
}

std::optional<TextFont> ScriptedDialogs::chooseFont(const TextFont& initial)
{
    fontRequests_.append(initial);
    const auto expected = next<ExpectedFont>("font dialog");
    return expected ? expected->reply : std::nullopt;
}

std::optional<QString> ScriptedDialogs::chooseFolder(const FolderRequest& request)
{
    folderRequests_.append(request);
    const auto expected = next<ExpectedFolder>("folder chooser \"" + request.title.toStdString() + "\"");
    return expected ? expected->reply : std::nullopt;
}

std::optional<PageSetup> ScriptedDialogs::pageSetup(const PageSetup& current)
{
    pageSetupRequests_.append(current);
    const auto expected = next<ExpectedPageSetup>("page setup dialog");
    return expected ? expected->reply : std::nullopt;
}

Printed ScriptedDialogs::print(const PrintJob& job)
{
    printJobs_.append(job);
    const auto expected = next<ExpectedPrint>("print dialog");
    if (!expected || expected->pdfPath.isEmpty())
        return {};
    QPdfWriter writer(expected->pdfPath);
    writer.setTitle(job.title);
    writer.setPageLayout(PageLayoutOf(job.setup));
    if (!job.render(writer, 1, job.pageCount))
        return {};
    return {true, expected->pdfPath};
}
