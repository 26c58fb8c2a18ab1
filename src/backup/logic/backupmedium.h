#pragma once
// Every write onto a backup medium (and, restoring, into the program folder)
// goes through a BackupMedium: a folder whose files are found case-blind and
// kept open between writes until closed. A write either holds whole or says
// it failed; on a real medium a full disk fails by itself. The medium keeps
// its own list of the folder's names: nothing else writes there meanwhile.
//
// LimitedMedium is a medium of a fixed capacity, the way a floppy fills: a
// write that would take the folder's bytes past the capacity fails before
// writing anything. Rewriting bytes a file already holds costs nothing.
#include <QByteArrayView>
#include <QFile>
#include <QString>

#include <functional>
#include <map>
#include <memory>
#include <optional>

class BackupMedium {
public:
    explicit BackupMedium(QString folder);
    virtual ~BackupMedium();
    BackupMedium(const BackupMedium&) = delete;
    BackupMedium& operator=(const BackupMedium&) = delete;

    const QString& folder() const { return folder_; }
    // The path of `name` in the folder: an existing file matching case-blind,
    // else the name as given.
    QString pathOf(const QString& name) const;
    qint64 sizeOf(const QString& name);

    // `bytes` at `offset` of the file `name`, created when missing.
    bool writeAt(const QString& name, qint64 offset, QByteArrayView bytes);
    bool append(const QString& name, QByteArrayView bytes);
    // Cuts the file back to `size` bytes (a block that did not all arrive).
    void cut(const QString& name, qint64 size);
    // Deleting a missing file is no failure.
    void remove(const QString& name);
    // Deletes every file whose name ends in one of `suffixes`, case-blind.
    void removeEndingIn(const QStringList& suffixes);
    void close(const QString& name);
    void closeAll();

protected:
    // Asked before a write that makes the folder `growth` bytes larger.
    virtual bool allowsGrowth(qint64 growth);
    virtual void grew(qint64 growth);
    // Told when files were deleted or cut.
    virtual void filesShrank();

private:
    QFile* openFile(const QString& name);
    // The folder's file names by their lower-case form, read once.
    std::map<QString, QString>& names() const;

    QString folder_;
    std::map<QString, std::unique_ptr<QFile>> open_;
    mutable std::optional<std::map<QString, QString>> names_;
};

class LimitedMedium final : public BackupMedium {
public:
    LimitedMedium(QString folder, qint64 capacity);
    qint64 used() const { return used_; }

protected:
    bool allowsGrowth(qint64 growth) override;
    void grew(qint64 growth) override;
    void filesShrank() override;

private:
    qint64 capacity_;
    qint64 used_ = 0;
};

// How the engine gets the medium in a folder: plain in the program, limited
// in tests and benchmarks.
using MediumFactory = std::function<std::unique_ptr<BackupMedium>(const QString& folder)>;
MediumFactory PlainMedia();

// The file `name` in `folder`, matched case-blind; empty when there is none.
QString FindInFolder(const QString& folder, const QString& name);

// Copies a whole file onto the medium: files over 1 MB in 64 KiB chunks,
// telling `copied` the bytes done after each. A failed copy leaves no part
// of the file behind.
enum class CopyResult { Copied, SourceMissing, Failed };
CopyResult CopyOntoMedium(const QString& sourcePath, BackupMedium& medium, const QString& name,
                          const std::function<void(qint64 copied, qint64 size)>& copied = {});
