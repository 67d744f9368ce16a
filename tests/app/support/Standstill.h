#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <thread>

namespace tavrelion::tests {

/// The longest time, in milliseconds, in which the event loop handled nothing while `step` ran. A machine that is short
/// of time holds every thread up: as much as it held up a thread of the same beat is not counted.
template<typename Step>
qint64 longestStandstill(Step step) {
    constexpr std::chrono::milliseconds kBeat{5};
    std::atomic<bool> isOver{false};
    std::atomic<qint64> longestOfMachine{0};
    std::thread reference([&] {
        QElapsedTimer since;
        since.start();
        while (!isOver) {
            std::this_thread::sleep_for(kBeat);
            longestOfMachine = std::max<qint64>(longestOfMachine, since.restart() - kBeat.count());
        }
    });
    qint64 longest = 0;
    QElapsedTimer since;
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout, [&] { longest = std::max(longest, since.restart()); });
    heart.start(kBeat);
    since.start();
    step();
    longest = std::max(longest, since.elapsed());
    isOver = true;
    reference.join();
    return longest - longestOfMachine;
}

} // namespace tavrelion::tests
