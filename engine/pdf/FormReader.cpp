#include "pdf/FormReader.h"

#include "pdf/PageSpace.h"
#include "pdf/TextString.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>

#include <Annot.h>
#include <Form.h>
#include <Link.h>
#include <Page.h>

namespace orvane::pdf {
namespace {

void readButton(const ::FormWidgetButton& widget, FormField& field) {
    switch (widget.getButtonType()) {
    case formButtonCheck:
        field.kind = FieldKind::CheckBox;
        break;
    case formButtonRadio:
        field.kind = FieldKind::RadioButton;
        break;
    case formButtonPush:
        field.kind = FieldKind::PushButton;
        return;
    }
    field.isOn = widget.getState();
    if (const char* name = widget.getOnStr(); name && field.isOn)
        field.value = name;
}

void readChoice(const ::FormWidgetChoice& widget, FormField& field) {
    field.kind = widget.isCombo() ? FieldKind::ComboBox : FieldKind::ListBox;
    for (int i = 0; i < widget.getNumChoices(); ++i) {
        field.choices.push_back(textFromPdf(widget.getChoice(i)));
        field.choiceValues.push_back(textFromPdf(widget.getExportVal(i)));
        if (!widget.isSelected(i))
            continue;
        if (!field.value.empty())
            field.value += '\n';
        field.value += field.choices.back();
    }
    field.isEditable = widget.isCombo() && widget.hasEdit();
    if (field.value.empty() && field.isEditable)
        field.value = textFromPdf(widget.getEditChoice());
}

/// What stands between the first pair of quotes after `function`.
std::string quotedAfter(const std::string& script, std::string_view function) {
    const std::size_t call = script.find(function);
    const std::size_t open = call == std::string::npos ? call : script.find_first_of("\"'", call);
    const std::size_t close = open == std::string::npos ? open : script.find(script[open], open + 1);
    return close == std::string::npos ? std::string() : script.substr(open + 1, close - open - 1);
}

/// How the field writes dates, when a script makes it a field of dates.
std::string dateFormatOf(::FormWidget& widget) {
    const std::unique_ptr<::LinkAction> action = widget.getAdditionalAction(::Annot::actionFormatField);
    if (!action || action->getKind() != actionJavaScript)
        return {};
    return quotedAfter(static_cast<const ::LinkJavaScript&>(*action).getScript(), "AFDate_FormatEx");
}

void readValue(::FormWidget& widget, FormField& field) {
    switch (widget.getType()) {
    case formText: {
        const auto& text = static_cast<const ::FormWidgetText&>(widget);
        field.kind = FieldKind::Text;
        field.value = textFromPdf(text.getContent());
        field.isMultiline = text.isMultiline();
        field.dateFormat = dateFormatOf(widget);
        break;
    }
    case formButton:
        readButton(static_cast<const ::FormWidgetButton&>(widget), field);
        break;
    case formChoice:
        readChoice(static_cast<const ::FormWidgetChoice&>(widget), field);
        break;
    case formSignature:
        field.kind = FieldKind::Signature;
        break;
    case formUndef:
        break;
    }
}

bool isShown(const ::FormWidget& widget) {
    const ::AnnotWidget* annotation = widget.getWidgetAnnotation();
    return !annotation || (annotation->getFlags() & (::Annot::flagHidden | ::Annot::flagNoView)) == 0;
}

} // namespace

std::vector<FormField> readFormFields(::Page& page) {
    std::vector<FormField> fields;
    const std::unique_ptr<::FormPageWidgets> widgets = page.getFormWidgets();
    const Matrix matrix = defaultMatrix(page);
    for (int i = 0; widgets && i < widgets->getNumWidgets(); ++i) {
        ::FormWidget* widget = widgets->getWidget(i);
        if (!widget || !isShown(*widget) || widget->getType() == formUndef)
            continue;
        FormField field;
        double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
        widget->getRect(&x1, &y1, &x2, &y2);
        field.box = matrix.applyToBox({std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)});
        field.name = textFromPdf(widget->getFullyQualifiedName());
        field.tooltip = textFromPdf(widget->getAlternateUiName());
        field.isReadOnly = widget->isReadOnly();
        readValue(*widget, field);
        fields.push_back(std::move(field));
    }
    return fields;
}

} // namespace orvane::pdf
