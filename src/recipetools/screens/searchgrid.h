#pragma once
// The result grid that both search panels show, with its count label and
// its no-match panel. A row is a SearchHit: the type name, and the name
// entry. The grid shows the entry's recipe name and keeps the whole entry,
// record number and all, in the cell's Qt::UserRole, so the number stays
// out of sight and still goes back to the recipe screen.
#include "recipetools/logic/recipesearch.h"

#include <QList>
#include <optional>

class QLabel;
class QTableWidget;
class QWidget;

// Read-only, whole rows selected, one at a time; two columns under the
// two headings.
QTableWidget* MakeSearchGrid(QWidget* parent, const QString& objectName, const QString& typeHeading,
                             const QString& nameHeading);
// The label under the grid that counts the hits, centred; hidden at first.
QLabel* MakeCountLabel(QWidget* parent);
// The panel that says nothing was found; hidden at first.
QLabel* MakeNoMatchPanel(QWidget* parent, const QString& text);

// An empty body under the headings.
void ResetSearchGrid(QTableWidget* grid);
// One row per hit, in order; the first row becomes the current one.
void FillSearchGrid(QTableWidget* grid, const QList<SearchHit>& hits);
// The selected row, or nothing when no row is selected.
std::optional<SearchHit> SelectedSearchHit(const QTableWidget* grid);
