#pragma once

#include <QWidget>

class LinkBar;
class LinkLabel;
class OptionButton;
class Picture;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

/// The frame that all pages of the wizards share, and the parts that they are put together from: the strip of links on
/// top, the explaining picture at the left, title, sentence and choices at the right, the buttons at the foot. Parts
/// come in the order of the calls, which is the order of the Tab key too.
/// Owns: nothing; the parts belong to the page.
class PageFrame {
public:
    /// `backgroundName`: the object name of the picture behind the page's controls.
    PageFrame(QWidget& page, const char* backgroundName);

    LinkBar& linkBar() const { return *m_linkBar; }
    QWidget& background() const { return *m_background; }

    /// The picture in the left third.
    Picture* picture(const char* name);
    QLabel* title(const char* name, const char* caption = "");
    QLabel* sentence(const char* name, const char* caption = "");
    /// A heading of some fields further down.
    QLabel* heading(const char* name, const char* caption = "");

    /// An option button whose caption stands on itself.
    OptionButton* option(const char* name, const char* caption = "");
    /// What an option means, below it.
    QLabel* description(const char* name, OptionButton& option);

    /// An option button whose caption stands on a label of its own, and that label. Both go into a row.
    OptionButton* captionlessOption(const char* name) const;
    LinkLabel* optionLabel(const char* name, const char* caption, OptionButton& option) const;

    /// Which widget of a row takes the room that is left.
    enum class Stretch { First, Last, None };
    void row(const QList<QWidget*>& widgets, Stretch stretch = Stretch::Last);
    /// A line of a summary: a title, and behind it what it says, of which a text that wraps takes the room.
    void line(QLabel* title, const QList<QWidget*>& parts);
    /// A text box that only shows, without a frame.
    QLineEdit* shownText(const char* name, QLabel& label) const;
    /// A small picture in a line. Units: pixels.
    Picture* icon(const char* name, int size) const;

    /// A widget over the whole width.
    void add(QWidget* widget);
    /// Options added from now on stand in this frame, until the next call with null.
    void putOptionsInto(QWidget* frame);
    /// What is left of the height stays empty here.
    void stretch();

    /// The buttons at the foot, in the order in which they stand there. Enter presses Next or Finish, Escape Cancel.
    enum class Button { Back, Next, Last, Finish, Cancel };
    QPushButton* button(Button which);

    /// A label with its text; `text` is the caption until the language file replaces it.
    QLabel* label(const char* name, const char* caption = "") const;
    /// `label`: stands for the box, which has no caption.
    QLineEdit* textBox(const char* name, QLabel& label) const;
    /// Lets a label stand for a control that has no caption: a screen reader calls the control by its text, in the
    /// language of the moment, and its access key leads there. A label that names several controls leads to the first.
    static void nameBy(QWidget& control, QLabel& label);
    /// Gives the controls their names anew, after the labels got their texts.
    static void nameControls(const QWidget& page);

private:
    QWidget& m_page;
    LinkBar* m_linkBar = nullptr;
    QWidget* m_background = nullptr;
    QWidget* m_picturePanel = nullptr;
    QVBoxLayout* m_column = nullptr;
    QGridLayout* m_lines = nullptr;   ///< of a summary, from its first line on
    QVBoxLayout* m_options = nullptr; ///< where options go; m_column without a frame
    QWidget* m_foot = nullptr;
};
