#include "HttpServer.h"

#include <QSslSocket>
#include <QTcpSocket>
#include <QTimer>

namespace testsupport {

HttpServer::HttpServer() {
    connect(this, &QTcpServer::newConnection, this, &HttpServer::serve);
    if (!listen(QHostAddress::LocalHost))
        qFatal("the test's server cannot listen");
}

QUrl HttpServer::url(const QString& path) const {
    const QString scheme = identity ? QStringLiteral("https") : QStringLiteral("http");
    return QUrl(QStringLiteral("%1://127.0.0.1:%2%3").arg(scheme).arg(serverPort()).arg(path));
}

void HttpServer::incomingConnection(qintptr descriptor) {
    if (!identity) {
        QTcpServer::incomingConnection(descriptor);
        return;
    }
    auto* socket = new QSslSocket(this);
    socket->setSocketDescriptor(descriptor);
    socket->setSslConfiguration(*identity);
    socket->startServerEncryption();
    addPendingConnection(socket);
}

void HttpServer::serve() {
    while (QTcpSocket* socket = nextPendingConnection()) {
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { answer(socket); });
    }
}

void HttpServer::answer(QTcpSocket* socket) {
    const QList<QByteArray> request = socket->readAll().split(' ');
    if (request.size() < 2 || request[0] != "GET")
        return;
    ++requestCount;
    const QString path = QString::fromLatin1(request[1]);
    const HttpAnswer answer =
        answers.value(path, {.body = "There is no such file.", .status = "404 Not Found"});
    if (answer.raw) {
        sendRaw(socket, answer);
        return;
    }
    socket->write("HTTP/1.1 " + answer.status + "\r\nConnection: close\r\n" + answer.headers);
    if (answer.isEndless || answer.isSilent) {
        socket->write("\r\n");
        if (answer.isSilent)
            return;
        const auto more = [socket, body = answer.body] { socket->write(body); };
        connect(socket, &QTcpSocket::bytesWritten, socket, [socket, more] {
            if (socket->bytesToWrite() == 0)
                more();
        });
        more();
        return;
    }
    socket->write("Content-Length: " + QByteArray::number(answer.body.size()) + "\r\n\r\n" +
                  answer.body);
    socket->disconnectFromHost();
}

void HttpServer::sendRaw(QTcpSocket* socket, const HttpAnswer& answer) {
    const qsizetype piece = answer.piece > 0 ? answer.piece : answer.raw->size();
    socket->write(answer.raw->left(piece));
    if (piece < answer.raw->size()) {
        HttpAnswer rest = answer;
        rest.raw = answer.raw->mid(piece);
        QTimer::singleShot(0, socket, [socket, rest] { sendRaw(socket, rest); });
    } else if (!answer.staysOpen) {
        socket->disconnectFromHost();
    }
}

} // namespace testsupport
