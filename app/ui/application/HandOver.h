#pragma once

#include "ui/main/NextWindows.h"
#include "ui/options/OptionPorts.h"
#include "ui/wizard/PagePorts.h"

#include <functional>
#include <memory>

class FormRegistry;
class frmImageFormatOutput;
class frmProgress;

/// The windows that the main window and the wizards hand over to, each made at its first use.
class HandOver : public NextWindows {
public:
    /// What the windows reach. `progress`: the window of a run, made but not loaded.
    struct Ports {
        PagePorts pages;
        OptionPorts options;
        std::function<std::shared_ptr<frmProgress>()> progress;
    };

    HandOver(FormRegistry& registry, Ports ports);

    void showLayout() override;
    void showOutputOptions() override;
    void showOptions() override;
    void showProgress() override;
    void showProgressAndWait() override;
    void chooseImagePages(ImagePages pages) override;
    QString sameSourceImagesCaption() override;
    void setImagePages(const QString& strExtractPages, std::int16_t intExtractFromTo) override;
    void showImageFormatOutput() override;

private:
    std::shared_ptr<frmImageFormatOutput> imagePage();

    FormRegistry& m_registry;
    Ports m_ports;
};
