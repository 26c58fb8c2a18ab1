#pragma once
// The panel "Search Files by Recipe": a word to look for in the recipe
// names of the open cookbook, the grid of hits, and the way back to the
// recipe screen. The panel shows no message of its own: it asks for a
// search with a signal, and the screen runs it and hands the rows back.
#include "recipetools/logic/recipesearch.h"

#include "shell/kit/overlaypanel.h"
#include <functional>
#include <optional>

class QLineEdit;
class QTableWidget;
class SearchResults;

class NameSearchPanel final : public OverlayPanel {
    Q_OBJECT
public:
    explicit NameSearchPanel(QWidget* parent);

    // Shows the panel in front and puts the focus in the search box.
    void open();

    // Resets the grid, then fills it: with hits, the count label and
    // "&View Selected Recipe"; without, the no-match panel. Like the
    // original, a search without hits leaves "&View Selected Recipe" as it
    // was (it does nothing on an empty grid).
    void showResults(const QList<SearchHit>& hits);
    // `search` run under the busy pointer, its rows shown.
    void runSearch(const std::function<QList<SearchHit>()>& search);

    // The selected row; nothing when no row is selected.
    std::optional<SearchHit> selectedHit() const;

    // Empties the grid and its labels.
    void clearResults();
    // Empties the search box as well.
    void clear();

    QLineEdit* searchBox() const { return searchBox_; }
    QTableWidget* grid() const;

signals:
    // "&Search" with text in the box (an empty box does nothing).
    void searchRequested(const QString& text);
    // "View &All Recipes": the box now holds kViewAllText.
    void viewAllRequested();
    // "&View Selected Recipe" or a double click, only with a row selected.
    void viewSelectedRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void search();
    void viewAll();

    QLineEdit* searchBox_ = nullptr;     // Text12
    SearchResults* results_ = nullptr;   // grid VSFlexGrid1 and its buttons
};
