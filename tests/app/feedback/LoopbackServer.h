#pragma once

#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

namespace tavrelion::tests {

/// A web server on this machine's loopback that takes one request after the other.
class LoopbackServer : public QObject {
public:
    enum class Manner { Answers, AnswersLate, SaysNothing };

    explicit LoopbackServer(Manner manner = Manner::Answers)
        : m_manner(manner) {
        if (!m_server.listen(QHostAddress::LocalHost))
            qFatal("no port is free on the loopback");
        connect(&m_server, &QTcpServer::newConnection, this, &LoopbackServer::take);
    }

    QString host() const { return "127.0.0.1:" + QString::number(port()); }
    quint16 port() const { return m_server.serverPort(); }
    /// What came in, byte for byte.
    QByteArray received;
    QString requestLine() const { return QString::fromUtf8(received.left(received.indexOf("\r\n"))); }
    int requests = 0;
    std::function<void()> whileAsked; ///< runs when a request has come in, before the answer

private:
    void take() {
        QTcpSocket* socket = m_server.nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
            received += socket->readAll();
            if (!received.contains("\r\n\r\n"))
                return;
            ++requests;
            if (whileAsked)
                whileAsked();
            if (m_manner == Manner::Answers)
                answer(socket);
            else if (m_manner == Manner::AnswersLate)
                QTimer::singleShot(150, this, [this, held = QPointer<QTcpSocket>(socket)] {
                    if (held)
                        answer(held);
                });
        });
    }
    static void answer(QTcpSocket* socket) {
        socket->write("HTTP/1.1 200 OK\r\nContent-Length: 6\r\nConnection: close\r\n\r\nthanks");
        socket->disconnectFromHost();
    }

    QTcpServer m_server;
    Manner m_manner;
};

} // namespace tavrelion::tests
