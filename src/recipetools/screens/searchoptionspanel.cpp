#include "recipetools/screens/searchoptionspanel.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

SearchOptionsPanel::SearchOptionsPanel(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("Search Options"));
    setFrameStyle(QFrame::Panel | QFrame::Raised);
    setLineWidth(3);
    setAutoFillBackground(true);

    auto* title = new QLabel(QStringLiteral("Search Options"), this);
    title->setObjectName(QStringLiteral("lblSearchOptions"));
    QFont bold = title->font();
    bold.setBold(true);
    bold.setPointSize(bold.pointSize() + 2);
    title->setFont(bold);
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
    adjustSize();
    show();
    raise();
    if (auto* first = findChild<QPushButton*>(QStringLiteral("cmdSearchByRecipe")))
        first->setFocus(Qt::OtherFocusReason);
}
