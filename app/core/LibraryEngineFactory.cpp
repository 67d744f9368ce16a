#include "core/LibraryEngineFactory.h"

#include <stdexcept>

LibraryEngineFactory::LibraryEngineFactory(std::filesystem::path folder)
    : m_folder(std::move(folder)) {}

std::unique_ptr<orvane::ConversionEngine> LibraryEngineFactory::create() {
    if (!m_library)
        m_library = std::make_unique<platform::SharedLibrary>(m_folder / platform::SharedLibrary::fileName("orvane"));
    const auto createEngine = m_library->function<OrvaneCreateEngineFunction>("OrvaneCreateEngine");
    std::unique_ptr<orvane::ConversionEngine> engine(createEngine());
    if (!engine)
        throw std::runtime_error("the conversion engine does not work here");
    return engine;
}
