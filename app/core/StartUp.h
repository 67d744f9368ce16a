#pragma once

#include "records/SharedRecords.h"

#include <QString>

#include <chrono>
#include <functional>

/// What the start-up sequence needs around it.
class StartUpSteps {
public:
    virtual ~StartUpSteps() = default;

    virtual void LoadSettings() = 0;
    /// 1 when the word processor is there, else 0.
    virtual int IsMSWordInstalled() = 0;
    virtual void runLater(std::chrono::milliseconds delay, std::function<void()> step) = 0;
    virtual QString programCommandLine() const = 0;
    virtual void showMainWindow() = 0;
};

/// Loads the settings twice around the probe for the word processor, and after a moment shows the main window.
void StartUp(SharedRecords& records, StartUpSteps& steps);
