#pragma once

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QString>

namespace brisklet {

/// The file that a package is downloaded into. Until it is kept its name ends in “.part”, and it is
/// locked: one without a lock is what a killed program has left behind. Main thread.
class PackageFile final {
    Q_DECLARE_TR_FUNCTIONS(PackageFile)

public:
    /// `path` is the package’s own name.
    explicit PackageFile(const QString& path);
    PackageFile(const PackageFile&) = delete;
    PackageFile& operator=(const PackageFile&) = delete;
    /// Removes it, unless it is kept.
    ~PackageFile();

    /// Creates the file and its folder, both empty of what an earlier download has left. False if
    /// that fails or if another program is downloading to it; see failure().
    bool create();

    /// Open for writing, after create().
    [[nodiscard]] QFile& file() { return m_file; }

    /// Brings all that was written to disk; false if that fails.
    bool flush();

    /// Gives it its own name, in place of an older file there; false if that fails.
    bool keep();

    [[nodiscard]] const QString& path() const { return m_path; }

    /// Why the last of these failed; a sentence for the user.
    [[nodiscard]] QString failure() const;

private:
    const QString m_path;
    QFile m_file;
    /// Empty where m_file knows it.
    QString m_reason;
};

/// Removes from a folder of packages what is of no use any more: unfinished ones that no program is
/// downloading, and others that have been there for a day and so have been installed or not wanted.
void removeOldPackages(const QString& folder, const QDateTime& now);

} // namespace brisklet
