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

    QComboBox* typeList() const { return typeList_; }
    QComboBox* pickList() const { return pickList_; }
    QLineEdit* nameBox() const { return nameBox_; }
    QLineEdit* amountBox(int row) const { return amountBoxes_[row]; }
    QLineEdit* unitBox(int row) const { return unitBoxes_[row]; }
    QLineEdit* ingredientBox(int row) const { return ingredientBoxes_[row]; }
    QPlainTextEdit* directionsBox() const { return directionsBox_; }
    QLineEdit* yieldAmountBox() const { return yieldAmountBox_; }
    QComboBox* yieldTypeList() const { return yieldTypeList_; }
    QFrame* currentNamesPanel() const { return namesPanel_; }
    // Shows "Current Recipe Names" right under the name box.
    void showCurrentNames();
    QListWidget* currentNamesList() const { return currentNamesList_; }
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
    // The type list and the recipe pick list.
    void setListsEnabled(bool enabled);

    // The recipe's fields as the boxes show them. The amounts are passed
    // apart since the boxes may show fractions of the work list.
    RecipeFields fields() const;
    void showFields(const RecipeFields& fields, const std::array<QString, kRecipeRows>& amountTexts);
    void showAmounts(const std::array<QString, kRecipeRows>& amountTexts);
    void clearFields();
    void closeDropLists();

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

    QComboBox* typeList_ = nullptr;           // Combo1
    QComboBox* pickList_ = nullptr;           // Combo2
    QLineEdit* nameBox_ = nullptr;            // Text8
    QStackedWidget* nameStack_ = nullptr;
    std::array<QLineEdit*, kRecipeRows> amountBoxes_{};     // Text1
    std::array<QLineEdit*, kRecipeRows> unitBoxes_{};       // Text4
    std::array<QLineEdit*, kRecipeRows> ingredientBoxes_{}; // Text5
    QPlainTextEdit* directionsBox_ = nullptr; // Text2
    QLabel* directionsLength_ = nullptr;      // Label13
    QLineEdit* ovenTemperatureBox_ = nullptr; // Text3
    QLineEdit* cookingTimeBox_ = nullptr;     // Text7
    QLineEdit* yieldAmountBox_ = nullptr;     // Text6
    QComboBox* yieldTypeList_ = nullptr;      // Combo4
    QFrame* namesPanel_ = nullptr;
    QListWidget* currentNamesList_ = nullptr; // List1
    QList<QWidget*> frames_;
    DropList* amountDropList_ = nullptr;      // Combo3
    DropList* singularUnitList_ = nullptr;    // Combo5
    DropList* pluralUnitList_ = nullptr;      // Combo6
    std::function<bool(QWidget*, Qt::FocusReason)> entryCheck_;
    bool editable_ = false;
    QWidget* returningFrom_ = nullptr; // a box getting the focus back from its drop list
};
