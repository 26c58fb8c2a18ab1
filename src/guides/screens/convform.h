#pragma once
// Convform, the food measurement guide: a number in the entry box, one of
// 43 option buttons in five groups, and the answer. Single entry shows one
// result beside the box; multiple entry fills a grid for every step of 1
// from the beginning to the ending entry. The arithmetic and every text
// shown come from guides/logic/conversions.h; the screen holds the boxes,
// labels and its working state.
#include "guides/logic/conversions.h"

#include "shell/kit/activitywindow.h"

class QBoxLayout;
class QButtonGroup;
class QFrame;
class QLabel;
class QLineEdit;
class ScreenGrid;

enum class ConvformCommand {
    SingleEntry, MultipleEntry, Round1, Round2, Round3, Round4, Round5, PanelColor, Exit, Help,
};

class Convform final : public ActivityWindow {
    Q_OBJECT
public:
    static constexpr int kHelpTopic = 1030;

    explicit Convform(Dialogs& dialogs, QWidget* parent = nullptr);

    int chosenOption() const { return chosenOption_; }
    RoundMode roundMode() const { return roundMode_; }
    bool multipleEntry() const { return multipleEntry_; }
    double entryValue() const { return entryValue_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Building (convformlayout.cpp).
    std::vector<CommandRow<ConvformCommand>> commandRows();
    QFrame* buildEntryPanel(QWidget* parent);
    QWidget* buildOptionFrames(QWidget* parent);
    QFrame* buildGridPanel(QWidget* parent);
    QFrame* buildCommandPanel(QWidget* parent);

    void chooseOption(int index);
    void showSingle(const ConversionOption& option);
    void showMultiple(const ConversionOption& option);
    void setRoundMode(RoundMode mode);
    void setMultipleEntry(bool multiple);
    // The unit labels stand beside the result in single entry and over the
    // grid in multiple entry.
    void placeUnitLabels();
    void entryBoxEntered();
    void clearChosenOption();

    std::unique_ptr<CommandTable<ConvformCommand>> commands_;
    QList<QWidget*> colouredPanels_;
    QLineEdit* entryBox_ = nullptr;          // Text1
    QLineEdit* endingBox_ = nullptr;         // Text2
    QLabel* entryCaption_ = nullptr;
    QLabel* endingCaption_ = nullptr;
    QLabel* fromUnit_ = nullptr;             // Label1: from unit and " = "
    QLabel* toUnit_ = nullptr;               // Label2: to unit
    QLabel* resultPanel_ = nullptr;          // Panel3D1
    QFrame* gridPanel_ = nullptr;
    ScreenGrid* grid_ = nullptr;             // Grid1
    QBoxLayout* resultRow_ = nullptr;        // where the unit labels stand in single entry
    QBoxLayout* gridLabelRow_ = nullptr;     // and in multiple entry
    QButtonGroup* options_ = nullptr;

    double entryValue_ = 0;                  // EntryValue
    RoundMode roundMode_ = RoundMode::None;  // RoundMode
    bool multipleEntry_ = false;             // MultipleEntry
    int chosenOption_ = kNoOption;           // ChosenOption
    bool entryTouched_ = false;              // EntryTouched
};
