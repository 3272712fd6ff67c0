#include "Platform/Updater/NetworkFailure.h"

#include <QCoreApplication>

namespace brisklet {

namespace {

/// The texts, under a name of their own.
struct NetworkFailure {
    Q_DECLARE_TR_FUNCTIONS(brisklet::NetworkFailure)
};

/// Whether the answer was another address, of which no more are followed.
bool isRedirection(QNetworkReply::NetworkError error, int status) {
    // Qt 6.4 ends such a reply without an error and with status 100.
    const bool isSilent = error == QNetworkReply::NoError && status < 200;
    return isSilent || error == QNetworkReply::TooManyRedirectsError || status / 100 == 3;
}

} // namespace

QString networkFailure(const QNetworkReply& reply) {
    const QString host = reply.url().host();
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    switch (reply.error()) {
    case QNetworkReply::HostNotFoundError:
        //: %1: a server’s name. So it is in the following texts.
        return NetworkFailure::tr("The server “%1” can’t be found.").arg(host);
    case QNetworkReply::ConnectionRefusedError:
        return NetworkFailure::tr("The server “%1” accepts no connection.").arg(host);
    case QNetworkReply::RemoteHostClosedError:
        return NetworkFailure::tr("The connection to “%1” was broken off.").arg(host);
    case QNetworkReply::TimeoutError:
    // This is what the limit of a transfer's silence gives.
    case QNetworkReply::OperationCanceledError:
        return QCoreApplication::translate("brisklet::Download", "The server took too long.");
    default:
        break;
    }
    if (isRedirection(reply.error(), status))
        return NetworkFailure::tr("The server “%1” redirects without end.").arg(host);
    if (status != 0 && status != kWholeFile)
        //: %2: a number, such as 404.
        return NetworkFailure::tr("The server “%1” answers with an error (status %2).")
            .arg(host, QString::number(status));
    return NetworkFailure::tr("The connection to “%1” failed (details: %2).")
        .arg(host, reply.errorString());
}

QString distrust(const QSslError& error) {
    switch (error.error()) {
    case QSslError::HostNameMismatch:
        //: What is wrong with a server, behind a colon. So it is in the following texts.
        return NetworkFailure::tr("its certificate is for another server");
    case QSslError::CertificateExpired:
    case QSslError::CertificateNotYetValid:
        return NetworkFailure::tr("its certificate has expired or isn’t valid yet");
    case QSslError::CertificateRevoked:
    case QSslError::SelfSignedCertificate:
    case QSslError::SelfSignedCertificateInChain:
    case QSslError::UnableToGetIssuerCertificate:
    case QSslError::UnableToGetLocalIssuerCertificate:
    case QSslError::CertificateUntrusted:
    case QSslError::UnableToVerifyFirstCertificate:
        return NetworkFailure::tr("its certificate isn’t trusted");
    default:
        return NetworkFailure::tr("its certificate can’t be verified (details: %1)")
            .arg(error.errorString());
    }
}

} // namespace brisklet
