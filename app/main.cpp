#include "ui/application/Application.h"
#include "ui/form/Style.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication qtApplication(argc, argv);
    QApplication::setApplicationName("Tavrelion");
    // Windows hide themselves for one another; the program ends when it is told to.
    QApplication::setQuitOnLastWindowClosed(false);
    applyStyle(qtApplication);
    Application application;
    return application.run();
}
