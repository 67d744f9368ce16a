#include "core/QtEventLoop.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <exception>
#include <thread>

void QtEventLoop::yield() {
    QCoreApplication::processEvents();
}

void QtEventLoop::runAside(const std::function<void()>& task, const BusyNotice& notice) {
    QEventLoop loop;
    QTimer busy;
    busy.setSingleShot(true);
    if (notice.tell) {
        QObject::connect(&busy, &QTimer::timeout, notice.tell);
        busy.start(notice.after);
    }
    std::exception_ptr failure;
    std::thread aside([&] {
        try {
            task();
        } catch (...) {
            failure = std::current_exception();
        }
        // A quit that comes before the loop runs waits in its queue.
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    // The program's end breaks loops off; the task still needs what it was given.
    aside.join();
    if (failure)
        std::rethrow_exception(failure);
}
