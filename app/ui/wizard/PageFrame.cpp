#include "ui/wizard/PageFrame.h"

#include "i18n/Captions.h"
#include "ui/form/LinkLabel.h"
#include "ui/form/OptionButton.h"
#include "ui/form/Picture.h"
#include "ui/links/LinkBar.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <array>

namespace {

// Units: pixels.
constexpr QSize kPageSize{760, 500};
constexpr QSize kPictureSize{232, 300};
constexpr int kMargin = 24;
constexpr int kInnerMargin = 2; ///< that a text box keeps free before its text
constexpr int kGap = 8;
constexpr char kNamedBy[] = "namedBy"; ///< property: the object name of the label that stands for a control
constexpr int kIndent = 28;            ///< of a description, so that it stands below its option's caption

struct ButtonDesign {
    const char* name;
    const char* caption;
};
constexpr std::array<ButtonDesign, 5> kButtons{{{"cmdBack", "< Back"},
                                                {"cmdNext", "Next >"},
                                                {"cmdLast", "Last >>"},
                                                {"cmdFinish", "Finish"},
                                                {"cmdCancel", "Cancel"}}};

QFrame* frameOf(QWidget& parent, const char* role) {
    auto* frame = new QFrame(&parent);
    frame->setProperty("role", role);
    return frame;
}

template<typename Layout>
Layout* layoutOf(QWidget& widget, const QMargins& margins, int spacing) {
    auto* layout = new Layout(&widget);
    layout->setContentsMargins(margins);
    layout->setSpacing(spacing);
    return layout;
}

} // namespace

PageFrame::PageFrame(QWidget& page, const char* backgroundName)
    : m_page(page) {
    page.resize(kPageSize);
    auto* window = layoutOf<QVBoxLayout>(page, {}, 0);
    m_linkBar = new LinkBar(&page);
    m_background = frameOf(page, "page");
    m_background->setObjectName(backgroundName);
    m_foot = frameOf(page, "foot");
    window->addWidget(m_linkBar);
    window->addWidget(m_background, 1);
    window->addWidget(m_foot);

    auto* halves = layoutOf<QHBoxLayout>(*m_background, {}, 0);
    m_picturePanel = frameOf(*m_background, "picture");
    m_picturePanel->setFixedWidth(kPictureSize.width() + 2 * kGap);
    halves->addWidget(m_picturePanel);
    auto* content = new QWidget(m_background);
    halves->addWidget(content, 1);
    m_column = layoutOf<QVBoxLayout>(*content, {kMargin, kMargin, kMargin, kGap}, kGap);
    m_options = m_column;
    layoutOf<QHBoxLayout>(*m_foot, {kMargin, kGap, kMargin, kGap}, kGap)->addStretch();
}

Picture* PageFrame::picture(const char* name) {
    auto* picture = new Picture(m_picturePanel);
    picture->setObjectName(name);
    picture->setFixedSize(kPictureSize);
    auto* panel = layoutOf<QVBoxLayout>(*m_picturePanel, {kGap, kMargin, kGap, kGap}, kGap);
    panel->addWidget(picture);
    panel->addStretch();
    return picture;
}

QLabel* PageFrame::label(const char* name, const char* caption) const {
    auto* label = new QLabel(caption, m_column->parentWidget());
    label->setObjectName(name);
    return label;
}

QLineEdit* PageFrame::textBox(const char* name, QLabel& label) const {
    auto* box = new QLineEdit(m_column->parentWidget());
    box->setObjectName(name);
    nameBy(*box, label);
    return box;
}

void PageFrame::nameBy(QWidget& control, QLabel& label) {
    control.setProperty(kNamedBy, label.objectName());
    if (!label.buddy())
        label.setBuddy(&control);
}

void PageFrame::nameControls(const QWidget& page) {
    for (QWidget* control : page.findChildren<QWidget*>()) {
        const QString label = control->property(kNamedBy).toString();
        if (!label.isEmpty())
            control->setAccessibleName(withoutMnemonic(page.findChild<QLabel*>(label)->text()));
    }
}

QLabel* PageFrame::title(const char* name, const char* caption) {
    QLabel* title = sentence(name, caption);
    title->setProperty("role", "title");
    return title;
}

