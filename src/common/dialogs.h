#pragma once
// Every message box, question, input box, colour, font, folder, page setup
// and print dialog of the program goes through this one interface, so that
// titles, texts, buttons and defaults are contracts that tests can read back.
// The real implementation shows Qt dialogs; tests use a scripted one.
#include "common/pagesetup.h"
#include "common/textfont.h"

#include <QString>
#include <QUrl>
#include <QtGlobal>

#include <functional>
#include <optional>

class QPagedPaintDevice;

// Button sets and icons keep the classic message-box values.
enum class Buttons { Ok = 0, OkCancel = 1, YesNoCancel = 3, YesNo = 4 };
enum class Icon { None = 0, Stop = 16, Question = 32, Exclamation = 48, Information = 64 };
// Answers keep their numbers: OK 1, Cancel 2, Yes 6, No 7.
enum class Answer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

struct Message {
    QString title;
    QString text;
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
    // 1-based index into the button set, as a message box's default button.
    int defaultButton = 1;

    bool operator==(const Message&) const = default;
};

struct InputRequest {
    QString title;
    QString prompt;
    QString defaultText;

    bool operator==(const InputRequest&) const = default;
};

struct FolderRequest {
    QString title;
    // Where the choice starts; the home folder when it does not exist.
    QString startFolder;

    bool operator==(const FolderRequest&) const = default;
};

// What became of a print job.
struct Printed {
    bool sent = false;   // the pages went to the printer or the file
    QString pdfFile;     // the file written, when printed to a PDF file

    bool operator==(const Printed&) const = default;
};

struct PrintJob {
    QString title;
    PageSetup setup;
    int pageCount = 0;
    // False when the device refused the painting.
    std::function<bool(QPagedPaintDevice& device, int first, int last)> render;
};

class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual Answer ask(const Message& message) = 0;
    // The text typed; the empty text when the user cancelled, as an input box.
    virtual QString input(const InputRequest& request) = 0;
    // Opens an address in the user's browser.
    virtual void openUrl(const QUrl& url) = 0;
    // The colour dialog, opened on `initial` (a COLORREF). The colour chosen,
    // or nothing when the user cancelled: the one dialog failure the program
    // handles (the old runtime's error 32755).
    virtual std::optional<qint32> chooseColor(qint32 initial) = 0;

    // The font dialog, preset from `initial`: the font chosen, or nothing
    // when the user cancelled.
    virtual std::optional<TextFont> chooseFont(const TextFont& initial) = 0;
    // A folder chooser with drive and folder lists: the folder chosen, or
    // nothing when the user cancelled.
    virtual std::optional<QString> chooseFolder(const FolderRequest& request) = 0;
    // The printer's page setup dialog: the paper and orientation chosen, or
    // nothing when the user cancelled.
    virtual std::optional<PageSetup> pageSetup(const PageSetup& current) = 0;
    // The print dialog for a document of `job.pageCount` pages. When the
    // user accepts, `job.render` paints pages `first` to `last` (1-based)
    // on the chosen device: a printer, or a PDF file for "print to file".
    virtual Printed print(const PrintJob& job) = 0;

    // A message with only an OK button.
    void tell(const QString& title, const QString& text, Icon icon = Icon::None)
    {
        ask({title, text, Buttons::Ok, icon, 1});
    }
};
