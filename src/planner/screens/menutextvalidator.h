#pragma once
// What the planner's text boxes take. Typing stops at 30 characters, a key
// filter's work: a box may hold a longer text that the program put there (a
// day's line of 32 characters, a list item from a file), which shows whole
// and may be shortened, where a maximum length would cut it. What reaches
// the box by any road (typing, pasting, dropping) never holds a double
// quote, which would break the quoted-line list files, nor more than the 32
// characters a day's line can keep.
#include <QValidator>

class QKeyEvent;
class QLineEdit;

class MenuTextValidator final : public QValidator {
    Q_OBJECT
public:
    // Becomes `box`'s validator.
    explicit MenuTextValidator(QLineEdit* box);

    State validate(QString& input, int& pos) const override;
};

// True when `key` would type a character into `box` beyond the 30 that may
// be typed: the key is to be dropped.
bool RefusesTypedKey(const QLineEdit* box, const QKeyEvent* key);
