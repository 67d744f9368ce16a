#include "ui/form/AccessKeys.h"

#include "i18n/Captions.h"
#include "i18n/Controls.h"

#include <QAbstractButton>
#include <QLabel>
#include <QRadioButton>

#include <map>
#include <optional>
#include <set>
#include <vector>

namespace {

/// A caption without its mark, and where that stood.
struct Caption {
    QString text;
    std::optional<qsizetype> mark;
    bool asks = false; ///< it came with a mark
};

Caption readCaption(const QString& caption) {
    Caption read;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) {
            ++i;
            if (caption[i] != '&' && !read.mark)
                read.mark = read.text.size();
        }
        read.text += caption[i];
    }
    read.asks = read.mark.has_value();
    return read;
}

QString writtenCaption(const Caption& caption) {
    QString written;
    for (qsizetype i = 0; i < caption.text.size(); ++i) {
        if (caption.mark == i || caption.text[i] == '&')
            written += '&';
        written += caption.text[i];
    }
    return written;
}

bool hasCaption(const QWidget& control) {
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    return button && !button->text().isEmpty();
}

/// Of a group of options the Tab key stops at the chosen one only, but the arrow keys reach all.
bool isReachedByKeyboard(const QWidget& control) {
    return (control.focusPolicy() & Qt::TabFocus) || qobject_cast<const QRadioButton*>(&control);
}

bool takesAccessKey(const QWidget& control, const QWidget& window) {
    const QWidget& container = *control.parentWidget();
    if (&container != &window && !container.isVisibleTo(&window))
        return false;
    if (const auto* label = qobject_cast<const QLabel*>(&control))
        return label->buddy() && isReachedByKeyboard(*label->buddy()) && !hasCaption(*label->buddy());
    return hasCaption(control);
}

/// Which letters can be keys. Many keyboards need two presses for one with an accent.
enum class Letters { Plain, All };

/// The places of a caption that can be its key, the best first: the one asked for, starts of words, then all others.
std::vector<qsizetype> candidates(const Caption& caption, Letters letters) {
    std::vector<qsizetype> places;
    if (caption.mark)
        places.push_back(*caption.mark);
    const QString& text = caption.text;
    const auto serves = [&](QChar character) {
        return character.isLetterOrNumber() &&
               (letters == Letters::All || character.decompositionTag() == QChar::NoDecomposition);
    };
    for (qsizetype i = 0; i < text.size(); ++i)
        if (serves(text[i]) && (i == 0 || text[i - 1].isSpace()))
            places.push_back(i);
    for (qsizetype i = 0; i < text.size(); ++i)
        if (serves(text[i]))
            places.push_back(i);
    return places;
}

/// Deals the keys out so that as many captions as possible get one: a caption that finds none free takes one from
/// another that has a choice.
class KeyDeal {
public:
    explicit KeyDeal(std::vector<Caption>& captions)
        : m_captions(captions) {}

    void deal(std::size_t caption) {
        std::optional<qsizetype> mark;
        for (const Letters letters : {Letters::Plain, Letters::All}) {
            std::set<QChar> tried;
            if (!mark)
                mark = place(caption, letters, tried);
        }
        m_captions[caption].mark = mark;
    }

private:
    std::optional<qsizetype> place(std::size_t caption, Letters letters, std::set<QChar>& tried) {
        const std::vector<qsizetype> places = candidates(m_captions[caption], letters);
        const auto keyAt = [&](qsizetype i) { return m_captions[caption].text[i].toUpper(); };
        for (const qsizetype i : places)
            if (m_owners.emplace(keyAt(i), caption).second)
                return i;
        for (const qsizetype i : places) {
            if (!tried.insert(keyAt(i)).second)
                continue;
            const std::size_t owner = m_owners[keyAt(i)];
            if (const auto elsewhere = place(owner, letters, tried)) {
                m_captions[owner].mark = elsewhere;
                m_owners[keyAt(i)] = caption;
                return i;
            }
        }
        return std::nullopt;
    }

    std::vector<Caption>& m_captions;
    std::map<QChar, std::size_t> m_owners;
};

} // namespace

void assignAccessKeys(QWidget& window) {
    std::vector<QWidget*> controls;
    std::vector<Caption> captions;
    for (QWidget* control : controlsOf(window))
        if (takesAccessKey(*control, window)) {
            controls.push_back(control);
            captions.push_back(readCaption(captionOf(*control)));
        }
    KeyDeal keys(captions);
    // Those that ask for a key come first.
    for (const bool asks : {true, false})
        for (std::size_t i = 0; i < captions.size(); ++i)
            if (captions[i].asks == asks)
                keys.deal(i);
    for (std::size_t i = 0; i < controls.size(); ++i)
        setCaption(*controls[i], writtenCaption(captions[i]));
}
