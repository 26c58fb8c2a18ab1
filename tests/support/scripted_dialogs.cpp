#include "scripted_dialogs.h"

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
