#pragma once
// The fields of the recipe screen: type and name at the top, twenty
// ingredient rows in two blocks of ten, directions with their length counter,
// cooking and serving information. It owns what a field does by itself:
// typing filters, Enter moving on, the yellow focus colour, the drop lists
// over the amount and unit boxes. What a field means for the recipe (modes,
// messages, the work list) is the screen's business, told by signals.
#include "recipetools/logic/recipelifecycle.h"

#include <QWidget>
#include <array>
#include <functional>

class DropList;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QStackedWidget;

class RecipeFieldsPanel final : public QWidget {
    Q_OBJECT
public:
    explicit RecipeFieldsPanel(QWidget* parent = nullptr);

    QComboBox* typeList() const { return combo1_; }
    QComboBox* pickList() const { return combo2_; }
    QLineEdit* nameBox() const { return text8_; }
    QLineEdit* amountBox(int row) const { return text1_[row]; }
    QLineEdit* unitBox(int row) const { return text4_[row]; }
    QLineEdit* ingredientBox(int row) const { return text5_[row]; }
    QPlainTextEdit* directionsBox() const { return text2_; }
    QLineEdit* yieldAmountBox() const { return text6_; }
    QComboBox* yieldTypeList() const { return combo4_; }
    QFrame* currentNamesPanel() const { return namesPanel_; }
    // Shows "Current Recipe Names" right under the name box.
    void showCurrentNames();
    QListWidget* currentNamesList() const { return list1_; }
    // The lists show the entries' recipe names; each item keeps its whole
    // entry, record number and all, out of sight.
    void showPickEntries(const QStringList& entries);
    void showCurrentNameEntries(const QStringList& entries);
    // The widgets that take the screen's panel colour.
    QList<QWidget*> colouredPanels() const;

    // Asked when a field gets the focus by the user; false sends the focus
    // elsewhere (the screen has shown why) and no drop list opens.
    void setEntryCheck(std::function<bool(QWidget* field, Qt::FocusReason reason)> check);

    // Create and Modify take input; Idle and View show only. Set it before
    // the amounts of the mode: editing limits the amount boxes to the
    // record's five characters and cuts a longer text.
    void setEditable(bool editable);
    bool editable() const { return editable_; }
    // In Create the name box lies in front of the pick list, else the list.
    void showNameBox(bool nameInFront);

    // The recipe's fields as the boxes show them. The amounts are passed
    // apart since the boxes may show fractions of the work list.
    RecipeFields fields() const;
    void showFields(const RecipeFields& fields, const std::array<QString, kRecipeRows>& amountTexts);
    void showAmounts(const std::array<QString, kRecipeRows>& amountTexts);
    void clearFields();
    void closeDropLists();
    // Every field a recipe keeps, in focus order.
    bool isRecipeField(const QWidget* widget) const;

signals:
    void nameEnterPressed();
    void amountInstructionsWanted();       // "/" or "\" typed in an amount box
    void amountEdited(int row, const QString& text);
    void amountPicked(int row, const QString& decimal);
    void recipeEdited();                   // any change the user makes to a field
    void currentNamesClicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildLayout();
    void watch(QWidget* field);
    void fieldEntered(QWidget* field, Qt::FocusReason reason);
    void enterPressed(QWidget* field);
    void filterAmount(int row);
    void refuseQuote(QLineEdit* box);
    void showDirectionsLength();
    void dropListPicked(QLineEdit* box, int index, const QString& text);
    int rowOf(const QLineEdit* box, const std::array<QLineEdit*, kRecipeRows>& column) const;

    QComboBox* combo1_ = nullptr;
    QComboBox* combo2_ = nullptr;
    QLineEdit* text8_ = nullptr;
    QStackedWidget* nameStack_ = nullptr;
    std::array<QLineEdit*, kRecipeRows> text1_{};
    std::array<QLineEdit*, kRecipeRows> text4_{};
    std::array<QLineEdit*, kRecipeRows> text5_{};
    QPlainTextEdit* text2_ = nullptr;
    QLabel* label13_ = nullptr;
    QLineEdit* text3_ = nullptr;
    QLineEdit* text7_ = nullptr;
    QLineEdit* text6_ = nullptr;
    QComboBox* combo4_ = nullptr;
    QFrame* namesPanel_ = nullptr;
    QListWidget* list1_ = nullptr;
    QList<QWidget*> frames_;
    DropList* combo3_ = nullptr;
    DropList* combo5_ = nullptr;
    DropList* combo6_ = nullptr;
    std::function<bool(QWidget*, Qt::FocusReason)> entryCheck_;
    bool editable_ = false;
    QWidget* returningFrom_ = nullptr; // a box getting the focus back from its drop list
};
