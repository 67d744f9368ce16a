#include "ui/form/Style.h"

#include <QApplication>
#include <QPalette>

namespace {

constexpr QRgb kProductColour = qRgb(0x00, 0x78, 0xD4);
constexpr QRgb kPage = qRgb(0xF7, 0xF8, 0xFA);
constexpr QRgb kCardBorder = qRgb(0xD9, 0xDE, 0xE4);
constexpr QRgb kHelpText = qRgb(0x5B, 0x65, 0x70);
constexpr int kLightDesktop = 128; ///< lightness, 0 to 255, from which a desktop counts as light

// On a dark desktop: how far on the way from the ground to the text.
constexpr double kSofterText = 0.7;
constexpr double kDisabledText = 0.45;
constexpr double kLine = 0.25;

QColor between(const QColor& from, const QColor& to, double share) {
    const auto mixed = [share](int a, int b) { return static_cast<int>(a + (b - a) * share); };
    return {mixed(from.red(), to.red()), mixed(from.green(), to.green()), mixed(from.blue(), to.blue())};
}

// Frames carry their part in the window as the property "role": band, column, page, card or foot.
constexpr char kStyleSheet[] = R"(
QFrame[role="band"], QFrame[role="column"] { background: #0078D4; border: none; }
QFrame[role="band"] QLabel[role="title"] { font-size: 14pt; font-weight: 600; }
QFrame[role="column"] QLabel[role="link"] { min-height: 30px; border: 2px solid transparent; padding: 0 8px; }
QFrame[role="tile"] { background: transparent; border: 1px solid rgba(255, 255, 255, 140); border-radius: 6px; }
QFrame[role="tile"] QLabel[role="link"] { min-height: 44px; padding: 0 4px; font-size: 11pt; font-weight: 600; }
QFrame[role="line"] { border: none; background: palette(midlight); }
QFrame[role="line"][frameShape="4"] { max-height: 1px; }
QFrame[role="line"][frameShape="5"] { max-width: 1px; }
QFrame[role="column"] QLabel[role="link"]:focus { border-color: #FFFFFF; }
QFrame[role="page"] { background: palette(window); border: none; }
QFrame[role="card"] { background: palette(base); border: 1px solid palette(midlight); border-radius: 6px; }
QFrame[role="picture"] { background: #FFFFFF; border: none; border-right: 1px solid palette(midlight); }
QGroupBox[role="group"] { border: none; margin: 0; padding: 0; }
QFrame[role="foot"] { background: palette(base); border: none; border-top: 1px solid palette(midlight); }
QFrame[role="foot"] QPushButton { min-width: 104px; }
QFrame[role="band"] QLabel[role="link"] { border: 2px solid transparent; padding: 0 4px; }
QFrame[role="band"] QLabel[role="link"]:focus { border-color: #FFFFFF; }
QLabel[role="title"] { font-size: 14pt; font-weight: 600; }
QLabel[role="help"] { font-size: 9pt; color: palette(dark); }
QLabel[role="status"] { font-size: 12pt; }
QLabel[role="heading"] { font-weight: 600; }
QLineEdit { min-height: 28px; border: 1px solid palette(midlight); border-radius: 4px; padding: 0 8px;
            background: palette(base); }
QPlainTextEdit[frameShape="6"] { border: 1px solid palette(midlight); border-radius: 4px; padding: 2px 4px; }
QLineEdit[role="shown"] { min-height: 20px; border: none; padding: 0; background: transparent; }
QPushButton { min-height: 26px; min-width: 88px; padding: 0 12px; border: 2px solid palette(midlight); border-radius: 4px;
              background: palette(button); color: palette(button-text); }
QPushButton[role="browse"] { min-width: 20px; padding: 0 4px; }
QPushButton:default { background: #0078D4; border-color: #0078D4; color: #FFFFFF; }
QPushButton:default:disabled { background: palette(button); border-color: palette(midlight); color: palette(mid); }
QPushButton:default:focus { border-color: palette(text); }
QComboBox { min-height: 28px; border: 1px solid palette(midlight); border-radius: 4px; padding: 0 8px;
            background: palette(base); }
QComboBox::drop-down { border: none; width: 28px; }
QRadioButton::indicator { width: 14px; height: 14px; border: 1px solid palette(dark); border-radius: 8px;
                          background: palette(base); }
QRadioButton::indicator:checked { background: qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5, fx: 0.5, fy: 0.5,
                                  stop: 0 #0078D4, stop: 0.55 #0078D4, stop: 0.65 transparent, stop: 1 transparent); }
QRadioButton::indicator:disabled { border-color: palette(midlight); }
QCheckBox, QRadioButton { min-height: 24px; spacing: 8px; }
QCheckBox:focus, QRadioButton:focus { border: 2px solid palette(text); border-radius: 4px; }
QPushButton:focus, QLineEdit:focus, QTextEdit:focus, QPlainTextEdit[frameShape="6"]:focus,
QComboBox:focus, QListView:focus { border: 2px solid palette(text); }
QPushButton:disabled { color: palette(mid); }
QProgressBar { min-height: 16px; max-height: 16px; border: 1px solid palette(midlight); border-radius: 4px;
               background: palette(base); text-align: center; }
QProgressBar::chunk { background: #0078D4; border-radius: 3px; }
)";

/// The style draws the outline of a check box darker than its window, which nobody sees on a dark one.
void lightenIndicators(QPalette palette) {
    palette.setColor(QPalette::Window, palette.color(QPalette::WindowText));
    for (const char* widget : {"QCheckBox", "QRadioButton"})
        QApplication::setPalette(palette, widget);
}

} // namespace

void applyStyle(QApplication& application) {
    QPalette palette = application.palette();
    const bool isDark = palette.color(QPalette::Window).lightness() < kLightDesktop;
    if (!isDark) {
        palette.setColor(QPalette::Window, QColor(kPage));
        palette.setColor(QPalette::Base, Qt::white);
        palette.setColor(QPalette::Button, Qt::white);
        palette.setColor(QPalette::Midlight, QColor(kCardBorder));
        palette.setColor(QPalette::Text, QColor(0x1B, 0x1B, 0x1B));
        palette.setColor(QPalette::Dark, QColor(kHelpText));
    } else {
        // These shades are for the edges of a light desktop; here they are the softer texts and lines.
        const QColor text = palette.color(QPalette::Text);
        const QColor ground = palette.color(QPalette::Window);
        palette.setColor(QPalette::Dark, between(ground, text, kSofterText));
        palette.setColor(QPalette::Mid, between(ground, text, kDisabledText));
        palette.setColor(QPalette::Midlight, between(ground, text, kLine));
    }
    palette.setColor(QPalette::Highlight, QColor(kProductColour));
    application.setPalette(palette);
    if (isDark)
        lightenIndicators(palette);
    application.setStyleSheet(kStyleSheet);
}
