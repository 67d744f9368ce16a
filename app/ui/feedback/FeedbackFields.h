#pragma once

#include "ui/form/DropDownList.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

class QVBoxLayout;

/// The controls of the feedback form and their places: contact and ratings at the left, free texts at the right.
/// Owns: nothing; the controls belong to the window.
class FeedbackFields {
public:
    explicit FeedbackFields(QWidget& window);

    QLineEdit* txtEmail;
    QLineEdit* txtPhoneCountry;
    QLineEdit* txtPhoneArea;
    QLineEdit* txtPhoneNo;
    DropDownList* cmbEasy;
    QPlainTextEdit* txtEasy;
    DropDownList* cmbPerformance;
    DropDownList* cmbFunctionality;
    DropDownList* cmbExperience;
    DropDownList* cmbMoneyValue;
    QPlainTextEdit* txtLiked;
    QPlainTextEdit* txtProblem;
    QPlainTextEdit* txtDOnt;
    QPlainTextEdit* txtPurchase;
    DropDownList* cmbWillingness;
    QPlainTextEdit* txtComments;
    QPushButton* cmdSubmit;
    QPushButton* cmdClose;

private:
    void addQuestion(QVBoxLayout& column, const QString& text, QWidget* answer, QWidget* named = nullptr);
    DropDownList* addList(QVBoxLayout& column, const QString& text, const char* name, const QStringList& items);
    QPlainTextEdit* addText(QVBoxLayout& column, const QString& text, const char* name);
    void addContact(QVBoxLayout& column);
    void addRatings(QVBoxLayout& column);
    void addTexts(QVBoxLayout& column);
    void addButtons(QWidget& window);

    QWidget* m_frame = nullptr;
};
