#pragma once
// The lower half that both search panels share: the grid of hits, the count
// label, the no-match panel, "&View Selected Recipe" and "&Close". A row is a
// SearchHit: the grid shows the type and the entry's recipe name and keeps
// the whole entry, record number and all, in the cell's Qt::UserRole, so the
// number stays out of sight and still goes back to the recipe screen.
#include "recipetools/logic/recipesearch.h"
#include "shell/kit/screengrid.h"

#include <QWidget>
#include <functional>
#include <optional>

class QLabel;
class QPushButton;

class SearchResults final : public QWidget {
    Q_OBJECT
public:
    // What a search without hits does to "&View Selected Recipe": the name
    // search leaves it as it was, the ingredient search turns it off.
    enum class EmptySearch { KeepsViewSelected, DisablesViewSelected };

    struct Names {
        QString grid;          // VSFlexGrid1, VSFlexGrid2
        QString typeHeading;   // "Type Recipe", "Recipe Type"
        QString noMatchText;
        QString viewSelected;  // object names of the two buttons
        QString close;
    };

    SearchResults(const Names& names, EmptySearch emptySearch, QWidget* parent);

    // Resets the grid, then fills it: with hits, the count label `countText`
    // and "&View Selected Recipe"; without, the no-match panel.
    void showHits(const QList<SearchHit>& hits, const QString& countText);
    // `search` run under the busy pointer on an empty grid, then its rows
    // shown with the count that `countText` gives.
    void run(const std::function<QList<SearchHit>()>& search,
             const std::function<QString(qsizetype)>& countText);
    // The selected row; nothing when no row is selected.
    std::optional<SearchHit> selectedHit() const;
    // An empty grid under its heading, no count and no no-match panel, and
    // "&View Selected Recipe" off: the hits of an earlier search are gone.
    void clear();
    ScreenGrid* grid() const { return grid_; }

signals:
    // "&View Selected Recipe" or a double click, only with a row selected.
    void viewSelectedRequested();
    void closeRequested();

protected:
    // The grid takes the shared grid colours each time it is shown.
    void showEvent(QShowEvent* event) override;

private:
    void reset();
    void viewSelected();

    EmptySearch emptySearch_;
    ScreenGrid* grid_ = nullptr;
    QLabel* countLabel_ = nullptr;
    QLabel* noMatchPanel_ = nullptr;
    QPushButton* viewSelected_ = nullptr;
};
