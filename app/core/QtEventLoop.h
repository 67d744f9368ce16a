#pragma once

#include "core/System.h"

/// The event loop of the user interface.
class QtEventLoop : public EventLoop {
public:
    void yield() override;
    void runAside(const std::function<void()>& task, const BusyNotice& notice) override;
};
