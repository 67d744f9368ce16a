#pragma once

#include "ui/form/DropDownList.h"
#include "ui/form/Picture.h"
#include "ui/links/LinkBar.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

class QGridLayout;

/// The controls of the options window and their places: two cards of fields, the help line below them, the buttons at
/// the foot. The names are keys into the options language file.
/// Owns: nothing; the controls belong to the window.
class OptionFields {
public:
    explicit OptionFields(QWidget& window);

    LinkBar* linkBar;
    QFrame* Picture1; ///< behind the fields

    QLabel* lblProgramOptions;
    DropDownList* cboUserInterfaceLang;
    DropDownList* cboLaunchMSWord;
    DropDownList* cboOutputFileformat;
    QLineEdit* txtShow;
    QPushButton* cmdBrwDestiFolder;
    DropDownList* cboUseWizard;
    QLineEdit* txtLogPath;
    QPushButton* cmdBrwLogFile;

    QLabel* lblConvertConfig;
    DropDownList* cboReconstructionMode;
    DropDownList* cboCharSpacingType;
    DropDownList* cboRecoverImages;
    DropDownList* cboConvertAllPages;
    DropDownList* cboConversionMethod;

    Picture* imgCircleArrow3; ///< marks the help line
    QLabel* lblToolTip;
    QPushButton* btnRestoreDefault;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

    /// The fields that have a help line.
    QList<QWidget*> fieldsWithHelp() const;

    /// What follows from the labels' texts: the fields of both cards start at one line, and each field, also the button
    /// behind it, is called by its label.
    void followLabels();

private:
    QGridLayout* addCard();
    QLabel* addHeading(QGridLayout& card, const char* name, const char* caption);
    /// A row of a card: a label, its field, and what stands behind the field.
    void addField(QGridLayout& card, const char* label, const char* caption, QWidget* field,
                  QPushButton* browse = nullptr);
    DropDownList* addList(QGridLayout& card, const char* label, const char* caption, const char* list);
    void addProgramOptions();
    void addConverterOptions();
    void addHelpLine();
    void addFoot();

    template<typename Control>
    Control* make(const char* name) const;

    QWidget& m_window;
    QList<QGridLayout*> m_cards;
};
