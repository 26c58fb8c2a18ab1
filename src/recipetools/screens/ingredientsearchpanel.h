#pragma once
// The panel "Search Recipes by Ingredient": up to three ingredient words,
// how several of them combine, an optional type, and the grid of hits. The
// panel shows no message of its own: on a search command it compacts its
// boxes and asks for the search with a signal; the screen checks
// IngredientSearchRefusals, runs SearchByIngredient and hands the rows back.
#include "recipetools/logic/recipesearch.h"

#include "shell/kit/overlaypanel.h"
#include <array>
#include <functional>
#include <optional>

class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTableWidget;
class SearchResults;

class IngredientSearchPanel final : public OverlayPanel {
    Q_OBJECT
public:
    explicit IngredientSearchPanel(QWidget* parent);

    // Shows the panel in front and puts the focus in the first box.
    void open();

    // The search the last command asks for: the boxes as they stand (after
    // the command compacted them), the option of the frame, and the picked
    // type when the command was "&Search By Type" (none for "Search &All
    // Recipes", whatever is picked).
    IngredientQuery query() const;
    // True when the last command was "&Search By Type".
    bool searchByType() const { return searchByType_; }
    std::optional<RecipeType> pickedType() const;

    // Resets the grid and disables "&View Selected Recipe", then fills the
    // grid: with hits, the count label for the last command and the button
    // enabled again; without, the no-match panel.
    void showResults(const QList<SearchHit>& hits);
    // `search` run under the busy pointer, its rows shown.
    void runSearch(const std::function<QList<SearchHit>()>& search);

    std::optional<SearchHit> selectedHit() const;

    // Empties the grid and its labels.
    void clearResults();
    // Empties the three boxes and the type choice as well.
    void clear();

    // Box 1 to 3 (Text13, Text14, Text15).
    QLineEdit* box(int number) const;
    QListWidget* typeList() const { return typeList_; }
    QGroupBox* optionsFrame() const { return optionsFrame_; }
    QTableWidget* grid() const;

signals:
    void searchAllRequested();
    void searchByTypeRequested();
    // "&View Selected Recipe" or a double click, only with a row selected.
    void viewSelectedRequested();

private:
    void command(bool byType);
    void updateOptionsFrame();

    std::array<QLineEdit*, 3> boxes_{};  // Text13, Text14, Text15
    QGroupBox* optionsFrame_ = nullptr;  // "Multi-Ingredient Options"
    QRadioButton* allOf_ = nullptr;
    QRadioButton* anyOf_ = nullptr;
    QListWidget* typeList_ = nullptr;
    SearchResults* results_ = nullptr;   // grid VSFlexGrid2 and its buttons
    bool searchByType_ = false;
};
