#pragma once

#include "core/System.h"
#include "platform/SharedLibrary.h"

#include <filesystem>

/// Engines from the component that lies beside the program. It is loaded at the first request and stays loaded.
class LibraryEngineFactory : public EngineFactory {
public:
    /// `folder`: where the component lies.
    explicit LibraryEngineFactory(std::filesystem::path folder);

    std::unique_ptr<orvane::ConversionEngine> create() override;

private:
    std::filesystem::path m_folder;
    std::unique_ptr<platform::SharedLibrary> m_library;
};
