#pragma once
// The weight tracker screen under test: opened offscreen with scripted
// dialogs and a fixed clock on a folder holding Pat Doe's file and the
// list, or nothing at all, and the few moves most tests make on it.
#include "common/clock.h"
#include "common/quotedlinefile.h"
#include "shell/kit/popupcalendar.h"
#include "shell/kit/screengrid.h"
#include "tracker/screens/weighttracker.h"
#include "scripted_dialogs.h"
#include "tracker_fixture.h"

#include <QAction>
#include <QApplication>
#include <QCalendarWidget>
#include <QHeaderView>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <memory>

inline const QString kPat = QStringLiteral("Pat Doe");
inline const QString kPatFile = QStringLiteral("Pat Doe.Fil");

class WeightTrackerTest : public TrackerFolderTest {
protected:
    void storePat() const
    {
        folder.copyIn(TestDataFile(kPatFile));
        folder.writeBytes(QString::fromLatin1(kIndividualListFile), QuotedLines({kPat}));
    }

    // Opens the screen; with no individual stored it says so first.
    std::unique_ptr<WeightTracker> open()
    {
        if (ReadIndividualList().isEmpty())
            expectNoFiles();
        auto form = std::make_unique<WeightTracker>(dialogs);
        form->setAttribute(Qt::WA_DeleteOnClose, false);
        form->setClock(clock);
        return form;
    }
    // Opens the screen on Pat Doe, loaded.
    std::unique_ptr<WeightTracker> openPat()
    {
        storePat();
        auto form = open();
        pick(*form, kPat);
        return form;
    }
    std::unique_ptr<WeightTracker> openShown(std::unique_ptr<WeightTracker> form)
    {
        form->resize(1100, 800);
        form->show();
        form->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
        return form;
    }

    void expectNoFiles()
    {
        dialogs.expectMessage(QStringLiteral("No Files Found"),
                              QStringLiteral("Currently there are no Individual Files to view,\n"
                                             "please use the Create New File Button\n"
                                             "to enter Individual information!"));
    }
    void expectSavePrompt(Answer answer)
    {
        dialogs.expectMessage(QStringLiteral("Weight Tracker Information"),
                              QStringLiteral("Save changes made to Weight Tracker before next action or exiting?"),
                              answer);
    }

    static QAction* act(WeightTracker& form, const char* name) { return form.findChild<QAction*>(name); }
    static void run(WeightTracker& form, const char* name) { act(form, name)->trigger(); }
    static void pick(WeightTracker& form, const QString& name)
    {
        const int index = form.nameList()->findText(name);
        ASSERT_GE(index, 0);
        form.nameList()->setCurrentIndex(index);
        emit form.nameList()->activated(index);
    }
    // Types into a field as the keyboard does, one character at a time.
    static void type(QLineEdit* field, const QString& text)
    {
        field->setFocus();
        QTest::keyClicks(field, text);
    }
    // Types a weight into a grid row (0-based) and leaves the cell.
    static void typeWeight(WeightTracker& form, int gridRow, const QString& weight)
    {
        form.grid()->item(gridRow, WeightTracker::kWeightColumn)
            ? form.grid()->item(gridRow, WeightTracker::kWeightColumn)->setText(weight)
            : form.grid()->setText(gridRow, WeightTracker::kWeightColumn, weight);
    }
    // Picks a date for a grid row (0-based) in the calendar.
    static void pickDate(WeightTracker& form, int gridRow, QDate date)
    {
        emit form.grid()->cellClicked(gridRow, WeightTracker::kDateColumn);
        ASSERT_TRUE(form.calendar()->isOpen());
        emit form.calendar()->calendar()->clicked(date);
    }
    QStringList fileValues(const QString& name = kPatFile) const
    {
        return ParseQuotedValues(folder.bytesOf(name));
    }

    ScriptedDialogs dialogs;
    FixedClock clock{QDateTime(QDate(2026, 4, 3), QTime(9, 30))};
};
