#pragma once
// The recipe screen's own groups on the print options panel: the page
// layout, the amount format, "Print Picture" and "&Select Additional
// Recipes". Every choice is told at once, so the page is composed again.
#include "recipetools/logic/recipeprint.h"

#include <QWidget>

class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QPushButton;

class RecipePrintOptions final : public QWidget {
    Q_OBJECT
public:
    explicit RecipePrintOptions(QWidget* parent = nullptr);

    // Back to the defaults of a fresh screen: two-column full page, fractions.
    void reset();
    // The picture is offered on full pages when the recipe has one.
    void setPictureAvailable(bool available);
    // The worksheet has no layout of its own: the groups rest meanwhile.
    void setWorksheet(bool worksheet);

    PrintLayout layout() const;
    AmountFormat amountFormat() const;
    bool printPicture() const;
    QList<QWidget*> colouredPanels() const;

signals:
    void changed();
    void selectAdditionalRecipes();

private:
    void layoutChosen();
    void offerPicture();

    QGroupBox* layoutGroup_ = nullptr;
    QGroupBox* formatGroup_ = nullptr;
    QButtonGroup* layouts_ = nullptr;
    QButtonGroup* formats_ = nullptr;
    QCheckBox* picture_ = nullptr;
    QPushButton* selectAdditional_ = nullptr;
    bool pictureAvailable_ = false;
};