QLabel* PageFrame::sentence(const char* name, const char* caption) {
    QLabel* text = label(name, caption);
    text->setWordWrap(true);
    m_column->addWidget(text);
    return text;
}

QLabel* PageFrame::heading(const char* name, const char* caption) {
    QLabel* heading = sentence(name, caption);
    heading->setProperty("role", "heading");
    return heading;
}

OptionButton* PageFrame::option(const char* name, const char* caption) {
    auto* option = new OptionButton(m_options->parentWidget());
    option->setObjectName(name);
    option->setText(caption);
    m_options->addWidget(option);
    return option;
}

OptionButton* PageFrame::captionlessOption(const char* name) const {
    auto* option = new OptionButton(m_column->parentWidget());
    option->setObjectName(name);
    return option;
}

LinkLabel* PageFrame::optionLabel(const char* name, const char* caption, OptionButton& option) const {
    auto* label = new LinkLabel(m_column->parentWidget());
    label->setObjectName(name);
    label->setText(caption);
    label->setBuddy(&option);
    nameBy(option, *label);
    label->setFocusPolicy(Qt::NoFocus); // the keyboard is at home on the option
    return label;
}

QLabel* PageFrame::description(const char* name, OptionButton& option) {
    auto* text = new QLabel(m_options->parentWidget());
    text->setObjectName(name);
    text->setProperty("role", "help");
    text->setWordWrap(true);
    text->setIndent(kIndent);
    text->setBuddy(&option);
    m_options->addWidget(text);
    return text;
}

void PageFrame::row(const QList<QWidget*>& widgets, Stretch stretch) {
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    for (QWidget* widget : widgets)
        row->addWidget(widget);
    if (stretch == Stretch::None)
        row->addStretch();
    else
        row->setStretch(stretch == Stretch::First ? 0 : row->count() - 1, 1);
    m_column->addLayout(row);
}

void PageFrame::line(QLabel* title, const QList<QWidget*>& parts) {
    if (!m_lines) {
        m_lines = new QGridLayout;
        m_lines->setHorizontalSpacing(2 * kGap);
        m_lines->setVerticalSpacing(kGap);
        m_lines->setColumnStretch(1, 1);
        m_column->addLayout(m_lines);
    }
    title->setProperty("role", "heading");
    title->setWordWrap(true);
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    for (QWidget* part : parts) {
        const auto* text = qobject_cast<QLabel*>(part);
        row->addWidget(part, text && text->wordWrap() ? 1 : 0);
    }
    const int number = m_lines->rowCount();
    m_lines->addWidget(title, number, 0, Qt::AlignVCenter);
    m_lines->addLayout(row, number, 1);
}

QLineEdit* PageFrame::shownText(const char* name, QLabel& label) const {
    QLineEdit* box = textBox(name, label);
    box->setReadOnly(true);
    box->setFrame(false);
    box->setTextMargins(-kInnerMargin, 0, 0, 0); // its text starts where those of labels do
    box->setProperty("role", "shown");
    box->setFocusPolicy(Qt::ClickFocus);
    return box;
}

Picture* PageFrame::icon(const char* name, int size) const {
    auto* icon = new Picture(m_column->parentWidget());
    icon->setObjectName(name);
    icon->setFixedSize(size, size);
    return icon;
}

void PageFrame::add(QWidget* widget) {
    m_column->addWidget(widget);
}

void PageFrame::putOptionsInto(QWidget* frame) {
    m_options = frame ? layoutOf<QVBoxLayout>(*frame, {}, kGap) : m_column;
    if (frame)
        m_column->addWidget(frame);
}

void PageFrame::stretch() {
    m_column->addStretch();
}

QPushButton* PageFrame::button(Button which) {
    const ButtonDesign& design = kButtons[static_cast<std::size_t>(which)];
    auto* button = new QPushButton(design.caption, m_foot);
    button->setObjectName(design.name);
    button->setDefault(which == Button::Next || which == Button::Finish);
    button->setProperty("escape", which == Button::Cancel);
    m_foot->layout()->addWidget(button);
    return button;
}
