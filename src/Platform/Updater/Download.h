#pragma once

#include <QIODevice>
#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QUrl>

#include <chrono>
#include <memory>
#include <optional>

class QNetworkAccessManager;

namespace brisklet {

/// Whether an address may be used: HTTPS, or plain HTTP to this very machine.
bool isSafeAddress(const QUrl& url);

/// Brings one file over the network into a device, within bounds: only over safe addresses, also
/// after a redirection, and never more bytes than expected. Ends with exactly one finished().
/// Destroying it ends it without. Main thread.
class Download final : public QObject {
    Q_OBJECT

public:
    struct Limits {
        /// Bytes; one more is a failure.
        qint64 most = 0;
        /// For the whole of it; none waits as long as something arrives.
        std::optional<std::chrono::milliseconds> duration;
        /// Without a byte.
        std::chrono::milliseconds silence = std::chrono::seconds(30);
    };

    /// Starts at the next turn of the event loop. `into` is open for writing and outlives this.
    Download(QNetworkAccessManager& network, const QUrl& url, QIODevice& into, Limits limits,
             QObject* parent = nullptr);
    ~Download() override;

    /// Ends it without finished(); the device is not used any more.
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
    /// What is wrong with the server's certificate.
    QString m_distrust;
};

} // namespace brisklet
