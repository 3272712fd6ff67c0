#include "Platform/FileDialogPanels.h"

#include "Platform/SavePlace.h"
#include "Support/FileUrl.h"
#include "Support/MainThread.h"
#include "Support/Preferences.h"

#include <QCoroFuture>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFuture>
#include <QMessageBox>
#include <QPixmapCache>
#include <QPromise>
#include <QStandardPaths>

#include <array>
#include <memory>
#include <string>
#include <utility>

namespace brisklet {

namespace {

using Answer = std::optional<QUrl>;

/// The file name extensions of movies, in lower and upper case: some dialogs are case-sensitive,
/// and many cameras write upper case.
QString movieFilter() {
    static constexpr auto kExtensions = std::to_array<const char*>(
        {"mp4", "m4v",  "mov", "qt",  "mkv", "webm", "avi", "mpg", "mpeg", "m2v", "ts",
         "mts", "m2ts", "3gp", "3g2", "wmv", "asf",  "flv", "f4v", "ogv",  "mxf", "vob"});
    QStringList patterns;
    for (const char* extension : kExtensions) {
        const QString pattern = QStringLiteral("*.") + QString::fromLatin1(extension);
        patterns << pattern << QStringLiteral("*.") + QString::fromLatin1(extension).toUpper();
    }
    //: A type of files in the open panel; %1: patterns of names.
    return QFileDialog::tr("Videos (%1)").arg(patterns.join(u' '));
}

QString openFolderKey() {
    return QStringLiteral("openFolder");
}

/// The folder in which a video was picked last, else the user's folder for videos, if they exist.
QUrl folderToOpenIn() {
    const QString last = openPreferences()->value(openFolderKey()).toString();
    const QString videos = QStandardPaths::writableLocation(QStandardPaths::MoviesLocation);
    for (const QString& folder : {last, videos}) {
        if (!folder.isEmpty() && QFileInfo(folder).isDir())
            return QUrl::fromLocalFile(folder);
    }
    return QUrl::fromLocalFile(QDir::homePath());
}

void rememberFolderOf(const QUrl& file) {
    if (!isOnThisComputer(file))
        return;
    const auto preferences = openPreferences();
    const std::string folder = pathOf(file).parent_path().string();
    storePreference(*preferences, openFolderKey(), QFile::decodeName(folder.c_str()));
}

/// Shows the dialog; the future gets its answer. The dialog deletes itself.
QFuture<Answer> ask(QFileDialog* dialog) {
    // A hint: some desktops' dialogs return other schemes all the same.
    dialog->setSupportedSchemes({QStringLiteral("file")});
    const auto promise = std::make_shared<QPromise<Answer>>();
    promise->start();
    const auto answer = [promise](Answer url) {
        if (!promise->future().isFinished()) {
            promise->addResult(std::move(url));
            promise->finish();
        }
    };
    QObject::connect(dialog, &QDialog::finished, dialog, [dialog, answer](int result) {
        const QList<QUrl> urls = dialog->selectedUrls();
        answer(result == QDialog::Accepted && !urls.isEmpty() ? Answer(urls.first()) : Answer());
    });
    QObject::connect(dialog, &QObject::destroyed, [answer] {
        answer({});
        // Each of Qt’s own dialogs has icons of its own, whose pictures nothing asks for again:
        // they would fill the cache.
        QPixmapCache::clear();
    });
    QFuture<Answer> future = promise->future();
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
    return future;
}

QFileDialog* makeSavePanel(QWidget* window, const SaveProposal& proposal) {
    //: The title of the save panel, a noun.
    auto* dialog = new QFileDialog(window, QFileDialog::tr("Export"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilter(QStringLiteral("%1 (*.%2)").arg(proposal.typeName, proposal.extension));
    dialog->setDefaultSuffix(proposal.extension);
    dialog->setDirectoryUrl(proposal.folder);
    dialog->selectFile(proposal.fileName);
    return dialog;
}

/// Shows a message over the window; the future finishes when it is dismissed or the window goes.
QFuture<void> tell(QWidget* window, const QString& sentence) {
    auto* box = new QMessageBox(QMessageBox::Warning, QFileDialog::tr("Export"), sentence,
                                QMessageBox::Ok, window);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    const auto promise = std::make_shared<QPromise<void>>();
    promise->start();
    QObject::connect(box, &QObject::destroyed, [promise] { promise->finish(); });
    QFuture<void> future = promise->future();
    box->open();
    return future;
}

} // namespace

FileDialogPanels::FileDialogPanels(QWidget* window, std::shared_ptr<RemoteFiles> remoteFiles)
    : m_window(window), m_remoteFiles(std::move(remoteFiles)) {}

QCoro::Task<std::optional<QUrl>> FileDialogPanels::openMovie() {
    verifyMainThread();
    //: The title of the open panel.
    auto* dialog = new QFileDialog(m_window, QFileDialog::tr("Open"));
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFile);
    // There are too many patterns to show them all.
    dialog->setOption(QFileDialog::HideNameFilterDetails);
    dialog->setNameFilters({movieFilter(), QFileDialog::tr("All files (*)")});
    dialog->setDirectoryUrl(folderToOpenIn());
    const QFuture<Answer> asked = ask(dialog);
    const Answer answer = co_await asked;
    if (answer)
        rememberFolderOf(*answer);
    co_return answer;
}

QCoro::Task<std::optional<QUrl>> FileDialogPanels::saveMovie(SaveProposal proposal) {
    verifyMainThread();
    while (m_window) {
        const QFuture<Answer> asked = ask(makeSavePanel(m_window, proposal));
        const Answer answer = co_await asked;
        if (!answer)
            co_return std::nullopt;
        auto finding = findSavePlace(m_remoteFiles, *answer, proposal);
        const SavePlace place = co_await finding;
        if (place.objection.isEmpty() && !place.isToBeConfirmed)
            co_return place.file;
        if (!place.objection.isEmpty()) {
            if (!m_window)
                break;
            const QFuture<void> told = tell(m_window, place.objection);
            co_await told;
        } else {
            // The user has not been asked about replacing this one: ask again, with its full name.
            proposal.fileName = displayName(place.file);
        }
        if (isOnThisComputer(place.file))
            proposal.folder = urlOf(pathOf(place.file).parent_path());
    }
    co_return std::nullopt;
}

} // namespace brisklet
