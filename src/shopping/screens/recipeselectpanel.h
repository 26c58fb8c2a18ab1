#pragma once
// The "Recipe Select Screen" over the shopping list: the 22 recipe types,
// the recipes of the chosen type in the shopping list's cookbook, and the
// chosen recipe's ingredients as 20 check boxes, each caption carrying the
// name, the amount needed and the unit. The panel reads the cookbook's files
// itself; what is to be added it hands to the screen as entry texts.
#include "cookbook/logic/cookbooknames.h"
#include "shell/kit/overlaypanel.h"

#include <QList>

class Dialogs;
class QCheckBox;
class QComboBox;
class QLabel;

class RecipeSelectPanel final : public OverlayPanel {
    Q_OBJECT
public:
    // The commands in index order.
    enum CommandIndex { kAddNames = 0, kAddNamesAndAmounts, kLeave, kSelectAll };

    RecipeSelectPanel(Dialogs& dialogs, QWidget* parent);

    // Fills the type list and shows the panel on `cookbook`, the keyboard on
    // the leave command.
    void open(int cookbook, const QString& title);
    // "Select Cook&book": the panel starts over on another cookbook, with
    // the recipes of the first type listed.
    void changeCookbook(int cookbook, const QString& title);
    // Clears and hides the boxes, the heading and the recipe list, and hides
    // the panel.
    void reset();

    QComboBox* typeList() const { return typeList_; }
    QComboBox* recipeList() const { return recipeList_; }
    QLabel* heading() const { return heading_; }
    QCheckBox* choice(int index) const { return choices_.value(index); }
    QPushButton* command(int index) const { return commands_.value(index); }
    // The captions of the boxes shown.
    QStringList shownCaptions() const;

signals:
    // An add command: the texts to append to the list, in box order.
    void entriesChosen(const QStringList& entries);
    // "E&xit Without Adding Checked Selections to Item Grid", or Escape.
    void leaveRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildChoices();
    void buildCommands();
    void fillTypes();
    void chooseType(int index);
    void listRecipes(RecipeType type);
    void chooseRecipe(int index);
    void clearChoices();
    void selectAll();
    void choiceClicked();
    void add(bool withAmounts);

    Dialogs& dialogs_;
    int cookbook_ = 1;
    QString title_;
    QComboBox* typeList_ = nullptr;    // Combo2
    QComboBox* recipeList_ = nullptr;  // Combo3
    QLabel* heading_ = nullptr;        // Label5
    QList<QCheckBox*> choices_;        // Check1(0..19)
    QList<QPushButton*> commands_;     // Command6(0..3)
};
