#pragma once

#include <QString>

#include <chrono>

/// The answers of the feedback form as they go into the request: free texts encoded by encodedFeedback(), everything
/// else as it stands.
struct FeedbackAnswers {
    QString contactEmail;
    QString phoneCountry;
    QString phoneArea;
    QString phoneNumber;
    QString easy; ///< the item, or the comment where that is "Other"
    QString performance;
    QString functionality;
    QString experience;
    QString moneyValue;
    QString liked;
    QString problem;
    QString needs;
    QString purchase;
    QString willingness;
    QString comments;
    QString volumeSerial;
};

/// A free text as the maker's server takes it apart. The order of the replacements makes "%252B" of a plus sign and
/// "%2526" of an ampersand, and a line end goes as "%0C%0A": the server undoes exactly that.
QString encodedFeedback(const QString& text);

/// The request behind the address of the feedback page.
QString feedbackBody(const FeedbackAnswers& answers);

/// The whole request. It holds two question marks, as the server expects.
QString feedbackAddress(const QString& redirectUrl, const FeedbackAnswers& answers);

/// Fetches an address and waits.
class WebTransfer {
public:
    virtual ~WebTransfer() = default;

    /// The answer is taken and not looked at; a failure is none. Errors: none.
    virtual void OpenURL(const QString& address, std::chrono::milliseconds timeLimit) = 0;
};
