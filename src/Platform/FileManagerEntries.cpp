#include "Platform/FileManagerEntries.h"

#include "Platform/Failures.h"
#include "Platform/MimeTypes.h"
#include "Support/LocalizedMessage.h"
#include "Support/Translations.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

#include <array>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

namespace brisklet::FileManagerEntries {

namespace {

namespace fs = std::filesystem;

/// In every file that this program writes, to tell them from files of others.
constexpr const char* kMark = "# Written by Brisklet, which replaces and removes this file.";
/// Far longer than any entry of this program; bytes.
constexpr qint64 kLongestEntry = 65536;

// Entries ask for URLs (%U). When asked for paths (%F), some file managers silently leave out
// remote files, and others download the whole video first, so that the export would be saved beside
// the copy.

/// An argument of an Exec line, quoted twice: by the rules of Exec lines, and by those of strings
/// in desktop entries.
QByteArray quotedForDesktopEntry(const fs::path& program) {
    QByteArray quoted = "\"";
    for (const char letter : program.string()) {
        if (letter == '"' || letter == '`' || letter == '$')
            quoted += "\\\\";
        else if (letter == '\\')
            quoted += "\\\\\\";
        else if (letter == '%')
            quoted += '%';
        quoted += letter;
    }
    return quoted + '"';
}

QByteArray quotedForShell(const fs::path& program) {
    QByteArray name = QByteArray::fromStdString(program.string());
    name.replace("'", "'\\''");
    return "'" + name + "'";
}

QByteArray mimeTypeList() {
    return movieMimeTypes().join(u';').toLatin1() + ';';
}

constexpr const char* kContext = "brisklet::FileManagerEntries";
//: An entry in the menus of file managers, for the selected videos. A file is named so: no slash.
constexpr const char* kTitle = QT_TRANSLATE_NOOP("brisklet::FileManagerEntries", "Trim Video");

/// A line of a desktop entry for each language, of which the file manager takes its own.
QByteArray inAllLanguages(const QByteArray& key, const char* text) {
    QByteArray lines = key + '=' + text + '\n';
    for (const QString& language : translatedLanguages()) {
        const QByteArray translated = translatedInto(language, kContext, text).toUtf8();
        if (translated != text)
            lines += key + '[' + language.toLatin1() + "]=" + translated + '\n';
    }
    return lines;
}

QByteArray title() {
    return inAllLanguages("Name", kTitle);
}

QByteArray dolphinServiceMenu(const fs::path& program) {
    return QByteArray(kMark) +
           "\n[Desktop Entry]\n"
           "Type=Service\n"
           "ServiceTypes=KonqPopupMenu/Plugin\n"
           "MimeType=" +
           mimeTypeList() +
           "\nActions=trimVideo;\n"
           "X-KDE-Priority=TopLevel\n"
           "\n[Desktop Action trimVideo]\n" +
           title() +
           "Icon=com.quorvan.brisklet\n"
           "Exec=" +
           quotedForDesktopEntry(program) + " %U\n";
}

QByteArray thunarSendTo(const fs::path& program) {
    return QByteArray(kMark) +
           "\n[Desktop Entry]\n"
           "Type=Application\n" +
           title() +
           "Icon=com.quorvan.brisklet\n"
           "Exec=" +
           quotedForDesktopEntry(program) + " %U\nMimeType=" + mimeTypeList() + "\n";
}

QByteArray nemoAction(const fs::path& program) {
    // The file names are URLs in quotation marks, which need no further quoting.
    return QByteArray(kMark) +
           "\n[Nemo Action]\n"
           "Active=true\n" +
           title() +
           inAllLanguages("Comment", QT_TRANSLATE_NOOP("brisklet::FileManagerEntries",
                                                       "Open the selected videos in Brisklet")) +
           "Icon-Name=com.quorvan.brisklet\n"
           "Exec=" +
           quotedForShell(program) +
           " %U\n"
           "Quote=double\n"
           "Selection=notnone\n"
           "Mimetypes=" +
           mimeTypeList() + "\n";
}

QByteArray nautilusScript(const fs::path& program) {
    // Scripts are offered for files of all types: those that are not videos are left out here.
    return QByteArray("#!/bin/sh\n") + kMark +
           "\n"
           // In remote folders scripts get URLs instead of names.
           "if [ $# -eq 0 ]; then\n"
           "    set -f\n"
           "    IFS='\n"
           "'\n"
           "    set -- $NAUTILUS_SCRIPT_SELECTED_URIS\n"
           "fi\n"
           "for file do\n"
           "    shift\n"
           "    case $(xdg-mime query filetype \"$file\" 2>/dev/null) in\n"
           "        ''|video/*|application/mxf|application/vnd.ms-asf) set -- \"$@\" \"$file\" ;;\n"
           "    esac\n"
           "done\n"
           "[ $# -gt 0 ] && exec " +
           quotedForShell(program) + " -- \"$@\"\n";
}

struct Entry {
    fs::path place;
    QByteArray (*content)(const fs::path& program);
    bool isExecutable;
};

/// Nautilus shows the name of the script.
fs::path scriptNamed(const QString& title) {
    return fs::path("nautilus/scripts") / title.toStdString();
}

/// The script as it is or has been called, in whichever language that was.
std::vector<fs::path> scriptsOfAllLanguages() {
    std::vector<fs::path> scripts{scriptNamed(QString::fromUtf8(kTitle))};
    for (const QString& language : translatedLanguages())
        scripts.push_back(scriptNamed(translatedInto(language, kContext, kTitle)));
    return scripts;
}

/// Dolphin ignores service menus in the user's folder unless they are executable.
std::array<Entry, 4> entries() {
    return {
        Entry{"kio/servicemenus/com.quorvan.brisklet.trim-video.desktop", dolphinServiceMenu, true},
        Entry{scriptNamed(QCoreApplication::translate(kContext, kTitle)), nautilusScript, true},
        Entry{"nemo/actions/com.quorvan.brisklet.trim-video.nemo_action", nemoAction, false},
        Entry{"Thunar/sendto/com.quorvan.brisklet.trim-video.desktop", thunarSendTo, false}};
}

QString textOf(const fs::path& path) {
    return QFile::decodeName(path.string().c_str());
}

/// Whether we may write a file: there is none of that name, or it is one that we wrote.
bool isFree(const fs::path& path) {
    std::error_code ignored;
    const fs::file_status status = fs::symlink_status(path, ignored);
    if (!fs::exists(status))
        return true;
    QFile file(textOf(path));
    return fs::is_regular_file(status) && file.open(QIODevice::ReadOnly) &&
           file.read(kLongestEntry).contains(kMark);
}

[[noreturn]] void failToWrite(const fs::path& path, const QString& reason) {
    //: %1: a file’s name; %2: the reason. So it is in the next one.
    const QString text =
        QCoreApplication::translate("brisklet::FileManagerEntries", "“%1” couldn’t be written: %2");
    throw std::runtime_error(
        media::filled(text.toStdString(), {path.string(), reason.toStdString()}));
}

[[noreturn]] void failToRemove(const fs::path& path, const QString& reason) {
    const QString text =
        QCoreApplication::translate("brisklet::FileManagerEntries", "“%1” couldn’t be removed: %2");
    throw std::runtime_error(
        media::filled(text.toStdString(), {path.string(), reason.toStdString()}));
}

void write(const fs::path& path, const QByteArray& content, bool isExecutable) {
    std::error_code error;
    fs::create_directories(path.parent_path(), error);
    if (error)
        failToWrite(path, localizedReason(error));
    auto permissions = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup |
                       QFileDevice::ReadOther;
    if (isExecutable)
        permissions |= QFileDevice::ExeOwner | QFileDevice::ExeGroup | QFileDevice::ExeOther;
    QSaveFile file(textOf(path));
    const bool isWritten = file.open(QIODevice::WriteOnly) &&
                           file.write(content) == content.size() &&
                           file.setPermissions(permissions) && file.commit();
    if (!isWritten)
        failToWrite(path, localizedReason(file));
}

/// Removes a file, and its parent folders as far as they are empty then.
void remove(const fs::path& dataFolder, const fs::path& place) {
    std::error_code error;
    const bool isRemoved = fs::remove(dataFolder / place, error);
    if (error && error != std::errc::not_a_directory)
        failToRemove(dataFolder / place, localizedReason(error));
    // This removes empty folders only.
    fs::path folder = place.parent_path();
    for (; isRemoved && !folder.empty(); folder = folder.parent_path())
        fs::remove(dataFolder / folder, error);
}

} // namespace

fs::path dataFolder() {
    return QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation))
        .toStdString();
}

void install(const fs::path& dataFolder, const fs::path& program) {
    Failures failures;
    for (const fs::path& script : scriptsOfAllLanguages()) {
        if (isFree(dataFolder / script))
            failures.in([&] { remove(dataFolder, script); });
    }
    for (const Entry& entry : entries()) {
        const fs::path path = dataFolder / entry.place;
        failures.in([&] {
            if (isFree(path))
                write(path, entry.content(program), entry.isExecutable);
        });
    }
    failures.throwAny();
}

void uninstall(const fs::path& dataFolder) {
    Failures failures;
    std::vector<fs::path> places = scriptsOfAllLanguages();
    for (const Entry& entry : entries())
        places.push_back(entry.place);
    for (const fs::path& place : places) {
        if (isFree(dataFolder / place))
            failures.in([&] { remove(dataFolder, place); });
    }
    failures.throwAny();
}

} // namespace brisklet::FileManagerEntries
