#pragma once
// The food storage screen under test: opened offscreen on the stored tables
// of a family of four, with scripted dialogs and a fixed date, and the few
// moves most tests make on it.
#include "common/clock.h"
#include "shell/kit/popupcalendar.h"
#include "shell/kit/screengrid.h"
#include "storage/logic/storageoutput.h"
#include "storage/screens/form24.h"
#include "scripted_dialogs.h"
#include "storage_fixture.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <memory>

class Form24Test : public StorageFolderTest {
protected:
    Form24Test() { copyStoredFiles(); }

    std::unique_ptr<Form24> open(StorageKind kind = StorageKind::Basic)
    {
        auto form = std::make_unique<Form24>(dialogs, kind);
        form->setAttribute(Qt::WA_DeleteOnClose, false);
        form->setClock(clock);
        return form;
    }

    // Shown and active, as a user sees it: the keyboard goes where the
    // screen sends it.
    std::unique_ptr<Form24> openShown(StorageKind kind = StorageKind::Basic)
    {
        auto form = open(kind);
        form->resize(1100, 800);
        form->show();
        form->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
        return form;
    }

    static QAction* act(Form24& form, const char* name) { return form.findChild<QAction*>(name); }
    static QPushButton* button(Form24& form, int index)
    {
        return form.findChild<QPushButton*>(QStringLiteral("Command1_%1").arg(index));
    }
    static QString cell(Form24& form, int gridRow, int column) { return form.grid()->text(gridRow, column); }

    // The cursor moves onto a cell, as the arrow keys move it; a cell it
    // stands on already is clicked.
    static void moveTo(Form24& form, int gridRow, int column)
    {
        ScreenGrid* grid = form.grid();
        if (grid->currentRow() == gridRow && grid->currentColumn() == column)
            clickCell(form, gridRow, column);
        else
            grid->setCurrentCell(gridRow, column);
    }
    static void clickCell(Form24& form, int gridRow, int column, Qt::MouseButton button = Qt::LeftButton)
    {
        ScreenGrid* grid = form.grid();
        const QModelIndex index = grid->model()->index(gridRow, column);
        grid->scrollTo(index);
        QTest::mouseClick(grid->viewport(), button, {}, grid->visualRect(index).center());
    }
    // Types into the input box and presses Enter.
    static void enter(Form24& form, const QString& text)
    {
        form.inputBox()->clear();
        QTest::keyClicks(form.inputBox(), text);
        QTest::keyClick(form.inputBox(), Qt::Key_Return);
    }
    // Moves onto the cell and enters the value there.
    static void enterAt(Form24& form, int gridRow, int column, const QString& text)
    {
        moveTo(form, gridRow, column);
        enter(form, text);
    }

    ScriptedDialogs dialogs;
    FixedClock clock{QDateTime(QDate(2026, 4, 3), QTime(9, 30))};
};
