#include "ui/feedback/frmFeedback.h"

#include "core/PageNumberPair.h"
#include "services/ErrorTrap.h"
#include "ui/form/FormRegistry.h"
#include "ui/form/KeyPress.h"

#include <QGuiApplication>

namespace {

constexpr QRgb kWhite = qRgb(0xFF, 0xFF, 0xFF);
constexpr QRgb kGrey = qRgb(0xC0, 0xC0, 0xC0);

void paint(QPlainTextEdit& box, QRgb colour) {
    QPalette colours = box.palette();
    colours.setColor(QPalette::Base, QColor(colour));
    colours.setColor(QPalette::Text, Qt::black); // legible on both, on a dark desktop too
    box.setPalette(colours);
}

/// The hourglass over the program, and a window that takes no input, as long as it lives.
class Waiting {
public:
    explicit Waiting(QWidget& window)
        : m_window(window) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        m_window.setEnabled(false);
    }
    ~Waiting() {
        QGuiApplication::restoreOverrideCursor();
        m_window.setEnabled(true);
    }
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;

private:
    QWidget& m_window;
};

} // namespace

frmFeedback::frmFeedback(FormRegistry& registry, FeedbackPorts ports)
    : Form(registry)
    , m_ports(std::move(ports))
    , m_fields(*this) {
    setObjectName("frmFeedback");
    setWindowFlag(Qt::WindowStaysOnTopHint);
    cmbEasy_Click();
    connectHandlers();
}

void frmFeedback::connectHandlers() {
    connect(m_fields.cmbEasy, &DropDownList::itemSelected, this, &frmFeedback::cmbEasy_Click);
    for (QLineEdit* box : {m_fields.txtPhoneCountry, m_fields.txtPhoneArea, m_fields.txtPhoneNo})
        onKeyPress(*box, [this](int& keyCode) { phone_KeyPress(keyCode); });
    connect(m_fields.cmdSubmit, &QPushButton::clicked, this, &frmFeedback::cmdSubmit_Click);
    connect(m_fields.cmdClose, &QPushButton::clicked, this, &frmFeedback::cmdClose_Click);
}

void frmFeedback::Form_Activate() {
    raise();
    m_fields.txtEmail->setFocus();
}

void frmFeedback::cmbEasy_Click() {
    const bool isOther = m_fields.cmbEasy->currentText() == "Other";
    m_fields.txtEasy->setEnabled(isOther);
    paint(*m_fields.txtEasy, isOther ? kWhite : kGrey);
    if (isOther)
        m_fields.txtEasy->setFocus();
}

void frmFeedback::phone_KeyPress(int& keyCode) {
    const ErrorTrap trap("frmFeedBack", "txtFrom_KeyPress"); // the names that support knows
    trap([&] { filterPageNumberKey(keyCode); });
}

void frmFeedback::cmdSubmit_Click() {
    const auto alive = held();
    const ErrorTrap trap("frmFeedback", "cmdSubmit_Click");
    trap([this] {
        if (!phoneIsGiven())
            return;
        encodeAnswers();
        m_strVolumeSerial = QString::number(static_cast<std::uint32_t>(m_ports.volumeSerial()), 16).toUpper();
        m_blnSubmitted = true;
        {
            const Waiting waiting(*this);
            if (HasFeedback())
                SendFeedback();
        }
        m_blnSending = false;
        unload();
    });
}

bool frmFeedback::phoneIsGiven() {
    for (QLineEdit* box : {m_fields.txtPhoneNo, m_fields.txtPhoneCountry, m_fields.txtPhoneArea}) {
        if (!box->text().isEmpty())
            continue;
        m_ports.messageBox.tell(UserMessages::Icon::Information,
                                "The phone number is mandatory and should be specified.", kWindowTitle);
        box->setFocus();
        return false;
    }
    return true;
}

void frmFeedback::encodeAnswers() {
    const auto encode = [this](QPlainTextEdit* box) { return EncodeFeedbackText(box->toPlainText(), *box, false); };
    m_strLiked = encode(m_fields.txtLiked);
    m_strDont = encode(m_fields.txtDOnt);
    m_strProblem = encode(m_fields.txtProblem);
    m_strComments = encode(m_fields.txtComments);
    m_strPurchase = encode(m_fields.txtPurchase);
    if (m_fields.txtEasy->isEnabled())
        m_strEasyComment = encode(m_fields.txtEasy);
}

/// A text without any words empties its box; with the flag, which nobody sets, the user is led there.
QString frmFeedback::EncodeFeedbackText(const QString& text, QPlainTextEdit& control, bool flag) {
    const QString encoded = encodedFeedback(text);
    if (!encoded.isEmpty())
        return encoded;
    if (flag)
        control.setFocus();
    control.setPlainText(encoded);
    return {};
}

bool frmFeedback::HasFeedback() const {
    for (const QString& answer : {m_fields.txtEmail->text(), m_fields.cmbEasy->currentText(),
                                  m_fields.cmbPerformance->currentText(), m_fields.cmbFunctionality->currentText(),
                                  m_fields.cmbExperience->currentText(), m_fields.cmbMoneyValue->currentText(),
                                  m_strEasyComment, m_strLiked, m_strDont, m_strProblem, m_strPurchase, m_strComments})
        if (!answer.trimmed().isEmpty())
            return true;
    return false;
}

FeedbackAnswers frmFeedback::answers() const {
    const QString easy = m_fields.cmbEasy->currentText();
    return {m_fields.txtEmail->text(),
            m_fields.txtPhoneCountry->text(),
            m_fields.txtPhoneArea->text(),
            m_fields.txtPhoneNo->text(),
            easy == "Other" ? m_strEasyComment : easy,
            m_fields.cmbPerformance->currentText(),
            m_fields.cmbFunctionality->currentText(),
            m_fields.cmbExperience->currentText(),
            m_fields.cmbMoneyValue->currentText(),
            m_strLiked,
            m_strProblem,
            m_strDont,
            m_strPurchase,
            m_fields.cmbWillingness->currentText(),
            m_strComments,
            m_strVolumeSerial};
}

void frmFeedback::SendFeedback() {
    const QString address = feedbackAddress(m_ports.redirectUrl(), answers());
    m_fields.cmdSubmit->setEnabled(false);
    m_blnSending = true;
    m_ports.inetFeedback.OpenURL(address, m_ports.timeLimit);
}

void frmFeedback::cmdClose_Click() {
    registry().endProgram();
}

void frmFeedback::Form_QueryUnload(bool& cancel, UnloadMode unloadMode) {
    if (m_blnSending && unloadMode == UnloadMode::ControlMenu) {
        cancel = true;
        return;
    }
    m_blnSending = false;
    if (!m_blnSubmitted)
        registry().endProgram();
}
