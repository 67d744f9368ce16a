#include "ui/dialogs/SystemMessageBox.h"

#include <QApplication>
#include <QMessageBox>

namespace {

QMessageBox::Icon systemIcon(UserMessages::Icon icon) {
    switch (icon) {
    case UserMessages::Icon::Critical:
        return QMessageBox::Critical;
    case UserMessages::Icon::Exclamation:
        return QMessageBox::Warning;
    case UserMessages::Icon::Information:
        break;
    }
    return QMessageBox::Information;
}

} // namespace

void SystemMessageBox::tell(Icon icon, const QString& text, const QString& title) {
    QMessageBox box(systemIcon(icon), title, text, QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

UserMessages::Answer SystemMessageBox::ask(const QString& question, const QString& title) {
    QMessageBox box(QMessageBox::Question, title, question, QMessageBox::Yes | QMessageBox::No,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    return box.exec() == QMessageBox::Yes ? Answer::Yes : Answer::No;
}
