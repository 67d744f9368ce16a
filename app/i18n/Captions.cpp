#include "i18n/Captions.h"

#include "i18n/Controls.h"
#include "services/ErrorTrap.h"
#include "services/SkippingErrors.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

namespace {

void clearItems(QWidget& listControl) {
    if (auto* combo = qobject_cast<QComboBox*>(&listControl))
        combo->clear();
    else if (auto* list = qobject_cast<QListWidget*>(&listControl))
        list->clear();
}

void setText(QWidget& textBox, const QString& text) {
    if (auto* line = qobject_cast<QLineEdit*>(&textBox))
        line->setText(text);
    else if (auto* lines = qobject_cast<QPlainTextEdit*>(&textBox))
        lines->setPlainText(text);
}

void captionControl(LanguageTable& table, QWidget& control) {
    const QString name = control.objectName();
    switch (kindOf(control)) {
    case ControlKind::CommandButton:
    case ControlKind::Label:
    case ControlKind::CheckBox:
    case ControlKind::Frame:
    case ControlKind::OptionButton:
        return setCaption(control, GetControlText(table, name));
    case ControlKind::ComboBox:
    case ControlKind::ListBox:
        clearItems(control);
        GetControlText(table, name, &control);
        return;
    case ControlKind::TextBox:
        return setText(control, GetControlText(table, name));
    case ControlKind::Other:
        return;
    }
}

void captionOption(LanguageTable& table, QWidget& control) {
    QString text;
    switch (kindOf(control)) {
    case ControlKind::CommandButton:
    case ControlKind::Label:
    case ControlKind::CheckBox:
    case ControlKind::Frame:
        GetControlTextOpt(table, control.objectName(), nullptr, text);
        return setCaption(control, text);
    case ControlKind::ComboBox:
    case ControlKind::ListBox:
        clearItems(control);
        return GetControlTextOpt(table, control.objectName(), &control, text);
    case ControlKind::OptionButton:
    case ControlKind::TextBox:
    case ControlKind::Other:
        return;
    }
}

} // namespace

void GetControlCaptions(LanguageTable& table, QWidget& window) {
    const ErrorTrap trap("modXML", "GetControlCaptions");
    trap([&] {
        LanguageDocument& document = documentIn(table.docLanguage);
        if (document.load(table.strLanguageFile) == LanguageDocument::Loading::Failed)
            return table.tellLoadFailure(loadFailureText(table.strLanguageFile));
        for (QWidget* control : controlsOf(window))
            captionControl(table, *control);
        table.docLanguage.reset();
    });
}

void GetOptionCaptions(LanguageTable& table, QWidget& window) {
    if (documentIn(table.docOptions).load(table.strOptionsFile) == LanguageDocument::Loading::Failed)
        return;
    for (QWidget* control : controlsOf(window))
        skippingErrors([&] { captionOption(table, *control); });
    table.docOptions.reset();
}

void GetControlTextOpt(LanguageTable& table, const QString& key, QWidget* listControl, QString& text) {
    skippingErrors([&] {
        const auto values = documentIn(table.docOptions).select(key);
        if (listControl)
            for (const QString& value : values)
                addItem(*listControl, textOf(value));
        else
            text = values.empty() ? QString() : textOf(values.front());
    });
}

void LoadOptionCaptions(LanguageTable& table, QWidget& frmOption, const std::function<int()>& isWordInstalled) {
    SelectLanguageOptions(table, table.settings.intLanguageID);
    GetOptionCaptions(table, frmOption);
    skippingErrors([&] {
        auto* formats = frmOption.findChild<QComboBox*>("cboOutputFileformat");
        if (isWordInstalled() == 0 && formats)
            formats->removeItem(0);
    });
}

QString withoutMnemonic(const QString& caption) {
    QString shown;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size())
            ++i; // what follows stands for itself, another ampersand too
        else if (caption[i] == '&')
            continue;
        shown += caption[i];
    }
    return shown;
}
