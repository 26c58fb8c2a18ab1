#include "shell/kit/helpwindow.h"

#include "common/programfolder.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QPointer>

namespace {
// The program's own page, unless the user has put one of that topic in the
// program folder's Help folder: that one wins. Pages of the program come
// with the program, so an upgrade brings their new text.
QString TopicFile(int topic)
{
    const QString own = QDir(ProgramFolder()).filePath(QStringLiteral("Help/%1.html").arg(topic));
    return QFile::exists(own) ? own : QStringLiteral(":/help/%1.html").arg(topic);
}
} // namespace

HelpWindow::HelpWindow()
{
    setObjectName(QStringLiteral("HelpWindow"));
    setWindowTitle(QStringLiteral("Brindlepot Help"));
    setOpenLinks(true);
    setAttribute(Qt::WA_QuitOnClose, false); // help never keeps the program running
    resize(720, 560);
}

HelpWindow* HelpWindow::showTopic(int topic)
{
    static QPointer<HelpWindow> window;
    if (!window) {
        window = new HelpWindow;
        if (const QWidget* active = QApplication::activeWindow())
            window->move(active->geometry().center() - window->rect().center());
    }
    window->load(topic);
    window->show();
    window->raise();
    window->activateWindow();
    return window;
}

void HelpWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QTextBrowser::keyPressEvent(event);
}

void HelpWindow::load(int topic)
{
    topic_ = topic;
    const QString file = TopicFile(topic);
    if (QFile::exists(file)) {
        setSearchPaths({QFileInfo(file).path()});
        setSource(file.startsWith(u':') ? QUrl(QStringLiteral("qrc") + file) : QUrl::fromLocalFile(file));
    } else {
        setHtml(QStringLiteral("<h2>Brindlepot Help</h2><p>There is no help page for topic %1.</p>").arg(topic));
    }
}
