#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string_view>

namespace orvane::write::rtf {

/// The file that is written.
/// Errors: all calls throw Failure(TargetUnwritable).
class RtfFile {
public:
    explicit RtfFile(const std::filesystem::path& target);

    void add(std::string_view bytes);
    void close();

private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    [[noreturn]] void fail() const;

    std::filesystem::path m_target;
    std::unique_ptr<std::FILE, Closer> m_file;
};

} // namespace orvane::write::rtf
