#pragma once

#include <QByteArray>
#include <QMap>
#include <QSslConfiguration>
#include <QString>
#include <QTcpServer>
#include <QUrl>

#include <optional>

namespace testsupport {

/// What the server says to one request.
struct HttpAnswer {
    QByteArray body;
    QByteArray status = "200 OK";
    /// Full lines, each with its line end.
    QByteArray headers;
    /// The body is sent again and again, without a length.
    bool isEndless = false;
    /// Headers are sent, and then nothing.
    bool isSilent = false;
    /// Everything that is sent, as it is, instead of all the above.
    std::optional<QByteArray> raw;
    /// How many bytes of `raw` are sent at a time; 0 for all of them.
    qsizetype piece = 0;
    /// Whether the connection stays open after `raw`.
    bool staysOpen = false;
};

/// A web server on this machine, for one test. Answers from the event loop.
class HttpServer final : public QTcpServer {
public:
    HttpServer();

    /// The address of a path ("/feed.xml").
    QUrl url(const QString& path) const;

    QMap<QString, HttpAnswer> answers;
    int requestCount = 0;
    /// Who the server says it is, from the next connection on; it speaks plain HTTP without.
    std::optional<QSslConfiguration> identity;

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    void serve();
    void answer(QTcpSocket* socket);
    static void sendRaw(QTcpSocket* socket, const HttpAnswer& answer);
};

} // namespace testsupport
