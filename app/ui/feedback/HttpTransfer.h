#pragma once

#include "services/FeedbackRequest.h"

#include <QByteArray>

/// Fetches over the network. The user interface waits meanwhile: it takes no input, but draws itself and hears of a
/// close.
class HttpTransfer : public WebTransfer {
public:
    void OpenURL(const QString& address, std::chrono::milliseconds timeLimit) override;
};

/// An address as it can travel in a request: what a request line cannot hold, blanks among it, and "#", which would end
/// the address there, are percent-encoded; all else stays as it is.
QByteArray wireForm(const QString& address);
