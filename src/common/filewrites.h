#pragma once
// Every write of the program's files passes through here: slot writes of the
// random-access files and whole-file rewrites. A write either holds or says
// it did not, so no caller can lose work without knowing.
//
// Whole-file rewrites are made whole beside the old file and switched in one
// step (QSaveFile); then the folder itself is synced, so that after a power
// cut the name holds either the old file or the new one, never a part.
// Slot writes change their slot in place and are flushed at once.
//
// Tests hang a fault plan on the seam below: fail the k-th write, or stop the
// process right after it, and look at what the files hold afterwards. The
// program itself never sets it.
#include <QByteArrayView>
#include <QString>
#include <functional>

// What a command's writes did: all held, or the file of the first that did
// not (the command wrote nothing after it).
struct WriteOutcome {
    QString failedFile;

    bool held() const { return failedFile.isEmpty(); }
    explicit operator bool() const { return held(); }
    static WriteOutcome Held() { return {}; }
    static WriteOutcome FailedOn(const QString& fileName) { return {fileName}; }
    bool operator==(const WriteOutcome&) const = default;
};

// The whole file `name` (resolved case-blind) becomes `bytes`. False, and the
// old file as it was, when anything failed.
bool WriteWholeFile(const QString& name, QByteArrayView bytes);
// The same for a path the user chose, used exactly as given.
bool WriteWholeFileAt(const QString& path, QByteArrayView bytes);

// The file at `from` takes the place of the file at `to` in one rename (both
// paths used exactly as given), its bytes on the disk first: after a crash
// the name `to` holds either the old file or the new one. False, and both
// files as they were, when it failed.
bool ReplaceFile(const QString& from, const QString& to);

namespace FileWriteSeam {
// Asked before each write with the file's name; false makes the write fail
// as a full disk would, before any byte is written.
using BeforeWrite = std::function<bool(const QString& fileName)>;
// Told after each write that held.
using AfterWrite = std::function<void(const QString& fileName)>;
void set(BeforeWrite before, AfterWrite after);
void clear();
// For the file layer: whether the write may go ahead, and that it held.
bool allows(const QString& fileName);
void held(const QString& fileName);
} // namespace FileWriteSeam
