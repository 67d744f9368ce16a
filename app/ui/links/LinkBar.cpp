#include "ui/links/LinkBar.h"

#include "services/LinkActions.h"
#include "ui/form/LinkLabel.h"
#include "ui/form/Picture.h"

#include <QEvent>
#include <QHBoxLayout>

namespace {

constexpr int kHeight = 56;   ///< pixels, of the strip
constexpr int kIconSize = 24; ///< pixels
/// Pixels, of a label until its window is laid out. The progress window shortens captions by their labels' widths while
/// it loads, and no language needs more than this.
constexpr int kInitialLabelWidth = 200;

/// A link as the windows and the language files name it.
struct LinkDesign {
    const char* label;
    const char* image;
    const char* caption;
    const char* icon;
    void (LinkActions::*action)();
};
constexpr std::array<LinkDesign, 5> kDesigns{{
    {"lblHelp", "imgHelp", "Help", "help.svg", &LinkActions::OpenHelp},
    {"lblOnline", "imgOnline", "Online Support", "support.svg", &LinkActions::OpenOnlineSupport},
    {"lblOtherProducts", "imgOtherProducts", "Other Products", "products.svg", &LinkActions::OpenOtherProducts},
    {"lblQuickTour", "imgQuickTour", "Quick Tour", "tour.svg", &LinkActions::OpenQuickTour},
    {"lblWebsite", "imgWebsite", "Website", "website.svg", &LinkActions::OpenWebsite},
}};

void colour(QWidget& label, Qt::GlobalColor text) {
    QPalette colours = label.palette();
    colours.setColor(QPalette::WindowText, text);
    label.setPalette(colours);
}

} // namespace

LinkBar::LinkBar(QWidget* parent)
    : QFrame(parent) {
    setProperty("role", "band");
    setFixedHeight(kHeight);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 0, 8, 0);
    row->setSpacing(2);
    for (std::size_t i = 0; i < m_links.size(); ++i) {
        if (i > 0)
            row->addStretch();
        m_links[i] = makeLink(static_cast<int>(i));
        row->addWidget(m_links[i].image);
        row->addWidget(m_links[i].label);
        connect(m_links[i].label, &LinkLabel::clicked, this, [this, i] { runAction(i); });
        connect(m_links[i].image, &Picture::clicked, this, [this, i] { runAction(i); });
    }
}

LinkBar::Link LinkBar::makeLink(int index) {
    const LinkDesign& design = kDesigns[static_cast<std::size_t>(index)];
    auto* image = new Picture(this);
    image->setObjectName(design.image);
    image->setFixedSize(kIconSize, kIconSize);
    image->setCursor(Qt::PointingHandCursor);
    auto* label = new LinkLabel(this);
    label->setObjectName(design.label);
    label->setProperty("role", "link");
    label->setText(design.caption);
    label->resize(kInitialLabelWidth, kIconSize);
    colour(*label, Qt::black);
    return {label, image};
}

void LinkBar::connectLinks(LinkActions& actions, const QString& imageFolder) {
    m_actions = &actions;
    for (std::size_t i = 0; i < m_links.size(); ++i)
        m_links[i].image->load(imageFolder + '/' + kDesigns[i].icon);
}

void LinkBar::runAction(std::size_t index) {
    if (m_actions)
        (m_actions->*kDesigns[index].action)();
}

void LinkBar::followMouse(QWidget& background) {
    for (const Link& link : m_links)
        for (QWidget* part : {static_cast<QWidget*>(link.label), static_cast<QWidget*>(link.image)}) {
            part->setMouseTracking(true);
            part->installEventFilter(this);
        }
    for (QWidget* part : {static_cast<QWidget*>(this), &background}) {
        part->setMouseTracking(true);
        part->installEventFilter(this);
    }
}

bool LinkBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::MouseMove)
        return QFrame::eventFilter(watched, event);
    setHoverLink(numberOf(watched));
    // It ends here: a widget passes movements on to its parent, and the strip below the link would cool it down again.
    return true;
}

int LinkBar::numberOf(const QObject* labelOrImage) const {
    for (std::size_t i = 0; i < m_links.size(); ++i)
        if (m_links[i].label == labelOrImage || m_links[i].image == labelOrImage)
            return static_cast<int>(i) + 1;
    return 0;
}

void LinkBar::setHoverLink(int number) {
    for (std::size_t i = 0; i < m_links.size(); ++i)
        colour(*m_links[i].label, static_cast<int>(i) + 1 == number ? Qt::white : Qt::black);
    m_hoverLink = number;
}
