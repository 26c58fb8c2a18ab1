#pragma once
// The panel "Search Options": which search to open, or back to the recipe.
#include "shell/kit/overlaypanel.h"

class SearchOptionsPanel final : public OverlayPanel {
    Q_OBJECT
public:
    explicit SearchOptionsPanel(QWidget* parent);

    QPushButton* byRecipeButton() const { return byRecipe_; }

signals:
    void byRecipeRequested();
    void byIngredientRequested();

private:
    QPushButton* byRecipe_ = nullptr;
};
