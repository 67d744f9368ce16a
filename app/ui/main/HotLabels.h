#pragma once

#include <QObject>

#include <array>
#include <functional>
#include <vector>

class QWidget;

/// The nine labels of the main window that turn white under the mouse. They are numbered from 1, in the order that they
/// are given in; seven of them have an image that does the same. A label stays white until the mouse reaches another
/// one or the background.
class HotLabels : public QObject {
public:
    static constexpr int kCount = 9;

    struct Item {
        QWidget* label = nullptr;
        QWidget* image = nullptr; ///< null for one whose image does nothing
        /// A label that the image's movements leave as it is, hot or not; null for most.
        QWidget* leftAlone = nullptr;
    };

    /// Watches the items and the background, which are to outlive it.
    HotLabels(const std::array<Item, kCount>& items, const std::vector<QWidget*>& background);

    /// Number of the label that is hot, 0 when none is.
    int intHoverItem() const { return m_intHoverItem; }

    /// Runs after each movement over an image (its number) or the background (0).
    std::function<void(int number)> afterImageOrBackground;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Part { None, Label, Image, Background };
    struct Place {
        Part part = Part::None;
        int number = 0;
    };
    Place placeOf(const QObject* widget) const;
    void heat(const Place& place);
    void coolDown();

    std::array<Item, kCount> m_items;
    std::vector<QWidget*> m_background;
    int m_intHoverItem = 0;
};
