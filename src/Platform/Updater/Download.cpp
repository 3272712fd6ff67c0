#include "Platform/Updater/Download.h"

#include "Platform/Updater/NetworkFailure.h"
#include "Support/FileNames.h"
#include "Support/LocalizedMessage.h"
#include "Support/MainThread.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QSslError>
#include <QTimer>

#include <utility>

namespace brisklet {

namespace {

constexpr int kMostRedirections = 5;
/// Bytes in memory that have not been stored yet, however fast the server sends.
constexpr qint64 kMostUnstored = 256LL * 1024;

bool isThisMachine(const QString& host) {
    return host == u"localhost" || QHostAddress(host).isLoopback();
}

} // namespace

bool isSafeAddress(const QUrl& url) {
    if (!url.isValid() || url.host().isEmpty())
        return false;
    return url.scheme() == u"https" || (url.scheme() == u"http" && isThisMachine(url.host()));
}

Download::Download(QNetworkAccessManager& network, QUrl url, QIODevice& into, Limits limits,
                   QObject* parent)
    : QObject(parent), m_url(std::move(url)), m_into(into), m_limits(limits) {
    verifyMainThread();
    QMetaObject::invokeMethod(
        this,
        [this, manager = QPointer<QNetworkAccessManager>(&network)] {
            if (manager && !m_isFinished)
                start(*manager);
        },
        Qt::QueuedConnection);
    QTimer::singleShot(limits.duration, this, [this] { finish(tr("The server took too long.")); });
}

Download::~Download() {
    cancel();
    // This may run inside a signal of the reply itself.
    if (m_reply)
        m_reply->deleteLater();
}

void Download::cancel() {
    verifyMainThread();
    m_isFinished = true;
    if (m_reply) {
        m_reply->disconnect(this);
        m_reply->abort();
    }
}

void Download::start(QNetworkAccessManager& network) {
    if (!isSafeAddress(m_url)) {
        finish(tr("“%1” is not a secure address.").arg(legible(m_url.toDisplayString())));
        return;
    }
    QNetworkRequest request(m_url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setMaximumRedirectsAllowed(kMostRedirections);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setHeader(QNetworkRequest::UserAgentHeader,
                      QStringLiteral("Brisklet/") + QCoreApplication::applicationVersion());
    request.setTransferTimeout(static_cast<int>(m_limits.silence.count()));
    m_reply = network.get(request);
    m_reply->setReadBufferSize(kMostUnstored);
    connect(m_reply, &QNetworkReply::redirected, this, &Download::follow);
    connect(m_reply, &QNetworkReply::readyRead, this, &Download::take);
    connect(m_reply, &QNetworkReply::finished, this, &Download::complete);
    // Only kept for the error message: the errors are not ignored, and the connection fails.
    connect(m_reply, &QNetworkReply::sslErrors, this,
            [this](const QList<QSslError>& errors) { m_distrust = distrust(errors.value(0)); });
}

void Download::follow(const QUrl& target) {
    if (isSafeAddress(target))
        Q_EMIT m_reply->redirectAllowed();
    else
        finish(tr("The server leads to “%1”, which is not a secure address.")
                   .arg(legible(target.toDisplayString())));
}

void Download::take() {
    // A reply that was given up is closed.
    if (m_isFinished || !m_reply->isOpen())
        return;
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QByteArray bytes = m_reply->readAll();
    // The body of a redirection or an error is not part of the file.
    if (status != kWholeFile)
        return;
    m_received += bytes.size();
    if (m_received > m_limits.most)
        finish(tr("The server sends more than it should."));
    else if (m_into.write(bytes) != bytes.size())
        finish(tr("The download can’t be stored: %1").arg(localizedReason(m_into)));
    else
        Q_EMIT progressed(m_received);
}

void Download::complete() {
    take();
    if (m_isFinished)
        return;
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    // In Qt 6.4 one redirection too many is no error.
    if (m_reply->error() != QNetworkReply::NoError || status != kWholeFile)
        finish(networkFailure());
    else
        finish({});
}

QString Download::networkFailure() const {
    if (m_distrust.isEmpty())
        return brisklet::networkFailure(*m_reply);
    return tr("The connection to “%1” isn’t secure: %2.").arg(m_reply->url().host(), m_distrust);
}

void Download::finish(const QString& failure) {
    if (std::exchange(m_isFinished, true))
        return;
    if (m_reply)
        m_reply->abort();
    Q_EMIT finished(failure);
}

} // namespace brisklet
