#include "ui/main/HotLabels.h"

#include <QEvent>
#include <QPalette>
#include <QWidget>

#include <algorithm>

namespace {

void colour(QWidget& label, Qt::GlobalColor text) {
    QPalette colours = label.palette();
    colours.setColor(QPalette::WindowText, text);
    label.setPalette(colours);
}

} // namespace

HotLabels::HotLabels(const std::array<Item, kCount>& items, const std::vector<QWidget*>& background)
    : m_items(items)
    , m_background(background) {
    std::vector<QWidget*> watched = background;
    for (const Item& item : m_items) {
        colour(*item.label, Qt::black);
        watched.push_back(item.label);
        if (item.image)
            watched.push_back(item.image);
    }
    for (QWidget* widget : watched) {
        widget->setMouseTracking(true);
        widget->installEventFilter(this);
    }
}

bool HotLabels::eventFilter(QObject* watched, QEvent* event) {
    const Place place = event->type() == QEvent::MouseMove ? placeOf(watched) : Place();
    if (place.part == Part::None)
        return false;
    if (place.part == Part::Background)
        coolDown();
    else
        heat(place);
    if (place.part != Part::Label && afterImageOrBackground)
        afterImageOrBackground(place.number);
    // It ends here: a widget passes movements on to its parent, and the background would cool the label down again.
    return true;
}

HotLabels::Place HotLabels::placeOf(const QObject* widget) const {
    for (int i = 0; i < kCount; ++i) {
        const Item& item = m_items[static_cast<std::size_t>(i)];
        if (widget == item.label)
            return {Part::Label, i + 1};
        if (widget == item.image)
            return {Part::Image, i + 1};
    }
    const bool isBackground = std::find(m_background.begin(), m_background.end(), widget) != m_background.end();
    return {isBackground ? Part::Background : Part::None, 0};
}

void HotLabels::heat(const Place& place) {
    const Item& hot = m_items[static_cast<std::size_t>(place.number - 1)];
    for (const Item& item : m_items)
        if (&item == &hot)
            colour(*item.label, Qt::white);
        else if (place.part == Part::Label || item.label != hot.leftAlone)
            colour(*item.label, Qt::black);
    m_intHoverItem = place.number;
}

void HotLabels::coolDown() {
    if (m_intHoverItem != 0)
        colour(*m_items[static_cast<std::size_t>(m_intHoverItem - 1)].label, Qt::black);
    m_intHoverItem = 0;
}
