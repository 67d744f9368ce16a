#include "pdf/DocumentOpener.h"

#include "base/Failure.h"
#include "pdf/LostCatalog.h"

#include <fstream>
#include <iterator>
#include <optional>

#include <fmt/format.h>

#include <ErrorCodes.h>
#include <PDFDoc.h>
#include <goo/GooString.h>

namespace orvane::pdf {
namespace {

void requireReadableFile(const std::filesystem::path& file) {
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    if (!std::filesystem::exists(status))
        throw Failure(FailureCode::SourceUnreadable, fmt::format("{} does not exist", file.string()));
    if (!std::filesystem::is_regular_file(status))
        throw Failure(FailureCode::SourceUnreadable, fmt::format("{} is not a file", file.string()));
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw Failure(FailureCode::SourceUnreadable, fmt::format("{} cannot be read", file.string()));
    if (stream.peek() == std::ifstream::traits_type::eof())
        throw Failure(FailureCode::NotAPdf, fmt::format("{} is empty", file.string()));
}

/// The password in the one-byte encoding of files before PDF 2.0, where it fits; nothing when that is the same.
/// Source: ISO 32000-1, 7.6.3.3.
std::optional<std::string> inLatin1(const std::string& utf8) {
    std::string bytes;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto first = static_cast<unsigned char>(utf8[i]);
        if (first < 0x80) {
            bytes += utf8[i];
        } else if ((first == 0xC2 || first == 0xC3) && i + 1 < utf8.size()) {
            bytes += static_cast<char>((first & 3) << 6 | (static_cast<unsigned char>(utf8[i + 1]) & 0x3F));
            ++i;
        } else {
            return std::nullopt;
        }
    }
    return bytes == utf8 ? std::nullopt : std::optional(bytes);
}

/// The passwords worth trying, in order.
std::vector<std::string> candidates(const Passwords& passwords) {
    std::vector<std::string> list;
    for (const std::string& password : {passwords.owner, passwords.user}) {
        if (password.empty())
            continue;
        list.push_back(password);
        if (auto latin1 = inLatin1(password))
            list.push_back(std::move(*latin1));
    }
    return list;
}

std::unique_ptr<::PDFDoc> tryOpen(const std::filesystem::path& file, const std::optional<std::string>& password) {
    std::optional<GooString> given;
    if (password)
        given.emplace(*password);
    return std::make_unique<::PDFDoc>(std::make_unique<GooString>(file.string()), given, given);
}

bool needsPassword(const ::PDFDoc& document) {
    return !document.isOk() && document.getErrorCode() == errEncrypted;
}

/// Whether the file is locked by other means than passwords (certificates, rights servers), which no password can open.
bool isLockedOtherwise(const ::PDFDoc& document) {
    if (!document.getXRef())
        return false;
    const ::Object encrypt = document.getXRef()->getTrailerDict()->dictLookup("Encrypt");
    return encrypt.isDict() && !encrypt.dictLookup("Filter").isName("Standard");
}

bool hasPages(::PDFDoc& document) {
    return document.isOk() && document.getNumPages() >= 1;
}

/// A second try at a damaged file, in memory. Nothing when that does not help either.
std::optional<OpenDocument> repaired(const std::filesystem::path& file) {
    constexpr std::uintmax_t kLargestRepaired = 512u << 20;
    std::error_code error;
    if (std::filesystem::file_size(file, error) > kLargestRepaired || error)
        return std::nullopt;
    std::ifstream stream(file, std::ios::binary);
    auto rebuilt = withRebuiltCatalog(std::string(std::istreambuf_iterator<char>(stream), {}));
    if (!rebuilt)
        return std::nullopt;
    OpenDocument open;
    open.bytes = std::make_unique<std::string>(std::move(*rebuilt));
    open.document = std::make_unique<::PDFDoc>(
        new MemStream(open.bytes->data(), 0, static_cast<Goffset>(open.bytes->size()), ::Object(objNull)));
    return hasPages(*open.document) ? std::optional(std::move(open)) : std::nullopt;
}

} // namespace

OpenDocument openDocument(const std::filesystem::path& file, const Passwords& passwords) {
    requireReadableFile(file);
    std::unique_ptr<::PDFDoc> document = tryOpen(file, std::nullopt);
    for (const std::string& password : candidates(passwords)) {
        const bool isOpenForCopying = document->isOk() && document->okToCopy();
        if (isOpenForCopying || (!document->isOk() && !needsPassword(*document)))
            break;
        auto other = tryOpen(file, password);
        if (other->isOk())
            document = std::move(other);
    }
    if (needsPassword(*document) && isLockedOtherwise(*document))
        throw Failure(FailureCode::SourceUnreadable,
                      fmt::format("{} is locked by other means than a password", file.string()));
    if (needsPassword(*document))
        throw Failure(FailureCode::UserPasswordNeeded, fmt::format("{} opens with a password", file.string()));
    if (!hasPages(*document)) {
        if (auto open = repaired(file))
            return std::move(*open);
        throw Failure(FailureCode::NotAPdf, fmt::format("{} is not a PDF, or damaged beyond repair", file.string()));
    }
    if (!document->okToCopy())
        throw Failure(
            FailureCode::OwnerPasswordNeeded,
            fmt::format("the author of {} forbids taking its content out without the owner's password", file.string()));
    return {nullptr, std::move(document)};
}

} // namespace orvane::pdf
