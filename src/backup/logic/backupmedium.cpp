#include "backup/logic/backupmedium.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr qint64 kWholeCopyLimit = 1024 * 1024;
constexpr qint64 kCopyChunk = 64 * 1024;

qint64 FolderBytes(const QString& folder)
{
    qint64 total = 0;
    for (const QFileInfo& info : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden))
        total += info.size();
    return total;
}

} // namespace

QString FindInFolder(const QString& folder, const QString& name)
{
    const QDir dir(folder);
    if (QFileInfo::exists(dir.filePath(name)))
        return dir.filePath(name);
    for (const QString& entry : dir.entryList(QDir::Files | QDir::Hidden)) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return dir.filePath(entry);
    }
    return {};
}

BackupMedium::BackupMedium(QString folder) : folder_(std::move(folder)) {}

BackupMedium::~BackupMedium() = default;

std::map<QString, QString>& BackupMedium::names() const
{
    if (!names_) {
        names_.emplace();
        for (const QString& entry : QDir(folder_).entryList(QDir::Files | QDir::Hidden))
            names_->emplace(entry.toLower(), entry);
    }
    return *names_;
}

QString BackupMedium::pathOf(const QString& name) const
{
    const auto found = names().find(name.toLower());
    return QDir(folder_).filePath(found == names().end() ? name : found->second);
}

QFile* BackupMedium::openFile(const QString& name)
{
    const QString key = name.toLower();
    if (auto it = open_.find(key); it != open_.end())
        return it->second.get();
    auto file = std::make_unique<QFile>(pathOf(name));
    // Unbuffered, so a full disk fails the write that does not fit rather
    // than a later flush.
    if (!file->open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return nullptr;
    names().emplace(key, QFileInfo(file->fileName()).fileName());
    return open_.emplace(key, std::move(file)).first->second.get();
}

qint64 BackupMedium::sizeOf(const QString& name)
{
    if (auto it = open_.find(name.toLower()); it != open_.end())
        return it->second->size();
    if (!names().contains(name.toLower()))
        return 0;
    return QFileInfo(pathOf(name)).size();
}

bool BackupMedium::writeAt(const QString& name, qint64 offset, QByteArrayView bytes)
{
    QFile* file = openFile(name);
    if (!file)
        return false;
    const qint64 growth = std::max<qint64>(0, offset + bytes.size() - file->size());
    if (growth > 0 && !allowsGrowth(growth))
        return false;
    const qint64 sizeBefore = file->size();
    if (!file->seek(offset) || file->write(bytes.data(), bytes.size()) != bytes.size()) {
        file->resize(sizeBefore);
        return false;
    }
    grew(growth);
    return true;
}

bool BackupMedium::append(const QString& name, QByteArrayView bytes)
{
    return writeAt(name, sizeOf(name), bytes);
}

void BackupMedium::cut(const QString& name, qint64 size)
{
    if (QFile* file = openFile(name); file && file->size() > size) {
        file->resize(size);
        filesShrank();
    }
}

void BackupMedium::remove(const QString& name)
{
    const QString key = name.toLower();
    open_.erase(key);
    if (const auto found = names().find(key); found != names().end()) {
        QFile::remove(QDir(folder_).filePath(found->second));
        names().erase(found);
        filesShrank();
    }
}

void BackupMedium::removeEndingIn(const QStringList& suffixes)
{
    closeAll();
    const QDir dir(folder_);
    for (const QString& entry : dir.entryList(QDir::Files | QDir::Hidden)) {
        for (const QString& suffix : suffixes) {
            if (entry.endsWith(suffix, Qt::CaseInsensitive)) {
                QFile::remove(dir.filePath(entry));
                break;
            }
        }
    }
    names_.reset();
    filesShrank();
}

void BackupMedium::close(const QString& name)
{
    open_.erase(name.toLower());
}

void BackupMedium::closeAll()
{
    open_.clear();
}

bool BackupMedium::allowsGrowth(qint64)
{
    return true;
}

void BackupMedium::grew(qint64) {}

void BackupMedium::filesShrank() {}

LimitedMedium::LimitedMedium(QString folder, qint64 capacity)
    : BackupMedium(std::move(folder)), capacity_(capacity), used_(FolderBytes(this->folder()))
{
}

bool LimitedMedium::allowsGrowth(qint64 growth)
{
    return used_ + growth <= capacity_;
}

void LimitedMedium::grew(qint64 growth)
{
    used_ += growth;
}

void LimitedMedium::filesShrank()
{
    used_ = FolderBytes(folder());
}

MediumFactory PlainMedia()
{
    return [](const QString& folder) { return std::make_unique<BackupMedium>(folder); };
}

CopyResult CopyOntoMedium(const QString& sourcePath, BackupMedium& medium, const QString& name,
                          const std::function<void(qint64, qint64)>& copied)
{
    QFile source(sourcePath);
    if (sourcePath.isEmpty() || !source.open(QIODevice::ReadOnly))
        return CopyResult::SourceMissing;
    const qint64 size = source.size();
    const qint64 chunk = size > kWholeCopyLimit ? kCopyChunk : std::max<qint64>(size, 1);
    medium.remove(name);
    bool held = medium.writeAt(name, 0, {});
    for (qint64 done = 0; held && done < size;) {
        const QByteArray bytes = source.read(chunk);
        held = !bytes.isEmpty() && medium.writeAt(name, done, bytes);
        done += bytes.size();
        if (held && copied)
            copied(done, size);
    }
    if (held)
        medium.close(name);
    else
        medium.remove(name);
    return held ? CopyResult::Copied : CopyResult::Failed;
}
