#pragma once

#include <filesystem>
#include <string>

namespace platform {

/// A shared library that stays loaded for the life of the object.
/// Errors: the constructor and function() throw std::runtime_error with the system's own words.
class SharedLibrary {
public:
    explicit SharedLibrary(const std::filesystem::path& file);
    ~SharedLibrary();
    SharedLibrary(const SharedLibrary&) = delete;
    SharedLibrary& operator=(const SharedLibrary&) = delete;

    /// The exported function of that name; Function is a pointer-to-function type.
    template<typename Function>
    Function function(const std::string& name) const {
        return reinterpret_cast<Function>(symbol(name));
    }

    /// File name of a library as this system writes it: "liborvane.so" for "orvane".
    static std::string fileName(const std::string& stem);

private:
    void* symbol(const std::string& name) const;

    void* m_handle = nullptr;
};

} // namespace platform
