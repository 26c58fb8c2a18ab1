#pragma once
// The help window: one page per help topic number, read from the "Help"
// folder of the program folder (Help/1000.html for topic 1000). One window
// serves every screen; asking for a topic brings it up on that page.
#include <QTextBrowser>

class HelpWindow final : public QTextBrowser {
    Q_OBJECT
public:
    static HelpWindow* showTopic(int topic);

    int topic() const { return topic_; }

protected:
    // Escape closes the help window, as it closes every other one.
    void keyPressEvent(QKeyEvent* event) override;

private:
    HelpWindow();
    void load(int topic);

    int topic_ = 0;
};
