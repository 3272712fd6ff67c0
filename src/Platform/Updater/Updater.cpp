#include "Platform/Updater/Updater.h"

#include "Platform/Updater/Download.h"
#include "Platform/Updater/PackageFile.h"
#include "Platform/Updater/PackageSignature.h"
#include "Support/LocalizedMessage.h"
#include "Support/MainThread.h"

#include <QDir>
#include <QNetworkAccessManager>
#include <QSettings>

#include <exception>
#include <utility>

namespace brisklet {

namespace {

using namespace std::chrono_literals;

constexpr qint64 kLongestFeed = qint64{1024} * 1024;
constexpr qint64 kLongestPackage = qint64{1024} * 1024 * 1024;
/// That of a slow modem: a server that sends more slowly is not waited for.
constexpr qint64 kSlowestBytesPerSecond = 2048;
constexpr qint64 kSecondsADay = qint64{24} * 60 * 60;
/// How often the clock is compared: a single timer for a day would not count the time asleep.
constexpr auto kClockInterval = 1h;

QString skippedKey() {
    return QStringLiteral("skippedVersion");
}

QString lastCheckKey() {
    return QStringLiteral("lastCheck");
}

QString automaticKey() {
    return QStringLiteral("automaticChecks");
}

QString hasRunKey() {
    return QStringLiteral("hasRunBefore");
}

/// A plain file name from a URL, without path separators or a leading dot.
QString fileNameOf(const QUrl& url) {
    QString name;
    for (const QChar letter : url.fileName()) {
        const bool isPlain = letter.unicode() < 128 && (letter.isLetterOrNumber() ||
                                                        QStringLiteral("._-+~").contains(letter));
        name += isPlain ? letter : QChar(u'_');
    }
    while (name.startsWith(u'.'))
        name.remove(0, 1);
    return name.isEmpty() ? QStringLiteral("brisklet-update") : name;
}

} // namespace

Updater::Updater(UpdaterConfiguration configuration, UpdateDriver& driver, bool startingUpdater,
                 QObject* parent)
    : QObject(parent),
      m_configuration(std::move(configuration)),
      m_driver(driver),
      m_isStarted(startingUpdater && !m_configuration.feed.isEmpty()) {
    if (!m_isStarted)
        return;
    m_daily.setTimerType(Qt::VeryCoarseTimer);
    connect(&m_daily, &QTimer::timeout, this, [this] {
        m_daily.setInterval(kClockInterval);
        begin();
    });
    m_daily.start(m_configuration.firstLook);
}

Updater::~Updater() {
    delete std::exchange(m_download, nullptr);
}

void Updater::begin() {
    removeOldPackages(m_configuration.downloadFolder, QDateTime::currentDateTimeUtc());
    QSettings& settings = *m_configuration.settings;
    if (settings.contains(automaticKey())) {
        checkIfDue(QDateTime::currentDateTimeUtc());
        return;
    }
    // On the first run the user is not asked yet.
    if (!settings.value(hasRunKey()).toBool()) {
        settings.setValue(hasRunKey(), true);
        m_daily.stop();
        return;
    }
    m_daily.stop();
    m_driver.askForAutomaticChecks([self = QPointer(this)](bool allowed) {
        if (!self)
            return;
        self->m_configuration.settings->setValue(automaticKey(), allowed);
        if (allowed)
            self->m_daily.start(self->m_configuration.firstLook);
    });
}

bool Updater::canCheckForUpdates() const {
    return m_state == State::idle && !m_configuration.feed.isEmpty();
}

void Updater::checkForUpdates() {
    verifyMainThread();
    if (canCheckForUpdates())
        check(Mode::byCommand);
}

void Updater::checkIfDue(const QDateTime& now) {
    verifyMainThread();
    const QSettings& settings = *m_configuration.settings;
    if (!canCheckForUpdates() || !settings.value(automaticKey()).toBool())
        return;
    const QDateTime last = settings.value(lastCheckKey()).toDateTime();
    // A clock that was set back must not stop the checks for good.
    const bool isRecent = last.isValid() && last <= now && last.secsTo(now) < kSecondsADay;
    if (isRecent)
        return;
    m_configuration.settings->setValue(lastCheckKey(), now);
    check(Mode::byItself);
}

void Updater::check(Mode mode) {
    m_mode = mode;
    setState(State::checking);
    if (mode == Mode::byCommand)
        m_driver.showChecking([self = QPointer(this)] {
            if (self && self->m_state == State::checking)
                self->goIdle();
        });
    m_feed.close();
    m_feed.setData(QByteArray());
    m_feed.open(QIODevice::WriteOnly);
    startDownload(m_configuration.feed, m_feed, kLongestFeed, true);
}

void Updater::startDownload(const QUrl& url, QIODevice& into, qint64 most, bool isFeed) {
    std::chrono::milliseconds duration = m_configuration.longestWait;
    if (!isFeed)
        duration += std::chrono::seconds(most / kSlowestBytesPerSecond);
    const Download::Limits limits{
        .most = most, .duration = duration, .silence = m_configuration.longestSilence};
    m_download = new Download(network(), url, into, limits, this);
    if (isFeed) {
        connect(m_download, &Download::finished, this, &Updater::feedArrived);
        return;
    }
    connect(m_download, &Download::finished, this, &Updater::packageArrived);
    connect(m_download, &Download::progressed, this,
            [this](qint64 bytes) { m_driver.showDownloaded(bytes); });
}

QNetworkAccessManager& Updater::network() {
    if (m_network == nullptr)
        m_network = new QNetworkAccessManager(this);
    return *m_network;
}

void Updater::feedArrived(const QString& failure) {
    if (!failure.isEmpty()) {
        fail(tr("Couldn’t check for updates: %1").arg(failure));
        return;
    }
    std::optional<AppcastItem> update;
    try {
        update = newestUpdate(parseAppcast(m_feed.data()), m_configuration.currentVersion,
                              m_configuration.systemVersion);
    } catch (const std::exception& error) {
        fail(tr("Couldn’t check for updates: %1").arg(localizedMessage(error)));
        return;
    }
    const bool isByItself = m_mode == Mode::byItself;
    const bool isSkipped =
        update && isByItself &&
        m_configuration.settings->value(skippedKey()).toString() == update->version;
    if (update && !isSkipped) {
        offer(*update);
        return;
    }
    goIdle();
    if (!isByItself)
        m_driver.showUpToDate(m_configuration.currentVersion);
}

void Updater::offer(const AppcastItem& item) {
    endDownload();
    setState(State::offering);
    m_driver.showUpdate(item, m_configuration.currentVersion,
                        [self = QPointer(this), item](UpdateChoice choice) {
                            if (self && self->m_state == State::offering)
                                self->answered(item, choice);
                        });
}

void Updater::answered(const AppcastItem& item, UpdateChoice choice) {
    QSettings& settings = *m_configuration.settings;
    if (choice == UpdateChoice::skipThisVersion)
        settings.setValue(skippedKey(), item.version);
    else
        settings.remove(skippedKey());
    if (choice == UpdateChoice::install)
        downloadPackage(item);
    else
        goIdle();
}

void Updater::downloadPackage(const AppcastItem& item) {
    m_item = item;
    m_mode = Mode::byCommand;
    removeOldPackages(m_configuration.downloadFolder, QDateTime::currentDateTimeUtc());
    const QDir folder(m_configuration.downloadFolder);
    m_package = std::make_unique<PackageFile>(folder.filePath(fileNameOf(item.packageUrl)));
    setState(State::downloading);
    if (item.length > kLongestPackage) {
        fail(tr("The update is too large."));
        return;
    }
    if (!m_package->create()) {
        fail(m_package->failure());
        return;
    }
    m_driver.showDownload(item, [self = QPointer(this)] {
        if (self && self->m_state == State::downloading)
            self->goIdle();
    });
    startDownload(item.packageUrl, m_package->file(), item.length, false);
}

void Updater::packageArrived(const QString& failure) {
    if (!failure.isEmpty()) {
        fail(tr("The update couldn’t be downloaded: %1").arg(failure));
        return;
    }
    QFile& file = m_package->file();
    if (!m_package->flush())
        fail(m_package->failure());
    else if (file.size() != m_item.length)
        fail(tr("The update is incomplete. It hasn’t been installed."));
    else if (const auto isGenuine = isSigned(file, m_item.signature, m_configuration.publicKey);
             !isGenuine)
        fail(m_package->failure());
    else if (!*isGenuine)
        fail(tr("The update isn’t genuine: its signature is wrong. It hasn’t been installed."));
    else
        openChecked();
}

void Updater::openChecked() {
    if (!m_package->keep()) {
        fail(m_package->failure());
        return;
    }
    const QString name = m_package->path();
    m_package.reset();
    goIdle();
    if (!m_driver.openPackage(name))
        m_driver.showFailure(tr("There is no program to install the update with. "
                                "It is here: %1")
                                 .arg(name));
}

void Updater::endDownload() {
    if (m_download == nullptr)
        return;
    m_download->cancel();
    std::exchange(m_download, nullptr)->deleteLater();
}

void Updater::fail(const QString& message) {
    const bool isShown = m_mode == Mode::byCommand;
    goIdle();
    if (isShown)
        m_driver.showFailure(message);
}

void Updater::goIdle() {
    endDownload();
    m_package.reset();
    m_driver.dismiss();
    setState(State::idle);
}

void Updater::setState(State state) {
    const bool could = canCheckForUpdates();
    m_state = state;
    if (could != canCheckForUpdates())
        Q_EMIT canCheckForUpdatesChanged();
}

} // namespace brisklet
