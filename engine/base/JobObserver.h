#pragma once

namespace orvane {

/// What a job is at. The numbers are the status codes of the contract (see orvane/ConversionEngine.h).
enum class JobStage {
    Opening = 1,
    Reading = 2,
    AnalysingFonts = 3,
    Page = 4,           ///< first: the page
    PageOfPages = 5,    ///< first: the page, second: how many
    Picture = 6,        ///< first: the picture
    WritingPage = 7,    ///< first: the page
    Generating = 10,
    DocumentComplete = 11,
    ImagesComplete = 12,
};

/// Told what a job is at, and asked whether to go on. Thread: called from the job's threads, one call at a time.
class JobObserver {
public:
    virtual ~JobObserver() = default;
    virtual void stageReached(JobStage stage, int first, int second) = 0;
    /// True once the job is to stop; long loops ask at least once a page and then throw Failure(Cancelled).
    virtual bool isCancelled() const = 0;
};

} // namespace orvane
