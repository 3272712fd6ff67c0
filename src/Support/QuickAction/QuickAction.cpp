#include "Support/QuickAction/QuickAction.h"

#include "Support/LocalizedMessage.h"
#include "Support/MainThread.h"
#include "Support/QuickAction/WorkflowDocument.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>

#include <stdexcept>
#include <system_error>

namespace brisklet {

namespace {

namespace fs = std::filesystem;

/// `sentence` has places for the item and for the reason.
[[noreturn]] void fail(const QString& sentence, const fs::path& item, const QString& reason) {
    throw std::runtime_error(
        media::filled(sentence.toStdString(), {item.filename().string(), reason.toStdString()}));
}

void makeFolder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error)
        //: %1: a file’s or folder’s name; %2: the reason. So it is in the next three.
        fail(QuickAction::tr("“%1” couldn’t be made: %2"), folder, localizedReason(error));
}

void writeText(const fs::path& path, const QString& text) {
    QSaveFile file{QFile::decodeName(path.string().c_str())};
    const QByteArray bytes = text.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        fail(QuickAction::tr("“%1” couldn’t be written: %2"), path, localizedReason(file));
}

/// The program's own icon in the bundle's format; empty if it is not installed.
fs::path programIcon() {
    const QString found = QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                                                 QStringLiteral("brisklet/AppIcon.icns"));
    return QFile::encodeName(found).toStdString();
}

} // namespace

QuickAction& QuickAction::shared() {
    static QuickAction action;
    return action;
}

QuickAction::QuickAction() {
    std::error_code ignored;
    m_isInstalled = fs::exists(workflowPath(), ignored);
}

const fs::path& QuickAction::workflowPath() {
    static const fs::path path = fs::path(QFile::encodeName(QDir::homePath()).toStdString()) /
                                 "Library/Services/Trim Video.workflow";
    return path;
}

void QuickAction::writeWorkflow(const fs::path& to) {
    const fs::path contents = to / "Contents";
    std::error_code ignored;
    fs::remove_all(to, ignored);
    makeFolder(contents);

    QString iconName = QStringLiteral("NSActionTemplate");
    if (const fs::path icon = programIcon(); !icon.empty()) {
        const fs::path copy = contents / "Resources" / "workflowCustomImage.icns";
        makeFolder(copy.parent_path());
        std::error_code error;
        fs::copy_file(icon, copy, error);
        if (error)
            fail(tr("“%1” couldn’t be copied: %2"), icon, localizedReason(error));
        iconName = QStringLiteral("workflowCustomImage");
    }
    writeText(contents / "Info.plist", serviceDeclaration(iconName));
    writeText(contents / "document.wflow", workflowDocument());
}

void QuickAction::install() {
    verifyMainThread();
    writeWorkflow(workflowPath());
    refreshServicesRegistry();
    m_isInstalled = true;
}

void QuickAction::uninstall() {
    verifyMainThread();
    std::error_code error;
    const bool isThere = fs::exists(fs::symlink_status(workflowPath(), error));
    if (!isThere)
        fail(tr("“%1” couldn’t be removed: %2"), workflowPath(), tr("It doesn’t exist."));
    fs::remove_all(workflowPath(), error);
    if (error)
        fail(tr("“%1” couldn’t be removed: %2"), workflowPath(), localizedReason(error));
    refreshServicesRegistry();
    m_isInstalled = false;
}

void QuickAction::refreshServicesRegistry() {
    QProcess::startDetached(QStringLiteral("/System/Library/CoreServices/pbs"),
                            {QStringLiteral("-update")});
}

} // namespace brisklet
