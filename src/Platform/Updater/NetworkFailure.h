#pragma once

#include <QNetworkReply>
#include <QSslError>
#include <QString>

namespace brisklet {

/// The HTTP status of an answer that has the whole file.
inline constexpr int kWholeFile = 200;

/// Why a request failed, as a sentence for the user in the program's language; a failure that has
/// no sentence of its own ends with Qt's words as details. For a finished reply with an error, or
/// with another status than kWholeFile. Main thread.
QString networkFailure(const QNetworkReply& reply);

/// What is wrong with a server's certificate, to be put after a colon, without a full stop. Main
/// thread.
QString distrust(const QSslError& error);

} // namespace brisklet
