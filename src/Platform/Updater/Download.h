#pragma once

#include <QIODevice>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QUrl>

#include <chrono>
#include <memory>

class QNetworkAccessManager;

namespace brisklet {

/// Whether an address may be used: HTTPS, or HTTP to this machine.
bool isSafeAddress(const QUrl& url);

/// Downloads one file into a device: only from safe addresses, also after a redirection, and never
/// more bytes than expected. Emits finished() exactly once, but not if it is destroyed before. Main
/// thread.
class Download final : public QObject {
    Q_OBJECT

public:
    struct Limits {
        /// Bytes; one more is a failure.
        qint64 most = 0;
        /// For the whole download.
        std::chrono::milliseconds duration{};
        /// The longest wait without any data.
        std::chrono::milliseconds silence{};
    };

    /// Starts at the next turn of the event loop. `into` is open for writing and outlives this.
    Download(QNetworkAccessManager& network, QUrl url, QIODevice& into, Limits limits,
             QObject* parent = nullptr);
    ~Download() override;

    /// Stops without finished(); the device is not used any more.
    void cancel();

Q_SIGNALS:
    void progressed(qint64 bytes);
    /// `failure` is a sentence for the user, empty for a complete file.
    void finished(const QString& failure);

private:
    void start(QNetworkAccessManager& network);
    void follow(const QUrl& target);
    void take();
    void complete();
    [[nodiscard]] QString networkFailure() const;
    void finish(const QString& failure);

    const QUrl m_url;
    QIODevice& m_into;
    const Limits m_limits;
    QPointer<QNetworkReply> m_reply;
    qint64 m_received = 0;
    bool m_isFinished = false;
    /// The error of the server's certificate.
    QString m_distrust;
};

} // namespace brisklet
