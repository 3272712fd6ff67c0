#include "Platform/Updater/PackageFile.h"

#include "Support/LocalizedMessage.h"
#include "Support/MainThread.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace brisklet {

namespace {

constexpr qint64 kSecondsADay = qint64{24} * 60 * 60;

QString suffix() {
    return QStringLiteral(".part");
}

/// False if another program has the lock. File systems without locks keep nobody away.
bool lock(const QFile& file) {
    while (::flock(file.handle(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EINTR)
            return errno != EWOULDBLOCK;
    }
    return true;
}

/// Whether the name is that of the open file.
bool isNamed(int descriptor, const QString& name) {
    struct stat open = {};
    struct stat named = {};
    return ::fstat(descriptor, &open) == 0 &&
           ::lstat(QFile::encodeName(name).constData(), &named) == 0 &&
           open.st_dev == named.st_dev && open.st_ino == named.st_ino;
}

bool isBeingDownloaded(const QFileInfo& entry) {
    QFile file(entry.filePath());
    return file.open(QIODevice::ReadOnly) && !lock(file);
}

} // namespace

PackageFile::PackageFile(const QString& path) : m_path(path), m_file(path + suffix()) {}

PackageFile::~PackageFile() {
    if (m_file.isOpen())
        m_file.remove();
}

bool PackageFile::create() {
    verifyMainThread();
    constexpr int kAttempts = 10;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        if (!QDir().mkpath(QFileInfo(m_path).path()) || !m_file.open(QIODevice::ReadWrite))
            return false;
        if (!lock(m_file)) {
            //: The new version of the program, by another window or session.
            m_reason = tr("It is being downloaded already.");
            m_file.close();
            return false;
        }
        if (isNamed(m_file.handle(), m_file.fileName()))
            return m_file.resize(0);
        // Before it was locked, another program completed or removed it.
        m_file.close();
    }
    return false;
}

bool PackageFile::flush() {
    if (!m_file.flush() || m_file.error() != QFileDevice::NoError)
        return false;
    while (::fsync(m_file.handle()) != 0) {
        if (errno == EINTR)
            continue;
        m_reason = localizedReason(std::error_code(errno, std::generic_category()));
        return false;
    }
    return true;
}

bool PackageFile::keep() {
    // The file’s own lock ends with its descriptor, and its name must not be free before.
    const int second = ::dup(m_file.handle());
    // All is on disk: what closing it says is of no interest.
    m_file.close();
    const bool isRenamed = std::rename(QFile::encodeName(m_file.fileName()).constData(),
                                       QFile::encodeName(m_path).constData()) == 0;
    const std::error_code error(errno, std::generic_category());
    // A disk across the network may have lost its answer only.
    const bool isKept = isRenamed || isNamed(second, m_path);
    if (!isKept) {
        m_reason = localizedReason(error);
        m_file.remove();
    }
    ::close(second);
    return isKept;
}

QString PackageFile::failure() const {
    return tr("The update can’t be stored: %1")
        .arg(m_reason.isEmpty() ? localizedReason(m_file) : m_reason);
}

void removeOldPackages(const QString& folder, const QDateTime& now) {
    for (const QFileInfo& entry : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden)) {
        const bool isOfUse = entry.fileName().endsWith(suffix())
                                 ? isBeingDownloaded(entry)
                                 : entry.lastModified().secsTo(now) < kSecondsADay;
        if (!isOfUse)
            QFile::remove(entry.filePath());
    }
}

} // namespace brisklet
