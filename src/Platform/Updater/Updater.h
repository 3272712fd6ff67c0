#pragma once

#include "Platform/Updater/Appcast.h"
#include "Platform/Updater/UpdateDriver.h"

#include <QBuffer>
#include <QDateTime>
#include <QObject>
#include <QTimer>
#include <QUrl>

#include <chrono>
#include <memory>

class QNetworkAccessManager;
class QSettings;

namespace brisklet {

class Download;
class PackageFile;

/// The configuration of an updater. Fixed when the program is built, except in tests.
struct UpdaterConfiguration {
    /// Empty where the program has no feed: then there are no updates.
    QUrl feed;
    /// Ed25519, 32 bytes.
    QByteArray publicKey;
    QString currentVersion;
    QString systemVersion;
    /// Where packages are downloaded to.
    QString downloadFolder;
    /// Remembers what the user chose and when it was checked last.
    std::shared_ptr<QSettings> settings;
    /// From the program's start to the first check, long after the window is shown.
    std::chrono::milliseconds firstLook{10'000};
    /// The longest that a feed may take; a package may take the time of the slowest line besides.
    std::chrono::milliseconds longestWait{60'000};
    /// The longest wait for a server that says nothing.
    std::chrono::milliseconds longestSilence{30'000};
};

/// Looks for a newer release of the program in its feed, on command and once a day, offers it,
/// downloads its package and verifies it.
///
///     Idle ──check──▶ Checking ──newer──▶ Offering ──install──▶ Downloading ──genuine──▶ opened
///
/// Each state falls back to Idle on failure, cancellation or another answer. Failures of a daily
/// check are not shown, those of a check on command are. Main thread.
class Updater final : public QObject {
    Q_OBJECT

public:
    /// `driver` outlives this. With `startingUpdater` it checks daily, once the user has agreed.
    Updater(UpdaterConfiguration configuration, UpdateDriver& driver, bool startingUpdater,
            QObject* parent = nullptr);
    ~Updater() override;

    /// Whether the command can be given now: there is a feed, and no check is under way.
    [[nodiscard]] bool canCheckForUpdates() const;

    [[nodiscard]] bool isStarted() const { return m_isStarted; }

    /// Checks on the user's command, and shows progress and failures.
    void checkForUpdates();

    /// Checks if a day has passed since the last check; instances with `startingUpdater` call it
    /// themselves. `now` is the current time.
    void checkIfDue(const QDateTime& now);

Q_SIGNALS:
    void canCheckForUpdatesChanged();

private:
    enum class State { idle, checking, offering, downloading };
    enum class Mode { byCommand, byItself };

    void begin();
    void check(Mode mode);
    void feedArrived(const QString& failure);
    void offer(const AppcastItem& item);
    void answered(const AppcastItem& item, UpdateChoice choice);
    void downloadPackage(const AppcastItem& item);
    void packageArrived(const QString& failure);
    void openChecked();
    void endDownload();
    void fail(const QString& message);
    void goIdle();
    void setState(State state);
    void startDownload(const QUrl& url, QIODevice& into, qint64 most, bool isFeed);
    QNetworkAccessManager& network();

    const UpdaterConfiguration m_configuration;
    UpdateDriver& m_driver;
    const bool m_isStarted;
    State m_state = State::idle;
    Mode m_mode = Mode::byItself;
    /// Created by the first check, since most runs of the program do not need it.
    QNetworkAccessManager* m_network = nullptr;
    QBuffer m_feed;
    AppcastItem m_item;
    std::unique_ptr<PackageFile> m_package;
    Download* m_download = nullptr;
    QTimer m_daily;
};

} // namespace brisklet
