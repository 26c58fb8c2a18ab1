#pragma once
// A panel that opens over a screen (rename, titles, calculator, search, the
// shopping list's select panels): a raised frame in the screen's panel
// colour with a bold caption at the top, the panel's own rows, and a row of
// command buttons at the bottom. Opening sizes it to its contents, never
// larger than the screen under it, and brings it up in front; Escape inside
// it asks the screen to close it.
#include <QFrame>

class QBoxLayout;
class QFormLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

class OverlayPanel : public QFrame {
    Q_OBJECT
public:
    OverlayPanel(const QString& objectName, const QString& caption, QWidget* parent);

    QLabel* captionLabel() const { return caption_; }
    // The panel's own rows, between the caption and the buttons.
    QVBoxLayout* body() const { return body_; }
    // Labelled rows in the body, made on first use.
    QFormLayout* form();
    // A command button at the end of the button row.
    QPushButton* addButton(const QString& objectName, const QString& caption);

    // Sizes the panel to its contents and shows it in front; `focus` takes
    // the keyboard.
    void open(QWidget* focus = nullptr);
    // Places the panel in its parent: centred across, `fromTop` of the free
    // height down (0.5 centres it).
    void centreInParent(double fromTop = 0.5);
    bool isOpen() const { return isVisible(); }

    // Hiding the panel with the keyboard in it hands the keyboard to the
    // screen under it first: Qt would pass it on to the next field as if
    // the user had tabbed there.
    void setVisible(bool visible) override;

signals:
    // Escape was pressed inside the panel.
    void closeRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLabel* caption_ = nullptr;
    QVBoxLayout* body_ = nullptr;
    QFormLayout* form_ = nullptr;
    QHBoxLayout* buttons_ = nullptr;
};

