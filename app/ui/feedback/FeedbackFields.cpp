#include "ui/feedback/FeedbackFields.h"

#include "ui/form/AccessKeys.h"

#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

namespace {

// Units: pixels.
constexpr int kMargin = 16;
constexpr int kGap = 8;
constexpr int kTextHeight = 56; ///< of a free text, where there is no more room
constexpr int kSmallBox = 64;

template<typename Control>
Control* named(QWidget* parent, const char* name) {
    auto* control = new Control(parent);
    control->setObjectName(name);
    return control;
}

const QStringList kOneToFive{"1", "2", "3", "4", "5"};

} // namespace

FeedbackFields::FeedbackFields(QWidget& window) {
    auto* column = new QVBoxLayout(&window);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    auto* frame = new QGroupBox("Please give us your feedback", &window);
    m_frame = frame;
    column->addWidget(frame, 1);
    auto* halves = new QHBoxLayout(frame);
    halves->setSpacing(2 * kMargin);
    auto* left = new QVBoxLayout;
    auto* right = new QVBoxLayout;
    for (QVBoxLayout* half : {left, right})
        half->setSpacing(kGap / 2);
    halves->addLayout(left, 1);
    halves->addLayout(right, 1);
    addContact(*left);
    addRatings(*left);
    left->addStretch();
    addTexts(*right);
    addButtons(window);
    assignAccessKeys(window);
}

void FeedbackFields::addQuestion(QVBoxLayout& column, const QString& text, QWidget* answer, QWidget* named) {
    QWidget* focused = named ? named : answer;
    auto* question = new QLabel(text, m_frame);
    question->setObjectName("lbl" + focused->objectName());
    question->setBuddy(focused);
    focused->setAccessibleName(text);
    column.addWidget(question);
    column.addWidget(answer);
    column.addSpacing(kGap);
}

DropDownList* FeedbackFields::addList(QVBoxLayout& column, const QString& text, const char* name,
                                      const QStringList& items) {
    auto* list = named<DropDownList>(m_frame, name);
    list->addItems(items);
    addQuestion(column, text, list);
    return list;
}

QPlainTextEdit* FeedbackFields::addText(QVBoxLayout& column, const QString& text, const char* name) {
    auto* box = named<QPlainTextEdit>(m_frame, name);
    box->setMinimumHeight(kTextHeight);
    box->setTabChangesFocus(true);
    addQuestion(column, text, box);
    return box;
}

void FeedbackFields::addContact(QVBoxLayout& column) {
    txtEmail = named<QLineEdit>(m_frame, "txtEmail");
    addQuestion(column, "1. Contact e-mail:", txtEmail);
    auto* phone = new QWidget(m_frame);
    auto* row = new QHBoxLayout(phone);
    row->setContentsMargins({});
    row->setSpacing(kGap);
    txtPhoneCountry = named<QLineEdit>(phone, "txtPhoneCountry");
    txtPhoneArea = named<QLineEdit>(phone, "txtPhoneArea");
    txtPhoneNo = named<QLineEdit>(phone, "txtPhoneNo");
    txtPhoneCountry->setFixedWidth(kSmallBox);
    txtPhoneArea->setFixedWidth(kSmallBox);
    for (QLineEdit* box : {txtPhoneCountry, txtPhoneArea, txtPhoneNo})
        row->addWidget(box);
    addQuestion(column, "2 . Phone Number* eg.(Country Code)(Area Code)(Phone Number)", phone, txtPhoneCountry);
    txtPhoneCountry->setAccessibleName("Country code");
    txtPhoneArea->setAccessibleName("Area code");
    txtPhoneNo->setAccessibleName("Phone number");
}

void FeedbackFields::addRatings(QVBoxLayout& column) {
    cmbEasy = addList(column, "3. Rate ease of use of the application:", "cmbEasy",
                      {"Easy", "Very Easy", "Not User Friendly", "Cumbersome", "Other"});
    txtEasy = addText(column, "If you have selected 'Other' in the drop-down menu, please comment:", "txtEasy");
    txtEasy->setFixedHeight(kTextHeight); // the free texts at the right take what room there is
    cmbPerformance = addList(column, "4. How was the system performance?", "cmbPerformance",
                             {"Good", "Average", "Poor", "Excellent"});
    cmbFunctionality =
        addList(column, "5. Was the system functionality as per expectations?", "cmbFunctionality", {"Yes", "No"});
    cmbExperience =
        addList(column, "6. Rate overall experience (Lowest-1 and Highest-5):", "cmbExperience", kOneToFive);
    cmbMoneyValue = addList(column, "7. How would you rate this product for value for money?", "cmbMoneyValue",
                            {"Poor", "Fair", "Good", "Excellent"});
}

void FeedbackFields::addTexts(QVBoxLayout& column) {
    txtLiked = addText(column, "8. The best feature of the product is:", "txtLiked");
    txtProblem = addText(column, "9. The problem faced while using the product:", "txtProblem");
    txtDOnt = addText(column, "10. The product can be improved by:", "txtDOnt");
    txtPurchase = addText(column, "11. What will determine your purchase?", "txtPurchase");
    // One question in two labels, as the form has always had it.
    column.addWidget(new QLabel("12. Rate your willingness to purchase the product (Lowest-1 and", m_frame));
    cmbWillingness = addList(column, "Highest-5):  ", "cmbWillingness", kOneToFive);
    cmbWillingness->setAccessibleName("12. Rate your willingness to purchase the product");
    txtComments = addText(column, "13. Additional Comments:", "txtComments");
}

void FeedbackFields::addButtons(QWidget& window) {
    auto* told = new QLabel("Submit sends these answers and the serial number of this computer's disk volume to the "
                            "maker of Tavrelion.",
                            &window);
    told->setProperty("role", "help");
    told->setWordWrap(true);
    cmdSubmit = named<QPushButton>(&window, "cmdSubmit");
    cmdSubmit->setText("&Submit");
    cmdSubmit->setDefault(true);
    cmdClose = named<QPushButton>(&window, "cmdClose");
    cmdClose->setText("&Close");
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    row->addWidget(told, 1);
    row->addWidget(cmdSubmit);
    row->addWidget(cmdClose);
    static_cast<QVBoxLayout*>(window.layout())->addLayout(row);
}
