#pragma once

#include "orvane/ConversionEngine.h"
#include "support/Files.h"
#include "support/PdfBuilder.h"
#include "support/TemporaryFolder.h"
#include "support/Waiting.h"

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include <dlfcn.h>
#include <gmock/gmock.h>

namespace orvane::component {

using tests::waitFor;

/// The built library, loaded and used as an application does.
class LoadedLibrary : public testing::Test {
protected:
    static std::unique_ptr<ConversionEngine> createEngine(const std::filesystem::path& folder = ORVANE_BINARIES) {
        void* library = dlopen((folder / "liborvane.so").c_str(), RTLD_NOW | RTLD_LOCAL);
        if (library == nullptr)
            throw std::runtime_error(dlerror());
        const auto create = reinterpret_cast<OrvaneCreateEngineFunction>(dlsym(library, "OrvaneCreateEngine"));
        return std::unique_ptr<ConversionEngine>(create());
    }

    ConversionRequest request() const {
        ConversionRequest result;
        result.sourcePath = file("a.pdf");
        result.flags = flag::kAllPages | flag::kWordFormat | flag::kDocx;
        result.targetPath = file("a.docx");
        result.logPath = file("run.log");
        result.temporaryFolder = file("scratch");
        result.applicationName = "Tavrelion";
        return result;
    }

    void makePdf(int pages) const {
        tests::PdfBuilder pdf;
        for (int page = 0; page < pages; ++page)
            pdf.page("BT /F1 12 Tf 72 720 Td (A page with a line.) Tj ET");
        pdf.write(file("a.pdf"));
    }

    static std::int16_t waitForEnd(ConversionEngine& engine) {
        std::int32_t first = 0;
        std::int32_t second = 0;
        std::int16_t finishCode = finish::kWorking;
        waitFor([&] {
            engine.GetStatus(first, second, finishCode);
            return finishCode != finish::kWorking;
        });
        return finishCode;
    }

    std::string file(const std::string& name) const { return (m_folder.path() / name).string(); }
    std::string read(const std::string& name) const { return tests::readFile(file(name)); }

private:
    tests::TemporaryFolder m_folder;
};

} // namespace orvane::component
