#include "services/FeedbackRequest.h"

#include <QRegularExpression>
#include <QStringList>

namespace {

constexpr char kLineEnd[] = "\r\n";
constexpr char kEncodedLineEnd[] = "%0C%0A";

QString withoutEmptyLines(const QString& text) {
    static const QRegularExpression lineEnd("\r\n|\r|\n");
    QString lines;
    for (const QString& line : text.split(lineEnd, Qt::SkipEmptyParts))
        lines += line + kLineEnd;
    return lines;
}

} // namespace

QString encodedFeedback(const QString& text) {
    QString encoded = withoutEmptyLines(text);
    encoded.replace("+", "%2B").replace("&", "%26").replace("%", "%25");
    encoded.replace(kLineEnd, kEncodedLineEnd).replace(" ", "%20");
    if (encoded.endsWith(kEncodedLineEnd))
        encoded.chop(static_cast<qsizetype>(qstrlen(kEncodedLineEnd)));
    return encoded;
}

QString feedbackBody(const FeedbackAnswers& answers) {
    return "strEmail=" // always empty
           "&ContactEmail=" +
           answers.contactEmail.trimmed() + "&strPhone=[" + answers.phoneCountry + "][" + answers.phoneArea + "][" +
           answers.phoneNumber + "]&strProductCode=1&strEasy=" + answers.easy +
           "&strPerformance=" + answers.performance + "&strFunctionality=" + answers.functionality +
           "&strOverAll=" + answers.experience + "&strMoneyAll=" + answers.moneyValue + "&strLikings=" + answers.liked +
           "&strProblems=" + answers.problem + "&strNeeds=" + answers.needs + "&strPurchase=" + answers.purchase +
           "&strWillingness=" + answers.willingness + "&strComments=" + answers.comments +
           "&VSo=" + answers.volumeSerial;
}

QString feedbackAddress(const QString& redirectUrl, const FeedbackAnswers& answers) {
    return redirectUrl + '?' + feedbackBody(answers);
}
