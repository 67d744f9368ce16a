#include "ui/feedback/PostFeedback.h"

#include <QTcpSocket>

namespace {

constexpr int kTimeLimit = 30000; ///< milliseconds, of each step
constexpr char kPage[] = "/quorvex/asp/feedback.asp";
constexpr int kDeclaredLength = 0; ///< bytes; no more than this is sent

} // namespace

void PostFeedback(const QString& body, const QString& host, std::uint16_t port) {
    QTcpSocket session;
    session.connectToHost(host, port);
    if (!session.waitForConnected(kTimeLimit))
        return;
    const QByteArray request =
        QByteArray("POST ") + kPage + " HTTP/1.0\r\nUser-Agent: generic\r\nHost: " + host.toLatin1() +
        "\r\nContent-Length: " + QByteArray::number(kDeclaredLength) + "\r\n\r\n" + body.toUtf8().left(kDeclaredLength);
    session.write(request);
    if (session.waitForBytesWritten(kTimeLimit))
        session.disconnectFromHost();
}
