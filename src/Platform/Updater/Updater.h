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

class QFile;
class QNetworkAccessManager;
class QSettings;

namespace brisklet {

class Download;

/// What an updater is made for. Fixed when the program is built, but for tests.
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
    /// From the start to the first look: the window stands well before.
    std::chrono::milliseconds firstLook{10'000};
};

/// Looks for a newer release of the program in its feed, by command and once a day, offers it, and
/// downloads and checks its package.
///
///     Idle ──check──▶ Checking ──newer──▶ Offering ──install──▶ Downloading ──genuine──▶ opened
///
/// Each state falls back to Idle on failure, cancellation or another answer. What a check by itself
/// finds wrong is not shown; what a command finds is. Main thread.
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

    /// Checks by the user's command, and shows how it goes.
    void checkForUpdates();

    /// Checks where a day has passed since the last time; started instances do so by themselves.
    /// `now` is the current time.
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
    /// Made by the first check: most runs of the program do without.
    QNetworkAccessManager* m_network = nullptr;
    QBuffer m_feed;
    AppcastItem m_item;
    std::unique_ptr<QFile> m_package;
    Download* m_download = nullptr;
    QTimer m_daily;
};

} // namespace brisklet
