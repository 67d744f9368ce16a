#pragma once

#include <QFrame>

#include <array>

class LinkActions;
class LinkLabel;
class Picture;

/// The strip of five links across the top of a window: Help, Online Support, Other Products, Quick Tour, Website, each
/// an icon and a label. One implementation serves every window that carries the strip.
///
/// The link under the mouse turns white and stays so until the mouse reaches another link or the window's background;
/// its number stands in intHoverLink().
class LinkBar : public QFrame {
    Q_OBJECT

public:
    explicit LinkBar(QWidget* parent = nullptr);

    /// Makes a click on a link run its action from now on. `imageFolder`: where the icons lie.
    void connectLinks(LinkActions& actions, const QString& imageFolder);

    /// Lets the links follow the mouse. `background`: the picture behind the window's controls, where the hot link
    /// cools down; the empty parts of the strip belong to it. The progress window leaves this out, and its links never
    /// change colour.
    void followMouse(QWidget& background);

    /// Number of the hot link, 1 to 5 in the order above; 0 when none is hot.
    int intHoverLink() const { return m_hoverLink; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Link {
        LinkLabel* label = nullptr;
        Picture* image = nullptr;
    };
    Link makeLink(int index);
    int numberOf(const QObject* labelOrImage) const;
    void setHoverLink(int number);
    void runAction(std::size_t index);

    std::array<Link, 5> m_links;
    LinkActions* m_actions = nullptr; ///< null until they are connected
    int m_hoverLink = 0;
};
