#include "recipetools/screens/searchoptionspanel.h"

#include "shell/kit/overlaypanel.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

SearchOptionsPanel::SearchOptionsPanel(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("Search Options"));

    auto* title = MakeOverlayPanel(this, QStringLiteral("Search Options"));
    title->setObjectName(QStringLiteral("lblSearchOptions"));
    title->setAlignment(Qt::AlignCenter);

    auto* byRecipe = new QPushButton(QStringLiteral("Search by &Recipe"), this);
    byRecipe->setObjectName(QStringLiteral("cmdSearchByRecipe"));
    auto* byIngredient = new QPushButton(QStringLiteral("Search by &Ingredient"), this);
    byIngredient->setObjectName(QStringLiteral("cmdSearchByIngredient"));
    auto* cancel = new QPushButton(QStringLiteral("Ca&ncel"), this);
    cancel->setObjectName(QStringLiteral("cmdCancelSearch"));
    connect(byRecipe, &QPushButton::clicked, this, &SearchOptionsPanel::byRecipeRequested);
    connect(byIngredient, &QPushButton::clicked, this, &SearchOptionsPanel::byIngredientRequested);
    connect(cancel, &QPushButton::clicked, this, &SearchOptionsPanel::cancelRequested);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addWidget(byRecipe);
    layout->addWidget(byIngredient);
    layout->addWidget(cancel);
    hide();
}

void SearchOptionsPanel::open()
{
    RaiseOverlayPanel(this);
    if (auto* first = findChild<QPushButton*>(QStringLiteral("cmdSearchByRecipe")))
        first->setFocus(Qt::OtherFocusReason);
}
