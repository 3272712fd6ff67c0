#include "Support/QuickAction/QuickAction.h"

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

[[noreturn]] void fail(const char* what, const fs::path& item, const std::string& reason) {
    throw std::runtime_error("“" + item.filename().string() + "” couldn’t be " + what + ": " +
                             reason);
}

void makeFolder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error)
        fail("made", folder, error.message());
}

void writeText(const fs::path& path, const QString& text) {
    QSaveFile file{QFile::decodeName(path.string().c_str())};
    const QByteArray bytes = text.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        fail("written", path, file.errorString().toStdString());
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
            fail("copied", icon, error.message());
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
        fail("removed", workflowPath(), "It doesn’t exist.");
    fs::remove_all(workflowPath(), error);
    if (error)
        fail("removed", workflowPath(), error.message());
    refreshServicesRegistry();
    m_isInstalled = false;
}

void QuickAction::refreshServicesRegistry() {
    QProcess::startDetached(QStringLiteral("/System/Library/CoreServices/pbs"),
                            {QStringLiteral("-update")});
}

} // namespace brisklet
