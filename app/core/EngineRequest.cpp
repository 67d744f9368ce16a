#include "core/EngineRequest.h"

#include "core/BoundedList.h"
#include "core/OutputDerivation.h"
#include "core/ProgressRun.h"
#include "core/ReconstructionMode.h"
#include "core/Staging.h"

namespace run {
namespace {

namespace flag = orvane::flag;
namespace layout_code = orvane::layout_code;

constexpr char kApplicationName[] = "Tavrelion";
constexpr char kMakerAddress[] = "https://tavrelion.example/";
constexpr char kRegistryKey[] = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\qvl";

std::int32_t flagsOfDocument(const AppSettings& settings) {
    std::int32_t flags = 0;
    if (settings.intOutputFormat == output_format::kDoc || settings.intOutputFormat == output_format::kDocx)
        flags += flag::kWordFormat;
    if (settings.intReconstMode == reconstruction_mode::kTruePage ||
        settings.intReconstMode == reconstruction_mode::kFlowingText) {
        if (settings.intRecoverImg == 0)
            flags += flag::kRemoveImages;
        if (settings.intCharSpac == 0)
            flags += flag::kKeepCharacterSpacing;
    }
    return flags;
}

std::int32_t flagsOfPasswords(const ProgressRun& run) {
    std::int32_t flags = 0;
    if (run.intUserPassAsked == 1)
        flags += flag::kUserPasswordAsked;
    if (run.intOwnerPassAsked == 1)
        flags += flag::kOwnerPasswordAsked;
    return flags;
}

} // namespace

std::int32_t GetConversionFlags(const ProgressRun& run) {
    const AppSettings& settings = run.records.settings;
    const BatchQueue& queue = run.records.queue;
    std::int32_t flags = settings.intConvertFrom == 0 ? flag::kAllPages : 0;
    if (run.records.flags.intRunKind == run_kind::kConvert)
        flags += flagsOfDocument(settings);
    flags += flagsOfPasswords(run);
    if (queue.lngSelectedBound < upperBound(queue.strSelectedFiles))
        flags += flag::kLaterFileOfSelection;
    if (settings.intOutputFormat == output_format::kDocx)
        flags += flag::kDocx;
    return flags;
}

std::int16_t layoutCode(const ProgressRun& run) {
    if (run.records.flags.intRunKind == run_kind::kExtractImages)
        return layout_code::kImages;
    switch (run.records.settings.intReconstMode) {
    case reconstruction_mode::kTruePage:
        return layout_code::kTruePage;
    case reconstruction_mode::kContinuous:
        return layout_code::kContinuous;
    case reconstruction_mode::kPlainText:
        return layout_code::kPlainText;
    default:
        return layout_code::kFlowing;
    }
}

void takeImageFormat(ConversionJob& job) {
    // The position is the engine's code.
    static const QStringList names{"BMP", "JPG", "PBM", "PCX", "PNG", "PNM", "PPM", "PSD", "TIFF"};
    const auto code = names.indexOf(job.strImageFormat.toUpper());
    if (code >= 0)
        job.intImageFormat = static_cast<std::int16_t>(code);
}

orvane::ConversionRequest engineRequest(const ProgressRun& run, const QString& password, std::int16_t layout) {
    const ConversionJob& job = run.records.job;
    const bool isConversion = run.records.flags.intRunKind == run_kind::kConvert;
    orvane::ConversionRequest request;
    request.sourcePath = (run.strStagedStem + ".pdf").toStdString();
    request.password = QString(password).remove(' ').trimmed().toStdString();
    request.pageRange = job.strPageRange.toStdString();
    request.flags = run.lngConvFlags;
    request.layoutCode = layout;
    request.imageFormat = job.intImageFormat;
    request.targetPath = (isConversion ? job.strOutputFile : job.strImageFolder).toStdString();
    request.logPath = run.records.settings.strLogPath.toStdString();
    request.temporaryFolder = stagingFolder(run).toStdString();
    request.applicationName = kApplicationName;
    request.makerAddress = kMakerAddress;
    request.registryKey = kRegistryKey;
    return request;
}

} // namespace run
