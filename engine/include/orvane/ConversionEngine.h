#pragma once

#include <cstdint>
#include <string>

/// The contract between an application and the conversion engine, the only header of the engine that an application sees.
///
/// The engine is a shared library (liborvane.so, Orvane.dll) with one exported function, OrvaneCreateEngine(). All texts are
/// UTF-8. An engine object does one job; a new one is made for every DoConvert().

namespace orvane {

/// Results of ConversionEngine::DoConvert().
namespace result {
inline constexpr std::int32_t kAccepted = 0;              ///< the work goes on by itself; ask GetStatus()
inline constexpr std::int32_t kFailed = 1;                ///< cannot be done; the conversion log says why
inline constexpr std::int32_t kInUse = 15;                ///< the source or the target is held by another program
inline constexpr std::int32_t kUserPasswordNeeded = 17;   ///< call again with the password that opens the file
inline constexpr std::int32_t kOwnerPasswordNeeded = 18;  ///< call again with the password that allows taking content out
} // namespace result

/// Option bits of ConversionRequest::flags. Other bits are ignored.
namespace flag {
inline constexpr std::int32_t kAllPages = 1;               ///< the page range is not looked at
inline constexpr std::int32_t kWordFormat = 2;             ///< a DOC or DOCX is written, not RTF
inline constexpr std::int32_t kRemoveImages = 4;
inline constexpr std::int32_t kKeepCharacterSpacing = 8;
inline constexpr std::int32_t kUserPasswordAsked = 32;     ///< `password` answers a request for the user password
inline constexpr std::int32_t kOwnerPasswordAsked = 64;    ///< likewise for the owner password; with both, two passwords are joined
inline constexpr std::int32_t kLaterFileOfSelection = 128; ///< not the first file of a selection
inline constexpr std::int32_t kDocx = 65536;               ///< with kWordFormat: DOCX instead of DOC
} // namespace flag

/// How pages become text. The numbers are the contract's.
namespace layout_code {
inline constexpr std::int16_t kFlowing = 0;
inline constexpr std::int16_t kTruePage = 1;
inline constexpr std::int16_t kContinuous = 2;
inline constexpr std::int16_t kPlainText = 3;
inline constexpr std::int16_t kImages = 4;
} // namespace layout_code

/// Finish codes of ConversionEngine::GetStatus().
namespace finish {
inline constexpr std::int16_t kWorking = 0;
inline constexpr std::int16_t kSucceeded = 1;
inline constexpr std::int16_t kFailed = 2;
} // namespace finish

/// Stands between the owner password and the user password when both are given in one text.
inline constexpr char kPasswordSeparator[] = "`````";

/// The twelve arguments of a conversion, in the contract's order.
struct ConversionRequest {
    std::string sourcePath;          ///< the PDF
    std::string password;            ///< empty for none; two are joined by kPasswordSeparator
    std::string pageRange;           ///< "1-3,7"; cut to the document
    std::int32_t flags = 0;          ///< sum of flag::
    std::int16_t layoutCode = 0;     ///< one of layout_code::
    std::int16_t imageFormat = 1;    ///< 0 BMP, 1 JPG, 2 PBM, 3 PCX, 4 PNG, 5 PNM, 6 PPM, 7 PSD, 8 TIFF; layout_code::kImages only
    std::string targetPath;          ///< the document, or the folder of the images
    std::string logPath;             ///< the conversion log; a record is appended; empty for none
    std::string temporaryFolder;     ///< scratch files go here
    std::string applicationName;     ///< stands in the log
    std::string makerAddress;        ///< web address of the application's maker; nothing is ever sent there
    std::string registryKey;         ///< the application's key; the engine keeps nothing in it
};

/// One conversion. Thread: all calls from one thread.
class ConversionEngine {
public:
    virtual ~ConversionEngine() = default;

    /// Checks the request, opens the source in a worker process and returns one of result:: as soon as it is known whether the
    /// file can be worked on. With kAccepted the work goes on by itself and GetStatus() follows it.
    virtual std::int32_t DoConvert(const ConversionRequest& request) = 0;

    /// What the work is at. `finishCode` is one of finish::. The result is the status code:
    ///   0 nothing to tell
    ///   1 opening the document      2 reading the document        3 analysing fonts
    ///   4 page `first`              5 page `first` of `second`    6 picture `first`
    ///   7 writing page `first`      8, 9 not used                10 generating the document
    ///  11 document complete        12 image extraction complete
    virtual std::int32_t GetStatus(std::int32_t& first, std::int32_t& second, std::int16_t& finishCode) = 0;

    /// Asks the work to stop. It does so by itself, leaving an old target whole; nothing is waited for.
    virtual void DoCancel() = 0;
};

} // namespace orvane

/// The exported factory: a new engine, to be released with delete. Null when the engine cannot work here.
extern "C" orvane::ConversionEngine* OrvaneCreateEngine();
using OrvaneCreateEngineFunction = orvane::ConversionEngine* (*)();
