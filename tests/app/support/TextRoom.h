#pragma once

#include "i18n/Controls.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace tavrelion::tests {

/// Fails the test for each visible text of a window that is cut, and for a window that outgrows its size.
inline void expectNoTextIsCut(QWidget& window, QSize roomOnScreen, const QString& language) {
    QApplication::processEvents(); // lays the new texts out
    const QString where = language + ' ' + window.objectName();
    EXPECT_LE(window.minimumSizeHint().width(), roomOnScreen.width()) << where.toStdString() << " (width)";
    EXPECT_LE(window.minimumSizeHint().height(), roomOnScreen.height()) << where.toStdString() << " (height)";
    const auto expectRoom = [&](int room, const QWidget& control) {
        EXPECT_GE(room, 0) << where.toStdString() << '.' << control.objectName().toStdString();
    };
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        if (!control->isVisible())
            continue;
        if (const auto* label = qobject_cast<const QLabel*>(control); label && label->wordWrap())
            expectRoom(label->height() - label->heightForWidth(label->width()), *label);
        else if (label)
            expectRoom(label->contentsRect().width() -
                           label->fontMetrics().size(Qt::TextShowMnemonic, label->text()).width(),
                       *label);
        else if (qobject_cast<const QPushButton*>(control) || qobject_cast<const QRadioButton*>(control) ||
                 qobject_cast<const QCheckBox*>(control) || qobject_cast<const QComboBox*>(control))
            expectRoom(control->width() - control->sizeHint().width(), *control);
    }
}

/// Fails the test for two visible controls of one window that overlap.
inline void expectNothingOverlaps(QWidget& window, const QString& language) {
    const auto rectangleOf = [&window](const QWidget& control) {
        return QRect(control.mapTo(&window, QPoint()), control.size());
    };
    std::vector<const QWidget*> shown;
    for (const QWidget* control : controlsOf(window))
        if (control->isVisible() && kindOf(*control) != ControlKind::Other && kindOf(*control) != ControlKind::Frame)
            shown.push_back(control);
    for (std::size_t i = 0; i < shown.size(); ++i)
        for (std::size_t j = i + 1; j < shown.size(); ++j)
            EXPECT_FALSE(rectangleOf(*shown[i]).intersects(rectangleOf(*shown[j])))
                << language.toStdString() << ' ' << window.objectName().toStdString() << ": "
                << shown[i]->objectName().toStdString() << " and " << shown[j]->objectName().toStdString();
}

/// The rows "window control kind" of a window that take a text, as the list of controls has them.
inline std::set<QString> controlsWithText(const QWidget& window) {
    static const std::map<ControlKind, QString> kNames{
        {ControlKind::CommandButton, "button"}, {ControlKind::Label, "label"},    {ControlKind::CheckBox, "check"},
        {ControlKind::Frame, "frame"},          {ControlKind::ComboBox, "combo"}, {ControlKind::ListBox, "list"},
        {ControlKind::OptionButton, "option"},  {ControlKind::TextBox, "text"}};
    std::set<QString> rows;
    for (const QWidget* control : controlsOf(window))
        if (const auto name = kNames.find(kindOf(*control)); name != kNames.end())
            rows.insert(window.objectName() + ' ' + control->objectName() + ' ' + name->second);
    return rows;
}

/// The same rows of the list that the language files are checked against.
inline std::set<QString> listedControls(const QString& listFile, const QString& window) {
    QFile file(listFile);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    std::set<QString> rows;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        const QStringList words = line.split(' ', Qt::SkipEmptyParts);
        if (words.size() >= 3 && words[0] == window && words[2] != "message")
            rows.insert(words.mid(0, 3).join(' '));
    }
    return rows;
}

} // namespace tavrelion::tests
