#pragma once
// The "Exercise Plan and Information" panel: the three plan fields, the
// comments with their length counter, the physician warning, and the two
// photograph slots (beginning and current), each with its thumbnail, its
// "Add/Edit" and "Click to Enlarge" commands and its date field.
#include <QFrame>

#include <array>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

// Slot 0 is the beginning picture, slot 1 the current one.
inline constexpr int kPhotoSlots = 2;

struct PhotoSlotWidgets {
    QLabel* caption = nullptr;      // "Beginning Picture" / "Current Picture   "
    QLabel* thumbnail = nullptr;
    QPushButton* addEdit = nullptr;
    QPushButton* enlarge = nullptr;
    QLineEdit* date = nullptr;
};

class PlanPanel final : public QFrame {
    Q_OBJECT
public:
    explicit PlanPanel(QWidget* parent);

    QLineEdit* daysPerWeek() const { return days_; }        // Text5
    QLineEdit* timePerPeriod() const { return time_; }      // Text6
    QLineEdit* exerciseTypes() const { return types_; }     // Text7
    QPlainTextEdit* comments() const { return comments_; }  // Text10
    QLabel* counter() const { return counter_; }
    const PhotoSlotWidgets& slot(int index) const { return slots_[size_t(index)]; }

    // Shows `path` fitted as a thumbnail (an empty slot or a file that does
    // not load leaves it empty).
    void showThumbnail(int index, const QString& path);
    void showCommentLength(int length);

private:
    QWidget* buildSlot(int index);

    QLineEdit* days_ = nullptr;
    QLineEdit* time_ = nullptr;
    QLineEdit* types_ = nullptr;
    QPlainTextEdit* comments_ = nullptr;
    QLabel* counter_ = nullptr;
    std::array<PhotoSlotWidgets, kPhotoSlots> slots_;
};
