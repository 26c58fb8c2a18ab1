#pragma once
// The recipe screen under test: opened offscreen on cookbook 1 with scripted
// dialogs, and the few moves most tests make on it.
#include "recipetools/screens/form5.h"
#include "recipetools/screens/recipefieldspanel.h"
#include "shell/logic/processvalues.h"
#include "shell/settings/settingsslots.h"
#include "scripted_dialogs.h"
#include "temp_program_folder.h"
#include "raw_slots.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

inline void Choose(QComboBox* combo, const QString& text)
{
    const int index = combo->findText(text);
    ASSERT_GE(index, 0) << text.toStdString();
    combo->setCurrentIndex(index);
    emit combo->activated(index);
    combo->hidePopup();
}

inline void ShowActive(QWidget& window)
{
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

class Form5Test : public ::testing::Test {
protected:
    Form5Test()
    {
        Process() = ProcessValues{};
        WriteSlotText(GColor4, 1, u" 1");
    }

    std::unique_ptr<Form5> open()
    {
        auto form = std::make_unique<Form5>(dialogs);
        form->setAttribute(Qt::WA_DeleteOnClose, false);
        return form;
    }

    QAction* act(Form5& form, const char* name) { return form.findChild<QAction*>(name); }
    RecipeFieldsPanel* fields(Form5& form) { return form.fieldsPanel(); }
    QString strip(Form5& form) { return form.findChild<QLabel*>("SSPanel4")->text(); }

    // Starts a new recipe of `type` and types its name.
    void startRecipe(Form5& form, const QString& type, const QString& name)
    {
        act(form, "mCreate")->trigger();
        Choose(fields(form)->typeList(), type);
        QTest::keyClicks(fields(form)->nameBox(), name);
    }

    void typeRow(Form5& form, int row, const QString& amount, const QString& unit, const QString& ingredient)
    {
        QTest::keyClicks(fields(form)->amountBox(row), amount);
        QTest::keyClicks(fields(form)->unitBox(row), unit);
        QTest::keyClicks(fields(form)->ingredientBox(row), ingredient);
    }

    void pick(Form5& form, const QString& name) { Choose(fields(form)->pickList(), name); }

    // A quick recipe of two rows, saved.
    void saveQuickRecipe(Form5& form, const QString& type, const QString& name)
    {
        startRecipe(form, type, name);
        typeRow(form, 0, "2", "cups", "flour");
        act(form, "mSave")->trigger();
    }

    TempProgramFolder folder;
    ScriptedDialogs dialogs;
};
