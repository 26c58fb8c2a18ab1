#pragma once
// The page preview of the print options panel: one page of the composed
// document at a time, with buttons to the previous and next page. Normal
// size fits the whole page in view; the large view fits the page's width
// and scrolls.
#include "print/logic/pagedocument.h"

#include <QWidget>

class QLabel;
class QPushButton;
class QScrollArea;
class PageView;

class PagePreview final : public QWidget {
    Q_OBJECT
public:
    explicit PagePreview(QWidget* parent = nullptr);

    // Shows `document`, staying on the page in view when it still exists.
    void setDocument(PageDocument document);
    const PageDocument& document() const { return document_; }

    // 0-based page in view.
    int currentPage() const { return page_; }
    void showPage(int index);

    void setGuideLines(bool on);
    bool guideLines() const { return guideLines_; }

    void setLarge(bool large);
    bool large() const { return large_; }

protected:
    // The page is sized to the scroll area's viewport whenever that changes.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void refresh();

    PageDocument document_;
    int page_ = 0;
    bool guideLines_ = false;
    bool large_ = false;
    QScrollArea* scroll_ = nullptr;
    PageView* view_ = nullptr;
    QPushButton* previous_ = nullptr;
    QPushButton* next_ = nullptr;
    QLabel* pageNumber_ = nullptr;
};
