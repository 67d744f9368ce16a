#pragma once

#include "core/RunViews.h"
#include "records/SharedRecords.h"
#include "services/FeedbackRequest.h"
#include "ui/feedback/FeedbackFields.h"
#include "ui/form/Form.h"

#include <chrono>
#include <functional>

/// What the feedback form reaches.
struct FeedbackPorts {
    UserMessages& messageBox;
    WebTransfer& inetFeedback;
    std::function<QString()> redirectUrl;       ///< of the feedback page
    std::function<std::int32_t()> volumeSerial; ///< of this machine's disk
    std::chrono::milliseconds timeLimit = std::chrono::seconds(60);
};

/// A questionnaire of thirteen points for the maker, in English only. It stays on top of other windows; nothing is
/// stored, and nothing is sent before Submit is pressed. Closing it without sending ends the program.
class frmFeedback : public Form {
    Q_OBJECT

public:
    frmFeedback(FormRegistry& registry, FeedbackPorts ports);

protected:
    void Form_Activate() override;
    void Form_QueryUnload(bool& cancel, UnloadMode unloadMode) override;

private:
    void connectHandlers();
    void cmbEasy_Click();
    void phone_KeyPress(int& keyCode);
    void cmdSubmit_Click();
    void cmdClose_Click();

    bool phoneIsGiven();
    void encodeAnswers();
    QString EncodeFeedbackText(const QString& text, QPlainTextEdit& control, bool flag);
    bool HasFeedback() const;
    void SendFeedback();
    FeedbackAnswers answers() const;

    FeedbackPorts m_ports;
    FeedbackFields m_fields;
    QString m_strEasyComment;
    QString m_strLiked;
    QString m_strDont;
    QString m_strProblem;
    QString m_strPurchase;
    QString m_strComments;
    QString m_strVolumeSerial;
    bool m_blnSubmitted = false;
    bool m_blnSending = false;
};
