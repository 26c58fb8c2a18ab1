#pragma once
// The shopping list screen under test: opened offscreen in a program folder
// of its own, on 15 November 2026 in a month-first system, with scripted
// dialogs and a scripted list chooser, and the moves most tests make on it.
#include "shopping/screens/listchooser.h"
#include "shopping/screens/shoplist.h"

#include "common/clock.h"
#include "common/dates.h"
#include "print/logic/printfont.h"
#include "shell/kit/screengrid.h"
#include "shell/kit/screenstatusbar.h"
#include "shell/logic/processvalues.h"
#include "scripted_dialogs.h"
#include "temp_program_folder.h"

#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <deque>

#include <gtest/gtest.h>
#include <memory>

// The chooser's answers, in order; an unexpected question fails the test.
class ScriptedChooser final : public ListChooser {
public:
    ~ScriptedChooser() override { EXPECT_TRUE(script_.empty()) << "the list chooser was not asked as expected"; }

    void expect(ListChoice choice, const QString& answer) { script_.push_back({choice, answer}); }
    QString chooseList(ListChoice choice) override
    {
        if (script_.empty()) {
            ADD_FAILURE() << "unexpected list chooser";
            return {};
        }
        const auto [expected, answer] = script_.front();
        script_.pop_front();
        EXPECT_EQ(int(choice), int(expected)) << "the chooser was asked for the other purpose";
        return answer;
    }

private:
    std::deque<std::pair<ListChoice, QString>> script_;
};

inline void ShowActive(QWidget& window)
{
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

class ShoplistTest : public ::testing::Test {
protected:
    ShoplistTest() : clock(QDateTime(QDate(2026, 11, 15), QTime(9, 30)))
    {
        Process() = ProcessValues{};
        PrintFont() = TextFont{};
        SetDateLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    }
    ~ShoplistTest() override { SetDateLocale(QLocale()); }

    std::unique_ptr<Shoplist> open()
    {
        auto form = std::make_unique<Shoplist>(dialogs);
        form->setAttribute(Qt::WA_DeleteOnClose, false);
        form->setListChooser(chooser);
        form->setClock(clock);
        form->resize(1000, 750);
        ShowActive(*form);
        return form;
    }

    static QLineEdit* itemBox(Shoplist& form) { return form.findChild<QLineEdit*>("Text1_0"); }
    static QLineEdit* amountBox(Shoplist& form) { return form.findChild<QLineEdit*>("Text1_1"); }
    static QLineEdit* dateBox(Shoplist& form) { return form.findChild<QLineEdit*>("Text1_2"); }
    static QComboBox* combo1(Shoplist& form) { return form.findChild<QComboBox*>("Combo1"); }
    static ScreenGrid* grid(Shoplist& form) { return form.findChild<ScreenGrid*>("VSFlexGrid1"); }
    static QAction* act(Shoplist& form, const char* name) { return form.findChild<QAction*>(name); }
    static QPushButton* button(Shoplist& form, const QString& name) { return form.findChild<QPushButton*>(name); }
    static QString status(Shoplist& form) { return form.screenStatusBar()->activity(); }

    // The grid's cell as shown; row 0 is the header.
    static QString cell(Shoplist& form, int row, int column)
    {
        if (row == 0)
            return grid(form)->horizontalHeaderItem(column)->text();
        return grid(form)->text(row - 1, column);
    }
    // The old grid's row count: the header and the rows.
    static int rowCount(Shoplist& form) { return grid(form)->rowCount() + 1; }

    static void type(QLineEdit* box, const QString& text) { QTest::keyClicks(box, text); }
    static void pressEnter(QWidget* widget) { QTest::keyClick(widget, Qt::Key_Return); }
    // Types an item and presses Enter.
    static void addItem(Shoplist& form, const QString& name)
    {
        itemBox(form)->setFocus();
        type(itemBox(form), name);
        pressEnter(itemBox(form));
    }
    // A click on a grid cell, rows counted as the old grid counts them.
    static void clickCell(Shoplist& form, int row, int column)
    {
        ScreenGrid* shown = grid(form);
        const QModelIndex index = shown->model()->index(row - 1, column);
        shown->scrollTo(index);
        QTest::mouseClick(shown->viewport(), Qt::LeftButton, {}, shown->visualRect(index).center());
    }
    // Gives the row its amount through the amount panel.
    void enterAmount(Shoplist& form, int row, const QString& amount)
    {
        clickCell(form, row, 1);
        QLineEdit* box = amountBox(form);
        box->clear();
        type(box, amount);
        button(form, "Command5_0")->click();
    }

    TempProgramFolder folder;
    ScriptedDialogs dialogs;
    ScriptedChooser chooser;
    FixedClock clock;
};
