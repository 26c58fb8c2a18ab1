// The real dialogs show exactly the title, text, icon, buttons and default
// asked for, and answer with the classic numbers.
#include "common/clock.h"
#include "common/widgets/qtcolors.h"
#include "common/widgets/qtdialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

namespace {

// Runs `act` on the modal dialog as soon as it is up.
void WhenModalShows(std::function<void(QWidget*)> act)
{
    QTimer::singleShot(0, [act] {
        QWidget* modal = QApplication::activeModalWidget();
        ASSERT_NE(modal, nullptr);
        act(modal);
    });
}

} // namespace

TEST(QtDialogs, QuestionShowsItsTitleTextIconAndDefault)
{
    QtDialogs dialogs;
    QString title, text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QStringList buttons;
    QString defaultButton;
    WhenModalShows([&](QWidget* modal) {
        auto* box = qobject_cast<QMessageBox*>(modal);
        ASSERT_NE(box, nullptr);
        title = box->windowTitle();
        text = box->text();
        icon = box->icon();
        for (QAbstractButton* b : box->buttons())
            buttons << b->text();
        defaultButton = box->defaultButton()->text();
        box->button(QMessageBox::No)->click();
    });
    const Answer answer = dialogs.ask({"Family Name", "Delete Family Name - Smith?", Buttons::YesNo, Icon::Question, 2});
    EXPECT_EQ(answer, Answer::No);
    EXPECT_EQ(int(answer), 7);
    EXPECT_EQ(title, "Family Name");
    EXPECT_EQ(text, "Delete Family Name - Smith?");
    EXPECT_EQ(icon, QMessageBox::Question);
    EXPECT_EQ(buttons.size(), 2);
    EXPECT_EQ(defaultButton, QMessageBox().addButton(QMessageBox::No)->text());
}

TEST(QtDialogs, EscapeOnYesNoCancelAnswersCancel)
{
    QtDialogs dialogs;
    WhenModalShows([](QWidget* modal) { qobject_cast<QMessageBox*>(modal)->reject(); });
    const Answer answer = dialogs.ask({"Exit", "Do you wish to Exit Brindlepot?", Buttons::YesNoCancel, Icon::Question, 1});
    EXPECT_EQ(answer, Answer::Cancel);
    EXPECT_EQ(int(answer), 2);
}

TEST(QtDialogs, YesAnswersSix)
{
    QtDialogs dialogs;
    WhenModalShows([](QWidget* modal) { qobject_cast<QMessageBox*>(modal)->button(QMessageBox::Yes)->click(); });
    EXPECT_EQ(int(dialogs.ask({"Exit", "Really?", Buttons::YesNoCancel, Icon::Question, 1})), 6);
}

TEST(QtDialogs, InputGivesTheTextOrEmptyOnCancel)
{
    QtDialogs dialogs;
    QString prompt, offered;
    WhenModalShows([&](QWidget* modal) {
        auto* input = qobject_cast<QInputDialog*>(modal);
        ASSERT_NE(input, nullptr);
        prompt = input->labelText();
        offered = input->textValue();
        input->setTextValue("Jones");
        input->accept();
    });
    EXPECT_EQ(dialogs.input({"Family Name", "Enter a name", "Smith"}), "Jones");
    EXPECT_EQ(prompt, "Enter a name");
    EXPECT_EQ(offered, "Smith");

    WhenModalShows([](QWidget* modal) { qobject_cast<QInputDialog*>(modal)->reject(); });
    EXPECT_EQ(dialogs.input({"Family Name", "Enter a name", "Smith"}), "");
}

TEST(QtDialogs, ColorDialogOpensOnTheGivenColourAndGivesTheChosenOne)
{
    QtDialogs dialogs;
    QColor offered;
    WhenModalShows([&](QWidget* modal) {
        auto* dialog = qobject_cast<QColorDialog*>(modal);
        ASSERT_NE(dialog, nullptr);
        offered = dialog->currentColor();
        dialog->setCurrentColor(QColor(0x12, 0x34, 0x56));
        dialog->accept();
    });
    const std::optional<qint32> chosen = dialogs.chooseColor(0x0000FF); // red in COLORREF order
    EXPECT_EQ(offered, QColor(255, 0, 0));
    ASSERT_TRUE(chosen.has_value());
    EXPECT_EQ(*chosen, 0x563412);
}

TEST(QtDialogs, CancelledColorDialogGivesNothing)
{
    QtDialogs dialogs;
    WhenModalShows([](QWidget* modal) {
        auto* dialog = qobject_cast<QColorDialog*>(modal);
        ASSERT_NE(dialog, nullptr);
        dialog->setCurrentColor(Qt::green);
        dialog->reject();
    });
    EXPECT_EQ(dialogs.chooseColor(0xFF0000), std::nullopt);
}

TEST(QtColors, ColorrefAndQColorRoundTrip)
{
    EXPECT_EQ(ColorrefFromColor(QColor(0, 0, 255)), 16711680);
    EXPECT_EQ(ColorrefFromColor(QColor(255, 0, 0)), 255);
    EXPECT_EQ(ColorrefFromColor(QColor(255, 0, 0, 40)), 255) << "alpha is dropped";
    EXPECT_EQ(ColorrefFromColor(ColorFromColorref(0x00C0FFEE)), 0x00C0FFEE);
    EXPECT_EQ(ColorFromColorref(0x800000), QColor(0, 0, 128));
}

TEST(Clock, FixedClockGivesTheTimeItWasSetTo)
{
    FixedClock clock(QDateTime(QDate(2006, 9, 30), QTime(8, 15)));
    EXPECT_EQ(clock.today(), QDate(2006, 9, 30));
    clock.set(QDateTime(QDate(2026, 11, 21), QTime(0, 0)));
    EXPECT_EQ(clock.now(), QDateTime(QDate(2026, 11, 21), QTime(0, 0)));
    SystemClock system;
    EXPECT_LE(qAbs(system.now().secsTo(QDateTime::currentDateTime())), 2);
}
