#include "print/screens/pagepreview.h"

#include "print/screens/pagepainter.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

// Draws one page as white paper with a shadow, scaled to the width given.
class PageView final : public QWidget {
public:
    explicit PageView(QWidget* parent) : QWidget(parent) {}

    void show(const PageDocument* document, int page, bool guideLines)
    {
        document_ = document;
        page_ = page;
        guideLines_ = guideLines;
        QWidget::update();
    }
    // Sizes the view so the page is `paperWidth` pixels wide.
    void setPaperWidth(int paperWidth)
    {
        if (!document_ || document_->pageWidth <= 0)
            return;
        const int height = qRound(paperWidth * document_->pageHeight / document_->pageWidth);
        setFixedSize(paperWidth + 2 * kBorder, height + 2 * kBorder);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        if (!document_ || document_->pageWidth <= 0)
            return;
        QPainter painter(this);
        const QRect paper(kBorder, kBorder, width() - 2 * kBorder - kShadow, height() - 2 * kBorder - kShadow);
        painter.fillRect(paper.translated(kShadow, kShadow), QColor(80, 80, 80));
        painter.fillRect(paper, Qt::white);
        painter.translate(paper.topLeft());
        PaintPage(painter, *document_, page_, paper.width() / document_->pageWidth, guideLines_);
    }

private:
    static constexpr int kBorder = 8;
    static constexpr int kShadow = 4;
    const PageDocument* document_ = nullptr;
    int page_ = 0;
    bool guideLines_ = false;
};

PagePreview::PagePreview(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("VSPrinter1"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* navigation = new QHBoxLayout;
    previous_ = new QPushButton(QStringLiteral("<"), this);
    previous_->setObjectName(QStringLiteral("PreviousPage"));
    previous_->setToolTip(QStringLiteral("Previous Page"));
    next_ = new QPushButton(QStringLiteral(">"), this);
    next_->setObjectName(QStringLiteral("NextPage"));
    next_->setToolTip(QStringLiteral("Next Page"));
    pageNumber_ = new QLabel(this);
    pageNumber_->setObjectName(QStringLiteral("PageNumber"));
    navigation->addWidget(previous_);
    navigation->addWidget(pageNumber_);
    navigation->addWidget(next_);
    navigation->addStretch();
    layout->addLayout(navigation);
    scroll_ = new QScrollArea(this);
    scroll_->setBackgroundRole(QPalette::Dark);
    scroll_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    view_ = new PageView(scroll_);
    scroll_->setWidget(view_);
    scroll_->viewport()->installEventFilter(this);
    layout->addWidget(scroll_, 1);
    connect(previous_, &QPushButton::clicked, this, [this] { showPage(page_ - 1); });
    connect(next_, &QPushButton::clicked, this, [this] { showPage(page_ + 1); });
    refresh();
}

void PagePreview::setDocument(PageDocument document)
{
    document_ = std::move(document);
    page_ = qBound(0, page_, qMax(0, document_.pageCount() - 1));
    refresh();
}

void PagePreview::showPage(int index)
{
    if (index < 0 || index >= document_.pageCount())
        return;
    page_ = index;
    refresh();
}

void PagePreview::setGuideLines(bool on)
{
    guideLines_ = on;
    refresh();
}

void PagePreview::setLarge(bool large)
{
    large_ = large;
    refresh();
}

bool PagePreview::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == scroll_->viewport() && event->type() == QEvent::Resize)
        refresh();
    return QWidget::eventFilter(watched, event);
}

void PagePreview::refresh()
{
    const int pages = document_.pageCount();
    pageNumber_->setText(pages > 0 ? QStringLiteral("Page %1 of %2").arg(page_ + 1).arg(pages) : QString());
    previous_->setEnabled(page_ > 0);
    next_->setEnabled(page_ + 1 < pages);
    view_->show(&document_, page_, guideLines_);
    // Normal size: the whole page in view. Large: the page as wide as the view.
    const QSize room = scroll_->viewport()->size() - QSize(24, 24);
    const double aspect = document_.pageWidth > 0 ? document_.pageHeight / document_.pageWidth : 1.3;
    const int fitWidth = qMax(100, room.width());
    const int fitPage = qMax(80, qMin(fitWidth, int(room.height() / aspect)));
    view_->setPaperWidth(large_ ? fitWidth : fitPage);
}

