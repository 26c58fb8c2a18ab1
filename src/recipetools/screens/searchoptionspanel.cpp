#include "recipetools/screens/searchoptionspanel.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

// The three commands stand one under the other, each as wide as the panel.
SearchOptionsPanel::SearchOptionsPanel(QWidget* parent)
    : OverlayPanel(QStringLiteral("Search Options"), QStringLiteral("Search Options"), parent)
{
    captionLabel()->setObjectName(QStringLiteral("lblSearchOptions"));
    captionLabel()->setAlignment(Qt::AlignCenter);
    const auto command = [this](const char* name, const QString& caption) {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(QString::fromLatin1(name));
        button->setAutoDefault(false);
        body()->addWidget(button);
        return button;
    };
    byRecipe_ = command("cmdSearchByRecipe", QStringLiteral("Search by &Recipe"));
    QPushButton* byIngredient = command("cmdSearchByIngredient", QStringLiteral("Search by &Ingredient"));
    QPushButton* cancel = command("cmdCancelSearch", QStringLiteral("Ca&ncel"));
    connect(byRecipe_, &QPushButton::clicked, this, &SearchOptionsPanel::byRecipeRequested);
    connect(byIngredient, &QPushButton::clicked, this, &SearchOptionsPanel::byIngredientRequested);
    connect(cancel, &QPushButton::clicked, this, &SearchOptionsPanel::closeRequested);
}
