#include "ui/feedback/HttpTransfer.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <QUrl>

#include <memory>

QByteArray wireForm(const QString& address) {
    QByteArray wire;
    for (const char byte : address.toUtf8()) {
        const auto code = static_cast<unsigned char>(byte);
        const bool travels = code > 0x20 && code < 0x7F && !QByteArray("\"#<>\\^`{|}").contains(byte);
        wire += travels ? QByteArray(1, byte) : '%' + QByteArray(1, byte).toHex().toUpper();
    }
    return wire;
}

void HttpTransfer::OpenURL(const QString& address, std::chrono::milliseconds timeLimit) {
    QNetworkAccessManager network;
    const std::unique_ptr<QNetworkReply> reply(
        network.get(QNetworkRequest(QUrl::fromEncoded(wireForm(address), QUrl::TolerantMode))));
    QEventLoop waiting;
    QObject::connect(reply.get(), &QNetworkReply::finished, &waiting, &QEventLoop::quit);
    QTimer::singleShot(timeLimit, reply.get(), &QNetworkReply::abort);
    if (!reply->isFinished())
        waiting.exec(QEventLoop::ExcludeUserInputEvents);
    reply->readAll();
}
