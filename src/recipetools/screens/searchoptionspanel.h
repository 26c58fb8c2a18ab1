#pragma once
// The panel "Search Options": which search to open, or back to the recipe.
#include <QFrame>

class SearchOptionsPanel final : public QFrame {
    Q_OBJECT
public:
    explicit SearchOptionsPanel(QWidget* parent);

    void open();

signals:
    void byRecipeRequested();
    void byIngredientRequested();
    void cancelRequested();
};
