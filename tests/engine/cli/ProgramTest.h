#pragma once

#include "support/Files.h"
#include "support/PdfBuilder.h"
#include "support/ProgramRun.h"
#include "support/TemporaryFolder.h"
#include "support/Waiting.h"

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace orvane::cli {

using tests::waitFor;

/// Runs the built programs as a user does, in a folder of the test's own.
class ProgramTest : public testing::Test {
protected:
    static std::filesystem::path binaries() { return ORVANE_BINARIES; }

    std::string path(const std::string& name) const { return (m_folder.path() / name).string(); }
    bool exists(const std::string& name) const { return std::filesystem::exists(path(name)); }
    std::string read(const std::string& name) const { return tests::readFile(path(name)); }
    void write(const std::string& name, const std::string& bytes) const { tests::writeFile(path(name), bytes); }

    /// Makes a PDF of `pages` pages with a few lines each.
    std::string makePdf(const std::string& name, int pages = 1) const {
        tests::PdfBuilder pdf;
        for (int page = 1; page <= pages; ++page)
            pdf.page("BT /F1 12 Tf 14 TL 72 720 Td (This is page " + std::to_string(page) +
                     ".) Tj T* (It has a second line.) Tj ET");
        pdf.write(path(name));
        return path(name);
    }

    /// Makes a PDF with one picture of noise, which no compression makes smaller than 30,000 bytes.
    void makePdfWithPicture(const std::string& name) const {
        std::string pixels;
        for (unsigned i = 0, value = 1; i < 100 * 100 * 3; ++i, value = value * 1103515245 + 12345)
            pixels += static_cast<char>(value >> 16);
        tests::PdfBuilder pdf;
        const int image = pdf.addStream(tests::pdfImage(100, 100, "/DeviceRGB", 8), pixels);
        const std::string resources = "/XObject << /Im1 " + tests::pdfRef(image) + " >>";
        pdf.page({"q 99 0 0 99 72 600 cm /Im1 Do Q", 612, 792, {}, resources, {}});
        pdf.write(path(name));
    }

    static tests::ProgramResult orvane(const std::vector<std::string>& arguments,
                                       const tests::ProgramOptions& options = {}) {
        return tests::runProgram(binaries() / "orvane", arguments, options);
    }

    static bool isZip(const std::string& bytes) {
        // A whole one ends with its directory, whose last record starts so and is 22 bytes long.
        return bytes.size() > 22 && bytes.substr(0, 4) == "PK\x03\x04" &&
               bytes.substr(bytes.size() - 22, 4) == "PK\x05\x06";
    }

    /// Everything in the folder that a conversion may have left behind.
    std::vector<std::string> leftovers() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder.path()))
            if (entry.path().filename().string().find(".part") != std::string::npos)
                names.push_back(entry.path().filename().string());
        return names;
    }

private:
    tests::TemporaryFolder m_folder;
};

} // namespace orvane::cli
